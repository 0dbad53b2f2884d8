#include "cashdesk/payment_label.h"

#include "cashdesk/cut_totals.h"

#include <gtest/gtest.h>

namespace kaldo {
namespace {

constexpr CutBy kCashier = CutBy::Cashier;
constexpr CutBy kAdministrator = CutBy::Administrator;

TEST(PaymentLabel, FirstCaseThatHolds) {
    const PaidNote dollars{.dolares = 12.5, .pesos = 10, .cambio = 3.25, .tipocambio = 18.1};
    PaidNote cardAndDollars = dollars;
    cardAndDollars.credito = 100;
    EXPECT_EQ(paymentLabel(cardAndDollars, kCashier, {}), "12.5   a    3.25");
    EXPECT_EQ(paymentLabel(cardAndDollars, kAdministrator, {}), "12.5   a    18.1");
    EXPECT_EQ(paymentLabel(dollars, kCashier, {}), "12.5   a    18.1");

    PaidNote card{.credito = 100, .pesos = 10};
    EXPECT_EQ(paymentLabel(card, kCashier, 1), "TARJETA / PESOS");
    EXPECT_EQ(paymentLabel(card, kAdministrator, 1), "EFECTIVO");
    card.pesos = 0;
    EXPECT_EQ(paymentLabel(card, kCashier, 1), "DEPOSITO BANCARIO");
    EXPECT_EQ(paymentLabel(card, kCashier, 2), "PAGO CON TARJETA");
    EXPECT_EQ(paymentLabel(card, kCashier, {}), "PAGO CON TARJETA");
    card.beca = 5;
    EXPECT_EQ(paymentLabel(card, kCashier, 1), "DEPOSITO BANCARIO");
    EXPECT_EQ(paymentLabel(card, kCashier, {}), "PAGO CON TARJETA / PRESTACION");
    EXPECT_EQ(paymentLabel(card, kAdministrator, {}), "CON PRESTACION");
    EXPECT_EQ(paymentLabel({.pesos = 500}, kCashier, {}), "EFECTIVO");
    EXPECT_EQ(paymentLabel({}, kAdministrator, {}), "EFECTIVO");
}

TEST(PaymentLabel, ChequesAndCancellationReplaceIt) {
    PaidNote note{.credito = 100, .cheque = 50};
    EXPECT_EQ(paymentLabel(note, kCashier, {}), "CHEQUE");
    note.chequedll = 1000;
    EXPECT_EQ(paymentLabel(note, kCashier, {}), "CHEQUE Dlls 1000");
    note.status = "CA";
    EXPECT_EQ(paymentLabel(note, kCashier, {}), "CANCELADA");
    note.status = "GE";
    note.chequedll = 12345678.123456789;
    EXPECT_EQ(paymentLabel(note, kCashier, {}).left(20), "CHEQUE Dlls 12345678");
    EXPECT_LE(paymentLabel(note, kCashier, {}).size(), 30);
}

TEST(CutTotals, TheBalanceRunsInTenThousandths) {
    EXPECT_TRUE(countsInCut("CONTADO"));
    EXPECT_FALSE(countsInCut("CREDITO"));
    EXPECT_FALSE(countsInCut("CONTADO "));
    CutBalance balance;
    for (int note = 0; note < 100000; ++note) {
        balance.add(0.1);
    }
    balance.add(0.00004);  // below half a ten-thousandth
    EXPECT_EQ(balance.total().tenThousandths(), 100000000);
    const CutTotals row = cutTotals("RMORALES",
                                    {.pesos = 1,
                                     .dolares = 2,
                                     .cheque = 3,
                                     .credito = 4,
                                     .pesosCheque = 5,
                                     .prestacion = 6,
                                     .chequedll = 7,
                                     .complementaria = 8},
                                    balance);
    EXPECT_EQ(row.sumatodo, 10000.0);
    EXPECT_EQ(row.sumadolares, 2);
    EXPECT_EQ(row.sumapesosche, 5);
    EXPECT_EQ(row.sumadm, 6);
    EXPECT_EQ(row.sumchdll, 7);
    EXPECT_EQ(row.sumacomplemento, 8);
    EXPECT_EQ(row.sumadvn + row.sumadoc + row.sumapagoreconocido, 0);
}

}  // namespace
}  // namespace kaldo
