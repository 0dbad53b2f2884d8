#pragma once

#include "toolkit/forms/data_grid.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>

class QLineEdit;

namespace kaldo {

/// The model of a fixed list: fields VALOR, the code that the items begin with, and TEXTO, the
/// items.
class ChoiceRows : public QAbstractTableModel {
public:
    ChoiceRows(const QStringList &items, int code) : items_(items), code_(code) {}

    LookupSource source();
    /// The item of a value, the value itself where no item has it.
    QString textOf(const QString &value) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &) const override { return 2; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QStringList items_;
    int code_;
};

/// The rows that a grid shows: filtered by the line under the titles, in the order chosen, with the
/// grid's titles. All cells count as editable: the grid itself decides what is.
class GridRows : public QSortFilterProxyModel {
public:
    explicit GridRows(QObject *parent);

    void setColumns(const QHash<int, GridColumn::Settings> &columns);
    void setFilter(int section, const QString &text);
    void clearFilters();

    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    QHash<int, GridColumn::Settings> columns_;
    QHash<int, QString> filters_;
};

/// Titles, with the line of filters under them when it is on.
class GridHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit GridHeader(QWidget *parent);

    void setFiltering(bool on);
    bool filtering() const { return filtering_; }
    void focusFilter(int section);
    QSize sizeHint() const override;

signals:
    void filterChanged(int section, const QString &text);
    void filterLeft();

protected:
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;
    void updateGeometries() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void placeFilters();
    QLineEdit *filterOf(int section);

    QHash<int, QLineEdit *> filters_;
    bool filtering_ = false;
};

/// Shows cells under their masks and makes their editors.
class GridDelegate : public QStyledItemDelegate {
public:
    explicit GridDelegate(DataGrid *grid);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /// Nothing: the grid itself stores what an editor holds, since it must be able to refuse.
    void setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const override {}
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// What a cell of the column shows for a value.
    static QString shownText(const QVariant &value, const GridColumn::Settings &column);
    /// What is typed, as the raw value of the column; false and a complaint if it is none.
    static bool read(const QString &text, const GridColumn::Settings &column, QVariant *value,
                     QString *complaint);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    const GridColumn::Settings *columnAt(int section) const;
    void paintBox(QPainter *painter, const QStyleOptionViewItem &option,
                  const QString &value) const;

    DataGrid *grid_;
};

/// The sums under the columns.
class GridFooter : public QWidget {
public:
    explicit GridFooter(DataGrid *grid);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    DataGrid *grid_;
};

struct DataGrid::State {
    QList<GridColumn::Settings> columns;
    QHash<int, GridColumn::Settings> bySection;
    QHash<QString, ListPopup *> lists;
    mutable QHash<QString, double> sums;
    QList<QMetaObject::Connection> watches;
    std::function<void(const QString &)> enter;
    Handler arrowCancel;
    Handler escape;
    Handler doubleClick;
    std::function<QColor(int)> rowColor;
    GridRows *rows = nullptr;
    GridHeader *header = nullptr;
    GridFooter *footer = nullptr;
    QPointer<QLineEdit> editor;
    QPersistentModelIndex edited;
    QString textBefore;
    int shownRows = 8;
    bool rowSelection = true;
    bool inGeometry = false;
    bool fieldMoved = false;
    bool arranged = false;
    QStringList fields;  ///< of the model, when the columns were last arranged
    bool readOnly = false;
    bool tabHeld = false;
    bool sortable = false;
    int sortedBy = -1;
    Qt::SortOrder order = Qt::AscendingOrder;
};

}  // namespace kaldo
