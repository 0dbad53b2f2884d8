#include <QDir>
#include <QRegularExpression>

#include "app/screen.h"
#include "shell/help_window.h"
#include "shell/menu_entries.h"
#include "tests/shell/shell_station.h"

using namespace Qt::StringLiterals;

namespace kaldo::test {

namespace {

QString textOf(const QString &file) {
    QFile page(u":/manual/"_s + file);
    return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

QStringList pages() {
    return QDir(u":/manual"_s).entryList({u"*.html"_s});
}

/// What the pages name by an attribute: links by href, pictures by src.
QStringList named(const QString &page, const QString &attribute) {
    static const QString pattern = u"%1=\"([^\"]*)\""_s;
    QStringList values;
    const QString text = textOf(page);
    auto found = QRegularExpression(pattern.arg(attribute)).globalMatch(text);
    while (found.hasNext()) {
        values += found.next().captured(1);
    }
    return values;
}

/// Small dialogs are told of on the page of the screen that opens them.
const QMap<QString, QString> &hosts() {
    static const QMap<QString, QString> hosts = {{u"FRMAlumnos"_s, u"FRM401"_s},
                                                 {u"FRMPass"_s, u"FRMAcceso"_s},
                                                 {u"FRMVersion"_s, u"FRM000"_s},
                                                 {u"FRMClose"_s, u"FRM000"_s}};
    return hosts;
}

/// Without those that end the program or show a chooser of the platform.
QStringList entriesWithScreens() {
    QStringList entries;
    for (const MenuHeading &heading : menuHeadings()) {
        for (const MenuEntry &entry : heading.entries) {
            const QString name = QString::fromLatin1(entry.name);
            if (!name.isEmpty() && kindOf(name) == EntryKind::Screen &&
                !QStringList{u"A1"_s, u"A2"_s, u"A4"_s, u"K1"_s, u"K2"_s}.contains(name)) {
                entries += name;
            }
        }
    }
    return entries;
}

/// Entries whose screen isn't there yet say so; nobody has logged in, which some screens tell.
class Silence final : public Messages {
protected:
    Answer show(const Message &) override { return Answer::No; }
};

}  // namespace

TEST(Manual, LinksAndPicturesLeadSomewhere) {
    QSet<QString> used;
    for (const QString &page : pages()) {
        for (const QString &link : named(page, u"href"_s)) {
            EXPECT_FALSE(textOf(link).isEmpty())
                << qPrintable(page) << " names " << qPrintable(link);
        }
        for (const QString &picture : named(page, u"src"_s)) {
            used += picture.section(u'/', -1);
            const QImage image(u":/manual/"_s + picture);
            EXPECT_FALSE(image.isNull()) << qPrintable(page) << " shows " << qPrintable(picture);
        }
        EXPECT_TRUE(page == u"index.html"_s || named(u"index.html"_s, u"href"_s).contains(page))
            << qPrintable(page) << " is not in the index";
    }
    for (const QString &picture : QDir(u":/manual/pictures"_s).entryList({u"*.png"_s})) {
        EXPECT_TRUE(used.contains(picture)) << qPrintable(picture) << " is shown nowhere";
    }
}

TEST(Manual, OpensOverADialogAndGoesWithIt) {
    ShellStation station;
    station.logIn(u"cajero1"_s, u"caja1"_s);
    station.inDialog(
        station.login(), [&] { station.window().openEntry(u"J1"_s); },
        [&] {
            press(Qt::Key_F1);
            auto *help = station.login().findChild<HelpWindow *>();
            ASSERT_NE(help, nullptr);
            EXPECT_EQ(help->page(), u"frmacceso.html"_s);
            EXPECT_EQ(QApplication::activeWindow(), help);
            press(Qt::Key_Escape);
            EXPECT_TRUE(station.login().isVisible());
            press(Qt::Key_F1);
            station.login().reject();
            EXPECT_FALSE(help->isVisible());
        });
}

TEST(Manual, EveryScreenHasItsPage) {
    const TestInstallation installation;
    Silence silence;
    ProgramSettings settings;
    settings.root = installation.root();
    settings.messages = &silence;
    settings.splash = std::chrono::hours(1);
    Program program(settings);
    ASSERT_TRUE(program.start());

    QSet<QString> screens{u"FRM000"_s};
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            dialog->reject();
        }
    });
    closer.start(20);
    for (const QString &entry : entriesWithScreens()) {
        runGuarded([&] { program.mainWindow().runEntry(entry); });
        settle();
        for (QWidget *widget : QApplication::allWidgets()) {
            if (dynamic_cast<ScreenBase *>(widget) != nullptr) {
                screens += hosts().value(widget->objectName(), widget->objectName());
            }
        }
    }
    EXPECT_GE(screens.size(), 24);
    for (const QString &screen : std::as_const(screens)) {
        EXPECT_TRUE(HelpWindow::hasPage(screen)) << qPrintable(screen);
    }
}

}  // namespace kaldo::test
