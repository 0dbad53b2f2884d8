#include "data/data_module.h"

namespace kaldo {

std::unique_ptr<NamedQuery> DataModule::newQuery(const char *name, const char *table,
                                                 const char *keys) const {
    auto query = std::make_unique<NamedQuery>(QueryDefinition{name, "", table, keys});
    query->bindTo(*connection_);
    return query;
}

bool DataModule::existe(const RuntimeText &text) const {
    const std::unique_ptr<NamedQuery> query = newQuery("Qry000");
    query->setText(text);
    query->open();
    return !query->isEmpty();
}

void DataModule::ejecutar(const char *name, const RuntimeText &text) const {
    execute(*connection_, QString::fromUtf8(name), text);
}

void DataModule::bindAll(std::initializer_list<NamedQuery *> queries) {
    for (NamedQuery *query : queries) {
        query->bindTo(*connection_);
        queries_.push_back(query);
    }
}

void DataModule::bindAll(std::initializer_list<Procedure *> procedures) {
    for (Procedure *procedure : procedures) {
        procedure->bindTo(*connection_);
        procedures_.push_back(procedure);
    }
}

void DataModule::bindAll(std::initializer_list<Command *> commands) {
    for (Command *command : commands) {
        command->bindTo(*connection_);
        commands_.push_back(command);
    }
}

}  // namespace kaldo
