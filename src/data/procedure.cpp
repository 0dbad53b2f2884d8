#include "data/procedure.h"

#include <algorithm>
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
        nothing_.append({parameter, QVariant()});
    }
}

namespace {

/// Mostly they are spelled alike, and that is seen at once.
bool sameName(const QString &one, const QString &other) {
    return one == other || one.compare(other, Qt::CaseInsensitive) == 0;
}

}  // namespace

void Procedure::execute(const Parameters &values) {
    Parameters all = nothing_;
    // Given in the routine's order, as they mostly are, a hundred values need no search.
    qsizetype expected = 0;
    for (const auto &[name, value] : values) {
        auto given = all.begin() + expected;
        if (expected >= all.size() || !sameName(given->first, name)) {
            given = std::find_if(all.begin(), all.end(), [&name = name](const auto &candidate) {
                return sameName(candidate.first, name);
            });
        }
        if (given == all.end()) {
            throw std::logic_error(
                (this->name() + QLatin1String(" has no parameter ") + name).toStdString());
        }
        given->second = value;
        ++expected;
    }
    connection_->execute(statement_, all);
}

}  // namespace kaldo
