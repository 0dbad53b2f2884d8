#include "data/firebird_connection.h"

#include <QDir>
#include <QFileInfo>

#include <array>

#include "data/database_error.h"
#include "data/firebird_attachment.h"
#include "data/firebird_status.h"

namespace kaldo {

namespace {

constexpr char lockTimeoutSeconds = 5;

constexpr std::array<char, 11> writeTransaction = {isc_tpb_version3,
                                                   isc_tpb_write,
                                                   isc_tpb_read_committed,
                                                   isc_tpb_rec_version,
                                                   isc_tpb_wait,
                                                   isc_tpb_lock_timeout,
                                                   4,
                                                   lockTimeoutSeconds,
                                                   0,
                                                   0,
                                                   0};

// Rows come from a server in pages: each page is one call.
constexpr std::size_t firstPage = 64;
constexpr std::size_t nextPage = 256;

/// The embedded engine keeps its lock table in a folder of the machine that the first user of it
/// owns. Another user's program gets one beside the database, before its first attach.
void chooseLockFolder(const QString &database) {
#ifdef Q_OS_UNIX
    const QFileInfo shared(QStringLiteral("/tmp/firebird"));
    if (!isEmbedded(database) || qEnvironmentVariableIsSet("FIREBIRD_LOCK") || !shared.exists() ||
        shared.isWritable()) {
        return;
    }
    const QString own = QFileInfo(database).absolutePath() + QLatin1String("/.lock");
    if (QDir().mkpath(own)) {
        qputenv("FIREBIRD_LOCK", QFile::encodeName(own));
    }
#else
    Q_UNUSED(database);
#endif
}

struct Page {
    std::vector<Row> rows;
    bool last = false;
};

/// In a call: the next rows; behind the last one the statement is given back.
Page fetchPage(FirebirdAttachment &attachment, const PreparedStatement &statement,
               const Statement &source, std::size_t wanted) {
    constexpr ISC_STATUS atEnd = 100;
    Page page;
    FirebirdStatus status(attachment.connection, source.name);
    while (page.rows.size() < wanted) {
        const ISC_STATUS outcome = isc_dsql_fetch(status.vector(), &statement->handle,
                                                  SQLDA_VERSION1, statement->row.sqlda());
        if (outcome == atEnd) {
            page.last = true;
            break;
        }
        status.check();
        statement->row.read(page.rows.emplace_back());
    }
    return page;
}

/// In a call: frees the statement's cursor and keeps the statement for the next time.
void endReading(FirebirdAttachment &attachment, const PreparedStatement &statement,
                const QString &text) {
    ISC_STATUS_ARRAY ignored;
    isc_dsql_free_statement(ignored, &statement->handle, DSQL_close);
    attachment.giveBack(statement, text);
}

class FirebirdResultSet final : public ResultSet {
public:
    FirebirdResultSet(std::shared_ptr<FirebirdAttachment> attachment, PreparedStatement statement,
                      Statement source)
        : attachment_(std::move(attachment)),
          statement_(std::move(statement)),
          source_(std::move(source)),
          columns_(statement_->columns) {}
    ~FirebirdResultSet() override {
        if (statement_ && attachment_->alive()) {
            attachment_->tidy([attachment = attachment_, statement = statement_,
                               text = source_.text] { endReading(*attachment, statement, text); });
        }
        letGo();
    }

    const std::vector<Column> &columns() const override { return *columns_; }

    bool fetch(Row &row) override {
        if (statement_ || next_ < page_.rows.size()) {
            requireAlive();
        }
        if (next_ == page_.rows.size() && !nextPageCame()) {
            return false;
        }
        row = std::move(page_.rows[next_++]);
        return true;
    }

private:
    bool nextPageCame() {
        if (!statement_) {
            return false;
        }
        const std::size_t wanted = page_.rows.empty() ? firstPage : nextPage;
        page_ = {};
        next_ = 0;
        page_ = attachment_->call(source_.name, [attachment = attachment_, statement = statement_,
                                                 source = source_, wanted] {
            Page page = fetchPage(*attachment, statement, source, wanted);
            if (page.last) {
                endReading(*attachment, statement, source.text);
            }
            return page;
        });
        if (page_.last) {
            statement_.reset();
        }
        return !page_.rows.empty();
    }

    void requireAlive() const {
        if (!attachment_->alive()) {
            throw DatabaseError(
                QStringLiteral("La lista no está completa: se cerró la conexión con %1.")
                    .arg(databaseInWords(attachment_->connection)),
                {DatabaseFailure::ConnectionLost,
                 {},
                 0,
                 {},
                 attachment_->connection,
                 source_.name});
        }
    }

    /// What a lost attachment has prepared went with it.
    void letGo() {
        if (statement_ && !attachment_->alive()) {
            statement_->forget();
        }
        statement_.reset();
    }

    std::shared_ptr<FirebirdAttachment> attachment_;
    PreparedStatement statement_;
    Statement source_;
    std::shared_ptr<const std::vector<Column>> columns_;  // they outlive the last row
    Page page_;
    std::size_t next_ = 0;
};

/// One execution in a transaction of its own. Each of its steps is made in a call; what isn't
/// committed at the end of it, or fails, is rolled back.
class Write {
public:
    Write(FirebirdAttachment &attachment, Statement statement, Parameters values)
        : attachment_(attachment), statement_(std::move(statement)), values_(std::move(values)) {}

