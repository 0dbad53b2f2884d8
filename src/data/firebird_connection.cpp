#include "data/firebird_connection.h"

#include <QDir>
#include <QFileInfo>

#include <array>
#include <map>

#include "data/database_error.h"
#include "data/firebird_status.h"
#include "data/firebird_values.h"
#include "data/statement_text.h"

namespace kaldo {

namespace {

constexpr unsigned short dialect3 = 3;
constexpr char lockTimeoutSeconds = 5;

constexpr std::array<char, 5> readTransaction = {
    isc_tpb_version3, isc_tpb_read, isc_tpb_read_committed, isc_tpb_rec_version, isc_tpb_nowait};
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

}  // namespace

/// A statement that the engine has prepared.
class FirebirdStatement {
public:
    FirebirdStatement(FirebirdAttachment &attachment, const Statement &statement);
    ~FirebirdStatement();
    FirebirdStatement(const FirebirdStatement &) = delete;
    FirebirdStatement &operator=(const FirebirdStatement &) = delete;

    void bind(const Parameters &values, const Statement &statement, const QString &connection);

    isc_stmt_handle handle = 0;
    int type = 0;  ///< isc_info_sql_stmt_...
    PositionalText text;
    FirebirdParameters parameters;
    FirebirdRow row;
    std::shared_ptr<const std::vector<Column>> columns;
};

/// What lives from an attach to its detach. Result sets share it, so that one that outlives the
/// connection's opening fails cleanly.
class FirebirdAttachment {
public:
    FirebirdAttachment(QString connection) : connection(std::move(connection)) {}
    ~FirebirdAttachment() { detach(); }

    void attach(const QString &database, const FirebirdLogin &login);
    void detach();

    /// A prepared statement, taken from those that are idle or prepared anew.
    std::unique_ptr<FirebirdStatement> take(const Statement &statement);
    void giveBack(std::unique_ptr<FirebirdStatement> statement, const QString &text);

    QString connection;
    isc_db_handle database = 0;
    isc_tr_handle reading = 0;

private:
    std::map<QString, std::vector<std::unique_ptr<FirebirdStatement>>> idle_;
};

namespace {

void addText(QByteArray &block, char item, const QString &text) {
    const QByteArray bytes = text.toUtf8();
    block += item;
    block += static_cast<char>(bytes.size());
    block += bytes;
}

enum class Password { Given, LeftOut };

QByteArray databaseParameters(const FirebirdLogin &login, Password password) {
    QByteArray block(1, isc_dpb_version1);
    addText(block, isc_dpb_user_name, login.user);
    if (password == Password::Given) {
        addText(block, isc_dpb_password, login.password);
    }
    addText(block, isc_dpb_lc_ctype, QStringLiteral("UTF8"));
    block += static_cast<char>(isc_dpb_utf8_filename);
    block += '\0';
    if (!login.databaseTriggers) {
        block += static_cast<char>(isc_dpb_no_db_triggers);
        block += '\1';
        block += '\1';
    }
    block += static_cast<char>(isc_dpb_sql_dialect);
    block += '\1';
    block += static_cast<char>(dialect3);
    block += static_cast<char>(isc_dpb_connect_timeout);
    block += '\4';
    for (int shift = 0; shift < 32; shift += 8) {
        block += static_cast<char>((login.connectTimeoutSeconds >> shift) & 0xff);
    }
    return block;
}

bool isEmbedded(const QString &database) {
    return QFileInfo(database).isAbsolute();
}

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

class FirebirdResultSet final : public ResultSet {
public:
    FirebirdResultSet(std::shared_ptr<FirebirdAttachment> attachment,
                      std::unique_ptr<FirebirdStatement> statement, Statement source)
        : attachment_(std::move(attachment)),
          statement_(std::move(statement)),
          source_(std::move(source)),
          columns_(statement_->columns) {}
    ~FirebirdResultSet() override { end(); }

    const std::vector<Column> &columns() const override { return *columns_; }

    bool fetch(Row &row) override {
        if (!statement_) {
            return false;
        }
        if (attachment_->database == 0) {
            throw DatabaseError(
                QStringLiteral("La conexión %1 está cerrada.").arg(attachment_->connection),
                {DatabaseFailure::ConnectionLost,
                 {},
                 0,
                 {},
                 attachment_->connection,
                 source_.name});
        }
        FirebirdStatus status(attachment_->connection, source_.name);
        constexpr ISC_STATUS atEnd = 100;
        const ISC_STATUS outcome = isc_dsql_fetch(status.vector(), &statement_->handle,
                                                  SQLDA_VERSION1, statement_->row.sqlda());
        if (outcome == atEnd) {
            end();
            return false;
        }
        status.check();
        statement_->row.read(row);
        return true;
    }

private:
    void end() {
        if (!statement_) {
            return;
        }
        if (attachment_->database != 0) {
            ISC_STATUS_ARRAY ignored;
            isc_dsql_free_statement(ignored, &statement_->handle, DSQL_close);
        }
        attachment_->giveBack(std::move(statement_), source_.text);
    }

