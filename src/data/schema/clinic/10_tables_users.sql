-- Users, rights, counters, exchange rate.

-- Users. The password stands as typed; num_caja is text because the user screen writes it so.
create table controlusuarios (
    usuario varchar(8) not null,
    pass varchar(8),
    nombre varchar(60) collate es,
    nombrecorto varchar(20),
    acceso varchar(2),
    centro varchar(4),
    turno varchar(2),
    autoriza varchar(8),
    campus varchar(1) default '1',
    num_caja varchar(10),
    origen varchar(3),
    mpo smallint,
    usuarioid integer,
    constraint pk_controlusuarios primary key (usuario)
);

-- Rights of a user: one column per menu entry, 'S' or 'N', anything else counts as 'N'.
create table usuarios_m (
    origen varchar(3),
    centro varchar(4),
    usuario varchar(8) not null,
    acceso varchar(2),
    a3 varchar(1),
    b1 varchar(1),
    b2 varchar(1),
    b3 varchar(1),
    b4 varchar(1),
    b5 varchar(1),
    b6 varchar(1),
    b7 varchar(1),
    b8 varchar(1),
    b9 varchar(1),
    b10 varchar(1),
    b11a varchar(1),
    b12a varchar(1),
    c1 varchar(1),
    c2 varchar(1),
    c3 varchar(1),
    d1 varchar(1),
    d2 varchar(1),
    e1 varchar(1),
    e2 varchar(1),
    e3 varchar(1),
    e4 varchar(1),
    e5a varchar(1),
    e5b varchar(1),
    e5c varchar(1),
    e5d varchar(1),
    e6 varchar(1),
    e7 varchar(1),
    e8 varchar(1),
    e9 varchar(1),
    f1 varchar(1),
    f2 varchar(1),
    f3 varchar(1),
    i1 varchar(1),
    i2 varchar(1),
    h1a varchar(1),
    h1b varchar(1),
    h2a varchar(1),
    h2b varchar(1),
    h2c varchar(1),
    h2d varchar(1),
    h2e varchar(1),
    h2f varchar(1),
    j3 varchar(1),
    f4 varchar(1),
    f5 varchar(1),
    f61 varchar(1),
    f62 varchar(1),
    f63 varchar(1),
    f64 varchar(1),
    f65 varchar(1),
    f66 varchar(1),
    f67 varchar(1),
    f68 varchar(1),
    f71 varchar(1),
    f72 varchar(1),
    f73 varchar(1),
    f8 varchar(1),
    f9 varchar(1),
    f10 varchar(1),
    f11 varchar(1),
    i31 varchar(1),
    i32 varchar(1),
    i33 varchar(1),
    constraint pk_usuarios_m primary key (usuario)
);

-- One row, llave '1'. folioad is the next free admission folio.
create table control (
    llave varchar(1) not null,
    folioad integer default 1 not null,
    tipo_cam double precision,
    version numeric(9, 2),
    sistema_ver varchar(25),
    constraint pk_control primary key (llave)
);

-- Next free dossier number per campus; '000' is the counter shared by all of them.
create table controlexpedientes (
    campus varchar(3) not null,
    num_expediente integer default 1 not null,
    constraint pk_controlexpedientes primary key (campus)
);

-- Exchange rates, pesos per dollar. The row with the highest consec is in force.
create table tipocambio (
    consec integer not null,
    fecha date,
    tipo_cam double precision,
    constraint pk_tipocambio primary key (consec)
);


commit;
