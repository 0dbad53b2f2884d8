-- Catalogues.

-- Care centres; ciudad is the campus code.
create table ctroatencion (
    centro varchar(4) not null,
    descr varchar(80) collate es,
    domicilio varchar(60),
    colonia varchar(60),
    telefono1 varchar(15),
    responsable varchar(80),
    prog varchar(5),
    descripcion varchar(60),
    correoto varchar(100),
    ciudad varchar(3),
    cp integer,
    constraint pk_ctroatencion primary key (centro)
);

-- Sales areas: a priced group of items of one campus.
create table areaventa (
    descr varchar(80) collate es,
    tipo_prod integer not null,
    dirigidoa varchar(2),
    generoid smallint,
    grupoid smallint,
    cgrubroid smallint,
    cuentaid smallint,
    subctaid smallint,
    origen varchar(2),
    vigente varchar(1),
    ciudad varchar(3),
    nomenclatura varchar(25),
    constraint pk_areaventa primary key (tipo_prod)
);

-- Clinics: places inside a centre that deliver one sales area.
create table areatencion (
    centro varchar(4) not null,
    tipo_prod integer not null,
    area varchar(2) not null,
    descr varchar(40) collate es,
    prog varchar(5),
    tipo_serv varchar(2),
    responsable varchar(80),
    constraint pk_areatencion primary key (centro, tipo_prod, area)
);

-- Which sales areas a centre offers.
create table serviciosxctro (
    centro varchar(4) not null,
    tipo_prod integer not null,
    constraint pk_serviciosxctro primary key (centro, tipo_prod)
);

-- Age range and flags of a sales area in a campus.
create table clasifservicios (
    tipo_prod integer not null,
    edadmin integer,
    edadmax integer,
    requiere_edad varchar(1),
    aplicadesc varchar(1),
    aplica_anticipo varchar(1),
    ciudad varchar(3) not null,
    constraint pk_clasifservicios primary key (ciudad, tipo_prod)
);

-- Patient classes. beneficiario names the class whose relatives this one stands for; '' for
-- holders, never NULL, since lists ask for ''.
create table prestaciones (
    prestacion integer not null,
    descripcion varchar(100) collate es,
    beneficiario varchar(11) default '' not null,
    constraint pk_prestaciones primary key (prestacion)
);

-- Benefit percent of a patient class on a sales area of a centre.
create table prestacionxserv (
    centro varchar(4) not null,
    tipo_prod integer not null,
    prestacion integer not null,
    porcent integer,
    edad smallint,
    constraint pk_prestacionxserv primary key (centro, tipo_prod, prestacion)
);

-- Price list. Note lines find their item by codigo alone, hence its uniqueness.
create table listaprecios (
    codigo integer not null,
    cve_prod integer,
    descr varchar(150) collate es,
    unimed smallint,
    menudeo double precision default 0,
    prog varchar(5),
    fecha_mov date,
    subsubcta integer,
    nomenclatura varchar(25),
    tipodeiva integer,
    porcentajeiva double precision,
    clasificacioniva integer,
    vigente varchar(1),
    claveprodserv integer,
    tipo_prod integer not null,
    constraint pk_listaprecios primary key (tipo_prod, codigo),
    constraint uq_listaprecios_codigo unique (codigo)
);

-- Units of measure.
create table unidadmedida (
    unimed smallint not null,
    descr varchar(20) collate es,
    constraint pk_unidadmedida primary key (unimed)
);

-- External laboratories.
create table labexternos (
    subsubcta integer not null,
    prog integer,
    descr varchar(70) collate es,
    domicilio varchar(255),
    colonia varchar(30),
    ciudad varchar(30),
    telefono varchar(15),
    correo varchar(80),
    responsable varchar(80),
    nomenclatura varchar(25),
    activo varchar(1),
    rfc varchar(15),
    cp integer,
    tipo_prod integer,
    campus varchar(3) not null,
    constraint pk_labexternos primary key (campus, subsubcta),
    constraint uq_labexternos_subsubcta unique (subsubcta)
);

-- Forms of payment; detallepago.idtipo points here.
create table tipo_formapago (
    idtipo integer not null,
    tipopago varchar(80),
    generoid smallint,
    grupoid smallint,
    cgrubroid smallint,
    cuentaid smallint,
    subctaid smallint,
    nomenclatura varchar(25),
    constraint pk_tipo_formapago primary key (idtipo)
);

-- Fiscal payment methods.
create table metodopagocfdi (
    clave varchar(2) not null,
    descripcion varchar(100) collate es,
    constraint pk_metodopagocfdi primary key (clave)
);

-- Students of the clinics. status 'S' once a patient was assigned.
create table listalumnos (
    matricula integer not null,
    nombre varchar(70) collate es,
    semestre varchar(2),
    fecha date,
    grupo varchar(1),
    centro varchar(4),
    trabajos smallint,
    status varchar(2),
    constraint pk_listalumnos primary key (matricula)
);

-- Employees of the university, as the look-up of a payer needs them.
-- tipo_empleado: 1 administrative, 2 academic, 3 both. vigente: 1 while employed.
create table empleados (
    num_empl integer not null,
    nombre varchar(100) not null collate es,
    cve_unida varchar(10),
    descripcion varchar(80),
    tipo_empleado integer not null,
    vigente varchar(1) default '1' not null,
    constraint pk_empleados primary key (num_empl)
);

-- Bank accounts and their programmes, repeated here from finance: the bank screen tests and writes
-- both sides, and the bank cut cannot read across databases.
create table cg_banco (
    generoid smallint,
    grupoid smallint,
    cgrubroid smallint,
    cuentaid smallint,
    subctaid smallint,
    subsubctaid integer,
    nomenclatura varchar(25),
    descripcion varchar(250),
    posleftnumcheque integer,
    bancoid integer not null,
    tipomoneda integer,
    constraint pk_cg_banco primary key (bancoid)
);

create table cg_bancoporprograma (
    programaid integer not null,
    bancoid integer not null,
    constraint pk_cg_bancoporprograma primary key (bancoid, programaid)
);

commit;
