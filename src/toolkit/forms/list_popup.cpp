#include "toolkit/forms/list_popup.h"

#include "toolkit/core/clock.h"
#include "toolkit/forms/shown_rows.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace kaldo {

namespace {

constexpr int kRowsShown = 12;
/// Rows of a long list are fetched in slices, so that the window paints in between.
constexpr int kSliceMilliseconds = 30;

int fetchUntil(QAbstractItemModel *model, int row) {
    while (row >= model->rowCount() && model->canFetchMore({})) {
        const int before = model->rowCount();
        model->fetchMore({});
        if (model->rowCount() == before) {
            break;
        }
    }
    return model->rowCount();
}

template <typename Test>
int findRow(QAbstractItemModel *model, int section, Test test) {
    if (!model || section < 0) {
        return -1;
    }
    for (int row = 0; row < fetchUntil(model, row); ++row) {
        if (test(model->index(row, section).data(Qt::EditRole).toString())) {
            return row;
        }
    }
    return -1;
}

}  // namespace

QString maskedText(const QVariant &value, CellMask mask) {
    if (!value.isValid() || value.isNull()) {
        return {};
    }
    bool number = false;
    const double amount = value.toDouble(&number);
    switch (mask) {
        case CellMask::MoneyTight:
            return number ? formatMoney(amount, MoneyMask::Tight) : value.toString();
        case CellMask::MoneySpaced:
            return number ? formatMoney(amount, MoneyMask::Spaced) : value.toString();
        case CellMask::Number:
            return number ? formatPlainNumber(amount) : value.toString();
        case CellMask::Date: {
            const QDate date = value.toDate();
            return date.isValid() ? formatDate(date) : value.toString();
        }
        case CellMask::Integer:
        case CellMask::Text:
            break;
    }
    return value.toString();
}

int fieldSection(const QAbstractItemModel &model, const QString &field) {
    for (int section = 0; section < model.columnCount(); ++section) {
        if (model.headerData(section, Qt::Horizontal, Qt::DisplayRole)
                .toString()
                .compare(field, Qt::CaseInsensitive) == 0) {
            return section;
        }
    }
    return -1;
}

QString foldedText(const QString &text) {
    QString folded;
    folded.reserve(text.size());
    for (const QChar c : text.normalized(QString::NormalizationForm_D)) {
        if (c.category() != QChar::Mark_NonSpacing) {
            folded += c.toUpper();
        }
    }
    return folded;
}

int findPrefix(QAbstractItemModel *model, int section, const QString &prefix) {
    const QString wanted = foldedText(prefix);
    return findRow(model, section,
                   [&](const QString &text) { return foldedText(text).startsWith(wanted); });
}

int findText(QAbstractItemModel *model, int section, const QString &text) {
    const QString wanted = text.trimmed();
    return findRow(model, section,
                   [&](const QString &candidate) { return candidate.trimmed() == wanted; });
}

ListPopup::ListPopup(QWidget *owner)
    : QFrame(owner, Qt::Popup),
      anchor_(owner),
      table_(new QTableView(this)),
      filter_(new QLineEdit(this)),
      proxy_(new ShownRows(this)) {
    setObjectName(QStringLiteral("listPopup"));
    setFrameShape(QFrame::StyledPanel);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(1, 1, 1, 1);
    rows->setSpacing(1);
    filter_->setPlaceholderText(QStringLiteral("Filtrar…"));
    filter_->setAccessibleName(QStringLiteral("Filtro de búsqueda"));
    filter_->setVisible(false);
    rows->addWidget(filter_);
    rows->addWidget(table_);
    table_->setModel(proxy_);
    table_->setSelectionBehavior(QTableView::SelectRows);
    table_->setSelectionMode(QTableView::SingleSelection);
    table_->setEditTriggers(QTableView::NoEditTriggers);
    table_->setAlternatingRowColors(true);
    table_->setShowGrid(false);
    table_->setTabKeyNavigation(false);
    table_->setWordWrap(false);
    table_->setFrameShape(QFrame::NoFrame);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    table_->horizontalHeader()->setHighlightSections(false);
    table_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table_->setAccessibleName(QStringLiteral("Lista"));
    table_->installEventFilter(this);
    filter_->installEventFilter(this);
    connect(table_, &QTableView::clicked, this, &ListPopup::pick);
    connect(filter_, &QLineEdit::textChanged, this, &ListPopup::applyFilter);
    setEnabled(false);
}

void ListPopup::setSource(const LookupSource &source) {
    source_ = source;
    if (source.filtered) {
        setFiltering(true);
    }
    if (isVisible()) {
        proxy_->setSourceModel(source.model);
    }
}

void ListPopup::setFiltering(bool on) {
    filter_->setVisible(on);
    if (!on) {
        filter_->clear();
    }
}

