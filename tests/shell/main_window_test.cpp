#include "shell/help_window.h"
#include "tests/shell/shell_station.h"

#include "shell/menu_entries.h"
#include "shell/side_bar.h"
#include "tests/support/accessibility.h"
#include "toolkit/forms/line_field.h"

#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QSignalSpy>

namespace kaldo::test {

namespace {

/// A child screen that remembers what was asked of it.
class PlainScreen : public Screen {
public:
    PlainScreen(Context &context, const QString &name, bool printer = false)
        : Screen(context, name, "Prueba"), printer_(printer) {
        setFixedSize(400, 200);
        auto *field = new TextField(this);
        field->setObjectName("field");
        setFocusProxy(field);
    }
    void activated() override { log += "activated"; }
    bool previewReport() override {
        log += "preview";
        return true;
    }
    bool keepsPrinter() const override { return printer_; }

    QStringList log;

protected:
    void formCreate() override {
        log += "created";
        if (objectName() == "FRM999") {
            throw std::runtime_error("a medias");
        }
    }

private:
    bool printer_;
};

void setPlain(ShellStation &station, const QString &entry, const QString &name,
              bool printer = false) {
    station.window().setScreen(entry, [&station, name, printer] {
        return std::make_unique<PlainScreen>(station.program->context(), name, printer);
    });
}

/// Closed windows go when the event loop turns.
void letGo() {
    settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

PlainScreen *plain(ShellStation &station) {
    return dynamic_cast<PlainScreen *>(station.window().childScreen());
}

}  // namespace

TEST(MainWindow, MenuHasItsHeadingsAndEntries) {
    ShellStation station;
    station.logIn("admin", "admin");
    QStringList headings;
    for (const QAction *heading : station.window().menuBar()->actions()) {
        EXPECT_EQ(heading->isEnabled(), !heading->text().contains("macén"));
        headings += heading->text().remove(u'&');
    }
    EXPECT_EQ(headings.join(u'|'),
              "Archivo|Mantenimiento|Recepción|Admisión|Caja|Control de Expedientes|Almacén|"
              "Reportes|Administración|Funciones Especiales|Ayuda");
    EXPECT_EQ(station.window().action("H2a")->text(), "Igresos por Area de Servicio");
    EXPECT_EQ(station.window().action("K3")->text(), "Acerca de...");
    EXPECT_EQ(station.window().action("AjustesCorte1")->text(), "Ajustes a Corte");
    EXPECT_FALSE(station.window().action("AjustesCorte1")->isEnabled());
    QSet<QString> names;
    for (const MenuHeading &heading : menuHeadings()) {
        for (const MenuEntry &entry : heading.entries) {
            const QString name = QString::fromLatin1(entry.name);
            EXPECT_TRUE(name.isEmpty() || !names.contains(name)) << entry.name;
            names.insert(name);
        }
    }
    for (const ToolEntry &tool : toolEntries()) {
        EXPECT_TRUE(names.contains(QString::fromLatin1(tool.entry))) << tool.caption;
    }
}

TEST(MainWindow, OneChildAtATimeAndAFreshOneEachTime) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    setPlain(station, "E1", "FRM998");
    setPlain(station, "E6", "FRM997");
    station.window().openEntry("E1");
    settle();
    QPointer<PlainScreen> first = plain(station);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->log.join(' '), "created activated");
    const QRect frame = first->parentWidget()->geometry();
    const QSize area = child<QMdiArea>(&station.window(), "backdrop")->viewport()->size();
    EXPECT_EQ(frame.left(), (area.width() - frame.width()) / 2);
    EXPECT_EQ(frame.top(), qMax(0, (area.height() - frame.height()) / 2 - 80));
    station.window().openEntry("E1");
    EXPECT_FALSE(first) << "the former screen is gone before the new one is made";
    EXPECT_EQ(plain(station)->log.join(' '), "created activated");
    station.window().openEntry("E6");
    settle();
    EXPECT_EQ(station.window().childScreen()->objectName(), "FRM997");
    emit plain(station)->closeRequested();
    EXPECT_EQ(station.window().childScreen(), nullptr);
    letGo();
    EXPECT_EQ(station.window().findChildren<QMdiSubWindow *>().size(), 0);
}

