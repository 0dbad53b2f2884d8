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
      CampusUsuario({"CampusUsuario", "select campus from controlusuarios where usuario=:usr"}),
      Usuarios_Mant({"Usuarios_Mant", "select * from usuarios_m where usuario=:usuario",
                     "usuarios_m", "usuario"}),
      Usuarios_Mant1({"Usuarios_Mant1", "select * from usuarios_m where usuario=:usuario"}),
      CambiaPass({"CambiaPass", "update controlusuarios set pass=:pass where usuario=:usuario"}),
      Control({"Control", "select * from control where llave=1", "control", "llave"}),
      ControlExpediente({"ControlExpediente",
                         "select * from controlexpedientes where campus=:campus",
                         "controlexpedientes", "campus"}),
      ControlExpedientes(
          {"ControlExpedientes", "select * from controlexpedientes where campus=:campus"}),
      TipoCambio(
          {"TipoCambio", "select * from TipoCambio Order by consec desc", "tipocambio", "consec"}),
      TipoCambio1({"TipoCambio1", "select * from TipoCambio Order by consec desc"}),
      est_caja({"est_caja", "select * from KDEST_CAJA(:p_caja, :p_fecha)"}),
      CtroAtencion({"CtroAtencion", "select * from ctroatencion Where ciudad=:cd order by centro",
                    "ctroatencion", "centro"}),
      CtroAtencion1(
          {"CtroAtencion1", "select * from ctroatencion Where ciudad=:cd order by centro"}),
      CtroAtencion3({"CtroAtencion3", "select distinct(ciudad) from ctroatencion order by ciudad"}),
      CtroAtencion4({"CtroAtencion4", "select * from ctroatencion Where centro=:centro"}),
      CtroAtencionF({"CtroAtencionF", "select * from ctroatencion"}),
      AreaVenta({"AreaVenta", "select * from areaventa where ciudad=:cd order by tipo_prod",
                 "areaventa", "tipo_prod"}),
      AreaVenta1({"AreaVenta1", "select * from areaventa where tipo_prod=:tipo_prod"}),
      AreaVenta2({"AreaVenta2", "select * from areaventa where ciudad=:cd order by tipo_prod"}),
      AreaVenta3({"AreaVenta3", "select * from areaventa where ciudad=:cd order by tipo_prod",
                  "areaventa", "tipo_prod"}),
      AreaVentaT({"AreaVentaT", "select max(tipo_prod) from areaventa"}),
      ConsultaAreas(
          {"ConsultaAreas",
           "select a.tipo_prod,a.descr from areaventa a where not exists (select s.tipo_prod from "
           "serviciosxctro s where s.tipo_prod=a.tipo_prod and s.centro=:centro) and "
           "a.ciudad=:cd order by a.tipo_prod"}),
      ServxCtro({"ServxCtro",
                 "select s.centro,s.tipo_prod,a.descr from serviciosxctro s, areaventa a where "
                 "s.tipo_prod=a.tipo_prod And s.centro=:cent",
                 "serviciosxctro", "centro,tipo_prod"}),
      ServxCtro1({"ServxCtro1", "select * from serviciosxctro where centro=:ctro", "serviciosxctro",
                  "centro,tipo_prod"}),
      ServxCtro2({"ServxCtro2", "select * from serviciosxctro where tipo_prod=:tipo"}),
      ServxCtroR({"ServxCtroR",
                  "SELECT SERVICIOSXCTRO.CENTRO, SERVICIOSXCTRO.TIPO_PROD, CTROATENCION.DESCR, "
                  "AREAVENTA.DESCR, CTROATENCION.CIUDAD FROM SERVICIOSXCTRO INNER JOIN "
                  "CTROATENCION ON (SERVICIOSXCTRO.CENTRO = CTROATENCION.CENTRO) INNER JOIN "
                  "AREAVENTA ON (SERVICIOSXCTRO.TIPO_PROD = AREAVENTA.TIPO_PROD) Where "
                  "CTROATENCION.CIUDAD=:cd ORDER BY SERVICIOSXCTRO.CENTRO, "
                  "SERVICIOSXCTRO.TIPO_PROD"}),
      AreaAtencion({"AreaAtencion",
                    "select * from areatencion where centro=:centro and tipo_prod=:tipo order by "
                    "centro,tipo_prod,area",
                    "areatencion", "centro,tipo_prod,area"}),
      AreaAtencionR({"AreaAtencionR",
                     "select a.centro,a.tipo_prod,a.area,a.descr,a.prog,a.tipo_serv,"
                     "a.responsable,c.ciudad,c.descr from areatencion a, ctroatencion c where "
                     "c.ciudad=:cd and a.centro=c.centro order by a.centro,a.tipo_prod,a.area"}),
      Prestaciones({"Prestaciones", "select * from prestaciones", "prestaciones", "prestacion"}),
      Prestaciones1({"Prestaciones1", "select * from prestaciones where prestacion=:prestacion"}),
      ClasifServicios({"ClasifServicios",
                       "SELECT * FROM Clasifservicios where ciudad=:cd and tipo_prod=:tipo_prod",
                       "clasifservicios", "ciudad,tipo_prod"}),
      ClasifServiciosR(
          {"ClasifServiciosR",
           "SELECT CTROATENCION.CENTRO, CLASIFSERVICIOS.EDADMIN, CLASIFSERVICIOS.EDADMAX, "
           "CLASIFSERVICIOS.REQUIERE_EDAD, CLASIFSERVICIOS.APLICADESC, "
           "CLASIFSERVICIOS.APLICA_ANTICIPO, CLASIFSERVICIOS.CIUDAD, PRESTACIONXSERV.PRESTACION, "
           "CLASIFSERVICIOS.TIPO_PROD, AREAVENTA.DESCR, PRESTACIONES.DESCRIPCION, "
           "CTROATENCION.DESCR, PRESTACIONXSERV.PORCENT FROM CLASIFSERVICIOS INNER JOIN "
           "CTROATENCION ON (CTROATENCION.CIUDAD = CLASIFSERVICIOS.CIUDAD) LEFT OUTER JOIN "
           "PRESTACIONXSERV ON (CTROATENCION.CENTRO = PRESTACIONXSERV.CENTRO) AND "
           "(CLASIFSERVICIOS.TIPO_PROD = PRESTACIONXSERV.TIPO_PROD) INNER JOIN AREAVENTA ON "
           "(CLASIFSERVICIOS.TIPO_PROD = AREAVENTA.TIPO_PROD) LEFT OUTER JOIN PRESTACIONES ON "
           "(PRESTACIONXSERV.PRESTACION = PRESTACIONES.PRESTACION) Where "
           "CLASIFSERVICIOS.CIUDAD=:cd "
           "ORDER BY CTROATENCION.CENTRO, CLASIFSERVICIOS.TIPO_PROD, "
           "PRESTACIONXSERV.PRESTACION"}),
      Prestacionxserv({"Prestacionxserv",
                       "SELECT centro,tipo_prod, prestacion, porcent,edad FROM Prestacionxserv "
                       "Where centro=:centro and tipo_prod=:tipo Order by tipo_prod, prestacion",
                       "prestacionxserv", "centro,tipo_prod,prestacion"}),
      LabExterno({"LabExterno", "select * from labexternos where campus=:campus", "labexternos",
                  "subsubcta"}),
      Listaprecios(
          {"Listaprecios",
           "SELECT AREAVENTA.TIPO_PROD, AREAVENTA.DESCR, LISTAPRECIOS.CODIGO, "
           "LISTAPRECIOS.CVE_PROD, LISTAPRECIOS.DESCR, LISTAPRECIOS.UNIMED, "
           "LISTAPRECIOS.MENUDEO, LISTAPRECIOS.PROG, LISTAPRECIOS.FECHA_MOV, "
           "LISTAPRECIOS.SUBSUBCTA, LISTAPRECIOS.NOMENCLATURA, LISTAPRECIOS.TIPODEIVA, "
           "LISTAPRECIOS.PORCENTAJEIVA, LISTAPRECIOS.CLASIFICACIONIVA, LISTAPRECIOS.VIGENTE, "
           "LISTAPRECIOS.CLAVEPRODSERV FROM AREAVENTA INNER JOIN LISTAPRECIOS ON "
           "(AREAVENTA.TIPO_PROD = LISTAPRECIOS.TIPO_PROD) Where AREAVENTA.CIUDAD=:cd ORDER BY "
           "AREAVENTA.DESCR"}),
      Listaprecios1({"Listaprecios1", "select * from LISTAPRECIOS where tipo_prod=:tipoprod",
                     "listaprecios", "codigo"}),
      Listaprecios3({"Listaprecios3", "select * from LISTAPRECIOS where tipo_prod=:tipoprod",
                     "listaprecios", "codigo"}),
      UMedida({"UMedida", "select * from unidadmedida order by descr"}),
      TipoForma({"TipoForma", "select * from tipo_formapago order by idtipo", "tipo_formapago",
                 "idtipo"}),
      Metodopagocfdi({"Metodopagocfdi", "select * from metodopagocfdi order by clave",
                      "metodopagocfdi", "clave"}),
      serviciosxctros(
          {"serviciosxctros", "select * from KDSERVICIOSXCTROS(:P_CENTRO, :P_DIRIGIDO)"}),
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
    Listaprecios1.addLookup(QStringLiteral("LKUMedida"), QStringLiteral("unimed"), UMedida,
                            QStringLiteral("unimed"), QStringLiteral("descr"));
    addClassDescriptions();
    bindAll({&ControlUsuarios, &ControlUsuarios1, &ControlUsuarios2,  &Usuarios_Mant,
             &Usuarios_Mant1,  &Control,          &ControlExpediente, &ControlExpedientes,
             &TipoCambio,      &TipoCambio1,      &est_caja,          &CtroAtencion,
             &CtroAtencion1,   &CtroAtencion3,    &CtroAtencion4,     &CtroAtencionF,
             &AreaVenta,       &AreaVenta2,       &AreaVenta3,        &AreaVentaT,
             &ConsultaAreas,   &ServxCtro,        &ServxCtro1,        &ServxCtro2,
             &ServxCtroR,      &AreaAtencion,     &AreaAtencionR,     &Prestaciones,
             &Prestaciones1,   &ClasifServicios,  &ClasifServiciosR,  &Prestacionxserv,
             &LabExterno,      &Listaprecios,     &Listaprecios1,     &Listaprecios3,
             &UMedida,         &TipoForma,        &Metodopagocfdi,    &serviciosxctros,
             &CargarExp,       &AdmisionNota,     &AreaVenta1,        &CampusUsuario});
    bindAll({&registra_admision_p, &registra_datosgenerales_p, &registra_antecedentes_p,
             &BorrarAdmision, &BorrarExpediente});
    bindAll({&CambiaPass});
}

