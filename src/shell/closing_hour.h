#pragma once

#include <QDateTime>

namespace kaldo {

/// True when the daily hour lies after the tick before and not after this one: a busy second must
/// not let it slip. At the first tick (`before` invalid) the hour counts if it is this second.
inline bool closingHourReached(const QDateTime &before, const QDateTime &now, const QTime &hour) {
    if (!hour.isValid() || !now.isValid()) {
        return false;
    }
    const QDateTime from = before.isValid() ? before : now.addSecs(-1);
    for (const QDate &day : {from.date(), now.date()}) {
        const QDateTime moment(day, hour);
        if (moment > from && moment <= now) {
            return true;
        }
    }
    return false;
}

}  // namespace kaldo
