#include "data/dm_odonto.h"

#include "data/clinical_history_columns.h"

namespace kaldo {

namespace {

QStringList clinicalHistoryNames() {
    QStringList names;
    for (const ClinicalHistoryColumn &column : clinicalHistoryColumns()) {
        names += QString::fromLatin1(column.name);
    }
    return names;
}

}  // namespace

DMOdonto::DMOdonto(DMConexion &connections, const Session &session, const Options &options)
    : DataModule(QStringLiteral("DMOdonto"),
                 connections.branch(connections.FBOdonto, connections.InfxOdonto)),
      ControlUsuarios({"ControlUsuarios", "select * from controlusuarios where origen=:origen",
                       "controlusuarios", "usuario"}),
      ControlUsuarios1(
          {"ControlUsuarios1", "select * from controlusuarios where usuario=:usr and pass=:pas"}),
      ControlUsuarios2({"ControlUsuarios2",
                        "select * from controlusuarios where  num_caja=:caja and turno=:turno and "
                        "acceso='CA'"}),
      Usuarios_Mant1({"Usuarios_Mant1", "select * from usuarios_m where usuario=:usuario"}),
      CambiaPass({"CambiaPass", "update controlusuarios set pass=:pass where usuario=:usuario"}),
      Control({"Control", "select * from control where llave=1", "control", "llave"}),
      ControlExpediente(
          {"ControlExpediente", "select * from controlexpedientes where campus=:campus"}),
      ControlExpedientes(
          {"ControlExpedientes", "select * from controlexpedientes where campus=:campus"}),
      TipoCambio1({"TipoCambio1", "select * from TipoCambio Order by consec desc"}),
      CtroAtencion1(
          {"CtroAtencion1", "select * from ctroatencion Where ciudad=:cd order by centro"}),
      CtroAtencion4({"CtroAtencion4", "select * from ctroatencion Where centro=:centro"}),
      CtroAtencionF({"CtroAtencionF", "select * from ctroatencion"}),
      est_caja({"est_caja", "select * from KDEST_CAJA(:p_caja, :p_fecha)"}),
      serviciosxctros(
          {"serviciosxctros", "select * from KDSERVICIOSXCTROS(:P_CENTRO, :P_DIRIGIDO)"}),
      AreaAtencion({"AreaAtencion",
                    "select * from areatencion where centro=:centro and tipo_prod=:tipo order by "
                    "centro,tipo_prod,area"}),
      CargarExp({"CargarExp", "select * from KDCARGAREXP(:CENT, :CD, :FECHA, :TIPO, :BAN)"}),
      AdmisionNota(
          {"AdmisionNota", "select * from admision where num_caja=:caja and nota_vta=:nota"}),
      registra_admision_p("registra_admision_p", "KDREGISTRA_ADMISION_P",
                          "p_folio, p_numcaja, p_notavta, p_tipoadmision, p_matricula, p_alumno, "
                          "p_canalizadoa, p_nombre, p_status, p_autorizacion, p_tipourgencia, "
                          "p_signosvitales, p_nivelglucosa, p_hora, p_tratamiento, p_centro"),
      registra_datosgenerales_p(
          "registra_datosgenerales_p", "KDREGISTRA_DATOSGENERALES_P",
          "folio, paterno, materno, paciente, edad, sexo, tipopaciente, domicilio, colonia, "
          "ciudad, cod_postal, fecha_nac, curp, estadocivil, telefono1, telefono2, medico, "
          "telmedico, emergencia, parentesco, telemergencia, padretutor, telpadre, ocupacion, "
          "otraocupacion, motivocons, otromotivo, recomendadopor, otrarecomendacion, nombre"),
      registra_antecedentes_p("registra_antecedentes_p", "KDREGISTRA_ANTECEDENTES_P",
                              clinicalHistoryNames()),
      BorrarAdmision("BorrarAdmision", "KDBORRARADMISION", "num_caja, nota_vta, ciudad"),
      BorrarExpediente("BorrarExpediente", "KDBORRAREXPEDIENTE", "num_caja, nota_vta, ciudad"),
      session_(session),
      options_(options) {
    bindAll({&ControlUsuarios, &ControlUsuarios1, &ControlUsuarios2, &Usuarios_Mant1, &Control,
             &ControlExpediente, &ControlExpedientes, &TipoCambio1, &CtroAtencion1, &CtroAtencion4,
             &CtroAtencionF, &est_caja, &serviciosxctros, &AreaAtencion, &CargarExp,
             &AdmisionNota});
    bindAll({&registra_admision_p, &registra_datosgenerales_p, &registra_antecedentes_p,
             &BorrarAdmision, &BorrarExpediente});
    bindAll({&CambiaPass});
}

void DMOdonto::FolioAdm() {
    Control.reopen();
    FolioAdmision = Control.integer(QStringLiteral("folioad"));
}

void DMOdonto::FolioExp() {
    const QString year = QString::number(session_.AnioActual).left(4);
    ControlExpedientes.open(
        {{QStringLiteral("campus"),
          options_.ExpedienteUniversal ? QStringLiteral("000") : session_.Origen.text()}});
    ConsecExpediente = ControlExpedientes.integer(QStringLiteral("num_expediente"));
    NumExpediente =
        QString::number(ConsecExpediente).rightJustified(5, u'0') + u'/' + year.mid(2, 2);
}

}  // namespace kaldo
