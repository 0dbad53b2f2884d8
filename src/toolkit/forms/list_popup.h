#pragma once

#include "toolkit/core/money.h"

#include <QAbstractItemModel>
#include <QFrame>
#include <QPointer>
#include <QVariant>

class QLineEdit;
class QTableView;

namespace kaldo {

/// How a cell shows its value.
enum class CellMask {
    Text,
    Integer,
    MoneyTight,   ///< "$#,##0.00"
    MoneySpaced,  ///< "$ #,##0.00"
    Number,       ///< plain decimal
    Date,         ///< dd/MM/yyyy
};

/// The text of a value under a mask; an empty text for NULL.
QString maskedText(const QVariant &value, CellMask mask);

/// The section of a model whose field name (headerData, horizontal, display) is this, without
/// regard to case; -1 if there is none.
int fieldSection(const QAbstractItemModel &model, const QString &field);

struct ListColumn {
    QString field;
    QString title;
    int width = 20;  ///< characters
    CellMask mask = CellMask::Text;
};

/// Where a drop-down takes its rows from. The model outlives the widgets that show it; it may hand
/// out its rows by fetchMore().
struct LookupSource {
    QAbstractItemModel *model = nullptr;
    QString valueField;    ///< what the field or cell stores
    QString displayField;  ///< what it shows, and what typing seeks
    QList<ListColumn> columns;
    /// The list opens with a line for words, which the columns are filtered by.
    bool filtered = false;
};

/// The drop-down of LookupField and of the grid's look-up columns: a table with titles, and a
/// filter line when filtering is on: rows stay that hold each of its words in any column, and the
/// row whose value it is comes first. Enter or a click picks, Escape cancels.
class ListPopup : public QFrame {
    Q_OBJECT

public:
    explicit ListPopup(QWidget *owner);

    void setSource(const LookupSource &source);
    void setFiltering(bool on);
    /// The widget that the list opens under, where it is not the owner.
    void setAnchor(QWidget *anchor) { anchor_ = anchor; }
    /// Below the owner, or above where the screen ends; `row` of the source is current, -1 for
    /// none.
    void open(int row);
    bool isOpen() const { return isVisible(); }
    /// Moves to the first row whose display text starts with `prefix`; false if there is none.
    bool seek(const QString &prefix);
    QTableView *table() const { return table_; }
    QLineEdit *filterLine() const { return filter_; }

signals:
    void picked(int sourceRow);
    void cancelled();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void pick(const QModelIndex &index);
    void applyFilter();
    void fetchRest();
    void markBest();
    void arrangeColumns();
    void place();
    bool handleKey(QKeyEvent *event);
    bool typeAhead(const QKeyEvent &event);

    QPointer<QWidget> anchor_;
    LookupSource source_;
    QTableView *table_;
    QLineEdit *filter_;
    class ShownRows *proxy_;
    QString typed_;
};

/// For comparisons by people: capitals, accents aside.
QString foldedText(const QString &text);

/// The first row of a model whose text in `section` starts with `prefix`, case and accents aside;
/// fetches further rows as far as needed; -1 if there is none.
int findPrefix(QAbstractItemModel *model, int section, const QString &prefix);
/// The first row whose text in `section` equals `text` after trimming; fetches as needed; or -1.
int findText(QAbstractItemModel *model, int section, const QString &text);

}  // namespace kaldo
