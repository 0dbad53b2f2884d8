#pragma once

#include <QString>
#include <QTime>

namespace kaldo {

/// What the options' screen takes of these numbers, from 0; a file that holds another is brought to
/// it.
inline constexpr int kMostSearchDays = 100;
inline constexpr int kMostDossiers = 10;
inline constexpr int kMostDuplicateSeconds = 60;

/// An hour as the options keep it: hh:mm:ss, also without the zero in front.
inline QTime parseHour(const QString &text) {
    return QTime::fromString(text.trimmed(), QStringLiteral("H:mm:ss"));
}

}  // namespace kaldo
