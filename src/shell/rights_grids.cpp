#include "shell/rights_grids.h"

#include "toolkit/forms/application.h"
#include "toolkit/forms/focus.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

constexpr int kCaption = 0;
constexpr int kBox = 1;
constexpr int kFewestShown = 4;
constexpr int kMostWanted = 14;  ///< longer groups scroll where room is scarce

}  // namespace

/// The lines of a group: captions and boxes.
class RightsRows : public QAbstractTableModel {
public:
    RightsRows(NamedQuery &rights, const RightGroup &group, QObject *parent)
        : QAbstractTableModel(parent), rights_(rights), group_(group) {
        const auto changed = [this] { emit dataChanged(index(0, 0), index(rowCount() - 1, kBox)); };
        connectGuarded(&rights_, &NamedQuery::opened, this, changed);
        connectGuarded(&rights_, &NamedQuery::cursorMoved, this, changed);
        connectGuarded(&rights_, &NamedQuery::stateChanged, this, changed);
        connectGuarded(&rights_, &QAbstractItemModel::dataChanged, this, changed);
    }

    bool isBox(int row) const { return !line(row).column.isEmpty(); }
    bool isTicked(int row) const {
        return rights_.isOpen() && rights_.text(line(row).column) == u"S"_s;
    }
    void set(int row, bool ticked) {
        if (rights_.position() >= 0) {
            rights_.set(line(row).column, ticked ? u"S"_s : u"N"_s);
        }
    }

    int rowCount(const QModelIndex &parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(group_.rows.size());
    }
    int columnCount(const QModelIndex &parent = {}) const override {
        return parent.isValid() ? 0 : kBox + 1;
    }
    QVariant data(const QModelIndex &index, int role) const override {
        const RightRow &row = line(index.row());
        if (index.column() == kCaption && role == Qt::DisplayRole) {
            return row.inner ? QString(u"    "_s + row.caption) : row.caption;
        }
        if (role == Qt::FontRole && row.column.isEmpty()) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        if (index.column() != kBox || row.column.isEmpty()) {
            return {};
        }
        if (role == Qt::CheckStateRole) {
            return isTicked(index.row()) ? Qt::Checked : Qt::Unchecked;
        }
        return role == Qt::AccessibleTextRole ? QVariant(isTicked(index.row()) ? u"Sí"_s : u"No"_s)
                                              : QVariant();
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal || section != kCaption) {
            return {};
        }
        if (role == Qt::TextAlignmentRole) {
            return int(Qt::AlignLeft | Qt::AlignVCenter);
        }
        return role == Qt::DisplayRole ? QVariant(group_.title) : QVariant();
    }
    Qt::ItemFlags flags(const QModelIndex &index) const override {
        return isBox(index.row()) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::ItemIsEnabled;
    }

private:
    const RightRow &line(int row) const { return group_.rows.at(static_cast<std::size_t>(row)); }

    NamedQuery &rights_;
    const RightGroup &group_;
};

RightsGrid::RightsGrid(NamedQuery &rights, const RightGroup &group, QWidget *parent)
    : QTableView(parent), Field(this), rows_(new RightsRows(rights, group, this)) {
    setObjectName(u"Derechos "_s + group.title);
    setAccessibleName(group.title);
    setModel(rows_);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setShowGrid(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 3);
    verticalHeader()->setMinimumSectionSize(0);
    QHeaderView *title = horizontalHeader();
    title->setHighlightSections(false);
    title->setSectionsClickable(false);
    title->setMinimumSectionSize(0);
    title->setSectionResizeMode(kCaption, QHeaderView::Stretch);
    title->setSectionResizeMode(kBox, QHeaderView::Fixed);
    setColumnWidth(kBox, style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) + 12);
    setMaximumHeight(heightOf(rows_->rowCount()));
    setEnterHandler([this] {
        if (goTo(neighbour(currentIndex().row(), 1))) {
            stayHere();
        } else {
            emit passed();
        }
    });
}

int RightsGrid::heightOf(int rows) const {
    return horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize() +
           2 * frameWidth();
}

QSize RightsGrid::sizeHint() const {
    const int width = sizeHintForColumn(kCaption) + columnWidth(kBox) +
                      verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    return {width, heightOf(std::min(rows_->rowCount(), kMostWanted))};
}

QSize RightsGrid::minimumSizeHint() const {
    return {sizeHint().width(), heightOf(std::min(rows_->rowCount(), kFewestShown))};
}

int RightsGrid::neighbour(int row, int direction) const {
    do {
        row += direction;
    } while (row >= 0 && row < rows_->rowCount() && !rows_->isBox(row));
    return row < rows_->rowCount() ? row : -1;
}

