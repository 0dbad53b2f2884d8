#include "toolkit/forms/application.h"
#include "toolkit/forms/complaint.h"
#include "toolkit/forms/data_grid.h"
#include "toolkit/forms/date_field.h"
#include "toolkit/forms/focus.h"
#include "toolkit/forms/focus_keeper.h"
#include "toolkit/forms/grid_parts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

namespace kaldo {

namespace {

/// What a grid asks for at most: on the smallest desktop its window still fits, with its frame.
constexpr int kWidest = 960;

/// What a cell stores when a row of its list is chosen.
QVariant valueInList(const GridColumn::Settings &column, int row) {
    const QAbstractItemModel &list = *column.lookup->model;
    const QVariant value =
        list.index(row, fieldSection(list, column.lookup->valueField)).data(Qt::EditRole);
    return column.mask == CellMask::Integer ? QVariant(value.toLongLong()) : value;
}

}  // namespace

bool DataGrid::mayEdit(const QModelIndex &index) const {
    const auto column = state_->bySection.constFind(index.column());
    return rowEdit_ && !state_->readOnly && index.isValid() &&
           index.row() == currentIndex().row() && column != state_->bySection.constEnd() &&
           column->editable;
}

bool DataGrid::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) {
    return mayEdit(index) && !state_->bySection.value(index.column()).yesNo &&
           QTableView::edit(index, trigger, event);
}

void DataGrid::setBox(bool ticked) {
    const QString field = currentField();
    const QModelIndex target = state_->rows->mapToSource(currentIndex());
    runGuarded([&] {
        if (sourceModel()->setData(target, ticked ? QStringLiteral("S") : QStringLiteral("N"))) {
            emit cellEdited(field);
        }
    });
}

bool DataGrid::boxKey(QKeyEvent *event) {
    if (!mayEdit(currentIndex()) || !state_->bySection.value(currentIndex().column()).yesNo) {
        return false;
    }
    const bool blank = event->key() == Qt::Key_Space && !event->isAutoRepeat();
    if (!blank && event->key() != Qt::Key_S && event->key() != Qt::Key_N) {
        return false;
    }
    const bool ticked = currentIndex().data(Qt::EditRole).toString() == QLatin1String("S");
    setBox(blank ? !ticked : event->key() == Qt::Key_S);
    return true;
}

bool DataGrid::openRowKey(QKeyEvent *event) {
    if (event->key() != Qt::Key_F2 || rowEdit_ || !state_->doubleClick ||
        !currentIndex().isValid()) {
        return false;
    }
    FocusKeeper::get().post([grid = QPointer<DataGrid>(this), handler = state_->doubleClick] {
        if (grid) {
            runGuarded(handler);
        }
    });
    return true;
}

bool DataGrid::editorOpen() const {
    return state_->editor && state_->edited.isValid();
}

bool DataGrid::listOpen() const {
    for (const ListPopup *list : std::as_const(state_->lists)) {
        if (list->isOpen()) {
            return true;
        }
    }
    return false;
}

bool DataGrid::commitEditor() {
    if (!editorOpen()) {
        return true;
    }
    LineField *editor = state_->editor;
    bool stored = false;
    const bool well = runGuarded([&] { stored = store(); });
    if (well && stored && editor == state_->editor) {
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    } else if (!well || !stored) {
        if (state_->editor) {
            state_->editor->setFocus(Qt::OtherFocusReason);
            state_->editor->selectAll();
        }
    }
    return well && stored;
}

