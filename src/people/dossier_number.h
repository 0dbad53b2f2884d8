#pragma once

#include <QString>

namespace kaldo {

/// Width of a dossier number: five digits, "/", the last two digits of the year.
inline constexpr int kDossierNumberWidth = 8;

/// Completes a number typed short: "15/23" gives "00015/23", "15" gives "00015/". A text of the
/// full width or more is left alone.
QString completeDossierNumber(const QString &typed);

}  // namespace kaldo
