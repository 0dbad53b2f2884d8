#pragma once

#include <QHash>

#include <type_traits>

#include "data/named_query.h"

namespace kaldo {

/// A row of an open query, wherever its cursor stands.
class QueryRow {
public:
    QueryRow(const NamedQuery &query, int row) : query_(query), row_(row) {}

    QVariant value(const QString &field) const { return query_.valueAt(row_, field); }
    QString text(const QString &field) const { return value(field).toString(); }
    int index() const { return row_; }

private:
    const NamedQuery &query_;
    int row_;
};

/// What `make` makes of each row, read to the last.
template <typename Make>
auto mapRows(NamedQuery &query, Make make) {
    QList<std::invoke_result_t<Make, const QueryRow &>> made;
    const int count = query.count();
    made.reserve(count);
    for (int row = 0; row < count; ++row) {
        made += make(QueryRow(query, row));
    }
    return made;
}

/// What each code of a query stands for.
inline QHash<QString, QString> namesByCode(NamedQuery &query, const QString &code,
                                           const QString &name) {
    QHash<QString, QString> names;
    const int count = query.count();
    for (int at = 0; at < count; ++at) {
        const QueryRow row(query, at);
        names.insert(row.text(code), row.text(name));
    }
    return names;
}

}  // namespace kaldo
