#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QWindow>

#include "forms_sample.h"
#include "tests/support/keys.h"

namespace kaldo::test {

namespace {

/// Three fields and two buttons; what happens to them is written down in order.
class Notes : public QWidget {
public:
    Notes() {
        using namespace form;
        build(
            this,
            column({
                text(&first, "first", "Uno").width(8).enter([this] { on("enter1"); }).leave([this] {
                    on("leave1");
                }),
                text(&second, "second", "Dos")
                    .width(8)
                    .enter([this] { on("enter2"); })
                    .leave([this] { on("leave2"); })
                    .arrive([this] { on("arrive2"); }),
                text(&third, "third", "Tres").width(8).leave([this] { on("leave3"); }),
                row({button(&accept, "accept", "&Aceptar").clicked([this] { on("accept"); }),
                     button(&cancel, "cancel", "&Cancelar").escape().clicked([this] {
                         on("cancel");
                     })}),
            }));
        showActive(this);
        first->setFocus();
        settle();
        log.clear();
    }

    void on(const char *what) {
        log += QString::fromLatin1(what);
        if (const auto act = acts.value(QString::fromLatin1(what))) {
            act();
        }
    }
    std::string told() const { return log.join(' ').toStdString(); }

    TextField *first = nullptr;
    TextField *second = nullptr;
    TextField *third = nullptr;
    Button *accept = nullptr;
    Button *cancel = nullptr;
    QHash<QString, std::function<void()>> acts;
    QStringList log;
};

}  // namespace

TEST(EnterProtocol, MovesOnUnlessTheHandlerAskedOtherwise) {
    Notes notes;
    press(Qt::Key_Return);
    EXPECT_EQ(notes.told(), "enter1 leave1 arrive2");
    EXPECT_TRUE(notes.second->hasFocus());

    notes.acts["enter2"] = [] { stayHere(); };
    press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_TRUE(notes.second->hasFocus());

    notes.acts["enter2"] = [&] {
        moveFocus(notes.third);
        moveFocus(notes.accept);
    };
    press(Qt::Key_Return);
    EXPECT_TRUE(notes.accept->hasFocus()) << "the last request wins";
}

TEST(EnterProtocol, TextTypedAheadGoesWhereTheFocusIsGoingAndEnterDoesNot) {
    Notes notes;
    // Outside of a handler of a field, as after a pick in a list: the move waits for the event
    // loop.
    moveFocus(notes.third);
    QTest::keyClick(notes.first, Qt::Key_7);
    EXPECT_EQ(notes.third->text(), QStringLiteral("7"));
    moveFocus(notes.accept);
    QTest::keyClick(notes.third, Qt::Key_Return);
    settle();
    EXPECT_TRUE(notes.accept->hasFocus());
    EXPECT_FALSE(notes.log.contains("accept"));
}

TEST(EnterProtocol, PassesOverWhatCannotTakeInput) {
    Notes notes;
    notes.second->setFieldReadOnly(true);
    notes.third->setEnabled(false);
    press(Qt::Key_Return);
    EXPECT_TRUE(notes.accept->hasFocus());
}

TEST(EnterProtocol, AHandlerThatFailsIsToldOnceAndTheFocusStays) {
    Notes notes;
    QStringList failures;
    Application *application = Application::current();
    application->setFailureHandler([&](const std::exception &failure) {
        failures += QString::fromUtf8(failure.what());
        // Another failure while the box stands: it must not stack a second one.
        application->reportFailure(std::runtime_error("otra"));
    });
    notes.acts["enter1"] = [] { throw std::runtime_error("no hay conexión"); };
    press(Qt::Key_Return);
    application->setFailureHandler({});
    EXPECT_EQ(failures, QStringList{QStringLiteral("no hay conexión")});
    EXPECT_EQ(application->gate().dropped(), 1);
    EXPECT_TRUE(notes.first->hasFocus());
}

TEST(EnterProtocol, AHeldKeyRunsOneHandlerAndPressesNoButton) {
    Notes notes;
    hold(Qt::Key_Return, 20);
    EXPECT_EQ(notes.log.count("enter1"), 1);
    EXPECT_EQ(notes.log.count("enter2"), 0);
    notes.accept->setFocus();
    hold(Qt::Key_Return, 20);
    EXPECT_EQ(notes.log.count("accept"), 1) << "the first stroke alone presses";
    press(Qt::Key_Return);
    EXPECT_EQ(notes.log.count("accept"), 2);
}

TEST(EnterProtocol, HoldingEnterOnASampleFormPressesNothing) {
    SampleForm form;
    int pressed = 0;
    connectGuarded(form.save, &QPushButton::clicked, &form, [&] { ++pressed; });
    connectGuarded(form.close, &QPushButton::clicked, &form, [&] { ++pressed; });
    showActive(&form);
    const QList<QWidget *> all = form.findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || qobject_cast<Button *>(widget)) {
            continue;
        }
        widget->setFocus();
        hold(Qt::Key_Return, 30);
        while (QWidget *popup = QApplication::activePopupWidget()) {
            popup->close();
            settle();
        }
        EXPECT_EQ(pressed, 0) << widget->objectName().toStdString();
    }
    EXPECT_EQ(form.service->currentIndex(), -1) << "a held Enter opens the list and picks nothing";
    EXPECT_EQ(form.area->row(), -1);
}

