#include "payments/frm401_3_payment_form.h"

#include "tests/payments/sample_note.h"
#include "tests/support/accessibility.h"
#include "tests/support/keys.h"
#include "tests/support/test_station.h"

#include <gtest/gtest.h>

#include <QRadioButton>
#include <QTest>
#include <QTimer>

namespace kaldo {
namespace {

using test::child;
using test::hold;
using test::keyTarget;
using test::noteDraft;
using test::noteLine;
using test::press;
using test::typeText;

constexpr char kChooseCard[] = "Seleccione un tipo de tarjeta antes de ingresar el importe.";
constexpr char kCardTooMuch[] =
    "El importe de Tarjeta no puede exceder el importe del recibo de pago, vuelva a intentar.";
constexpr char kMoreCameIn[] =
    "El importe de Tarjeta es igual al importe del recibo de pago, pero hay ingreso de más en "
    "otras monedas.";

class PaymentForm : public ::testing::Test {
protected:
    PaymentForm() { test::run(station.clinic(), "update control set tipo_cam = 18.1234"); }

    /// Opens the dialog, lets `strokes` type into it and closes it if they left it open.
    Payment pay(const NoteDraft &draft, const std::function<void()> &strokes) {
        bool ran = false;
        QTimer::singleShot(0, &form, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
            test::settle();
            strokes();
            ran = true;
            if (form.isVisible()) {
                form.reject();
            }
        });
        const std::optional<AcceptedPayment> answer = form.pay(draft, nullptr);
        EXPECT_TRUE(ran);
        confirmado = answer.has_value();
        return answer ? answer->payment : Payment{};
    }
    static NoteDraft noteOf(double total) {
        return noteDraft("AD - ADMISION", {noteLine(1, total)});
    }

    QString focused() const { return keyTarget()->objectName(); }
    QString shown(const char *name) const { return child<QLineEdit>(&form, name)->text(); }
    bool canAccept() const { return child<Button>(&form, "ImprimirRecibo")->isEnabled(); }
    /// Card type by the box that an amount without one brings up. Enter takes the first type, an
    /// arrow the other.
    void typeCard(const QString &amount, bool debit) {
        station.messages.expectInformation(kChooseCard);
        typeText("5");
        EXPECT_EQ(focused(), "RadioGroup2_0");
        press(debit ? Qt::Key_Return : Qt::Key_Right);
        EXPECT_EQ(focused(), "CEdit2");
        // The Enter that is to take the type does no harm where the arrow took it.
        press(Qt::Key_Return);
        EXPECT_EQ(focused(), "CEdit2");
        EXPECT_TRUE(child<QWidget>(&form, "RadioGroup2")->isVisible());
        typeText(amount);
    }

    static void click(QWidget *button) {
        QTest::mousePress(button, Qt::LeftButton);
        test::settle();
        QTest::mouseRelease(button, Qt::LeftButton);
        test::settle();
    }

