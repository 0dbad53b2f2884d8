-- Patients, admissions, dossiers and their accounts.

-- Patients, one row per admission. Names are two characters wider than their fields, because
-- searches bind them between percent signs.
create table datosgenerales (
    paterno varchar(42) collate es,
    materno varchar(42) collate es,
    paciente varchar(72) collate es,
    edad smallint,
    fecha_nac date,
    nombre nombre_completo,
    folio integer not null,
    sexo varchar(1),
    tipopaciente varchar(1),
    domicilio varchar(50),
    colonia varchar(40),
    ciudad varchar(30),
    cod_postal integer,
    curp varchar(20),
    estadocivil varchar(15),
    telefono1 varchar(15),
    telefono2 varchar(15),
    medico varchar(70),
    telmedico varchar(15),
    enemergencia varchar(70),
    parentesco varchar(20),
    telemergencia varchar(15),
    padretutor varchar(70),
    telpadre varchar(15),
    ocupacion varchar(1),
    otraocupacion varchar(20),
    motivocons varchar(1),
    otromotivo varchar(40),
    recomendadopor varchar(1),
    otrarecomendacion varchar(40),
    constraint pk_datosgenerales primary key (folio)
);

-- Admissions. status: 'PD' pending, 'AU' authorised, 'CA' cancelled.
-- nota_vta 0: made without a note.
create table admision (
    folio integer not null,
    fecha date,
    num_caja integer,
    nota_vta integer,
    status varchar(2),
    tipoadmision varchar(1),
    matricula integer,
    alumno nombre_completo,
    canalizadoa integer,
    nombre varchar(150),
    autorizacion varchar(80),
    centro varchar(4),
    constraint pk_admision primary key (folio)
);

-- Data of an urgent admission.
create table admurgente (
    folio integer not null,
    tipourgencia varchar(1),
    signosvitales varchar(15),
    nivelglucosa smallint,
    fecha date,
    hora varchar(5),
    tratamiento varchar(255),
    autorizacion varchar(80),
    centro varchar(4),
    constraint pk_admurgente primary key (folio)
);

-- Clinical history. Codes of one letter and free text; the order of the columns is the order of
-- the parameters of KDREGISTRA_ANTECEDENTES_P.
create table antecedentes (
    folio integer not null,
    heredo_fam varchar(100),
    nopatologicos varchar(100),
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
    alcoholismo varchar(1),
    drogadiccion varchar(1),
    alergias varchar(1),
    descr_alergias varchar(100),
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
    cond_tej_blandos varchar(1),
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
    constraint pk_antecedentes primary key (folio)
);

-- Treatment plan of an admission.
create table plantratamiento (
    folio integer not null,
    prioridad smallint not null,
    especilidad varchar(70),
    tratamiento varchar(255),
    constraint pk_plantratamiento primary key (folio, prioridad)
);

-- Dossiers. status: 'AU' active, 'CA' cancelled. (num_caja, nota_vta) is the note that opened it.
create table expedientes (
    expediente numero_expediente not null,
    folio integer,
    prestacion integer,
    centro varchar(4),
    num_empl integer,
    empleado nombre_completo,
    dependencia varchar(100),
    status varchar(2),
    nombre nombre_completo,
    campus varchar(3) not null,
    fecha_ap date,
    num_caja integer,
    nota_vta integer,
    observacion varchar(200),
    expedienteold numero_expediente,
    constraint pk_expedientes primary key (campus, expediente)
);

-- Loans of paper dossiers. status: 'PR' lent, 'RG' returned.
create table prestamo_exp (
    consec integer not null,
    matricula integer,
    campus varchar(3),
    expediente numero_expediente,
    nombre varchar(255),
    status varchar(2),
    fecha_prestamo date,
    centro varchar(4),
    alumno nombre_completo,
    fecha_devolucion date,
    constraint pk_prestamo_exp primary key (consec)
);

-- Accounts opened by an advance. An imported balance has recibo_anticipo 'desk-0', the same for
-- every import of the desk.
create table anticipos (
    campus varchar(3) not null,
    expediente numero_expediente not null,
    recibo_anticipo varchar(20) not null,
    paterno varchar(40),
    materno varchar(40),
    paciente varchar(70),
    matricula integer,
    alumno nombre_completo,
    importe_tot dinero,
    saldo dinero,
    nombretratamiento varchar(255),
    pago_inicial dinero,
    constraint pk_anticipos primary key (campus, expediente, recibo_anticipo)
);

-- Payments against an account; a note may have several.
create table abonos (
    campus varchar(3),
    expediente numero_expediente,
    recibo_anticipo varchar(20),
    fecha_mov date,
    concepto varchar(80),
    importe dinero,
    recibopago varchar(20)
);

-- Movements of the accounts of a dossier. tipo_mov '1' is a charge, anything else a payment.
-- recibo is the charge that a movement belongs to, recibopago the note that made it.
-- campus keeps the equal dossier numbers of two campuses apart.
create table estadocuenta (
    recibo varchar(20) not null,
    expediente numero_expediente not null,
    matricula integer,
    tipo_mov varchar(1),
    fecha_mov date,
    concepto varchar(280),
    importe dinero,
    saldo dinero,
    consec integer not null,
    saldo_ant dinero,
    recibopago varchar(20),
    tipo_serv varchar(80),
    campus varchar(3) not null,
    constraint pk_estadocuenta primary key (consec)
);

-- Every treatment charged to a dossier.
create table historicoodontologia (
    expediente numero_expediente not null,
    codigo integer not null,
    tipo_prod integer,
    cve_prod integer,
    num_caja integer not null,
    nota_vta integer not null,
    fecha date,
    descr varchar(255),
    cant dinero,
    precio dinero,
    matricula integer,
    origen varchar(2),
    areactr varchar(2)
);

commit;
