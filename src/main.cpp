#include "shell/program.h"
#include "shell/version.h"
#include "toolkit/core/log.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/button.h"

#include <QCommandLineParser>
#include <QIcon>
#include <QLocale>
#include <QTextStream>
#include <QTimer>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <optional>

#if defined(Q_OS_LINUX)
#include <langinfo.h>
#endif

namespace {

const char kHelp[] =
    "Uso: kaldo [--root CARPETA]\n"
    "\n"
    "  --root CARPETA  carpeta de la instalación, con Ini/kaldo.ini y DataBase/\n"
    "                  (si falta: la variable KALDO_ROOT o la carpeta de datos del usuario)\n"
    "  --version       muestra la versión\n"
    "  --help          muestra esta ayuda\n";

constexpr int kWrongArguments = 2;

bool hasArgument(const QStringList &arguments, const char *name) {
    return arguments.contains(QLatin1String(name));
}

/// True where no desktop can be reached: Qt would end the process with a message in English.
bool lacksDesktop(const QStringList &arguments) {
#if defined(Q_OS_LINUX)
    return !qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
           !qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !hasArgument(arguments, "-platform") &&
           !hasArgument(arguments, "--platform");
#else
    Q_UNUSED(arguments)
    return false;
#endif
}

/// The database engine takes the names of files by the machine's locale: one that hasn't all
/// letters would keep it from a folder called "José".
void nameLocale() {
#if defined(Q_OS_LINUX)
    std::setlocale(LC_CTYPE, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        qputenv("LC_ALL", "C.UTF-8");
    }
#endif
}

QStringList argumentList(int argc, char **argv) {
    QStringList arguments;
    for (int at = 0; at < argc; ++at) {
        arguments += QString::fromLocal8Bit(argv[at]);
    }
    return arguments;
}

/// The folder that the arguments name, or that of the environment. None, with the reason on the
/// error output, where they make no sense.
std::optional<QString> rootFrom(const QStringList &arguments) {
    const QString root = QStringLiteral("root");
    QCommandLineParser parser;
    parser.addOption({root, QString(), QStringLiteral("CARPETA")});
    const bool sound = parser.parse(arguments);
    const QStringList unknown = parser.unknownOptionNames() + parser.positionalArguments();
    QString reason;
    if (!unknown.isEmpty()) {
        reason = QStringLiteral("no se conoce «%1».").arg(unknown.first());
    } else if (!sound || (parser.isSet(root) && parser.value(root).isEmpty())) {
        reason = QStringLiteral("falta la carpeta después de --root.");
    }
    if (!reason.isEmpty()) {
        QTextStream(stderr) << "kaldo: " << reason << "\n\n" << QString::fromUtf8(kHelp);
        return std::nullopt;
    }
    return parser.isSet(root) ? parser.value(root) : kaldo::Installation::rootFromEnvironment();
}

}  // namespace

int main(int argc, char **argv) {
    const QStringList arguments = argumentList(argc, argv);
    if (hasArgument(arguments, "--help") || hasArgument(arguments, "-h")) {
        std::fputs(kHelp, stdout);
        return 0;
    }
    if (hasArgument(arguments, "--version")) {
        std::printf("kaldo %s\n", kaldo::kVersion);
        return 0;
    }
    if (lacksDesktop(arguments)) {
        std::fputs(
            "kaldo: no hay un escritorio en el que mostrar las ventanas (faltan las "
            "variables DISPLAY y WAYLAND_DISPLAY).\n"
            "La demostración sí corre sin escritorio: scripts/demo CARPETA\n",
            stderr);
        return 1;
    }
    nameLocale();
    kaldo::Application application(argc, argv);
    // Behind the toolkit, which has taken its own options.
    const std::optional<QString> root = rootFrom(QCoreApplication::arguments());
    if (!root) {
        return kWrongArguments;
    }
    Q_INIT_RESOURCE(icons);
    QCoreApplication::setApplicationName(QStringLiteral("kaldo"));
    QGuiApplication::setDesktopFileName(QStringLiteral("kaldo"));
    QApplication::setWindowIcon(kaldo::iconNamed(QStringLiteral("logo")));
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Mexico));
    const kaldo::FileLog log(
        kaldo::Installation(*root).map(QStringLiteral("C:\\KALDO\\Log\\kaldo.log")));
    kaldo::ProgramSettings settings;
    settings.root = *root;
    kaldo::Program program(settings);
    // The database engine in the process takes these for itself at its first attach and then ends
    // nothing. The first loop behind it may be that of a box.
    QTimer::singleShot(0, [] {
        std::signal(SIGINT, SIG_DFL);
        std::signal(SIGTERM, SIG_DFL);
    });
    return program.run();
}
