#pragma once

#include "toolkit/forms/data_grid.h"
#include "toolkit/forms/line_field.h"
#include "toolkit/forms/shown_rows.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

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
    /// The mouse has made columns wider or narrower.
    void dragged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;
    void updateGeometries() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void placeFilters();
    QLineEdit *filterOf(int section);

    QHash<int, QLineEdit *> filters_;
    bool filtering_ = false;
    bool pressed_ = false;
    bool resized_ = false;
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
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

    /// What a cell of the column shows for a value.
    static QString shownText(const QVariant &value, const GridColumn::Settings &column);
    static ShownColumn shownColumn(const GridColumn::Settings &column);
    /// The raw value of what was typed into the editor of a cell, NULL for a blank that is no text;
    /// false if the editor refused it, and has told why.
    static bool read(LineField *editor, const QString &typed, QVariant *value);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    bool editorKey(QKeyEvent *key);
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
    ShownRows *rows = nullptr;
    GridHeader *header = nullptr;
    GridFooter *footer = nullptr;
    QPointer<LineField> editor;
    QPersistentModelIndex edited;
    std::optional<QString> typed;  ///< into the editor, since it was filled
    QString emptyText;
    int shownRows = 8;
    bool rowSelection = true;
    bool inGeometry = false;
    bool fieldMoved = false;
    bool arranged = false;
    QStringList fields;  ///< of the model, when the columns were last arranged
    bool readOnly = false;
    bool tabHeld = false;
    bool sortable = true;
    int sortedBy = -1;
    Qt::SortOrder order = Qt::AscendingOrder;
};

}  // namespace kaldo
