#include "toolkit/core/money.h"

#include <QRegularExpression>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace kaldo {

namespace {

/// A count of 10^-decimals in the mask, grouped by thousands. Written backwards into one buffer:
/// a form shows a dozen amounts at each step.
QString masked(bool negative, quint64 count, int decimals, MoneyMask mask) {
    std::array<QChar, 40> text;
    auto at = text.end();
    for (int digit = 0; digit <= decimals || count > 0; ++digit) {
        if (digit == decimals) {
            *--at = u'.';
        } else if (digit > decimals && (digit - decimals) % 3 == 0) {
            *--at = u',';
        }
        *--at = QChar(u'0' + static_cast<char16_t>(count % 10));
        count /= 10;
    }
    if (mask == MoneyMask::Spaced) {
        *--at = u' ';
    }
    *--at = u'$';
    if (negative) {
        *--at = u'-';
    }
    return QString(&*at, text.end() - at);
}

}  // namespace

Money Money::rounded(double pesos) {
    const double scaled = std::round(pesos * 10000.0);
    if (!std::isfinite(scaled) || std::abs(scaled) >= 9.2e18) {
        throw std::range_error("El importe está fuera del rango que se puede representar.");
    }
    return Money(static_cast<qint64>(scaled));
}

double roundedToCents(double pesos) {
    const qint64 count = Money::rounded(pesos).tenThousandths();
    return static_cast<double>((count + (count < 0 ? -50 : 50)) / 100) / 100.0;
}

QString formatMoney(double pesos, MoneyMask mask) {
    return formatMoney(Money::rounded(pesos), mask);
}

QString formatMoney(Money amount, MoneyMask mask) {
    const qint64 count = amount.tenThousandths();
    const quint64 magnitude =
        count < 0 ? 0 - static_cast<quint64>(count) : static_cast<quint64>(count);
    const quint64 cents = (magnitude + 50) / 100;
    return masked(count < 0 && cents > 0, cents, 2, mask);
}

QString formatMoneyFourDecimals(Money amount) {
    const qint64 count = amount.tenThousandths();
    const quint64 magnitude =
        count < 0 ? 0 - static_cast<quint64>(count) : static_cast<quint64>(count);
    return masked(count < 0, magnitude, 4, MoneyMask::Tight);
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
