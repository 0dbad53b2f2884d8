#include "tests/shell/shell_station.h"
#include "tests/support/seams.h"

#include "shell/frm_inicio_splash.h"
#include "shell/main_skin.h"
#include "shell/version.h"
#include "toolkit/core/log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QTableView>

namespace kaldo::test {

namespace {

const QString kNoService =
    QStringLiteral("Error en conexión, algún servicio no está disponible, inténtelo más tarde.*");
const QString kNoDate = QStringLiteral("'31/09/2024' no es una fecha válida.");

void registerPath(const TestInstallation &installation, const QString &base, const QString &path) {
    FirebirdConnection local(QStringLiteral("FBLocal"), {});
    local.setDatabase(installation.database("BD_LOCAL.GDB"));
    run(local, "update firebird set ruta=:ruta where base=:base", {{"ruta", path}, {"base", base}});
}

void overwrite(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

QString logPath(const TestInstallation &installation) {
    return installation.root() + "/Log/kaldo.log";
}

QString readLog(const TestInstallation &installation) {
    QFile file(logPath(installation));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QColor selectedRow() {
    QTableView table;
    table.ensurePolished();
    return table.palette().color(QPalette::Highlight);
}

}  // namespace

TEST(Start, WithoutItsDatabasesTheRunEnds) {
    struct Case {
        const char *what;
        std::function<void(const TestInstallation &)> spoil;
        QString told;
    };
    const QString missing = QStringLiteral("el archivo no existe");
    const QString damaged = QStringLiteral("está dañado o no es una base de datos");
    const QList<Case> cases = {
        {"local missing",
         [](const TestInstallation &at) { QFile::remove(at.database("BD_LOCAL.GDB")); },
         QStringLiteral("de la estación (%1/DataBase/BD_LOCAL.GDB): ") + missing},
        {"local damaged",
         [](const TestInstallation &at) {
             overwrite(at.database("BD_LOCAL.GDB"), QByteArray(20000, 'x'));
         },
         damaged},
        {"clinic missing",
         [](const TestInstallation &at) { QFile::remove(at.database("BD_ODONTOLOGIA.GDB")); },
         QStringLiteral("de la clínica (%1/DataBase/BD_ODONTOLOGIA.GDB): ") + missing},
        {"clinic damaged",
         [](const TestInstallation &at) {
             overwrite(at.database("BD_ODONTOLOGIA.GDB"), QByteArray(20000, 'x'));
         },
         damaged},
        {"wrong path",
         [](const TestInstallation &at) {
             registerPath(at, "Odontologia", at.root() + "/DataBase/OTRA.GDB");
         },
         QStringLiteral("(%1/DataBase/OTRA.GDB): ") + missing},
        {"no server",
         [](const TestInstallation &at) {
             registerPath(at, "Odontologia", "127.0.0.1/1:/datos/clinica.gdb");
         },
         QStringLiteral("(127.0.0.1/1:/datos/clinica.gdb): no se puede llegar al servidor "
                        "127.0.0.1/1.")},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.what);
        ShellStation station;
        one.spoil(station.installation);
        station.messages.expectError(kNoService);
        const FileLog log(logPath(station.installation));
        EXPECT_FALSE(station.start());
        EXPECT_FALSE(station.window().isVisible());
        const QString told =
            one.told.contains("%1") ? one.told.arg(station.installation.root()) : one.told;
        EXPECT_TRUE(station.messages.shown().value(0).contains(told))
            << qPrintable(station.messages.shown().value(0));
        EXPECT_TRUE(readLog(station.installation).contains(told))
            << qPrintable(readLog(station.installation));
    }
}

TEST(Start, EndsSilentlyWhereNothingNamesTheClinic) {
    const QList<std::function<void(const TestInstallation &)>> cases = {
        [](const TestInstallation &at) {
            FirebirdConnection local(QStringLiteral("FBLocal"), {});
            local.setDatabase(at.database("BD_LOCAL.GDB"));
            run(local, "delete from firebird");
        },
        [](const TestInstallation &at) {
            FirebirdConnection local(QStringLiteral("FBLocal"), {});
            local.setDatabase(at.database("BD_LOCAL.GDB"));
            run(local, "update firebird set base='odontologia' where base='Odontologia'");
        },
        [](const TestInstallation &at) { at.setIni("SQL", "cliente", ""); },
        [](const TestInstallation &at) { QFile::remove(at.iniPath()); },
        [](const TestInstallation &at) {
            QFile::remove(at.iniPath());
            QDir().mkpath(at.iniPath());  // nothing that can be read
        },
        [](const TestInstallation &at) { overwrite(at.iniPath(), QByteArray(3000, '\0')); },
    };
    for (const auto &spoil : cases) {
        SCOPED_TRACE(&spoil - cases.data());
        ShellStation station;
        spoil(station.installation);
        const FileLog log(logPath(station.installation));
        EXPECT_FALSE(station.start());
        const QString told = readLog(station.installation);
        EXPECT_TRUE(told.contains("kaldo.start: "));
        EXPECT_EQ(told.contains("archivo de configuración " + station.installation.iniPath()),
                  QStringList({"3", "4"}).contains(QString::number(&spoil - cases.data())))
            << qPrintable(told);
    }
}

TEST(Start, FinanceAloneIsMissed) {
    ShellStation station;
    registerPath(station.installation, "Finanzas", station.installation.root() + "/nada.gdb");
    station.messages.expectError(kNoService);
    EXPECT_TRUE(station.start());
    EXPECT_TRUE(station.program->conexion().FBOdonto.isOpen());
}

TEST(Start, IniFileInLatin1AndWithLongValues) {
    ShellStation station;
    QFile file(station.installation.iniPath());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QString text = QString::fromUtf8(file.readAll());
    file.close();
    text.replace(QLatin1String("ciudad=Valle Norte\nestado=2"),
                 QString::fromUtf8("ciudad=Cañón de la Peña Grande y Chica\nestado=2"));
    overwrite(station.installation.iniPath(), text.toLatin1());
    ASSERT_TRUE(station.start());
    EXPECT_EQ(station.session().Ciudad.text(), QString::fromUtf8("Cañón de la Peña Gra"));
    EXPECT_EQ(station.session().ClienteNombre, "Universidad del Litoral");
    EXPECT_EQ(station.session().AnioActual, 2024);
}

TEST(Start, OptionThatIsNoNumberIsToldAndTheRunGoesOn) {
    ShellStation station;
    station.installation.setIni("Admisiones", "dias", "muchos");
    station.messages.expectError("*");
    EXPECT_TRUE(station.start());
    EXPECT_EQ(station.program->context().options.Facultad, "Facultad de Odontología")
        << "what stands before it has been read";
}

TEST(Start, SplashStandsUntilTheLoginComes) {
    ShellStation station;
    station.splash = std::chrono::milliseconds(50);
    ASSERT_TRUE(station.start());
    ASSERT_NE(station.program->splash(), nullptr);
    EXPECT_TRUE(station.program->splash()->isVisible());
    EXPECT_EQ(IniFile(station.installation.iniPath()).value("Alert", "version"), "1.0.0.0");
    station.inDialog(
        station.login(), [&] { station.window().action("J1")->trigger(); },
        [&] {
            EXPECT_EQ(station.program->splash(), nullptr) << "its key opens none below it";
            EXPECT_TRUE(child<QWidget>(&station.login(), "CheckBox1")->isVisible())
                << "it is that of the start";
        });
}

TEST(Start, IniFileThatCannotBeWrittenIsToldWhenTheSplashHasGone) {
    ShellStation station;
    const QString folder = station.installation.root() + "/Ini";
    // Takes the file's folder away once the main window has read it.
    TestSeam seam(Moment::AfterExecution, atCall(1), [folder](const Execution &) {
        QDir(folder).removeRecursively();
        overwrite(folder, "x");
    });
    station.seam = &seam;
    station.splash = std::chrono::milliseconds(100);
    ASSERT_TRUE(station.start());
    settle();
    EXPECT_TRUE(station.messages.shown().isEmpty());
    EXPECT_TRUE(station.program->splash()->isVisible());
    station.messages.expectError("No se pudo escribir el archivo de configuración*");
    station.inDialog(
        station.login(), [] {}, [&] { station.typeUser("cajero1", "caja1"); });
    EXPECT_FALSE(station.stillOpen);
}

TEST(Start, VersionIsThatOfTheBuild) {
    QFile file(QStringLiteral(KALDO_SOURCE_DIR "/CMakeLists.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString version = QString::fromLatin1(kVersion).section('.', 0, 2);
    EXPECT_TRUE(file.readAll().contains(("project(kaldo VERSION " + version + ' ').toLatin1()));
}

TEST(Start, ConsultationStationOpensTheDossiersWithoutLogin) {
    ShellStation station;
    station.installation.setIni("Equipo", "consulta", "S");
    station.installation.setIni("Equipo", "usuario", "consulta");
    station.installation.setIni("Equipo", "pass", "x");
    station.messages.expectInformation(QStringLiteral(
        "La pantalla «Consultar Expediente» todavía no está disponible en esta versión."));
    ASSERT_TRUE(station.start());
    for (int turn = 0; turn < 20 && station.messages.shown().isEmpty(); ++turn) {
        settle();
    }
    EXPECT_FALSE(station.login().isVisible());
    EXPECT_TRUE(station.window().isEnabled());
    EXPECT_TRUE(station.session().ModoEstadoExpediente);
    EXPECT_FALSE(station.enabled("F1"));
    EXPECT_FALSE(station.enabled("E1"));
    EXPECT_TRUE(station.enabled("A4"));
    EXPECT_TRUE(station.enabled("J1"));
    // A login that nobody completes leaves the station as it was.
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); }, [] { press(Qt::Key_Escape); });
    EXPECT_FALSE(station.stillOpen);
    EXPECT_TRUE(station.window().isEnabled());
    EXPECT_FALSE(station.window().sessionStarted());
}

TEST(Start, ConsultationStationWithoutItsUserAsksForTheLogin) {
    for (const char *value : {"S", ""}) {
        ShellStation station;
        station.installation.setIni("Equipo", "consulta", value);
        station.atLogin([&] { EXPECT_FALSE(station.window().isEnabled()); });
        EXPECT_TRUE(station.stillOpen);
    }
}

TEST(Start, UnattendedLoginNeedsNoScreen) {
    ShellStation station;
    station.installation.setIni("Equipo", "consulta", "S");
    station.installation.setIni("Usuario", "user1", "clinica");
    station.installation.setIni("Usuario", "pass", "cli");
    ASSERT_TRUE(station.start());
    EXPECT_TRUE(station.window().sessionStarted());
    EXPECT_EQ(station.session().Usuario.text(), "clinica");
    for (int turn = 0; turn < 20; ++turn) {
        settle();
    }
    EXPECT_EQ(station.program->splash(), nullptr);
    EXPECT_FALSE(station.login().isVisible()) << "a session stands";
    EXPECT_TRUE(station.window().isEnabled());
}

TEST(Start, UnattendedLoginThatFailsTellsItInTheRunLoop) {
    ShellStation station;
    station.installation.setIni("Equipo", "consulta", "S");
    station.installation.setIni("Usuario", "user1", "clinica");
    station.installation.setIni("Usuario", "pass", "otra");
    station.splash = std::chrono::milliseconds(100);
    ASSERT_TRUE(station.start());
    settle();
    EXPECT_TRUE(station.messages.shown().isEmpty()) << "the splash would cover the box";
    EXPECT_NE(station.program->splash(), nullptr);
    station.messages.expectWarning(
        QStringLiteral("La contraseña es incorrecta, vuelva a intentar."));
    station.inDialog(
        station.login(), [] {},
        [&] { EXPECT_EQ(station.messages.shown().size(), 1) << "before the login comes"; });
    EXPECT_FALSE(station.window().sessionStarted());
}

TEST(Skin, PictureByTheDateOfTheYearThatStandsInTheText) {
    const ColourScheme &blue = *schemeNamed("KaldoBlue");
    EXPECT_EQ(pictureOf(blue, QDate(2024, 8, 31)), "kaldoblu.png");
    EXPECT_EQ(pictureOf(blue, QDate(2023, 12, 24)), "kaldoblu.png");
    for (const QDate &day : {QDate(2024, 9, 1), QDate(2024, 12, 5), QDate(2026, 1, 1)}) {
        EXPECT_THROW(pictureOf(blue, day), std::invalid_argument) << qPrintable(day.toString());
    }
    EXPECT_EQ(blue.kaldoColor, QColor(0x00, 0x78, 0xd7));
    EXPECT_EQ(blue.kaldoSelect, QColor(0xa0, 0xcf, 0xfe));
    EXPECT_EQ(schemeNamed("KaldoGreen")->decemberPicture, "kaldogre_dic.png");
    EXPECT_EQ(schemeNamed("KaldoBlack")->decemberPicture, "kaldodic.png");
    EXPECT_EQ(schemeNamed("Windows"), nullptr);
}

TEST(Skin, SchemeFailsAtTheStartAndTheLoginGoesOn) {
    ShellStation station;
    station.installation.setIni("Sistema", "skinname", "KaldoGreen");
    station.clock.set(QDateTime(QDate(2025, 2, 3), QTime(8, 0)));
    station.messages.expectError(kNoDate);  // at the creation of the main window
    ASSERT_TRUE(station.start());
    EXPECT_EQ(station.session().AnioActual, 0) << "the rest of the creation stays undone";
    station.messages.expectError(kNoDate);  // at the login
    station.inDialog(
        station.login(), [] {}, [&] { station.typeUser("cajero1", "caja1"); });
    EXPECT_FALSE(station.stillOpen);
    EXPECT_TRUE(station.window().sessionStarted());
    EXPECT_EQ(station.session().AnioActual, 2025);
    EXPECT_EQ(station.session().SkinName.text(), "KaldoGreen");
}

TEST(Skin, SchemeBeforeItsDatesWorks) {
    ShellStation station;
    station.installation.setIni("Sistema", "skinname", "KaldoGreen");
    station.logIn("cajero1", "caja1");
    EXPECT_FALSE(station.stillOpen);
    EXPECT_EQ(station.session().AnioActual, 2024);
    EXPECT_EQ(selectedRow(), schemeNamed("KaldoGreen")->kaldoSelect);
    station.program.reset();
    station.installation.setIni("Sistema", "skinname", "Windows");
    station.logIn("cajero1", "caja1");
    EXPECT_EQ(selectedRow(), baseAccent());
}

}  // namespace kaldo::test
