#include "data/firebird_status.h"

#include <QStringList>

#include <algorithm>
#include <vector>

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

/// What an engine's code means, and how it's told. "%1": the database in words.
struct Meaning {
    QList<int> codes;
    DatabaseFailure failure;
    const char *sentence;
};

/// The first that has one of a failure's codes tells it: what is more special stands first.
const std::vector<Meaning> &meanings() {
    using enum DatabaseFailure;
    static const std::vector<Meaning> all = {
        {{isc_except, isc_except2}, Raised, ""},
        {{isc_unique_key_violation, isc_no_dup}, DuplicateKey, "El registro ya existe."},
        {{isc_lock_timeout, isc_lock_conflict, isc_deadlock, isc_update_conflict},
         LockTimeout,
         "Otra estación está modificando el mismo registro, inténtelo de nuevo."},
        {{isc_net_read_err, isc_net_write_err, isc_conn_lost, isc_att_shutdown, isc_shutdown,
          isc_bad_db_handle},
         ConnectionLost,
         "Se perdió la conexión con %1."},
        {{isc_instance_conflict, isc_lock_dir_access},
         FileInUse,
         "%1 está en uso por otro programa."},
        {{isc_login},
         CannotAttach,
         "No se pudo abrir %1: el servidor no acepta el usuario o la contraseña."},
        {{isc_wrong_ods, isc_badodsver, isc_bad_db_format, isc_db_corrupt, isc_bad_checksum},
         CannotAttach,
         "No se pudo abrir %1: el archivo está dañado o es de otra versión."},
        {{isc_io_error, isc_network_error, isc_unavailable, isc_bad_dpb_content,
          isc_net_connect_err, isc_net_init_error},
         CannotAttach,
         "No se pudo abrir %1."},
        {{isc_foreign_key_references_present},
         InUse,
         "Otros registros dependen de éste, no se puede borrar ni cambiar su clave."},
        {{isc_foreign_key, isc_foreign_key_target_doesnt_exist},
         BadValue,
         "El registro se refiere a otro que no existe."},
        {{isc_string_truncation}, BadValue, "Un texto es demasiado largo para su campo."},
        {{isc_numeric_out_of_range}, BadValue, "Un número es demasiado grande para su campo."},
        {{isc_not_valid, isc_not_valid_for_var, isc_not_valid_for},
         BadValue,
         "Falta un dato obligatorio, o no corresponde a su campo."},
        {{isc_arith_except, isc_convert_error, isc_dsql_sqlda_value_err},
         BadValue,
         "Un valor no corresponde a su campo."},
        {{isc_check_constraint}, BadValue, "Los datos no cumplen una regla de %1."},
        {{isc_no_priv}, NotAllowed, "No hay permiso para esta operación en %1."},
        {{isc_read_only_database, isc_read_only_trans}, NotAllowed, "En %1 sólo se puede leer."},
        {{isc_dsql_relation_err, isc_dsql_field_err, isc_dsql_procedure_err},
         Other,
         "%1 no corresponde a esta versión del programa."},
    };
    return all;
}

const Meaning &meaningOf(const QList<int> &codes, const QString &engineMessage) {
    static const Meaning unknown{{}, DatabaseFailure::Other, "%1 rechazó la operación."};
    static const Meaning inUse{{}, DatabaseFailure::FileInUse, "%1 está en uso por otro programa."};
    for (const Meaning &meaning : meanings()) {
        const bool named = std::any_of(codes.begin(), codes.end(), [&meaning](int code) {
            return meaning.codes.contains(code);
        });
        if (named) {
            // A second process on a file of the engine in the process has no code of its own.
            const bool held = meaning.failure == DatabaseFailure::CannotAttach &&
                              engineMessage.contains(QLatin1String("incompatible"));
            return held ? inUse : meaning;
        }
    }
    return engineMessage.contains(QLatin1String("incompatible")) ? inUse : unknown;
}

QString sentenceOf(const Meaning &meaning, const QString &connection) {
    QString sentence = QString::fromUtf8(meaning.sentence);
    sentence.replace(QLatin1String("%1"), databaseInWords(connection));
    if (!sentence.isEmpty()) {
        sentence[0] = sentence[0].toUpper();
    }
    return sentence;
}

}  // namespace

void FirebirdStatus::check() const {
    check(During::Statement);
}

void FirebirdStatus::checkAttach() const {
    check(During::Attach);
}

void FirebirdStatus::check(During during) const {
    if (!failed()) {
        return;
    }
    DatabaseError::Details details;
    details.engineCodes = codesOf(vector_);
    details.sqlCode = isc_sqlcode(vector_);
    const QStringList lines = linesOf(vector_);
    details.engineMessage = lines.join(QLatin1String(" - "));
    details.connection = connection_;
    details.statement = statement_;
    const Meaning &meaning = meaningOf(details.engineCodes, details.engineMessage);
    details.failure = meaning.failure;
    // A routine's own text stands behind the number and the name of its exception.
    constexpr int raisedLine = 2;
    if (details.failure == DatabaseFailure::Raised && lines.size() > raisedLine) {
        throw DatabaseError(lines.at(raisedLine), details);
    }
    QString sentence = sentenceOf(meaning, connection_);
    if (during == During::Attach && details.failure == DatabaseFailure::ConnectionLost) {
        details.failure = DatabaseFailure::CannotAttach;
        sentence = QStringLiteral("No se pudo abrir %1.").arg(databaseInWords(connection_));
    } else if (during == During::Statement && details.failure == DatabaseFailure::CannotAttach) {
        const bool network = details.engineCodes.contains(isc_network_error);
        details.failure = network ? DatabaseFailure::ConnectionLost : DatabaseFailure::Other;
        sentence = (network ? QStringLiteral("Se perdió la conexión con %1.")
                            : QStringLiteral("Falló el almacenamiento de %1."))
                       .arg(databaseInWords(connection_));
    }
    throw DatabaseError(
        sentence.isEmpty() ? details.engineMessage : sentence + u'\n' + details.engineMessage,
        details);
}

}  // namespace kaldo
