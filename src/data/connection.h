#pragma once

#include <QString>
#include <QVariant>

#include <memory>
#include <vector>

#include "data/parameters.h"

namespace kaldo {

/// Which spelling of a run-time text a connection wants.
enum class Dialect {
    Firebird,  ///< parameters
    Odbc,      ///< values written into the text between double quotes
};

enum class ColumnKind { Integer, Number, Text, Date, Time, Timestamp, Boolean };

/// A column of a result, or a parameter, as the database describes it.
struct Column {
    QString name;  ///< upper case; a name that comes again gets _1, _2, ...
    ColumnKind kind = ColumnKind::Text;
    int width = 0;  ///< characters, for texts
};

using Row = std::vector<QVariant>;

/// A statement and the name by which failures, tests and benches know it.
struct Statement {
    QString name;
    QString text;  ///< with named parameters
};

/// The rows of one select, fetched as they are asked for. It must not outlive its connection's
/// opening: after a close every fetch fails.
class ResultSet {
public:
    virtual ~ResultSet() = default;
    virtual const std::vector<Column> &columns() const = 0;
    /// False at the end, and from then on; the statement is free again as soon as it has ended.
    virtual bool fetch(Row &row) = 0;
};

/// One execution, as the seam sees it.
struct Execution {
    QString connection;
    QString name;
    QString text;
    Parameters values;
    bool writes = false;
    int ordinal = 0;  ///< counted from 1 over all connections that share the seam
};

/// A place before and after every execution where tests fail or kill the process and benches
/// count. An exception thrown before the execution or before the commit takes the place of the
/// database's own: nothing of that execution stands.
class Seam {
public:
    virtual ~Seam() = default;
    virtual void beforeExecution(const Execution &) {}
    virtual void beforeCommit(const Execution &) {}
    /// After the commit of a write, or after the opening of a read.
    virtual void afterExecution(const Execution &) {}

    int nextOrdinal() { return ++ordinal_; }

private:
    int ordinal_ = 0;
};

/// A connection to one database. All use is by one thread.
///
/// A write stands in a transaction of its own, committed before the call returns (read committed,
/// lock time-out of 5 s); reads see what is committed and hold nothing back. A closed connection
/// opens itself when a statement needs it. Every failure is a DatabaseError.
class Connection {
public:
    explicit Connection(QString name) : name_(std::move(name)) {}
    virtual ~Connection() = default;
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    const QString &name() const { return name_; }

    /// Where the database lies: a path, "host:path", or an ODBC connection string. Takes effect
    /// at the next opening.
    void setDatabase(const QString &database) { database_ = database; }
    const QString &database() const { return database_; }

    void setSeam(Seam *seam) { seam_ = seam; }

    virtual Dialect dialect() const = 0;
    virtual bool isOpen() const = 0;
    /// A statement would fail now: another call is being waited for (DatabaseFailure::Busy).
    virtual bool waiting() const { return false; }
    virtual void open() = 0;
    virtual void close() = 0;

    /// Opens a select. A missing parameter is an error; values that the text doesn't name are
    /// passed over.
    virtual std::unique_ptr<ResultSet> select(const Statement &statement,
                                              const Parameters &values) = 0;

    /// Executes and commits; the number of rows that it changed, -1 for a routine.
    virtual qint64 execute(const Statement &statement, const Parameters &values) = 0;

    /// Prepares without executing, and describes: for the test of all texts.
    virtual std::vector<Column> describe(const Statement &statement) = 0;

protected:
    /// Null while nobody watches.
    std::unique_ptr<Execution> watched(const Statement &statement, const Parameters &values,
                                       bool writes) const;
    Seam *seam() const { return seam_; }

private:
    QString name_;
    QString database_;
    Seam *seam_ = nullptr;
};

/// The value of a parameter by its name, without regard to case. Throws DatabaseError (BadValue)
/// when it is missing.
const QVariant &parameterValue(const Parameters &values, const QString &name,
                               const Statement &statement, const QString &connection);

/// Names of result columns: upper case, a repeated one gets _1, _2, ... in the order of the text.
void makeColumnNamesUnique(std::vector<Column> &columns);

}  // namespace kaldo
