#pragma once

#include <QByteArray>
#include <QMutex>
#include <QStringList>

#include <atomic>
#include <memory>

class QTcpSocket;
class QThread;

namespace kaldo::test {

/// What a server does that isn't a good one.
enum class FtpFault {
    None,
    RefusesLogin,
    HalfFile,    ///< sends half of what it announced and says that this was all
    BreaksOff,   ///< sends half and is gone
    Silent,      ///< takes the call and never says a word
    Stalls,      ///< sends half and then nothing more
    NoGoodBye,   ///< sends all and does not answer QUIT
    OldPassive,  ///< no fault: knows PASV alone
};

/// A small FTP server on the loopback address, in a thread of its own, for one file in one
/// directory. It knows what passive mode needs and refuses the rest, PORT above all.
class FtpTestServer {
public:
    FtpTestServer(const QString &directory, const QString &name, const QByteArray &content,
                  FtpFault fault = FtpFault::None);
    ~FtpTestServer();
    FtpTestServer(const FtpTestServer &) = delete;
    FtpTestServer &operator=(const FtpTestServer &) = delete;

    /// User "kaldo", password "abre te: #1@%".
    static QString user() { return QStringLiteral("kaldo"); }
    static QString password() { return QStringLiteral("abre te: #1@%"); }
    quint16 port() const { return port_; }
    /// How many clients have called.
    int calls() const { return calls_; }
    /// What clients have asked for so far, without passwords.
    QStringList commands() const;

private:
    struct Session;

    void serve(QTcpSocket &control);
    bool answer(Session &session, const QByteArray &line);
    void enterPassive(Session &session, bool extended);
    bool sendFile(Session &session, const QString &path);
    QString pathOf(const Session &session, const QString &argument) const;

    const QString path_;
    const QString directory_;
    const QByteArray content_;
    const FtpFault fault_;
    quint16 port_ = 0;
    std::atomic<bool> stop_ = false;
    std::atomic<int> calls_ = 0;
    mutable QMutex mutex_;
    QStringList commands_;
    std::unique_ptr<QThread> thread_;
};

}  // namespace kaldo::test
