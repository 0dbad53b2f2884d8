#pragma once

#include "payments/receipt.h"

#include <QList>

#include <optional>

namespace kaldo {

/// The totals block of a receipt for one of its cases.
struct ReceiptTotals {
    double subtotal = 0;
    /// From the second row down. A row with neither caption nor amount stays empty.
    QList<ReceiptRow> rows;
    int height = 80;  ///< report units
};

/// Unset where no case holds: an advance is shown although the sales area takes none.
std::optional<ReceiptTotals> receiptTotals(const NoteDraft &draft, const Payment &payment,
                                           const ReceiptExtras &extras);

}  // namespace kaldo
