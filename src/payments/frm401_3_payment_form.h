#pragma once

#include "app/screen.h"
#include "payments/note_draft.h"
#include "payments/payment.h"
#include "payments/receipt_printer.h"
#include "payments/tender.h"

class QLabel;

namespace kaldo {

class Button;
class MoneyField;
class RadioGroup;
class TextField;

/// "Forma de Pago": the cashier says how a note is paid. It writes nothing to any database.
class FRM401_3 : public Dialog {
    Q_OBJECT

public:
    explicit FRM401_3(Context &context);

    /// Asks how a new note is paid; `confirmado` tells whether the cashier accepted. A note that
    /// the benefit covers whole on AE, AP or LE is accepted without showing the dialog.
    Payment pay(const NoteDraft &draft, ScreenBase *opener);

    /// The receipt belongs to the dialog, and remembers what the last print left in it.
    ReceiptPrinter &receipt() { return receipt_; }

protected:
    void build() override;
    void activated() override;

private:
    ReceiptPrinter receipt_;
    NoteDraft draft_;
    Payment payment_;
};

}  // namespace kaldo
