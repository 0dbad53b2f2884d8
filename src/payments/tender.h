#pragma once

#include "payments/note_draft.h"
#include "payments/payment.h"

namespace kaldo {

/// Dollars at a rate, to the nearest ten-thousandth of a peso.
Money dolaresEnPesos(double dolares, double tipoCam);

/// Everything handed over, in pesos: card, dollars at the payment's rate, pesos and cheque.
double subtotalReceived(const Payment &payment);

/// Works out again what follows from the amounts of a new note's payment: dolaresEnPesos,
/// subtotal, and diferencia or cambio against importeAPagar. Compared and subtracted in
/// ten-thousandths.
void recomputeTotals(Payment *payment);

/// True while nothing is missing: the payment may be accepted.
bool nothingMissing(const Payment &payment);

/// The last word before a payment is taken: subtotal ≥ importeAPagar.
bool isEnough(const Payment &payment);

/// More than a hundred times what is due was typed.
bool farMoreThanDue(const Payment &payment);

/// The card covers the whole note although money stands in another box as well.
bool cardCoversAllButMoreCameIn(const Payment &payment);

/// The card asks for more than is to be paid.
bool cardExceedsDue(const Payment &payment);

/// "Diferencia" as shown: a difference above zero that would read "$0.00" shows four decimals.
QString differenceText(double diferencia);

/// The four ways of paying to zero, as a click on "Tipo de Pago" does, then the totals; afterwards
/// subtotal, difference and change are zero whatever is due. Leaving the cheque forgets its
/// details.
void choosePaymentKind(Payment *payment, PaymentKind kind);

/// Which layout the dialog takes for a new note.
enum class PaymentLayout {
    Plain,              ///< no benefit, no advance
    Advance,            ///< the sales area takes advances
    Benefit,            ///< a benefit, the area takes no advances
    AdvanceWithBenefit  ///< both
};
PaymentLayout paymentLayout(const NoteDraft &draft);

/// The dialog's values when it opens for a new note: everything at zero, then the amounts and
/// panels of its layout. An area that takes advances still asks if one is given.
Payment openPayment(const NoteDraft &draft, double tipoCam);

/// A note that the benefit covers whole on these services is registered without the dialog.
bool skipsDialog(const NoteDraft &draft);

/// The payment of a note that skips the dialog: a fresh one whose total and benefit are
/// the subtotal.
Payment skippedPayment(const NoteDraft &draft, double tipoCam);

}  // namespace kaldo
