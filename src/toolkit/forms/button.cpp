#include "toolkit/forms/button.h"

#include "toolkit/forms/drawn_icon.h"
#include "toolkit/forms/focus.h"
#include "toolkit/forms/focus_keeper.h"
#include "toolkit/forms/keys.h"

#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

// A static library keeps its resources only if someone asks for them, from outside any namespace.
static void loadIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace kaldo {

namespace {

/// True if the stroke is dealt with. What a field that was just left still has to say comes before
/// the press, and may disable the button.
bool handleEnter(QAbstractButton *button, QKeyEvent *event) {
    const QPointer<QAbstractButton> self(button);
    FocusKeeper::get().settle();
    if (!self || !self->isEnabled() || !self->hasFocus()) {
        return true;
    }
    if (!isEnter(*event)) {
        return false;
    }
    event->accept();
    if (!event->isAutoRepeat()) {
        button->click();
    }
    return true;
}

}  // namespace

QIcon iconNamed(const QString &name) {
    loadIcons();
    const QString path = QStringLiteral(":/icons/%1.svg").arg(name);
    return QFile::exists(path) ? QIcon(new DrawnIcon(path)) : QIcon();
}

Button::Button(QWidget *parent) : QPushButton(parent) {
    setAutoDefault(false);
}

void Button::setIconName(const QString &name) {
    if (name != iconName_) {
        iconName_ = name;
        setIcon(iconNamed(name));
    }
}

bool Button::event(QEvent *event) {
    if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent *>(event)->isAmbiguous()) {
        const QPointer<Button> self(this);
        setFocus(Qt::ShortcutFocusReason);
        FocusKeeper::get().settle();
        if (self && (hasFocus() || focusPolicy() == Qt::NoFocus) && isEnabled()) {
            click();
        }
        return true;
    }
    return QPushButton::event(event);
}

void Button::mouseReleaseEvent(QMouseEvent *event) {
    // A press and a release that come in one batch find the field that was left still unheard.
    const QPointer<Button> self(this);
    FocusKeeper::get().settle();
    if (self) {
        QPushButton::mouseReleaseEvent(event);
    }
}

void Button::keyPressEvent(QKeyEvent *event) {
    if (!handleEnter(this, event)) {
        QPushButton::keyPressEvent(event);
    }
}

void Button::paintEvent(QPaintEvent *event) {
    QPushButton::paintEvent(event);
    paintFocusRing(this);
}

IconButton::IconButton(QWidget *parent) : QToolButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
}

void IconButton::setIconName(const QString &name) {
    setIcon(iconNamed(name));
    setToolButtonStyle(icon().isNull() ? Qt::ToolButtonTextOnly : Qt::ToolButtonIconOnly);
}

void IconButton::keyPressEvent(QKeyEvent *event) {
    if (!handleEnter(this, event)) {
        QToolButton::keyPressEvent(event);
    }
}

void IconButton::paintEvent(QPaintEvent *event) {
    QToolButton::paintEvent(event);
    paintFocusRing(this);
}

}  // namespace kaldo
