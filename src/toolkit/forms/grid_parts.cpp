#include "toolkit/forms/grid_parts.h"

#include "toolkit/core/clock.h"
#include "toolkit/forms/date_field.h"
#include "toolkit/forms/focus_keeper.h"
#include "toolkit/forms/keys.h"
#include "toolkit/forms/money_field.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QToolTip>

#include <cmath>
#include <limits>

namespace kaldo {

namespace {

/// A column that doesn't tell its digits takes what a 64-bit number has.
constexpr int kIntegerCharacters = 20;

bool isNumber(CellMask mask) {
    return mask != CellMask::Text && mask != CellMask::Date;
}

Qt::Alignment alignmentOf(const GridColumn::Settings &column) {
    const Qt::Alignment side = isNumber(column.mask) ? Qt::AlignRight : Qt::AlignLeft;
    return column.alignment.value_or(side) | Qt::AlignVCenter;
}

/// A minus is what a column takes that doesn't tell its characters.
bool takesMinus(const GridColumn::Settings &column) {
    return column.allowed.isEmpty() || column.allowed.contains(QLatin1Char('-'));
}

LineField *integerEditor(const GridColumn::Settings &column, QWidget *parent) {
    auto *editor = new NumberField(parent);
    editor->setCharacters(column.limit > 0 ? column.limit : kIntegerCharacters);
    qint64 highest = std::numeric_limits<qint64>::max();
    if (column.limit > 0 && column.limit < std::numeric_limits<qint64>::digits10) {
        highest = qint64(std::pow(10, column.limit)) - 1;
    }
    editor->setRange(takesMinus(column) ? -highest : 0, highest);
    return editor;
}

LineField *amountEditor(const GridColumn::Settings &column, QWidget *parent) {
    auto *editor = new MoneyField(parent);
    editor->setCharacters(column.limit);
    editor->setNegativeAllowed(takesMinus(column));
    return editor;
}

LineField *textEditor(const GridColumn::Settings &column, QWidget *parent) {
    auto *editor = new TextField(parent);
    editor->setCharacters(column.choices ? 0 : column.limit);
    editor->setUpperCase(column.upper);
    editor->setLowerCase(column.lower);
    editor->setAllowed(column.allowed);
    return editor;
}

LineField *editorOf(const GridColumn::Settings &column, QWidget *parent) {
    if (column.lookup || column.mask == CellMask::Text) {
        return textEditor(column, parent);
    }
    if (column.mask == CellMask::Date) {
        return new DateField(parent);
    }
    return column.mask == CellMask::Integer ? integerEditor(column, parent)
                                            : amountEditor(column, parent);
}

/// Puts the value of a cell into its editor.
void fill(LineField *editor, const QVariant &value, const GridColumn::Settings &column) {
    if (auto *amount = qobject_cast<MoneyField *>(editor)) {
        if (value.isNull()) {
            amount->setBlank();
        } else {
            amount->setValue(value.toDouble());
        }
    } else if (auto *date = qobject_cast<DateField *>(editor)) {
        date->setDate(value.toDate());
    } else {
        editor->setText(GridDelegate::shownText(value, column));
    }
    editor->selectAll();
}

}  // namespace

LookupSource ChoiceRows::source() {
    return {this,
            QStringLiteral("VALOR"),
            QStringLiteral("TEXTO"),
            {{QStringLiteral("TEXTO"), QString(), 36, CellMask::Text}}};
}

QString ChoiceRows::textOf(const QString &value) const {
    for (const QString &item : items_) {
        if (!value.isEmpty() && item.left(code_) == value) {
            return item;
        }
    }
    return value;
}

int ChoiceRows::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

QVariant ChoiceRows::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    const QString &item = items_.at(index.row());
    return index.column() == 0 ? item.left(code_) : item;
}

QVariant ChoiceRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == 0 ? QStringLiteral("VALOR") : QStringLiteral("TEXTO");
}

