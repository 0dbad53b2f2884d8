#include "data/row_model.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace kaldo {

bool RowModel::hasField(const QString &field) const {
    return columnOf(field) >= 0;
}

QVariant RowModel::valueAt(int row, const QString &field) const {
    return valueAt(row, requireColumn(field));
}

const QVariant &RowModel::valueAt(int row, int column) const {
    return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
}

int RowModel::columnOf(const QString &field) const {
    const auto known = columnByName_.constFind(field);
    if (known != columnByName_.cend()) {
        return *known;
    }
    const int column = columnByName_.value(field.toUpper(), -1);
    if (column >= 0) {
        columnByName_.insert(field, column);
    }
    return column;
}

int RowModel::requireColumn(const QString &field) const {
    const int column = columnOf(field);
    if (column < 0) {
        throw std::logic_error(
            (objectName() + QLatin1String(" has no field ") + field).toStdString());
    }
    return column;
}

void RowModel::takeColumns(std::vector<Column> columns) {
    const auto same = [](const Column &left, const Column &right) {
        return left.name == right.name && left.kind == right.kind && left.width == right.width;
    };
    if (std::equal(columns.begin(), columns.end(), lastColumns_.begin(), lastColumns_.end(),
                   same)) {
        columns_.swap(lastColumns_);
        columnByName_.swap(lastColumnByName_);
        return;
    }
    ++columnsVersion_;
    columns_ = std::move(columns);
    columnByName_.clear();
    for (std::size_t at = 0; at < columns_.size(); ++at) {
        columnByName_.insert(columns_[at].name, static_cast<int>(at));
    }
}

void RowModel::forgetRows() {
    rows_.clear();
    lastColumns_ = std::exchange(columns_, {});
    lastColumnByName_ = std::exchange(columnByName_, {});
}

void RowModel::appendRows(std::vector<Row> page) {
    if (page.empty()) {
        return;
    }
    const int firstNew = static_cast<int>(rows_.size());
    beginInsertRows({}, firstNew, firstNew + static_cast<int>(page.size()) - 1);
    std::move(page.begin(), page.end(), std::back_inserter(rows_));
    endInsertRows();
}

void RowModel::insertRowAt(int row, Row values) {
    beginInsertRows({}, row, row);
    rows_.insert(rows_.begin() + row, std::move(values));
    endInsertRows();
}

void RowModel::removeRowAt(int row) {
    beginRemoveRows({}, row, row);
    rows_.erase(rows_.begin() + row);
    endRemoveRows();
}

void RowModel::tellChanged(int firstRow, int lastRow) {
    emit dataChanged(index(firstRow, 0), index(lastRow, columnCount() - 1));
}

int RowModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RowModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RowModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole) ||
        index.row() >= rowCount() || index.column() >= columnCount()) {
        return QVariant();
    }
    return valueAt(index.row(), index.column());
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= columnCount()) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return columns_.at(static_cast<std::size_t>(section)).name;
}

}  // namespace kaldo
