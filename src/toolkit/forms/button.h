#pragma once

#include <QIcon>
#include <QPushButton>
#include <QToolButton>

namespace kaldo {

/// The drawing ":/icons/NAME.svg" with a greyed form for disabled buttons; an empty icon, and no
/// failure, if there is none of that name.
QIcon iconNamed(const QString &name);

/// A push button. Never a default of its dialog by itself; a fresh Enter or Space on it presses it,
/// a repeated one does nothing. The field that had the focus is left before a press, by whatever it
/// comes: Enter, Alt and its letter, the mouse; if that keeps the focus, nothing is pressed.
class Button : public QPushButton {
    Q_OBJECT

public:
    explicit Button(QWidget *parent = nullptr);
    void setIconName(const QString &name);

protected:
    bool event(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString iconName_;
};

/// The same with the picture alone; its text is the hint and what a screen reader says.
class IconButton : public QToolButton {
    Q_OBJECT

public:
    explicit IconButton(QWidget *parent = nullptr);
    void setIconName(const QString &name);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

}  // namespace kaldo
