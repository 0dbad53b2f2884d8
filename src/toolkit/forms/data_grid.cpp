#include "toolkit/forms/data_grid.h"

#include "toolkit/forms/application.h"
#include "toolkit/forms/focus.h"
#include "toolkit/forms/focus_keeper.h"
#include "toolkit/forms/grid_parts.h"

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace kaldo {

GridColumn::GridColumn(QString field, QString title, int width) {
    settings_.field = std::move(field);
    settings_.title = std::move(title);
    settings_.width = width;
}

GridColumn &GridColumn::mask(CellMask mask) {
    settings_.mask = mask;
    return *this;
}

GridColumn &GridColumn::align(Qt::Alignment alignment) {
    settings_.alignment = alignment;
    return *this;
}

GridColumn &GridColumn::editable(bool on) {
    settings_.editable = on;
    return *this;
}

GridColumn &GridColumn::upper() {
    settings_.upper = true;
    return *this;
}

GridColumn &GridColumn::lower() {
    settings_.lower = true;
    return *this;
}

GridColumn &GridColumn::limit(int characters) {
    settings_.limit = characters;
    return *this;
}

GridColumn &GridColumn::allowed(const QString &characters) {
    settings_.allowed = characters;
    return *this;
}

GridColumn &GridColumn::digits(int most) {
    return mask(CellMask::Integer).allowed(QStringLiteral("0123456789")).limit(most);
}

GridColumn &GridColumn::lookup(LookupSource source) {
    settings_.lookup = std::move(source);
    return *this;
}

GridColumn &GridColumn::strict() {
    settings_.strict = true;
    return *this;
}

GridColumn &GridColumn::choices(const QStringList &items, int code) {
    settings_.choices = std::make_shared<ChoiceRows>(items, code);
    settings_.lookup = settings_.choices->source();
    return strict();
}

GridColumn &GridColumn::yesNo() {
    settings_.yesNo = true;
    return align(Qt::AlignHCenter);
}

GridColumn &GridColumn::sum(CellMask mask) {
    settings_.sum = mask;
    return *this;
}

GridColumn &GridColumn::hidden() {
    settings_.hidden = true;
    return *this;
}

GridColumn &GridColumn::stretch() {
    settings_.stretch = true;
    return *this;
}

DataGrid::DataGrid(QWidget *parent)
    : QTableView(parent), Field(this), state_(std::make_unique<State>()) {
    state_->rows = new ShownRows(this);
    state_->header = new GridHeader(this);
    setHorizontalHeader(state_->header);
    state_->footer = new GridFooter(this);
    setItemDelegate(new GridDelegate(this));
    QTableView::setModel(state_->rows);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    setRowSelection(true);
    Field::setEnterHandler([this] { afterEnter(); });
    connect(state_->header, &GridHeader::filterChanged, this,
            [this](int section, const QString &text) {
                if (!text.trimmed().isEmpty()) {
                    fetchAll(sourceModel());
                }
                state_->rows->setFilter(section, text);
            });
    connect(state_->header, &GridHeader::dragged, this, &DataGrid::rememberWidths);
    connect(state_->header, &GridHeader::filterLeft, this,
            [this] { setFocus(Qt::OtherFocusReason); });
    connect(state_->header, &QHeaderView::sectionClicked, this, &DataGrid::sortBy);
    connect(state_->header, &QHeaderView::sectionResized, state_->footer,
            qOverload<>(&QWidget::update));
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, state_->footer,
            qOverload<>(&QWidget::update));
}

DataGrid::~DataGrid() = default;

QAbstractItemModel *DataGrid::sourceModel() const {
    return state_->rows->sourceModel();
}

void DataGrid::setModel(QAbstractItemModel *model) {
    cancelEditor();
    state_->rows->setSourceModel(model);
    state_->arranged = false;
    state_->fields = modelFields();
    watchModel();
    applyColumns();
    sumsChanged();
}

QStringList DataGrid::modelFields() const {
    QStringList fields;
    const int count = sourceModel() ? sourceModel()->columnCount() : 0;
    for (int section = 0; section < count; ++section) {
        fields += sourceModel()->headerData(section, Qt::Horizontal).toString();
    }
    return fields;
}

void DataGrid::setColumns(const QList<GridColumn> &columns) {
    state_->columns.clear();
    for (const GridColumn &column : columns) {
        state_->columns += column.settings();
    }
    state_->arranged = false;
    applyColumns();
}

