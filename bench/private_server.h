#pragma once

#include <QString>

namespace kaldo::bench {

/// A database server over an installation, as scripts/server runs it, for the life of the object.
/// Throws std::runtime_error where none can be started.
class PrivateServer {
public:
    explicit PrivateServer(const QString &root);
    ~PrivateServer();
    PrivateServer(const PrivateServer &) = delete;
    PrivateServer &operator=(const PrivateServer &) = delete;

    /// What stands before a path to reach it there: "localhost/3071:".
    const QString &host() const { return host_; }

private:
    QString root_;
    QString host_;
};

}  // namespace kaldo::bench
