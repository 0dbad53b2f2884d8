#pragma once

#include "data/connection.h"

namespace kaldo {

/// A named text that writes and delivers nothing: an update or a delete.
class Command {
public:
    Command(const char *name, const char *text)
        : statement_{QString::fromUtf8(name), QString::fromUtf8(text)} {}

    const QString &name() const { return statement_.name; }
    const Statement &statement() const { return statement_; }
    void bindTo(Connection &connection) { connection_ = &connection; }
    Connection &connection() const { return *connection_; }

    /// Committed on return; the number of rows that it changed.
    qint64 execute(const Parameters &values) { return connection_->execute(statement_, values); }

private:
    Statement statement_;
    Connection *connection_ = nullptr;
};

}  // namespace kaldo
