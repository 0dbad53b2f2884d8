#pragma once

#include <QString>

#include "tools/support/key_script.h"

namespace kaldo {

/// The first day of a school: an installation that nobody has set up goes through its first login,
/// the set-up wizard, three prices, the exchange rate, a second cashier and an option of the
/// control panel, until that cashier writes the first note.
void writeFirstDay(KeyScript &script, const QString &root);

/// Reads back what that day should have left, as writeSummary() does.
bool writeFirstDaySummary(const QString &root, const QString &folder);

}  // namespace kaldo
