#pragma once

#include <QList>
#include <QString>

#include <stdexcept>

#include "toolkit/core/log.h"

namespace kaldo {

/// What went wrong, as far as screens and tests tell failures apart.
enum class DatabaseFailure {
    Other,
    CannotAttach,    ///< the file or the server isn't there, or refuses
    FileInUse,       ///< another process holds the embedded database
    ConnectionLost,  ///< also where nobody waited for the answer: what the call did isn't known
    Busy,            ///< tried while another call is waited for
    DuplicateKey,
    LockTimeout,  ///< another station held the row for longer than the lock time-out
    BadValue,     ///< a value that doesn't fit its parameter (SQL code -303) or its column
    InUse,        ///< other rows refer to the row to delete or to change
    NotAllowed,   ///< the login may not do it, or nobody may write
    RowGone,      ///< another station deleted the row to write
    Raised,       ///< a stored routine refused, with a text for the user
};

/// The one failure of the data layer: what the engine said, where, and a text for the user.
class DatabaseError : public std::runtime_error, public LoggedFailure {
public:
    struct Details {
        DatabaseFailure failure = DatabaseFailure::Other;
        QList<int> engineCodes;  ///< the engine's own codes, most specific first
        int sqlCode = 0;
        QString engineMessage;  ///< the engine's text, lines joined
        QString connection;     ///< name of the connection: "FBOdonto"
        QString statement;      ///< name of the query or routine, empty for an attach
        bool repeated = false;  ///< an attach that failed a moment ago fails again: it was told
    };

    /// `message` is shown as it stands.
    DatabaseError(const QString &message, Details details);

    const QString &message() const { return message_; }
    const Details &details() const { return details_; }
    DatabaseFailure failure() const { return details_.failure; }

    QString logText() const override;

private:
    QString message_;
    Details details_;
};

/// A database as people call it: "la base de datos de la clínica" for "FBOdonto". A connection
/// that has no such name gives its own.
QString databaseInWords(const QString &connection);

/// A write found no row: another station has deleted it.
DatabaseError rowGone(const QString &connection, const QString &statement);

}  // namespace kaldo
