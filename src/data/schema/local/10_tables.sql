-- The station's own database: where the shared databases lie, which receipts are printed, and the
-- lines of the note being written.

-- Registry of the Firebird branch. ruta is a plain path (engine in the process) or host:path.
create table firebird (
    noidx smallint not null,
    base varchar(60),
    ruta varchar(255),
    constraint pk_firebird primary key (noidx)
);

-- Registry of the Informix branch. "USER" is quoted: the bare word would read the login.
create table informix (
    noidx smallint not null,
    base varchar(60),
    odbc varchar(60),
    server varchar(60),
    database varchar(60),
    "USER" varchar(60),
    pass varchar(60),
    constraint pk_informix primary key (noidx)
);

-- The copies of a receipt. tipo_serv empty: every note; else only the service type of that text.
create table recibos (
    recibo smallint not null,
    descripcion varchar(100),
    tipo_serv varchar(80),
    constraint pk_recibos primary key (recibo)
);

-- The note whose receipts are being printed, llave 1 alone. A row that is found at a login names a
-- patient who got no paper.
create table recibopendiente (
    llave smallint not null,
    num_caja integer not null,
    nota_vta integer not null,
    constraint pk_recibopendiente primary key (llave)
);

-- Lines of the note being written. No key: a line may still lack its cve_prod.
-- descripcion holds a price text and the text of an advance or a payment behind it.
create table detallevtas (
    num_caja smallint,
    nota_vta integer,
    codigo integer,
    tipo_prod integer,
    cve_prod integer,
    descripcion varchar(255),
    precio double precision,
    total double precision,
    prog varchar(5),
    subsubcta integer,
    claveprodserv integer,
    desc_adic varchar(255),
    cant smallint,
    nomenclatura varchar(25),
    porcentaje double precision
);

-- Scratch copy of a treatment plan.
create table plantratamiento (
    folio integer,
    prioridad smallint,
    especialidad varchar(70),
    tratamiento varchar(255)
);

-- Faculties whose students this station accepts.
create table unidades (
    unidad integer not null,
    descripcion varchar(200),
    constraint pk_unidades primary key (unidad)
);

commit;
