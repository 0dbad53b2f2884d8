#include <QCoreApplication>
#include <QProcess>

#include <stdexcept>

#include "bench/bench_station.h"
#include "bench/measurements.h"

namespace kaldo::bench {

namespace {

constexpr int kRuns = 15;

/// Starts a program beside this one and waits for the line that says that its window is painted.
double started(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const double began = milliseconds();
    process.start(QCoreApplication::applicationDirPath() + u'/' + program, arguments);
    constexpr int patience = 30000;
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(patience)) {
            throw std::runtime_error(program.toStdString() + " painted no window");
        }
    }
    const double took = milliseconds() - began;
    if (!process.waitForFinished(patience) || process.exitCode() != 0) {
        throw std::runtime_error(program.toStdString() + " did not end well");
    }
    return took;
}

}  // namespace

Results startUp() {
    const test::TestInstallation own;
    const test::TestInstallation bare;
    const QStringList databases{bare.database(QStringLiteral("BD_LOCAL.GDB")),
                                bare.database(QStringLiteral("BD_ODONTOLOGIA.GDB")),
                                bare.database(QStringLiteral("BD_FINANZAS.GDB"))};
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int run = 0; run <= kRuns; ++run) {
        const double kaldo = started(QStringLiteral("bench_login"), {own.root()});
        const double empty = started(QStringLiteral("bench_empty"), databases);
        if (run > 0) {
            ours.push_back(kaldo);
            theirs.push_back(empty);
        }
    }
    return {{.name = QStringLiteral("start-up to the login"),
             .kaldo = median(ours),
             .bare = median(theirs),
             .bar = 1.5,
             .runs = kRuns}};
}

Results startUpOn(const QString &root) {
    const test::TestInstallation small;
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int run = 0; run <= kRuns; ++run) {
        const double large = started(QStringLiteral("bench_login"), {root});
        const double example = started(QStringLiteral("bench_login"), {small.root()});
        if (run > 0) {
            ours.push_back(large);
            theirs.push_back(example);
        }
    }
    return {{.name = QStringLiteral("start-up to the login, against the small database"),
             .kaldo = median(ours),
             .bare = median(theirs),
             .bar = 1.15,
             .runs = kRuns}};
}

}  // namespace kaldo::bench
