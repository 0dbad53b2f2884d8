-- The clinic control that came before this system: read, imported from, never written but for the
-- status of a dossier.

-- Admissions of the former system.
create table admision (
    folio integer not null,
    constraint pk_admision primary key (folio)
);

-- Patients.
create table datosgenerales (
    folio integer not null,
    paterno varchar(42),
    materno varchar(42),
    paciente varchar(72),
    edad smallint,
    sexo varchar(1),
    tipopaciente varchar(1),
    domicilio varchar(50),
    colonia varchar(40),
    ciudad varchar(30),
    cod_postal smallint,
    fecha_nac date,
    constraint pk_datosgenerales primary key (folio)
);

-- Dossiers; status 'IM' once imported.
create table expedientes (
    folio integer,
    expediente varchar(10) not null,
    centro varchar(4),
    status varchar(2),
    constraint pk_expedientes primary key (expediente)
);

-- Clinical history. The last four columns stand elsewhere in the clinic: copy by name.
create table antecedentes (
    folio integer not null,
    heredo_fam varchar(100),
    aparatodigestivo varchar(1),
    difrespiratoria varchar(1),
    cardiopatias varchar(1),
    hipertension varchar(1),
    hiportension varchar(1),
    hemorragia varchar(1),
    fiebrereumatica varchar(1),
    hepatitis varchar(1),
    neurosicologicas varchar(1),
    diabetes varchar(1),
    padrenales varchar(1),
    tabaquismo varchar(1),
    hipertiroidismo varchar(1),
    hipotiroidismo varchar(1),
    drogadiccion varchar(1),
    alergias varchar(1),
    anestesia varchar(1),
    medicamento varchar(1),
    alimento varchar(18),
    ag_fisicoamb varchar(1),
    otralergia varchar(1),
    especifique varchar(100),
    entratamiento varchar(1),
    tipo varchar(80),
    tipomedicamento varchar(100),
    toma_hab_med varchar(1),
    cualtoma varchar(100),
    dosis varchar(100),
    int_medicamento varchar(1),
    cualesmed varchar(100),
    intanalgecicos varchar(1),
    cualanalgecico varchar(100),
    padecimientoactual varchar(255),
    signosvitales varchar(15),
    nivelglucosa smallint,
    harecibidoad varchar(1),
    lugar varchar(1),
    otrolugar varchar(30),
    cond_dientes varchar(1),
    habito_cep varchar(1),
    tartaro varchar(1),
    caries varchar(1),
    anomalias varchar(1),
    desgaste varchar(1),
    otrodientes varchar(1),
    detalledientes varchar(200),
    resequedad varchar(1),
    formalabios varchar(80),
    colorlabios varchar(30),
    defectos varchar(80),
    especificarlabios varchar(255),
    saburral varchar(1),
    fisurada varchar(1),
    geografica varchar(1),
    descamacion varchar(1),
    tama7oaumentado varchar(1),
    otrolengua varchar(1),
    detallelengua varchar(200),
    anomaliasfrenillos varchar(1),
    detallefrenillos varchar(200),
    colorcarrillos varchar(30),
    linealba varchar(20),
    mordisqueo varchar(1),
    otroscarrillos varchar(1),
    detallecarrillos varchar(200),
    colorpisoboca varchar(30),
    agrandamiento varchar(1),
    torus varchar(1),
    tipotorus varchar(1),
    otropisoboca varchar(1),
    detallepisoboca varchar(200),
    colorpaladar varchar(30),
    formatamano varchar(100),
    toruspaladar varchar(1),
    irritaciones varchar(1),
    uvula varchar(1),
    otropaladar varchar(1),
    detallepaladar varchar(200),
    colorencias varchar(30),
    formaencias varchar(80),
    sangrado varchar(1),
    exudado varchar(1),
    otroencias varchar(1),
    detallencias varchar(200),
    anomaliamigdalas varchar(1),
    inflamacion varchar(1),
    infeccion varchar(1),
    hipertroficas varchar(1),
    tiposaliva varchar(1),
    especifiquesaliva varchar(200),
    especifiquehabitos varchar(200),
    cond_tej_blandos varchar(1),
    nopatologicos varchar(100),
    alcoholismo varchar(1),
    descr_alergias varchar(100),
    constraint pk_antecedentes primary key (folio)
);

-- Accounts by note. Notes of this system have no cash desk in their key.
create table anticipos (
    nota_vta varchar(8),
    expediente varchar(10),
    paterno varchar(40),
    materno varchar(40),
    paciente varchar(70),
    importe_tot numeric(15, 4),
    saldo numeric(15, 4)
);

-- Movements of the accounts.
create table estadocuenta (
    nota_vta varchar(8),
    expediente varchar(10),
    matricula integer,
    tipo_mov varchar(1),
    fecha_mov date,
    concepto varchar(60),
    importe numeric(15, 4),
    saldo numeric(15, 4),
    consec integer,
    saldo_ant numeric(15, 4),
    recibopago varchar(8)
);

-- Notes.
create table registrovtas (
    fecha date,
    status varchar(2),
    centro varchar(4),
    prestacion varchar(4),
    tipo varchar(4),
    area varchar(2),
    servicio varchar(4),
    prog varchar(5),
    empleado integer,
    nombre varchar(80),
    paterno varchar(40),
    tipopago varchar(8),
    materno varchar(40),
    paciente varchar(70),
    anticipo numeric(15, 4),
    nota_vta varchar(8) not null,
    constraint pk_registrovtas primary key (nota_vta)
);

-- Lines of notes.
create table detallevtas (
    nota_vta varchar(8),
    tipo varchar(4),
    servicio varchar(4),
    cve_serv varchar(4),
    laboratorio varchar(5)
);

-- Prices.
create table listaprecios (
    tipo varchar(4),
    servicio varchar(4),
    cve_serv varchar(4),
    laboratorio varchar(5),
    descr varchar(80)
);

-- Types of service.
create table tiposervicio (
    tipo varchar(4) not null,
    descr varchar(80),
    constraint pk_tiposervicio primary key (tipo)
);

-- Services per type.
create table clasifservicios (
    tipo varchar(4) not null,
    servicio varchar(4) not null,
    descr varchar(80),
    tipo_serv varchar(2),
    aplicadesc varchar(1),
    edadmin smallint,
    edadmax smallint,
    constraint pk_clasifservicios primary key (tipo, servicio)
);

-- External laboratories.
create table labexternos (
    subsubcta varchar(5) not null,
    prog varchar(5),
    descr varchar(70),
    domicilio varchar(255),
    colonia varchar(30),
    ciudad varchar(20),
    telefono1 varchar(15),
    telefono2 varchar(15),
    fax varchar(15),
    correo varchar(80),
    responsable varchar(80),
    nomenclatura varchar(25),
    activo varchar(1),
    rfc varchar(15),
    cp integer,
    constraint pk_labexternos primary key (subsubcta)
);

create index ix_expedientes_folio on expedientes (folio);
create index ix_datosgenerales_nombre on datosgenerales (paterno, materno);
create index ix_anticipos_expediente on anticipos (expediente);
create index ix_anticipos_nota on anticipos (nota_vta);
create index ix_estadocuenta_expediente on estadocuenta (expediente);
create index ix_estadocuenta_nota on estadocuenta (nota_vta);
create index ix_estadocuenta_pago on estadocuenta (recibopago);
create index ix_detallevtas_nota on detallevtas (nota_vta);
create index ix_listaprecios on listaprecios (tipo, servicio, cve_serv, laboratorio);

commit;
