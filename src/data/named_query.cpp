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

/// A column name in a text that is put together here: reserved words need their quotes.
QString columnInText(const QString &name) {
    return name == QLatin1String("USER") ? QStringLiteral("\"USER\"") : name.toLower();
}

}  // namespace

NamedQuery::NamedQuery(const QueryDefinition &definition, QObject *parent)
    : QAbstractTableModel(parent),
      name_(QString::fromUtf8(definition.name)),
      text_(QString::fromUtf8(definition.text)),
      table_(QString::fromUtf8(definition.table)),
      keys_(QString::fromUtf8(definition.keys).split(u',', Qt::SkipEmptyParts)) {
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
    lookups_.push_back({field.toUpper(), key.toUpper(), &source, sourceKey, result, {}, 0});
    const std::size_t place = lookups_.size() - 1;
    const auto forget = [this, place] {
        lookups_[place].known.clear();
        lookups_[place].read = 0;
    };
    connect(&source, &QAbstractItemModel::dataChanged, this, forget);
    connect(&source, &QAbstractItemModel::modelReset, this, forget);
    connect(&source, &QAbstractItemModel::rowsRemoved, this, forget);
    connect(&source, &QAbstractItemModel::rowsInserted, this,
            [this, place, forget](const QModelIndex &, int first) {
                if (first < lookups_[place].read) {
                    forget();
                }
            });
    connect(&source, &NamedQuery::opened, this, [this] {
        if (!rows_.empty()) {
            emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
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
        forgetRows();
    }
    result_ = std::move(result);
    takeColumns(result_->columns());
    state_ = State::Browsing;
    endResetModel();
}

void NamedQuery::takeColumns(const std::vector<Column> &stored) {
    const std::size_t all = stored.size() + calculated_.size() + lookups_.size();
    const auto same = [](const Column &left, const Column &right) {
        return left.name == right.name && left.kind == right.kind && left.width == right.width;
    };
    if (lastColumns_.size() == all &&
        std::equal(stored.begin(), stored.end(), lastColumns_.begin(), same)) {
        columns_.swap(lastColumns_);
        columnByName_.swap(lastColumnByName_);
        return;
    }
    columns_ = stored;
    for (const Calculated &calculated : calculated_) {
        columns_.push_back({calculated.field, ColumnKind::Text, 0});
    }
    for (const Lookup &lookup : lookups_) {
        columns_.push_back({lookup.field, ColumnKind::Text, 0});
    }
    columnByName_.clear();
    for (std::size_t at = 0; at < columns_.size(); ++at) {
        columnByName_.insert(columns_[at].name, static_cast<int>(at));
    }
}

void NamedQuery::announceOpening() {
    setCurrent(rows_.empty() ? -1 : 0);
    emit opened();
    emit stateChanged();
}

void NamedQuery::close() {
    if (state_ == State::Closed) {
        return;
    }
    beginResetModel();
    forgetRows();
    state_ = State::Closed;
    endResetModel();
    emit stateChanged();
}

void NamedQuery::forgetRows() {
    result_.reset();
    rows_.clear();
    lastColumns_ = std::exchange(columns_, {});
    lastColumnByName_ = std::exchange(columnByName_, {});
    pending_.reset();
    current_ = -1;
}

int NamedQuery::count() {
    while (result_) {
        fetchPage(nextPage);
    }
    return static_cast<int>(rows_.size());
}

void NamedQuery::fetchPage(int wanted) {
    std::vector<Row> page;
    Row row;
    while (static_cast<int>(page.size()) < wanted) {
        if (!result_->fetch(row)) {
            result_.reset();
            break;
        }
        calculate(row);
        if (accepts(row)) {
            page.push_back(row);
        }
    }
    if (page.empty()) {
        return;
    }
    const int firstNew = static_cast<int>(rows_.size());
    beginInsertRows({}, firstNew, firstNew + static_cast<int>(page.size()) - 1);
    std::move(page.begin(), page.end(), std::back_inserter(rows_));
    endInsertRows();
}

void NamedQuery::calculate(Row &row) const {
    const auto reader = [this, &row](const QString &field) {
        return row.at(static_cast<std::size_t>(requireColumn(field)));
    };
    for (const Calculated &calculated : calculated_) {
        row.push_back(calculated.calculation(reader));
    }
    row.resize(columns_.size());
}

bool NamedQuery::accepts(const Row &row) const {
    return !filter_ || filter_([this, &row](const QString &field) {
        return row.at(static_cast<std::size_t>(requireColumn(field)));
    });
}

bool NamedQuery::moveTo(int row) {
    while (row >= static_cast<int>(rows_.size()) && result_) {
        fetchPage(nextPage);
    }
    if (row < 0 || row >= static_cast<int>(rows_.size())) {
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
        if (row == static_cast<int>(rows_.size()) && result_) {
            fetchPage(nextPage);
        }
        if (row >= static_cast<int>(rows_.size())) {
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

int NamedQuery::columnOf(const QString &field) const {
    const auto known = columnByName_.constFind(field);
    if (known != columnByName_.cend()) {
        return *known;
    }
    const int column = columnByName_.value(field.toUpper(), -1);
    if (column >= 0) {
        columnByName_.insert(field, column);
    }
    return column;
}

int NamedQuery::requireColumn(const QString &field) const {
    const int column = columnOf(field);
    if (column < 0) {
        throw std::logic_error((name() + QLatin1String(" has no field ") + field).toStdString());
    }
    return column;
}

bool NamedQuery::hasField(const QString &field) const {
    return columnOf(field) >= 0;
}

QVariant NamedQuery::value(const QString &field) const {
    return current_ < 0 ? QVariant() : valueAt(current_, field);
}

QVariant NamedQuery::valueAt(int row, const QString &field) const {
    for (Lookup &lookup : lookups_) {
        if (lookup.field.compare(field, Qt::CaseInsensitive) == 0) {
            return lookUp(lookup, row);
        }
    }
    return rows_.at(static_cast<std::size_t>(row))
        .at(static_cast<std::size_t>(requireColumn(field)));
}

QVariant NamedQuery::lookUp(Lookup &lookup, int row) const {
    const QVariant key = valueAt(row, lookup.key);
    if (!key.isValid() || !lookup.source->isOpen()) {
        return QVariant();
    }
    const QString wanted = key.toString();
    NamedQuery &source = *lookup.source;
    while (!lookup.known.contains(wanted)) {
        if (lookup.read == source.rowCount()) {
            if (!source.result_) {
                return QVariant();
            }
            source.fetchPage(nextPage);
        }
        for (; lookup.read < source.rowCount(); ++lookup.read) {
            const QString found = source.valueAt(lookup.read, lookup.sourceKey).toString();
            if (!lookup.known.contains(found)) {
                lookup.known.insert(found, source.valueAt(lookup.read, lookup.result));
            }
        }
    }
    return lookup.known.value(wanted);
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
            pending_->before = rows_.at(static_cast<std::size_t>(row));
        }
    }
}

void NamedQuery::edit() {
    if (state_ != State::Browsing || current_ < 0) {
        return;
    }
    beginPending(Pending::Kind::Update, current_);
    beforeEdit_ = rows_.at(static_cast<std::size_t>(current_));
    setState(State::Editing);
}

void NamedQuery::append() {
    prepareInsert();
    count();
    insertAt(static_cast<int>(rows_.size()));
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
    beginInsertRows({}, row, row);
    const auto inserted = rows_.emplace(rows_.begin() + row, columns_.size());
    beforeEdit_ = *inserted;
    if (current_ >= row) {
        ++current_;
    }
    endInsertRows();
    setCurrent(row);
    beginPending(Pending::Kind::Insert, row);
    setState(State::Inserting);
}

void NamedQuery::set(const QString &field, const QVariant &value) {
    if (current_ < 0) {
        throw std::logic_error(
            (name() + QLatin1String(" has no row to set ") + field).toStdString());
    }
    edit();
    const int column = requireColumn(field);
    rows_.at(static_cast<std::size_t>(current_)).at(static_cast<std::size_t>(column)) = value;
    emit dataChanged(index(current_, 0), index(current_, columnCount() - 1));
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
    beginRemoveRows({}, row, row);
    rows_.erase(rows_.begin() + row);
    endRemoveRows();
    setCurrent(std::min(row, static_cast<int>(rows_.size()) - 1));
}

void NamedQuery::cancel() {
    if (state_ == State::Inserting) {
        cancelUpdates();
    } else if (state_ == State::Editing) {
        rows_.at(static_cast<std::size_t>(current_)) = beforeEdit_;
        if (pending_ && pending_->kind == Pending::Kind::Update &&
            pending_->before == beforeEdit_) {
            pending_.reset();
        }
        emit dataChanged(index(current_, 0), index(current_, columnCount() - 1));
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
            beginRemoveRows({}, pending.row, pending.row);
            rows_.erase(rows_.begin() + pending.row);
            endRemoveRows();
            setCurrent(std::min(pending.row, static_cast<int>(rows_.size()) - 1));
            break;
        case Pending::Kind::Update:
            rows_.at(static_cast<std::size_t>(pending.row)) = pending.before;
            emit dataChanged(index(pending.row, 0), index(pending.row, columnCount() - 1));
            break;
        case Pending::Kind::Delete:
            beginInsertRows({}, pending.row, pending.row);
            rows_.insert(rows_.begin() + pending.row, pending.before);
            endInsertRows();
            setCurrent(pending.row);
            break;
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
            statement = insertStatement(&values);
            break;
        case Pending::Kind::Update:
            statement = updateStatement(&values);
            break;
        case Pending::Kind::Delete:
            statement = deleteStatement(&values);
            break;
    }
    if (!statement.text.isEmpty() && connection_->execute(statement, values) == 0) {
        throw rowGone(connection_->name(), statement.name);
    }
    pending_.reset();
}

QString NamedQuery::keyCondition(const Row &row, Parameters *values) const {
    QStringList conditions;
    for (const QString &key : keys_) {
        const QVariant &value = row.at(static_cast<std::size_t>(requireColumn(key)));
        if (value.isValid()) {
            conditions += QStringLiteral("%1 = :key_%1").arg(columnInText(key.toUpper()));
            values->append({QStringLiteral("key_") + columnInText(key.toUpper()), value});
        } else {
            conditions += columnInText(key.toUpper()) + QLatin1String(" is null");
        }
    }
    if (conditions.isEmpty()) {
        throw std::logic_error((name() + QLatin1String(" has no key to write by")).toStdString());
    }
    return conditions.join(QLatin1String(" and "));
}

Statement NamedQuery::insertStatement(Parameters *values) {
    const Row &row = rows_.at(static_cast<std::size_t>(pending_->row));
    const std::size_t stored = columns_.size() - calculated_.size() - lookups_.size();
    QStringList assigned;
    for (std::size_t at = 0; at < stored; ++at) {
        if (row[at].isValid()) {
            assigned += columns_[at].name;
            values->append({columns_[at].name, row[at]});
        }
    }
    // A screen that appends thousands of rows assigns the same columns each time.
    if (assigned != insertedColumns_) {
        insertedColumns_ = assigned;
        QStringList names;
        for (const QString &name : std::as_const(assigned)) {
            names += columnInText(name);
        }
        insertText_ =
            QStringLiteral("insert into %1 (%2) values (:%3)")
                .arg(table_, names.join(QLatin1String(", ")), assigned.join(QLatin1String(", :")));
    }
    if (assigned.isEmpty()) {
        insertText_ = QStringLiteral("insert into %1 default values").arg(table_);
    }
    return {name() + QLatin1String(" (insert)"), insertText_};
}

Statement NamedQuery::updateStatement(Parameters *values) const {
    const Row &row = rows_.at(static_cast<std::size_t>(pending_->row));
    QStringList changes;
    const std::size_t stored = columns_.size() - calculated_.size() - lookups_.size();
    for (std::size_t at = 0; at < stored; ++at) {
        if (row[at] == pending_->before[at] &&
            row[at].isValid() == pending_->before[at].isValid()) {
            continue;
        }
        // Named as the column is: a value that doesn't fit is told with the parameter's name.
        changes +=
            QStringLiteral("%1 = :%2").arg(columnInText(columns_[at].name), columns_[at].name);
        values->append({columns_[at].name, row[at]});
    }
    if (changes.isEmpty()) {
        return {};
    }
    const QString condition = keyCondition(pending_->before, values);
    return {name() + QLatin1String(" (update)"),
            QStringLiteral("update %1 set %2 where %3")
                .arg(table_, changes.join(QLatin1String(", ")), condition)};
}

Statement NamedQuery::deleteStatement(Parameters *values) const {
    const QString condition = keyCondition(pending_->before, values);
    return {name() + QLatin1String(" (delete)"),
            QStringLiteral("delete from %1 where %2").arg(table_, condition)};
}

int NamedQuery::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int NamedQuery::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant NamedQuery::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return QVariant();
    }
    return valueAt(index.row(), columns_.at(static_cast<std::size_t>(index.column())).name);
}

bool NamedQuery::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!index.isValid() || role != Qt::EditRole || !moveTo(index.row())) {
        return false;
    }
    QString field = columns_.at(static_cast<std::size_t>(index.column())).name;
    for (const Lookup &lookup : lookups_) {
        if (lookup.field == field) {
            field = lookup.key;
        }
    }
    set(field, value);
    return true;
}

QVariant NamedQuery::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= columnCount()) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return columns_.at(static_cast<std::size_t>(section)).name;
}

Qt::ItemFlags NamedQuery::flags(const QModelIndex &index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && !table_.isEmpty()) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

bool NamedQuery::canFetchMore(const QModelIndex &parent) const {
    return !parent.isValid() && result_ != nullptr;
}

void NamedQuery::fetchMore(const QModelIndex &parent) {
    if (canFetchMore(parent)) {
        fetchPage(nextPage);
    }
}

}  // namespace kaldo
