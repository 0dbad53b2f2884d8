#pragma once

#include "toolkit/forms/field.h"
#include "toolkit/forms/list_popup.h"

#include <QTableView>

#include <map>
#include <memory>
#include <optional>

namespace kaldo {

/// One column of a DataGrid: GridColumn("CANT", "Cant", 6).mask(CellMask::Integer).editable().
class GridColumn {
public:
    /// `field` as the model names it, the title shown, the width in characters.
    GridColumn(QString field, QString title, int width);

    GridColumn &mask(CellMask mask);
    /// Where the mask does not settle it: numbers stand right, all else left.
    GridColumn &align(Qt::Alignment alignment);
    GridColumn &editable(bool on = true);
    GridColumn &upper();
    GridColumn &lower();
    /// Characters that can be typed into a cell; 0 for no limit.
    GridColumn &limit(int characters);
    /// Only these characters can be typed.
    GridColumn &allowed(const QString &characters);
    /// A whole number without a sign, of at most so many digits.
    GridColumn &digits(int most);
    /// Cells are chosen from another model by a drop-down; a typed text is sought in the value
    /// field, then by prefix in the display field. The cell stores and shows the value field.
    GridColumn &lookup(LookupSource source);
    /// A text that is not on the list is told as such and stays in the cell's editor, where it
    /// would else make the cell NULL.
    GridColumn &strict();
    /// Cells are chosen from a fixed list by a drop-down. The cell stores the first `code`
    /// characters of an item as its value and shows the whole; a value that no item has shows as
    /// it is. Strict.
    GridColumn &choices(const QStringList &items, int code);
    /// A box that is ticked for "S" and empty for "N" and NULL; other values show half ticked.
    /// Blank and a click turn it over in a row that is open, S and N set it.
    GridColumn &yesNo();
    /// Sum of the column in the footer, under this mask.
    GridColumn &sum(CellMask mask = CellMask::MoneyTight);
    GridColumn &hidden();
    /// This column takes what width is left, never less than its own.
    GridColumn &stretch();

    struct Settings {
        QString field, title, allowed;
        int width = 10;
        int limit = 0;
        CellMask mask = CellMask::Text;
        std::optional<Qt::Alignment> alignment;
        std::optional<CellMask> sum;
        std::optional<LookupSource> lookup;
        std::shared_ptr<class ChoiceRows> choices;  ///< the model of a fixed list
        bool editable = false, upper = false, lower = false, hidden = false, stretch = false;
        bool strict = false, yesNo = false;
    };
    const Settings &settings() const { return settings_; }

private:
    Settings settings_;
};

/// A table bound to a model. The model names its fields by headerData(section, Qt::Horizontal,
/// Qt::DisplayRole), gives raw values in Qt::EditRole, and may hand out its rows by fetchMore();
/// it outlives the grid or is detached from it by setModel(nullptr). setData() may throw: the
/// failure is shown and the editor stays open with its text.
///
/// Cells are edited by the field classes and obey their rules: a number, an amount and a date by
/// their fields, all else as text. Columns are as wide as somebody dragged them; a text that is cut
/// shows whole in a tip. A click on a title sorts, a second one the other way round, a third one
/// restores the order of the model.
///
/// Keyboard. Arrows, Home, End and the page keys move; Ctrl+C copies the current row, or the
/// selected ones, tab-separated; F2 or typing opens the cell editor where the row is open for edit
/// and the column is editable; F2 on a row that isn't open does what a double click does; F4 or
/// Alt+Down opens the list of a look-up column or the calendar of a date; Escape closes the editor
/// and keeps the old value, and on an open row without an editor runs the escape handler. Enter
/// puts the
/// cell's text into the model, closes the editor, and then runs the enter handler; unless that
/// moved the focus, Enter goes on to the next editable column of an open row, else out of the grid.
class DataGrid : public QTableView, public Field {
    Q_OBJECT

public:
    explicit DataGrid(QWidget *parent = nullptr);
    ~DataGrid() override;

    void setColumns(const QList<GridColumn> &columns);
    void setModel(QAbstractItemModel *model) override;

    /// The model that was set; the view itself shows it through the filter and the order chosen.
    QAbstractItemModel *sourceModel() const;

