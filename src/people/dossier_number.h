#pragma once

#include <QString>

namespace kaldo {

/// Width of a dossier number: five digits, "/", the last two digits of the year.
inline constexpr int kDossierNumberWidth = 8;

/// Completes a number typed short: "15/23" gives "00015/23", "15" gives "00015/". A text of the
/// full width or more is left alone.
QString completeDossierNumber(const QString &typed);

/// The printed form of a counter: 123 in 2024 gives "00123/24". A counter of six digits loses the
/// last character of the year to the width.
QString formatDossierNumber(int counter, int year);

}  // namespace kaldo
