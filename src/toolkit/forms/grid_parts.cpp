#include "toolkit/forms/grid_parts.h"

#include "toolkit/core/clock.h"
#include "toolkit/core/text.h"
#include "toolkit/forms/date_field.h"
#include "toolkit/forms/focus_keeper.h"
#include "toolkit/forms/one_line_text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QValidator>

namespace kaldo {

namespace {

/// Limits what can be typed into a cell.
class CellRules : public QValidator {
public:
    CellRules(const GridColumn::Settings &column, QObject *parent)
        : QValidator(parent), column_(column) {}

    State validate(QString &input, int &) const override {
        for (QChar &c : input) {
            if (breaksLine(c)) {
                c = QLatin1Char(' ');
            }
            if (column_.upper) {
                c = c.toUpper();
            } else if (column_.lower) {
                c = c.toLower();
            }
            if (!allows(c)) {
                return Invalid;
            }
        }
        if (column_.limit > 0) {
            input = cutToWidth(input, column_.limit);
        }
        return Acceptable;
    }

private:
    bool allows(QChar c) const {
        if (!column_.allowed.isEmpty()) {
            return column_.allowed.contains(c);
        }
        switch (column_.mask) {
            case CellMask::Integer:
                return c.isDigit() || c == QLatin1Char('-');
            case CellMask::MoneyTight:
            case CellMask::MoneySpaced:
            case CellMask::Number:
                return c.isDigit() || QStringLiteral(".,-$ ").contains(c);
            case CellMask::Date:
                return c.isDigit() || c == QLatin1Char('/');
            case CellMask::Text:
                break;
        }
        return true;
    }

    GridColumn::Settings column_;
};

bool isNumber(CellMask mask) {
    return mask != CellMask::Text && mask != CellMask::Date;
}

Qt::Alignment alignmentOf(const GridColumn::Settings &column) {
    const Qt::Alignment side = isNumber(column.mask) ? Qt::AlignRight : Qt::AlignLeft;
    return column.alignment.value_or(side) | Qt::AlignVCenter;
}

QString editText(const QVariant &value, const GridColumn::Settings &column) {
    if (column.choices) {
        return GridDelegate::shownText(value, column);
    }
    const bool money = column.mask == CellMask::MoneyTight || column.mask == CellMask::MoneySpaced;
    return maskedText(value, money ? CellMask::Number : column.mask);
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

GridRows::GridRows(QObject *parent) : QSortFilterProxyModel(parent) {
    setSortRole(Qt::EditRole);
}

void GridRows::setColumns(const QHash<int, GridColumn::Settings> &columns) {
    columns_ = columns;
}

void GridRows::setFilter(int section, const QString &text) {
    if (text.trimmed().isEmpty()) {
        filters_.remove(section);
    } else {
        filters_[section] = foldedText(text.trimmed());
    }
    while (!filters_.isEmpty() && sourceModel()->canFetchMore({})) {
        sourceModel()->fetchMore({});
    }
    invalidateRowsFilter();
}

void GridRows::clearFilters() {
    filters_.clear();
    invalidateRowsFilter();
}

Qt::ItemFlags GridRows::flags(const QModelIndex &index) const {
    return QSortFilterProxyModel::flags(index) | Qt::ItemIsEditable;
}

QVariant GridRows::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto column = columns_.constFind(section);
    if (orientation == Qt::Horizontal && column != columns_.constEnd()) {
        if (role == Qt::DisplayRole) {
            return column->title;
        }
        if (role == Qt::TextAlignmentRole) {
            return int(alignmentOf(*column));
        }
    }
    return QSortFilterProxyModel::headerData(section, orientation, role);
}

bool GridRows::filterAcceptsRow(int row, const QModelIndex &) const {
    for (auto filter = filters_.cbegin(); filter != filters_.cend(); ++filter) {
        const QVariant value = sourceModel()->index(row, filter.key()).data(Qt::EditRole);
        if (!foldedText(GridDelegate::shownText(value, columns_.value(filter.key())))
                 .contains(filter.value())) {
            return false;
        }
    }
    return true;
}

bool GridRows::lessThan(const QModelIndex &left, const QModelIndex &right) const {
    const QVariant first = left.data(Qt::EditRole);
    const QVariant second = right.data(Qt::EditRole);
    if (first.typeId() == QMetaType::QString && second.typeId() == QMetaType::QString) {
        return foldedText(first.toString()) < foldedText(second.toString());
    }
    return QSortFilterProxyModel::lessThan(left, right);
}

GridHeader::GridHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent) {
    setHighlightSections(false);
    setSectionsClickable(true);
    setSectionsMovable(false);
    setMinimumSectionSize(16);
    connect(this, &QHeaderView::sectionResized, this, &GridHeader::placeFilters);
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
    option->text = column->yesNo ? QString() : shownText(index.data(Qt::EditRole), *column);
    option->features.setFlag(QStyleOptionViewItem::HasDisplay, !option->text.isEmpty());
    option->displayAlignment = alignmentOf(*column);
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
    style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, grid_);
}

