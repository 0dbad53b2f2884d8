#include "toolkit/forms/money_field.h"

#include "toolkit/forms/complaint.h"
#include "toolkit/forms/focus.h"

#include <QFocusEvent>

namespace kaldo {

MoneyField::MoneyField(QWidget *parent) : LineField(parent) {
    setAlignment(Qt::AlignRight);
    setShownCharacters(13);
    showAtRest();
    connect(this, &QLineEdit::textEdited, this, [this] {
        typing_ = true;
        blank_ = false;
        double amount = 0;
        QString complaint;
        if (readTyped(&amount, &complaint)) {
            emit valueEdited(amount);
        }
    });
}

double MoneyField::value() const {
    double amount = 0;
    QString complaint;
    return typing_ ? (readTyped(&amount, &complaint) ? amount : 0) : value_;
}

void MoneyField::setValue(double value) {
    value_ = value;
    typing_ = false;
    blank_ = false;
    showAtRest();
}

void MoneyField::setBlank() {
    value_ = 0;
    typing_ = false;
    blank_ = true;
    clear();
}

bool MoneyField::isBlank() const {
    return blank_ || (typing_ && text().trimmed().isEmpty());
}

void MoneyField::setMask(MoneyMask mask) {
    mask_ = mask;
    showAtRest();
}

void MoneyField::setShownText(const QString &text) {
    setText(text);
}

void MoneyField::setFieldReadOnly(bool readOnly) {
    LineField::setFieldReadOnly(readOnly);
    showAtRest();
}

bool MoneyField::commit() {
    if (!typing_) {
        return true;
    }
    double amount = 0;
    QString complaint;
    if (!readTyped(&amount, &complaint)) {
        complain(this, complaint);
        selectAll();
        return false;
    }
    const bool blank = isBlank();
    setValue(amount);
    if (blank && hasFocus()) {
        setBlank();
    }
    return true;
}

bool MoneyField::readTyped(double *value, QString *complaint) const {
    if (!parseMoney(text(), value)) {
        *complaint = QStringLiteral("«%1» no es un importe. Ejemplo: 1,234.50").arg(text());
    } else if (*value < 0 && !negative_) {
        *complaint = QStringLiteral("El importe no puede ser negativo.");
    } else if (*value > maximum_ || *value < -maximum_) {
        *complaint =
            QStringLiteral("El importe no puede ser mayor que %1.").arg(formatMoney(maximum_));
    }
    return complaint->isEmpty();
}

void MoneyField::showAtRest() {
    if (blank_) {
        clear();
    } else if (hasFocus() && !isReadOnly()) {
        setText(formatPlainNumber(value_));
        selectAll();
    } else if (const QString shown = formatMoney(value_, mask_); shown != text()) {
        setText(shown);
    }
}

void MoneyField::normalise(QString *text, int *position) const {
    static const QString kept = QStringLiteral("0123456789.,-$ ");
    keepOnly(text, position, [](QChar c, const QString &) { return kept.contains(c); });
    LineField::normalise(text, position);
}

void MoneyField::focusInEvent(QFocusEvent *event) {
    if (!typing_) {
        showAtRest();
    }
    LineField::focusInEvent(event);
}

void MoneyField::focusOutEvent(QFocusEvent *event) {
    LineField::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason ||
        reason == Qt::MenuBarFocusReason) {
        return;
    }
    double amount = 0;
    QString complaint;
    if (typing_ && readTyped(&amount, &complaint)) {
        value_ = amount;
        typing_ = false;
    }
    if (!typing_) {
        blank_ = false;
        showAtRest();
    }
}

}  // namespace kaldo
