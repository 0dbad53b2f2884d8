#pragma once

#include "toolkit/forms/line_field.h"
#include "toolkit/forms/list_popup.h"

#include <QPersistentModelIndex>

class QToolButton;

namespace kaldo {

/// A drop-down over the rows of a model with several columns.
///
/// F4, Alt+Down, the arrow button and Enter on an empty field open the list; typing seeks by prefix
/// in the display column and completes the text; Enter or a click picks and fires closedUp(),
/// Escape closes and fires cancelled(). A text typed with the list closed is resolved at Enter or
/// on leaving: the first row that starts with it is taken and closedUp() fires; without such a row
/// the text is told as not on the list, and keeps the focus.
class LookupField : public LineField {
    Q_OBJECT

public:
    explicit LookupField(QWidget *parent = nullptr);

    /// May be called again, with the list closed; the row is forgotten and the text emptied.
    void setSource(const LookupSource &source);
    const LookupSource &source() const { return source_; }

    /// The row of the model that is taken, -1 for none. Forgotten when the model is reset, while
    /// value() and the text stay.
    int row() const { return row_.row(); }
    void setRow(int row);
    /// The value field of the row, as it was when the row was taken; invalid for none.
    QVariant value() const { return value_; }
    /// Takes the row with this value; false and an empty field if there is none.
    bool setValue(const QVariant &value);
    /// Shows a text without a row, as screens do for what was read with a record.
    void setShownText(const QString &text);

    void setFiltering(bool on);
    bool filtering() const { return filtering_; }
    void openList();
    void closeList();
    bool listOpen() const;
    ListPopup *list() const { return list_; }

    bool commit() override;
    void clearField() override;
    void setFieldReadOnly(bool readOnly) override;

signals:
    /// The user picked this row of the model; right before closedUp(), for what must follow the
    /// field before any screen looks.
    void rowTaken(int row);
    /// The user picked a row; row() and text() hold it.
    void closedUp();
    /// The list was closed by Escape.
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void take(int row);
    void complete(const QString &typed);

    LookupSource source_;
    ListPopup *list_;
    QToolButton *arrow_;
    QPersistentModelIndex row_;
    QVariant value_;
    bool filtering_ = false;
    bool typed_ = false;
    bool deleting_ = false;
};

}  // namespace kaldo