    bool confirmado = false;  ///< of the last pay()
    test::TestStation station;
    FRM401_3 form{station.context};
};

TEST_F(PaymentForm, PesosAloneAreTypedAndAcceptedWithThreeStrokes) {
    const Payment payment = pay(noteOf(350), [&] {
        EXPECT_EQ(focused(), "CEdit4");
        EXPECT_EQ(shown("CEdit1"), "$350.00");
        EXPECT_EQ(shown("CEdit8"), "$350.00");
        EXPECT_EQ(shown("CEdit9"), "$350.00");
        EXPECT_FALSE(canAccept());
        typeText("500");
        press(Qt::Key_Return);
        EXPECT_EQ(shown("CEdit10"), "$150.00");
        EXPECT_EQ(focused(), "ImprimirRecibo");
        test::picture(&form, "pago_pesos");
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(confirmado);
    EXPECT_EQ(payment.pesos, 500);
    EXPECT_EQ(payment.cambio, 150);
    EXPECT_EQ(payment.tipoCam, 18.1234);
}

TEST_F(PaymentForm, MoreThanAnybodyHandsOverIsAskedAbout) {
    pay(noteOf(80), [&] {
        typeText("80000");
        press(Qt::Key_Return);
        station.messages.expectConfirmation(
            "Se reciben $80,000.00 para pagar $80.00, ¿es correcto?", Answer::No);
        press(Qt::Key_Return);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(focused(), "CEdit4");
        press(Qt::Key_A, Qt::ControlModifier);
        typeText("80");
        press(Qt::Key_Return);
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(confirmado);
}

TEST_F(PaymentForm, EachOpeningStartsAfresh) {
    pay(noteOf(350), [] { typeText("500"), press(Qt::Key_Return), press(Qt::Key_Return); });
    test::run(station.clinic(), "update control set tipo_cam = 19.5");
    const Payment payment = pay(noteOf(80), [&] {
        EXPECT_EQ(focused(), "CEdit4");
        EXPECT_EQ(shown("CEdit4"), "");
        EXPECT_EQ(shown("CEdit9"), "$80.00");
        EXPECT_EQ(shown("CEdit10"), "$0.00");
        EXPECT_EQ(child<QLabel>(&form, "LabelTipoCambio")->text(), "19.5");
        EXPECT_FALSE(canAccept());
        press(Qt::Key_Escape);
    });
    EXPECT_FALSE(confirmado);
    EXPECT_EQ(payment.pesos, 0);
}

TEST_F(PaymentForm, CardDollarsAndPesosAddUp) {
    const Payment payment = pay(noteOf(500), [&] {
        press(Qt::Key_Up);
        press(Qt::Key_Up);
        EXPECT_EQ(focused(), "CEdit2");
        typeCard("200", true);
        press(Qt::Key_Return);
        EXPECT_EQ(shown("CEdit9"), "$300.00");
        EXPECT_EQ(focused(), "CEdit3");
        typeText("10");
        press(Qt::Key_Return);
        EXPECT_EQ(shown("CEdit7"), "$381.23");
        EXPECT_EQ(focused(), "CEdit4");
        typeText("100");
        press(Qt::Key_Return);
        EXPECT_EQ(focused(), "CEdit4");
        EXPECT_FALSE(canAccept());
        typeText("120");
        press(Qt::Key_Return);
        test::picture(&form, "pago_mixto");
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(confirmado);
    EXPECT_EQ(payment.tipoDeTarjeta, CardKind::Debito);
    EXPECT_EQ(payment.tarjetaCredito, 200);
    EXPECT_EQ(payment.dolares, 10);
    EXPECT_EQ(payment.dolaresEnPesos.tenThousandths(), 1812340);
    EXPECT_EQ(payment.pesos, 120);
    EXPECT_EQ(payment.subtotal, 501.234);
    EXPECT_EQ(payment.cambio, 1.234);
}

TEST_F(PaymentForm, TheCardNeedsATypeAndStaysWithinTheNote) {
    const Payment payment = pay(noteOf(500), [&] {
        press(Qt::Key_Tab, Qt::ShiftModifier);
        press(Qt::Key_Tab, Qt::ShiftModifier);
        typeCard("500.01", false);
        test::checkAccessibility(form);
        test::picture(&form, "pago_tarjeta");
        station.messages.expectWarning(kCardTooMuch);
        press(Qt::Key_Return);
        EXPECT_EQ(focused(), "CEdit2");
        EXPECT_EQ(shown("CEdit9"), "$500.00");
        typeText("500");
        press(Qt::Key_Return);
        EXPECT_EQ(focused(), "ImprimirRecibo");

        // A card box left at zero forgets the type of the card.
        child<QWidget>(&form, "CEdit2")->setFocus();
        test::settle();
        EXPECT_FALSE(canAccept());
        typeText("0");
        press(Qt::Key_Return);
        EXPECT_EQ(focused(), "CEdit3");
        EXPECT_FALSE(child<QWidget>(&form, "RadioGroup2")->isVisible());
        press(Qt::Key_Up);
        typeCard("500", false);
        press(Qt::Key_Return);

        child<QWidget>(&form, "CEdit4")->setFocus();
        test::settle();
        typeText("5");
        station.messages.expectWarning(kMoreCameIn);
        press(Qt::Key_Return);
        test::settle();
        EXPECT_TRUE(canAccept());
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(confirmado);
    EXPECT_EQ(payment.tipoDeTarjeta, CardKind::Credito);
    EXPECT_EQ(payment.cambio, 5);
}

TEST_F(PaymentForm, AChequePaysAlone) {
    const Payment payment = pay(noteOf(500), [&] {
        typeText("100");
        press(Qt::Key_Return);
        child<QRadioButton>(&form, "RadioGroup1_0")->setFocus();
        test::settle();
        press(Qt::Key_Right);
        EXPECT_EQ(focused(), "Edit1");
        EXPECT_EQ(shown("CEdit4"), "$0.00");
        EXPECT_EQ(shown("CEdit9"), "$0.00");
        EXPECT_FALSE(canAccept());
        EXPECT_FALSE(child<QWidget>(&form, "CEdit2")->isEnabled());
        typeText("banco del puerto");
        press(Qt::Key_Return);
        typeText("1234567");
        press(Qt::Key_Return);
        typeText("000123456");
        press(Qt::Key_Return);
        EXPECT_EQ(focused(), "CEdit5");
        typeText("499.99");
        press(Qt::Key_Return);
        EXPECT_EQ(shown("CEdit9"), "$0.01");
        EXPECT_FALSE(canAccept());
        EXPECT_EQ(focused(), "CEdit5");
        press(Qt::Key_A, Qt::ControlModifier);
        typeText("500");
        press(Qt::Key_Return);
        test::checkAccessibility(form);
        test::picture(&form, "pago_cheque");
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(confirmado);
    EXPECT_EQ(payment.cheque, 500);
    EXPECT_EQ(payment.pesos, 0);
    EXPECT_EQ(payment.banco, "BANCO DEL PUERTO");
    EXPECT_EQ(payment.numCuenta, "1234567");
    EXPECT_EQ(payment.numCheque, "00012345");
}

TEST_F(PaymentForm, BackToCashForgetsTheCheque) {
    const Payment payment = pay(noteOf(500), [&] {
        child<QRadioButton>(&form, "RadioGroup1_0")->setFocus();
        press(Qt::Key_Right);
        typeText("banco");
        child<QRadioButton>(&form, "RadioGroup1_1")->setFocus();
        press(Qt::Key_Left);
        EXPECT_EQ(focused(), "CEdit4");
        EXPECT_FALSE(child<QWidget>(&form, "CEdit5")->isEnabled());
        typeText("500");
        press(Qt::Key_Return);
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(confirmado);
    EXPECT_EQ(payment.banco, "");
}

TEST_F(PaymentForm, AHeldEnterAcceptsNothing) {
    pay(noteOf(350), [&] {
        typeText("350");
        hold(Qt::Key_Return, 20);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(focused(), "ImprimirRecibo");
    });
    EXPECT_FALSE(confirmado);
}

TEST_F(PaymentForm, TheButtonShowsNewTotalsBeforeItAccepts) {
    pay(noteOf(350), [&] {
        typeText("350");
        press(Qt::Key_Return);
        press(Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_EQ(focused(), "CEdit4");
        press(Qt::Key_A, Qt::ControlModifier);
        typeText("100");
        press(Qt::Key_I, Qt::AltModifier);
        QTest::qWait(200);
        EXPECT_TRUE(form.isVisible());
        EXPECT_FALSE(canAccept());
        EXPECT_EQ(shown("CEdit9"), "$250.00");
        EXPECT_EQ(focused(), "CEdit4");

        // Nor is a change taken unseen where there was enough already.
        typeText("400");
        press(Qt::Key_Return);
        press(Qt::Key_Tab, Qt::ShiftModifier);
        press(Qt::Key_A, Qt::ControlModifier);
        typeText("600");
        press(Qt::Key_I, Qt::AltModifier);
        QTest::qWait(200);
        ASSERT_TRUE(form.isVisible());
        EXPECT_EQ(shown("CEdit10"), "$250.00");
        EXPECT_EQ(focused(), "ImprimirRecibo");

        press(Qt::Key_Tab, Qt::ShiftModifier);
        for (const char *text : {"1.2.3", "700"}) {
            press(Qt::Key_A, Qt::ControlModifier);
            typeText(text);
            click(child<Button>(&form, "ImprimirRecibo"));
            ASSERT_TRUE(form.isVisible()) << text;
        }
        EXPECT_EQ(shown("CEdit10"), "$350.00");
    });
    EXPECT_FALSE(confirmado);
}

TEST_F(PaymentForm, WhatIsNoAmountStaysInItsBox) {
    pay(noteOf(350), [&] {
        typeText("abc12x.5");
        EXPECT_EQ(shown("CEdit4"), "12.5");
        press(Qt::Key_Return);
        EXPECT_EQ(shown("CEdit9"), "$337.50");
        for (const char *text : {"-5", "1,2,3", "1.2.3", "1000000000"}) {
            press(Qt::Key_A, Qt::ControlModifier);
            typeText(text);
            press(Qt::Key_Return);
            EXPECT_EQ(focused(), "CEdit4") << text;
            EXPECT_EQ(shown("CEdit4"), text);
            EXPECT_FALSE(canAccept()) << text;
            press(Qt::Key_Tab, Qt::ShiftModifier);
            EXPECT_EQ(focused(), "CEdit4") << text;
            EXPECT_EQ(shown("CEdit4"), text);
        }
        press(Qt::Key_A, Qt::ControlModifier);
        typeText("999,999,999.99");
        press(Qt::Key_Return);
        EXPECT_EQ(shown("CEdit10"), "$999,999,649.99");
        test::picture(&form, "pago_enorme");
    });
}

TEST_F(PaymentForm, ADifferenceBelowACentavoIsSeen) {
    const Payment payment = pay(noteOf(181.236), [&] {
        press(Qt::Key_Up);
        typeText("10");
        press(Qt::Key_Return);
        EXPECT_EQ(shown("CEdit9"), "$0.0020");
        EXPECT_FALSE(canAccept());
        typeText("0.01");
        press(Qt::Key_Return);
        EXPECT_EQ(shown("CEdit9"), "$0.00");
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(confirmado);
    EXPECT_EQ(payment.cambio, 0.008);
}

TEST_F(PaymentForm, LayoutsFollowBenefitAndAdvance) {
    const QList<NoteLine> lines{noteLine(1, 400)};
    pay(noteDraft("AP - SERVICIOS DE CLINICA", lines, 50), [&] {
        EXPECT_TRUE(child<QWidget>(&form, "PanelPrestacion")->isVisible());
        EXPECT_TRUE(child<QWidget>(&form, "PanelAnticipo")->isVisible());
        EXPECT_EQ(shown("CEdit0"), "$400.00");
        EXPECT_EQ(shown("CEdit8"), "$200.00");
        EXPECT_EQ(shown("CEdit11"), "$200.00");
        EXPECT_EQ(focused(), "CEdit4");
        test::checkAccessibility(form);
        test::picture(&form, "pago_prestacion");
    });
    const Payment free = pay(noteDraft("ES - ESPECIALIDADES", lines, 100), [] {
        press(Qt::Key_Return);
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(confirmado);
    EXPECT_EQ(free.subtotal, 0);
    station.messages.expectConfirmation("¿El paciente dará anticipo?", Answer::No);
    pay(noteDraft("AP - SERVICIOS DE CLINICA", lines, 0, "S"), [&] {
        EXPECT_FALSE(child<QWidget>(&form, "PanelPrestacion")->isVisible());
        EXPECT_EQ(shown("CEdit0"), "$400.00");
        EXPECT_EQ(shown("CEdit8"), "$400.00");
        EXPECT_EQ(focused(), "CEdit4");
    });
    station.messages.expectConfirmation("¿El paciente dará anticipo?", Answer::Yes);
    station.messages.expectInformation(
        "Los anticipos todavía no están disponibles. La nota se cobra completa.");
    const Payment whole = pay(noteDraft("AP - SERVICIOS DE CLINICA", lines, 0, "S"), [&] {
        EXPECT_EQ(focused(), "CEdit4");
        typeText("400");
        press(Qt::Key_Return);
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(confirmado);
    EXPECT_EQ(whole.importeAPagar, 400);
    EXPECT_EQ(whole.saldo, 0);
}

TEST_F(PaymentForm, AWholeBenefitOnADossierIsNotAskedFor) {
    test::run(station.clinic(), "update control set tipo_cam = 20");
    const std::optional<AcceptedPayment> answer =
        form.pay(noteDraft("AP - SERVICIOS DE CLINICA", {noteLine(2, 150)}, 100), nullptr);
    ASSERT_TRUE(answer);
    const Payment &payment = answer->payment;
    EXPECT_EQ(payment.importeTotal, 300);
    EXPECT_EQ(payment.prestacion, 300);
    EXPECT_EQ(payment.importeAPagar, 0);
    EXPECT_EQ(payment.tipoCam, 20);
}

TEST_F(PaymentForm, WithoutARateNothingCanBeAccepted) {
    test::run(station.clinic(), "alter table control alter tipo_cam to tipo_cam_x");
    station.messages.expect(MessageKind::Error, "*");
    pay(noteOf(350), [&] {
        typeText("350");
        press(Qt::Key_Return);
        EXPECT_FALSE(canAccept());
    });
    EXPECT_FALSE(confirmado);
}

}  // namespace
}  // namespace kaldo
