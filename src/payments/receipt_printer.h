#pragma once

#include "app/context.h"
#include "payments/receipt.h"

namespace kaldo {

/// The receipt of a payment screen: filled from the note as it was written, printed copy by copy.
/// One object serves the whole run, since some captions stay as the last print left them.
class ReceiptPrinter {
public:
    explicit ReceiptPrinter(Context &context) : context_(context) {}

    /// Fills the receipt; reads the note back from `registrovtas`. From here on the station knows
    /// that the copies of a new note are due.
    void Ticket(const NoteDraft &draft, const Payment &payment, const ReceiptExtras &extras);

    /// Prints the copies that the local table `recibos` lists, on the default printer; a consulted
    /// note goes to the preview. Throws report::PrintError.
    void Recibos(const NoteDraft &draft);

    /// What the last Ticket() filled.
    const ReceiptContent &content() const { return content_; }

private:
    Context &context_;
    ReceiptWriter writer_;
    ReceiptContent content_;
};

}  // namespace kaldo