void ListPopup::arrangeColumns() {
    QHash<int, ShownColumn> columns;
    QHeaderView *header = table_->horizontalHeader();
    const int letter = fontMetrics().averageCharWidth();
    for (int section = 0; section < proxy_->columnCount(); ++section) {
        table_->setColumnHidden(section, true);
    }
    int place = 0;
    for (const ListColumn &column : std::as_const(source_.columns)) {
        const int section = source_.model ? fieldSection(*source_.model, column.field) : -1;
        if (section < 0) {
            continue;
        }
        const bool words = column.mask == CellMask::Text || column.mask == CellMask::Date;
        columns[section] = {
            column.title, (words ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter,
            [mask = column.mask](const QVariant &value) { return maskedText(value, mask); }};
        table_->setColumnHidden(section, false);
        header->moveSection(header->visualIndex(section), place++);
        const int title = fontMetrics().horizontalAdvance(column.title);
        table_->setColumnWidth(section, std::max(letter * column.width, title) + 18);
    }
    proxy_->setColumns(columns);
}

void ListPopup::place() {
    const QHeaderView *header = table_->horizontalHeader();
    const int rows = std::clamp(proxy_->rowCount(), 3, kRowsShown);
    const int height = header->sizeHint().height() +
                       rows * table_->verticalHeader()->defaultSectionSize() + 4 +
                       (filter_->isVisibleTo(this) ? filter_->sizeHint().height() + 1 : 0);
    const QRect screen = anchor_->screen()->availableGeometry();
    const int wanted =
        header->length() + table_->verticalScrollBar()->sizeHint().width() + 2 * frameWidth() + 2;
    const QSize size(std::min(std::max(wanted, anchor_->width()), screen.width()), height);
    QPoint corner = anchor_->mapToGlobal(QPoint(0, anchor_->height()));
    if (corner.y() + size.height() > screen.bottom()) {
        corner.setY(anchor_->mapToGlobal(QPoint(0, 0)).y() - size.height());
    }
    corner.setX(std::max(screen.left(), std::min(corner.x(), screen.right() - size.width() + 1)));
    corner.setY(std::max(screen.top(), corner.y()));
    setGeometry(QRect(corner, size));
}

void ListPopup::open(int row) {
    if (!source_.model || !anchor_) {
        return;
    }
    typed_.clear();
    filter_->clear();
    fetchUntil(source_.model, std::max(row, kRowsShown));
    proxy_->setSourceModel(source_.model);
    setEnabled(true);
    arrangeColumns();
    place();
    show();
    const QModelIndex current = proxy_->mapFromSource(source_.model->index(std::max(row, 0), 0));
    int shown = 0;
    while (shown < proxy_->columnCount() && table_->isColumnHidden(shown)) {
        ++shown;
    }
    table_->setCurrentIndex(current.siblingAtColumn(shown));
    (filter_->isVisible() ? static_cast<QWidget *>(filter_) : table_)
        ->setFocus(Qt::PopupFocusReason);
}

void ListPopup::hideEvent(QHideEvent *event) {
    QFrame::hideEvent(event);
    // A closed list has nothing to do with what happens to its rows and to its field.
    proxy_->setSourceModel(nullptr);
    setEnabled(false);
}

bool ListPopup::seek(const QString &prefix) {
    const int section = source_.model ? fieldSection(*source_.model, source_.displayField) : -1;
    const int row = prefix.isEmpty() ? -1 : findPrefix(source_.model, section, prefix);
    if (row < 0) {
        return false;
    }
    const QModelIndex index = proxy_->mapFromSource(source_.model->index(row, section));
    if (index.isValid()) {
        table_->setCurrentIndex(index.siblingAtColumn(table_->currentIndex().column()));
        table_->scrollTo(table_->currentIndex());
    }
    return index.isValid();
}

void ListPopup::pick(const QModelIndex &index) {
    if (!index.isValid()) {
        return;
    }
    const int row = proxy_->mapToSource(index).row();
    close();
    emit picked(row);
}

void ListPopup::applyFilter() {
    proxy_->setWords(filter_->text());
    markBest();
    fetchRest();
}

void ListPopup::markBest() {
    const QString wanted = filter_->text().trimmed();
    if (!source_.model || wanted.isEmpty() || proxy_->rowCount() == 0) {
        return;
    }
    const int stored = fieldSection(*source_.model, source_.valueField);
    int best = 0;
    for (int row = 0; row < proxy_->rowCount(); ++row) {
        if (proxy_->index(row, stored).data(Qt::EditRole).toString().trimmed() == wanted) {
            best = row;
            break;
        }
    }
    table_->selectRow(best);
    table_->scrollTo(table_->currentIndex());
}

void ListPopup::fetchRest() {
    QElapsedTimer watch;
    watch.start();
    while (isVisible() && proxy_->filters() && source_.model->canFetchMore({})) {
        if (watch.elapsed() > kSliceMilliseconds) {
            QTimer::singleShot(0, this, &ListPopup::fetchRest);
            return;
        }
        source_.model->fetchMore({});
        if (table_->currentIndex().row() <= 0) {
            markBest();  // nobody has gone on from the first one
        }
    }
}

bool ListPopup::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (handleKey(key)) {
            return true;
        }
        const bool moves = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down ||
                           key->key() == Qt::Key_PageUp || key->key() == Qt::Key_PageDown;
        if (watched == filter_ && moves) {
            QCoreApplication::sendEvent(table_, event);
            return true;
        }
        if (watched == table_ && typeAhead(*key)) {
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

bool ListPopup::handleKey(QKeyEvent *event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!event->isAutoRepeat()) {
                pick(table_->currentIndex());
            }
            return true;
        case Qt::Key_Escape:
            close();
            emit cancelled();
            return true;
        case Qt::Key_F4:
            close();
            return true;
        case Qt::Key_Up:
            if (event->modifiers() & Qt::AltModifier) {
                close();
                return true;
            }
            return false;
        default:
            return false;
    }
}

bool ListPopup::typeAhead(const QKeyEvent &event) {
    if (event.key() == Qt::Key_Backspace) {
        typed_.chop(1);
        seek(typed_);
        return true;
    }
    const QString text = event.text();
    if (text.isEmpty() || !text.at(0).isPrint() ||
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
        return false;
    }
    if (seek(typed_ + text)) {
        typed_ += text;
    } else if (seek(text)) {
        typed_ = text;
    }
    return true;
}

}  // namespace kaldo
