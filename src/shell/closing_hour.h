#pragma once

#include <QDateTime>

namespace kaldo {

/// True when the daily hour lies after the tick before and not after this one: a busy program must
/// not let it slip. At the first tick (`before` invalid), and where the ticks lie further apart
/// than any work keeps them (the machine slept, the clock was set), the hour counts if it is this
/// second.
inline bool closingHourReached(const QDateTime &before, const QDateTime &now, const QTime &hour) {
    if (!hour.isValid() || !now.isValid()) {
        return false;
    }
    constexpr qint64 kBusySeconds = 120;
    const bool ticking = before.isValid() && before.secsTo(now) <= kBusySeconds;
    const QDateTime from = ticking ? before : now.addSecs(-1);
    for (const QDate &day : {from.date(), now.date()}) {
        const QDateTime moment(day, hour);
        if (moment > from && moment <= now) {
            return true;
        }
    }
    return false;
}

}  // namespace kaldo
