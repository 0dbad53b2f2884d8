#include "data/named_query.h"

#include <algorithm>
#include <stdexcept>

#include "data/database_error.h"

namespace kaldo {

namespace {

constexpr int firstPage = 64;
constexpr int nextPage = 256;

bool sameValue(const QVariant &left, const QVariant &right) {
    if (left.isValid() != right.isValid()) {
        return false;
    }
    if (left.typeId() == QMetaType::QString && right.typeId() == QMetaType::QString) {
        return left.toString() == right.toString();
    }
    bool leftIsNumber = false;
    bool rightIsNumber = false;
    const double leftNumber = left.toDouble(&leftIsNumber);
    const double rightNumber = right.toDouble(&rightIsNumber);
    return leftIsNumber && rightIsNumber ? leftNumber == rightNumber : left == right;
}

}  // namespace

NamedQuery::NamedQuery(const QueryDefinition &definition, QObject *parent)
    : RowModel(parent),
      name_(QString::fromUtf8(definition.name)),
      text_(QString::fromUtf8(definition.text)),
      writer_(name_, QString::fromUtf8(definition.table),
              QString::fromUtf8(definition.keys).split(u',', Qt::SkipEmptyParts)) {
    setObjectName(name_);
}

NamedQuery::~NamedQuery() = default;

void NamedQuery::setText(const RuntimeText &text) {
    close();
    values_.clear();
    if (connection_->dialect() == Dialect::Firebird) {
        text_ = text.firebird();
        values_ = text.values();
    } else {
        text_ = text.odbc();
    }
}

void NamedQuery::addCalculated(const QString &field, Calculation calculation) {
    calculated_.push_back({field.toUpper(), std::move(calculation)});
}

void NamedQuery::addLookup(const QString &field, const QString &key, NamedQuery &source,
                           const QString &sourceKey, const QString &result) {
    lookups_.emplace_back(field.toUpper(), key.toUpper(), source, sourceKey, result);
    const std::size_t place = lookups_.size() - 1;
    const auto changed = [this, place] {
        lookups_[place].forget();
        lookUpAll();
    };
    connect(&source, &QAbstractItemModel::dataChanged, this, changed);
    connect(&source, &QAbstractItemModel::rowsRemoved, this, changed);
    connect(&source, &NamedQuery::opened, this, changed);
    connect(&source, &QAbstractItemModel::modelReset, this, [this, place, changed] {
        // One that opens tells so when its first page is there.
        if (lookups_[place].source().isOpen()) {
            lookups_[place].forget();
        } else {
            changed();
        }
    });
    connect(&source, &QAbstractItemModel::rowsInserted, this,
            [this, place, changed](const QModelIndex &, int first) {
                const RowLookup &lookup = lookups_[place];
                const bool nextPage = first >= lookup.read() && lookup.source().canFetchMore({});
                if (!lookup.finding() && !nextPage) {
                    changed();
                }
            });
}

void NamedQuery::open(const Parameters &values) {
    start(values);
    fetchPage(firstPage);
    announceOpening();
}

void NamedQuery::openToAppend(const Parameters &values) {
    start(values);
    result_.reset();
    announceOpening();
}

void NamedQuery::start(const Parameters &values) {
    for (const auto &[name, value] : values) {
        const auto known = std::find_if(values_.begin(), values_.end(), [&name](const auto &pair) {
            return pair.first.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (known != values_.end()) {
            known->second = value;
        } else {
            values_.append({name, value});
        }
    }
    result_.reset();
    std::unique_ptr<ResultSet> result;
    try {
        result = connection_->select(statement(), values_);
    } catch (...) {
        close();
        throw;
    }
    // One reset, from the old rows to the new ones: a grid whose columns go and come lays them out
    // twice.
    beginResetModel();
    if (isOpen()) {
        forget();
    }
    result_ = std::move(result);
    takeColumns(allColumns(result_->columns()));
    state_ = State::Browsing;
    endResetModel();
}

std::vector<Column> NamedQuery::allColumns(const std::vector<Column> &stored) const {
    std::vector<Column> columns = stored;
    for (const Calculated &calculated : calculated_) {
        columns.push_back({calculated.field, ColumnKind::Text, 0});
    }
    for (const RowLookup &lookup : lookups_) {
        columns.push_back({lookup.field(), ColumnKind::Text, 0});
    }
    return columns;
}

RowWriter::Columns NamedQuery::storedColumns() const {
    return RowWriter::Columns(columns()).first(columns().size() - calculated_.size() -
                                               lookups_.size());
}

void NamedQuery::announceOpening() {
    setCurrent(isEmpty() ? -1 : 0);
    emit opened();
    emit stateChanged();
}

void NamedQuery::close() {
    if (state_ == State::Closed) {
        return;
    }
    beginResetModel();
    forget();
    state_ = State::Closed;
    endResetModel();
    emit stateChanged();
}

void NamedQuery::forget() {
    result_.reset();
    pageFailed_ = false;
    forgetRows();
    pending_.reset();
    current_ = -1;
}

int NamedQuery::count() {
    while (result_) {
        fetchPage(nextPage);
    }
    return rowCount();
}

void NamedQuery::fetchPage(int wanted) {
    std::vector<Row> page;
    Row row;
    while (static_cast<int>(page.size()) < wanted) {
        if (!result_->fetch(row)) {
            result_.reset();
            break;
        }
        complete(row);
        if (accepts(row)) {
            page.push_back(std::move(row));
        }
    }
    appendRows(std::move(page));
}

/// Works out what the row shows beside its own columns.
void NamedQuery::complete(Row &row) {
    const auto reader = [this, &row](const QString &field) {
        return row.at(static_cast<std::size_t>(requireColumn(field)));
    };
    for (const Calculated &calculated : calculated_) {
        row.push_back(calculated.calculation(reader));
    }
    row.resize(columns().size());
    lookUp(row);
}

/// True where a name has changed.
bool NamedQuery::lookUp(Row &row) {
    bool changed = false;
    std::size_t place = columns().size() - lookups_.size();
    for (RowLookup &lookup : lookups_) {
        QVariant found = lookup.find(row.at(static_cast<std::size_t>(requireColumn(lookup.key()))));
        QVariant &shown = row.at(place++);
        if (!sameValue(found, shown)) {
            shown = std::move(found);
            changed = true;
        }
    }
    return changed;
}

void NamedQuery::lookUpAll() {
    bool changed = false;
    for (Row &row : rows()) {
        changed = lookUp(row) || changed;
    }
    if (changed) {
        tellChanged(0, rowCount() - 1);
    }
}

bool NamedQuery::accepts(const Row &row) const {
    return !filter_ || filter_([this, &row](const QString &field) {
        return row.at(static_cast<std::size_t>(requireColumn(field)));
    });
}

bool NamedQuery::moveTo(int row) {
    while (row >= rowCount() && result_) {
        fetchPage(nextPage);
    }
    if (row < 0 || row >= rowCount()) {
        return false;
    }
    if (row != current_ && (state_ == State::Editing || state_ == State::Inserting)) {
        post();
    }
    setCurrent(row);
    return true;
}

bool NamedQuery::next() {
    return current_ >= 0 && moveTo(current_ + 1);
}

bool NamedQuery::locate(const Parameters &values) {
    if (!isOpen()) {
        return false;
    }
    for (int row = 0;; ++row) {
        if (row == rowCount() && result_) {
            fetchPage(nextPage);
        }
        if (row >= rowCount()) {
            return false;
        }
        const bool matches = std::all_of(values.begin(), values.end(), [&](const auto &wanted) {
            return sameValue(valueAt(row, wanted.first), wanted.second);
        });
        if (matches) {
            return moveTo(row);
        }
    }
}

QVariant NamedQuery::value(const QString &field) const {
    return current_ < 0 ? QVariant() : valueAt(current_, field);
}

void NamedQuery::setState(State state) {
    if (state_ != state) {
        state_ = state;
        emit stateChanged();
    }
}

void NamedQuery::setCurrent(int row) {
    if (current_ != row) {
        current_ = row;
        emit cursorMoved(row);
    }
}

void NamedQuery::beginPending(Pending::Kind kind, int row) {
    // Behind a deleted row another one has taken its place.
    if (pending_ && (pending_->row != row || pending_->kind == Pending::Kind::Delete)) {
        apply();
    }
    if (!pending_) {
        pending_ = Pending{kind, row, {}};
        if (kind != Pending::Kind::Insert) {
            pending_->before = rowAt(row);
        }
    }
}

void NamedQuery::edit() {
    if (state_ != State::Browsing || current_ < 0) {
        return;
    }
    beginPending(Pending::Kind::Update, current_);
    beforeEdit_ = rowAt(current_);
    setState(State::Editing);
}

void NamedQuery::append() {
    prepareInsert();
    count();
    insertAt(rowCount());
}

void NamedQuery::insertFirst() {
    prepareInsert();
    insertAt(0);
}

void NamedQuery::prepareInsert() {
    if (!isOpen()) {
        throw std::logic_error((name() + QLatin1String(" is closed")).toStdString());
    }
    if (state_ != State::Browsing) {
        post();
    }
    if (pending_) {
        apply();
    }
}

void NamedQuery::insertAt(int row) {
    beforeEdit_ = Row(columns().size());
    if (current_ >= row) {
        ++current_;
    }
    insertRowAt(row, beforeEdit_);
    setCurrent(row);
    beginPending(Pending::Kind::Insert, row);
    setState(State::Inserting);
}

/// To set a looked-up field is to set its key.
QString NamedQuery::writtenField(const QString &field) const {
    for (const RowLookup &lookup : lookups_) {
        if (lookup.field().compare(field, Qt::CaseInsensitive) == 0) {
            return lookup.key();
        }
    }
    return field;
}

void NamedQuery::set(const QString &field, const QVariant &value) {
    if (current_ < 0) {
        throw std::logic_error(
            (name() + QLatin1String(" has no row to set ") + field).toStdString());
    }
    edit();
    const auto column = static_cast<std::size_t>(requireColumn(writtenField(field)));
    rowAt(current_).at(column) = value;
    lookUp(rowAt(current_));
    tellChanged(current_, current_);
}

void NamedQuery::post() {
    if (state_ == State::Editing || state_ == State::Inserting) {
        setState(State::Browsing);
    }
}

void NamedQuery::remove() {
    if (current_ < 0) {
        return;
    }
    if (pending_ && pending_->kind == Pending::Kind::Insert && pending_->row == current_) {
        cancelUpdates();
        return;
    }
    if (state_ != State::Browsing) {
        cancel();
    }
    if (pending_) {
        apply();
    }
    const int row = current_;
    beginPending(Pending::Kind::Delete, row);
    removeRowAt(row);
    setCurrent(std::min(row, rowCount() - 1));
}

void NamedQuery::cancel() {
    if (state_ == State::Inserting) {
        cancelUpdates();
    } else if (state_ == State::Editing) {
        rowAt(current_) = beforeEdit_;
        if (pending_ && pending_->kind == Pending::Kind::Update &&
            pending_->before == beforeEdit_) {
            pending_.reset();
        }
        lookUp(rowAt(current_));
        tellChanged(current_, current_);
        setState(State::Browsing);
    }
}

void NamedQuery::cancelUpdates() {
    if (!pending_) {
        setState(isOpen() ? State::Browsing : State::Closed);
        return;
    }
    const Pending pending = *std::exchange(pending_, std::nullopt);
    undo(pending);
    setState(State::Browsing);
}

void NamedQuery::undo(const Pending &pending) {
    switch (pending.kind) {
        case Pending::Kind::Insert:
            removeRowAt(pending.row);
            setCurrent(std::min(pending.row, rowCount() - 1));
            break;
        case Pending::Kind::Update:
            rowAt(pending.row) = pending.before;
            lookUp(rowAt(pending.row));
            tellChanged(pending.row, pending.row);
            break;
        case Pending::Kind::Delete: {
            Row row = pending.before;
            lookUp(row);
            insertRowAt(pending.row, std::move(row));
            setCurrent(pending.row);
            break;
        }
    }
}

void NamedQuery::apply() {
    post();
    if (!pending_) {
        return;
    }
    Parameters values;
    Statement statement;
    switch (pending_->kind) {
        case Pending::Kind::Insert:
            statement = writer_.insertion(storedColumns(), rowAt(pending_->row), &values);
            break;
        case Pending::Kind::Update:
            statement =
                writer_.update(storedColumns(), rowAt(pending_->row), pending_->before, &values);
            break;
        case Pending::Kind::Delete:
            statement = writer_.deletion(storedColumns(), pending_->before, &values);
            break;
    }
    if (!statement.text.isEmpty() && connection_->execute(statement, values) == 0) {
        throw rowGone(connection_->name(), statement.name);
    }
    pending_.reset();
}

bool NamedQuery::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!index.isValid() || role != Qt::EditRole || !moveTo(index.row())) {
        return false;
    }
    set(columns().at(static_cast<std::size_t>(index.column())).name, value);
    return true;
}

Qt::ItemFlags NamedQuery::flags(const QModelIndex &index) const {
    Qt::ItemFlags flags = RowModel::flags(index);
    if (index.isValid() && !writer_.table().isEmpty()) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

bool NamedQuery::canFetchMore(const QModelIndex &parent) const {
    return !parent.isValid() && result_ != nullptr && !pageFailed_ && !connection_->waiting();
}

void NamedQuery::fetchMore(const QModelIndex &parent) {
    if (!canFetchMore(parent)) {
        return;
    }
    try {
        fetchPage(nextPage);
    } catch (const DatabaseError &failure) {
        pageFailed_ = true;
        // Not from here: views ask in the middle of their painting.
        QMetaObject::invokeMethod(
            this, [failure] { throw failure; }, Qt::QueuedConnection);
    }
}

}  // namespace kaldo