bool DataGrid::store() {
    if (!state_->typed) {
        return true;
    }
    LineField *editor = state_->editor;
    const GridColumn::Settings column = state_->bySection.value(state_->edited.column());
    const bool list = column.lookup && column.lookup->model;
    QVariant value;
    int found = -1;
    if (list ? !readList(column, &value, &found)
             : !GridDelegate::read(editor, *state_->typed, &value)) {
        return false;
    }
    const bool lookedUp = column.lookup && !editor->text().trimmed().isEmpty();
    const QModelIndex target = state_->rows->mapToSource(state_->edited);
    if (!target.isValid() || !sourceModel()->setData(target, value, Qt::EditRole)) {
        complain(editor, QStringLiteral("El valor «%1» no se puede guardar.").arg(editor->text()));
        return false;
    }
    state_->typed.reset();
    emit cellEdited(column.field);
    if (lookedUp) {
        emit resolved(column.field, found);
    }
    return true;
}

bool DataGrid::readList(const GridColumn::Settings &column, QVariant *value, int *found) {
    QAbstractItemModel *list = column.lookup->model;
    const QString typed = state_->editor->text().trimmed();
    if (!typed.isEmpty()) {
        *found = findText(list, fieldSection(*list, column.lookup->valueField), typed);
        if (*found < 0) {
            *found = findPrefix(list, fieldSection(*list, column.lookup->displayField), typed);
        }
        if (*found < 0 && column.strict) {
            complain(state_->editor, QStringLiteral("«%1» no está en la lista.").arg(typed));
            return false;
        }
    }
    *value = *found < 0 ? QVariant() : valueInList(column, *found);
    return true;
}

void DataGrid::cancelEditor() {
    if (editorOpen()) {
        closeEditor(state_->editor, QAbstractItemDelegate::RevertModelCache);
    }
}

void DataGrid::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) {
    const bool own = editor && editor == state_->editor;
    // Also while the window waits for its activation, behind a box: else the next widget has it.
    const bool focused = own && window()->focusWidget() == editor;
    if (own) {
        state_->editor.clear();
        state_->edited = QPersistentModelIndex();
        state_->typed.reset();
    }
    QTableView::closeEditor(editor, hint);
    if (focused) {
        setFocus(Qt::OtherFocusReason);
    }
}

void DataGrid::paintEvent(QPaintEvent *event) {
    QTableView::paintEvent(event);
    if (!state_->emptyText.isEmpty() && state_->rows->rowCount() == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, state_->emptyText);
    }
}

void DataGrid::openList() {
    const int section = currentIndex().column();
    const GridColumn::Settings column = state_->bySection.value(section);
    const bool calendar = !column.lookup && column.mask == CellMask::Date;
    if (!calendar && (!column.lookup || !column.lookup->model)) {
        return;
    }
    if (!editorOpen() && !edit(currentIndex(), EditKeyPressed, nullptr)) {
        return;
    }
    if (calendar) {
        if (auto *date = qobject_cast<DateField *>(state_->editor.data())) {
            date->openCalendar();
        }
        return;
    }
    ListPopup *&list = state_->lists[column.field];
    if (!list) {
        // The grid's, not the editor's: picking closes the editor.
        list = new ListPopup(this);
        list->setSource(*column.lookup);
        connectGuarded(list, &ListPopup::picked, this,
                       [this, field = column.field](int row) { pickFromList(field, row); });
    }
    const int stored = fieldSection(*column.lookup->model, column.lookup->valueField);
    const QString text = state_->editor->text().trimmed();
    list->setAnchor(state_->editor);
    list->open(text.isEmpty() ? -1 : findText(column.lookup->model, stored, text));
    if (!text.isEmpty()) {
        list->seek(text);
    }
}

void DataGrid::pickFromList(const QString &field, int sourceRow) {
    const int section = fieldSection(*sourceModel(), field);
    const GridColumn::Settings column = state_->bySection.value(section);
    const QModelIndex target = state_->rows->mapToSource(currentIndex()).siblingAtColumn(section);
    cancelEditor();
    sourceModel()->setData(target, valueInList(column, sourceRow), Qt::EditRole);
    setFocus(Qt::OtherFocusReason);
    emit cellEdited(field);
    emit closedUp(field, sourceRow);
}

