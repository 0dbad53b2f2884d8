#include "payments/registration.h"

#include "payments/failed_note.h"
#include "payments/receipt_printer.h"
#include "people/clinical_history.h"
#include "toolkit/core/log.h"

namespace kaldo {

RegistrationOutcome Registration::registrar(NoteDraft draft, const Payment &payment) {
    const QString title = QStringLiteral("Información");
    RegistrationOutcome outcome;
    try {
        outcome.extras = write(draft, payment);
        receipt_.Ticket(draft, payment, outcome.extras);
        Folio();
        receipt_.Recibos(draft);
        tellChange(draft, payment);
        context_.messages.information(
            QStringLiteral("La información ha sido registrada correctamente, presione cualquier "
                           "tecla para continuar."),
            title);
        if (context_.options.GenerarEstadisticas) {
            context_.frame.refreshDeskFigures();
        }
        outcome.registered = true;
    } catch (const std::exception &failure) {
        // Whatever failed, the cashier's way out is the same one.
        logSwallowed(
            QStringLiteral("nota %1-%2").arg(context_.session.NumCaja).arg(draft.notaActual),
            failure);
        const QString text = QStringLiteral(
            "Ocurrió un error al tratar de registrar la información. Verifique Recibos "
            "Incompletos.");
        context_.messages.warning(text + tellFailedNote(context_, draft.notaActual), title);
    }
    return outcome;
}

/// Beside the last box, and after it: the dialog that showed the change is gone.
void Registration::tellChange(const NoteDraft &draft, const Payment &payment) {
    if (payment.cambio > 0) {
        context_.frame.showNotice(QStringLiteral("Cambio de la nota %1-%2: %3")
                                      .arg(int(context_.session.NumCaja))
                                      .arg(draft.notaActual)
                                      .arg(formatMoney(payment.cambio)));
    }
}

ReceiptExtras Registration::write(const NoteDraft &draft, const Payment &payment) {
    const ReceiptExtras extras = RegistrarNota(draft, payment);
    MetodoPago(draft, payment);
    Detallepago(draft, payment);
    RegistrarIva(draft);
    return extras;
}

void Registration::Mpio() {
    mpioNota_ = mpioOf(context_.caja.DatosCaja1.text(QStringLiteral("campus")), mpioNota_);
}

ReceiptExtras Registration::RegistrarNota(const NoteDraft &draft, const Payment &payment) {
    Mpio();
    context_.caja.registra_pago_odontologia_p.execute(
        noteParameters(draft, payment, sessionValues()));
    ReceiptExtras extras;
    if (createsAdmission(draft)) {
        extras.folioAdmision = registrarAdmision(draft);
    }
    return extras;
}

int Registration::registrarAdmision(const NoteDraft &draft) {
    DMOdonto &odonto = context_.odonto;
    odonto.FolioAdm();
    const NewAdmission admission = newAdmission(draft, sessionValues(), odonto.FolioAdmision);
    odonto.registra_admision_p.execute(admissionParameters(admission));
    odonto.registra_datosgenerales_p.execute(generalDataParameters(admission));
    odonto.registra_antecedentes_p.execute(emptyClinicalHistory(admission.folio));
    return admission.folio;
}

void Registration::MetodoPago(const NoteDraft &draft, const Payment &payment) {
    Session &session = context_.session;
    session.UltimoMetodo = methodOfPayment(payment, session.UltimoMetodo);
    context_.caja.sp_registrametodopago.execute(
        methodOfPaymentParameters(draft, payment, sessionValues()));
}

void Registration::Detallepago(const NoteDraft &draft, const Payment &payment) {
    const RegistrationContext values = sessionValues();
    for (const NoteLine &line : draft.lines) {
        context_.caja.spinsdetalle.execute(lineParameters(draft, payment, values, line));
        if (draft.payer.hasDossier()) {
            context_.caja.registra_historicodontologia_p.execute(
                historyParameters(draft, values, line));
        }
    }
    context_.finanzas.inserta_vw_recibopago.execute(financeParameters(draft, values));
}

void Registration::RegistrarIva(const NoteDraft &draft) {
    context_.caja.registraiva.execute(taxParameters(draft, sessionValues()));
}

void Registration::Folio() {
    NamedQuery &desk = context_.caja.DatosCaja1;
    const QString nota = QStringLiteral("nota_vta");
    desk.edit();
    desk.set(nota, desk.value(nota).toLongLong() + 1);
    desk.post();
    desk.apply();
}

RegistrationContext Registration::sessionValues() const {
    const Session &session = context_.session;
    RegistrationContext values;
    values.numCaja = session.NumCaja;
    values.usuario = session.Usuario;
    values.turno = session.Turno;
    values.centro = session.Centro;
    values.origen2 = session.Origen2;
    values.mpioNota = mpioNota_;
    values.ultimoMetodo = session.UltimoMetodo;
    values.today = context_.clock.today();
    return values;
}

}  // namespace kaldo
