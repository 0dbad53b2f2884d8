#include "tests/shell/shell_station.h"

#include "shell/frm_close_countdown.h"
#include "shell/frm_version_about.h"
#include "shell/version.h"
#include "tests/support/accessibility.h"
#include "tests/support/test_station.h"

#include <QLineEdit>
#include <QPushButton>

namespace kaldo::test {

namespace {

using namespace std::chrono_literals;

const QDateTime kEvening(QDate(2024, 6, 3), QTime(19, 59, 58));

QString text(const FRMClose &dialog, const char *label) {
    return child<QLabel>(&dialog, QString::fromLatin1(label))->text();
}

/// Every pair of count and unit that a person could see, until `enough` says so.
QStringList watch(FRMClose &dialog, const std::function<bool(const QString &)> &enough) {
    QStringList seen;
    const QDeadlineTimer limit(10s);
    while (!limit.hasExpired()) {
        const QString now = text(dialog, "Label2") + u' ' + text(dialog, "Label3");
        if (seen.isEmpty() || seen.last() != now) {
            seen += now;
        }
        if (enough(now)) {
            return seen;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    ADD_FAILURE() << "stopped at " << qPrintable(seen.last());
    return seen;
}

/// A station whose closing hour comes as soon as the clock is set after it.
void prepareEvening(ShellStation &station) {
    station.tick = 2ms;
    station.installation.setIni("Equipo", "apagar", "S");
    station.installation.setIni("Equipo", "hora", "20:00:00");
    station.clock.set(kEvening);
}

bool waitVisible(const QWidget &widget) {
    return QTest::qWaitFor([&] { return widget.isVisible(); }, 5000);
}

}  // namespace

TEST(CountDown, GoesOnHiddenToItsEnd) {
    TestStation station;
    FRMClose dialog(station.context, {1ms, 1h});
    dialog.begin();
    settle();
    EXPECT_TRUE(dialog.isModal());
    EXPECT_TRUE(child<QLabel>(&dialog, "Image1")->isVisible());
    EXPECT_FALSE(child<QLabel>(&dialog, "Image2")->isVisible());
    EXPECT_EQ(text(dialog, "Label1"), "Este equipo esta configurado para apagar KALDO en: ");
    QStringList seen = watch(dialog, [](const QString &now) { return now.startsWith("00:02:2"); });
    press(Qt::Key_Return);  // the focus is on the button
    EXPECT_FALSE(dialog.isVisible());
    seen += watch(dialog, [](const QString &now) { return now == " "; });
    EXPECT_TRUE(seen.contains("00:01:00 Min."));
    EXPECT_TRUE(seen.contains("00:00:59 Seg."));
    EXPECT_TRUE(seen.contains("00:00:01 Seg."));
    EXPECT_FALSE(seen.contains("00:00:59 Min."));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(text(dialog, "Label1"), QStringLiteral("Cerrando KALDO automáticamente..."));
    EXPECT_FALSE(child<QLabel>(&dialog, "Image1")->isVisible());
    settle();
    picture(&dialog, "close_farewell");
    // Nobody puts it away now, nor begins anew.
    press(Qt::Key_Escape);
    dialog.close();
    dialog.begin();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(text(dialog, "Label2"), "");
}

TEST(CountDown, ClosingTheWindowStopsIt) {
    TestStation station;
    FRMClose dialog(station.context, {1ms, 0ms});
    dialog.begin();
    watch(dialog, [](const QString &now) { return now.startsWith("00:02:5"); });
    dialog.close();
    EXPECT_FALSE(dialog.isVisible());
    const QString stopped = text(dialog, "Label2");
    QTest::qWait(30);
    EXPECT_EQ(text(dialog, "Label2"), stopped);
    dialog.begin();
    EXPECT_EQ(text(dialog, "Label2") + text(dialog, "Label3"), "00:03:00Min.");
    EXPECT_TRUE(dialog.isVisible());
    dialog.close();
}

TEST(CountDown, ComesOverTheLoginAndLetsItGoOn) {
    ShellStation station;
    prepareEvening(station);
    station.atLogin([&] {
        typeText("cajero1");
        station.clock.set(kEvening.addSecs(4));
        auto *dialog = child<FRMClose>(&station.window(), "FRMClose");
        ASSERT_TRUE(waitVisible(*dialog));
        settle();
        EXPECT_EQ(station.panel(6), "   20:00:02") << "the clock goes on under it";
        picture(dialog, "close");
        checkAccessibility(*dialog);
        press(Qt::Key_Escape);
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(child<QLineEdit>(&station.login(), "Edit1")->text(), "cajero1");
        press(Qt::Key_Return);
        typeText("caja1");
        press(Qt::Key_Return);
    });
    EXPECT_FALSE(station.stillOpen);
    EXPECT_EQ(station.session().Usuario.text(), "cajero1");
}

TEST(CountDownDeathTest, EndsTheApplicationWithoutAsking) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto body = [] {
        ShellStation station;
        prepareEvening(station);
        station.countDown = {1ms, 20ms};
        if (!station.start()) {
            std::exit(2);
        }
        // The login is open in a loop of its own when the hour comes.
        QTimer::singleShot(200ms, [&] { station.clock.set(kEvening.addSecs(4)); });
        QTimer::singleShot(20s, [] { std::exit(3); });
        const int code = QCoreApplication::exec();
        const bool ended = Application::current()->ending() && station.login().isVisible();
        station.messages.verify();
        std::exit(ended && code == 0 && !::testing::Test::HasFailure() ? 0 : 1);
    };
    EXPECT_EXIT(body(), ::testing::ExitedWithCode(0), "");
}

TEST(AboutBox, ShowsTheVersionAndClosesByKeys) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    auto *dialog = child<FRMVersion>(&station.window(), "FRMVersion");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        station.inDialog(
            *dialog, [&] { QTest::keyClick(&station.window(), Qt::Key_F12); },
            [&] {
                EXPECT_EQ(child<QLabel>(dialog, "Label1")->text(),
                          QStringLiteral("Versión  ") + kVersion);
                EXPECT_FALSE(child<QLabel>(dialog, "Image1")->pixmap().isNull());
                picture(dialog, "version");
                checkAccessibility(*dialog);
                press(key);
            });
        EXPECT_FALSE(station.stillOpen);
    }
}

}  // namespace kaldo::test
