#include "data/schema_version.h"

#include "data/dm_conexion.h"

namespace kaldo {

namespace {

// What `scripts/create-databases` makes: the number of the last step, 1 where there is none.
constexpr int kLocalVersion = 2;
constexpr int kClinicVersion = 2;
constexpr int kFinanceVersion = 1;

int numberOf(Connection &connection, const char *text) {
    const auto rows = connection.select({QStringLiteral("Esquema"), QString::fromLatin1(text)}, {});
    Row row;
    return rows->fetch(row) ? row.front().toInt() : 0;
}

}  // namespace

QString schemaComplaint(const QString &database, int found, int needed) {
    if (found == needed) {
        return {};
    }
    const QString versions = QStringLiteral(" (versión %1; el programa necesita la %2). ")
                                 .arg(QString::number(found), QString::number(needed));
    if (found < needed) {
        return QStringLiteral("La base de datos ") + database +
               QStringLiteral(" es de una versión anterior del sistema") + versions +
               QStringLiteral(
                   "Cierre el programa en todas las estaciones y actualícela con "
                   "scripts/upgrade-databases.");
    }
    return QStringLiteral("La base de datos ") + database +
           QStringLiteral(" es de una versión más reciente del sistema") + versions +
           QStringLiteral("Actualice el programa de esta estación.");
}

int schemaVersion(Connection &connection) {
    const bool known = numberOf(connection,
                                "select count(*) from rdb$relations where rdb$relation_name = "
                                "'ESQUEMA'") > 0;
    return known ? numberOf(connection, "select max(version) from esquema") : 0;
}

QString schemaComplaint(DMConexion &connections) {
    struct Needed {
        Connection &connection;
        const char *database;
        int version;
    };
    const Needed all[] = {{connections.FBLocal, "BD_LOCAL", kLocalVersion},
                          {connections.FBOdonto, "BD_ODONTOLOGIA", kClinicVersion},
                          {connections.FBFinanzas, "BD_FINANZAS", kFinanceVersion}};
    for (const Needed &each : all) {
        if (!each.connection.isOpen()) {
            continue;  // of the other branch, or not in the registry
        }
        const QString complaint = schemaComplaint(QString::fromLatin1(each.database),
                                                  schemaVersion(each.connection), each.version);
        if (!complaint.isEmpty()) {
            return complaint;
        }
    }
    return {};
}

}  // namespace kaldo
