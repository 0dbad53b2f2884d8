#include "tests/shell/shell_station.h"

#include "shell/backdrop.h"
#include "shell/frm_inicio_splash.h"
#include "shell/main_skin.h"

#include <QDir>
#include <QPushButton>

namespace kaldo::test {

namespace {

/// The colour of the middle of a widget's left edge, as it is painted.
QColor edgeColour(QWidget *widget) {
    const QImage image = widget->grab().toImage();
    return image.pixelColor(2, image.height() / 2);
}

void checkLook(const QString &name, const QString &user, const QString &password,
               const QString &skin, const QString &library, const QColor &accent) {
    SCOPED_TRACE(qPrintable(skin));
    ShellStation station;
    station.tick = std::chrono::milliseconds(20);
    station.installation.setIni("Sistema", "skinname", skin);
    station.installation.setIni("Ambiente", "skin", "C:\\KALDO\\Ini\\" + library);
    ASSERT_TRUE(station.start());
    EXPECT_TRUE(QFileInfo::exists(station.window().splashPicture()));
    picture(station.program->splash(), name + "_splash");
    station.inDialog(
        station.login(), [] {},
        [&] {
            station.window().resize(1024, 768);
            settle();
            picture(&station.login(), name + "_login");
            station.typeUser(user, password);
        });
    EXPECT_FALSE(station.stillOpen);
    auto *backdrop = child<Backdrop>(&station.window(), "backdrop");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !backdrop->stretched().isNull(); }))
        << "it is read in the background";
    picture(&station.window(), name + "_main");
    EXPECT_EQ(backdrop->stretched().size(),
              backdrop->viewport()->size() * backdrop->devicePixelRatioF());
    const QImage corner =
        backdrop->stretched().toImage().copy(backdrop->stretched().width() - 20, 0, 20, 20);
    EXPECT_EQ(corner, [&] {
        QImage flat(corner.size(), corner.format());
        flat.fill(corner.pixelColor(0, 0));
        return flat;
    }()) << "no dots where the picture has one colour";
    auto *group = child<QWidget>(&station.window(), "rateGroup");
    EXPECT_EQ(edgeColour(group->findChild<QLabel *>()), accent);
    station.window().openEntry("E1");
    settle();
    picture(&station.window(), name + "_e1");
    EXPECT_FALSE(child<QWidget>(&station.window(), "sideBar")->isVisible())
        << "at this width it gives way to the note";
    station.window().CerrarVentana();
    settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(child<QWidget>(&station.window(), "sideBar")->isVisible());
}

}  // namespace

TEST(Look, DefaultAndTheThreeSchemes) {
    checkLook("windows_ca", "cajero1", "caja1", "Windows", "skinblue.dll", baseAccent());
    checkLook("blue_am", "admin", "admin", "KaldoBlue", "skinblue.dll", QColor(0, 0x78, 0xd7));
    checkLook("black_am", "admin", "admin", "KaldoBlack", "skinblack.dll",
              QColor(0x58, 0x58, 0x58));
    checkLook("green_am", "admin", "admin", "KaldoGreen", "skingreen.dll",
              QColor(0x49, 0x66, 0x56));
}

TEST(Look, TextsAreReadOnTheirGroundsInAllLooks) {
    for (const char *name : {"Windows", "KaldoBlue", "KaldoBlack", "KaldoGreen"}) {
        SCOPED_TRACE(name);
        const ColourScheme *scheme = schemeNamed(QString::fromLatin1(name));
        applyScheme(scheme);
        for (const char *kind : {static_cast<const char *>(nullptr), "QAbstractItemView"}) {
            const QPalette palette = QApplication::palette(kind);
            for (const auto group : {QPalette::Active, QPalette::Inactive}) {
                const auto reads = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
                    return contrast(palette.color(group, text), palette.color(group, ground));
                };
                EXPECT_GE(reads(QPalette::WindowText, QPalette::Window), 4.5);
                EXPECT_GE(reads(QPalette::Text, QPalette::Base), 4.5);
                EXPECT_GE(reads(QPalette::Text, QPalette::AlternateBase), 4.5);
                EXPECT_GE(reads(QPalette::ButtonText, QPalette::Button), 4.5);
                EXPECT_GE(reads(QPalette::HighlightedText, QPalette::Highlight), 4.5);
                EXPECT_GE(reads(QPalette::Link, QPalette::Window), 4.5);
                EXPECT_EQ(palette.color(group, QPalette::Window).lightness() < 128,
                          scheme != nullptr && scheme->dark);
            }
        }
    }
    applyScheme(nullptr);
}

TEST(Look, MissingPicturesLeaveAQuietGround) {
    ShellStation station;
    station.installation.setIni("Sistema", "skinname", "KaldoBlue");
    QDir(station.installation.root() + "/Images").removeRecursively();
    ASSERT_TRUE(station.start());
    picture(station.program->splash(), "bare_splash");
    station.inDialog(
        station.login(), [] {}, [&] { station.typeUser("clinica", "cli"); });
    EXPECT_FALSE(station.stillOpen);
    picture(&station.window(), "bare_main");
}

TEST(Look, NoticeOfTheStudentsDesk) {
    ShellStation station;
    station.installation.setIni("Sistema", "skinname", "KaldoBlue");
    station.clock.set(QDateTime(QDate(2023, 8, 3), QTime(9, 0)));
    station.logIn("clinica", "cli");
    EXPECT_EQ(child<QPushButton>(&station.window(), "noticeButton")->text(), "Entrar");
    station.window().resize(1024, 768);
    settle();
    picture(&station.window(), "notice");
    station.messages.expectInformation("*");
    child<QPushButton>(&station.window(), "noticeButton")->setFocus();
    press(Qt::Key_Space);
}

}  // namespace kaldo::test
