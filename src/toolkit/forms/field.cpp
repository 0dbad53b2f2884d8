#include "toolkit/forms/field.h"

#include "toolkit/forms/application.h"
#include "toolkit/forms/focus.h"
#include "toolkit/forms/focus_keeper.h"
#include "toolkit/forms/keys.h"

#include <QApplication>
#include <QFocusEvent>
#include <QHash>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace kaldo {

/// Watches the widgets of one field.
class FieldEvents : public QObject {
public:
    FieldEvents(Field *field, QWidget *widget) : QObject(widget), field_(field), widget_(widget) {
        widget->installEventFilter(this);
    }

    void pressEnter();

    Field::Handler enter;
    Field::Handler leave;
    Field::Handler arrive;
    QHash<QKeyCombination, Field::Handler> keys;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool keyPress(QKeyEvent *event);
    bool runKey(QKeyEvent *event);
    void forwardKey(const QKeyEvent *event);
    void focusIn(const QFocusEvent &event);
    void focusOut(const QFocusEvent &event);
    void postLeave();
    void runLeave();
    void runArrive();
    bool hasFocus() const;

    Field *field_;
    QWidget *widget_;
    bool leavePosted_ = false;
};

namespace {

bool comesFromElsewhere(Qt::FocusReason reason) {
    return reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason ||
           reason == Qt::ActiveWindowFocusReason;
}

QKeyCombination combinationOf(const QKeyEvent &event) {
    return QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key()));
}

}  // namespace

bool FieldEvents::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride: {
            auto *key = static_cast<QKeyEvent *>(event);
            if (keys.contains(combinationOf(*key))) {
                event->accept();
                return true;
            }
            break;
        }
        case QEvent::KeyPress:
            return keyPress(static_cast<QKeyEvent *>(event));
        case QEvent::FocusIn:
            focusIn(*static_cast<QFocusEvent *>(event));
            break;
        case QEvent::FocusOut:
            focusOut(*static_cast<QFocusEvent *>(event));
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

