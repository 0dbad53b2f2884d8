#pragma once

#include <QString>

namespace kaldo {

class Connection;
class DMConexion;

/// What the program tells of a database whose schema version isn't the one that it was built for;
/// empty when both agree. Version 0: the database knows none, it is older than versions.
QString schemaComplaint(const QString &database, int found, int needed);

/// The schema version of a database. Throws DatabaseError.
int schemaVersion(Connection &connection);

/// The first complaint about the databases that the start has opened; empty when all are as this
/// program needs them. Throws DatabaseError.
QString schemaComplaint(DMConexion &connections);

}  // namespace kaldo