TEST(LeaveProtocol, RunsOnceAndPuttingTheFocusBackLeavesNoOtherField) {
    Notes notes;
    notes.acts["leave1"] = [&] { moveFocus(notes.first); };
    press(Qt::Key_Tab);
    EXPECT_EQ(notes.told(), "leave1") << "the second field was neither entered nor left";
    EXPECT_TRUE(notes.first->hasFocus());
    notes.acts["leave1"] = [&] { notes.first->setFocus(); };
    press(Qt::Key_Tab);
    EXPECT_EQ(notes.told(), "leave1 leave1") << "nor when the handler sets it directly";
}

TEST(LeaveProtocol, KeysThatComeBeforeTheQueueFindItDone) {
    Notes notes;
    notes.acts["leave1"] = [&] {
        notes.first->setText(QStringLiteral("mal"));
        moveFocus(notes.first);
    };
    // Two strokes in one go, as a quick typist sends them: the second is for a field that the leave
    // handler of the first takes the focus from.
    QTest::keyClick(notes.first, Qt::Key_Tab);
    QTest::keyClick(notes.second, Qt::Key_X);
    settle();
    EXPECT_EQ(notes.second->text(), QString());
    EXPECT_TRUE(notes.first->hasFocus());
    EXPECT_EQ(notes.told(), "leave1");

    notes.acts["leave1"] = [&] { notes.accept->setEnabled(false); };
    notes.accept->setFocus();
    QTest::keyClick(notes.accept, Qt::Key_Return);
    settle();
    EXPECT_FALSE(notes.log.contains("accept")) << "the leave handler disabled it first";
}

TEST(LeaveProtocol, TheWayOutRunsNoHandlerButOwesItToThoseWhoReturn) {
    Notes notes;
    notes.cancel->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(notes.told(), "cancel");
    notes.third->setFocus();
    settle();
    EXPECT_EQ(notes.told(), "cancel leave1");
    notes.cancel->setFocus();
    settle();
    notes.third->setFocus();
    settle();
    EXPECT_EQ(notes.told(), "cancel leave1") << "back in the same field: it was not left";
}

TEST(LeaveProtocol, OtherWindowsMenusAndClosingAreNoLeave) {
    Notes notes;
    {
        QWidget other;
        showActive(&other);
        EXPECT_EQ(notes.told(), "");
        notes.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&notes));
        settle();
    }
    QMenu menu(&notes);
    menu.addAction(QStringLiteral("Copiar"));
    menu.popup(notes.mapToGlobal(QPoint(0, 0)));
    settle();
    menu.close();
    settle();
    EXPECT_EQ(notes.told(), "");
    notes.first->setEnabled(false);
    settle();
    EXPECT_EQ(notes.told(), "arrive2") << "disabled under the focus";
    notes.close();
    settle();
    EXPECT_EQ(notes.told(), "arrive2");
}

