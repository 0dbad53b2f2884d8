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

int programmeNumber(const NoteLine &line) {
    return number(line.prog, "El programa del concepto");
}

QString patientOf(const NoteDraft &draft) {
    return wholeName(draft.payer.paterno, draft.payer.materno, draft.payer.nombre);
}

/// Whose name the note carries: a student's or an employee's, except on a dossier's services.
QString payerOf(const NoteDraft &draft) {
    if (!chargesDossier(draft.service.tipoServ)) {
        if (draft.payer.hasEmployeeNumber()) {
            return draft.payer.nombreEmpleado.trimmed();
        }
        if (draft.payer.hasStudent()) {
            return draft.payer.alumno.trimmed();
        }
    }
    return patientOf(draft);
}

/// The given name, which a note without dossier takes from its employee or its student.
QString givenNameOf(const NoteDraft &draft) {
    if (!draft.payer.hasDossier()) {
        if (draft.payer.hasEmployeeNumber()) {
            return draft.payer.nombreEmpleado;
        }
        if (draft.payer.hasStudent()) {
            return draft.payer.alumno;
        }
    }
    return draft.payer.nombre;
}

double benefitOf(const NoteDraft &draft, const Payment &payment) {
    return draft.payer.prestacionExpediente > 0 ? payment.prestacion : draft.amounts.prestacion;
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
    return draft.payer.hasStudent() ? number(draft.payer.matricula, "La matrícula") : 0;
}

void checkNumbers(const NoteDraft &draft) {
    static_cast<void>(matriculaNumber(draft));
    for (const NoteLine &line : draft.lines) {
        static_cast<void>(programmeNumber(line));
    }
}

bool advanceTaken(const NoteDraft &draft, const Payment &payment) {
    return Money::rounded(payment.cantidadAnticipo) > Money() &&
           !sameAmount(payment.cantidadAnticipo, subtotalOf(draft.lines));
}

double importeOfNote(const NoteDraft &draft, const Payment &payment) {
    // An accepted advance makes both "Importe Total" equal, so that comparing those two alone would
    // charge the whole price: the cut would show money that nobody received.
    if (draft.benefit.porcPrestacion == 100) {
        return subtotalOf(draft.lines);
    }
    if (!advanceTaken(draft, payment) &&
        sameAmount(draft.amounts.importeTotal, payment.importeTotal)) {
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
        {QStringLiteral("P_TIPOSERV"), cutToWidth(draft.service.cadenaServicio, 25)},
        {QStringLiteral("P_TIPOCTE"), draft.payer.tipoPaciente.prestacion},
        {QStringLiteral("P_PACIENTE"), cutToWidth(payerOf(draft), kWholeNameWidth)},
        {QStringLiteral("P_MATRICULA"), matriculaNumber(draft)},
        {QStringLiteral("P_ALUMNO"), cutToWidth(draft.payer.alumno, 100)},
        {QStringLiteral("P_TIPOCAMBIO"), payment.tipoCam},
        {QStringLiteral("P_PESOS"), pesosKept(payment)},
        {QStringLiteral("P_DOLARES"), payment.dolares},
        {QStringLiteral("P_CHEQUE"), payment.cheque},
        {QStringLiteral("P_CREDITO"), payment.tarjetaCredito},
        {QStringLiteral("P_CAMBIO"), payment.cambio},
        {QStringLiteral("P_IMPRESTACION"), benefitOf(draft, payment)},
        {QStringLiteral("P_NUMCHEQUE"), cutToWidth(payment.numCheque, 8)},
        {QStringLiteral("P_NUMEMPL"), draft.payer.numEmpleado},
        {QStringLiteral("P_EXPEDIENTE"), cutToWidth(draft.payer.expediente, 10)},
        {QStringLiteral("P_TURNO"), cutToWidth(context.turno, 2)},
        {QStringLiteral("P_CENTRO"), cutToWidth(context.centro, 4)},
        {QStringLiteral("P_PRESTACION"), draft.payer.tipoPaciente.prestacion},
        {QStringLiteral("P_PORDSCTO"), draft.benefit.porcPrestacion},
        {QStringLiteral("P_IMPDSCTO"), benefitOf(draft, payment)},
        {QStringLiteral("P_AREA"), cutToWidth(draft.service.lugarArea, 2)},
        {QStringLiteral("P_PATERNO"), cutToWidth(draft.payer.paterno, 40)},
        {QStringLiteral("P_MATERNO"), cutToWidth(draft.payer.materno, 40)},
        {QStringLiteral("P_NOMBRE"), cutToWidth(givenNameOf(draft), 70)},
    };
}