void DataGrid::watchModel() {
    for (const QMetaObject::Connection &watch : std::as_const(state_->watches)) {
        disconnect(watch);
    }
    state_->watches.clear();
    QAbstractItemModel *model = sourceModel();
    if (!model) {
        return;
    }
    const auto changed = [this] { sumsChanged(); };
    const auto arrange = [this] {
        applyColumns();
        sumsChanged();
    };
    // A query that is opened again with the same columns finds them as they are.
    const auto rearrange = [this, arrange] {
        if (state_->sortedBy >= 0) {
            // Behind the reset: the other rows of a query that was opened again stand in no order.
            FocusKeeper::get().post([grid = QPointer<DataGrid>(this)] {
                if (grid) {
                    runGuarded([&] { grid->showOrder(); });
                }
            });
        }
        const QStringList fields = modelFields();
        if (fields == state_->fields) {
            sumsChanged();
        } else {
            state_->fields = fields;
            arrange();
        }
    };
    state_->watches << connect(model, &QAbstractItemModel::dataChanged, this, changed)
                    << connect(model, &QAbstractItemModel::rowsInserted, this, changed)
                    << connect(model, &QAbstractItemModel::rowsRemoved, this, changed)
                    << connect(model, &QAbstractItemModel::layoutChanged, this, changed)
                    << connect(model, &QAbstractItemModel::modelReset, this, rearrange)
                    << connect(model, &QAbstractItemModel::headerDataChanged, this, arrange)
                    << connect(model, &QAbstractItemModel::columnsInserted, this, arrange);
}

void DataGrid::applyColumns() {
    QAbstractItemModel *model = sourceModel();
    if (!model || state_->columns.isEmpty()) {
        return;
    }
    QHash<int, GridColumn::Settings> bySection;
    QList<int> order;
    for (const GridColumn::Settings &column : std::as_const(state_->columns)) {
        const int section = fieldSection(*model, column.field);
        if (section >= 0) {
            bySection[section] = column;
            order += section;
        }
    }
    state_->bySection = bySection;
    QHash<int, ShownColumn> shown;
    for (auto column = bySection.cbegin(); column != bySection.cend(); ++column) {
        shown[column.key()] = GridDelegate::shownColumn(*column);
    }
    state_->rows->setColumns(shown);
    const QHash<QString, int> widths = rememberedWidths();
    for (int section = 0; section < model->columnCount(); ++section) {
        setColumnHidden(section, !bySection.contains(section) || bySection[section].hidden);
    }
    for (int place = 0; place < order.size(); ++place) {
        const GridColumn::Settings &column = bySection[order[place]];
        state_->header->moveSection(state_->header->visualIndex(order[place]), place);
        if (!state_->arranged) {
            state_->header->setSectionResizeMode(order[place], QHeaderView::Interactive);
            setColumnWidth(order[place], widths.value(column.field, columnPixels(column)));
        }
    }
    // The user's widths outlive a reopened query.
    state_->arranged = !order.isEmpty();
    state_->header->updateGeometry();
    updateGeometries();
}

void DataGrid::setShownRows(int rows) {
    state_->shownRows = rows;
    updateGeometry();
}

int DataGrid::columnPixels(const GridColumn::Settings &column) const {
    const int title = fontMetrics().horizontalAdvance(column.title);
    return std::max(fontMetrics().averageCharWidth() * column.width, title) + 22;
}

void DataGrid::setColumnEnterHandler(std::function<void(const QString &)> handler) {
    state_->enter = std::move(handler);
}

void DataGrid::setEnterHandler(Handler handler) {
    state_->enter = [handler = std::move(handler)](const QString &) { handler(); };
}

void DataGrid::setArrowCancelHandler(Handler handler) {
    state_->arrowCancel = std::move(handler);
}

void DataGrid::setEscapeHandler(Handler handler) {
    state_->escape = std::move(handler);
}

void DataGrid::setDoubleClickHandler(Handler handler) {
    state_->doubleClick = std::move(handler);
}

void DataGrid::setTabHeld(bool held) {
    state_->tabHeld = held;
    setTabKeyNavigation(held && rowEdit_);
}

void DataGrid::setRowColor(std::function<QColor(int)> color) {
    state_->rowColor = std::move(color);
    viewport()->update();
}

