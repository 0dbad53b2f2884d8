#include "data/runtime_text.h"

#include <QDate>

#include "data/connection.h"
#include "data/statement_text.h"
#include "toolkit/core/clock.h"
#include "toolkit/core/money.h"

namespace kaldo {

RuntimeText &RuntimeText::line(const QString &firebird, const QString &odbc) {
    if (!firebird.isEmpty()) {
        firebird_ += firebird;
    }
    if (!odbc.isEmpty()) {
        odbc_ += odbc;
    }
    return *this;
}

RuntimeText &RuntimeText::bind(const QString &name, const QVariant &value) {
    values_.append({name, value});
    return *this;
}

QString RuntimeText::firebird() const {
    return firebird_.join(u'\n');
}

QString RuntimeText::odbc() const {
    const QString text = odbc_.join(u'\n');
    return replaceNamed(text, [this, &text](const QString &name) {
        return odbcLiteral(parameterValue(values_, name, {text, text}, QString()));
    });
}

qint64 execute(Connection &connection, const QString &name, const RuntimeText &text) {
    if (connection.dialect() == Dialect::Firebird) {
        return connection.execute({name, text.firebird()}, text.values());
    }
    return connection.execute({name, text.odbc()}, {});
}

QString odbcLiteral(const QVariant &value) {
    if (!value.isValid()) {
        return QStringLiteral("null");
    }
    QString text;
    switch (value.typeId()) {
        case QMetaType::QDate:
            text = formatDate(value.toDate());
            break;
        case QMetaType::Double:
            text = formatPlainNumber(value.toDouble());
            break;
        default:
            text = value.toString();
    }
    text.replace(u'"', QLatin1String("\"\""));
    return u'"' + text + u'"';
}

}  // namespace kaldo