bool createsAdmission(const NoteDraft &draft) {
    return draft.service.cadenaServicio == kAdmision;
}

NewAdmission newAdmission(const NoteDraft &draft, const RegistrationContext &context, int folio) {
    NewAdmission admission;
    admission.folio = folio;
    admission.numCaja = context.numCaja;
    admission.notaVta = draft.notaActual;
    admission.centro = context.centro;
    admission.paterno = draft.payer.paterno;
    admission.materno = draft.payer.materno;
    admission.nombre = draft.payer.nombre;
    admission.nacimiento = draft.payer.nacimiento;
    admission.sexo = draft.payer.sexo;
    return admission;
}

MethodOfPayment methodOfPayment(const Payment &payment, const MethodOfPayment &last) {
    const QString cash = QStringLiteral("01");
    const QString mxn = QStringLiteral("MXN");
    if (payment.tarjetaCredito > 0) {
        const bool debit = payment.tipoDeTarjeta == CardKind::Debito;
        return {debit ? QStringLiteral("28") : QStringLiteral("04"), payment.tarjetaCredito, mxn,
                0.0};
    }
    if (payment.pesos > 0) {
        return {cash, difference(payment.pesos, payment.cambio), mxn, 0.0};
    }
    if (payment.dolares > 0) {
        return {cash, payment.dolares * payment.tipoCam - payment.cambio, QStringLiteral("USD"),
                payment.tipoCam};
    }
    return last;
}

Parameters methodOfPaymentParameters(const NoteDraft &draft, const Payment &payment,
                                     const RegistrationContext &context) {
    const MethodOfPayment method = methodOfPayment(payment, context.ultimoMetodo);
    Parameters parameters{{QStringLiteral("CAJA"), context.numCaja},
                          {QStringLiteral("NOTA"), draft.notaActual},
                          {QStringLiteral("CVE"), method.cve},
                          {QStringLiteral("IMPORTE"), method.importe}};
    for (const char *name : {"CTA", "RFCBANCO", "BANCO", "OPERACION", "RFCDESTINO", "CTADESTINO"}) {
        parameters.append({QString::fromLatin1(name), QStringLiteral("")});
    }
    parameters.append({QStringLiteral("MONEDA"), method.moneda});
    parameters.append({QStringLiteral("TIPOCAMBIO"), method.tipoCambio});
    return parameters;
}

Parameters lineParameters(const NoteDraft &draft, const Payment &payment,
                          const RegistrationContext &context, const NoteLine &line) {
    const bool shareIsPrice = draft.service.row == kLaboratoriosExternos &&
                              !sameAmount(draft.amounts.importeTotal, payment.importeAPagar);
    const bool described = !line.descAdic.trimmed().isEmpty();
    return {
        {QStringLiteral("P_CAJA"), context.numCaja},
        {QStringLiteral("P_NOTAVTA"), draft.notaActual},
        {QStringLiteral("P_CODIGO"), line.codigo},
        {QStringLiteral("P_CANT"), shareIsPrice ? 1.0 : static_cast<double>(line.cant)},
        {QStringLiteral("P_PRECIO"), shareIsPrice ? line.porcentaje : line.precio},
        {QStringLiteral("P_PORCDESCTO"), draft.benefit.porcPrestacion},
        {QStringLiteral("P_NOMBRE"), patientOf(draft)},
        {QStringLiteral("P_PROG"), programmeNumber(line)},
        {QStringLiteral("P_SSCTA"), line.subsubcta},
        {QStringLiteral("P_DESADIC"),
         described ? cutToWidth(line.descAdic, 1000) : QStringLiteral(" ")},
        {QStringLiteral("P_FONDO"), QStringLiteral("11")},
        {QStringLiteral("P_ORIG"), cutToWidth(context.origen2, 2)},
        {QStringLiteral("P_SAFOLIO"), QStringLiteral("")},
        {QStringLiteral("P_FTEFTO"), 1400},
        {QStringLiteral("P_AREACTR"), cutToWidth(draft.service.tipoServ, 2)},
    };
}

Parameters historyParameters(const NoteDraft &draft, const RegistrationContext &context,
                             const NoteLine &line) {
    return {
        {QStringLiteral("P_EXPEDIENTE"), cutToWidth(draft.payer.expediente, 10)},
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
        {QStringLiteral("P_AREACTR"), cutToWidth(draft.service.lugarArea, 2)},
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
