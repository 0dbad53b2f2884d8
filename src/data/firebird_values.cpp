#include "data/firebird_values.h"

#include <QDate>
#include <QDateTime>
#include <QTime>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>

#include "data/database_error.h"
#include "toolkit/core/money.h"
#include "toolkit/core/text.h"

namespace kaldo {

namespace {

// The engine counts days from 17 November 1858 and time in ten-thousandths of a second.
const qint64 firstDay = QDate(1858, 11, 17).toJulianDay();
constexpr int ticksPerMillisecond = 10;

int charactersOf(short subtype, short length) {
    constexpr int utf8 = 4;
    constexpr int unicodeFss = 3;
    switch (subtype & 0xff) {
        case utf8:
            return length / 4;
        case unicodeFss:
            return length / 3;
        default:
            return length;
    }
}

QDate toDate(ISC_DATE days) {
    return QDate::fromJulianDay(firstDay + days);
}

QTime toTime(ISC_TIME ticks) {
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(ticks / ticksPerMillisecond));
}

double powerOfTen(int exponent) {
    static constexpr std::array<double, 19> powers = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,
                                                      1e7,  1e8,  1e9,  1e10, 1e11, 1e12, 1e13,
                                                      1e14, 1e15, 1e16, 1e17, 1e18};
    return powers.at(static_cast<std::size_t>(exponent));
}

QVariant scaled(qint64 count, short scale) {
    if (scale == 0) {
        return count;
    }
    return static_cast<double>(count) / powerOfTen(-scale);
}

template <typename Type>
Type load(const char *data) {
    Type value;
    std::memcpy(&value, data, sizeof value);
    return value;
}

template <typename Type>
void store(QByteArray &buffer, Type value) {
    buffer.resize(sizeof value);
    std::memcpy(buffer.data(), &value, sizeof value);
}

ColumnKind kindOf(const XSQLVAR &variable) {
    switch (variable.sqltype & ~1) {
        case SQL_SHORT:
        case SQL_LONG:
        case SQL_INT64:
            return variable.sqlscale == 0 ? ColumnKind::Integer : ColumnKind::Number;
        case SQL_FLOAT:
        case SQL_DOUBLE:
        case SQL_D_FLOAT:
            return ColumnKind::Number;
        case SQL_TYPE_DATE:
            return ColumnKind::Date;
        case SQL_TYPE_TIME:
            return ColumnKind::Time;
        case SQL_TIMESTAMP:
            return ColumnKind::Timestamp;
        case SQL_BOOLEAN:
            return ColumnKind::Boolean;
        default:
            return ColumnKind::Text;
    }
}

QVariant valueOf(const XSQLVAR &variable) {
    const char *data = variable.sqldata;
    switch (variable.sqltype & ~1) {
        case SQL_SHORT:
            return scaled(load<ISC_SHORT>(data), variable.sqlscale);
        case SQL_LONG:
            return scaled(load<ISC_LONG>(data), variable.sqlscale);
        case SQL_INT64:
            return scaled(load<ISC_INT64>(data), variable.sqlscale);
        case SQL_FLOAT:
            return static_cast<double>(load<float>(data));
        case SQL_DOUBLE:
        case SQL_D_FLOAT:
            return load<double>(data);
        case SQL_VARYING:
            return QString::fromUtf8(data + sizeof(ISC_USHORT), load<ISC_USHORT>(data));
        case SQL_TEXT: {
            QString text = QString::fromUtf8(data, variable.sqllen);
            while (text.endsWith(u' ')) {
                text.chop(1);
            }
            return text;
        }
        case SQL_TYPE_DATE:
            return toDate(load<ISC_DATE>(data));
        case SQL_TYPE_TIME:
            return toTime(load<ISC_TIME>(data));
        case SQL_TIMESTAMP: {
            const auto stamp = load<ISC_TIMESTAMP>(data);
            return QDateTime(toDate(stamp.timestamp_date), toTime(stamp.timestamp_time));
        }
        case SQL_BOOLEAN:
            return *data != 0;
        default:
            throw DatabaseError(
                QStringLiteral("La columna %1 tiene un tipo que no se puede leer.")
                    .arg(QString::fromUtf8(variable.aliasname, variable.aliasname_length)),
                {});
    }
}

[[noreturn]] void refuse(const QString &value, const QString &name, const QString &why,
                         const Statement &statement, const QString &connection) {
    throw DatabaseError(
        QStringLiteral("El valor «%1» no cabe en el campo %2: %3").arg(value, name, why),
        {DatabaseFailure::BadValue, {}, -303, {}, connection, statement.name});
}

