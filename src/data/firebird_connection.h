#pragma once

#include <memory>

#include "data/connection.h"

namespace kaldo {

class FirebirdAttachment;
class FirebirdStatement;

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
class FirebirdConnection final : public Connection {
public:
    FirebirdConnection(QString name, FirebirdLogin login);
    ~FirebirdConnection() override;

    Dialect dialect() const override { return Dialect::Firebird; }
    bool isOpen() const override;
    void open() override;
    void close() override;
    std::unique_ptr<ResultSet> select(const Statement &statement,
                                      const Parameters &values) override;
    qint64 execute(const Statement &statement, const Parameters &values) override;
    std::vector<Column> describe(const Statement &statement) override;

private:
    qint64 changedRows(FirebirdStatement &prepared, const QString &statement);

    FirebirdLogin login_;
    std::shared_ptr<FirebirdAttachment> attachment_;
};

}  // namespace kaldo
