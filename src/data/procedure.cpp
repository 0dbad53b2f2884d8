#include "data/procedure.h"

#include <stdexcept>

namespace kaldo {

Procedure::Procedure(const char *name, const char *routine, const char *parameters)
    : Procedure(name, routine,
                QString::fromLatin1(parameters).remove(u' ').split(u',', Qt::SkipEmptyParts)) {}

Procedure::Procedure(const char *name, const char *routine, const QStringList &parameters)
    : name_(QString::fromLatin1(name)),
      routine_(QString::fromLatin1(routine)),
      parameters_(parameters) {
    for (const QString &parameter : std::as_const(parameters_)) {
        values_.append({parameter, QVariant()});
    }
}

Procedure &Procedure::set(const QString &parameter, const QVariant &value) {
    for (auto &[name, current] : values_) {
        if (name.compare(parameter, Qt::CaseInsensitive) == 0) {
            current = value;
            return *this;
        }
    }
    throw std::logic_error((name_ + QLatin1String(" has no parameter ") + parameter).toStdString());
}

Procedure &Procedure::set(const Parameters &values) {
    for (const auto &[name, value] : values) {
        set(name, value);
    }
    return *this;
}

void Procedure::execute() {
    connection_->execute(statement(), values_);
}

Statement Procedure::statement() const {
    QString text = QLatin1String("execute procedure ") + routine_;
    if (!parameters_.isEmpty()) {
        text += QLatin1String(" (:") + parameters_.join(QLatin1String(", :")) + u')';
    }
    return {name_, text};
}

}  // namespace kaldo
