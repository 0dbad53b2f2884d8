#include "data/start_failure.h"

#include "data/database_error.h"
#include "data/dm_conexion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <ibase.h>

#include <algorithm>

namespace kaldo {

namespace {

/// The server of "server:path"; empty for a path of this machine, also for one with a drive.
QString serverOf(const QString &database) {
    static const QRegularExpression remote(QStringLiteral("^([^/\\\\:]{2,}(?:/[^/\\\\:]+)?):"));
    return remote.match(database).captured(1);
}

bool has(const DatabaseError &error, std::initializer_list<ISC_STATUS> codes) {
    const QList<int> &told = error.details().engineCodes;
    return std::any_of(codes.begin(), codes.end(),
                       [&told](ISC_STATUS code) { return told.contains(static_cast<int>(code)); });
}

QString remoteReason(const DatabaseError &error, const QString &server) {
    // Without a code: nobody answered in time.
    if (error.details().engineCodes.isEmpty() ||
        has(error, {isc_network_error, isc_net_connect_err, isc_net_read_err, isc_net_write_err,
                    isc_unavailable})) {
        return QStringLiteral(
                   "no se puede llegar al servidor %1. Revise que esté encendido y que la "
                   "red funcione.")
            .arg(server);
    }
    if (has(error, {isc_io_error})) {
        return QStringLiteral(
                   "el servidor %1 no encuentra el archivo o no tiene permiso para abrirlo. Revise "
                   "la ruta en el registro de bases de datos.")
            .arg(server);
    }
    return {};
}

QString fileReason(const DatabaseError &error, const QString &database) {
    const QFileInfo file(database);
    if (!file.exists() && error.details().connection == QLatin1String("FBLocal")) {
        return QStringLiteral(
            "el archivo no existe. Devuélvalo a su lugar o restaure un respaldo; si la "
            "carpeta de la instalación es otra, inicie KALDO con ella.");
    }
    if (!file.exists()) {
        return QStringLiteral(
            "el archivo no existe. Devuélvalo a su lugar, restaure un respaldo o corrija la ruta "
            "en el registro de bases de datos.");
    }
    if (!file.isFile()) {
        return QStringLiteral("no es un archivo. Corrija la ruta en el registro.");
    }
    if (!file.isReadable() || !file.isWritable() || has(error, {isc_no_priv})) {
        return QStringLiteral(
            "este usuario del equipo no tiene permiso para leer y escribir el archivo. Pídalo al "
            "administrador del equipo.");
    }
    if (error.failure() == DatabaseFailure::FileInUse) {
        return {};
    }
    return has(error, {isc_bad_db_format, isc_wrong_ods, isc_badodsver, isc_db_corrupt,
                       isc_bad_checksum, isc_io_error})
               ? QStringLiteral(
                     "el archivo está dañado o no es una base de datos. Restaure un respaldo.")
               : QString();
}

}  // namespace

QString attachFailure(const DatabaseError &error, const QString &database) {
    const QString server = serverOf(database);
    QString reason = server.isEmpty() ? fileReason(error, database) : remoteReason(error, server);
    if (reason.isEmpty() && error.failure() == DatabaseFailure::FileInUse) {
        reason = QStringLiteral(
            "está en uso por otro programa. Ciérrelo, o espere a que termine, e inicie KALDO de "
            "nuevo.");
    }
    if (reason.isEmpty() && has(error, {isc_login})) {
        reason = QStringLiteral(
            "el servidor no acepta la contraseña. Corrija la clave pass de la sección [Sql] del "
            "archivo de configuración.");
    }
    if (reason.isEmpty()) {
        reason = error.details().engineMessage;
    }
    QString name = databaseInWords(error.details().connection);
    name.front() = name.front().toUpper();
    return QStringLiteral("%1 (%2): %3")
        .arg(name, server.isEmpty() ? QDir::toNativeSeparators(database) : database, reason);
}

QString startFailure(const std::exception &failure, DMConexion &conexion) {
    if (const auto *error = dynamic_cast<const DatabaseError *>(&failure)) {
        for (const Connection *connection : conexion.all()) {
            if (connection->name() == error->details().connection) {
                return attachFailure(*error, connection->database());
            }
        }
    }
    return QString::fromUtf8(failure.what());
}

QString nothingNamed(const QString &branch, const QString &iniPath) {
    if (branch == QLatin1String("Firebird")) {
        return QStringLiteral(
            "El registro de la base de datos local no nombra la base Odontologia; el programa "
            "termina.");
    }
    return QStringLiteral(
               "La clave cliente de la sección [Sql] de %1 dice «%2» y no Firebird; el programa "
               "termina.")
        .arg(QDir::toNativeSeparators(iniPath), branch);
}

QString iniProblem(const QString &path) {
    const QString told = QDir::toNativeSeparators(path);
    QFile file(path);
    if (!file.exists()) {
        return QStringLiteral("Falta el archivo de configuración %1.").arg(told);
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("No se puede leer el archivo de configuración %1: %2")
            .arg(told, file.errorString());
    }
    return file.size() > 0 ? QString()
                           : QStringLiteral("El archivo de configuración %1 está vacío.").arg(told);
}

}  // namespace kaldo