/// A whole count of units of 10^scale, or a reason why the value is none.
QString toCount(const QVariant &value, short scale, qint64 lowest, qint64 highest, qint64 *count) {
    if (scale == 0 && value.typeId() != QMetaType::Double && value.typeId() != QMetaType::Float) {
        bool ok = false;
        *count = value.typeId() == QMetaType::QString ? value.toString().trimmed().toLongLong(&ok)
                                                      : value.toLongLong(&ok);
        if (!ok) {
            return QStringLiteral("no es un número entero.");
        }
    } else {
        bool ok = false;
        const double number = value.toDouble(&ok);
        if (!ok || !std::isfinite(number)) {
            return QStringLiteral("no es un número.");
        }
        const double units = number * powerOfTen(-scale);
        const double whole = std::round(units);
        if (scale == 0 && whole != number) {
            return QStringLiteral("no es un número entero.");
        }
        if (whole < -9.2e18 || whole > 9.2e18) {
            return QStringLiteral("está fuera de rango.");
        }
        *count = static_cast<qint64>(whole);
    }
    if (*count < lowest || *count > highest) {
        return QStringLiteral("está fuera de rango.");
    }
    return QString();
}

QString toText(const QVariant &value) {
    switch (value.typeId()) {
        case QMetaType::Double:
        case QMetaType::Float:
            return formatPlainNumber(value.toDouble());
        case QMetaType::QDate:
            return value.toDate().toString(Qt::ISODate);
        default:
            return value.toString();
    }
}

// Each of these fills the buffer of a parameter, or gives a reason why the value doesn't fit.

template <typename Integer>
QString storeCount(QByteArray &buffer, const QVariant &value, short scale) {
    using Limits = std::numeric_limits<Integer>;
    qint64 count = 0;
    const QString why = toCount(value, scale, Limits::min(), Limits::max(), &count);
    store(buffer, static_cast<Integer>(count));
    return why;
}

template <typename Real>
QString storeNumber(QByteArray &buffer, const QVariant &value) {
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok || !std::isfinite(number)) {
        return QStringLiteral("no es un número.");
    }
    store(buffer, static_cast<Real>(number));
    return QString();
}

ISC_DATE toDays(const QDate &date) {
    return static_cast<ISC_DATE>(date.toJulianDay() - firstDay);
}

ISC_TIME toTicks(const QTime &time) {
    return static_cast<ISC_TIME>(time.msecsSinceStartOfDay() * ticksPerMillisecond);
}

QString storeDate(QByteArray &buffer, const QDate &date) {
    if (!date.isValid()) {
        return QStringLiteral("no es una fecha.");
    }
    store(buffer, toDays(date));
    return QString();
}

QString storeTime(QByteArray &buffer, const QTime &time) {
    if (!time.isValid()) {
        return QStringLiteral("no es una hora.");
    }
    store(buffer, toTicks(time));
    return QString();
}

QString storeTimestamp(QByteArray &buffer, const QDateTime &moment) {
    if (!moment.isValid()) {
        return QStringLiteral("no es una fecha y hora.");
    }
    store(buffer, ISC_TIMESTAMP{toDays(moment.date()), toTicks(moment.time())});
    return QString();
}

QString storeText(QByteArray &buffer, const QVariant &value, int width) {
    const QString text = toText(value);
    if (characterCount(text) > width) {
        return QStringLiteral("tiene más de %1 caracteres.").arg(width);
    }
    buffer = text.toUtf8();
    buffer.reserve(1);
    return QString();
}

QString storeValue(QByteArray &buffer, const QVariant &value, short type, short scale) {
    switch (type) {
        case SQL_SHORT:
            return storeCount<ISC_SHORT>(buffer, value, scale);
        case SQL_LONG:
            return storeCount<ISC_LONG>(buffer, value, scale);
        case SQL_INT64:
            return storeCount<ISC_INT64>(buffer, value, scale);
        case SQL_FLOAT:
            return storeNumber<float>(buffer, value);
        case SQL_DOUBLE:
        case SQL_D_FLOAT:
            return storeNumber<double>(buffer, value);
        case SQL_TYPE_DATE:
            return storeDate(buffer, value.toDate());
        case SQL_TYPE_TIME:
            return storeTime(buffer, value.toTime());
        case SQL_TIMESTAMP:
            return storeTimestamp(buffer, value.toDateTime());
        case SQL_BOOLEAN:
            store(buffer, static_cast<char>(value.toBool() ? 1 : 0));
            return QString();
        default:
            return QStringLiteral("su tipo no se puede escribir.");
    }
}

}  // namespace

