#include "data/row_writer.h"

#include <algorithm>
#include <stdexcept>

namespace kaldo {

namespace {

/// A column name in a text that is put together here: reserved words need their quotes.
QString columnInText(const QString &name) {
    return name == QLatin1String("USER") ? QStringLiteral("\"USER\"") : name.toLower();
}

}  // namespace

QString RowWriter::keyCondition(Columns columns, const Row &row, Parameters *values) const {
    QStringList conditions;
    for (const QString &key : keys_) {
        const auto column =
            std::find_if(columns.begin(), columns.end(), [&key](const Column &each) {
                return each.name.compare(key, Qt::CaseInsensitive) == 0;
            });
        if (column == columns.end()) {
            throw std::logic_error((query_ + QLatin1String(" has no field ") + key).toStdString());
        }
        const QString name = columnInText(key.toUpper());
        const QVariant &value = row.at(static_cast<std::size_t>(column - columns.begin()));
        if (value.isValid()) {
            conditions += QStringLiteral("%1 = :key_%1").arg(name);
            values->append({QStringLiteral("key_") + name, value});
        } else {
            conditions += name + QLatin1String(" is null");
        }
    }
    if (conditions.isEmpty()) {
        throw std::logic_error((query_ + QLatin1String(" has no key to write by")).toStdString());
    }
    return conditions.join(QLatin1String(" and "));
}

Statement RowWriter::insertion(Columns columns, const Row &row, Parameters *values) {
    QStringList assigned;
    for (std::size_t at = 0; at < columns.size(); ++at) {
        if (row[at].isValid()) {
            assigned += columns[at].name;
            values->append({columns[at].name, row[at]});
        }
    }
    // A screen that appends thousands of rows assigns the same columns each time.
    if (assigned != insertedColumns_) {
        insertedColumns_ = assigned;
        QStringList names;
        for (const QString &name : std::as_const(assigned)) {
            names += columnInText(name);
        }
        insertText_ =
            QStringLiteral("insert into %1 (%2) values (:%3)")
                .arg(table_, names.join(QLatin1String(", ")), assigned.join(QLatin1String(", :")));
    }
    if (assigned.isEmpty()) {
        insertText_ = QStringLiteral("insert into %1 default values").arg(table_);
    }
    return {query_ + QLatin1String(" (insert)"), insertText_};
}

Statement RowWriter::update(Columns columns, const Row &row, const Row &before,
                            Parameters *values) const {
    QStringList changes;
    for (std::size_t at = 0; at < columns.size(); ++at) {
        if (row[at] == before[at] && row[at].isValid() == before[at].isValid()) {
            continue;
        }
        // Named as the column is: a value that doesn't fit is told with the parameter's name.
        changes += QStringLiteral("%1 = :%2").arg(columnInText(columns[at].name), columns[at].name);
        values->append({columns[at].name, row[at]});
    }
    if (changes.isEmpty()) {
        return {};
    }
    const QString condition = keyCondition(columns, before, values);
    return {query_ + QLatin1String(" (update)"),
            QStringLiteral("update %1 set %2 where %3")
                .arg(table_, changes.join(QLatin1String(", ")), condition)};
}

Statement RowWriter::deletion(Columns columns, const Row &before, Parameters *values) const {
    const QString condition = keyCondition(columns, before, values);
    return {query_ + QLatin1String(" (delete)"),
            QStringLiteral("delete from %1 where %2").arg(table_, condition)};
}

}  // namespace kaldo
