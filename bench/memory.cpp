#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <cstdio>
#include <stdexcept>

#include "bench/bench_station.h"
#include "bench/measurements.h"
#include "bench/note_typist.h"
#include "tests/support/private_server.h"
#include "tests/support/test_installation.h"

namespace kaldo::bench {

namespace {

constexpr int kFew = 100;
constexpr int kMany = 1000;

/// Resident memory of this process in MiB.
double residentMemory() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("no figure of this process's memory");
    }
    const QByteArray key = "VmRSS:";
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(key)) {
            constexpr double kibibytes = 1024;
            return line.mid(key.size()).trimmed().split(' ').first().toDouble() / kibibytes;
        }
    }
    throw std::runtime_error("no figure of this process's memory");
}

}  // namespace

int memoryChild() {
    auto installation = std::make_shared<test::TestInstallation>();
    writeUnforced(*installation);
    // What the engine keeps of the databases is the server's; here it counts what a station keeps.
    const test::PrivateServer server(installation->root());
    reachThrough(*installation, server.host());
    BenchStation station(installation, installation);
    station.logIn(QStringLiteral("cajero1"));
    NoteTypist cashier(station);
    for (int note = 1; note <= kMany; ++note) {
        cashier.registerNote(kNoteKinds.at(static_cast<std::size_t>(note) % kNoteKinds.size()));
        if (note == kFew || note == kMany) {
            std::printf("%.3f\n", residentMemory());
        }
    }
    return 0;
}

Results memory() {
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--memory-child")});
    constexpr int patience = 30 * 60 * 1000;
    if (!child.waitForFinished(patience) || child.exitCode() != 0) {
        throw std::runtime_error("the process whose memory is measured failed");
    }
    const QList<QByteArray> figures = child.readAllStandardOutput().trimmed().split('\n');
    if (figures.size() != 2) {
        throw std::runtime_error("the process whose memory is measured gave no two figures");
    }
    return {{.name = QStringLiteral("resident memory of a station, %1 notes against %2")
                         .arg(kMany)
                         .arg(kFew),
             .unit = QStringLiteral("MiB"),
             .kaldo = figures[1].toDouble(),
             .bare = figures[0].toDouble(),
             .bar = 1.02}};
}

}  // namespace kaldo::bench
