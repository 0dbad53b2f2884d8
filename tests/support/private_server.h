#pragma once

#include <QStringList>

namespace kaldo::test {

/// A database server over an installation, as scripts/server runs it, for the life of the object.
/// Throws std::runtime_error where none can be started.
class PrivateServer {
public:
    /// Named: the installation's registry names its databases through the server.
    enum class Registry { Plain, Named };

    explicit PrivateServer(const QString &root, Registry registry = Registry::Plain);
    ~PrivateServer();
    PrivateServer(const PrivateServer &) = delete;
    PrivateServer &operator=(const PrivateServer &) = delete;

    /// What stands before a path to reach it there: "127.0.0.1/3071:".
    QString host() const { return QStringLiteral("127.0.0.1/%1:").arg(port_); }
    /// Starts it again, on the same port, where it isn't running any more.
    bool start();
    /// Ends it as an administrator does; its port stays.
    void stop();
    /// It dies without a word to anyone.
    void kill() const;
    /// It stops answering, until it goes on.
    void freeze() const;
    void thaw() const;

private:
    bool script(const QString &command, const QStringList &arguments) const;
    void signal(int number) const;

    QString root_;
    Registry registry_;
    int port_ = 0;
};

}  // namespace kaldo::test
