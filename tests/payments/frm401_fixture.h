#pragma once

#include <gtest/gtest.h>

#include "payments/frm401_3_payment_form.h"
#include "payments/frm401_payment_note.h"
#include "people/frm_alumnos_student_choice.h"
#include "tests/support/keys.h"
#include "tests/support/test_station.h"

#include <QTest>
#include <QTimer>

namespace kaldo::test {

inline constexpr char kRegistered[] =
    "La información ha sido registrada correctamente, presione cualquier tecla para continuar.";

/// The payment note of a logged-in cashier, worked by key strokes alone.
class PaymentNoteFixture : public ::testing::Test {
protected:
    PaymentNoteFixture() { station.clock.set(QDateTime({2024, 11, 20}, {10, 30})); }

    /// Opens the screen as the main window does.
    void open(const QString &usuario = "cajero1") {
        station.logIn(usuario);
        screen = std::make_unique<FRM401>(station.context, formaPago, alumnos);
        screen->resize(1000, 640);
        showActive(screen.get());
        screen->open();
        settle();
    }

    /// Picks by typing the first letters, as a cashier does.
    void chooseService(const QString &letters) {
        EXPECT_EQ(focused(), "ComboBox1");
        // Letters typed in quick succession belong to one search of the list.
        if (std::exchange(serviceChosen, true)) {
            QTest::qWait(QApplication::keyboardInputInterval() + 50);
        }
        typeText(letters);
        press(Qt::Key_Return);
    }
    void chooseArea(const QString &letters) {
        EXPECT_EQ(focused(), "ComboBox2");
        typeText(letters);
        press(Qt::Key_Return);
    }
    void choosePlace(const QString &letters) {
        EXPECT_EQ(focused(), "ComboBox3");
        typeText(letters);
        press(Qt::Key_Return);
    }
    /// A line by its key, from "Agregar Registro" to the saved row.
    void addLine(const QString &key, const QString &quantity = "1") {
        EXPECT_EQ(focused(), "AgregarRegistro");
        press(Qt::Key_Return);
        typeText(key);
        press(Qt::Key_Return);
        press(Qt::Key_Return);
        typeText(quantity);
        press(Qt::Key_Return);
    }
    /// The way of an admission up to the names.
    void startAdmission() {
        chooseService("AD");
        chooseArea("ADM");
        EXPECT_EQ(focused(), "Paterno");
    }

    /// A button by its letter; it shows the press for a moment before it acts.
    void pressLetter(Qt::Key letter) {
        press(letter, Qt::AltModifier);
        QTest::qWait(150);
        settle();
    }

    std::string focused() const {
        const QWidget *target = keyTarget();
        while (target->objectName().isEmpty() || target->objectName().startsWith("qt_")) {
            target = target->parentWidget();
        }
        return target->objectName().toStdString();
    }
    /// Walks backwards or forwards to a field by Tab.
    void tabTo(const std::string &name, bool forward = true) {
        for (int step = 0; step < 60 && focused() != name; ++step) {
            press(forward ? Qt::Key_Tab : Qt::Key_Backtab,
                  forward ? Qt::NoModifier : Qt::ShiftModifier);
        }
        EXPECT_EQ(focused(), name);
    }

    std::string text(const char *name) const {
        return child<QLineEdit>(screen.get(), name)->text().toStdString();
    }
    std::string labelText(const char *name) const {
        return child<QLabel>(screen.get(), name)->text().toStdString();
    }
    bool enabled(const char *name) const { return child<QWidget>(screen.get(), name)->isEnabled(); }
    bool shown(const char *name) const { return child<QWidget>(screen.get(), name)->isVisible(); }
    NamedQuery &lines() { return station.local.FBDetalleVtas; }

    /// Presses keys in the modal dialog that one of the next strokes opens.
    void inDialog(QDialog *dialog, std::function<void()> strokes) {
        auto *waiting = new QTimer(dialog);
        connectGuarded(waiting, &QTimer::timeout, dialog, [dialog, strokes, waiting] {
            if (!dialog->isVisible()) {
                return;
            }
            waiting->stop();
            EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
            settle();
            strokes();
            if (dialog->isVisible()) {
                ADD_FAILURE() << "the dialog was left open";
                dialog->reject();
            }
        });
        waiting->start(10);
    }

    bool serviceChosen = false;
    TestStation station;
    FRM401_3 formaPago{station.context};
    FRMAlumnos alumnos{station.context};
    std::unique_ptr<FRM401> screen;
};

}  // namespace kaldo::test
