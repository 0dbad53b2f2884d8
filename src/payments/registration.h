#pragma once

#include "app/context.h"
#include "payments/note_draft.h"
#include "payments/payment.h"
#include "payments/receipt.h"
#include "payments/registration_parameters.h"

namespace kaldo {

class ReceiptPrinter;

/// What became of a note.
struct RegistrationOutcome {
    bool registered = false;  ///< all of it was done, the receipt and the counter included
    ReceiptExtras extras;     ///< what the note brought into being
};

/// Makes a paid note a record: the routines in their settled order, the receipt, the counter of the
/// desk. Each routine's work stands as it returns, so that a failure leaves a half-written note,
/// which "Recibos Incompletos" repairs.
///
/// Lives as long as the screen that registers: the municipality of a note is that of the one before
/// where its own desk gives none.
class Registration {
public:
    Registration(Context &context, ReceiptPrinter &receipt)
        : context_(context), receipt_(receipt) {}

    /// Registers, prints and tells the cashier, also of a failure; throws nothing. `DatosCaja1`
    /// must be open on the session's desk. The screen resets itself afterwards whatever came of it.
    RegistrationOutcome registrar(NoteDraft draft, const Payment &payment);

private:
    void tellChange(const NoteDraft &draft, const Payment &payment);
    ReceiptExtras write(const NoteDraft &draft, const Payment &payment);
    void Mpio();
    ReceiptExtras RegistrarNota(const NoteDraft &draft, const Payment &payment);
    int registrarAdmision(const NoteDraft &draft);
    void MetodoPago(const NoteDraft &draft, const Payment &payment);
    void Detallepago(const NoteDraft &draft, const Payment &payment);
    void RegistrarIva(const NoteDraft &draft);
    void Folio();
    RegistrationContext sessionValues() const;

    Context &context_;
    ReceiptPrinter &receipt_;
    QString mpioNota_;
};

}  // namespace kaldo
