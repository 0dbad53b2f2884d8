#include "bench/bench_station.h"

#include <QProcess>

#include <algorithm>
#include <array>
#include <chrono>
#include <stdexcept>

#include "toolkit/forms/application.h"

namespace kaldo::bench {

namespace {

using test::TestInstallation;

constexpr std::array kDatabases{"BD_LOCAL.GDB", "BD_ODONTOLOGIA.GDB", "BD_FINANZAS.GDB"};

/// The same context with services that keep nothing and never wait.
Context contextOf(const Context &context, Messages &messages, report::Printing &printing) {
    return {context.installation, context.clock,    context.ini,         context.session,
            context.options,      messages,         context.fileDialogs, printing,
            context.frame,        context.conexion, context.local,       context.odonto,
            context.caja,         context.finanzas, context.escolares};
}

}  // namespace

Answer PromptMessages::show(const Message &message) {
    ++shown_;
    if (message.kind == MessageKind::Warning || message.kind == MessageKind::Error) {
        throw std::runtime_error("a box came: " + message.text.toStdString());
    }
    return Answer::Yes;
}

BenchStation::BenchStation(std::shared_ptr<TestInstallation> own,
                           std::shared_ptr<TestInstallation> bare)
    : bare_(std::move(bare)),
      station_(std::move(own)),
      context_(contextOf(station_.context, messages, printing)) {
    watch();
}

BenchStation::BenchStation(const QString &root)
    : station_(root), context_(contextOf(station_.context, messages, printing)) {
    watch();
}

void BenchStation::watch() {
    station_.conexion.setSeam(&recorder);
    if (Application *application = Application::current()) {
        application->setFailureHandler([](const std::exception &failure) {
            qFatal("a failure that no screen handled: %s", failure.what());
        });
    }
}

BenchStation::~BenchStation() {
    station_.conexion.setSeam(nullptr);
}

QString BenchStation::twinOf(const QString &connection) {
    for (const Connection *candidate : station_.conexion.all()) {
        if (candidate->name() == connection) {
            return QString(candidate->database())
                .replace(station_.installation->root(), bare_->root());
        }
    }
    throw std::runtime_error("no such connection: " + connection.toStdString());
}

void writeUnforced(const TestInstallation &installation) {
    for (const char *file : kDatabases) {
        const QStringList arguments{"-user", "SYSDBA", "-write", "async",
                                    installation.database(QString::fromLatin1(file))};
        if (QProcess::execute(QStringLiteral("gfix"), arguments) != 0) {
            throw std::runtime_error("gfix failed");
        }
    }
}

void printNoReceipts(const TestInstallation &installation) {
    FirebirdConnection local(QStringLiteral("FBLocal"), {});
    local.setDatabase(installation.database(QStringLiteral("BD_LOCAL.GDB")));
    test::run(local, QStringLiteral("delete from recibos"));
}

void reachThrough(const TestInstallation &installation, const QString &host) {
    FirebirdConnection local(QStringLiteral("FBLocal"), {});
    local.setDatabase(installation.database(QStringLiteral("BD_LOCAL.GDB")));
    test::run(local, QStringLiteral("update firebird set ruta = :host || ruta"), {{"host", host}});
}

double milliseconds() {
    const auto since = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(since).count();
}

double median(std::vector<double> values) {
    if (values.empty()) {
        throw std::runtime_error("nothing was measured");
    }
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

}  // namespace kaldo::bench