int DataGrid::nextEditable(int section) const {
    int place = section < 0 ? 0 : state_->header->visualIndex(section) + 1;
    for (; place < state_->header->count(); ++place) {
        const int candidate = state_->header->logicalIndex(place);
        if (!isColumnHidden(candidate) && state_->bySection.value(candidate).editable) {
            return candidate;
        }
    }
    return -1;
}

void DataGrid::nextColumn() {
    const int next = nextEditable(currentIndex().column());
    if (next >= 0) {
        setCurrentIndex(currentIndex().siblingAtColumn(next));
    }
}

void DataGrid::afterEnter() {
    state_->fieldMoved = false;
    const bool wasOpen = rowEdit_;
    if (state_->enter) {
        state_->enter(currentField());
    }
    if (FocusKeeper::get().held()) {
        return;
    }
    if (state_->fieldMoved) {
        stayHere();
    } else if (rowEdit_) {
        nextColumn();
        stayHere();
    } else if (wasOpen) {
        stayHere();  // the row was saved or cancelled: its screen goes on from here
    }
}

bool DataGrid::arrowKey(QKeyEvent *event) {
    static const QList<int> leaving = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
    if (!rowEdit_ || !leaving.contains(event->key())) {
        return false;
    }
    if (event->key() == Qt::Key_Down && (event->modifiers() & Qt::AltModifier)) {
        openList();
        return true;
    }
    if (state_->arrowCancel && !listOpen() && !event->isAutoRepeat()) {
        cancelEditor();
        FocusKeeper::get().post([grid = QPointer<DataGrid>(this), handler = state_->arrowCancel] {
            if (grid) {
                runGuarded(handler);
            }
        });
    }
    return true;
}

void DataGrid::keyPressEvent(QKeyEvent *event) {
    const bool control = event->modifiers() & Qt::ControlModifier;
    if (event->matches(QKeySequence::Copy)) {
        copyRows();
        return;
    }
    if (control && event->key() == Qt::Key_F && filtering()) {
        state_->header->focusFilter(std::max(currentIndex().column(), 0));
        return;
    }
    const bool altDown = event->key() == Qt::Key_Down && (event->modifiers() & Qt::AltModifier);
    if (event->key() == Qt::Key_F4 || altDown) {
        openList();
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        if (state_->escape && rowEdit_) {
            const Handler handler = state_->escape;
            runGuarded(handler);
        } else {
            event->ignore();
        }
        return;
    }
    const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (boxKey(event) || openRowKey(event) || (tab && rowEdit_ && state_->tabHeld)) {
        return;
    }
    const bool jumps = control && (event->key() == Qt::Key_Home || event->key() == Qt::Key_End);
    if (arrowKey(event) || (rowEdit_ && jumps)) {
        return;
    }
    const bool types = !control && !event->text().isEmpty() && event->text().at(0).isPrint();
    if (rowEdit_ && types && !mayEdit(currentIndex())) {
        return;  // it would seek another row, and leave the one that is open
    }
    QTableView::keyPressEvent(event);
}

void DataGrid::mousePressEvent(QMouseEvent *event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (rowEdit_ && index.row() != currentIndex().row()) {
        return;  // the row that is open stays the current one
    }
    QTableView::mousePressEvent(event);
    if (index.isValid() && event->button() == Qt::LeftButton && mayEdit(index) &&
        state_->bySection.value(index.column()).yesNo) {
        setBox(index.data(Qt::EditRole).toString() != QLatin1String("S"));
    }
}

void DataGrid::mouseDoubleClickEvent(QMouseEvent *event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (rowEdit_ && index.row() != currentIndex().row()) {
        return;
    }
    if (state_->doubleClick && index.isValid()) {
        setCurrentIndex(index);
        FocusKeeper::get().post([grid = QPointer<DataGrid>(this), handler = state_->doubleClick] {
            if (grid) {
                runGuarded(handler);
            }
        });
        return;
    }
    QTableView::mouseDoubleClickEvent(event);
}

