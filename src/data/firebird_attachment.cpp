#include "data/firebird_attachment.h"

#include <QFileInfo>

#include <array>

#include "data/firebird_status.h"

namespace kaldo {

namespace {

constexpr unsigned short dialect3 = 3;

constexpr std::array<char, 5> readTransaction = {
    isc_tpb_version3, isc_tpb_read, isc_tpb_read_committed, isc_tpb_rec_version, isc_tpb_nowait};

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

}  // namespace

bool isEmbedded(const QString &database) {
    return QFileInfo(database).isAbsolute();
}

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

qint64 FirebirdStatement::changedRows(const QString &connection, const QString &statement) {
    FirebirdStatus status(connection, statement);
    const char request[] = {isc_info_sql_records};
    char answer[64];
    isc_dsql_sql_info(status.vector(), &handle, sizeof request, request, sizeof answer, answer);
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

FirebirdAttachment::FirebirdAttachment(QString connection, std::shared_ptr<CallRunner> runner,
                                       QString path)
    : connection(std::move(connection)),
      runner_(std::move(runner)),
      path_(std::move(path)),
      away_(!isEmbedded(path_)) {}

FirebirdAttachment::~FirebirdAttachment() {
    // Left: one whose attach came after nobody waited for it any more.
    detach();
}

void FirebirdAttachment::open(const FirebirdLogin &login) {
    requireNoWait(QString());
    const std::chrono::seconds limit(login.connectTimeoutSeconds);
    const auto self = shared_from_this();
    if (!away_) {
        attach(login);
    } else {
        try {
            runner_->run({databaseInWords(connection), limit, {}},
                         [self, login] { self->attach(login); });
        } catch (const CallCut &cut) {
            throw DatabaseError(
                QStringLiteral("No se pudo abrir %1: %2.")
                    .arg(databaseInWords(connection),
                         cut.givenUp ? QStringLiteral("se dejó de esperar")
                                     : QStringLiteral("el servidor no respondió en %1 segundos")
                                           .arg(limit.count())),
                {DatabaseFailure::CannotAttach, {}, 0, {}, connection, {}});
        }
    }
    alive_ = true;
}

void FirebirdAttachment::attach(const FirebirdLogin &login) {
    const QByteArray name = path_.toUtf8();
    FirebirdStatus status(connection, QString());
    const auto attempt = [&](Password password) {
        const QByteArray block = databaseParameters(login, password);
        return isc_attach_database(status.vector(), static_cast<short>(name.size()),
                                   name.constData(), &database, static_cast<short>(block.size()),
                                   block.constData()) == 0;
    };
    // The engine in the process asks for no password, and is quicker without one. Where it can't
    // open the file, a server of this machine may, and that one asks.
    if (away_ || !attempt(Password::LeftOut)) {
        attempt(Password::Given);
    }
    status.checkAttach();
    isc_start_transaction(status.vector(), &reading, 1, &database,
                          static_cast<int>(readTransaction.size()), readTransaction.data());
    status.checkAttach();
}

void FirebirdAttachment::close() {
    if (alive_) {
        const auto self = shared_from_this();
        tidy([self] { self->detach(); });
    }
    alive_ = false;
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

/// The connection is lost: what the client library keeps for it is let go.
void FirebirdAttachment::abandon() {
    close();
}

CallTerms FirebirdAttachment::terms() const {
    return {databaseInWords(connection), runner_->limit(), [handle = database]() mutable {
                ISC_STATUS_ARRAY ignored;
                fb_cancel_operation(ignored, &handle, fb_cancel_abort);
            }};
}

void FirebirdAttachment::requireNoWait(const QString &statement) const {
    if (runner_->waiting()) {
        throw DatabaseError(QStringLiteral("Se espera todavía una respuesta, inténtelo después."),
                            {DatabaseFailure::Busy, {}, 0, {}, connection, statement});
    }
}

void FirebirdAttachment::tellCut(const CallCut &cut, const QString &statement) {
    // The call may still be in the client library, and with it all that the attachment holds.
    alive_ = false;
    constexpr int milliseconds = 1000;
    const QString why = cut.givenUp
                            ? QStringLiteral("se dejó de esperar su respuesta")
                            : QStringLiteral("no respondió en %1 segundos")
                                  .arg((cut.waited.count() + milliseconds / 2) / milliseconds);
    throw DatabaseError(
        QStringLiteral("Se perdió la conexión con %1: %2.").arg(databaseInWords(connection), why),
        {DatabaseFailure::ConnectionLost, {}, 0, {}, connection, statement});
}

PreparedStatement FirebirdAttachment::take(const Statement &statement) {
    const auto found = idle_.find(statement.text);
    if (found != idle_.end() && !found->second.empty()) {
        auto taken = std::move(found->second.back());
        found->second.pop_back();
        return taken;
    }
    return std::make_shared<FirebirdStatement>(*this, statement);
}

void FirebirdAttachment::giveBack(PreparedStatement statement, const QString &text) {
    constexpr std::size_t keptPerText = 4;
    auto &kept = idle_[text];
    if (kept.size() < keptPerText) {
        kept.push_back(std::move(statement));
    }
}

}  // namespace kaldo