void DataGrid::setRowEdit(bool on) {
    if (!on) {
        cancelEditor();
    }
    rowEdit_ = on;
    // Else Tab leaves the grid before keyPressEvent() is asked.
    setTabKeyNavigation(on && state_->tabHeld);
    if (on && !currentIndex().isValid()) {
        setCurrentRow(0);
    }
    viewport()->update();
}

void DataGrid::setRowSelection(bool on) {
    state_->rowSelection = on;
    setSelectionBehavior(on ? SelectRows : SelectItems);
    if (currentIndex().isValid()) {
        selectionModel()->select(
            currentIndex(), on ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                               : QItemSelectionModel::ClearAndSelect);
    }
}

void DataGrid::setFieldReadOnly(bool readOnly) {
    cancelEditor();
    state_->readOnly = readOnly;
}

int DataGrid::currentRow() const {
    return state_->rows->mapToSource(currentIndex()).row();
}

void DataGrid::setCurrentRow(int row) {
    QAbstractItemModel *model = sourceModel();
    if (!model || row < 0) {
        setCurrentIndex({});
        return;
    }
    while (row >= model->rowCount() && model->canFetchMore({})) {
        const int before = model->rowCount();
        model->fetchMore({});
        if (model->rowCount() == before) {
            break;
        }
    }
    int column = currentIndex().column();
    if (column < 0 || isColumnHidden(column)) {
        column = nextEditable(-1);
        for (int place = 0; column < 0 && place < state_->header->count(); ++place) {
            const int section = state_->header->logicalIndex(place);
            column = isColumnHidden(section) ? -1 : section;
        }
    }
    const QModelIndex index = state_->rows->mapFromSource(model->index(row, std::max(column, 0)));
    if (index.isValid()) {
        setCurrentIndex(index);
        scrollTo(index);
    }
}

QString DataGrid::currentField() const {
    return state_->bySection.value(currentIndex().column()).field;
}

void DataGrid::setCurrentField(const QString &field) {
    const int section = sourceModel() ? fieldSection(*sourceModel(), field) : -1;
    if (section < 0 || isColumnHidden(section)) {
        return;
    }
    state_->fieldMoved = true;
    const int row = currentIndex().isValid() ? currentIndex().row() : 0;
    const QModelIndex index = state_->rows->index(row, section);
    setCurrentIndex(index);
    scrollTo(index);
}

QString DataGrid::nextEditableField(const QString &field) const {
    const int section =
        sourceModel() && !field.isEmpty() ? fieldSection(*sourceModel(), field) : -1;
    const int next = nextEditable(section);
    return next < 0 ? QString() : state_->bySection.value(next).field;
}

QVariant DataGrid::currentValue(const QString &field) const {
    const int section = sourceModel() ? fieldSection(*sourceModel(), field) : -1;
    return section < 0 ? QVariant() : currentIndex().siblingAtColumn(section).data(Qt::EditRole);
}

QString DataGrid::rowText(const QStringList &fields) const {
    constexpr int kTold = 2;
    QStringList lines;
    for (const GridColumn::Settings &column : std::as_const(state_->columns)) {
        const bool told = fields.isEmpty() ? !column.hidden && lines.size() < kTold
                                           : fields.contains(column.field, Qt::CaseInsensitive);
        if (told && currentIndex().isValid()) {
            lines += column.title + QStringLiteral(": ") +
                     GridDelegate::shownText(currentValue(column.field), column);
        }
    }
    return lines.join(u'\n');
}

void DataGrid::setColumnVisible(const QString &field, bool visible) {
    for (GridColumn::Settings &column : state_->columns) {
        if (column.field.compare(field, Qt::CaseInsensitive) == 0 && column.hidden == visible) {
            column.hidden = !visible;
            applyColumns();
        }
    }
}

void DataGrid::setColumnTitle(const QString &field, const QString &title) {
    for (GridColumn::Settings &column : state_->columns) {
        if (column.field.compare(field, Qt::CaseInsensitive) == 0) {
            column.title = title;
        }
    }
    applyColumns();
    state_->header->viewport()->update();
}

void DataGrid::setColumnEditable(const QString &field, bool editable) {
    for (GridColumn::Settings &column : state_->columns) {
        if (column.field.compare(field, Qt::CaseInsensitive) == 0) {
            column.editable = editable;
        }
    }
    applyColumns();
}

