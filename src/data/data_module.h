#pragma once

#include <QString>

#include <vector>

#include "data/command.h"
#include "data/named_query.h"
#include "data/procedure.h"

namespace kaldo {

/// A set of named queries and routines that are bound to one connection at start-up. A module
/// keeps a list of what it holds, so that a test can prepare every text against a real database.
class DataModule {
public:
    DataModule(const DataModule &) = delete;
    DataModule &operator=(const DataModule &) = delete;
    virtual ~DataModule() = default;

    const QString &name() const { return name_; }
    const std::vector<NamedQuery *> &queries() const { return queries_; }
    const std::vector<Procedure *> &procedures() const { return procedures_; }
    const std::vector<Command *> &commands() const { return commands_; }

    /// A query without a text, for a screen that builds its text at run time, and writes into
    /// `table` by its `keys`, parted by commas, where these are given. The screen owns it.
    std::unique_ptr<NamedQuery> newQuery(const char *name, const char *table = "",
                                         const char *keys = "") const;
    /// Runs a uniqueness test: true if the text delivers a row.
    bool existe(const RuntimeText &text) const;
    /// Runs a text that delivers nothing; committed on return.
    void ejecutar(const char *name, const RuntimeText &text) const;

protected:
    DataModule(QString name, Connection &connection)
        : name_(std::move(name)), connection_(&connection) {}

    void bindAll(std::initializer_list<NamedQuery *> queries);
    void bindAll(std::initializer_list<Procedure *> procedures);
    void bindAll(std::initializer_list<Command *> commands);

private:
    QString name_;
    Connection *connection_;
    std::vector<NamedQuery *> queries_;
    std::vector<Procedure *> procedures_;
    std::vector<Command *> commands_;
};

}  // namespace kaldo
