#pragma once

#include <QHash>
#include <QSortFilterProxyModel>
#include <QStringList>

#include <functional>

namespace kaldo {

/// A column as a list or a grid shows it.
struct ShownColumn {
    QString title;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    /// What a cell shows for its raw value.
    std::function<QString(const QVariant &value)> text;
};

/// The rows of a model that a list or a grid shows: those that pass the filters, in the order
/// chosen, under titles and masks. Filters go by what is shown, case and accents aside. A row that
/// changes stays where it stands until the order is asked for again, so that none runs away from
/// whoever is editing it. All cells count as editable: the grid itself decides what is.
class ShownRows : public QSortFilterProxyModel {
public:
    explicit ShownRows(QObject *parent);

    void setColumns(const QHash<int, ShownColumn> &columns);
    /// Rows pass that show this text in the column; an empty text lets all through.
    void setFilter(int section, const QString &text);
    /// Rows pass that show each of the words in any of their columns.
    void setWords(const QString &text);
    void clearFilters();
    bool filters() const { return !filters_.isEmpty() || !words_.isEmpty(); }

    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    QString folded(int row, int section) const;

    QHash<int, ShownColumn> columns_;
    QHash<int, QString> filters_;
    QStringList words_;
};

/// Hands out all rows of a model.
void fetchAll(QAbstractItemModel *model);

}  // namespace kaldo
