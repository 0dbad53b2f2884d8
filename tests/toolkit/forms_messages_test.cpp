#include <QDialog>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include "tests/support/accessibility.h"
#include "tests/support/keys.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/button.h"
#include "toolkit/forms/messages.h"

namespace kaldo::test {

namespace {

/// Runs while a box is open.
void during(std::function<void(QWidget *box)> act) {
    QTimer::singleShot(30, qApp, [act = std::move(act)] {
        QWidget *box = QApplication::activeModalWidget();
        ASSERT_NE(box, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(box));
        act(box);
    });
}

}  // namespace

TEST(MessageBox, AsksInSpanishAndKeysAnswer) {
    BoxMessages messages;
    during([](QWidget *box) {
        EXPECT_EQ(box->objectName(), QStringLiteral("messageBox"));
        EXPECT_EQ(box->windowTitle(), QStringLiteral("Confirmación"));
        EXPECT_EQ(child<QLabel>(box, "messageText")->text(),
                  QStringLiteral("¿Desea salir de KALDO?"));
        EXPECT_EQ(child<Button>(box, "yesButton")->text(), QStringLiteral("&Sí"));
        EXPECT_EQ(child<Button>(box, "noButton")->text(), QStringLiteral("&No"));
        checkAccessibility(*box);
        picture(box, QStringLiteral("forms_question"));
        press(Qt::Key_Return);
    });
    EXPECT_EQ(messages.confirm(QStringLiteral("¿Desea salir de KALDO?")), Answer::Yes);
    during([](QWidget *) { press(Qt::Key_Escape); });
    EXPECT_EQ(messages.confirm(QStringLiteral("¿Desea salir de KALDO?")), Answer::No);
    during([](QWidget *) {
        press(Qt::Key_Tab);
        press(Qt::Key_Return);
    });
    EXPECT_EQ(messages.confirm(QStringLiteral("¿Desea salir de KALDO?")), Answer::No);
}

TEST(MessageBox, AskedForALossItShowsItAndEnterMeansNo) {
    BoxMessages messages;
    during([](QWidget *box) {
        EXPECT_EQ(child<QLabel>(box, "messageDetail")->text(), "Usuario: ana\nNombre: ANA SOTO");
        checkAccessibility(*box);
        picture(box, "forms_loss");
        press(Qt::Key_Return);
    });
    EXPECT_EQ(
        messages.confirmLoss("¿Desea borrar esta Información?", "Usuario: ana\nNombre: ANA SOTO"),
        Answer::No);
}

TEST(MessageBox, TheEnterThatOpenedItDoesNotCloseItWhileHeld) {
    BoxMessages messages;
    bool stood = false;
    during([&](QWidget *box) {
        for (int i = 0; i < 30; ++i) {
            QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
            QApplication::sendEvent(keyTarget(), &repeat);
        }
        settle();
        stood = box->isVisible();
        picture(box, QStringLiteral("forms_warning"));
        press(Qt::Key_Return);
    });
    messages.warning(QStringLiteral(
        "El importe de Tarjeta es igual al importe del recibo de pago, pero hay ingreso "
        "de más en otras monedas."));
    EXPECT_TRUE(stood);
}

TEST(MessageBox, AFieldBehindItIsNeitherLeftNorTyped) {
    BoxMessages messages;
    during([](QWidget *box) {
        EXPECT_EQ(box->windowTitle(), QStringLiteral("Aviso"));
        press(Qt::Key_Space);
    });
    messages.error(QStringLiteral("No hay papel."), QStringLiteral("Aviso"));
}

TEST(MessageBox, AnyKeyClosesABoxThatSaysSo) {
    BoxMessages messages;
    const QString text =
        QStringLiteral("La nueva contraseña no coincide, presione cualquier tecla para continuar.");
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_F5, Qt::Key_Left}) {
        bool stood = false;
        during([&](QWidget *box) {
            press(Qt::Key_Shift);
            stood = box->isVisible();
            press(key);
            EXPECT_FALSE(box->isVisible()) << key;
            box->hide();
        });
        messages.warning(text);
        EXPECT_TRUE(stood) << "no key by itself";
    }
}

namespace {

[[noreturn]] void endWhileAsking() {
    Application *application = Application::current();
    BoxMessages messages;
    QTimer::singleShot(30, application, [application] { application->endApplication(); });
    const Answer open = messages.confirm(QStringLiteral("¿Sí?"));
    const Answer after = messages.confirm(QStringLiteral("¿Y ahora?"));
    std::_Exit(open == Answer::Ended && after == Answer::Ended ? 7 : 1);
}

}  // namespace

TEST(MessageBox, TheEndOfTheApplicationIsNoAnswer) {
    // In a process of its own: an application that has ended stays ended.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(endWhileAsking(), testing::ExitedWithCode(7), "");
}

TEST(Application, SpeaksSpanishInTheToolkitsOwnWindows) {
    EXPECT_TRUE(
        QCoreApplication::translate("QFileDialog", "%1 already exists.\nDo you want to replace it?")
            .contains("ya existe"));
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancelar");
    EXPECT_EQ(QCoreApplication::translate("QLineEdit", "&Paste"), "&Pegar");
}

}  // namespace kaldo::test
