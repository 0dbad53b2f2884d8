#include <QDir>
#include <QFile>

#include <iostream>

#include "shell/program.h"
#include "toolkit/forms/application.h"
#include "tools/demo/manual_pictures.h"
#include "tools/demo/road.h"

namespace {

constexpr int kUsage = 2;
constexpr int kFailed = 1;

/// Receipts go to the folder of a station without a printer; here they get plain names.
void collectReceipts(const QString &root, const QString &folder) {
    const QDir receipts(root + QStringLiteral("/Recibos"));
    int number = 0;
    for (const QString &file :
         receipts.entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name)) {
        QFile::copy(
            receipts.filePath(file),
            QStringLiteral("%1/receipt-%2.pdf").arg(folder).arg(++number, 2, 10, QChar('0')));
    }
}

/// A platform without a window manager tells with each window what it lacks.
void tellWarnings(QtMsgType, const QMessageLogContext &, const QString &text) {
    if (!text.startsWith(QLatin1String("This plugin does not support"))) {
        std::cerr << text.toStdString() << '\n';
    }
}

int play(int argc, char **argv, const QString &root, const QString &folder) {
    qInstallMessageHandler(tellWarnings);
    kaldo::Application application(argc, argv);
    kaldo::BreakingSeam seam;
    kaldo::ProgramSettings settings;
    settings.root = root;
    settings.seam = &seam;
    settings.splash = std::chrono::milliseconds(500);
    kaldo::Program program(settings);

    kaldo::KeyScript script;
    script.setPictureFolder(folder);
    kaldo::writeRoad(script, seam, folder);
    QObject::connect(&script, &kaldo::KeyScript::failed, [&](const QString &text) {
        std::cerr << "demo: " << text.toStdString() << '\n';
        kaldo::desktopPicture().save(folder + QStringLiteral("/failed.png"));
        application.endApplication(kFailed);
    });
    script.start();
    const int code = program.run();
    collectReceipts(root, folder);
    return code == 0 && script.isDone() ? 0 : kFailed;
}

}  // namespace

int main(int argc, char **argv) {
    const QString action = argc == 4 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (action == QLatin1String("play")) {
        return play(argc, argv, QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    }
    if (action == QLatin1String("pictures")) {
        return kaldo::takeManualPictures(argc, argv);
    }
    if (action == QLatin1String("summary")) {
        const QCoreApplication application(argc, argv);
        return kaldo::writeSummary(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]))
                   ? 0
                   : kFailed;
    }
    std::cerr << "usage: kaldo-demo play|summary|pictures ROOT DIR\n";
    return kUsage;
}
