#pragma once

#include <QLoggingCategory>
#include <QString>

#include <exception>

namespace kaldo {

/// How a run came to life: ini file, databases.
Q_DECLARE_LOGGING_CATEGORY(logStart)  // "kaldo.start"
/// Failures that no screen handled; the user saw their text.
Q_DECLARE_LOGGING_CATEGORY(logFailure)  // "kaldo.failure"
/// Failures behind a box, or a silence, that says less than they do.
Q_DECLARE_LOGGING_CATEGORY(logTold)  // "kaldo.told"

/// A failure that knows more than its text for the user.
class LoggedFailure {
public:
    virtual ~LoggedFailure() = default;
    /// What the log says of it: which statement, which code; no data of a person, no password.
    virtual QString logText() const = 0;
};

/// The text without what stands in it between single quotes, between « » or behind the word
/// "string": values that somebody typed, names of patients among them. The names of tables, columns
/// and files, which stand between double quotes, stay.
QString withoutValues(const QString &text);

/// Tells the log of a failure. `when` says what was being done: "nota 1-4711".
void logTo(const QLoggingCategory &category, const std::exception &failure,
           const QString &when = QString());

/// For whoever catches a failure and tells the user less than it says, or nothing.
inline void logSwallowed(const QString &when, const std::exception &failure) {
    logTo(logTold(), failure, when);
}

/// While it lives, warnings and worse of all categories go to a file, and to the error output. One
/// line each, the newest last:
///
///     2026-11-23 13:05:07.123 [4242] warning kaldo.told: nota 1-4711: ...
///
/// moment of the machine, process, severity, category, text. A text that comes again and again is
/// counted and written once more when another comes. A file of more than a megabyte becomes
/// kaldo.1.log, that one kaldo.2.log, up to 5. The file's folder is made where its parent exists; a
/// file that can't be written is done without.
class FileLog {
public:
    explicit FileLog(const QString &path);
    ~FileLog();
    FileLog(const FileLog &) = delete;
    FileLog &operator=(const FileLog &) = delete;
};

}  // namespace kaldo
