-- Admissions and what hangs on their folio.

set term ^ ;

-- An admission under the folio that the station took from control.folioad. A folio in use fails on
-- its key; another one is never picked, since the station writes the same folio into the patient's
-- data and history next. The counter moves on, never back.
-- An urgency (p_tipoadmision 'U') gets its row of admurgente as well.
create or alter procedure kdregistra_admision_p (
    p_folio integer,
    p_numcaja integer,
    p_notavta integer,
    p_tipoadmision varchar(1),
    p_matricula integer,
    p_alumno varchar(100),
    p_canalizadoa integer,
    p_nombre varchar(150),
    p_status varchar(2),
    p_autorizacion varchar(80),
    p_tipourgencia varchar(1),
    p_signosvitales varchar(15),
    p_nivelglucosa smallint,
    p_hora varchar(5),
    p_tratamiento varchar(255),
    p_centro varchar(4))
as
begin
    insert into admision (
        folio, fecha, num_caja, nota_vta, status, tipoadmision, matricula, alumno, canalizadoa,
        nombre, autorizacion, centro)
    values (
        :p_folio, hoy(), :p_numcaja, :p_notavta, :p_status, :p_tipoadmision, :p_matricula,
        :p_alumno, :p_canalizadoa, :p_nombre, :p_autorizacion, :p_centro);

    if (p_tipoadmision = 'U') then
        insert into admurgente (
            folio, tipourgencia, signosvitales, nivelglucosa, fecha, hora, tratamiento,
            autorizacion, centro)
        values (
            :p_folio, :p_tipourgencia, :p_signosvitales, :p_nivelglucosa, hoy(), :p_hora,
            :p_tratamiento, :p_autorizacion, :p_centro);

    update control c
       set c.folioad = :p_folio + 1
     where c.llave = '1'
       and c.folioad <= :p_folio;
end^

-- The patient of a folio. Names are searched with like, so they are trimmed and never NULL; all
-- else stands as given, because the admission screen tells empty from NULL.
create or alter procedure kdregistra_datosgenerales_p (
    folio integer,
    paterno varchar(40),
    materno varchar(40),
    paciente varchar(70),
    edad smallint,
    sexo varchar(1),
    tipopaciente varchar(1),
    domicilio varchar(50),
    colonia varchar(40),
    ciudad varchar(30),
    cod_postal integer,
    fecha_nac date,
    curp varchar(20),
    estadocivil varchar(15),
    telefono1 varchar(15),
    telefono2 varchar(15),
    medico varchar(70),
    telmedico varchar(15),
    emergencia varchar(70),
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
    nombre varchar(100))
as
begin
    insert into datosgenerales (
        folio, paterno, materno, paciente, edad, sexo, tipopaciente, domicilio, colonia, ciudad,
        cod_postal, fecha_nac, curp, estadocivil, telefono1, telefono2, medico, telmedico,
        enemergencia, parentesco, telemergencia, padretutor, telpadre, ocupacion, otraocupacion,
        motivocons, otromotivo, recomendadopor, otrarecomendacion, nombre)
    values (
        :folio, trim(coalesce(:paterno, '')), trim(coalesce(:materno, '')),
        trim(coalesce(:paciente, '')), :edad, :sexo, :tipopaciente, :domicilio, :colonia, :ciudad,
        :cod_postal, :fecha_nac, :curp, :estadocivil, :telefono1, :telefono2, :medico, :telmedico,
        :emergencia, :parentesco, :telemergencia, :padretutor, :telpadre, :ocupacion,
        :otraocupacion, :motivocons, :otromotivo, :recomendadopor, :otrarecomendacion, :nombre);
end^