GridHeader::GridHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent) {
    setHighlightSections(false);
    setSectionsClickable(true);
    setSectionsMovable(false);
    setMinimumSectionSize(16);
    connect(this, &QHeaderView::sectionResized, this, &GridHeader::placeFilters);
    connect(this, &QHeaderView::sectionResized, this, [this] { resized_ = pressed_; });
    // Queued behind the one that fits the column to its texts.
    connect(this, &QHeaderView::sectionHandleDoubleClicked, this, &GridHeader::dragged,
            Qt::QueuedConnection);
    connect(this, &QHeaderView::sectionMoved, this, &GridHeader::placeFilters);
}

void GridHeader::setFiltering(bool on) {
    filtering_ = on;
    for (QLineEdit *filter : std::as_const(filters_)) {
        filter->clear();
    }
    placeFilters();
    updateGeometry();
}

QLineEdit *GridHeader::filterOf(int section) {
    QLineEdit *&filter = filters_[section];
    if (!filter) {
        filter = new QLineEdit(this);
        filter->setFocusPolicy(Qt::ClickFocus);
        filter->setPlaceholderText(QStringLiteral("Filtrar"));
        filter->setAccessibleName(
            QStringLiteral("Filtro de %1")
                .arg(model()->headerData(section, Qt::Horizontal).toString()));
        filter->installEventFilter(this);
        connect(filter, &QLineEdit::textChanged, this,
                [this, section](const QString &text) { emit filterChanged(section, text); });
    }
    return filter;
}

void GridHeader::focusFilter(int section) {
    if (filtering_) {
        filterOf(section)->setFocus(Qt::TabFocusReason);
    }
}

QSize GridHeader::sizeHint() const {
    QSize size = QHeaderView::sizeHint();
    size.setHeight(size.height() + 4 + (filtering_ ? fontMetrics().height() + 10 : 0));
    return size;
}

void GridHeader::paintSection(QPainter *painter, const QRect &rect, int section) const {
    QRect title = rect;
    if (filtering_) {
        title.setHeight(QHeaderView::sizeHint().height() + 4);
        painter->fillRect(rect, palette().button());
    }
    QHeaderView::paintSection(painter, title, section);
}

void GridHeader::updateGeometries() {
    QHeaderView::updateGeometries();
    placeFilters();
}

void GridHeader::placeFilters() {
    if (!filtering_) {
        for (QLineEdit *filter : std::as_const(filters_)) {
            filter->hide();
        }
        return;
    }
    const int top = QHeaderView::sizeHint().height() + 5;
    for (int section = 0; section < count(); ++section) {
        if (isSectionHidden(section)) {
            if (filters_.contains(section)) {
                filters_[section]->hide();
            }
            continue;
        }
        QLineEdit *filter = filterOf(section);
        filter->setGeometry(sectionViewportPosition(section) + 1, top, sectionSize(section) - 2,
                            fontMetrics().height() + 7);
        filter->show();
    }
}

void GridHeader::mousePressEvent(QMouseEvent *event) {
    pressed_ = true;
    resized_ = false;
    QHeaderView::mousePressEvent(event);
}

void GridHeader::mouseReleaseEvent(QMouseEvent *event) {
    QHeaderView::mouseReleaseEvent(event);
    pressed_ = false;
    if (resized_) {
        resized_ = false;
        emit dragged();
    }
}

bool GridHeader::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape) {
            static_cast<QLineEdit *>(watched)->clear();
        }
        if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter ||
            key == Qt::Key_Down) {
            emit filterLeft();
            return true;
        }
    }
    return QHeaderView::eventFilter(watched, event);
}

GridDelegate::GridDelegate(DataGrid *grid) : QStyledItemDelegate(grid), grid_(grid) {}

ShownColumn GridDelegate::shownColumn(const GridColumn::Settings &column) {
    return {column.title, alignmentOf(column),
            [column](const QVariant &value) { return shownText(value, column); }};
}

QString GridDelegate::shownText(const QVariant &value, const GridColumn::Settings &column) {
    return column.choices ? column.choices->textOf(value.toString())
                          : maskedText(value, column.mask);
}

