#include "payments/registration_parameters.h"
#include "tests/payments/sample_note.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kaldo {
namespace {

NoteDraft draftOf(double subtotal, int percent, const QString &anticipo) {
    return test::noteDraft("OT - OTROS", {test::noteLine(1, subtotal)}, percent, anticipo);
}

/// A note and its payment in whole centavos (the rate in ten-thousandths), so that every sum can be
/// worked out a second time without a rounding.
struct Case {
    std::vector<std::pair<int, qint64>> lines;  ///< quantity, price
    int percent = 0;
    qint64 card = 0, dollars = 0, pesos = 0;
    qint64 rate = 0;

    static Case random(std::mt19937_64 &source) {
        const auto pick = [&](qint64 low, qint64 high) {
            return std::uniform_int_distribution<qint64>(low, high)(source);
        };
        Case one;
        for (qint64 count = pick(1, 12); count > 0; --count) {
            one.lines.emplace_back(pick(1, 40), pick(1, pick(0, 9) == 0 ? 99999999 : 250000));
        }
        one.percent = pick(0, 2) == 0 ? static_cast<int>(pick(0, 100)) : 0;
        one.rate = pick(100000, 259999);
        const qint64 due = one.dueTenThousandths() / 100;
        one.card = pick(0, 2) == 0 ? pick(0, due) : 0;
        one.dollars = pick(0, 2) == 0 ? pick(0, 300000) : 0;
        one.pesos = pick(0, 3) == 0 ? due - one.card : pick(0, 2) == 0 ? 0 : pick(0, 2 * due);
        return one;
    }

    qint64 subtotalCentavos() const {
        qint64 sum = 0;
        for (const auto &[quantity, price] : lines) {
            sum += quantity * price;
        }
        return sum;
    }
    qint64 dueTenThousandths() const { return subtotalCentavos() * (100 - percent); }

