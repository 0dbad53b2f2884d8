#pragma once

#include <QStringList>

#include "data/connection.h"

namespace kaldo {

/// A stored routine that is executed for what it writes.
class Procedure {
public:
    /// `parameters`: names in the order of the routine, parted by commas and blanks.
    Procedure(const char *name, const char *routine, const char *parameters);
    Procedure(const char *name, const char *routine, const QStringList &parameters);

    const QString &name() const { return statement_.name; }
    const QStringList &parameters() const { return parameters_; }
    void bindTo(Connection &connection) { connection_ = &connection; }
    Connection &connection() const { return *connection_; }

    /// Executes with these values and no others: what isn't given is NULL. Committed on return.
    /// Throws std::logic_error for a name that the routine doesn't have.
    void execute(const Parameters &values);

    const Statement &statement() const { return statement_; }

private:
    Statement statement_;
    QStringList parameters_;
    Parameters nothing_;  ///< all of them, NULL
    Connection *connection_ = nullptr;
};

}  // namespace kaldo
