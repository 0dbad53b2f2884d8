#pragma once

#include "toolkit/forms/field.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPlainTextEdit>

class QButtonGroup;

namespace kaldo {

/// A fixed list. Typing the first letters or the arrows move through it; F4 and Alt+Down open it;
/// Enter on an empty closed list opens it, else confirms what the keys chose and moves on.
class Choice : public QComboBox, public Field {
    Q_OBJECT

public:
    explicit Choice(QWidget *parent = nullptr);

    void setItems(const QStringList &items);
    /// -1 for none. Fires nothing.
    void setIndex(int index);
    /// Selects the item with this text, none if it is not on the list. Fires nothing.
    void setChosenText(const QString &text);
    bool listOpen() const { return open_; }

    bool commit() override;
    void clearField() override { setIndex(-1); }
    void setFieldReadOnly(bool readOnly) override;
    void showPopup() override;
    void hidePopup() override;

signals:
    /// The user picked an item: by Enter or a click in the list, or by Enter or leaving after
    /// choosing with the keys. Also when it is the same item again.
    void closedUp();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool open_ = false;
    bool byKeys_ = false;
    bool sought_ = false;
    bool pending_ = false;
    bool readOnly_ = false;
};

/// A box of radio buttons as one field. Arrows choose, Enter moves on, Tab passes by the whole.
class RadioGroup : public QGroupBox, public Field {
    Q_OBJECT

public:
    explicit RadioGroup(QWidget *parent = nullptr);

    void setOptions(const QStringList &options, Qt::Orientation orientation = Qt::Horizontal);
    int index() const;
    /// -1 for none. Fires nothing.
    void setIndex(int index);
    /// The chosen button, or the first: where the focus goes.
    void focusChoice(Qt::FocusReason reason = Qt::OtherFocusReason);
    void setOptionEnabled(int index, bool enabled);
    QStringList options() const;

    void clearField() override { setIndex(-1); }
    void setFieldReadOnly(bool readOnly) override;

signals:
    void clicked(int index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void updateProxy();

    QButtonGroup *buttons_;
};

class CheckField : public QCheckBox, public Field {
    Q_OBJECT

public:
    explicit CheckField(QWidget *parent = nullptr);
    void clearField() override { setChecked(false); }
    void setFieldReadOnly(bool readOnly) override;
};

/// Text of several lines; Enter moves on, Ctrl+Enter breaks the line. Widths are characters over
/// all lines; what is pasted beyond is cut.
class Memo : public QPlainTextEdit, public Field {
    Q_OBJECT

public:
    explicit Memo(QWidget *parent = nullptr);

    void setUpperCase(bool upper);
    void setCharacters(int characters);
    /// Lines that are shown; three unless told.
    void setLines(int lines);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    QString text() const { return toPlainText(); }
    void setText(const QString &text) { setPlainText(text); }

    void clearField() override { clear(); }
    void setFieldReadOnly(bool readOnly) override;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void normalise();

    bool upper_ = false;
    int width_ = 0;
    int lines_ = 3;
    int changedAt_ = 0;
    int added_ = 0;
};

}  // namespace kaldo
