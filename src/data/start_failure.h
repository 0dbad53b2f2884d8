#pragma once

#include <QString>

#include <exception>

namespace kaldo {

class DatabaseError;
class DMConexion;

/// Why a database could not be opened and what to do about it, in a sentence or two for the user.
/// `database` is where it lies: a path, or "server:path".
QString attachFailure(const DatabaseError &error, const QString &database);

/// The same for whatever ended the opening of the station's connections.
QString startFailure(const std::exception &failure, DMConexion &conexion);

/// Why nothing was opened and nothing failed: the ini file or the registry names no clinic.
QString nothingNamed(const QString &branch, const QString &iniPath);

/// Why an ini file reads as empty, with its path; empty where it can be read.
QString iniProblem(const QString &path);

}  // namespace kaldo
