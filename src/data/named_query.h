#pragma once

#include <QAbstractTableModel>
#include <QDate>
#include <QHash>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

#include "data/connection.h"
#include "data/runtime_text.h"

namespace kaldo {

/// A named query's text, and where its edits go. The texts are literals.
struct QueryDefinition {
    const char *name;
    const char *text;
    const char *table = "";  ///< the table that edits are written to; empty: read-only
    const char *keys = "";   ///< the columns that identify a row of `table`, parted by commas
};

/// The data set that grids and fields bind to: a query with a row cursor, fetched in pages, with
/// at most one pending row.
///
/// As a model its columns are the fields (headerData gives their names), DisplayRole and EditRole
/// the raw values. Fields are named without regard to case. On a closed or an empty query every
/// field reads as NULL.
///
/// Editing: edit() or append(), set(), post(), apply(). A posted row is written by apply(); when
/// that fails, the row stays pending and apply() can be tried again or cancelUpdates() undoes it.
/// Moving the cursor posts an open row.
class NamedQuery : public QAbstractTableModel {
    Q_OBJECT

public:
    enum class State { Closed, Browsing, Editing, Inserting };

    /// Reads a field of the row that a calculated field is worked out for.
    using RowReader = std::function<QVariant(const QString &field)>;
    using Calculation = std::function<QVariant(const RowReader &row)>;

    explicit NamedQuery(const QueryDefinition &definition, QObject *parent = nullptr);
    ~NamedQuery() override;

    const QString &name() const { return name_; }
    /// The text that runs: the definition's, or the one that was last set at run time.
    Statement statement() const { return {name_, text_}; }

    const QString &updateTable() const { return table_; }
    const QStringList &updateKeys() const { return keys_; }

    void bindTo(Connection &connection) { connection_ = &connection; }
    Connection &connection() const { return *connection_; }

    /// Replaces the text until the next setText; closes the query.
    void setText(const RuntimeText &text);

    /// Adds a field that is worked out for each row as it is fetched.
    void addCalculated(const QString &field, Calculation calculation);
    using RowFilter = std::function<bool(const RowReader &row)>;

    /// Rows that it refuses are passed over from the next opening on; an empty one lets all
    /// through.
    void setFilter(RowFilter filter) { filter_ = std::move(filter); }

    /// Adds a field that looks `key` up among the rows of `source` and gives its `result`.
    /// To set the field is to set `key`. Each row of `source` is read once per opening of it, and
    /// no further than to the first that has the key. `source` must outlive this query.
    void addLookup(const QString &field, const QString &key, NamedQuery &source,
                   const QString &sourceKey, const QString &result);

    /// Closes, and opens with these values; values not given keep what they were bound to.
    void open(const Parameters &values = {});
    /// Opens without fetching a row: for who only appends to a table that others fill as well.
    void openToAppend(const Parameters &values = {});
    /// Opens again with the values of the last opening; the cursor is on the first row.
    void reopen() { open(); }
    void close();
    bool isOpen() const { return state_ != State::Closed; }
    State state() const { return state_; }
    bool isEmpty() const { return rows_.empty(); }
    /// Number of rows; fetches to the end.
    int count();

    int position() const { return current_; }
    bool moveTo(int row);
    bool first() { return moveTo(0); }
    bool next();
    /// Puts the cursor on the first row whose fields have these values (texts compared exactly,
    /// numbers as numbers). Without such a row it stays where it is.
    bool locate(const Parameters &values);

    bool hasField(const QString &field) const;
    QVariant value(const QString &field) const;
    QString text(const QString &field) const { return value(field).toString(); }
    /// 0 for NULL and for what is no number.
    int integer(const QString &field) const { return static_cast<int>(value(field).toLongLong()); }
    double number(const QString &field) const { return value(field).toDouble(); }
    QDate date(const QString &field) const { return value(field).toDate(); }
    bool isNull(const QString &field) const { return !value(field).isValid(); }
    QVariant valueAt(int row, const QString &field) const;

    void edit();
    void append();
    /// Like append(), but the new row stands above all others.
    void insertFirst();
    /// Sets a field of the row that is open for edit; opens it where none is.
    void set(const QString &field, const QVariant &value);
    void post();
    /// Deletes the current row, pending until apply(); one that was never written just goes.
    void remove();
    /// Undoes what was typed into the open row.
    void cancel();
    /// Writes the pending row. DatabaseError when the database refuses or when another station has
    /// removed the row.
    void apply();
    /// Undoes the open and the pending row.
    void cancelUpdates();
    bool isPending() const { return pending_.has_value(); }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

signals:
    void opened();
    void cursorMoved(int row);
    void stateChanged();

private:
    struct Calculated {
        QString field;
        Calculation calculation;
    };
    struct Lookup {
        QString field;
        QString key;
        NamedQuery *source;
        QString sourceKey;
        QString result;
        QHash<QString, QVariant> known;  ///< results by key, of the source's first rows
        int read = 0;                    ///< how many these are
    };
    struct Pending {
        enum class Kind { Insert, Update, Delete } kind;
        int row;
        Row before;  ///< as it was fetched; empty for an insert
    };

    int columnOf(const QString &field) const;
    int requireColumn(const QString &field) const;
    void start(const Parameters &values);
    void forgetRows();
    void takeColumns(const std::vector<Column> &stored);
    void announceOpening();
    bool accepts(const Row &row) const;
    QVariant lookUp(Lookup &lookup, int row) const;
    void fetchPage(int rows);
    void calculate(Row &row) const;
    void setState(State state);
    void setCurrent(int row);
    void beginPending(Pending::Kind kind, int row);
    void prepareInsert();
    void insertAt(int row);
    void undo(const Pending &pending);
    Statement insertStatement(Parameters *values);
    Statement updateStatement(Parameters *values) const;
    Statement deleteStatement(Parameters *values) const;
    QString keyCondition(const Row &row, Parameters *values) const;

    QString name_;
    QString text_;
    QString table_;
    QStringList keys_;
    Connection *connection_ = nullptr;
    Parameters values_;
    std::vector<Column> columns_;
    /// By their names, and as the screens spell them once they did.
    mutable QHash<QString, int> columnByName_;
    // Those of the last opening: a screen that reopens a query for each of thousands of notes
    // finds the same columns.
    std::vector<Column> lastColumns_;
    QHash<QString, int> lastColumnByName_;
    std::vector<Calculated> calculated_;
    mutable std::vector<Lookup> lookups_;
    RowFilter filter_;
    std::unique_ptr<ResultSet> result_;
    std::vector<Row> rows_;
    int current_ = -1;
    State state_ = State::Closed;
    std::optional<Pending> pending_;
    QStringList insertedColumns_;
    QString insertText_;
    Row beforeEdit_;
};

}  // namespace kaldo
