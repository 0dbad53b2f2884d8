#include "payments/tender.h"

#include "payments/service_types.h"
#include "payments/totals.h"

namespace kaldo {

namespace {

Money missing(const Payment &payment) {
    return Money::rounded(payment.importeAPagar) - Money::rounded(payment.subtotal);
}

}  // namespace

Money dolaresEnPesos(double dolares, double tipoCam) {
    return Money::rounded(dolares * tipoCam);
}

double subtotalReceived(const Payment &payment) {
    const Money sum = Money::rounded(payment.tarjetaCredito) +
                      dolaresEnPesos(payment.dolares, payment.tipoCam) +
                      Money::rounded(payment.pesos) + Money::rounded(payment.cheque);
    return sum.toDouble();
}

void recomputeTotals(Payment *payment) {
    payment->dolaresEnPesos = dolaresEnPesos(payment->dolares, payment->tipoCam);
    payment->subtotal = subtotalReceived(*payment);
    const Money still = missing(*payment);
    payment->diferencia = still > Money() ? still.toDouble() : 0;
    payment->cambio = still < Money() ? (-still).toDouble() : 0;
}

bool nothingMissing(const Payment &payment) {
    return Money::rounded(payment.diferencia) <= Money();
}

bool isEnough(const Payment &payment) {
    return missing(payment) <= Money();
}

bool farMoreThanDue(const Payment &payment) {
    constexpr int kTimes = 100;
    const double due = payment.importeAPagar;
    return due > 0 && Money::rounded(payment.subtotal) > Money::rounded(due * kTimes);
}

bool cardCoversAllButMoreCameIn(const Payment &payment) {
    return sameAmount(payment.tarjetaCredito, payment.importeTotal) &&
           (payment.dolares > 0 || payment.pesos > 0 || payment.cheque > 0);
}

bool cardExceedsDue(const Payment &payment) {
    return Money::rounded(payment.tarjetaCredito) > Money::rounded(payment.importeAPagar);
}

QString differenceText(double diferencia) {
    const Money amount = Money::rounded(diferencia);
    constexpr Money halfCentavo = Money::fromTenThousandths(50);
    return amount > Money() && amount < halfCentavo ? formatMoneyFourDecimals(amount)
                                                    : formatMoney(amount);
}

void choosePaymentKind(Payment *payment, PaymentKind kind) {
    payment->tipoDePago = kind;
    payment->tarjetaCredito = 0;
    payment->dolares = 0;
    payment->pesos = 0;
    payment->cheque = 0;
    if (kind == PaymentKind::Efectivo) {
        payment->banco.clear();
        payment->numCuenta.clear();
        payment->numCheque.clear();
    }
    recomputeTotals(payment);
    payment->subtotal = 0;
    payment->diferencia = 0;
    payment->cambio = 0;
}

PaymentLayout paymentLayout(const NoteDraft &draft) {
    if (draft.benefit.porcPrestacion > 0) {
        return draft.service.area.takesAdvances() ? PaymentLayout::AdvanceWithBenefit
                                                  : PaymentLayout::Benefit;
    }
    return draft.service.area.takesAdvances() ? PaymentLayout::Advance : PaymentLayout::Plain;
}

Payment openPayment(const NoteDraft &draft, double tipoCam) {
    const PaymentLayout layout = paymentLayout(draft);
    Payment payment;
    payment.tipoCam = tipoCam;
    payment.importeTotal = draft.amounts.importeTotal;
    payment.importeAPagar = draft.amounts.importeTotal;
    payment.anticipoPanelShown = layout != PaymentLayout::Plain;
    payment.prestacionPanelShown =
        layout == PaymentLayout::Benefit || layout == PaymentLayout::AdvanceWithBenefit;
    if (payment.prestacionPanelShown) {
        payment.prestacion = draft.amounts.prestacion;
    }
    if (layout == PaymentLayout::Advance || layout == PaymentLayout::Benefit) {
        payment.cantidadAnticipo = subtotalOf(draft.lines);
    }
    recomputeTotals(&payment);
    return payment;
}

bool skipsDialog(const NoteDraft &draft) {
    return draft.benefit.porcPrestacion == 100 && skipsDialogWhenCovered(draft.service.tipoServ);
}

Payment skippedPayment(const NoteDraft &draft, double tipoCam) {
    Payment payment;
    payment.tipoCam = tipoCam;
    payment.importeTotal = subtotalOf(draft.lines);
    payment.prestacion = payment.importeTotal;
    return payment;
}

}  // namespace kaldo