QWidget *GridDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                    const QModelIndex &index) const {
    const GridColumn::Settings *column = columnAt(index.column());
    auto *editor = new QLineEdit(parent);
    editor->setObjectName(QStringLiteral("cellEditor"));
    editor->setFrame(true);
    // A field like others, not in the paler colours in which a grid marks its rows.
    QPalette colours = editor->palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText}) {
        colours.setBrush(role, QApplication::palette().brush(QPalette::Active, role));
    }
    editor->setPalette(colours);
    if (column) {
        editor->setAccessibleName(column->title);
        editor->setAlignment(alignmentOf(*column));
        editor->setValidator(new CellRules(*column, editor));
    }
    grid_->state_->editor = editor;
    grid_->state_->edited = index;
    grid_->watchPart(editor);
    return editor;
}

void GridDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const {
    auto *line = static_cast<QLineEdit *>(editor);
    const GridColumn::Settings *column = columnAt(index.column());
    if (!column || line->isModified()) {
        return;  // the model told a change while someone types
    }
    const QString text = editText(index.data(Qt::EditRole), *column);
    grid_->state_->textBefore = text;
    line->setText(text);
    line->selectAll();
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
    if (event->type() != QEvent::KeyPress) {
        return false;  // leaving the cell is the field's matter, not the editor's
    }
    auto *key = static_cast<QKeyEvent *>(event);
    switch (key->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!key->isAutoRepeat() && grid_->commitEditor()) {
                // The handlers save, reset and reopen the model: not from inside its editor.
                FocusKeeper::get().post([grid = QPointer<DataGrid>(grid_)] {
                    if (grid) {
                        grid->pressEnter();
                    }
                });
            }
            return true;
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

bool GridDelegate::read(const QString &text, const GridColumn::Settings &column, QVariant *value,
                        QString *complaint) {
    const QString typed = text.trimmed();
    if (column.mask != CellMask::Text && typed.isEmpty()) {
        *value = {};
        return true;
    }
    bool well = true;
    switch (column.mask) {
        case CellMask::Text:
            *value = text;
            break;
        case CellMask::Integer:
            *value = typed.toLongLong(&well);
            *complaint = QStringLiteral("«%1» no es un número entero.").arg(typed);
            break;
        case CellMask::Number:
        case CellMask::MoneyTight:
        case CellMask::MoneySpaced: {
            double amount = 0;
            well = parseMoney(typed, &amount);
            *value = amount;
            *complaint = QStringLiteral("«%1» no es un importe. Ejemplo: 1,234.50").arg(typed);
            break;
        }
        case CellMask::Date:
            *value = DateField::parse(typed);
            well = value->toDate().isValid();
            *complaint = QStringLiteral("«%1» no es una fecha. Escriba día/mes/año.").arg(typed);
            break;
    }
    return well;
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
