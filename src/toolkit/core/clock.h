#pragma once

#include <QDateTime>

namespace kaldo {

/// Where every screen and rule gets the day and the moment from, so that a test can set them.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const { return QDateTime::currentDateTime(); }
    QDate today() const { return now().date(); }
};

/// "dd/MM/yyyy", whatever the machine's locale says.
inline QString formatDate(const QDate &date) {
    return date.toString(QStringLiteral("dd/MM/yyyy"));
}

}  // namespace kaldo