bool RightsGrid::goTo(int row) {
    if (row < 0) {
        return false;
    }
    setCurrentIndex(rows_->index(row, kBox));
    // A heading over the first box should not stay hidden above.
    if (neighbour(row, -1) < 0) {
        scrollToTop();
    }
    return true;
}

void RightsGrid::goToStart() {
    goTo(neighbour(-1, 1));
}

void RightsGrid::set(int row, bool ticked) {
    if (editable_ && row >= 0 && rows_->isBox(row)) {
        runGuarded([&] { rows_->set(row, ticked); });
    }
}

void RightsGrid::keyPressEvent(QKeyEvent *event) {
    const int row = currentIndex().row();
    const Qt::KeyboardModifiers plain = Qt::KeypadModifier | Qt::ShiftModifier;
    switch (event->modifiers() & ~plain ? 0 : event->key()) {
        case Qt::Key_Up:
            goTo(neighbour(row, -1));
            break;
        case Qt::Key_Down:
            goTo(neighbour(row, 1));
            break;
        case Qt::Key_Home:
            goToStart();
            break;
        case Qt::Key_End:
            goTo(neighbour(rows_->rowCount(), -1));
            break;
        case Qt::Key_Space:
            if (row >= 0 && !event->isAutoRepeat()) {
                set(row, !rows_->isTicked(row));
            }
            break;
        case Qt::Key_S:
        case Qt::Key_N:
            set(row, event->key() == Qt::Key_S);
            break;
        default:
            event->ignore();
    }
}

void RightsGrid::mousePressEvent(QMouseEvent *event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (!index.isValid() || !rows_->isBox(index.row())) {
        setFocus(Qt::MouseFocusReason);
        return;
    }
    QTableView::mousePressEvent(event);
    if (index.column() == kBox && event->button() == Qt::LeftButton) {
        set(index.row(), !rows_->isTicked(index.row()));
    }
}

void RightsGrid::focusInEvent(QFocusEvent *event) {
    QTableView::focusInEvent(event);
    if (!currentIndex().isValid() || !rows_->isBox(currentIndex().row())) {
        goToStart();
    }
    // The base puts the cursor on a line without marking it.
    selectRow(currentIndex().row());
}

void RightsGrid::focusOutEvent(QFocusEvent *event) {
    QTableView::focusOutEvent(event);
    clearSelection();
}

bool RightsGrid::focusNextPrevChild(bool next) {
    return (tab_ && tab_(next)) || QTableView::focusNextPrevChild(next);
}

RightsGrids::RightsGrids(QWidget *parent) : QTabWidget(parent) {}

void RightsGrids::setQuery(NamedQuery &rights) {
    for (const RightPage &page : rightPages()) {
        addTab(makePage(rights, page), page.title);
    }
}

QWidget *RightsGrids::makePage(NamedQuery &rights, const RightPage &page) {
    auto *sheet = new QWidget(this);
    auto *line = new QHBoxLayout(sheet);
    line->setContentsMargins(8, 8, 8, 8);
    for (const std::vector<RightGroup> &groups : page.columns) {
        auto *column = new QVBoxLayout;
        for (const RightGroup &group : groups) {
            auto *grid = new RightsGrid(rights, group, sheet);
            connectGuarded(grid, &RightsGrid::passed, this, [this, grid] { passed(grid); });
            grid->setTabHandler([this, grid](bool forward) { return step(grid, forward); });
            column->addWidget(grid, 1);
            grids_.push_back(grid);
        }
        column->addStretch(0);
        line->addLayout(column, 1);
    }
    return sheet;
}

void RightsGrids::setEditable(bool editable) {
    for (RightsGrid *grid : grids_) {
        grid->setEditable(editable);
    }
}

void RightsGrids::start() {
    show(grids_.front());
    grids_.front()->goToStart();
    moveFocus(grids_.front());
}

RightsGrid *RightsGrids::beside(const RightsGrid *grid, bool forward) const {
    const auto at = std::find(grids_.begin(), grids_.end(), grid);
    if (forward) {
        return at + 1 == grids_.end() ? nullptr : *(at + 1);
    }
    return at == grids_.begin() ? nullptr : *(at - 1);
}

void RightsGrids::show(const RightsGrid *grid) {
    for (int page = 0; page < count(); ++page) {
        if (widget(page)->isAncestorOf(grid)) {
            setCurrentIndex(page);
        }
    }
}

void RightsGrids::passed(const RightsGrid *grid) {
    if (RightsGrid *next = beside(grid, true)) {
        show(next);
        next->goToStart();
        moveFocus(next);
    } else {
        stayHere();
        emit finished();
    }
}

bool RightsGrids::step(const RightsGrid *from, bool forward) {
    RightsGrid *next = beside(from, forward);
    if (next == nullptr) {
        return false;
    }
    show(next);
    next->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

}  // namespace kaldo
