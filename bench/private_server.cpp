#include "bench/private_server.h"

#include <QProcess>

#include <stdexcept>

namespace kaldo::bench {

namespace {

constexpr int kFirstPort = 3071;
constexpr int kPortsTried = 20;

bool command(const QStringList &arguments) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QStringLiteral(KALDO_SOURCE_DIR "/scripts/server"), arguments);
    constexpr int patience = 60000;
    return process.waitForFinished(patience) && process.exitCode() == 0;
}

}  // namespace

PrivateServer::PrivateServer(const QString &root) : root_(root) {
    for (int port = kFirstPort; port < kFirstPort + kPortsTried; ++port) {
        if (command({"start", root_, "--port", QString::number(port)})) {
            host_ = QStringLiteral("127.0.0.1/%1:").arg(port);
            return;
        }
    }
    throw std::runtime_error("no database server could be started");
}

PrivateServer::~PrivateServer() {
    command({"stop", root_});
}

}  // namespace kaldo::bench
