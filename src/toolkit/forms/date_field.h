#pragma once

#include "toolkit/forms/line_field.h"

#include <QDate>

#include <functional>

namespace kaldo {

/// A date typed as dd/MM/yyyy (also "1/2/24" or "010224"), with a calendar on F4 or Alt+Down.
///
/// A text that is no date keeps the focus and the text, and calls the invalid handler with it, or
/// tells it beside the field where none is set.
class DateField : public LineField {
    Q_OBJECT

public:
    explicit DateField(QWidget *parent = nullptr);

    /// Invalid for an empty field and for a text that is no date.
    QDate date() const;
    void setDate(const QDate &date);
    /// What the field reads; years of two digits are 2000 to 2049 and 1950 to 1999.
    static QDate parse(const QString &text);

    void setInvalidHandler(std::function<void(const QString &)> handler);
    void openCalendar();
    bool commit() override;

signals:
    /// The user settled on another date: by Enter, by leaving, or in the calendar.
    void dateEdited(const QDate &date);
    /// The calendar was closed with a choice.
    void calendarClosed();

protected:
    void normalise(QString *text, int *position) const override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void settle(const QDate &date);

    QDate settled_;
    std::function<void(const QString &)> invalid_;
};

}  // namespace kaldo