    std::shared_ptr<FirebirdAttachment> attachment_;
    std::unique_ptr<FirebirdStatement> statement_;
    Statement source_;
    std::shared_ptr<const std::vector<Column>> columns_;  // they outlive the last row
};

/// A write transaction that is rolled back unless it was committed.
class WriteTransaction {
public:
    WriteTransaction(FirebirdAttachment &attachment, const QString &statement)
        : attachment_(attachment), statement_(statement) {
        FirebirdStatus status(attachment_.connection, statement_);
        isc_start_transaction(status.vector(), &handle_, 1, &attachment_.database,
                              static_cast<int>(writeTransaction.size()), writeTransaction.data());
        status.check();
    }
    ~WriteTransaction() {
        if (handle_ != 0) {
            ISC_STATUS_ARRAY ignored;
            isc_rollback_transaction(ignored, &handle_);
        }
    }
    WriteTransaction(const WriteTransaction &) = delete;
    WriteTransaction &operator=(const WriteTransaction &) = delete;

    isc_tr_handle *handle() { return &handle_; }

    void commit() {
        FirebirdStatus status(attachment_.connection, statement_);
        isc_commit_transaction(status.vector(), &handle_);
        status.check();
    }

private:
    FirebirdAttachment &attachment_;
    QString statement_;
    isc_tr_handle handle_ = 0;
};

}  // namespace

FirebirdStatement::FirebirdStatement(FirebirdAttachment &attachment, const Statement &statement)
    : text(toPositional(statement.text)) {
    FirebirdStatus status(attachment.connection, statement.name);
    isc_dsql_allocate_statement(status.vector(), &attachment.database, &handle);
    status.check();
    const QByteArray sql = text.text.toUtf8();
    try {
        isc_dsql_prepare(status.vector(), &attachment.reading, &handle,
                         static_cast<unsigned short>(sql.size()), sql.constData(), dialect3,
                         row.sqlda());
        status.check();
        if (row.grow(row.count())) {
            isc_dsql_describe(status.vector(), &handle, SQLDA_VERSION1, row.sqlda());
            status.check();
        }
        row.allocate();
        columns = std::make_shared<const std::vector<Column>>(row.columns());
        FirebirdRow &binding = parameters.row();
        isc_dsql_describe_bind(status.vector(), &handle, SQLDA_VERSION1, binding.sqlda());
        status.check();
        if (binding.grow(binding.count())) {
            isc_dsql_describe_bind(status.vector(), &handle, SQLDA_VERSION1, binding.sqlda());
            status.check();
        }
        parameters.described();
        const char request[] = {isc_info_sql_stmt_type};
        char answer[16];
        isc_dsql_sql_info(status.vector(), &handle, sizeof request, request, sizeof answer, answer);
        status.check();
        type = isc_vax_integer(answer + 3, 4);
    } catch (...) {
        ISC_STATUS_ARRAY ignored;
        isc_dsql_free_statement(ignored, &handle, DSQL_drop);
        throw;
    }
}

FirebirdStatement::~FirebirdStatement() {
    if (handle != 0) {
        ISC_STATUS_ARRAY ignored;
        isc_dsql_free_statement(ignored, &handle, DSQL_drop);
    }
}

void FirebirdStatement::bind(const Parameters &values, const Statement &statement,
                             const QString &connection) {
    std::vector<const QVariant *> ordered;
    ordered.reserve(static_cast<std::size_t>(text.names.size()));
    // Routines give their values in the order of the text: a hundred of them are looked up at once.
    qsizetype expected = 0;
    for (const QString &name : std::as_const(text.names)) {
        if (expected < values.size() && values.at(expected).first == name) {
            ordered.push_back(&values.at(expected).second);
        } else {
            ordered.push_back(&parameterValue(values, name, statement, connection));
        }
        ++expected;
    }
    parameters.bind(ordered, text.names, statement, connection);
}

void FirebirdAttachment::attach(const QString &path, const FirebirdLogin &login) {
    const QByteArray name = path.toUtf8();
    FirebirdStatus status(connection, QString());
    const auto attempt = [&](Password password) {
        const QByteArray block = databaseParameters(login, password);
        return isc_attach_database(status.vector(), static_cast<short>(name.size()),
                                   name.constData(), &database, static_cast<short>(block.size()),
                                   block.constData()) == 0;
    };
    // The engine in the process asks for no password, and is quicker without one. Where it can't
    // open the file, a server of this machine may, and that one asks.
    if (!isEmbedded(path) || !attempt(Password::LeftOut)) {
        attempt(Password::Given);
    }
    status.check();
    isc_start_transaction(status.vector(), &reading, 1, &database,
                          static_cast<int>(readTransaction.size()), readTransaction.data());
    status.check();
}

void FirebirdAttachment::detach() {
    if (database == 0) {
        return;
    }
    idle_.clear();
    ISC_STATUS_ARRAY ignored;
    if (reading != 0) {
        isc_commit_transaction(ignored, &reading);
        reading = 0;
    }
    isc_detach_database(ignored, &database);
    database = 0;
}

std::unique_ptr<FirebirdStatement> FirebirdAttachment::take(const Statement &statement) {
    const auto found = idle_.find(statement.text);
    if (found != idle_.end() && !found->second.empty()) {
        auto taken = std::move(found->second.back());
        found->second.pop_back();
        return taken;
    }
    return std::make_unique<FirebirdStatement>(*this, statement);
}

void FirebirdAttachment::giveBack(std::unique_ptr<FirebirdStatement> statement,
                                  const QString &text) {
    constexpr std::size_t keptPerText = 4;
    if (database == 0) {
        statement->handle = 0;
        return;
    }
    auto &kept = idle_[text];
    if (kept.size() < keptPerText) {
        kept.push_back(std::move(statement));
    }
}

FirebirdConnection::FirebirdConnection(QString name, FirebirdLogin login)
    : Connection(std::move(name)), login_(std::move(login)) {}

FirebirdConnection::~FirebirdConnection() {
    close();
}

bool FirebirdConnection::isOpen() const {
    return attachment_ != nullptr;
}

void FirebirdConnection::open() {
    if (isOpen()) {
        return;
    }
    chooseLockFolder(database());
    auto attachment = std::make_shared<FirebirdAttachment>(name());
    attachment->attach(database(), login_);
    attachment_ = std::move(attachment);
}

void FirebirdConnection::close() {
    if (attachment_) {
        attachment_->detach();
        attachment_.reset();
    }
}

std::unique_ptr<ResultSet> FirebirdConnection::select(const Statement &statement,
                                                      const Parameters &values) {
    open();
    const auto execution = watched(statement, values, false);
    if (execution) {
        seam()->beforeExecution(*execution);
    }
    auto prepared = attachment_->take(statement);
    prepared->bind(values, statement, name());
    FirebirdStatus status(name(), statement.name);
    isc_dsql_execute(status.vector(), &attachment_->reading, &prepared->handle, SQLDA_VERSION1,
                     prepared->parameters.row().sqlda());
    status.check();
    if (execution) {
        seam()->afterExecution(*execution);
    }
    return std::make_unique<FirebirdResultSet>(attachment_, std::move(prepared), statement);
}

qint64 FirebirdConnection::execute(const Statement &statement, const Parameters &values) {
    open();
    const auto execution = watched(statement, values, true);
    if (execution) {
        seam()->beforeExecution(*execution);
    }
    auto prepared = attachment_->take(statement);
    prepared->bind(values, statement, name());
    WriteTransaction transaction(*attachment_, statement.name);
    FirebirdStatus status(name(), statement.name);
    const bool routine = prepared->type == isc_info_sql_stmt_exec_procedure;
    isc_dsql_execute2(status.vector(), transaction.handle(), &prepared->handle, SQLDA_VERSION1,
                      prepared->parameters.row().sqlda(),
                      routine && prepared->row.count() > 0 ? prepared->row.sqlda() : nullptr);
    status.check();
    const qint64 changed = routine ? -1 : changedRows(*prepared, statement.name);
    if (execution) {
        seam()->beforeCommit(*execution);
    }
    transaction.commit();
    attachment_->giveBack(std::move(prepared), statement.text);
    if (execution) {
        seam()->afterExecution(*execution);
    }
    return changed;
}

qint64 FirebirdConnection::changedRows(FirebirdStatement &prepared, const QString &statement) {
    FirebirdStatus status(name(), statement);
    const char request[] = {isc_info_sql_records};
    char answer[64];
    isc_dsql_sql_info(status.vector(), &prepared.handle, sizeof request, request, sizeof answer,
                      answer);
    status.check();
    qint64 changed = 0;
    if (answer[0] != isc_info_sql_records) {
        return changed;
    }
    const char *at = answer + 3;
    while (*at != isc_info_end) {
        const char item = *at++;
        const auto length = static_cast<short>(isc_vax_integer(at, 2));
        at += 2;
        if (item != isc_info_req_select_count) {
            changed += isc_vax_integer(at, length);
        }
        at += length;
    }
    return changed;
}

std::vector<Column> FirebirdConnection::describe(const Statement &statement) {
    open();
    auto prepared = attachment_->take(statement);
    std::vector<Column> columns = *prepared->columns;
    attachment_->giveBack(std::move(prepared), statement.text);
    return columns;
}

}  // namespace kaldo
