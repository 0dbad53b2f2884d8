-- Chart of accounts, banks, taxes, programmes, users.

-- The chart of accounts: five levels, the sixth in cg_subsubcta.
create table cg_genero (
    generoid smallint not null,
    descripcion varchar(250),
    constraint pk_cg_genero primary key (generoid)
);

create table cg_grupo (
    generoid smallint not null,
    grupoid smallint not null,
    descripcion varchar(250),
    constraint pk_cg_grupo primary key (generoid, grupoid)
);

create table cg_rubro (
    generoid smallint not null,
    grupoid smallint not null,
    cgrubroid smallint not null,
    descripcion varchar(250),
    constraint pk_cg_rubro primary key (generoid, grupoid, cgrubroid)
);

create table cg_cuenta (
    generoid smallint not null,
    grupoid smallint not null,
    cgrubroid smallint not null,
    cuentaid smallint not null,
    descripcion varchar(250),
    constraint pk_cg_cuenta primary key (generoid, grupoid, cgrubroid, cuentaid)
);

create table cg_subcta (
    generoid smallint not null,
    grupoid smallint not null,
    cgrubroid smallint not null,
    cuentaid smallint not null,
    subctaid smallint not null,
    nomenclatura varchar(25),
    descripcion varchar(250),
    constraint pk_cg_subcta primary key (generoid, grupoid, cgrubroid, cuentaid, subctaid)
);

create table cg_subsubcta (
    generoid smallint not null,
    grupoid smallint not null,
    cgrubroid smallint not null,
    cuentaid smallint not null,
    subctaid smallint not null,
    subsubctaid integer not null,
    nomenclatura varchar(25),
    descripcion varchar(250),
    constraint pk_cg_subsubcta
        primary key (generoid, grupoid, cgrubroid, cuentaid, subctaid, subsubctaid)
);

-- The combinations of levels that may be used.
create table cg_matrizdi (
    generoid_a smallint not null,
    grupoid_a smallint not null,
    cgrubroid_a smallint not null,
    cuentaid_a smallint not null,
    subctaid_a smallint not null,
    constraint pk_cg_matrizdi
        primary key (generoid_a, grupoid_a, cgrubroid_a, cuentaid_a, subctaid_a)
);

-- Bank accounts. tipomoneda: 1 pesos, 2 dollars.
create table cg_banco (
    generoid smallint,
    grupoid smallint,
    cgrubroid smallint,
    cuentaid smallint,
    subctaid smallint,
    subsubctaid integer,
    nomenclatura varchar(25),
    descripcion varchar(250) collate es,
    posleftnumcheque integer,
    bancoid integer not null,
    tipomoneda integer,
    constraint pk_cg_banco primary key (bancoid)
);

-- Which programmes may use an account.
create table cg_bancoporprograma (
    programaid integer not null,
    bancoid integer not null,
    constraint pk_cg_bancoporprograma primary key (bancoid, programaid)
);

-- Tax rates.
create table cg_tipodeiva (
    tipodeiva integer not null,
    descripcion varchar(50),
    porcentaje double precision,
    idgenchar varchar(20),
    idgenum integer,
    concepto varchar(100),
    constraint pk_cg_tipodeiva primary key (tipodeiva)
);

-- Tax classifications inside a rate.
create table cg_clasificacioniva (
    tipodeiva integer not null,
    clasificacionid integer not null,
    descripcion varchar(50),
    constraint pk_cg_clasificacioniva primary key (tipodeiva, clasificacionid)
);

-- Finance users; app_login in capitals.
create table cg_usuario (
    usuarioid integer not null,
    app_login varchar(20) not null,
    mpo varchar(3),
    constraint pk_cg_usuario primary key (usuarioid)
);

-- Programmes.
create table programa (
    programaid integer not null,
    nombre varchar(70) collate es,
    constraint pk_programa primary key (programaid)
);

-- Payment orders with their account and transaction.
create table orden_pago (
    tipodeorden varchar(2) not null,
    axomvto integer not null,
    campus integer not null,
    municipio integer not null,
    numorden integer not null,
    tipotransac smallint,
    bancoid integer,
    numerotransac integer,
    generoid smallint,
    grupoid smallint,
    cgrubroid smallint,
    cuentaid smallint,
    subctaid smallint,
    subsubctaid smallint,
    nomenclatura varchar(25),
    nom_banco varchar(250),
    ftefinid smallint,
    nom_transaccion varchar(100),
    programa_banco integer,
    constraint pk_orden_pago primary key (tipodeorden, axomvto, campus, municipio, numorden)
);

create view cg_banco_sase_vw as
select
    tipodeorden,
    axomvto,
    campus,
    municipio,
    numorden,
    tipotransac,
    bancoid,
    numerotransac,
    generoid,
    grupoid,
    cgrubroid,
    cuentaid,
    subctaid,
    subsubctaid,
    nomenclatura,
    nom_banco,
    ftefinid,
    nom_transaccion,
    programa_banco
from orden_pago;

-- Notes that the clinic handed over, and when.
create table recibopago (
    num_caja integer not null,
    nota_vta integer not null,
    momento timestamp not null,
    constraint pk_recibopago primary key (num_caja, nota_vta)
);

create index ix_cg_usuario_login on cg_usuario (app_login);

commit;