TEST(MainWindow, EscapeClosesAScreenAndAsksBeforeTypedWorkIsLost) {
    ShellStation station;
    station.logIn("admin", "admin");
    station.window().openEntry("B8");
    settle();
    press(Qt::Key_I, Qt::AltModifier);
    press(Qt::Key_Escape);
    ASSERT_NE(station.window().childScreen(), nullptr) << "the first one gives the row back";
    press(Qt::Key_Escape);
    EXPECT_EQ(station.window().childScreen(), nullptr);

    setPlain(station, "E1", "FRM998");
    station.window().openEntry("E1");
    settle();
    typeText("Pérez");
    station.messages.expectConfirmation("*", Answer::No);
    press(Qt::Key_Escape);
    EXPECT_NE(plain(station), nullptr);
    child<TextField>(plain(station), "field")->setText("Pérez");
    press(Qt::Key_Escape);
    EXPECT_EQ(plain(station), nullptr) << "what the program shows is no typed work";
}

TEST(MainWindow, ScreenThatFailsHalfWayStaysOpen) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    setPlain(station, "E1", "FRM999");
    station.messages.expectError("a medias");
    station.window().openEntry("E1");
    settle();
    ASSERT_NE(plain(station), nullptr);
    EXPECT_EQ(plain(station)->log.join(' '), "created activated");
}

TEST(MainWindow, SecondOwnerOfAKeyGetsItWhenTheFirstIsDisabled) {
    ShellStation station;
    station.logIn("admin", "admin");
    // Both may: the first in the menu has it.
    EXPECT_EQ(station.window().action("B6")->shortcut(), QKeySequence("Ctrl+E"));
    EXPECT_TRUE(station.window().action("D1")->shortcut().isEmpty());
    station.window().setEntryEnabled("B6", false);
    EXPECT_EQ(station.window().action("D1")->shortcut(), QKeySequence("Ctrl+E"));
    // The cashier has no catalogues.
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] { station.typeUser("cajero1", "caja1"); });
    EXPECT_EQ(station.window().action("E1")->shortcut(), QKeySequence("Ctrl+G"));
    setPlain(station, "E1", "FRM998");
    showActive(&station.window());
    QTest::keyClick(&station.window(), Qt::Key_G, Qt::ControlModifier);
    settle();
    ASSERT_NE(plain(station), nullptr);
    EXPECT_EQ(plain(station)->objectName(), "FRM998");
}

TEST(MainWindow, TextFieldKeepsItsOwnKeys) {
    ShellStation station;
    station.logIn("admin", "admin");
    setPlain(station, "E1", "FRM998");
    station.window().openEntry("E1");
    showActive(&station.window());
    auto *field = child<QLineEdit>(plain(station), "field");
    field->setText("texto");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    settle();
    EXPECT_EQ(field->selectedText(), "texto");
    EXPECT_NE(plain(station), nullptr) << "Ctrl+A is also \"Centros de atención\"";
}

TEST(MainWindow, EntriesSayWhatIsNotBuiltAndDoNothingWhereNothingIsTold) {
    ShellStation station;
    station.logIn("admin", "admin");
    station.messages.expectInformation(QStringLiteral(
        "La pantalla «Registro de Admisión» todavía no está disponible en esta versión."));
    station.window().openEntry("D1");
    station.window().openEntry("J3");
    station.window().openEntry("H2a");
    station.window().openEntry("C1");  // disabled for this profile
    station.messages.expectError(QStringLiteral("La pantalla de abonos no está abierta."));
    station.window().openEntry("E7");
    settle();
}

TEST(MainWindow, HelpOpensAtThePageOfTheOpenScreen) {
    ShellStation station;
    station.logIn("admin", "admin");
    press(Qt::Key_F1);
    auto *help = child<HelpWindow>(&station.window(), "Ayuda");
    EXPECT_EQ(help->page(), "frm000.html");
    press(Qt::Key_Escape);
    EXPECT_FALSE(help->isVisible());
    station.window().openEntry("B1");
    settle();
    press(Qt::Key_F1);
    EXPECT_EQ(help->page(), HelpWindow::hasPage("FRM100") ? "frm100.html" : "index.html");
    picture(help, "help");
}

TEST(MainWindow, HeadingsHaveTheirLettersForThemselves) {
    ShellStation station;
    station.logIn("admin", "admin");
    auto *archive = child<QMenu>(&station.window(), "A0");
    for (int round = 0; round < 2; ++round) {
        press(Qt::Key_A, Qt::AltModifier);
        EXPECT_TRUE(archive->isVisible()) << "a button of the side bar is called \"Actualizar\"";
        QStringList reached;
        for (const Qt::Key letter : {Qt::Key_S, Qt::Key_P, Qt::Key_P}) {
            press(letter);
            reached += archive->activeAction()->objectName();
        }
        EXPECT_EQ(reached.join(' ').toStdString(), "A4 A1 A3") << "by the letters of the entries";
        archive->close();
        settle();
    }
}

