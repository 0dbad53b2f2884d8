#include "tests/support/ftp_server.h"

#include <QDir>
#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <stdexcept>

namespace kaldo::test {

namespace {

/// How long the thread waits before it looks whether it shall end, in milliseconds.
constexpr int kTurn = 20;

void say(QTcpSocket &socket, const QByteArray &reply) {
    socket.write(reply + "\r\n");
    socket.waitForBytesWritten(1000);
}

}  // namespace

struct FtpTestServer::Session {
    explicit Session(QTcpSocket &socket) : control(socket) {}

    QTcpSocket &control;
    QTcpServer data;
    QString directory = QStringLiteral("/");
    bool named = false;
    bool entered = false;
};

FtpTestServer::FtpTestServer(const QString &directory, const QString &name,
                             const QByteArray &content, FtpFault fault)
    : path_(QDir::cleanPath(u'/' + directory + u'/' + name)),
      directory_(QDir::cleanPath(u'/' + directory)),
      content_(content),
      fault_(fault) {
    QSemaphore ready;
    thread_.reset(QThread::create([this, &ready] {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        port_ = server.serverPort();
        ready.release();
        while (!stop_) {
            if (server.waitForNewConnection(kTurn)) {
                ++calls_;
                const std::unique_ptr<QTcpSocket> control(server.nextPendingConnection());
                serve(*control);
            }
        }
    }));
    thread_->start();
    ready.acquire();
    if (port_ == 0) {
        throw std::runtime_error("the FTP server of the test could not listen");
    }
}

FtpTestServer::~FtpTestServer() {
    stop_ = true;
    thread_->wait();
}

QStringList FtpTestServer::commands() const {
    const QMutexLocker lock(&mutex_);
    return commands_;
}

void FtpTestServer::serve(QTcpSocket &control) {
    Session session(control);
    if (fault_ != FtpFault::Silent) {
        say(control, "220 a sus ordenes");
    }
    while (!stop_ && control.state() == QAbstractSocket::ConnectedState) {
        if (!control.canReadLine() && !control.waitForReadyRead(kTurn)) {
            continue;
        }
        while (control.canReadLine()) {
            if (!answer(session, control.readLine().trimmed())) {
                return;
            }
        }
    }
}

bool FtpTestServer::answer(Session &session, const QByteArray &line) {
    const qsizetype blank = line.indexOf(' ');
    const QByteArray verb = line.left(blank < 0 ? line.size() : blank).toUpper();
    const QString argument = blank < 0 ? QString() : QString::fromUtf8(line.mid(blank + 1));
    {
        const QMutexLocker lock(&mutex_);
        commands_ += verb == "PASS" ? QStringLiteral("PASS") : QString::fromUtf8(line);
    }
    QTcpSocket &control = session.control;
    if (verb == "QUIT") {
        if (fault_ == FtpFault::NoGoodBye) {
            return true;
        }
        say(control, "221 hasta luego");
        return false;
    }
    if (verb == "USER") {
        session.named = argument == user();
        say(control, "331 falta la clave");
    } else if (verb == "PASS") {
        session.entered =
            session.named && argument == password() && fault_ != FtpFault::RefusesLogin;
        say(control, session.entered ? "230 adelante" : "530 no");
    } else if (!session.entered) {
        say(control, "530 primero la clave");
    } else if (verb == "PWD") {
        say(control, "257 \"" + session.directory.toUtf8() + '"');
    } else if (verb == "TYPE") {
        say(control, "200 bien");
    } else if (verb == "CWD") {
        const QString wanted = pathOf(session, argument);
        const bool exists = wanted == QLatin1String("/") || wanted == directory_ ||
                            directory_.startsWith(wanted + u'/');
        session.directory = exists ? wanted : session.directory;
        say(control, exists ? "250 bien" : "550 no existe");
    } else if (verb == "EPSV" || verb == "PASV") {
        enterPassive(session, verb == "EPSV");
    } else if (verb == "SIZE") {
        const bool exists = pathOf(session, argument) == path_;
        say(control,
            exists ? "213 " + QByteArray::number(content_.size()) : QByteArray("550 no existe"));
    } else if (verb == "RETR") {
        return sendFile(session, pathOf(session, argument));
    } else {
        say(control, "502 no se hace");
    }
    return true;
}

QString FtpTestServer::pathOf(const Session &session, const QString &argument) const {
    return QDir::cleanPath(argument.startsWith(u'/') ? argument
                                                     : session.directory + u'/' + argument);
}

void FtpTestServer::enterPassive(Session &session, bool extended) {
    if (extended && fault_ == FtpFault::OldPassive) {
        say(session.control, "502 no se hace");
        return;
    }
    session.data.close();
    session.data.listen(QHostAddress::LocalHost);
    const quint16 port = session.data.serverPort();
    if (extended) {
        say(session.control, "229 (|||" + QByteArray::number(port) + "|)");
    } else {
        say(session.control, "227 (127,0,0,1," + QByteArray::number(port / 256) + ',' +
                                 QByteArray::number(port % 256) + ')');
    }
}

bool FtpTestServer::sendFile(Session &session, const QString &path) {
    if (path != path_) {
        say(session.control, "550 no existe");
        return true;
    }
    if (!session.data.hasPendingConnections() && !session.data.waitForNewConnection(2000)) {
        say(session.control, "425 nadie llama");
        return true;
    }
    const std::unique_ptr<QTcpSocket> data(session.data.nextPendingConnection());
    say(session.control, "150 va");
    const bool half =
        fault_ == FtpFault::HalfFile || fault_ == FtpFault::BreaksOff || fault_ == FtpFault::Stalls;
    data->write(half ? content_.left(content_.size() / 2) : content_);
    data->waitForBytesWritten(1000);
    while (fault_ == FtpFault::Stalls && !stop_ &&
           session.control.state() == QAbstractSocket::ConnectedState) {
        session.control.waitForReadyRead(kTurn);
    }
    data->disconnectFromHost();
    if (data->state() != QAbstractSocket::UnconnectedState) {
        data->waitForDisconnected(1000);
    }
    if (fault_ == FtpFault::BreaksOff || fault_ == FtpFault::Stalls) {
        return false;
    }
    say(session.control, "226 es todo");
    return true;
}

}  // namespace kaldo::test