    /// Runs after the cell is committed, with the field of the column. In it moveFocus(),
    /// stayHere() and setCurrentField() hold instead of the move to the next column.
    void setColumnEnterHandler(std::function<void(const QString &field)> handler);
    /// The same for all columns alike.
    void setEnterHandler(Handler handler);
    /// Up or Down on a row that is open for edit, with no list open; without a handler such keys do
    /// nothing there.
    void setArrowCancelHandler(Handler handler);
    void setEscapeHandler(Handler handler);
    void setDoubleClickHandler(Handler handler);
    /// Tab does nothing while a row is open for edit, also in the cell editor, where it would else
    /// go to the next column.
    void setTabHeld(bool held);
    /// The colour of a cell by its row; an invalid colour leaves the default.
    void setRowColor(std::function<QColor(int row)> color);

    /// Row open for edit: the current row is pinned and its editable columns take input.
    void setRowEdit(bool on);
    bool rowEdit() const { return rowEdit_; }
    /// Whole rows are marked rather than the cell.
    void setRowSelection(bool on);

    int currentRow() const;
    void setCurrentRow(int row);
    QString currentField() const;
    /// The editable, visible column after this one as shown, the first for an empty field; empty
    /// if there is none.
    QString nextEditableField(const QString &field) const;
    /// Moves to the column in the current row (the first row if there is none).
    void setCurrentField(const QString &field);
    /// The raw value of a field in the current row; invalid for none.
    QVariant currentValue(const QString &field) const;
    /// The current row as it is shown, "Title: value" a line for each of these fields, in the order
    /// of the columns; for the first two visible columns where none is named. Empty for no row.
    QString rowText(const QStringList &fields = {}) const;
    /// The rows that it would like to have room for; 8 unless told.
    void setShownRows(int rows);
    void setColumnVisible(const QString &field, bool visible);
    void setColumnTitle(const QString &field, const QString &title);
    void setColumnEditable(const QString &field, bool editable);
    void setLookup(const QString &field, const LookupSource &source);

    /// Puts the text of an open cell editor into the model and closes it. False if the model
    /// refused: the failure was shown and the editor is still open.
    bool commitEditor();
    void cancelEditor();
    bool editorOpen() const;
    bool listOpen() const;
    void openList();

    /// The sum of a field over all rows that the model has handed out; NULL counts as nothing.
    double sum(const QString &field) const;

    /// A line of filters under the titles, reached by Ctrl+F; empty ones let all rows through. Rows
    /// keep the numbers of the model everywhere in this class.
    void setFiltering(bool on);
    bool filtering() const;
    /// Off where the work on the screen goes by the order of the rows.
    void setSortable(bool on);
    /// What stands in the grid while it has no rows: what it waits for, or that there are none.
    void setEmptyText(const QString &text);
    /// The row of the model that is shown so many places away from the current one, held at the
    /// first and the last; -1 where none is shown.
    int rowBeside(int places) const;

    bool commit() override { return commitEditor(); }
    void clearField() override {}
    void setFieldReadOnly(bool readOnly) override;

signals:
    void currentRowChanged(int row);
    void currentFieldChanged(const QString &field);
    /// The user picked `sourceRow` of the list of a look-up column; the cell has its value.
    void closedUp(const QString &field, int sourceRow);
    /// A text typed into a look-up column was looked up: its row, or -1 and the cell is NULL.
    void resolved(const QString &field, int sourceRow);
    void cellEdited(const QString &field);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void updateGeometries() override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void paintEvent(QPaintEvent *event) override;
    QSize sizeHint() const override;

private:
    friend class GridDelegate;
    friend class GridFooter;
    struct State;

    void applyColumns();
    void fitStretched();
    void watchModel();
    QStringList modelFields() const;
    void sumsChanged();
    void afterEnter();
    bool arrowKey(QKeyEvent *event);
    bool boxKey(QKeyEvent *event);
    bool openRowKey(QKeyEvent *event);
    void setBox(bool ticked);
    bool mayEdit(const QModelIndex &index) const;
    void nextColumn();
    void copyRows() const;
    bool store();
    bool readList(const GridColumn::Settings &column, QVariant *value, int *found);
    void pickFromList(const QString &field, int sourceRow);
    void sortBy(int section);
    void showOrder();
    QString memoryName() const;
    QHash<QString, int> rememberedWidths() const;
    void rememberWidths() const;

    int nextEditable(int section) const;
    int columnPixels(const GridColumn::Settings &column) const;

    std::unique_ptr<State> state_;
    bool rowEdit_ = false;
};

}  // namespace kaldo
