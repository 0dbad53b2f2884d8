#include "tests/support/private_server.h"

#include <QFile>
#include <QProcess>

#include <unistd.h>
#include <csignal>
#include <stdexcept>

namespace kaldo::test {

namespace {

constexpr int kFirstPort = 20000;
constexpr int kPorts = 10000;
constexpr int kPortsTried = 20;

QStringList naming(PrivateServer::Registry registry) {
    return registry == PrivateServer::Registry::Named ? QStringList{QStringLiteral("--registry")}
                                                      : QStringList{};
}

}  // namespace

PrivateServer::PrivateServer(const QString &root, Registry registry)
    : root_(root), registry_(registry) {
    for (int attempt = 0; attempt < kPortsTried; ++attempt) {
        port_ = kFirstPort + (::getpid() * 7 + attempt * 131) % kPorts;
        if (script(QStringLiteral("start"), naming(registry))) {
            return;
        }
    }
    throw std::runtime_error("no database server could be started");
}

PrivateServer::~PrivateServer() {
    thaw();
    script(QStringLiteral("stop"), naming(registry_));
}

// What runs again has its registry named already, and a station may hold it open.
bool PrivateServer::start() {
    return script(QStringLiteral("start"), {});
}

void PrivateServer::stop() {
    script(QStringLiteral("stop"), {});
}

void PrivateServer::kill() const {
    signal(SIGKILL);
}

void PrivateServer::freeze() const {
    signal(SIGSTOP);
}

void PrivateServer::thaw() const {
    signal(SIGCONT);
}

bool PrivateServer::script(const QString &command, const QStringList &arguments) const {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(
        QStringLiteral(KALDO_SOURCE_DIR "/scripts/server"),
        QStringList{command, root_, QStringLiteral("--port"), QString::number(port_)} + arguments);
    constexpr int patience = 60000;
    return process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

void PrivateServer::signal(int number) const {
    QFile file(root_ + "/server/pid");
    if (file.open(QIODevice::ReadOnly)) {
        ::kill(file.readAll().trimmed().toInt(), number);
    }
}

}  // namespace kaldo::test