    NoteDraft draft() const {
        QList<NoteLine> noteLines;
        for (const auto &[quantity, price] : lines) {
            noteLines.append(test::noteLine(quantity, static_cast<double>(price) / 100));
        }
        return test::noteDraft("OT - OTROS", noteLines, percent);
    }
};

TEST(Tender, AgreesWithIntegersOverRandomNotes) {
    std::mt19937_64 source(20261122);
    int withChange = 0;
    int short_ = 0;
    for (int round = 0; round < 20000; ++round) {
        const Case one = Case::random(source);
        const NoteDraft draft = one.draft();
        ASSERT_EQ(Money::rounded(subtotalOf(draft.lines)).tenThousandths(),
                  one.subtotalCentavos() * 100);
        ASSERT_EQ(Money::rounded(draft.amounts.prestacion).tenThousandths(),
                  one.subtotalCentavos() * one.percent);
        ASSERT_EQ(Money::rounded(draft.amounts.importeTotal).tenThousandths(),
                  one.dueTenThousandths());

        Payment payment = openPayment(draft, static_cast<double>(one.rate) / 10000);
        payment.tarjetaCredito = static_cast<double>(one.card) / 100;
        payment.dolares = static_cast<double>(one.dollars) / 100;
        payment.pesos = static_cast<double>(one.pesos) / 100;
        recomputeTotals(&payment);

        // To the nearest ten-thousandth: the exact product has two decimals more.
        const qint64 dollars = payment.dolaresEnPesos.tenThousandths();
        ASSERT_LE(std::abs(dollars * 100 - one.dollars * one.rate), 50);
        const qint64 received = one.card * 100 + dollars + one.pesos * 100;
        const qint64 over = received - one.dueTenThousandths();
        ASSERT_EQ(Money::rounded(payment.subtotal).tenThousandths(), received);
        ASSERT_EQ(Money::rounded(payment.cambio).tenThousandths(), std::max<qint64>(over, 0));
        ASSERT_EQ(Money::rounded(payment.diferencia).tenThousandths(), std::max<qint64>(-over, 0));
        ASSERT_EQ(nothingMissing(payment), over >= 0);
        ASSERT_EQ(isEnough(payment), over >= 0);

        const qint64 change = std::max<qint64>(over, 0);
        const qint64 kept = one.pesos * 100 > change ? one.pesos * 100 - change : one.pesos * 100;
        ASSERT_EQ(Money::rounded(pesosKept(payment)).tenThousandths(), kept);
        ASSERT_EQ(Money::rounded(importeOfNote(draft, payment)).tenThousandths(),
                  one.subtotalCentavos() * 100);
        withChange += over > 0 ? 1 : 0;
        short_ += over < 0 ? 1 : 0;
    }
    EXPECT_GT(withChange, 2000);
    EXPECT_GT(short_, 2000);
}

TEST(Tender, ComparesInTenThousandths) {
    Payment payment;
    payment.importeAPagar = 0.1 + 0.2;  // a little above 0.3
    payment.pesos = 0.3;
    recomputeTotals(&payment);
    EXPECT_EQ(payment.diferencia, 0);
    EXPECT_TRUE(isEnough(payment));

    payment.importeAPagar = 181.2340;
    payment.pesos = 0;
    payment.dolares = 10;
    payment.tipoCam = 18.1234;
    recomputeTotals(&payment);
    EXPECT_EQ(payment.dolaresEnPesos.tenThousandths(), 1812340);
    EXPECT_TRUE(nothingMissing(payment));

    payment.importeAPagar = 181.2341;
    recomputeTotals(&payment);
    EXPECT_FALSE(nothingMissing(payment));
    EXPECT_EQ(differenceText(payment.diferencia), "$0.0001");
    EXPECT_EQ(differenceText(0.0049), "$0.0049");
    EXPECT_EQ(differenceText(0.005), "$0.01");
    EXPECT_EQ(differenceText(0), "$0.00");
}

TEST(Tender, OpensByBenefitAndAdvance) {
    const Payment plain = openPayment(draftOf(500, 0, "N"), 18.5);
    EXPECT_FALSE(plain.anticipoPanelShown || plain.prestacionPanelShown);
    EXPECT_EQ(plain.cantidadAnticipo, 0);
    EXPECT_EQ(plain.importeAPagar, 500);
    EXPECT_EQ(plain.diferencia, 500);

    const Payment advance = openPayment(draftOf(500, 0, "S"), 18.5);
    EXPECT_TRUE(advance.anticipoPanelShown);
    EXPECT_FALSE(advance.prestacionPanelShown);
    EXPECT_EQ(advance.cantidadAnticipo, 500);
    EXPECT_EQ(advance.importeAPagar, 500);

    const Payment benefit = openPayment(draftOf(500, 40, "N"), 18.5);
    EXPECT_TRUE(benefit.anticipoPanelShown && benefit.prestacionPanelShown);
    EXPECT_EQ(benefit.cantidadAnticipo, 500);
    EXPECT_EQ(benefit.prestacion, 200);
    EXPECT_EQ(benefit.importeAPagar, 300);

    const Payment both = openPayment(draftOf(500, 40, "S"), 18.5);
    EXPECT_TRUE(both.anticipoPanelShown && both.prestacionPanelShown);
    EXPECT_EQ(both.cantidadAnticipo, 0);
    EXPECT_EQ(both.importeTotal, 300);
    EXPECT_EQ(both.importeAPagar, 300);
}

TEST(Tender, WholeBenefitSkipsTheDialogOnDossierServices) {
    NoteDraft draft = draftOf(350, 100, "N");
    for (const QString &row : serviceTypeRows(false)) {
        draft.service.tipoServ = tipoServOf(row);
        const bool skips = draft.service.tipoServ == "AE" || draft.service.tipoServ == "AP" ||
                           draft.service.tipoServ == "LE";
        EXPECT_EQ(skipsDialog(draft), skips) << row.toStdString();
    }
    draft.service.tipoServ = "AP";
    draft.benefit.porcPrestacion = 99;
    EXPECT_FALSE(skipsDialog(draft));
    const Payment skipped = skippedPayment(draftOf(350, 100, "N"), 18.5);
    EXPECT_EQ(skipped.importeTotal, 350);
    EXPECT_EQ(skipped.prestacion, 350);
    EXPECT_EQ(skipped.importeAPagar, 0);
    EXPECT_EQ(skipped.tipoCam, 18.5);
}

TEST(Tender, WarnsAndRefusesCards) {
    Payment payment;
    payment.importeTotal = payment.importeAPagar = 500;
    payment.tarjetaCredito = 500;
    EXPECT_FALSE(cardCoversAllButMoreCameIn(payment));
    EXPECT_FALSE(cardExceedsDue(payment));
    payment.pesos = 0.01;
    EXPECT_TRUE(cardCoversAllButMoreCameIn(payment));
    payment.tarjetaCredito = 500.0001;
    EXPECT_TRUE(cardExceedsDue(payment));
}

TEST(Tender, ChoosingTheKindOfPaymentStartsAgain) {
    Payment payment;
    payment.importeAPagar = 500;
    payment.pesos = 600;
    payment.banco = "BANCO DEL VALLE";
    payment.numCheque = "77";
    choosePaymentKind(&payment, PaymentKind::ChequeMN);
    EXPECT_EQ(payment.pesos, 0);
    EXPECT_EQ(payment.banco, "BANCO DEL VALLE");
    EXPECT_EQ(payment.diferencia, 0);
    EXPECT_FALSE(isEnough(payment));  // the zeros shown are no payment
    choosePaymentKind(&payment, PaymentKind::Efectivo);
    EXPECT_TRUE(payment.banco.isEmpty() && payment.numCheque.isEmpty());
}

}  // namespace
}  // namespace kaldo
