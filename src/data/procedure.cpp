#include "data/procedure.h"

#include <stdexcept>

namespace kaldo {

Procedure::Procedure(const char *name, const char *routine, const char *parameters)
    : Procedure(name, routine,
                QString::fromLatin1(parameters).remove(u' ').split(u',', Qt::SkipEmptyParts)) {}

Procedure::Procedure(const char *name, const char *routine, const QStringList &parameters)
    : parameters_(parameters) {
    QString text = QLatin1String("execute procedure ") + QString::fromLatin1(routine);
    if (!parameters_.isEmpty()) {
        text += QLatin1String(" (:") + parameters_.join(QLatin1String(", :")) + u')';
    }
    statement_ = {QString::fromLatin1(name), text};
    for (const QString &parameter : std::as_const(parameters_)) {
        values_.append({parameter, QVariant()});
    }
}

namespace {

/// Mostly they are spelled alike, and that is seen at once.
bool sameName(const QString &one, const QString &other) {
    return one == other || one.compare(other, Qt::CaseInsensitive) == 0;
}

}  // namespace

Procedure &Procedure::set(const QString &parameter, const QVariant &value) {
    for (auto &[name, current] : values_) {
        if (sameName(name, parameter)) {
            current = value;
            return *this;
        }
    }
    throw std::logic_error(
        (name() + QLatin1String(" has no parameter ") + parameter).toStdString());
}

Procedure &Procedure::set(const Parameters &values) {
    // Given in the routine's order, as they mostly are, a hundred values need no search.
    qsizetype expected = 0;
    for (const auto &[name, value] : values) {
        if (expected < values_.size() && sameName(values_.at(expected).first, name)) {
            values_[expected].second = value;
        } else {
            set(name, value);
        }
        ++expected;
    }
    return *this;
}

void Procedure::execute() {
    connection_->execute(statement_, values_);
}

}  // namespace kaldo
