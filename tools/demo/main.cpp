#include <QDir>
#include <QFile>

#include <iostream>

#include "shell/program.h"
#include "toolkit/forms/application.h"
#include "tools/demo/first_day.h"
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

enum class Day { Ordinary, First };

int play(int argc, char **argv, Day day, const QString &root, const QString &folder) {
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
    if (day == Day::First) {
        kaldo::writeFirstDay(script, root);
    } else {
        kaldo::writeRoad(script, seam, folder);
    }
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
    const QStringList words{argv + 1, argv + argc};
    const QString action = words.size() == 3 ? words.at(0) : QString();
    const QString root = words.value(1);
    const QString folder = words.value(2);
    if (action == QLatin1String("play")) {
        return play(argc, argv, Day::Ordinary, root, folder);
    }
    if (action == QLatin1String("play-first-day")) {
        return play(argc, argv, Day::First, root, folder);
    }
    if (action == QLatin1String("pictures")) {
        return kaldo::takeManualPictures(argc, argv, kaldo::Installed::Example);
    }
    if (action == QLatin1String("setup-pictures")) {
        return kaldo::takeManualPictures(argc, argv, kaldo::Installed::Empty);
    }
    const QCoreApplication application(argc, argv);
    if (action == QLatin1String("summary")) {
        return kaldo::writeSummary(root, folder) ? 0 : kFailed;
    }
    if (action == QLatin1String("summary-first-day")) {
        return kaldo::writeFirstDaySummary(root, folder) ? 0 : kFailed;
    }
    std::cerr
        << "usage: kaldo-demo play|summary|play-first-day|summary-first-day|pictures ROOT DIR\n";
    return kUsage;
}