TEST(MainWindow, HeadingsOfALoginStandWhereAFreshLayoutPutsThem) {
    for (const char *user : {"admin/admin", "cajero1/caja1", "admision/adm", "clinica/cli"}) {
        ShellStation station;
        const QString login = QString::fromLatin1(user);
        station.logIn(login.section('/', 0, 0), login.section('/', 1));
        QMenuBar *bar = station.window().menuBar();
        const auto places = [bar] {
            QList<QRect> result;
            for (QAction *heading : bar->actions()) {
                result += bar->actionGeometry(heading);
            }
            return result;
        };
        const QList<QRect> atLogin = places();
        bar->resize(bar->width() - 1, bar->height());
        EXPECT_EQ(atLogin, places()) << user;
    }
}

TEST(MainWindow, NoticeTellsTheFileWhereThePathHasNoRoom) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    const QString file = QStringLiteral("Recibo de Pago_20240603-093000_01.pdf");
    const QString notice =
        QStringLiteral("No hay impresora; el documento se guardó en /una/carpeta larga/Recibos/") +
        file;
    const auto *panel = child<QLabel>(&station.window(), "panel2");
    station.window().resize(1024, 768);
    settle();
    station.window().showNotice(notice);
    EXPECT_TRUE(station.panel(2).endsWith(file)) << qPrintable(station.panel(2));
    EXPECT_GE(panel->width(), panel->fontMetrics().horizontalAdvance(panel->text()));
    EXPECT_EQ(panel->toolTip(), notice);
    const auto *greeting = child<QLabel>(&station.window(), "panel1");
    EXPECT_GE(greeting->width(), greeting->fontMetrics().horizontalAdvance(greeting->text()))
        << "shorter, but not cut";
    picture(&station.window(), "notice_1024");
    {
        Progress progress(station.window(), 4);
        progress.advance();
        const auto *bar = child<QProgressBar>(&station.window(), "progressBar");
        EXPECT_GE(bar->parentWidget()->width(), bar->width()) << "the bar has its room";
        picture(&station.window(), "progress_1024");
    }
    station.window().resize(2600, 768);
    settle();
    EXPECT_EQ(station.panel(2), "   " + notice);
    station.inDialog(
        station.login(), [] { press(Qt::Key_F11); }, [&] { station.typeUser("cajero4", "caja4"); });
    EXPECT_EQ(station.panel(2), "") << "the receipt of the cashier before";
}

TEST(MainWindow, SideBarTakesTheWidthOfItsFigures) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    station.window().resize(1024, 768);
    child<SideBar>(&station.window(), "sideBar")->setFigures([](const QString &) {
        return QVariant(1234567.89);
    });
    settle();
    for (const char *column : {"pesos", "dolares"}) {
        const auto *figure =
            child<QLabel>(&station.window(), QStringLiteral("figure_") + QLatin1String(column));
        EXPECT_GE(figure->width(), figure->sizeHint().width()) << column;
    }
    picture(&station.window(), "figures_1024");
}

TEST(MainWindow, LongNamesDoNotWidenTheWindow) {
    ShellStation station;
    station.installation.setIni("Usuario", "ciudad", "Ciudad Gómez Morín y M");
    ASSERT_TRUE(station.start());
    const QString name = QString(20, u'M');
    run(station.program->conexion().FBOdonto,
        "update controlusuarios set nombrecorto=:nombre where usuario='cajero1'",
        {{"nombre", name}});
    station.inDialog(
        station.login(), [] {}, [&] { station.typeUser("cajero1", "caja1"); });
    EXPECT_LE(station.window().minimumSizeHint().width(), 1024);
    station.window().resize(1024, 768);
    station.window().showNotice(
        QStringLiteral("El documento se envió a la impresora de la ventanilla"));
    settle();
    EXPECT_EQ(station.panel(0), "   Usuario: " + name) << "whole, though it is shown cut";
    EXPECT_EQ(child<QLabel>(&station.window(), "panel0")->toolTip(), "Usuario: " + name);
    EXPECT_EQ(station.panel(5), "   Ciudad: Ciudad Gómez Morín y");
    for (const char *whole : {"panel2", "panel3"}) {
        const auto *panel = child<QLabel>(&station.window(), QString::fromLatin1(whole));
        EXPECT_GE(panel->width(), panel->fontMetrics().horizontalAdvance(panel->text())) << whole;
    }
    picture(&station.window(), "long_name_1024");
}

