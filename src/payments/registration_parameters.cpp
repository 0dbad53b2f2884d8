#include "payments/registration_parameters.h"

#include "payments/service_types.h"
#include "payments/totals.h"
#include "people/names.h"
#include "toolkit/core/text.h"

#include <QVariant>

namespace kaldo {

namespace {

/// Throws NotANumber: "La matrícula «12-» no es un número."
int number(const QString &text, const char *what) {
    bool ok = false;
    const int value = text.trimmed().toInt(&ok);
    if (!ok) {
        throw NotANumber(QStringLiteral("%1 «%2» no es un número.")
                             .arg(QString::fromUtf8(what), text)
                             .toStdString());
    }
    return value;
}

QString patientOf(const NoteDraft &draft) {
    return wholeName(draft.paterno, draft.materno, draft.nombre);
}

/// Whose name the note carries: a student's or an employee's, except on a dossier's services.
QString payerOf(const NoteDraft &draft) {
    if (!chargesDossier(draft.tipoServ)) {
        if (draft.hasEmployeeNumber()) {
            return draft.nombreEmpleado.trimmed();
        }
        if (draft.hasStudent()) {
            return draft.alumno.trimmed();
        }
    }
    return patientOf(draft);
}

/// The given name, which a note without dossier takes from its employee or its student.
QString givenNameOf(const NoteDraft &draft) {
    if (!draft.hasDossier()) {
        if (draft.hasEmployeeNumber()) {
            return draft.nombreEmpleado;
        }
        if (draft.hasStudent()) {
            return draft.alumno;
        }
    }
    return draft.nombre;
}

double benefitOf(const NoteDraft &draft, const Payment &payment) {
    return draft.prestacionExpediente > 0 ? payment.prestacion : draft.prestacion;
}

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

double difference(double left, double right) {
    return (Money::rounded(left) - Money::rounded(right)).toDouble();
}

}  // namespace

QString mpioOf(const QString &campus, const QString &before) {
    const QString code = campus.trimmed();
    if (code == QLatin1String("2")) {
        return QStringLiteral("M");
    }
    return code == QLatin1String("3") ? QStringLiteral("T") : before;
}

int matriculaNumber(const NoteDraft &draft) {
    return draft.hasStudent() ? number(draft.matricula, "La matrícula") : 0;
}

bool advanceTaken(const NoteDraft &draft, const Payment &payment) {
    return Money::rounded(payment.cantidadAnticipo) > Money() &&
           !sameAmount(payment.cantidadAnticipo, subtotalOf(draft.lines));
}

double importeOfNote(const NoteDraft &draft, const Payment &payment) {
    // An accepted advance makes both "Importe Total" equal, so that comparing those two alone would
    // charge the whole price: the cut would show money that nobody received.
    if (draft.porcPrestacion == 100) {
        return subtotalOf(draft.lines);
    }
    if (!advanceTaken(draft, payment) && sameAmount(draft.importeTotal, payment.importeTotal)) {
        return subtotalOf(draft.lines);
    }
    return payment.cantidadAnticipo;
}

double pesosKept(const Payment &payment) {
    if (payment.pesos <= 0) {
        return 0;
    }
    return Money::rounded(payment.pesos) > Money::rounded(payment.cambio)
               ? difference(payment.pesos, payment.cambio)
               : payment.pesos;
}

Parameters noteParameters(const NoteDraft &draft, const Payment &payment,
                          const RegistrationContext &context) {
    return {
        {QStringLiteral("P_NUMCAJA"), context.numCaja},
        {QStringLiteral("P_NOTAVTA"), draft.notaActual},
        {QStringLiteral("P_MPIO"), cutToWidth(context.mpioNota, 1)},
        {QStringLiteral("P_USUARIO"), cutToWidth(context.usuario, 8)},
        {QStringLiteral("P_IMPORTE"), importeOfNote(draft, payment)},
        {QStringLiteral("P_TIPOSERV"), cutToWidth(draft.cadenaServicio, 25)},
        {QStringLiteral("P_TIPOCTE"), draft.tipoPacienteRow.prestacion},
        {QStringLiteral("P_PACIENTE"), cutToWidth(payerOf(draft), kWholeNameWidth)},
        {QStringLiteral("P_MATRICULA"), matriculaNumber(draft)},
        {QStringLiteral("P_ALUMNO"), cutToWidth(draft.alumno, 100)},
        {QStringLiteral("P_TIPOCAMBIO"), payment.tipoCam},
        {QStringLiteral("P_PESOS"), pesosKept(payment)},
        {QStringLiteral("P_DOLARES"), payment.dolares},
        {QStringLiteral("P_CHEQUE"), payment.cheque},
        {QStringLiteral("P_CREDITO"), payment.tarjetaCredito},
        {QStringLiteral("P_CAMBIO"), payment.cambio},
        {QStringLiteral("P_IMPRESTACION"), benefitOf(draft, payment)},
        {QStringLiteral("P_NUMCHEQUE"), cutToWidth(payment.numCheque, 8)},
        {QStringLiteral("P_NUMEMPL"), draft.numEmpleado},
        {QStringLiteral("P_EXPEDIENTE"), cutToWidth(draft.expediente, 10)},
        {QStringLiteral("P_TURNO"), cutToWidth(context.turno, 2)},
        {QStringLiteral("P_CENTRO"), cutToWidth(context.centro, 4)},
        {QStringLiteral("P_PRESTACION"), draft.tipoPacienteRow.prestacion},
        {QStringLiteral("P_PORDSCTO"), draft.porcPrestacion},
        {QStringLiteral("P_IMPDSCTO"), benefitOf(draft, payment)},
        {QStringLiteral("P_AREA"), cutToWidth(draft.lugarArea, 2)},
        {QStringLiteral("P_PATERNO"), cutToWidth(draft.paterno, 40)},
        {QStringLiteral("P_MATERNO"), cutToWidth(draft.materno, 40)},
        {QStringLiteral("P_NOMBRE"), cutToWidth(givenNameOf(draft), 70)},
    };
}

bool createsAdmission(const NoteDraft &draft) {
    return draft.cadenaServicio == kAdmision;
}

Parameters admissionParameters(const NoteDraft &draft, const RegistrationContext &context,
                               int folio) {
    const QString empty = QStringLiteral("");
    return {
        {QStringLiteral("P_FOLIO"), folio},
        {QStringLiteral("P_NUMCAJA"), context.numCaja},
        {QStringLiteral("P_NOTAVTA"), draft.notaActual},
        {QStringLiteral("P_TIPOADMISION"), QStringLiteral("N")},
        {QStringLiteral("P_MATRICULA"), QVariant()},
        {QStringLiteral("P_ALUMNO"), empty},
        {QStringLiteral("P_CANALIZADOA"), QVariant()},
        {QStringLiteral("P_NOMBRE"), empty},
        {QStringLiteral("P_STATUS"),
         draft.nacimientoShown ? QStringLiteral("AU") : QStringLiteral("PD")},
        {QStringLiteral("P_AUTORIZACION"), empty},
        {QStringLiteral("P_TIPOURGENCIA"), empty},
        {QStringLiteral("P_SIGNOSVITALES"), empty},
        {QStringLiteral("P_NIVELGLUCOSA"), QVariant()},
        {QStringLiteral("P_HORA"), empty},
        {QStringLiteral("P_TRATAMIENTO"), empty},
        {QStringLiteral("P_CENTRO"), cutToWidth(context.centro, 4)},
    };
}

Parameters generalDataParameters(const NoteDraft &draft, int folio) {
    const QString empty = QStringLiteral("");
    const bool asked = draft.nacimientoShown;
    Parameters parameters{
        {QStringLiteral("FOLIO"), folio},
        {QStringLiteral("PATERNO"), cutToWidth(draft.paterno, 40)},
        {QStringLiteral("MATERNO"), cutToWidth(draft.materno, 40)},
        {QStringLiteral("PACIENTE"), cutToWidth(draft.nombre, 70)},
        {QStringLiteral("EDAD"), asked ? draft.edad : 0},
        {QStringLiteral("SEXO"), sexLetter(draft.sexo)},
        {QStringLiteral("TIPOPACIENTE"), asked ? draft.tipoPaciente : empty},
        {QStringLiteral("DOMICILIO"), empty},
        {QStringLiteral("COLONIA"), empty},
        {QStringLiteral("CIUDAD"), empty},
        {QStringLiteral("COD_POSTAL"), QVariant()},
        {QStringLiteral("FECHA_NAC"),
         asked && draft.fechaNac.isValid() ? QVariant(draft.fechaNac) : QVariant()},
    };
    for (const char *name :
         {"CURP", "ESTADOCIVIL", "TELEFONO1", "TELEFONO2", "MEDICO", "TELMEDICO", "EMERGENCIA",
          "PARENTESCO", "TELEMERGENCIA", "PADRETUTOR", "TELPADRE", "OCUPACION", "OTRAOCUPACION",
          "MOTIVOCONS", "OTROMOTIVO", "RECOMENDADOPOR", "OTRARECOMENDACION"}) {
        parameters.append({QString::fromLatin1(name), empty});
    }
    parameters.append({QStringLiteral("NOMBRE"), patientOf(draft)});
    return parameters;
}

Parameters methodOfPaymentParameters(const NoteDraft &draft, const Payment &payment,
                                     const RegistrationContext &context) {
    struct Method {
        QVariant cve, importe, moneda, tipoCambio;
    } method;
    const QString cash = QStringLiteral("01");
    const QString mxn = QStringLiteral("MXN");
    bool found = false;
    if (payment.dolares > 0) {
        method = {cash, payment.dolares * payment.tipoCam - payment.cambio, QStringLiteral("USD"),
                  payment.tipoCam};
        found = true;
    }
    if (payment.pesos > 0) {
        method = {cash, difference(payment.pesos, payment.cambio), mxn, 0.0};
        found = true;
    }
    if (payment.tarjetaCredito > 0) {
        const bool debit = payment.tipoDeTarjeta == CardKind::Debito;
        method = {debit ? QStringLiteral("28") : QStringLiteral("04"), payment.tarjetaCredito, mxn,
                  0.0};
        found = true;
    }
    Parameters parameters{{QStringLiteral("CAJA"), context.numCaja},
                          {QStringLiteral("NOTA"), draft.notaActual}};
    if (found) {
        parameters.append({QStringLiteral("CVE"), method.cve});
        parameters.append({QStringLiteral("IMPORTE"), method.importe});
    }
    for (const char *name : {"CTA", "RFCBANCO", "BANCO", "OPERACION", "RFCDESTINO", "CTADESTINO"}) {
        parameters.append({QString::fromLatin1(name), QStringLiteral("")});
    }
    if (found) {
        parameters.append({QStringLiteral("MONEDA"), method.moneda});
        parameters.append({QStringLiteral("TIPOCAMBIO"), method.tipoCambio});
    }
    return parameters;
}

Parameters lineParameters(const NoteDraft &draft, const Payment &payment,
                          const RegistrationContext &context, const NoteLine &line) {
    const bool shareIsPrice = draft.servicio == kLaboratoriosExternos &&
                              !sameAmount(draft.importeTotal, payment.importeAPagar);
    const bool described = !line.descAdic.trimmed().isEmpty();
    return {
        {QStringLiteral("P_CAJA"), context.numCaja},
        {QStringLiteral("P_NOTAVTA"), draft.notaActual},
        {QStringLiteral("P_CODIGO"), line.codigo},
        {QStringLiteral("P_CANT"), shareIsPrice ? 1.0 : static_cast<double>(line.cant)},
        {QStringLiteral("P_PRECIO"), shareIsPrice ? line.porcentaje : line.precio},
        {QStringLiteral("P_PORCDESCTO"), draft.porcPrestacion},
        {QStringLiteral("P_NOMBRE"), patientOf(draft)},
        {QStringLiteral("P_PROG"), number(line.prog, "El programa del concepto")},
        {QStringLiteral("P_SSCTA"), line.subsubcta},
        {QStringLiteral("P_DESADIC"),
         described ? cutToWidth(line.descAdic, 1000) : QStringLiteral(" ")},
        {QStringLiteral("P_FONDO"), QStringLiteral("11")},
        {QStringLiteral("P_ORIG"), cutToWidth(context.origen2, 2)},
        {QStringLiteral("P_SAFOLIO"), QStringLiteral("")},
        {QStringLiteral("P_FTEFTO"), 1400},
        {QStringLiteral("P_AREACTR"), cutToWidth(draft.tipoServ, 2)},
    };
}

Parameters historyParameters(const NoteDraft &draft, const RegistrationContext &context,
                             const NoteLine &line) {
    return {
        {QStringLiteral("P_EXPEDIENTE"), cutToWidth(draft.expediente, 10)},
        {QStringLiteral("P_CODIGO"), line.codigo},
        {QStringLiteral("P_TIPO_PROD"), line.tipoProd},
        {QStringLiteral("P_CVE_PROD"), line.cveProd ? QVariant(*line.cveProd) : QVariant()},
        {QStringLiteral("P_CAJA"), context.numCaja},
        {QStringLiteral("P_NOTAVTA"), draft.notaActual},
        {QStringLiteral("P_FECHA"), context.today},
        {QStringLiteral("P_DESCR"), cutToWidth(line.descripcion, 255)},
        {QStringLiteral("P_CANT"), static_cast<double>(line.cant)},
        {QStringLiteral("P_PRECIO"), line.precio},
        {QStringLiteral("P_MATRICULA"), matriculaNumber(draft)},
        {QStringLiteral("P_ORIGEN"), cutToWidth(context.origen2, 2)},
        {QStringLiteral("P_AREACTR"), cutToWidth(draft.lugarArea, 2)},
    };
}

Parameters financeParameters(const NoteDraft &draft, const RegistrationContext &context) {
    return {{QStringLiteral("V_CAJA"), context.numCaja},
            {QStringLiteral("V_NOTA"), draft.notaActual}};
}

Parameters taxParameters(const NoteDraft &draft, const RegistrationContext &context) {
    return {{QStringLiteral("CAJA"), context.numCaja}, {QStringLiteral("NOTA"), draft.notaActual}};
}

}  // namespace kaldo
