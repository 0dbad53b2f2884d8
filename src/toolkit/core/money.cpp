#include "toolkit/core/money.h"

#include <QRegularExpression>

#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace kaldo {

namespace {

/// Decimal digits of a non-negative count of 10^-decimals, grouped by thousands.
QString groupedDigits(quint64 count, int decimals) {
    QString digits = QString::number(count).rightJustified(decimals + 1, QLatin1Char('0'));
    QString whole = digits.left(digits.size() - decimals);
    for (qsizetype at = whole.size() - 3; at > 0; at -= 3) {
        whole.insert(at, QLatin1Char(','));
    }
    return whole + QLatin1Char('.') + digits.right(decimals);
}

QString masked(bool negative, const QString &digits, MoneyMask mask) {
    const QLatin1String sign = mask == MoneyMask::Tight ? QLatin1String("$") : QLatin1String("$ ");
    return (negative ? QLatin1String("-") : QLatin1String("")) + sign + digits;
}

}  // namespace

Money Money::rounded(double pesos) {
    const double scaled = std::round(pesos * 10000.0);
    if (!std::isfinite(scaled) || std::abs(scaled) >= 9.2e18) {
        throw std::range_error("El importe está fuera del rango que se puede representar.");
    }
    return Money(static_cast<qint64>(scaled));
}

QString formatMoney(double pesos, MoneyMask mask) {
    return formatMoney(Money::rounded(pesos), mask);
}

QString formatMoney(Money amount, MoneyMask mask) {
    const qint64 count = amount.tenThousandths();
    const quint64 magnitude =
        count < 0 ? 0 - static_cast<quint64>(count) : static_cast<quint64>(count);
    const quint64 cents = (magnitude + 50) / 100;
    return masked(count < 0 && cents > 0, groupedDigits(cents, 2), mask);
}

QString formatMoneyFourDecimals(Money amount) {
    const qint64 count = amount.tenThousandths();
    const quint64 magnitude =
        count < 0 ? 0 - static_cast<quint64>(count) : static_cast<quint64>(count);
    return masked(count < 0, groupedDigits(magnitude, 4), MoneyMask::Tight);
}

QString formatPlainNumber(double value) {
    char buffer[400];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
    return QString::fromLatin1(buffer, end.ptr - buffer);
}

bool parseMoney(const QString &text, double *value) {
    static const QRegularExpression shape(
        QStringLiteral(R"(^\s*(-?)\s*\$?\s*(-?)((?:\d{1,3}(?:,\d{3})+|\d+)?(?:\.\d*)?)\s*$)"));
    const QRegularExpressionMatch match = shape.match(text);
    if (!match.hasMatch()) {
        return false;
    }
    if (!match.captured(1).isEmpty() && !match.captured(2).isEmpty()) {
        return false;
    }
    const bool negative = !match.captured(1).isEmpty() || !match.captured(2).isEmpty();
    QString digits = match.captured(3);
    digits.remove(QLatin1Char(','));
    if (digits.isEmpty()) {
        if (negative || text.contains(QLatin1Char('$'))) {
            return false;
        }
        *value = 0;
        return true;
    }
    bool ok = digits != QLatin1String(".");
    const double magnitude = ok ? digits.toDouble(&ok) : 0;
    if (!ok) {
        return false;
    }
    *value = negative ? -magnitude : magnitude;
    return true;
}

}  // namespace kaldo
