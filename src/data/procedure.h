#pragma once

#include <QStringList>

#include "data/connection.h"

namespace kaldo {

/// A stored routine that is executed for what it writes. Its parameters keep their values between
/// executions, as the screens that set only some of them expect.
class Procedure {
public:
    /// `parameters`: names in the order of the routine, parted by commas and blanks.
    Procedure(const char *name, const char *routine, const char *parameters);
    Procedure(const char *name, const char *routine, const QStringList &parameters);

    const QString &name() const { return statement_.name; }
    const QStringList &parameters() const { return parameters_; }
    void bindTo(Connection &connection) { connection_ = &connection; }
    Connection &connection() const { return *connection_; }

    /// Throws std::logic_error for a name that the routine doesn't have.
    Procedure &set(const QString &parameter, const QVariant &value);
    Procedure &set(const Parameters &values);

    /// Executes with the values as they stand; what was never set is NULL. Committed on return.
    void execute();
    /// Sets these and executes.
    void execute(const Parameters &values) { set(values).execute(); }

    const Statement &statement() const { return statement_; }

private:
    Statement statement_;
    QStringList parameters_;
    Parameters values_;
    Connection *connection_ = nullptr;
};

}  // namespace kaldo