-- The clinical history of a folio, as given: parameters in the order of the table.
create or alter procedure kdregistra_antecedentes_p (
    folio type of column antecedentes.folio,
    heredo_fam type of column antecedentes.heredo_fam,
    nopatologicos type of column antecedentes.nopatologicos,
    aparatodigestivo type of column antecedentes.aparatodigestivo,
    difrespiratoria type of column antecedentes.difrespiratoria,
    cardiopatias type of column antecedentes.cardiopatias,
    hipertension type of column antecedentes.hipertension,
    hiportension type of column antecedentes.hiportension,
    hemorragia type of column antecedentes.hemorragia,
    fiebrereumatica type of column antecedentes.fiebrereumatica,
    hepatitis type of column antecedentes.hepatitis,
    neurosicologicas type of column antecedentes.neurosicologicas,
    diabetes type of column antecedentes.diabetes,
    padrenales type of column antecedentes.padrenales,
    tabaquismo type of column antecedentes.tabaquismo,
    hipertiroidismo type of column antecedentes.hipertiroidismo,
    hipotiroidismo type of column antecedentes.hipotiroidismo,
    alcoholismo type of column antecedentes.alcoholismo,
    drogadiccion type of column antecedentes.drogadiccion,
    alergias type of column antecedentes.alergias,
    descr_alergias type of column antecedentes.descr_alergias,
    anestesia type of column antecedentes.anestesia,
    medicamento type of column antecedentes.medicamento,
    alimento type of column antecedentes.alimento,
    ag_fisicoamb type of column antecedentes.ag_fisicoamb,
    otralergia type of column antecedentes.otralergia,
    especifique type of column antecedentes.especifique,
    entratamiento type of column antecedentes.entratamiento,
    tipo type of column antecedentes.tipo,
    tipomedicamento type of column antecedentes.tipomedicamento,
    toma_hab_med type of column antecedentes.toma_hab_med,
    cualtoma type of column antecedentes.cualtoma,
    dosis type of column antecedentes.dosis,
    int_medicamento type of column antecedentes.int_medicamento,
    cualesmed type of column antecedentes.cualesmed,
    intanalgecicos type of column antecedentes.intanalgecicos,
    cualanalgecico type of column antecedentes.cualanalgecico,
    padecimientoactual type of column antecedentes.padecimientoactual,
    signosvitales type of column antecedentes.signosvitales,
    nivelglucosa type of column antecedentes.nivelglucosa,
    harecibidoad type of column antecedentes.harecibidoad,
    lugar type of column antecedentes.lugar,
    otrolugar type of column antecedentes.otrolugar,
    cond_dientes type of column antecedentes.cond_dientes,
    cond_tej_blandos type of column antecedentes.cond_tej_blandos,
    habito_cep type of column antecedentes.habito_cep,
    tartaro type of column antecedentes.tartaro,
    caries type of column antecedentes.caries,
    anomalias type of column antecedentes.anomalias,
    desgaste type of column antecedentes.desgaste,
    otrodientes type of column antecedentes.otrodientes,
    detalledientes type of column antecedentes.detalledientes,
    resequedad type of column antecedentes.resequedad,
    formalabios type of column antecedentes.formalabios,
    colorlabios type of column antecedentes.colorlabios,
    defectos type of column antecedentes.defectos,
    especificarlabios type of column antecedentes.especificarlabios,
    saburral type of column antecedentes.saburral,
    fisurada type of column antecedentes.fisurada,
    geografica type of column antecedentes.geografica,
    descamacion type of column antecedentes.descamacion,
    tama7oaumentado type of column antecedentes.tama7oaumentado,
    otrolengua type of column antecedentes.otrolengua,
    detallelengua type of column antecedentes.detallelengua,
    anomaliasfrenillos type of column antecedentes.anomaliasfrenillos,
    detallefrenillos type of column antecedentes.detallefrenillos,
    colorcarrillos type of column antecedentes.colorcarrillos,
    linealba type of column antecedentes.linealba,
    mordisqueo type of column antecedentes.mordisqueo,
    otroscarrillos type of column antecedentes.otroscarrillos,
    detallecarrillos type of column antecedentes.detallecarrillos,
    colorpisoboca type of column antecedentes.colorpisoboca,
    agrandamiento type of column antecedentes.agrandamiento,
    torus type of column antecedentes.torus,
    tipotorus type of column antecedentes.tipotorus,
    otropisoboca type of column antecedentes.otropisoboca,
    detallepisoboca type of column antecedentes.detallepisoboca,
    colorpaladar type of column antecedentes.colorpaladar,
    formatamano type of column antecedentes.formatamano,
    toruspaladar type of column antecedentes.toruspaladar,
    irritaciones type of column antecedentes.irritaciones,
    uvula type of column antecedentes.uvula,
    otropaladar type of column antecedentes.otropaladar,
    detallepaladar type of column antecedentes.detallepaladar,
    colorencias type of column antecedentes.colorencias,
    formaencias type of column antecedentes.formaencias,
    sangrado type of column antecedentes.sangrado,
    exudado type of column antecedentes.exudado,
    otroencias type of column antecedentes.otroencias,
    detallencias type of column antecedentes.detallencias,
    anomaliamigdalas type of column antecedentes.anomaliamigdalas,
    inflamacion type of column antecedentes.inflamacion,
    infeccion type of column antecedentes.infeccion,
    hipertroficas type of column antecedentes.hipertroficas,
    tiposaliva type of column antecedentes.tiposaliva,
    especifiquesaliva type of column antecedentes.especifiquesaliva,
    especifiquehabitos type of column antecedentes.especifiquehabitos)