bool FieldEvents::keyPress(QKeyEvent *event) {
    const QPointer<FieldEvents> self(this);
    const bool had = hasFocus();
    const bool sentBack = FocusKeeper::get().settle();
    if (!self) {
        return true;
    }
    if (had && !hasFocus()) {
        // The focus was on its way when the key came. Text typed ahead goes where it was meant;
        // Enter does not: it must press nothing that the eye has not seen.
        if (!sentBack && !isEnter(*event)) {
            forwardKey(event);
        }
        return true;
    }
    if (runKey(event)) {
        return true;
    }
    if (!isEnter(*event)) {
        return isMnemonic(*event);
    }
    if (event->isAutoRepeat()) {
        return true;
    }
    if ((event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    pressEnter();
    return true;
}

void FieldEvents::forwardKey(const QKeyEvent *event) {
    if (QWidget *now = widget_->window()->focusWidget()) {
        QKeyEvent copy(event->type(), event->key(), event->modifiers(), event->text(),
                       event->isAutoRepeat());
        QCoreApplication::sendEvent(now, &copy);
    }
}

bool FieldEvents::runKey(QKeyEvent *event) {
    const auto found = keys.constFind(combinationOf(*event));
    if (found == keys.constEnd()) {
        return false;
    }
    if (!event->isAutoRepeat()) {
        const Field::Handler handler = *found;
        const FocusKeeper::Scope scope(widget_, FocusKeeper::Scope::Kind::Other);
        runGuarded(handler);
    }
    return true;
}

void FieldEvents::pressEnter() {
    const QPointer<QWidget> widget(widget_);
    const QPointer<QWidget> form(formOf(widget_));
    const bool visible = widget->isVisible();
    const bool focused = hasFocus();
    FocusKeeper::Scope scope(widget_, FocusKeeper::Scope::Kind::Enter);
    bool committed = true;
    const Field::Handler handler = enter;
    const bool well = runGuarded([&] {
        committed = field_->commit();
        if (committed && widget && handler) {
            handler();
        }
    });
    if (!well || !committed || scope.held() || !widget || !form) {
        return;
    }
    const bool closed = visible && !widget->isVisibleTo(form);
    const bool movedAway = focused && !hasFocus();
    if (closed || movedAway || !form->isVisible()) {
        return;
    }
    if (QWidget *next = nextInTabOrder(widget_)) {
        moveFocus(next);
    }
}

void FieldEvents::focusIn(const QFocusEvent &event) {
    FocusKeeper &keeper = FocusKeeper::get();
    if (auto *owed = static_cast<FieldEvents *>(keeper.owed())) {
        if (owed == this) {
            keeper.owe(nullptr);
        } else if (formOf(owed->widget_) == formOf(widget_)) {
            keeper.owe(nullptr);
            owed->postLeave();
        }
    }
    if (arrive && !comesFromElsewhere(event.reason())) {
        keeper.post([self = QPointer<FieldEvents>(this)] {
            if (self) {
                self->runArrive();
            }
        });
    }
}

void FieldEvents::focusOut(const QFocusEvent &event) {
    if (!comesFromElsewhere(event.reason()) && !FocusKeeper::get().leaving(formOf(widget_))) {
        postLeave();
    }
}

void FieldEvents::postLeave() {
    if (leavePosted_) {
        return;
    }
    leavePosted_ = true;
    FocusKeeper::get().post([self = QPointer<FieldEvents>(this)] {
        if (self) {
            self->leavePosted_ = false;
            self->runLeave();
        }
    });
}

bool FieldEvents::hasFocus() const {
    const QWidget *now = widget_->window()->focusWidget();
    return now && (now == widget_ || widget_->isAncestorOf(now));
}

void FieldEvents::runLeave() {
    QWidget *form = formOf(widget_);
    QWidget *now = widget_->window()->focusWidget();
    if (!widget_->isVisible() || !widget_->isEnabled() || !now || hasFocus() ||
        !form->isAncestorOf(now)) {
        return;
    }
    FocusKeeper &keeper = FocusKeeper::get();
    const QWidget *modal = QApplication::activeModalWidget();
    if (isEscape(now) || (modal && modal != widget_->window())) {
        keeper.owe(this);
        return;
    }
    const Field::Handler handler = leave;
    const QPointer<QWidget> widget(widget_);
    const FocusKeeper::Scope scope(widget_, FocusKeeper::Scope::Kind::Leave);
    runGuarded([&] {
        if (!field_->commit()) {
            moveFocus(widget);
        } else if (widget && handler) {
            handler();
        }
    });
}

void FieldEvents::runArrive() {
    if (!arrive || !hasFocus()) {
        return;
    }
    const Field::Handler handler = arrive;
    const FocusKeeper::Scope scope(widget_, FocusKeeper::Scope::Kind::Other);
    runGuarded(handler);
}

Field::Field(QWidget *widget) : events_(new FieldEvents(this, widget)), widget_(widget) {}

Field::~Field() {
    delete events_;
}

Field *Field::of(QWidget *widget) {
    for (; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        if (auto *field = dynamic_cast<Field *>(widget); field && field->events_) {
            return field;
        }
    }
    return nullptr;
}

void Field::setEnterHandler(Handler handler) {
    events_->enter = std::move(handler);
}

void Field::setLeaveHandler(Handler handler) {
    events_->leave = std::move(handler);
}

void Field::setArriveHandler(Handler handler) {
    events_->arrive = std::move(handler);
}

void Field::setKeyHandler(int key, Handler handler, Qt::KeyboardModifiers modifiers) {
    events_->keys[QKeyCombination(modifiers, Qt::Key(key))] = std::move(handler);
}

void Field::pressEnter() {
    events_->pressEnter();
}

void Field::watchPart(QWidget *part) {
    part->installEventFilter(events_);
}

void Field::becomePartOf(Field *owner) {
    delete std::exchange(events_, nullptr);
    owner->watchPart(widget_);
}

}  // namespace kaldo
