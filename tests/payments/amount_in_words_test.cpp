#include "payments/amount_in_words.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace kaldo {
namespace {

QString pesos(double amount) {
    return ImporteEnLetra(qRound64(amount * 10000), WordsOf::Pesos) + " M.N. ***";
}

/// Spanish by ranges, each built on the next smaller one.
QString spelled(qint64 n) {
    static const QStringList small =
        QString(
            " - UN DOS TRES CUATRO CINCO SEIS SIETE OCHO NUEVE DIEZ ONCE DOCE TRECE CATORCE "
            "QUINCE DIESISEIS DIESISIETE DIESIOCHO DIESINUEVE VEINTE VEINTIUNO VEINTIDOS "
            "VEINTITRES VEINTICUATRO VEINTICINCO VEINTISEIS VEINTISIETE VEINTIOCHO VEINTINUEVE")
            .simplified()
            .split(' ');
    static const QStringList tens =
        QString("TREINTA CUARENTA CINCUENTA SESENTA SETENTA OCHENTA NOVENTA").split(' ');
    static const QStringList hundreds =
        QString(
            "CIENTO DOSCIENTOS TRESCIENTOS CUATROCIENTOS QUINIENTOS SEISCIENTOS SETECIENTOS "
            "OCHOCIENTOS NOVECIENTOS")
            .split(' ');
    if (n == 0) {
        return {};
    }
    if (n < 30) {
        return " " + small[n];
    }
    if (n < 100) {
        return " " + tens[n / 10 - 3] + (n % 10 == 0 ? "" : " Y" + spelled(n % 10));
    }
    if (n < 1000) {
        return n == 100 ? " CIEN" : " " + hundreds[n / 100 - 1] + spelled(n % 100);
    }
    if (n < 1000000) {
        return spelled(n / 1000) + " MIL" + spelled(n % 1000);
    }
    return spelled(n / 1000000) + (n / 1000000 == 1 ? " MILLON" : " MILLONES") +
           spelled(n % 1000000);
}

QString expected(qint64 whole, int cents) {
    const bool upToOne = whole * 100 + cents <= 100;
    const QString number = whole == 0 && cents == 0 ? "CERO " : spelled(whole);
    const QString tail =
        cents == 0 ? "" : "CON " + spelled(cents) + (cents == 1 ? " CENTAVO ***" : " CENTAVOS ***");
    return "*** " + number + (upToOne ? " PESO " : " PESOS ") + tail;
}

TEST(ImporteEnLetra, ReadsAsReceiptsAlwaysRead) {
    EXPECT_EQ(pesos(123.45),
              "***  CIENTO VEINTITRES PESOS CON  CUARENTA Y CINCO CENTAVOS *** M.N. ***");
    EXPECT_EQ(pesos(1000.00), "***  UN MIL PESOS  M.N. ***");
    EXPECT_EQ(pesos(21.00), "***  VEINTIUNO PESOS  M.N. ***");
    EXPECT_EQ(pesos(31.00), "***  TREINTA Y UN PESOS  M.N. ***");
    EXPECT_EQ(pesos(0.50), "***  PESO CON  CINCUENTA CENTAVOS *** M.N. ***");
    EXPECT_EQ(pesos(0.01), "***  PESO CON  UN CENTAVO *** M.N. ***");
    EXPECT_EQ(pesos(0.00), "*** CERO  PESO  M.N. ***");
    EXPECT_EQ(pesos(1.00), "***  UN PESO  M.N. ***");
    EXPECT_EQ(pesos(1e9), "***  MILLONES PESOS  M.N. ***");
    EXPECT_EQ(pesos(1e12 + 1e6), "***  UN MILLON PESOS  M.N. ***");
    EXPECT_EQ(pesos(16.4599), "***  DIESISEIS PESOS CON  CUARENTA Y CINCO CENTAVOS *** M.N. ***");
    EXPECT_EQ(pesos(16.0199), "***  DIESISEIS PESOS CON  UN CENTAVO *** M.N. ***");
    EXPECT_EQ(pesos(16.0099), "***  DIESISEIS PESOS  M.N. ***");
    EXPECT_EQ(ImporteEnLetra(10000, WordsOf::Dollars), "***  UN DOLAR ");
    EXPECT_EQ(ImporteEnLetra(21500, WordsOf::Dollars), "***  DOS DLLS CON  QUINCE CENTAVOS ***");
}

TEST(ImporteEnLetra, AgreesWithSpellingByRanges) {
    const auto check = [](qint64 whole, int cents) {
        ASSERT_EQ(ImporteEnLetra(whole * 10000 + cents * 100, WordsOf::Pesos),
                  expected(whole, cents))
            << whole << '.' << cents;
    };
    for (int cents = 0; cents < 100; ++cents) {
        check(0, cents);
        check(1, cents);
        check(999999999, cents);
    }
    for (qint64 whole = 0; whole < 20000; ++whole) {
        check(whole, static_cast<int>(whole * 37 % 100));
    }
    for (qint64 whole = 20000; whole < 1000000000; whole += 40031) {
        check(whole, static_cast<int>(whole % 100));
    }
    for (const qint64 whole : {100000LL, 101000LL, 1000000LL, 1001000LL, 1000001LL, 100000000LL,
                               200100100LL, 21021021LL}) {
        check(whole, 0);
    }
}

}  // namespace
}  // namespace kaldo
