#include "toolkit/forms/line_field.h"

#include "toolkit/core/text.h"
#include "toolkit/forms/complaint.h"
#include "toolkit/forms/focus.h"
#include "toolkit/forms/one_line_text.h"
#include "toolkit/forms/read_only_look.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QStyleOptionFrame>
#include <QValidator>

#include <algorithm>
#include <utility>

namespace kaldo {

namespace {

/// A field wider than this scrolls rather than fill the form.
constexpr int kWidestShown = 42;
constexpr int kNarrowestShown = 10;

bool isDigit(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

}  // namespace

/// Applies the field's rules to each change of the text before anyone sees it.
class LineRules : public QValidator {
public:
    explicit LineRules(LineField *field) : QValidator(field), field_(field) {}

    State validate(QString &input, int &position) const override {
        field_->normalise(&input, &position);
        position = std::clamp(position, 0, int(input.size()));
        return Acceptable;
    }

private:
    LineField *field_;
};

LineField::LineField(QWidget *parent) : QLineEdit(parent), Field(this) {
    setValidator(new LineRules(this));
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textEdited, this, &LineField::tellPassedOver);
    // Of what the program sets nothing is told.
    connect(this, &QLineEdit::textChanged, this, [this] {
        passedOver_.clear();
        cut_ = false;
    });
}

void LineField::setCharacters(int characters) {
    width_ = characters;
    setText(text());
    updateGeometry();
}

void LineField::setShownCharacters(int characters) {
    shown_ = characters;
    updateGeometry();
}

void LineField::setFieldReadOnly(bool readOnly) {
    const Qt::FocusPolicy focus = readOnly ? Qt::ClickFocus : Qt::StrongFocus;
    if (isReadOnly() == readOnly && focusPolicy() == focus) {
        return;
    }
    setReadOnly(readOnly);
    setFocusPolicy(focus);
    showReadOnly(this, readOnly);
}

bool LineField::event(QEvent *event) {
    followColours(this, isReadOnly(), *event);
    return QLineEdit::event(event);
}

QSize LineField::sizeHint() const {
    const int wanted = shown_ > 0 ? shown_ : width_ > 0 ? std::min(width_, kWidestShown) : 20;
    const QSize base = QLineEdit::sizeHint();
    ensurePolished();
    const QMargins text = textMargins();
    QStyleOptionFrame option;
    initStyleOption(&option);
    // Capitals are wider than digits; a short field must show all of its widest text.
    const int letter = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const int content = letter * wanted + fontMetrics().horizontalAdvance(QLatin1Char('M')) +
                        wanted * letter / 8 + text.left() + text.right() + 6;
    return {style()
                ->sizeFromContents(QStyle::CT_LineEdit, &option, {content, base.height()}, this)
                .width(),
            base.height()};
}

QSize LineField::minimumSizeHint() const {
    const int letter = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    return {std::min(sizeHint().width(), letter * (kNarrowestShown + 3)), sizeHint().height()};
}

void LineField::normalise(QString *text, int *position) const {
    for (QChar &c : *text) {
        if (breaksLine(c)) {
            c = QLatin1Char(' ');
        }
    }
    int excess = width_ > 0 ? characterCount(*text) - width_ : 0;
    cut_ = cut_ || excess > 0;
    // What is beyond the width is the end of what was just typed or pasted, not of what stood.
    while (excess > 0 && !text->isEmpty()) {
        const int at = *position > 0 ? *position - 1 : int(text->size()) - 1;
        const bool pair =
            at > 0 && text->at(at).isLowSurrogate() && text->at(at - 1).isHighSurrogate();
        text->remove(pair ? at - 1 : at, pair ? 2 : 1);
        if (*position > 0) {
            *position -= pair ? 2 : 1;
        }
        --excess;
    }
}

void LineField::paintEvent(QPaintEvent *event) {
    QLineEdit::paintEvent(event);
    paintFocusRing(this);
}

void LineField::keepOnly(QString *text, int *position,
                         const std::function<bool(QChar c, const QString &before)> &keep) const {
    QString kept;
    int cursor = 0;
    for (int i = 0; i < text->size(); ++i) {
        const QChar c = text->at(i);
        if (i == *position) {
            cursor = int(kept.size());
        }
        if (keep(c, kept)) {
            kept += c;
        } else if (!c.isSpace()) {
            passedOver_ += c;
        }
    }
    *position = *position >= text->size() ? int(kept.size()) : cursor;
    *text = kept;
}

void LineField::tellPassedOver() {
    const QString passed = std::exchange(passedOver_, {});
    if (!passed.isEmpty()) {
        complain(this, QStringLiteral("Aquí no se acepta «%1».").arg(passed));
    } else if (std::exchange(cut_, false)) {
        complain(this, QStringLiteral("Aquí caben %1 caracteres.").arg(width_));
    }
}

TextField::TextField(QWidget *parent) : LineField(parent) {}

void TextField::setUpperCase(bool upper) {
    upper_ = upper;
    setText(text());
}

void TextField::setLowerCase(bool lower) {
    lower_ = lower;
    setText(text());
}

void TextField::setAllowed(const QString &characters) {
    allowed_ = characters;
    setText(text());
}

void TextField::normalise(QString *text, int *position) const {
    if (!allowed_.isEmpty()) {
        keepOnly(text, position, [this](QChar c, const QString &) { return allowed_.contains(c); });
    }
    if (upper_ || lower_) {
        for (QChar &c : *text) {
            c = upper_ ? c.toUpper() : c.toLower();  // one for one, so that no text grows
        }
    }
    LineField::normalise(text, position);
}

NumberField::NumberField(QWidget *parent) : LineField(parent) {
    setAlignment(Qt::AlignRight);
    setCharacters(11);
}

void NumberField::setRange(qint64 lowest, qint64 highest) {
    lowest_ = lowest;
    highest_ = highest;
}

qint64 NumberField::value() const {
    return hasValue() ? text().toLongLong() : 0;
}

bool NumberField::hasValue() const {
    bool number = false;
    text().toLongLong(&number);
    return number;
}

void NumberField::setValue(qint64 value) {
    setText(QString::number(value));
}

bool NumberField::commit() {
    const bool fits = text().isEmpty() || (hasValue() && value() >= lowest_ && value() <= highest_);
    if (!fits) {
        complain(this,
                 QStringLiteral("El número debe estar entre %1 y %2.").arg(lowest_).arg(highest_));
    }
    return fits;
}

void NumberField::normalise(QString *text, int *position) const {
    keepOnly(text, position, [](QChar c, const QString &before) {
        return isDigit(c) || (c == QLatin1Char('-') && before.isEmpty());
    });
    LineField::normalise(text, position);
}

MaskedField::MaskedField(QWidget *parent) : LineField(parent) {}

void MaskedField::setMask(const QString &mask) {
    mask_ = mask;
    setShownCharacters(int(mask.size()));
}

QString MaskedField::digits() const {
    QString digits;
    for (const QChar c : text()) {
        if (isDigit(c)) {
            digits += c;
        }
    }
    return digits;
}

QString MaskedField::maskedText() const {
    return digits().isEmpty() ? QString() : text();
}

void MaskedField::setMaskedText(const QString &text) {
    int holes = 0;
    bool fits = true;
    for (const QChar c : text) {
        holes += isDigit(c) ? 1 : 0;
        fits = fits && (isDigit(c) || c.isSpace() || mask_.contains(c));
    }
    fits = fits && holes <= mask_.count(QLatin1Char(' '));
    foreign_ = fits ? QString() : text;
    setText(text);
}

void MaskedField::normalise(QString *text, int *position) const {
    if (!foreign_.isEmpty() && *text == foreign_) {
        return;
    }
    const auto holes = mask_.count(QLatin1Char(' '));
    QString digits;
    int before = 0;
    for (int i = 0; i < text->size(); ++i) {
        if (isDigit(text->at(i)) && digits.size() < holes) {
            digits += text->at(i);
            before += i < *position ? 1 : 0;
        }
    }
    text->clear();
    *position = 0;
    if (digits.isEmpty() && !hasFocus()) {
        return;
    }
    int used = 0;
    for (const QChar c : mask_) {
        const bool hole = c == QLatin1Char(' ');
        *text += hole && used < digits.size() ? digits.at(used) : c;
        used += hole ? 1 : 0;
        if (hole && used == before) {
            *position = int(text->size());
        }
    }
    if (before == 0) {
        *position = int(mask_.indexOf(QLatin1Char(' ')));
    }
}

void MaskedField::focusInEvent(QFocusEvent *event) {
    LineField::focusInEvent(event);
    if (text().isEmpty() && !isReadOnly()) {
        setText(mask_);
        deselect();
        setCursorPosition(int(mask_.indexOf(QLatin1Char(' '))));
    }
}

void MaskedField::focusOutEvent(QFocusEvent *event) {
    LineField::focusOutEvent(event);
    if (digits().isEmpty()) {
        clear();
    }
}

}  // namespace kaldo
