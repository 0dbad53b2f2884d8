#pragma once

#include <future>

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
    /// Begins to open in the background, for who has something else to do meanwhile. The
    /// connection counts as closed until open(), which waits for it and tells its failure. It takes
    /// its turn after `before`, so that no more than one processor is kept from the rest.
    void beginOpen(const FirebirdConnection *before = nullptr);
    /// What will run first: beginOpen() prepares it, too.
    void prepareFirst(std::vector<Statement> statements) { first_ = std::move(statements); }
    /// Waits for what beginOpen() began, and lets go of it.
    void forgetOpening() { opening_ = {}; }
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
    std::shared_future<std::shared_ptr<FirebirdAttachment>> opening_;
    std::vector<Statement> first_;
};

}  // namespace kaldo
