// KALDO from its start to the painted login, without the wait of the splash.

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "bench/painted.h"
#include "shell/program.h"
#include "toolkit/forms/application.h"

int main(int argc, char **argv) {
    kaldo::Application application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Mexico));
    QTranslator toolkitTexts;
    if (toolkitTexts.load(QStringLiteral("qtbase_es"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&toolkitTexts);
    }
    const kaldo::bench::PaintedReport report(QStringLiteral("FRMAcceso"));
    kaldo::ProgramSettings settings;
    settings.root = application.arguments().value(1);
    settings.splash = std::chrono::milliseconds(0);
    kaldo::Program program(settings);
    program.run();
    return 1;
}
