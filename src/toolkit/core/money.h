#pragma once

#include <QString>

#include <compare>

namespace kaldo {

/// An exact amount in 64-bit ten-thousandths, of a peso unless the name says otherwise.
///
/// The tables and the routines hold money as double precision; an amount becomes a Money where
/// sums mix currencies, where amounts are compared, and where they are put in words. A double
/// enters by one named rounding and leaves exactly.
class Money {
public:
    constexpr Money() = default;

    static constexpr Money fromTenThousandths(qint64 count) { return Money(count); }

    /// To the nearest ten-thousandth, halves away from zero. Values that are not finite or whose
    /// ten-thousandths leave 64 bits throw std::range_error.
    static Money rounded(double pesos);

    constexpr qint64 tenThousandths() const { return count_; }
    double toDouble() const { return static_cast<double>(count_) / 10000.0; }
    constexpr bool isZero() const { return count_ == 0; }

    constexpr Money operator+(Money other) const { return Money(count_ + other.count_); }
    constexpr Money operator-(Money other) const { return Money(count_ - other.count_); }
    constexpr Money operator-() const { return Money(-count_); }
    constexpr Money &operator+=(Money other) {
        count_ += other.count_;
        return *this;
    }
    constexpr auto operator<=>(const Money &) const = default;

private:
    explicit constexpr Money(qint64 count) : count_(count) {}

    qint64 count_ = 0;
};

/// The two masks of the system. Both group by thousands with commas, show two decimals and round
/// halves away from zero, whatever the machine's locale says; a minus stands before the sign.
enum class MoneyMask {
    Tight,   ///< "$#,##0.00"
    Spaced,  ///< "$ #,##0.00"
};

/// The amount as the masks show it.
double roundedToCents(double pesos);

QString formatMoney(double pesos, MoneyMask mask = MoneyMask::Tight);
QString formatMoney(Money amount, MoneyMask mask = MoneyMask::Tight);

/// As formatMoney with the tight mask, but with the four decimals of the amount: for a difference
/// that is above zero and would read "$0.00".
QString formatMoneyFourDecimals(Money amount);

/// A plain decimal number with neither grouping nor trailing zeros: 17, 18.5, 0.0001. The shortest
/// text that reads back as the same double.
QString formatPlainNumber(double value);

/// Reads an amount as a person types it in Mexico: "1,234.50", "$ 12", ".5"; blanks, the sign "$"
/// and commas that group whole threes are passed over. Empty text is zero. False and *value
/// untouched for anything else, a comma used as decimal sign included.
bool parseMoney(const QString &text, double *value);

}  // namespace kaldo
