#include "data/firebird_status.h"

#include <QStringList>

#include <algorithm>

#include "data/database_error.h"

namespace kaldo {

namespace {

QList<int> codesOf(const ISC_STATUS *vector) {
    QList<int> codes;
    const ISC_STATUS *at = vector;
    while (*at != isc_arg_end && at < vector + ISC_STATUS_LENGTH) {
        if (*at == isc_arg_gds && at[1] != 0) {
            codes += static_cast<int>(at[1]);
        }
        at += *at == isc_arg_cstring ? 3 : 2;
    }
    return codes;
}

QStringList linesOf(const ISC_STATUS *vector) {
    QStringList lines;
    char buffer[1024];
    while (fb_interpret(buffer, sizeof buffer, &vector) > 0) {
        lines += QString::fromUtf8(buffer);
    }
    return lines;
}

DatabaseFailure failureOf(const QList<int> &codes, const QString &engineMessage) {
    const auto has = [&codes](std::initializer_list<int> wanted) {
        return std::any_of(codes.begin(), codes.end(), [&wanted](int code) {
            return std::find(wanted.begin(), wanted.end(), code) != wanted.end();
        });
    };
    if (has({isc_except, isc_except2})) {
        return DatabaseFailure::Raised;
    }
    if (has({isc_unique_key_violation, isc_no_dup})) {
        return DatabaseFailure::DuplicateKey;
    }
    if (has({isc_lock_timeout, isc_lock_conflict, isc_deadlock, isc_update_conflict})) {
        return DatabaseFailure::LockTimeout;
    }
    if (has({isc_net_read_err, isc_net_write_err, isc_conn_lost, isc_att_shutdown,
             isc_bad_db_handle})) {
        return DatabaseFailure::ConnectionLost;
    }
    if (engineMessage.contains(QLatin1String("incompatible")) ||
        has({isc_instance_conflict, isc_lock_dir_access})) {
        return DatabaseFailure::FileInUse;
    }
    if (has({isc_io_error, isc_network_error, isc_unavailable, isc_login, isc_bad_db_format,
             isc_wrong_ods, isc_badodsver, isc_db_corrupt, isc_bad_checksum, isc_bad_dpb_content,
             isc_net_connect_err, isc_net_init_error})) {
        return DatabaseFailure::CannotAttach;
    }
    if (has({isc_arith_except, isc_string_truncation, isc_convert_error, isc_numeric_out_of_range,
             isc_dsql_sqlda_value_err, isc_not_valid})) {
        return DatabaseFailure::BadValue;
    }
    return DatabaseFailure::Other;
}

QString leadOf(DatabaseFailure failure, const QString &connection) {
    switch (failure) {
        case DatabaseFailure::CannotAttach:
            return QStringLiteral("No se pudo abrir la base de datos %1.").arg(connection);
        case DatabaseFailure::FileInUse:
            return QStringLiteral("La base de datos %1 está en uso por otro programa.")
                .arg(connection);
        case DatabaseFailure::ConnectionLost:
            return QStringLiteral("Se perdió la conexión con la base de datos %1.").arg(connection);
        case DatabaseFailure::DuplicateKey:
            return QStringLiteral("El registro ya existe.");
        case DatabaseFailure::LockTimeout:
            return QStringLiteral(
                "Otra estación está modificando el mismo registro, inténtelo de "
                "nuevo.");
        case DatabaseFailure::BadValue:
            return QStringLiteral("Un valor no corresponde a su campo.");
        case DatabaseFailure::RowGone:
        case DatabaseFailure::Raised:
        case DatabaseFailure::Other:
            break;
    }
    return QString();
}

}  // namespace

void FirebirdStatus::check() const {
    if (!failed()) {
        return;
    }
    DatabaseError::Details details;
    details.engineCodes = codesOf(vector_);
    details.sqlCode = isc_sqlcode(vector_);
    const QStringList lines = linesOf(vector_);
    details.engineMessage = lines.join(QLatin1String(" - "));
    details.failure = failureOf(details.engineCodes, details.engineMessage);
    details.connection = connection_;
    details.statement = statement_;
    // A routine's own text stands behind the number and the name of its exception.
    constexpr int raisedLine = 2;
    if (details.failure == DatabaseFailure::Raised && lines.size() > raisedLine) {
        throw DatabaseError(lines.at(raisedLine), details);
    }
    const QString lead = leadOf(details.failure, connection_);
    throw DatabaseError(
        lead.isEmpty() ? details.engineMessage : lead + u'\n' + details.engineMessage, details);
}

}  // namespace kaldo
