#pragma once

#include "toolkit/forms/field.h"

#include <QLineEdit>

#include <functional>

namespace kaldo {

/// A one-line field. Widths are characters (code points): typing stops there and pasted text is
/// cut there, so that what stood stays whole; line breaks and other control characters become
/// blanks.
class LineField : public QLineEdit, public Field {
    Q_OBJECT

public:
    explicit LineField(QWidget *parent = nullptr);

    /// Characters that fit; 0 for no limit. Also sizes the field unless setShownCharacters() is
    /// used.
    void setCharacters(int characters);
    int characters() const { return width_; }
    /// Characters that are visible without scrolling.
    void setShownCharacters(int characters);

    /// Empties the field and forgets what could be undone. QLineEdit::clear() would keep every
    /// text that ever stood here for as long as the screen lives.
    void clear() { setText(QString()); }
    void clearField() override { clear(); }
    void setFieldReadOnly(bool readOnly) override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// What of the text may stand; called for every change, typed, pasted or set. `position` is the
    /// cursor and may be moved along. What a person typed or pasted in vain is told.
    virtual void normalise(QString *text, int *position) const;
    /// Keeps the characters that `keep` lets through, with the cursor behind the same ones;
    /// `before` is what was kept of the text so far.
    void keepOnly(QString *text, int *position,
                  const std::function<bool(QChar c, const QString &before)> &keep) const;

    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class LineRules;
    void tellPassedOver();

    mutable QString passedOver_;
    mutable bool cut_ = false;
    int width_ = 0;
    int shown_ = 0;
};

/// Free text, in capitals where told, or with a limited set of characters.
class TextField : public LineField {
    Q_OBJECT

public:
    explicit TextField(QWidget *parent = nullptr);

    /// Letters turn to capitals as they are typed, pasted or set.
    void setUpperCase(bool upper);
    /// The same with small letters, as mail addresses are kept.
    void setLowerCase(bool lower);
    /// Only these characters can be typed; others are passed over. Empty lets all through.
    void setAllowed(const QString &characters);
    /// Digits, blank and minus, as the number fields of the notes take them.
    void setDigitsOnly() { setAllowed(QStringLiteral("0123456789 -")); }
    void setPassword(bool password) { setEchoMode(password ? Password : Normal); }

protected:
    void normalise(QString *text, int *position) const override;

private:
    bool upper_ = false;
    bool lower_ = false;
    QString allowed_;
};

/// A whole number within limits. Letters can't be typed; a number outside, a negative one where
/// there are none among them, is told through the hint beside the field, keeps the focus and the
/// text.
class NumberField : public LineField {
    Q_OBJECT

public:
    explicit NumberField(QWidget *parent = nullptr);

    void setRange(qint64 lowest, qint64 highest);
    /// The number typed; 0 for an empty or unfinished text. hasValue() tells them apart.
    qint64 value() const;
    bool hasValue() const;
    void setValue(qint64 value);
    bool commit() override;

protected:
    void normalise(QString *text, int *position) const override;

private:
    qint64 lowest_ = -2147483647;
    qint64 highest_ = 2147483647;
};

/// A text over a mask such as "(   )   -    ": a blank is a hole for one digit, all other
/// characters stand. An empty field shows the mask while it has the focus.
class MaskedField : public LineField {
    Q_OBJECT

public:
    explicit MaskedField(QWidget *parent = nullptr);

    void setMask(const QString &mask);
    /// The digits alone.
    QString digits() const;
    /// The masked text, or empty when no digit stands.
    QString maskedText() const;
    /// A text that does not fit the mask, from an older record, stands as it is until it is edited.
    void setMaskedText(const QString &text);
    void clearField() override { setMaskedText({}); }

protected:
    void normalise(QString *text, int *position) const override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QString mask_;
    QString foreign_;
};

}  // namespace kaldo
