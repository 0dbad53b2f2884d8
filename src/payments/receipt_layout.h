#pragma once

#include "payments/receipt.h"
#include "toolkit/report/document.h"

#include <QString>

namespace kaldo {

/// The receipt's pages: five bands in the left 250 units of an A4 sheet, narrow enough for a roll.
/// `copyDescription` heads this copy. A text that needs more lines than its place has moves what
/// stands below it down; nothing is cut or printed over.
report::Document layoutReceipt(const ReceiptContent &content, const QString &copyDescription);

}  // namespace kaldo
