#pragma once

#include <QStringList>

#include <span>

#include "data/connection.h"

namespace kaldo {

/// The statements that write a query's rows into its table. A row is given with the columns that
/// the table has; what stands behind them in it isn't looked at.
class RowWriter {
public:
    using Columns = std::span<const Column>;

    RowWriter(QString query, QString table, QStringList keys)
        : query_(std::move(query)), table_(std::move(table)), keys_(std::move(keys)) {}

    const QString &table() const { return table_; }
    const QStringList &keys() const { return keys_; }

    /// Of what has a value: the rest takes the table's defaults.
    Statement insertion(Columns columns, const Row &row, Parameters *values);
    /// Of what differs from `before`, by the keys of `before`; an empty text where nothing does.
    Statement update(Columns columns, const Row &row, const Row &before, Parameters *values) const;
    Statement deletion(Columns columns, const Row &before, Parameters *values) const;

private:
    QString keyCondition(Columns columns, const Row &row, Parameters *values) const;

    QString query_;
    QString table_;
    QStringList keys_;
    QStringList insertedColumns_;
    QString insertText_;
};

}  // namespace kaldo