TEST(LeaveProtocol, ALetterWithAltAndAQuickClickLeaveTheFieldBeforeTheyPress) {
    QWidget form;
    TextField *field = nullptr;
    Button *button = nullptr;
    QStringList told;
    bool keep = false;
    {
        using namespace kaldo::form;
        build(&form, column({text(&field, "field", "Campo").leave([&] {
                                 told += "leave";
                                 if (keep) {
                                     moveFocus(field);
                                 }
                             }),
                             form::button(&button, "button", "&Generar").clicked([&] {
                                 told += "click";
                             })}));
    }
    showActive(&form);
    const auto altG = [&] {
        QTest::sendKeyEvent(QTest::Click, form.windowHandle(), Qt::Key_G, QStringLiteral("g"),
                            Qt::AltModifier);
    };
    const auto quickClick = [&] { QTest::mouseClick(button, Qt::LeftButton); };
    for (const std::function<void()> &press : {std::function<void()>(altG), {quickClick}}) {
        for (const bool kept : {false, true}) {
            keep = kept;
            field->setFocus();
            settle();
            told.clear();
            press();
            settle();
            EXPECT_EQ(told, kept ? QStringList("leave") : QStringList({"leave", "click"}))
                << "at once, in this order; a field that keeps the focus lets nothing be pressed";
            EXPECT_EQ(field->hasFocus(), kept);
        }
    }
}

TEST(EnterProtocol, StaysInsideTheChildWindow) {
    QMainWindow window;
    window.addToolBar(QStringLiteral("Barra"))->addWidget(new QLineEdit);
    auto *desktop = new QMdiArea(&window);
    window.setCentralWidget(desktop);
    auto *form = new QWidget;
    TextField *first = nullptr;
    TextField *last = nullptr;
    int left = 0;
    using namespace kaldo::form;
    build(form, column({text(&first, "first", "Uno"),
                        text(&last, "last", "Dos").leave([&] { ++left; })}));
    desktop->addSubWindow(form)->show();
    showActive(&window);
    last->setFocus();
    press(Qt::Key_Return);
    EXPECT_TRUE(first->hasFocus());
    EXPECT_EQ(left, 1);
    last->setFocus();
    settle();
    window.findChild<QToolBar *>()->findChild<QLineEdit *>()->setFocus(Qt::MouseFocusReason);
    settle();
    EXPECT_EQ(left, 1) << "the tool bar is not part of the form";
    last->setFocus();
    desktop->closeAllSubWindows();
    settle();
    EXPECT_EQ(left, 1);
}

TEST(LeaveProtocol, ADialogOpenedByALeaveHandlerWorks) {
    Notes notes;
    QString typed;
    notes.acts["leave1"] = [&] {
        QDialog dialog(&notes);
        TextField *name = nullptr;
        Button *done = nullptr;
        using namespace form;
        build(&dialog, column({text(&name, "name", "Nombre").enter([&] { moveFocus(done); }),
                               button(&done, "done", "&Listo").clicked([&] {
                                   typed = name->text();
                                   dialog.accept();
                               })}));
        QTimer::singleShot(20, &dialog, [&] {
            typeText(QStringLiteral("Ana"));
            press(Qt::Key_Return);
            press(Qt::Key_Return);
        });
        dialog.exec();
    };
    press(Qt::Key_Tab);
    QTest::qWait(50);
    EXPECT_EQ(typed, QStringLiteral("Ana"));
    EXPECT_EQ(notes.log.count("leave1"), 1);
}

TEST(Guarded, AnExceptionInAnySlotIsToldAndThePressIsOver) {
    Notes notes;
    QString told;
    Application::current()->setFailureHandler(
        [&](const std::exception &failure) { told = QString::fromUtf8(failure.what()); });
    notes.acts["accept"] = [] { throw std::runtime_error("falló"); };
    notes.accept->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(told, QStringLiteral("falló"));
    // A slot that nobody guarded: the net below.
    QObject::connect(notes.cancel, &QPushButton::clicked, &notes,
                     [] { QTimer::singleShot(0, qApp, [] { throw std::runtime_error("red"); }); });
    notes.cancel->click();
    QTest::qWait(5);
    Application::current()->setFailureHandler({});
    EXPECT_EQ(told, QStringLiteral("red"));
}

}  // namespace kaldo::test
