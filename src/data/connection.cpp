#include "data/connection.h"

#include <QHash>

#include "data/database_error.h"

namespace kaldo {

std::unique_ptr<Execution> Connection::watched(const Statement &statement, const Parameters &values,
                                               bool writes) const {
    if (seam_ == nullptr) {
        return nullptr;
    }
    return std::make_unique<Execution>(
        Execution{name_, statement.name, statement.text, values, writes, seam_->nextOrdinal()});
}

const QVariant &parameterValue(const Parameters &values, const QString &name,
                               const Statement &statement, const QString &connection) {
    for (const auto &[candidate, value] : values) {
        if (candidate.compare(name, Qt::CaseInsensitive) == 0) {
            return value;
        }
    }
    throw DatabaseError(QStringLiteral("Falta el parámetro %1 de %2.").arg(name, statement.name),
                        {DatabaseFailure::BadValue, {}, -303, {}, connection, statement.name});
}

void makeColumnNamesUnique(std::vector<Column> &columns) {
    QHash<QString, int> seen;
    for (Column &column : columns) {
        column.name = column.name.toUpper();
        const int times = seen[column.name]++;
        if (times > 0) {
            column.name += QStringLiteral("_%1").arg(times);
        }
    }
}

}  // namespace kaldo
