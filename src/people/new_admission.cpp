#include "people/new_admission.h"

#include "people/names.h"
#include "toolkit/core/text.h"

namespace kaldo {

namespace {

QString sexLetter(Sex sex) {
    switch (sex) {
        case Sex::Femenino:
            return QStringLiteral("F");
        case Sex::Masculino:
            return QStringLiteral("M");
        case Sex::Unset:
            break;
    }
    return QStringLiteral("");
}

}  // namespace

Parameters admissionParameters(const NewAdmission &admission) {
    const QString empty = QStringLiteral("");
    return {
        {QStringLiteral("P_FOLIO"), admission.folio},
        {QStringLiteral("P_NUMCAJA"), admission.numCaja},
        {QStringLiteral("P_NOTAVTA"), admission.notaVta},
        {QStringLiteral("P_TIPOADMISION"), QStringLiteral("N")},
        {QStringLiteral("P_MATRICULA"), QVariant()},
        {QStringLiteral("P_ALUMNO"), empty},
        {QStringLiteral("P_CANALIZADOA"), QVariant()},
        {QStringLiteral("P_NOMBRE"), empty},
        {QStringLiteral("P_STATUS"),
         admission.nacimiento ? QStringLiteral("AU") : QStringLiteral("PD")},
        {QStringLiteral("P_AUTORIZACION"), empty},
        {QStringLiteral("P_TIPOURGENCIA"), empty},
        {QStringLiteral("P_SIGNOSVITALES"), empty},
        {QStringLiteral("P_NIVELGLUCOSA"), QVariant()},
        {QStringLiteral("P_HORA"), empty},
        {QStringLiteral("P_TRATAMIENTO"), empty},
        {QStringLiteral("P_CENTRO"), cutToWidth(admission.centro, 4)},
    };
}

Parameters generalDataParameters(const NewAdmission &admission) {
    const QString empty = QStringLiteral("");
    const Birth birth = admission.nacimiento.value_or(Birth{{}, 0, empty});
    Parameters parameters{
        {QStringLiteral("FOLIO"), admission.folio},
        {QStringLiteral("PATERNO"), cutToWidth(admission.paterno, 40)},
        {QStringLiteral("MATERNO"), cutToWidth(admission.materno, 40)},
        {QStringLiteral("PACIENTE"), cutToWidth(admission.nombre, 70)},
        {QStringLiteral("EDAD"), birth.edad},
        {QStringLiteral("SEXO"), sexLetter(admission.sexo)},
        {QStringLiteral("TIPOPACIENTE"), birth.tipoPaciente},
        {QStringLiteral("DOMICILIO"), empty},
        {QStringLiteral("COLONIA"), empty},
        {QStringLiteral("CIUDAD"), empty},
        {QStringLiteral("COD_POSTAL"), QVariant()},
        {QStringLiteral("FECHA_NAC"), birth.fecha.isValid() ? QVariant(birth.fecha) : QVariant()},
    };
    for (const char *name :
         {"CURP", "ESTADOCIVIL", "TELEFONO1", "TELEFONO2", "MEDICO", "TELMEDICO", "EMERGENCIA",
          "PARENTESCO", "TELEMERGENCIA", "PADRETUTOR", "TELPADRE", "OCUPACION", "OTRAOCUPACION",
          "MOTIVOCONS", "OTROMOTIVO", "RECOMENDADOPOR", "OTRARECOMENDACION"}) {
        parameters.append({QString::fromLatin1(name), empty});
    }
    parameters.append({QStringLiteral("NOMBRE"),
                       wholeName(admission.paterno, admission.materno, admission.nombre)});
    return parameters;
}

}  // namespace kaldo
