#include "tests/shell/shell_station.h"

#include "shell/frm_inicio_splash.h"

#include <QDirIterator>

namespace kaldo::test {

namespace {

void installPictures(const TestInstallation &installation) {
    const QString target = installation.root() + "/Images/KALDO";
    QDir().mkpath(target);
    QDirIterator files(QStringLiteral(KALDO_SOURCE_DIR "/assets/pictures"), {"*.png"});
    while (files.hasNext()) {
        files.next();
        QFile::copy(files.filePath(), target + '/' + files.fileName());
    }
}

void show(const QString &name, const QString &user, const QString &password, const QString &skin,
          const QString &library) {
    ShellStation station;
    station.tick = std::chrono::milliseconds(20);
    installPictures(station.installation);
    station.installation.setIni("Sistema", "skinname", skin);
    station.installation.setIni("Ambiente", "skin", "C:\\KALDO\\Ini\\" + library);
    ASSERT_TRUE(station.start());
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
    picture(&station.window(), name + "_main");
    station.window().openEntry("E1");
    settle();
    picture(&station.window(), name + "_e1");
}

}  // namespace

TEST(Pictures, CashierInDefaultLook) {
    show("windows_ca", "cajero1", "caja1", "Windows", "skinblue.dll");
}
TEST(Pictures, AdministratorInSchemes) {
    show("blue_am", "admin", "admin", "KaldoBlue", "skinblue.dll");
    show("black_am", "admin", "admin", "KaldoBlack", "skinblack.dll");
    show("green_am", "admin", "admin", "KaldoGreen", "skingreen.dll");
}

}  // namespace kaldo::test
