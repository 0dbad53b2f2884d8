-- Cash desks, notes and the cash cut.

-- Cash desks. nota_vta is the next free note number.
create table datoscaja (
    num_caja integer not null,
    nota_vta integer default 1 not null,
    nombre varchar(20),
    origen varchar(30),
    autoriza varchar(8),
    prog_pol integer,
    serie varchar(5),
    serien varchar(5),
    correoto varchar(100),
    bancomn integer,
    bancodll integer,
    tipopaquete smallint,
    campus varchar(1),
    sistemaid smallint,
    tipoliza smallint,
    fechapaquete date,
    paqueteid varchar(20),
    pk_tipo_caja integer,
    constraint pk_datoscaja primary key (num_caja)
);

-- Which station works on the last note of a desk: it registers nota_vta, or repairs the desk where
-- that is NULL. A hold ends when the counter has passed its note, when it is given back, with the
-- attachment (conexion), and after five minutes.
create table uso_caja (
    num_caja integer not null,
    conexion bigint,
    nota_vta integer,
    momento timestamp,
    constraint pk_uso_caja primary key (num_caja)
);

-- Heads of notes. status: 'GE' generated, 'CA' cancelled. recibo is num_caja-nota_vta.
create table registrovtas (
    num_caja integer not null,
    nota_vta integer not null,
    mpio varchar(1),
    fecha date,
    tipo_vta varchar(15),
    factura varchar(15),
    fecha_factura varchar(35),
    fechafacturacfdi timestamp,
    observ varchar(255),
    status varchar(2),
    capto varchar(8),
    importe_tot dinero,
    tipocambio dinero,
    tipo_serv varchar(25),
    correo varchar(80),
    rfc varchar(13),
    razonsocial varchar(100),
    tipo_fact varchar(1),
    imp_findividual double precision,
    matricula integer,
    paqueteid varchar(20),
    campusid smallint,
    sistemaid smallint,
    polizaid integer default 0 not null,
    facturant varchar(15),
    fecha_cancel timestamp,
    recibo varchar(20),
    tipo_sal varchar(8),
    pk_tipo_cliente integer,
    alumno nombre_completo,
    pk_tipo_solicitud smallint,
    idcobro integer,
    fecha_hora timestamp,
    constraint pk_registrovtas primary key (num_caja, nota_vta)
);

-- Lines of notes.
create table detallevtas (
    num_caja integer not null,
    nota_vta integer not null,
    codigo integer not null,
    tipo_prod integer not null,
    cve_prod integer not null,
    cant dinero,
    precio dinero,
    porc_desc smallint,
    ingresoid integer,
    prog integer,
    des_adic varchar(1000),
    perc_dcto smallint,
    cve_subdesc integer,
    fondo varchar(2),
    foliosa varchar(12),
    subsubcta integer,
    tipodeiva varchar(11),
    porcentajeiva double precision,
    importeiva dinero,
    clasificacioniva integer,
    ftefinid integer,
    claveprodserv varchar(10),
    tipofactoriva varchar(20),
    id_adeudo integer,
    constraint pk_detallevtas primary key (num_caja, nota_vta, codigo, tipo_prod, cve_prod)
);

-- Clinic side of a note: who paid, where, with which benefit.
create table pagos_odontologia (
    num_caja integer not null,
    nota_vta integer not null,
    expediente numero_expediente,
    nombre nombre_completo,
    tipo_serv varchar(25),
    turno varchar(2),
    centro varchar(4),
    prestacion integer,
    porc_descto integer,
    imp_descto dinero,
    matricula integer,
    alumno nombre_completo,
    num_empl integer,
    empleado nombre_completo,
    area varchar(2),
    paciente nombre_completo,
    paterno varchar(40),
    materno varchar(40),
    constraint pk_pagos_odontologia primary key (num_caja, nota_vta)
);

-- How a note was paid. dolares in dollars, everything else in pesos.
create table formapago (
    num_caja integer not null,
    nota_vta integer not null,
    importe_tot dinero,
    dolares dinero,
    pesos dinero,
    cambio dinero,
    prestacion dinero,
    anticipo dinero,
    credito dinero,
    banco varchar(40),
    num_cta varchar(20),
    cheque dinero,
    chequedll dinero,
    numcheque varchar(8),
    bancomn integer,
    bancodll integer,
    complementaria dinero,
    beca dinero,
    constraint pk_formapago primary key (num_caja, nota_vta)
);

-- Cash sale of a note, as the cash cut prints it.
create table vtascontado (
    num_caja integer not null,
    nota_vta integer not null,
    tipo_cliente integer,
    nombre nombre_completo,
    imp_total dinero,
    constraint pk_vtascontado primary key (num_caja, nota_vta)
);

-- Work table of the cash cut: one row per note.
create table cortedetallado (
    num_caja integer,
    nota_vta integer,
    nombre nombre_completo,
    tipo_pago varchar(30),
    importe double precision default 0,
    usuario varchar(8),
    num_empl integer
);

-- Work table of the cash cut: one row per desk.
create table totales (
    sumapesos double precision,
    sumadolares double precision,
    sumacheque double precision,
    sumacredito double precision,
    sumapesosche double precision,
    sumatodo double precision,
    sumadm double precision,
    sumadoc double precision,
    sumchdll double precision,
    sumacomplemento double precision,
    sumapagoreconocido double precision,
    num_caja integer,
    usuario varchar(8),
    sumadvn double precision
);

-- Work table of the bank cut. The four ids make its grouping key, so none of them is NULL.
create table cortebancario (
    num_caja integer not null,
    fechacorte date not null,
    usuario varchar(8) not null,
    subsubctaid integer default 0 not null,
    ftefto integer default 0 not null,
    fondo integer default 0 not null,
    bancoid integer default 0 not null,
    nomenclatura varchar(25),
    nom_banco varchar(250),
    concepto varchar(50),
    importe dinero,
    prog integer
);

-- A note's payment by form of payment (tipo_formapago), in pesos.
create table detallepago (
    num_caja integer not null,
    nota_vta integer not null,
    idtipo integer not null,
    importe dinero,
    constraint pk_detallepago primary key (num_caja, nota_vta, idtipo)
);

-- Fiscal payment method of a note. What the station sends stands, NULL and left-over values too.
create table metodopagonota (
    num_caja integer not null,
    nota_vta integer not null,
    cve varchar(2),
    importe double precision,
    cta varchar(20),
    rfcbanco varchar(15),
    banco varchar(60),
    operacion varchar(40),
    rfcdestino varchar(15),
    ctadestino varchar(20),
    moneda varchar(3),
    tipocambio double precision,
    constraint pk_metodopagonota primary key (num_caja, nota_vta)
);

-- Change kept in favour of a patient.
create table saldopaciente (
    num_caja integer not null,
    nota_vta integer not null,
    cambio dinero,
    constraint pk_saldopaciente primary key (num_caja, nota_vta)
);

commit;