void DataGrid::setLookup(const QString &field, const LookupSource &source) {
    for (GridColumn::Settings &column : state_->columns) {
        if (column.field.compare(field, Qt::CaseInsensitive) == 0) {
            column.lookup = source;
            if (ListPopup *list = state_->lists.value(column.field)) {
                list->setSource(source);
            }
        }
    }
    applyColumns();
}

double DataGrid::sum(const QString &field) const {
    const auto known = state_->sums.constFind(field.toUpper());
    if (known != state_->sums.constEnd()) {
        return *known;
    }
    double total = 0;
    const QAbstractItemModel *model = sourceModel();
    const int section = model ? fieldSection(*model, field) : -1;
    for (int row = 0; section >= 0 && row < model->rowCount(); ++row) {
        total += model->index(row, section).data(Qt::EditRole).toDouble();
    }
    state_->sums[field.toUpper()] = total;
    return total;
}

void DataGrid::sumsChanged() {
    state_->sums.clear();
    state_->footer->update();
}

void DataGrid::setFiltering(bool on) {
    state_->header->setFiltering(on);
    if (!on) {
        state_->rows->clearFilters();
    }
    updateGeometries();
}

bool DataGrid::filtering() const {
    return state_->header->filtering();
}

void DataGrid::setSortable(bool on) {
    state_->sortable = on;
    state_->header->setSortIndicatorShown(false);
    if (!on) {
        state_->rows->sort(-1);
        state_->sortedBy = -1;
    }
}

void DataGrid::setEmptyText(const QString &text) {
    state_->emptyText = text;
    viewport()->update();
}

int DataGrid::rowBeside(int places) const {
    const qint64 wanted = qint64(currentIndex().row()) + places;
    while (wanted >= state_->rows->rowCount() && state_->rows->canFetchMore({})) {
        state_->rows->fetchMore({});
    }
    const qint64 held = std::clamp<qint64>(wanted, 0, std::max(0, state_->rows->rowCount() - 1));
    return state_->rows->mapToSource(state_->rows->index(int(held), 0)).row();
}

void DataGrid::sortBy(int section) {
    if (!state_->sortable || rowEdit_) {
        return;
    }
    // Up, down, and back to the order of the query.
    if (state_->sortedBy != section) {
        state_->sortedBy = section;
        state_->order = Qt::AscendingOrder;
    } else if (state_->order == Qt::AscendingOrder) {
        state_->order = Qt::DescendingOrder;
    } else {
        state_->sortedBy = -1;
        state_->order = Qt::AscendingOrder;
    }
    runGuarded([this] { showOrder(); });
}

void DataGrid::showOrder() {
    if (state_->sortedBy >= 0) {
        fetchAll(sourceModel());  // an order over half of the rows would be none
    }
    state_->rows->sort(state_->sortedBy, state_->order);
    state_->header->setSortIndicatorShown(state_->sortedBy >= 0);
    state_->header->setSortIndicator(state_->sortedBy, state_->order);
    scrollTo(currentIndex());
}

QString DataGrid::memoryName() const {
    const QWidget *form = this;
    while (!form->isWindow() && form->parentWidget() &&
           !form->parentWidget()->inherits("QMdiSubWindow")) {
        form = form->parentWidget();
    }
    return form->objectName() + QLatin1Char('.') + objectName();
}

QHash<QString, int> DataGrid::rememberedWidths() const {
    QHash<QString, int> widths;
    const Application *application = Application::current();
    if (!application || !application->columnMemory().recall) {
        return widths;
    }
    const QString kept = application->columnMemory().recall(memoryName());
    for (const QString &column : kept.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const int pixels = column.section(QLatin1Char(':'), 1).toInt();
        if (pixels > 0) {
            widths[column.section(QLatin1Char(':'), 0, 0)] = pixels;
        }
    }
    return widths;
}

void DataGrid::rememberWidths() const {
    const Application *application = Application::current();
    if (!application || !application->columnMemory().keep) {
        return;
    }
    QStringList widths;
    for (auto column = state_->bySection.cbegin(); column != state_->bySection.cend(); ++column) {
        if (!isColumnHidden(column.key())) {
            widths += column->field + QLatin1Char(':') + QString::number(columnWidth(column.key()));
        }
    }
    widths.sort();
    runGuarded(
        [&] { application->columnMemory().keep(memoryName(), widths.join(QLatin1Char(' '))); });
}

}  // namespace kaldo
