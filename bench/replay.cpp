#include "bench/replay.h"

#include <ibase.h>

#include <QDateTime>

#include <array>
#include <cmath>
#include <cstring>
#include <map>
#include <stdexcept>

#include "data/firebird_connection.h"
#include "data/firebird_status.h"
#include "data/firebird_values.h"
#include "data/statement_text.h"

namespace kaldo::bench {

namespace {

constexpr int kFirstPage = 64;
constexpr unsigned short kDialect = 3;

constexpr std::array<char, 5> kReading = {isc_tpb_version3, isc_tpb_read, isc_tpb_read_committed,
                                          isc_tpb_rec_version, isc_tpb_nowait};
constexpr std::array<char, 5> kWriting = {isc_tpb_version3, isc_tpb_write, isc_tpb_read_committed,
                                          isc_tpb_rec_version, isc_tpb_wait};

template <typename Value>
void put(XSQLVAR &variable, Value value) {
    std::memcpy(variable.sqldata, &value, sizeof value);
}

void putText(XSQLVAR &variable, const QString &text) {
    const QByteArray bytes = text.toUtf8();
    if (bytes.size() > variable.sqllen) {
        throw std::runtime_error("replay: a text is wider than its parameter");
    }
    if ((variable.sqltype & ~1) == SQL_VARYING) {
        put(variable, static_cast<ISC_USHORT>(bytes.size()));
        std::memcpy(variable.sqldata + sizeof(ISC_USHORT), bytes.constData(),
                    static_cast<std::size_t>(bytes.size()));
    } else {
        std::memset(variable.sqldata, ' ', static_cast<std::size_t>(variable.sqllen));
        std::memcpy(variable.sqldata, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    }
}

ISC_DATE dayOf(const QDate &date) {
    return static_cast<ISC_DATE>(QDate(1858, 11, 17).daysTo(date));
}

ISC_TIME ticksOf(const QTime &time) {
    return static_cast<ISC_TIME>(time.msecsSinceStartOfDay() * 10);
}

qint64 scaledOf(const XSQLVAR &variable, const QVariant &value) {
    if (variable.sqlscale == 0) {
        return value.toLongLong();
    }
    double units = value.toDouble();
    for (int scale = variable.sqlscale; scale < 0; ++scale) {
        units *= 10;
    }
    return std::llround(units);
}

/// The value as the database described its parameter.
void bind(XSQLVAR &variable, const QVariant &value) {
    *variable.sqlind = value.isValid() ? 0 : -1;
    if (!value.isValid()) {
        return;
    }
    switch (variable.sqltype & ~1) {
        case SQL_SHORT:
            return put(variable, static_cast<ISC_SHORT>(scaledOf(variable, value)));
        case SQL_LONG:
            return put(variable, static_cast<ISC_LONG>(scaledOf(variable, value)));
        case SQL_INT64:
            return put(variable, static_cast<ISC_INT64>(scaledOf(variable, value)));
        case SQL_FLOAT:
            return put(variable, value.toFloat());
        case SQL_DOUBLE:
            return put(variable, value.toDouble());
        case SQL_TYPE_DATE:
            return put(variable, dayOf(value.toDate()));
        case SQL_TYPE_TIME:
            return put(variable, ticksOf(value.toTime()));
        case SQL_TIMESTAMP: {
            const QDateTime moment = value.toDateTime();
            return put(variable, ISC_TIMESTAMP{dayOf(moment.date()), ticksOf(moment.time())});
        }
        case SQL_TEXT:
        case SQL_VARYING:
            return putText(variable, value.toString());
        default:
            throw std::runtime_error("replay: a parameter of a kind that it doesn't know");
    }
}

}  // namespace

struct BareClient::Prepared {
    isc_stmt_handle handle = 0;
    PositionalText text;
    FirebirdRow row;
};

struct BareClient::Attachment {
    QString connection;
    isc_db_handle database = 0;
    isc_tr_handle reading = 0;
    std::map<QString, std::unique_ptr<Prepared>> statements;
};

struct PreparedLog::Call {
    BareClient::Attachment *attachment = nullptr;
    BareClient::Prepared *statement = nullptr;
    FirebirdRow parameters;
    QString name;
    bool writes = false;
    int rows = kFirstPage;
};

PreparedLog::PreparedLog() = default;
PreparedLog::~PreparedLog() = default;

int PreparedLog::calls() const {
    return static_cast<int>(calls_.size());
}

BareClient::BareClient(Place place) : place_(std::move(place)) {}

BareClient::~BareClient() {
    for (const auto &attachment : attachments_) {
        ISC_STATUS_ARRAY ignored;
        for (const auto &[text, prepared] : attachment->statements) {
            isc_dsql_free_statement(ignored, &prepared->handle, DSQL_drop);
        }
        isc_commit_transaction(ignored, &attachment->reading);
        isc_detach_database(ignored, &attachment->database);
    }
}

BareClient::Attachment &BareClient::attachmentOf(const QString &connection) {
    for (const auto &attachment : attachments_) {
        if (attachment->connection == connection) {
            return *attachment;
        }
    }
    auto attachment = std::make_unique<Attachment>();
    attachment->connection = connection;
    const FirebirdLogin login;
    QByteArray block(1, isc_dpb_version1);
    const auto add = [&block](char item, const QByteArray &text) {
        block += item;
        block += static_cast<char>(text.size());
        block += text;
    };
    add(isc_dpb_user_name, login.user.toUtf8());
    add(isc_dpb_password, login.password.toUtf8());
    add(isc_dpb_lc_ctype, "UTF8");
    const QByteArray path = place_(connection).toUtf8();
    FirebirdStatus status(connection, path);
    isc_attach_database(status.vector(), static_cast<short>(path.size()), path.constData(),
                        &attachment->database, static_cast<short>(block.size()), block.constData());
    status.check();
    isc_start_transaction(status.vector(), &attachment->reading, 1, &attachment->database,
                          static_cast<int>(kReading.size()), kReading.data());
    status.check();
    attachments_.push_back(std::move(attachment));
    return *attachments_.back();
}

BareClient::Prepared &BareClient::preparedOf(const Execution &execution) {
    Attachment &attachment = attachmentOf(execution.connection);
    std::unique_ptr<Prepared> &known = attachment.statements[execution.text];
    if (known) {
        return *known;
    }
    auto prepared = std::make_unique<Prepared>();
    prepared->text = toPositional(execution.text);
    const QByteArray sql = prepared->text.text.toUtf8();
    FirebirdStatus status(execution.connection, execution.name);
    isc_dsql_allocate_statement(status.vector(), &attachment.database, &prepared->handle);
    status.check();
    isc_dsql_prepare(status.vector(), &attachment.reading, &prepared->handle,
                     static_cast<unsigned short>(sql.size()), sql.constData(), kDialect,
                     prepared->row.sqlda());
    status.check();
    if (prepared->row.grow(prepared->row.count())) {
        isc_dsql_describe(status.vector(), &prepared->handle, SQLDA_VERSION1,
                          prepared->row.sqlda());
        status.check();
    }
    prepared->row.allocate();
    known = std::move(prepared);
    return *known;
}

std::unique_ptr<PreparedLog> BareClient::prepare(const Log &log, const RowsRead &rows) {
    auto result = std::make_unique<PreparedLog>();
    for (const Execution &execution : log) {
        auto call = std::make_unique<PreparedLog::Call>();
        call->attachment = &attachmentOf(execution.connection);
        call->statement = &preparedOf(execution);
        call->name = execution.name;
        call->writes = execution.writes;
        call->rows = rows ? rows(execution.name) : kFirstPage;
        FirebirdStatus status(execution.connection, execution.name);
        FirebirdRow &parameters = call->parameters;
        for (int round = 0; round < 2; ++round) {
            isc_dsql_describe_bind(status.vector(), &call->statement->handle, SQLDA_VERSION1,
                                   parameters.sqlda());
            status.check();
            if (!parameters.grow(parameters.count())) {
                break;
            }
        }
        parameters.allocate();
        for (int at = 0; at < parameters.count(); ++at) {
            bind(parameters.sqlda()->sqlvar[at],
                 parameterValue(execution.values, call->statement->text.names.at(at),
                                {execution.name, execution.text}, execution.connection));
        }
        result->calls_.push_back(std::move(call));
    }
    return result;
}

void BareClient::play(PreparedLog &log) {
    ISC_STATUS_ARRAY status = {};
    const auto failed = [&status] { return status[0] == 1 && status[1] != 0; };
    for (const auto &call : log.calls_) {
        isc_stmt_handle *handle = &call->statement->handle;
        Attachment &attachment = *call->attachment;
        if (call->writes) {
            isc_tr_handle transaction = 0;
            isc_start_transaction(status, &transaction, 1, &attachment.database,
                                  static_cast<int>(kWriting.size()), kWriting.data());
            if (!failed()) {
                FirebirdRow &result = call->statement->row;
                isc_dsql_execute2(status, &transaction, handle, SQLDA_VERSION1,
                                  call->parameters.sqlda(),
                                  result.count() > 0 ? result.sqlda() : nullptr);
            }
            if (!failed()) {
                isc_commit_transaction(status, &transaction);
            }
        } else {
            isc_dsql_execute(status, &attachment.reading, handle, SQLDA_VERSION1,
                             call->parameters.sqlda());
            XSQLDA *row = call->statement->row.sqlda();
            for (int count = 0; count < call->rows && !failed(); ++count) {
                if (isc_dsql_fetch(status, handle, SQLDA_VERSION1, row) == 100) {
                    break;
                }
            }
            if (!failed()) {
                isc_dsql_free_statement(status, handle, DSQL_close);
            }
        }
        if (failed()) {
            FirebirdStatus told(attachment.connection, call->name);
            std::memcpy(told.vector(), status, sizeof status);
            told.check();
        }
    }
}

}  // namespace kaldo::bench
