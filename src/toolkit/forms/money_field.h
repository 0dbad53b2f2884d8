#pragma once

#include "toolkit/core/money.h"
#include "toolkit/forms/line_field.h"

namespace kaldo {

/// An amount box: "$1,234.50" at rest, the plain number while it is typed.
///
/// Only digits, points, commas, signs and blanks can be typed; letters are passed over. A text that
/// is no amount, is negative or above the limit is told beside the field and keeps the focus;
/// nothing typed is lost. A value set by the program is kept to the last bit, and stays so when the
/// focus passes without typing.
class MoneyField : public LineField {
    Q_OBJECT

public:
    explicit MoneyField(QWidget *parent = nullptr);

    /// The amount; what is being typed counts as far as it is one. 0 for a blank box.
    double value() const;
    /// Not limited: computed amounts may be negative or large.
    void setValue(double value);
    /// Blank for typing, as opposed to zero; value() is 0.
    void setBlank();
    bool isBlank() const;

    void setMask(MoneyMask mask);
    /// The highest amount that can be typed; 999,999,999.99 unless told.
    void setMaximum(double maximum) { maximum_ = maximum; }
    void setNegativeAllowed(bool allowed) { negative_ = allowed; }
    /// Shown instead of the mask's text until the next setValue(): an amount below a centavo.
    void setShownText(const QString &text);

    bool commit() override;
    void clearField() override { setValue(0); }
    void setFieldReadOnly(bool readOnly) override;

signals:
    /// The user changed the amount: on each key stroke that leaves a readable one.
    void valueEdited(double value);

protected:
    void normalise(QString *text, int *position) const override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void showAtRest();
    bool readTyped(double *value, QString *complaint) const;

    double value_ = 0;
    double maximum_ = 999999999.99;
    MoneyMask mask_ = MoneyMask::Tight;
    bool negative_ = false;
    bool typing_ = false;
    bool blank_ = false;
};

}  // namespace kaldo
