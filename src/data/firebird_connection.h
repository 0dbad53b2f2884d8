#pragma once

#include <memory>

#include "data/attach_refusal.h"
#include "data/call_runner.h"
#include "data/connection.h"

namespace kaldo {

class FirebirdAttachment;

/// How a Firebird database is attached. The time-out is the longest that a person is made to wait
/// for a server that doesn't answer.
struct FirebirdLogin {
    QString user = QStringLiteral("SYSDBA");
    QString password = QStringLiteral("brickwall");
    int connectTimeoutSeconds = 10;
    /// Off: the attach doesn't look for triggers of the database itself (on connect, on commit),
    /// which saves a millisecond. For a database that nobody but this program keeps, and with the
    /// user SYSDBA.
    bool databaseTriggers = true;
};

/// A connection through the Firebird client library, in UTF-8 and dialect 3. A plain path opens
/// the file inside the process, "host:path" goes to a server.
///
/// Prepared statements are kept per text while the connection is open. Reads share one read-only,
/// read-committed transaction, which the engine counts as committed from its start: it sees the
/// newest committed rows and holds back no garbage collection.
///
/// What a server must answer runs on the runner's thread, for at most its limit. Where the
/// connection is lost, or the answer isn't waited for, the call fails (ConnectionLost) and is never
/// repeated, since nobody knows what it did; the next statement attaches anew. An attach that
/// failed isn't tried again within a second.
class FirebirdConnection final : public Connection {
public:
    /// `runner`: shared by the connections of a program; none: one of its own.
    FirebirdConnection(QString name, FirebirdLogin login,
                       std::shared_ptr<CallRunner> runner = nullptr);
    ~FirebirdConnection() override;

    Dialect dialect() const override { return Dialect::Firebird; }
    bool isOpen() const override;
    bool waiting() const override { return runner_->waiting(); }
    void open() override;
    void close() override;
    std::unique_ptr<ResultSet> select(const Statement &statement,
                                      const Parameters &values) override;
    qint64 execute(const Statement &statement, const Parameters &values) override;
    std::vector<Column> describe(const Statement &statement) override;

private:
    FirebirdLogin login_;
    std::shared_ptr<CallRunner> runner_;
    std::shared_ptr<FirebirdAttachment> attachment_;
    AttachRefusal refusal_;
};

}  // namespace kaldo
