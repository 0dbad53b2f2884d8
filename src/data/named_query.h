#pragma once

#include <QDate>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

#include "data/connection.h"
#include "data/row_lookup.h"
#include "data/row_model.h"
#include "data/row_writer.h"
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
/// at most one pending row. On a closed or an empty query every field reads as NULL. What a row
/// shows is worked out when it's fetched.
///
/// Editing: edit() or append(), set(), post(), apply(). A posted row is written by apply(); when
/// that fails, the row stays pending and apply() can be tried again or cancelUpdates() undoes it.
/// Moving the cursor posts an open row.
class NamedQuery : public RowModel {
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

    const QString &updateTable() const { return writer_.table(); }
    const QStringList &updateKeys() const { return writer_.keys(); }

    /// A field that somebody reads by its place: the test of all texts looks for it.
    void expectField(const QString &field) { expected_ += field; }
    const QStringList &expectedFields() const { return expected_; }

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

    /// Adds a field that looks `key` up among the rows of `source` and gives its `result`, from the
    /// moment when a row is fetched or its `key` is set, and anew when `source` is opened, closed
    /// or changed. To set the field is to set `key`. `source` must outlive this query.
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
    bool isEmpty() const { return rows().empty(); }
    /// Number of rows; fetches to the end.
    int count();

    int position() const { return current_; }
    bool moveTo(int row);
    bool first() { return moveTo(0); }
    bool next();
    /// Puts the cursor on the first row whose fields have these values (texts compared exactly,
    /// numbers as numbers). Without such a row it stays where it is.
    bool locate(const Parameters &values);

    QVariant value(const QString &field) const;
    QString text(const QString &field) const { return value(field).toString(); }
    /// 0 for NULL and for what is no number.
    int integer(const QString &field) const { return static_cast<int>(value(field).toLongLong()); }
    double number(const QString &field) const { return value(field).toDouble(); }
    QDate date(const QString &field) const { return value(field).toDate(); }
    bool isNull(const QString &field) const { return !value(field).isValid(); }

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

    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// False also where a page couldn't be fetched: a view that paints asks no second time.
    bool canFetchMore(const QModelIndex &parent) const override;
    /// For views: a failure is told from the event loop, as that of a handler.
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
    struct Pending {
        enum class Kind { Insert, Update, Delete } kind;
        int row;
        Row before;  ///< as it was fetched; empty for an insert
    };

    void start(const Parameters &values);
    void forget();
    std::vector<Column> allColumns(const std::vector<Column> &stored) const;
    RowWriter::Columns storedColumns() const;
    void announceOpening();
    bool accepts(const Row &row) const;
    void fetchPage(int rows);
    void complete(Row &row);
    bool lookUp(Row &row);
    void lookUpAll();
    QString writtenField(const QString &field) const;
    void setState(State state);
    void setCurrent(int row);
    void beginPending(Pending::Kind kind, int row);
    void prepareInsert();
    void insertAt(int row);
    void undo(const Pending &pending);

    QString name_;
    QString text_;
    RowWriter writer_;
    QStringList expected_;
    Connection *connection_ = nullptr;
    Parameters values_;
    std::vector<Calculated> calculated_;
    std::vector<RowLookup> lookups_;
    RowFilter filter_;
    std::unique_ptr<ResultSet> result_;
    bool pageFailed_ = false;
    int current_ = -1;
    State state_ = State::Closed;
    std::optional<Pending> pending_;
    Row beforeEdit_;
};

}  // namespace kaldo