const GridColumn::Settings *GridDelegate::columnAt(int section) const {
    const auto found = grid_->state_->bySection.constFind(section);
    return found == grid_->state_->bySection.constEnd() ? nullptr : &*found;
}

void GridDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const GridColumn::Settings *column = columnAt(index.column());
    if (!column) {
        return;
    }
    if (column->yesNo) {
        option->text.clear();
    }
    option->features.setFlag(QStyleOptionViewItem::HasDisplay, !option->text.isEmpty());
    option->textElideMode = Qt::ElideRight;
    if (grid_->state_->rowColor) {
        const QColor color = grid_->state_->rowColor(grid_->state_->rows->mapToSource(index).row());
        if (color.isValid()) {
            option->palette.setColor(QPalette::Text, color);
        }
    }
}

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const {
    QStyleOptionViewItem plain = option;
    plain.state.setFlag(QStyle::State_HasFocus, false);
    if (!grid_->hasFocus()) {
        // Keys go elsewhere, or into the editor of a cell that stands out of a muted row.
        plain.state.setFlag(QStyle::State_Active, false);
    }
    QStyledItemDelegate::paint(painter, plain, index);
    const GridColumn::Settings *column = columnAt(index.column());
    if (column && column->yesNo) {
        paintBox(painter, plain, index.data(Qt::EditRole).toString());
    }
    if (index == grid_->currentIndex() && grid_->hasFocus()) {
        // The cell that keys go to, told apart from the row that is marked.
        const QPalette &palette = option.palette;
        QPen frame(QApplication::palette().color(QPalette::Highlight).darker(170), 2);
        frame.setJoinStyle(Qt::MiterJoin);
        painter->save();
        painter->setPen(frame);
        painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
        if (palette.color(QPalette::Highlight).lightness() < 128) {
            painter->setPen(QPen(palette.color(QPalette::HighlightedText), 1));
            painter->drawRect(option.rect.adjusted(2, 2, -3, -3));
        }
        painter->restore();
    }
}

void GridDelegate::paintBox(QPainter *painter, const QStyleOptionViewItem &option,
                            const QString &value) const {
    const QStyle *style = grid_->style();
    QStyleOptionButton box;
    box.palette = option.palette;
    const int side = style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, grid_);
    box.rect = QRect(0, 0, side, side);
    box.rect.moveCenter(option.rect.center());
    box.state = QStyle::State_Enabled;
    if (value == QLatin1String("S")) {
        box.state |= QStyle::State_On;
    } else {
        const bool empty = value.isEmpty() || value == QLatin1String("N");
        box.state |= empty ? QStyle::State_Off : QStyle::State_NoChange;
    }
    style->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, painter, grid_);
}

QWidget *GridDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                    const QModelIndex &index) const {
    const GridColumn::Settings *column = columnAt(index.column());
    LineField *editor = editorOf(column ? *column : GridColumn::Settings(), parent);
    editor->setObjectName(QStringLiteral("cellEditor"));
    editor->becomePartOf(grid_);
    // A field like others, not in the paler colours in which a grid marks its rows.
    QPalette colours = editor->palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText}) {
        colours.setBrush(role, QApplication::palette().brush(QPalette::Active, role));
    }
    editor->setPalette(colours);
    if (column) {
        editor->setAccessibleName(column->title);
        editor->setAlignment(alignmentOf(*column));
    }
    DataGrid::State *state = grid_->state_.get();
    state->editor = editor;
    state->edited = index;
    state->typed.reset();
    const auto typed = [state, editor] {
        if (state->editor == editor) {
            state->typed = editor->text();
        }
    };
    connect(editor, &QLineEdit::textEdited, grid_, typed);
    if (auto *date = qobject_cast<DateField *>(editor)) {
        connect(date, &DateField::dateEdited, grid_, typed);
    }
    return editor;
}

void GridDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const {
    const GridColumn::Settings *column = columnAt(index.column());
    if (column && !grid_->state_->typed) {  // the model may tell a change while someone types
        fill(static_cast<LineField *>(editor), index.data(Qt::EditRole), *column);
    }
}

void GridDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                        const QModelIndex &) const {
    editor->setGeometry(option.rect);
}

bool GridDelegate::eventFilter(QObject *watched, QEvent *event) {
    if (watched != grid_->state_->editor) {
        return QStyledItemDelegate::eventFilter(watched, event);
    }
    if (event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape || key == Qt::Key_F4) {
            event->accept();
            return true;
        }
        return false;
    }
    // Leaving the cell is the field's matter, not the editor's.
    return event->type() == QEvent::KeyPress && editorKey(static_cast<QKeyEvent *>(event));
}

bool GridDelegate::editorKey(QKeyEvent *key) {
    if (isEnter(*key)) {
        if (!key->isAutoRepeat() && grid_->commitEditor()) {
            // The handlers save, reset and reopen the model: not from inside its editor.
            FocusKeeper::get().post([grid = QPointer<DataGrid>(grid_)] {
                if (grid) {
                    grid->pressEnter();
                }
            });
        }
        return true;
    }
    switch (key->key()) {
        case Qt::Key_Escape:
            grid_->cancelEditor();
            return true;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            if (!grid_->state_->tabHeld && grid_->commitEditor() && key->key() == Qt::Key_Tab) {
                grid_->nextColumn();
            }
            return true;
        case Qt::Key_F4:
            grid_->openList();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
            return grid_->arrowKey(key);
        default:
            return false;
    }
}

bool GridDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                             const QStyleOptionViewItem &option, const QModelIndex &index) {
    if (event->type() != QEvent::ToolTip || !index.isValid()) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const int margin = view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1;
    const bool cut = cell.fontMetrics.horizontalAdvance(cell.text) >
                     view->visualRect(index).width() - 2 * margin;
    QToolTip::showText(event->globalPos(), cut ? cell.text : QString(), view);
    return true;
}

bool GridDelegate::read(LineField *editor, const QString &typed, QVariant *value) {
    if (!editor->commit()) {
        return false;
    }
    const bool blank = typed.trimmed().isEmpty();
    if (auto *number = qobject_cast<NumberField *>(editor)) {
        *value = blank ? QVariant() : QVariant(number->value());
    } else if (auto *amount = qobject_cast<MoneyField *>(editor)) {
        *value = blank ? QVariant() : QVariant(amount->value());
    } else if (auto *date = qobject_cast<DateField *>(editor)) {
        *value = blank ? QVariant() : QVariant(date->date());
    } else {
        *value = typed;
    }
    return true;
}

GridFooter::GridFooter(DataGrid *grid) : QWidget(grid), grid_(grid) {
    setObjectName(QStringLiteral("gridFooter"));
}

QSize GridFooter::sizeHint() const {
    for (const GridColumn::Settings &column : std::as_const(grid_->state_->columns)) {
        if (column.sum) {
            return {10, fontMetrics().height() + 9};
        }
    }
    return {0, 0};
}

void GridFooter::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().button());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(rect().topLeft(), rect().topRight());
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::ButtonText));
    // Under the digits of the cells.
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, grid_) + 2;
    const auto &sections = grid_->state_->bySection;
    for (auto column = sections.cbegin(); column != sections.cend(); ++column) {
        if (!column->sum || grid_->isColumnHidden(column.key())) {
            continue;
        }
        const QString text = maskedText(grid_->sum(column->field), *column->sum);
        const int right =
            grid_->columnViewportPosition(column.key()) + grid_->columnWidth(column.key()) - margin;
        // A sum may be wider than its column; it grows to the left.
        const int wide = painter.fontMetrics().horizontalAdvance(text) + 2;
        const int left = std::min(grid_->columnViewportPosition(column.key()) + 3, right - wide);
        painter.drawText(QRect(left, 0, right - left, height()), Qt::AlignRight | Qt::AlignVCenter,
                         text);
    }
}

}  // namespace kaldo