void DataGrid::focusInEvent(QFocusEvent *event) {
    QTableView::focusInEvent(event);
    if (editorOpen()) {
        state_->editor->setFocus(Qt::OtherFocusReason);
        return;
    }
    const bool none = !currentIndex().isValid() || isColumnHidden(currentIndex().column());
    if (none && state_->rows->rowCount() > 0) {
        setCurrentRow(std::max(0, currentRow()));
    }
    if (currentIndex().isValid() && !selectionModel()->hasSelection()) {
        // The base puts the cursor on the first row without marking it.
        selectionModel()->select(currentIndex(),
                                 state_->rowSelection
                                     ? QItemSelectionModel::Select | QItemSelectionModel::Rows
                                     : QItemSelectionModel::Select);
    }
}

void DataGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    QTableView::currentChanged(current, previous);
    if (current.row() != previous.row() || current.isValid() != previous.isValid()) {
        emit currentRowChanged(state_->rows->mapToSource(current).row());
    }
    if (current.column() != previous.column()) {
        emit currentFieldChanged(currentField());
    }
    viewport()->update();
}

void DataGrid::copyRows() const {
    QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty() && currentIndex().isValid()) {
        rows += currentIndex();
    }
    std::sort(rows.begin(), rows.end(),
              [](const QModelIndex &a, const QModelIndex &b) { return a.row() < b.row(); });
    QStringList lines;
    for (const QModelIndex &row : std::as_const(rows)) {
        QStringList cells;
        for (int place = 0; place < state_->header->count(); ++place) {
            const int section = state_->header->logicalIndex(place);
            if (!isColumnHidden(section)) {
                cells += GridDelegate::shownText(row.siblingAtColumn(section).data(Qt::EditRole),
                                                 state_->bySection.value(section));
            }
        }
        lines += cells.join(QLatin1Char('\t'));
    }
    if (!lines.isEmpty()) {
        QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    }
}

void DataGrid::updateGeometries() {
    if (!state_ || state_->inGeometry) {
        return;
    }
    state_->inGeometry = true;
    fitStretched();
    QTableView::updateGeometries();
    const int footer = state_->footer->sizeHint().height();
    QMargins margins = viewportMargins();
    if (footer > 0) {
        margins.setBottom(footer);
        setViewportMargins(margins);
        // The base worked the range out for the viewport without the footer.
        const int shown = viewport()->height();
        verticalScrollBar()->setPageStep(shown);
        verticalScrollBar()->setRange(0, std::max(0, verticalHeader()->length() - shown));
    }
    const QRect view = viewport()->geometry();
    state_->footer->setGeometry(view.left(), view.bottom() + 1, view.width(), footer);
    state_->footer->setVisible(footer > 0);
    state_->inGeometry = false;
}

void DataGrid::fitStretched() {
    for (auto column = state_->bySection.cbegin(); column != state_->bySection.cend(); ++column) {
        if (!column->stretch || isColumnHidden(column.key())) {
            continue;
        }
        const int section = column.key();
        const int others = state_->header->length() - columnWidth(section);
        const bool room = viewport()->width() - others >= columnPixels(*column);
        const auto mode = room ? QHeaderView::Stretch : QHeaderView::Interactive;
        if (state_->header->sectionResizeMode(section) != mode) {
            state_->header->setSectionResizeMode(section, mode);
            setColumnWidth(section, columnPixels(*column));
        }
    }
}

QSize DataGrid::sizeHint() const {
    const int height = state_->header->sizeHint().height() +
                       state_->shownRows * verticalHeader()->defaultSectionSize() +
                       state_->footer->sizeHint().height() + 2 * frameWidth();
    // By the columns that are told, since a window takes its size before its query is open.
    int columns = 0;
    for (const GridColumn::Settings &column : std::as_const(state_->columns)) {
        columns += column.hidden ? 0 : columnPixels(column);
    }
    const int width = columns + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    return {std::min(width, kWidest), height};
}

}  // namespace kaldo
