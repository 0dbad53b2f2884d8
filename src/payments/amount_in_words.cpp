#include "payments/amount_in_words.h"

#include <array>

namespace kaldo {

namespace {

using Words = std::array<const char *, 10>;

constexpr Words kUnits{"",      "UN",   "DOS",   "TRES", "CUATRO",
                       "CINCO", "SEIS", "SIETE", "OCHO", "NUEVE"};
constexpr Words kTeens{"DIEZ",   "ONCE",      "DOCE",       "TRECE",     "CATORCE",
                       "QUINCE", "DIESISEIS", "DIESISIETE", "DIESIOCHO", "DIESINUEVE"};
constexpr Words kTwenties{"VEINTE",      "VEINTIUNO",  "VEINTIDOS",   "VEINTITRES", "VEINTICUATRO",
                          "VEINTICINCO", "VEINTISEIS", "VEINTISIETE", "VEINTIOCHO", "VEINTINUEVE"};
constexpr Words kTens{"",          "",        "",        "TREINTA", "CUARENTA",
                      "CINCUENTA", "SESENTA", "SETENTA", "OCHENTA", "NOVENTA"};
constexpr Words kHundreds{
    "",           "CIENTO",      "DOSCIENTOS",  "TRESCIENTOS", "CUATROCIENTOS",
    "QUINIENTOS", "SEISCIENTOS", "SETECIENTOS", "OCHOCIENTOS", "NOVECIENTOS"};

QString word(const char *text) {
    return QLatin1Char(' ') + QLatin1StringView(text);
}

/// Three digits taken from the right of a number, while anything of it remains.
struct Group {
    std::array<std::size_t, 3> digits{};  ///< units, tens, hundreds
    int zeros = 0;                        ///< digits read that were 0

    static Group takeFrom(qint64 *number) {
        Group group;
        for (std::size_t at = 0; at < group.digits.size() && *number > 0; ++at) {
            group.digits[at] = static_cast<std::size_t>(*number % 10);
            group.zeros += group.digits[at] == 0 ? 1 : 0;
            *number /= 10;
        }
        return group;
    }

    QString words() const {
        const auto [units, tens, hundreds] = digits;
        QString text = units != 0 ? word(kUnits[units]) : QString();
        if (tens == 1) {
            text = word(kTeens[units]);
        } else if (tens == 2) {
            text = word(kTwenties[units]);
        } else if (tens > 2) {
            text = word(kTens[tens]) + QLatin1StringView(units != 0 ? " Y" : "") + text;
        }
        if (hundreds != 0) {
            const bool justHundred = hundreds == 1 && tens == 0 && units == 0;
            text = word(justHundred ? "CIEN" : kHundreds[hundreds]) + text;
        }
        return text;
    }

    bool isOne() const { return digits == std::array<std::size_t, 3>{1, 0, 0}; }
};

QString numberInWords(qint64 number) {
    QString text = Group::takeFrom(&number).words();
    if (number > 0) {
        const Group thousands = Group::takeFrom(&number);
        text = thousands.words() + QLatin1StringView(thousands.zeros < 3 ? " MIL" : "") + text;
    }
    if (number > 0) {
        const Group millions = Group::takeFrom(&number);
        text =
            millions.words() + QLatin1StringView(millions.isOne() ? " MILLON" : " MILLONES") + text;
    }
    return text;
}

}  // namespace

QString ImporteEnLetra(qint64 importe, WordsOf words) {
    const qint64 whole = importe / 10000;
    // The cents, scaled so that the same routine reads them as a whole number; what is less than a
    // centavo is cut first, or it would make one centavo a plural.
    const qint64 cents = importe % 10000 / 100 * 10000;
    const bool singular = importe <= 10000;
    QString number = numberInWords(whole);
    if (words == WordsOf::Centavos) {
        return number + QLatin1StringView(singular ? " CENTAVO ***" : " CENTAVOS ***");
    }
    QLatin1StringView currency(singular ? " DOLAR " : " DLLS ");
    if (words == WordsOf::Pesos) {
        currency = QLatin1StringView(singular ? " PESO " : " PESOS ");
        if (importe == 0) {
            number = QStringLiteral("CERO ");
        }
    }
    const QString ending =
        cents == 0 ? QString() : QStringLiteral("CON ") + ImporteEnLetra(cents, WordsOf::Centavos);
    return QStringLiteral("*** ") + number + currency + ending;
}

}  // namespace kaldo
