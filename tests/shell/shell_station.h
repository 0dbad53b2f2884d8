#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QEventLoop>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

#include "shell/frm000_main_window.h"
#include "shell/frm_acceso_login.h"
#include "shell/program.h"
#include "tests/support/keys.h"
#include "tests/support/test_doubles.h"
#include "tests/support/test_installation.h"
#include "toolkit/forms/application.h"

namespace kaldo::test {

/// The whole program over an installation of its own, with services that the test holds. The
/// clock stands on a summer's morning unless it is set.
class ShellStation {
public:
    explicit ShellStation(
        TestInstallation::Content content = TestInstallation::Content::ExampleSchool)
        : installation(content) {
        clock.set(QDateTime(QDate(2024, 6, 3), QTime(9, 30)));
    }
    ~ShellStation() {
        program.reset();
        messages.verify();
    }

    Program &create() {
        ProgramSettings settings;
        settings.root = installation.root();
        settings.clock = &clock;
        settings.messages = &messages;
        settings.fileDialogs = &fileDialogs;
        settings.printing = &printing;
        settings.seam = seam;
        settings.splash = splash;
        settings.tick = tick;
        settings.countDown = countDown;
        settings.update = update;
        program = std::make_unique<Program>(settings);
        return *program;
    }
    bool start() { return create().start(); }

    /// Starts, waits for the login screen and runs `steps` in it. A login that is still open
    /// afterwards is put away.
    void atLogin(const std::function<void()> &steps) {
        ASSERT_TRUE(start());
        inDialog(
            login(), [] {}, steps);
    }
    /// Runs `open` from the event loop and `steps` once the dialog shows; returns when it is gone.
    void inDialog(QDialog &dialog, const std::function<void()> &open,
                  const std::function<void()> &steps) {
        QEventLoop loop;
        bool ran = false;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
            if (!ran && dialog.isVisible()) {
                ran = true;
                settle();
                steps();
                settle();
                if (dialog.isVisible()) {
                    stillOpen = true;
                    dialog.done(QDialog::Rejected);
                }
            } else if (ran && !dialog.isVisible()) {
                loop.quit();
            }
        });
        stillOpen = false;
        poll.start(5);
        QTimer::singleShot(0, &loop, open);
        QTimer guard;
        guard.setSingleShot(true);
        QObject::connect(&guard, &QTimer::timeout, &loop, &QEventLoop::quit);
        guard.start(20000);
        loop.exec();
        EXPECT_TRUE(ran) << "the dialog did not open";
        settle();
    }
    void logIn(const QString &user, const QString &password) {
        atLogin([&] { typeUser(user, password); });
    }
    /// What a person types, by keys alone.
    void typeUser(const QString &user, const QString &password) {
        typeText(user);
        press(Qt::Key_Return);
        typeText(password);
        press(Qt::Key_Return);
    }
    /// Looks from outside, while the program holds the databases too.
    QVariant clinicValue(const QString &text) {
        return valueOf(program->conexion().FBOdonto, text);
    }

    FRMAcceso &login() { return program->login(); }
    FRM000 &window() { return program->mainWindow(); }
    Session &session() { return program->context().session; }
    QString panel(int number) {
        return child<QLabel>(&window(), QStringLiteral("panel%1").arg(number))->text();
    }
    bool enabled(const char *entry) {
        return window().action(QString::fromLatin1(entry))->isEnabled();
    }

    TestInstallation installation;
    TestClock clock;
    std::chrono::milliseconds splash{0};
    std::chrono::milliseconds tick{3600000};
    CountDownPace countDown;
    UpdateSettings update;
    ScriptedMessages messages;
    ScriptedFileDialogs fileDialogs;
    RecordingPrinting printing;
    Seam *seam = nullptr;
    std::unique_ptr<Program> program;
    bool stillOpen = false;
};

}  // namespace kaldo::test
