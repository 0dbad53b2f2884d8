#include "toolkit/forms/shown_rows.h"

#include "toolkit/forms/list_popup.h"

#include <algorithm>

namespace kaldo {

ShownRows::ShownRows(QObject *parent) : QSortFilterProxyModel(parent) {
    setSortRole(Qt::EditRole);
    setDynamicSortFilter(false);
}

void ShownRows::setColumns(const QHash<int, ShownColumn> &columns) {
    columns_ = columns;
}

void ShownRows::setFilter(int section, const QString &text) {
    if (text.trimmed().isEmpty()) {
        filters_.remove(section);
    } else {
        filters_[section] = foldedText(text.trimmed());
    }
    invalidateRowsFilter();
}

void ShownRows::setWords(const QString &text) {
    words_ = foldedText(text).split(u' ', Qt::SkipEmptyParts);
    invalidateRowsFilter();
}

void ShownRows::clearFilters() {
    filters_.clear();
    words_.clear();
    invalidateRowsFilter();
}

Qt::ItemFlags ShownRows::flags(const QModelIndex &index) const {
    return QSortFilterProxyModel::flags(index) | Qt::ItemIsEditable;
}

QVariant ShownRows::data(const QModelIndex &index, int role) const {
    const auto column = columns_.constFind(index.column());
    if (column != columns_.constEnd()) {
        if (role == Qt::DisplayRole) {
            return column->text(QSortFilterProxyModel::data(index, Qt::EditRole));
        }
        if (role == Qt::TextAlignmentRole) {
            return int(column->alignment);
        }
    }
    return QSortFilterProxyModel::data(index, role);
}

QVariant ShownRows::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto column = columns_.constFind(section);
    if (orientation == Qt::Horizontal && column != columns_.constEnd()) {
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
            return column->title;
        }
        if (role == Qt::TextAlignmentRole) {
            return int(column->alignment);
        }
    }
    return QSortFilterProxyModel::headerData(section, orientation, role);
}

QString ShownRows::folded(int row, int section) const {
    const QVariant value = sourceModel()->index(row, section).data(Qt::EditRole);
    const auto column = columns_.constFind(section);
    return foldedText(column == columns_.constEnd() ? value.toString() : column->text(value));
}

bool ShownRows::filterAcceptsRow(int row, const QModelIndex &) const {
    for (auto filter = filters_.cbegin(); filter != filters_.cend(); ++filter) {
        if (!folded(row, filter.key()).contains(filter.value())) {
            return false;
        }
    }
    if (words_.isEmpty()) {
        return true;
    }
    QString shown;
    for (auto column = columns_.cbegin(); column != columns_.cend(); ++column) {
        shown += folded(row, column.key()) + u'\n';
    }
    return std::all_of(words_.cbegin(), words_.cend(),
                       [&shown](const QString &word) { return shown.contains(word); });
}

bool ShownRows::lessThan(const QModelIndex &left, const QModelIndex &right) const {
    const QVariant first = left.data(Qt::EditRole);
    const QVariant second = right.data(Qt::EditRole);
    if (first.typeId() == QMetaType::QString && second.typeId() == QMetaType::QString) {
        return foldedText(first.toString()) < foldedText(second.toString());
    }
    return QSortFilterProxyModel::lessThan(left, right);
}

void fetchAll(QAbstractItemModel *model) {
    while (model && model->canFetchMore({})) {
        model->fetchMore({});
    }
}

}  // namespace kaldo
