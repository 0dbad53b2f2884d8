#include "toolkit/forms/focus.h"

#include "toolkit/forms/choice.h"
#include "toolkit/forms/focus_keeper.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QPainter>
#include <QTimer>

#include <utility>

namespace kaldo {

namespace {

constexpr char kEscapeProperty[] = "kaldoEscape";

bool canTakeFocus(QWidget *widget) {
    return widget->isEnabled() && widget->isVisibleTo(widget->window());
}

void giveFocus(QWidget *widget) {
    // The focus goes by keys here: buttons and lists show it as after a Tab.
    widget->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    if (auto *group = qobject_cast<RadioGroup *>(widget)) {
        group->focusChoice(Qt::TabFocusReason);
        return;
    }
    // The reason of the Tab key: the text is selected and the next key replaces it. A window that
    // is just getting its activation back passes another reason on, so it is selected here too.
    widget->setFocus(Qt::TabFocusReason);
    if (auto *line = qobject_cast<QLineEdit *>(widget); line && !line->isReadOnly()) {
        line->selectAll();
    }
}

}  // namespace

QWidget *formOf(QWidget *widget) {
    QWidget *form = widget;
    while (form && !form->isWindow() && !form->inherits("QMdiSubWindow")) {
        form = form->parentWidget();
    }
    return form;
}

FocusKeeper &FocusKeeper::get() {
    const QString name = QStringLiteral("focusKeeper");
    QObject *parent = QCoreApplication::instance();
    QObject *found = parent->findChild<QObject *>(name, Qt::FindDirectChildrenOnly);
    if (!found) {
        found = new FocusKeeper(parent);
        found->setObjectName(name);
    }
    return *static_cast<FocusKeeper *>(found);
}

FocusKeeper::Scope::Scope(QWidget *field, Kind kind)
    : form_(formOf(field)), focus_(field->window()->focusWidget()), kind_(kind) {
    FocusKeeper &keeper = FocusKeeper::get();
    outer_ = keeper.scope_;
    keeper.scope_ = this;
}

FocusKeeper::Scope::~Scope() {
    FocusKeeper &keeper = FocusKeeper::get();
    keeper.carryOut(form_);
    if (kind_ == Kind::Leave && form_ && form_->window()->focusWidget() != focus_) {
        keeper.sentBack_ = true;
    }
    keeper.scope_ = outer_;
    if (!keeper.requests_.isEmpty()) {
        keeper.schedule();
    }
}

void FocusKeeper::request(QWidget *widget) {
    QWidget *form = formOf(widget);
    requests_[form] = widget;
    for (Scope *scope = scope_; scope; scope = scope->outer_) {
        if (scope->form_ == form) {
            scope->held_ = true;
            return;  // carried out when that handler returns
        }
    }
    schedule();
}

void FocusKeeper::stay() {
    if (scope_) {
        scope_->held_ = true;
        requests_.remove(scope_->form_);
    }
}

bool FocusKeeper::leaving(const QWidget *form) const {
    for (const Scope *scope = scope_; scope; scope = scope->outer_) {
        if (scope->kind_ == Scope::Kind::Leave && scope->form_ == form) {
            return true;
        }
    }
    return false;
}

void FocusKeeper::post(std::function<void()> task) {
    tasks_.push_back(std::move(task));
    schedule();
}

void FocusKeeper::schedule() {
    if (!scheduled_) {
        scheduled_ = true;
        QTimer::singleShot(0, this, [this] {
            scheduled_ = false;
            settle();
        });
    }
}

FocusKeeper::Hold::~Hold() {
    FocusKeeper &keeper = FocusKeeper::get();
    if (--keeper.holds_ == 0 && (!keeper.tasks_.empty() || !keeper.requests_.isEmpty())) {
        keeper.schedule();
    }
}

bool FocusKeeper::settle() {
    sentBack_ = false;
    if (holds_ > 0) {
        return false;
    }
    while (!tasks_.empty() || !requests_.isEmpty()) {
        const std::vector<std::function<void()>> tasks = std::exchange(tasks_, {});
        for (const auto &task : tasks) {
            task();
        }
        const QList<QObject *> forms = requests_.keys();
        bool any = false;
        for (QObject *form : forms) {
            bool inHandler = false;
            for (Scope *scope = scope_; scope; scope = scope->outer_) {
                inHandler = inHandler || scope->form_ == form;
            }
            if (!inHandler) {
                any = true;
                const QPointer<QWidget> widget = requests_.take(form);
                if (widget && canTakeFocus(widget)) {
                    giveFocus(widget);
                }
            }
        }
        if (!any && tasks_.empty()) {
            break;
        }
    }
    return sentBack_;
}

void FocusKeeper::carryOut(QWidget *form) {
    const QPointer<QWidget> widget = requests_.take(form);
    if (widget && canTakeFocus(widget)) {
        giveFocus(widget);
    }
}

void moveFocus(QWidget *widget) {
    FocusKeeper::get().request(widget);
}

void stayHere() {
    FocusKeeper::get().stay();
}

void markAsEscape(QWidget *button) {
    button->setProperty(kEscapeProperty, true);
}

bool isEscape(const QWidget *widget) {
    return widget && widget->property(kEscapeProperty).toBool();
}

void paintFocusRing(QWidget *widget) {
    if (!widget->hasFocus()) {
        return;
    }
    QPainter painter(widget);
    painter.setRenderHint(QPainter::Antialiasing);
    // The application's own: lists and their editors mark rows in a paler colour.
    painter.setPen(QPen(QApplication::palette().color(QPalette::Active, QPalette::Highlight), 2));
    painter.drawRoundedRect(QRectF(widget->rect()).adjusted(1, 1, -1, -1), 2.5, 2.5);
}

QWidget *nextInTabOrder(QWidget *from, bool forward) {
    const QWidget *form = formOf(from);
    QWidget *candidate = from;
    do {
        candidate = forward ? candidate->nextInFocusChain() : candidate->previousInFocusChain();
        const bool inForm = form->isAncestorOf(candidate) && formOf(candidate) == form;
        if (inForm && candidate != from && !from->isAncestorOf(candidate) &&
            (candidate->focusPolicy() & Qt::TabFocus) && !candidate->focusProxy() &&
            candidate->isEnabled() && candidate->isVisibleTo(form)) {
            return candidate;
        }
    } while (candidate && candidate != from);
    return nullptr;
}

QWidget *windowInFront() {
    if (QWidget *modal = QApplication::activeModalWidget()) {
        return modal;
    }
    if (QWidget *active = QApplication::activeWindow()) {
        return active;
    }
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<QMainWindow *>(window) != nullptr) {
            return window;
        }
    }
    return nullptr;
}

ActivationReturn::~ActivationReturn() {
    if (window_ && window_->isVisible() && QApplication::activeWindow() != window_) {
        window_->activateWindow();
    }
}

}  // namespace kaldo
