#pragma once

#include <QAbstractTableModel>
#include <QHash>

#include <vector>

#include "data/connection.h"

namespace kaldo {

/// The rows and columns of a query as grids and look-ups see them, without its cursor, its edits
/// and its SQL. Its columns are the fields (headerData gives their names), DisplayRole and EditRole
/// the raw values: what a view asks for while it paints lies there, and asking can't fail.
///
/// Fields are named without regard to case.
class RowModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    bool hasField(const QString &field) const;
    /// Throws std::logic_error for a field that isn't there.
    QVariant valueAt(int row, const QString &field) const;
    const QVariant &valueAt(int row, int column) const;
    /// The place of a field in a row; throws std::logic_error where there's none.
    int requireColumn(const QString &field) const;
    /// Grows with each opening that brings other columns than the one before.
    int columnsVersion() const { return columnsVersion_; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

protected:
    const std::vector<Column> &columns() const { return columns_; }
    std::vector<Row> &rows() { return rows_; }
    const std::vector<Row> &rows() const { return rows_; }
    Row &rowAt(int row) { return rows_.at(static_cast<std::size_t>(row)); }

    /// Between beginResetModel() and endResetModel(): takes these columns, or has none and no rows.
    void takeColumns(std::vector<Column> columns);
    void forgetRows();
    /// Tells the views and makes the change.
    void appendRows(std::vector<Row> page);
    void insertRowAt(int row, Row values);
    void removeRowAt(int row);
    void tellChanged(int firstRow, int lastRow);

private:
    int columnOf(const QString &field) const;

    std::vector<Column> columns_;
    /// By their names, and as the screens spell them once they did.
    mutable QHash<QString, int> columnByName_;
    // Those of the last opening: a screen that reopens a query for each of thousands of notes
    // finds the same columns.
    std::vector<Column> lastColumns_;
    QHash<QString, int> lastColumnByName_;
    int columnsVersion_ = 0;
    std::vector<Row> rows_;
};

}  // namespace kaldo