TEST(MainWindow, ControlPanelEntryIsMuteForTheDesks) {
    ShellStation station;
    station.logIn("admision", "adm");
    station.window().setEntryEnabled("A3", true);
    station.window().openEntry("A3");
    EXPECT_TRUE(station.messages.shown().isEmpty());
}

TEST(MainWindow, PreviewAsksTheOpenScreenOfTheList) {
    ShellStation station;
    station.logIn("admin", "admin");
    setPlain(station, "B2", "FRM105");
    setPlain(station, "E1", "FRM401");
    station.window().openEntry("B2");
    station.window().openEntry("A1");
    EXPECT_EQ(plain(station)->log.count("preview"), 1);
    station.window().openEntry("E1");
    station.window().openEntry("A1");
    EXPECT_EQ(plain(station)->log.count("preview"), 0);
}

TEST(MainWindow, PrinterIsKeptForScreensThatUseIt) {
    ShellStation station;
    station.logIn("admin", "admin");
    station.printing.chosenPrinter = 3;
    station.window().openEntry("A2");
    EXPECT_EQ(station.session().ImpresoraIndice, -1);
    setPlain(station, "E6", "FRM405", true);
    station.window().openEntry("E6");
    station.window().openEntry("A2");
    EXPECT_EQ(station.session().ImpresoraIndice, 3);
}

TEST(MainWindow, AdmissionFilterMarksOneEntry) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    EXPECT_TRUE(station.window().action("D1a")->isChecked());
    station.window().openEntry("D1c");
    EXPECT_EQ(station.session().FiltroAdmision, AdmissionFilter::LastMonth);
    EXPECT_FALSE(station.window().action("D1a")->isChecked());
    EXPECT_TRUE(station.window().action("D1c")->isChecked());
}

TEST(MainWindow, ProgressHoldsMenuAndClosing) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    auto *bar = child<QProgressBar>(&station.window(), "progressBar");
    {
        Progress progress(station.window(), 4);
        EXPECT_TRUE(bar->isVisible());
        EXPECT_FALSE(station.window().menuBar()->isEnabled());
        QList<int> values;
        for (int at = 0; at < 6; ++at) {
            progress.advance();
            values += bar->value();
        }
        EXPECT_EQ(values, (QList<int>{1, 2, 3, 4, 0, 1})) << "at its end it starts again";
        station.window().close();
        EXPECT_TRUE(station.messages.shown().isEmpty());
        station.messages.expectConfirmation(QStringLiteral("¿Desea salir de KALDO?"), Answer::No);
    }
    EXPECT_FALSE(bar->isVisible());
    EXPECT_TRUE(station.window().menuBar()->isEnabled());
    settle();
    EXPECT_EQ(station.messages.shown().size(), 1) << "what was asked meanwhile happens after";
    EXPECT_TRUE(station.window().isVisible());
}

TEST(MainWindow, ClosingHourIsToldOnce) {
    ShellStation station;
    station.splash = std::chrono::milliseconds(3600000);
    station.tick = std::chrono::milliseconds(5);
    station.installation.setIni("Equipo", "apagar", "S");
    station.installation.setIni("Equipo", "hora", "20:00:00");
    station.clock.set(QDateTime(QDate(2024, 6, 3), QTime(19, 59, 58)));
    ASSERT_TRUE(station.start());
    QSignalSpy hours(&station.window(), &FRM000::closingHour);
    QTest::qWait(40);
    EXPECT_EQ(station.panel(6), "   19:59:58");
    EXPECT_EQ(hours.count(), 0);
    station.clock.set(QDateTime(QDate(2024, 6, 3), QTime(20, 0, 2)));
    QTest::qWait(40);
    EXPECT_EQ(hours.count(), 1);
    EXPECT_TRUE(child<FRMClose>(&station.window(), "FRMClose")->isVisible());
}

TEST(MainWindowDeathTest, YesEndsTheApplication) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto body = [] {
        ShellStation station;
        station.logIn("cajero1", "caja1");
        station.messages.expectConfirmation(QStringLiteral("¿Desea salir de KALDO?"), Answer::Yes);
        station.window().openEntry("A4");
        const bool ended = Application::current()->ending();
        station.messages.verify();
        std::exit(ended && !::testing::Test::HasFailure() ? 0 : 1);
    };
    EXPECT_EXIT(body(), ::testing::ExitedWithCode(0), "");
}

TEST(MainWindow, LoginIsFitForTheKeyboard) {
    ShellStation station;
    station.atLogin([&] { checkAccessibility(station.login()); });
}

}  // namespace kaldo::test