void DMOdonto::addClassDescriptions() {
    // Thousands of classes refer to a few: each is read once per opening.
    const auto known = std::make_shared<QHash<int, QVariant>>();
    QObject::connect(&Prestaciones, &NamedQuery::modelAboutToBeReset, &Prestaciones,
                     [known] { known->clear(); });
    Prestaciones.addCalculated(
        QStringLiteral("Descrip"), [this, known](const NamedQuery::RowReader &row) -> QVariant {
            bool isClass = false;
            const int prestacion =
                row(QStringLiteral("beneficiario")).toString().trimmed().toInt(&isClass);
            if (isClass && !known->contains(prestacion)) {
                Prestaciones1.open({{QStringLiteral("prestacion"), prestacion}});
                known->insert(prestacion, Prestaciones1.value(QStringLiteral("descripcion")));
            }
            return isClass ? known->value(prestacion) : QVariant();
        });
    ClasifServicios.addCalculated(QStringLiteral("CLDescr"), [this](const NamedQuery::RowReader &) {
        return QVariant(session_.ClasifDescr.text());
    });
    Prestacionxserv.addLookup(QStringLiteral("CLDescr"), QStringLiteral("prestacion"), Prestaciones,
                              QStringLiteral("prestacion"), QStringLiteral("descripcion"));
}

QString DMOdonto::campusDelUsuario(const QString &usuario) {
    CampusUsuario.open({{QStringLiteral("usr"), usuario}});
    return CampusUsuario.text(QStringLiteral("campus"));
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
