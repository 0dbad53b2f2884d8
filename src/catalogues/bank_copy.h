#pragma once

#include "app/context.h"

namespace kaldo {

/// Brings the clinic's copy of finance's banks and programmes, which the bank cut reads, up to
/// date: one read of each table, and a write for what differs. A clinic database that sees the
/// tables of finance itself has no copy.
void updateBankCopy(Context &context);

}  // namespace kaldo