FirebirdRow::FirebirdRow() {
    grow(8);
    sqlda()->sqld = 0;
}

bool FirebirdRow::grow(int count) {
    const int room = std::max(count, 1);
    if (!storage_.isEmpty() && sqlda()->sqln >= room) {
        return false;
    }
    storage_ = QByteArray(static_cast<qsizetype>(XSQLDA_LENGTH(room)), '\0');
    sqlda()->version = SQLDA_VERSION1;
    sqlda()->sqln = static_cast<ISC_SHORT>(room);
    return true;
}

void FirebirdRow::allocate() {
    constexpr std::size_t alignment = 8;
    std::vector<std::size_t> offsets;
    std::size_t total = 0;
    for (int at = 0; at < count(); ++at) {
        const XSQLVAR &variable = sqlda()->sqlvar[at];
        offsets.push_back(total);
        const std::size_t length =
            static_cast<std::size_t>(variable.sqllen) +
            ((variable.sqltype & ~1) == SQL_VARYING ? sizeof(ISC_USHORT) : 0);
        total += (length + alignment) / alignment * alignment;
    }
    values_.assign(total, '\0');
    nulls_.assign(static_cast<std::size_t>(count()), 0);
    for (int at = 0; at < count(); ++at) {
        XSQLVAR &variable = sqlda()->sqlvar[at];
        variable.sqldata = values_.data() + offsets[static_cast<std::size_t>(at)];
        variable.sqlind = &nulls_[static_cast<std::size_t>(at)];
        variable.sqltype |= 1;
    }
}

std::vector<Column> FirebirdRow::columns() const {
    std::vector<Column> columns;
    for (int at = 0; at < count(); ++at) {
        const XSQLVAR &variable = sqlda()->sqlvar[at];
        Column column;
        column.name = QString::fromUtf8(variable.aliasname, variable.aliasname_length);
        column.kind = kindOf(variable);
        if (column.kind == ColumnKind::Text) {
            column.width = charactersOf(variable.sqlsubtype, variable.sqllen);
        }
        columns.push_back(column);
    }
    makeColumnNamesUnique(columns);
    return columns;
}

void FirebirdRow::read(Row &row) const {
    row.resize(static_cast<std::size_t>(count()));
    for (int at = 0; at < count(); ++at) {
        const XSQLVAR &variable = sqlda()->sqlvar[at];
        row[static_cast<std::size_t>(at)] = *variable.sqlind < 0 ? QVariant() : valueOf(variable);
    }
}

void FirebirdParameters::described() {
    const auto count = static_cast<std::size_t>(row_.count());
    described_.clear();
    for (std::size_t at = 0; at < count; ++at) {
        const XSQLVAR &variable = row_.sqlda()->sqlvar[at];
        described_.push_back({static_cast<short>(variable.sqltype & ~1), variable.sqlscale,
                              variable.sqllen, variable.sqlsubtype});
    }
    buffers_.resize(count);
    nulls_.assign(count, 0);
}

void FirebirdParameters::bind(const std::vector<const QVariant *> &values, const QStringList &names,
                              const Statement &statement, const QString &connection) {
    for (std::size_t at = 0; at < described_.size(); ++at) {
        const Described &described = described_[at];
        const QVariant &value = *values.at(at);
        XSQLVAR &variable = row_.sqlda()->sqlvar[at];
        QByteArray &buffer = buffers_[at];
        variable.sqltype = static_cast<ISC_SHORT>(described.type | 1);
        variable.sqlscale = described.scale;
        variable.sqllen = described.length;
        variable.sqlind = &nulls_[at];
        nulls_[at] = value.isValid() ? 0 : -1;
        QString why;
        if (!value.isValid()) {
            buffer.resize(std::max<qsizetype>(described.length + 2, 8));
        } else if (described.type == SQL_TEXT || described.type == SQL_VARYING) {
            why = storeText(buffer, value, charactersOf(described.subtype, described.length));
            variable.sqltype = SQL_TEXT | 1;
            variable.sqllen = static_cast<ISC_SHORT>(buffer.size());
        } else {
            why = storeValue(buffer, value, described.type, described.scale);
        }
        if (!why.isEmpty()) {
            refuse(value.toString(), names.at(static_cast<qsizetype>(at)), why, statement,
                   connection);
        }
        variable.sqldata = buffer.data();
    }
}

}  // namespace kaldo
