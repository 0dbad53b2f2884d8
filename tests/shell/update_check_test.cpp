#include "tests/shell/shell_station.h"

#include "shell/update_check.h"
#include "shell/version.h"
#include "tests/support/ftp_server.h"
#include "tests/support/test_station.h"

#include <QElapsedTimer>
#include <QFile>

namespace kaldo::test {

namespace {

using namespace std::chrono_literals;
using Asked = UpdateCheck::Asked;

const QString kOffer =
    QStringLiteral("Se encuentra una versión actualizada de KALDO, iniciará la descarga ");
const QString kAgain = QStringLiteral(
    "KALDO se encuentra actualizado con la última versión1.0.0.0 ¿Desea descargarla nuevamente? ");

QByteArray versionFile(const QByteArray &version) {
    return "; publicada hoy\r\n[KALDO]\r\nversion=" + version + "\r\n";
}

void writeFile(const QString &path, const QByteArray &bytes) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray readFile(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// An installation that knows its server, with an updater that only leaves a trace.
void installUpdates(const TestInstallation &installation, const QByteArray &host = "127.0.0.1") {
    writeFile(installation.root() + "/Ini/actualizacion.txt",
              "\xEF\xBB\xBF" + host + " \r\n" + FtpTestServer::user().toUtf8() + "\r\n" +
                  FtpTestServer::password().toUtf8() + "\r\n/kaldo/\r\n");
    const QString updater = installation.root() + "/Update/Update.exe";
    writeFile(updater, "#!/bin/sh\necho iniciado > traza\n");
    QFile::setPermissions(updater, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

struct UpdateStation : TestStation {
    UpdateStation() { installUpdates(*installation); }

    UpdateCheck check(quint16 port) {
        return UpdateCheck(context, {port, 500ms, [this](const QString &program) {
                                         started += program;
                                         return launches;
                                     }});
    }
    QString stored() { return valueOf(clinic(), "select sistema_ver from control").toString(); }
    QString path(const char *below) const { return installation->root() + below; }
    const QString localFile = path("/Ini/kaldoversion.ini");
    const QString updater = path("/Update/Update.exe");

    QStringList started;
    bool launches = true;
};

FtpTestServer publishing(const QByteArray &version, FtpFault fault = FtpFault::None) {
    return FtpTestServer(QStringLiteral("kaldo"), QStringLiteral("kaldoversion.ini"),
                         versionFile(version), fault);
}

}  // namespace

TEST(UpdateCheck, NewVersionIsKeptAndHandedToTheUpdater) {
    UpdateStation station;
    const FtpTestServer server = publishing("2.10.3.4567-beta 9");
    writeFile(station.localFile, versionFile("1.0.0.0"));
    UpdateCheck check = station.check(server.port());
    station.messages.expectInformation(kOffer + "2.10.3.4567-bet");
    EXPECT_TRUE(check.run(Asked::AtLogin));
    EXPECT_EQ(station.stored(), "2.10.3.4567-bet");
    EXPECT_EQ(readFile(station.localFile), versionFile("2.10.3.4567-beta 9"));
    EXPECT_EQ(station.started, QStringList(station.updater));
}

TEST(UpdateCheck, SameVersionIsToldInTheMenuAlone) {
    UpdateStation station;
    const FtpTestServer server = publishing(kVersion);
    run(station.clinic(), "update control set sistema_ver='0.9.0.0'");
    UpdateCheck check = station.check(server.port());
    EXPECT_FALSE(check.run(Asked::AtLogin));
    EXPECT_EQ(station.stored(), kVersion);
    for (const Answer answer : {Answer::No, Answer::Ended}) {
        station.messages.expectConfirmation(kAgain, answer);
        EXPECT_FALSE(check.run(Asked::FromMenu));
        EXPECT_TRUE(station.started.isEmpty());
    }
    station.messages.expectConfirmation(kAgain, Answer::Yes);
    EXPECT_TRUE(check.run(Asked::FromMenu));
    EXPECT_EQ(station.started, QStringList(station.updater));
}

TEST(UpdateCheck, FailureIsPassedOverAndTheStoredVersionDecides) {
    UpdateStation station;
    writeFile(station.localFile, versionFile("1.0.0.0"));
    for (const FtpFault fault : {FtpFault::RefusesLogin, FtpFault::HalfFile, FtpFault::BreaksOff,
                                 FtpFault::Stalls, FtpFault::Silent}) {
        SCOPED_TRACE(static_cast<int>(fault));
        const FtpTestServer server = publishing("2.0.0.0", fault);
        QElapsedTimer time;
        time.start();
        EXPECT_FALSE(station.check(server.port()).run(Asked::AtLogin));
        EXPECT_LT(time.elapsed(), 2500);
        EXPECT_EQ(server.calls(), 1);
        EXPECT_EQ(station.stored(), "1.0.0.0");
        EXPECT_EQ(readFile(station.localFile), versionFile("1.0.0.0"));
    }
    // Another station has found a new version meanwhile; this one reaches nobody.
    const quint16 nobody = publishing("3.0.0.0").port();
    run(station.clinic(), "update control set sistema_ver='2.0.0.0'");
    station.messages.expectInformation(kOffer + "2.0.0.0");
    EXPECT_TRUE(station.check(nobody).run(Asked::AtLogin));
    EXPECT_EQ(station.started.size(), 1);
}

TEST(UpdateCheck, FilesThatTellNothingChangeNothing) {
    UpdateStation station;
    const FtpTestServer nameless(QStringLiteral("kaldo"), QStringLiteral("kaldoversion.ini"),
                                 "[OTRO]\r\nversion=2.0.0.0\r\n");
    EXPECT_FALSE(station.check(nameless.port()).ConectarFTP());
    EXPECT_EQ(station.stored(), "1.0.0.0");

    const FtpTestServer server = publishing("2.0.0.0");
    UpdateCheck check = station.check(server.port());
    for (const QByteArray &data : {QByteArray(), QByteArray("\r\n"), QByteArray("no hay/tal\n"),
                                   QByteArray("127.0.0.1\nkaldo"), QByteArray(5000, '\xff')}) {
        writeFile(station.path("/Ini/actualizacion.txt"), data);
        EXPECT_FALSE(check.ConectarFTP());
    }
    QFile::remove(station.path("/Ini/actualizacion.txt"));
    EXPECT_FALSE(check.ConectarFTP());
    EXPECT_EQ(station.stored(), "1.0.0.0");

    // What the database refuses leaves nothing pending in the query that others use, too.
    installUpdates(*station.installation);
    run(station.clinic(),
        "create trigger sin_cambios for control before update as begin "
        "new.sistema_ver = 1 / 0; end");
    EXPECT_FALSE(check.ConectarFTP());
    EXPECT_FALSE(station.odonto.Control.isPending());
    EXPECT_EQ(station.odonto.Control.text("sistema_ver"), "1.0.0.0");
}

TEST(UpdateCheck, UpdaterThatCannotStartIsTold) {
    UpdateStation station;
    run(station.clinic(), "update control set sistema_ver='2.0.0.0'");
    const quint16 nobody = publishing("2.0.0.0").port();
    station.launches = false;
    station.messages.expectInformation(kOffer + "2.0.0.0");
    station.messages.expectError("No se pudo iniciar el programa de actualización*");
    EXPECT_FALSE(station.check(nobody).run(Asked::AtLogin));

    QFile::setPermissions(station.updater, QFile::ReadOwner | QFile::WriteOwner);
    station.messages.expectInformation(kOffer + "2.0.0.0");
    station.messages.expectError(
        QStringLiteral("El programa de actualización %1 no está instalado en esta estación.")
            .arg(station.updater));
    EXPECT_FALSE(station.check(nobody).run(Asked::FromMenu));
    EXPECT_EQ(station.started.size(), 1);
}

TEST(UpdateCheck, UpdaterRunsOnItsOwn) {
    UpdateStation station;
    run(station.clinic(), "update control set sistema_ver='2.0.0.0'");
    UpdateCheck check(station.context, {publishing("2.0.0.0").port(), 500ms, {}});
    station.messages.expectInformation(kOffer + "2.0.0.0");
    EXPECT_TRUE(check.run(Asked::FromMenu));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return readFile(station.path("/Update/traza")) == "iniciado\n"; }, 5000));
}

TEST(UpdateCheck, LoginAsksTheServerForTheDesksAlone) {
    const FtpTestServer server = publishing(kVersion);
    ShellStation station;
    installUpdates(station.installation);
    station.installation.setIni("Equipo", "actualiza", "S");
    station.update = {server.port(), 2s, {}};
    station.logIn("cajero1", "caja1");
    EXPECT_FALSE(station.stillOpen);
    EXPECT_TRUE(station.window().isEnabled());
    EXPECT_EQ(server.commands().filter("RETR").size(), 1);
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] { station.typeUser("admision", "adm"); });
    EXPECT_EQ(station.session().Acceso.text(), "MA");
    EXPECT_EQ(server.commands().filter("RETR").size(), 1);
    station.messages.expectConfirmation(kAgain, Answer::No);
    station.window().openEntry("K2");
    EXPECT_EQ(server.commands().filter("RETR").size(), 2);
}

TEST(UpdateCheckDeathTest, UpdateAtLoginEndsTheApplication) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto body = [] {
        const FtpTestServer server = publishing("2.0.0.0");
        // No care centre: what follows a login would have something to tell.
        ShellStation station;
        installUpdates(station.installation);
        station.installation.setIni("Equipo", "actualiza", "S");
        QStringList started;
        station.update = {server.port(), 2s, [&](const QString &program) {
                              started += program;
                              return true;
                          }};
        station.messages.expectInformation(kOffer + "2.0.0.0");
        station.atLogin([&] {
            run(station.program->conexion().FBOdonto, "delete from ctroatencion");
            station.typeUser("cajero1", "caja1");
        });
        station.messages.verify();
        const bool ended = Application::current()->ending() && started.size() == 1 &&
                           !station.window().sessionStarted();
        std::exit(ended && !::testing::Test::HasFailure() ? 0 : 1);
    };
    EXPECT_EXIT(body(), ::testing::ExitedWithCode(0), "");
}

}  // namespace kaldo::test