as
begin
    insert into antecedentes (
        folio, heredo_fam, nopatologicos, aparatodigestivo, difrespiratoria, cardiopatias,
        hipertension, hiportension, hemorragia, fiebrereumatica, hepatitis, neurosicologicas,
        diabetes, padrenales, tabaquismo, hipertiroidismo, hipotiroidismo, alcoholismo,
        drogadiccion, alergias, descr_alergias, anestesia, medicamento, alimento, ag_fisicoamb,
        otralergia, especifique, entratamiento, tipo, tipomedicamento, toma_hab_med, cualtoma,
        dosis, int_medicamento, cualesmed, intanalgecicos, cualanalgecico, padecimientoactual,
        signosvitales, nivelglucosa, harecibidoad, lugar, otrolugar, cond_dientes,
        cond_tej_blandos, habito_cep, tartaro, caries, anomalias, desgaste, otrodientes,
        detalledientes, resequedad, formalabios, colorlabios, defectos, especificarlabios,
        saburral, fisurada, geografica, descamacion, tama7oaumentado, otrolengua, detallelengua,
        anomaliasfrenillos, detallefrenillos, colorcarrillos, linealba, mordisqueo, otroscarrillos,
        detallecarrillos, colorpisoboca, agrandamiento, torus, tipotorus, otropisoboca,
        detallepisoboca, colorpaladar, formatamano, toruspaladar, irritaciones, uvula, otropaladar,
        detallepaladar, colorencias, formaencias, sangrado, exudado, otroencias, detallencias,
        anomaliamigdalas, inflamacion, infeccion, hipertroficas, tiposaliva, especifiquesaliva,
        especifiquehabitos)
    values (
        :folio, :heredo_fam, :nopatologicos, :aparatodigestivo, :difrespiratoria, :cardiopatias,
        :hipertension, :hiportension, :hemorragia, :fiebrereumatica, :hepatitis, :neurosicologicas,
        :diabetes, :padrenales, :tabaquismo, :hipertiroidismo, :hipotiroidismo, :alcoholismo,
        :drogadiccion, :alergias, :descr_alergias, :anestesia, :medicamento, :alimento,
        :ag_fisicoamb, :otralergia, :especifique, :entratamiento, :tipo, :tipomedicamento,
        :toma_hab_med, :cualtoma, :dosis, :int_medicamento, :cualesmed, :intanalgecicos,
        :cualanalgecico, :padecimientoactual, :signosvitales, :nivelglucosa, :harecibidoad, :lugar,
        :otrolugar, :cond_dientes, :cond_tej_blandos, :habito_cep, :tartaro, :caries, :anomalias,
        :desgaste, :otrodientes, :detalledientes, :resequedad, :formalabios, :colorlabios,
        :defectos, :especificarlabios, :saburral, :fisurada, :geografica, :descamacion,
        :tama7oaumentado, :otrolengua, :detallelengua, :anomaliasfrenillos, :detallefrenillos,
        :colorcarrillos, :linealba, :mordisqueo, :otroscarrillos, :detallecarrillos,
        :colorpisoboca, :agrandamiento, :torus, :tipotorus, :otropisoboca, :detallepisoboca,
        :colorpaladar, :formatamano, :toruspaladar, :irritaciones, :uvula, :otropaladar,
        :detallepaladar, :colorencias, :formaencias, :sangrado, :exudado, :otroencias,
        :detallencias, :anomaliamigdalas, :inflamacion, :infeccion, :hipertroficas, :tiposaliva,
        :especifiquesaliva, :especifiquehabitos);
end^

set term ; ^

commit;
