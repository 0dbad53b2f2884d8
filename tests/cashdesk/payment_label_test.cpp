#include "cashdesk/payment_label.h"

#include "cashdesk/cut_totals.h"

#include <gtest/gtest.h>

namespace kaldo {
namespace {

// The cut of a day shows every label; here stand the cases that its notes don't meet.

TEST(PaymentLabel, OnlyTheDeskOfKindOneBanksItsCards) {
    PaidNote card{.credito = 100};
    EXPECT_EQ(paymentLabel(card, CutBy::Cashier, 2), "PAGO CON TARJETA");
    card.beca = 5;
    EXPECT_EQ(paymentLabel(card, CutBy::Cashier, 1), "DEPOSITO BANCARIO");
}

TEST(PaymentLabel, FitsItsColumnWithPlainNumbers) {
    PaidNote note{.cheque = 50, .chequedll = 1000};
    EXPECT_EQ(paymentLabel(note, CutBy::Cashier, {}), "CHEQUE Dlls 1000");
    note.chequedll = 12345678.123456789;
    EXPECT_EQ(paymentLabel(note, CutBy::Cashier, {}).left(20), "CHEQUE Dlls 12345678");
    EXPECT_LE(paymentLabel(note, CutBy::Cashier, {}).size(), 30);
}

TEST(CutTotals, TheBalanceRunsInTenThousandths) {
    EXPECT_FALSE(countsInCut("CONTADO "));
    CutBalance balance;
    for (int note = 0; note < 100000; ++note) {
        balance.add(0.1);
    }
    balance.add(0.00004);  // below half a ten-thousandth
    EXPECT_EQ(balance.total().tenThousandths(), 100000000);
}

}  // namespace
}  // namespace kaldo