    qint64 execute() {
        try {
            prepared_ = attachment_.take(statement_);
            prepared_->bind(values_, statement_, attachment_.connection);
            FirebirdStatus status(attachment_.connection, statement_.name);
            isc_start_transaction(status.vector(), &transaction_, 1, &attachment_.database,
                                  static_cast<int>(writeTransaction.size()),
                                  writeTransaction.data());
            status.check();
            const bool routine = prepared_->type == isc_info_sql_stmt_exec_procedure;
            isc_dsql_execute2(
                status.vector(), &transaction_, &prepared_->handle, SQLDA_VERSION1,
                prepared_->parameters.row().sqlda(),
                routine && prepared_->row.count() > 0 ? prepared_->row.sqlda() : nullptr);
            status.check();
            return routine ? -1 : prepared_->changedRows(attachment_.connection, statement_.name);
        } catch (...) {
            rollBack();
            throw;
        }
    }

    void commit() {
        FirebirdStatus status(attachment_.connection, statement_.name);
        isc_commit_transaction(status.vector(), &transaction_);
        if (status.failed()) {
            rollBack();
        }
        status.check();
        attachment_.giveBack(std::move(prepared_), statement_.text);
    }

    void rollBack() {
        ISC_STATUS_ARRAY ignored;
        if (transaction_ != 0) {
            isc_rollback_transaction(ignored, &transaction_);
        }
        prepared_.reset();
    }

private:
    FirebirdAttachment &attachment_;
    Statement statement_;
    Parameters values_;
    PreparedStatement prepared_;
    isc_tr_handle transaction_ = 0;
};

}  // namespace

FirebirdConnection::FirebirdConnection(QString name, FirebirdLogin login,
                                       std::shared_ptr<CallRunner> runner)
    : Connection(std::move(name)),
      login_(std::move(login)),
      runner_(runner ? std::move(runner) : std::make_shared<CallRunner>()) {}

FirebirdConnection::~FirebirdConnection() {
    close();
}

bool FirebirdConnection::isOpen() const {
    return attachment_ && attachment_->alive();
}

void FirebirdConnection::open() {
    if (isOpen()) {
        return;
    }
    attachment_.reset();
    // Only a server makes a person wait for each try: a file is tried, and told of, each time.
    const bool server = !isEmbedded(database());
    const bool repeated = server && refusal_.repeats(database());
    if (server && refusal_.fresh(database())) {
        refusal_.tell(repeated);
    }
    chooseLockFolder(database());
    auto attachment = std::make_shared<FirebirdAttachment>(name(), runner_, database());
    try {
        attachment->open(login_);
    } catch (const DatabaseError &failure) {
        refusal_.remember(database(), failure);
        refusal_.tell(repeated);
    }
    refusal_.forget();
    attachment_ = std::move(attachment);
}

void FirebirdConnection::close() {
    if (attachment_) {
        attachment_->close();
        attachment_.reset();
    }
    refusal_.forget();
}

std::unique_ptr<ResultSet> FirebirdConnection::select(const Statement &statement,
                                                      const Parameters &values) {
    open();
    const auto execution = watched(statement, values, false);
    if (execution) {
        seam()->beforeExecution(*execution);
    }
    const auto attachment = attachment_;
    auto prepared = attachment->call(statement.name, [attachment, statement, values] {
        auto taken = attachment->take(statement);
        taken->bind(values, statement, attachment->connection);
        FirebirdStatus status(attachment->connection, statement.name);
        isc_dsql_execute(status.vector(), &attachment->reading, &taken->handle, SQLDA_VERSION1,
                         taken->parameters.row().sqlda());
        status.check();
        return taken;
    });
    if (execution) {
        seam()->afterExecution(*execution);
    }
    return std::make_unique<FirebirdResultSet>(attachment, std::move(prepared), statement);
}

qint64 FirebirdConnection::execute(const Statement &statement, const Parameters &values) {
    open();
    const auto execution = watched(statement, values, true);
    if (execution) {
        seam()->beforeExecution(*execution);
    }
    const auto attachment = attachment_;
    const auto write = std::make_shared<Write>(*attachment, statement, values);
    if (!execution) {
        return attachment->call(statement.name, [attachment, write] {
            const qint64 changed = write->execute();
            write->commit();
            return changed;
        });
    }
    const qint64 changed =
        attachment->call(statement.name, [attachment, write] { return write->execute(); });
    try {
        seam()->beforeCommit(*execution);
    } catch (...) {
        attachment->tidy([attachment, write] { write->rollBack(); });
        throw;
    }
    attachment->call(statement.name, [attachment, write] { write->commit(); });
    seam()->afterExecution(*execution);
    return changed;
}

std::vector<Column> FirebirdConnection::describe(const Statement &statement) {
    open();
    const auto attachment = attachment_;
    return attachment->call(statement.name, [attachment, statement] {
        auto prepared = attachment->take(statement);
        std::vector<Column> columns = *prepared->columns;
        attachment->giveBack(std::move(prepared), statement.text);
        return columns;
    });
}

}  // namespace kaldo
