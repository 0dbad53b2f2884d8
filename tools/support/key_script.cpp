#include "tools/support/key_script.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace kaldo {

namespace {

QWidget *keyTarget() {
    if (QWidget *popup = QApplication::activePopupWidget()) {
        return popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
    }
    if (QWidget *focus = QApplication::focusWidget()) {
        return focus;
    }
    return QApplication::activeWindow();
}

bool isWithin(const QWidget *widget, const QString &name) {
    for (const QWidget *at = widget; at != nullptr; at = at->parentWidget()) {
        if (at->objectName() == name) {
            return true;
        }
    }
    return false;
}

QString chainOf(const QWidget *widget) {
    QStringList names;
    for (const QWidget *at = widget; at != nullptr; at = at->parentWidget()) {
        if (!at->objectName().isEmpty()) {
            names.prepend(at->objectName());
        }
    }
    return names.join(QLatin1String(" > "));
}

QString situation() {
    QString text = QLatin1String("focus: ") + chainOf(QApplication::focusWidget()) +
                   QLatin1String("; window: ") + chainOf(QApplication::activeWindow());
    if (const QWidget *modal = QApplication::activeModalWidget()) {
        text += QLatin1String("; modal: ") + modal->objectName();
        if (const auto *label = modal->findChild<QLabel *>(QStringLiteral("messageText"))) {
            text += QLatin1String(": ") + label->text();
        }
    }
    return text;
}

}  // namespace

KeyScript::KeyScript(QObject *parent) : QObject(parent) {
    timer_.setInterval(5);
    connect(&timer_, &QTimer::timeout, this, &KeyScript::tick);
}

KeyScript &KeyScript::add(const QString &what, std::function<bool()> act) {
    steps_.append({what, std::move(act)});
    return *this;
}

KeyScript &KeyScript::at(const QString &window, const QString &field) {
    return add(QStringLiteral("the focus in %1 %2").arg(window, field), [window, field] {
        const QWidget *target = keyTarget();
        return target != nullptr && isWithin(target, window) &&
               (field.isEmpty() || isWithin(target, field));
    });
}

KeyScript &KeyScript::atBox(const QString &text) {
    return add(QLatin1String("the box «") + text + u'»', [text] {
        const QWidget *modal = QApplication::activeModalWidget();
        const auto *label =
            modal == nullptr ? nullptr : modal->findChild<QLabel *>(QStringLiteral("messageText"));
        return label != nullptr && label->text().startsWith(text) &&
               isWithin(keyTarget(), modal->objectName());
    });
}

KeyScript &KeyScript::type(const QString &text) {
    for (const QChar character : text) {
        press(static_cast<Qt::Key>(character.toUpper().unicode()), {}, QString(character));
    }
    return *this;
}

KeyScript &KeyScript::press(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text) {
    return add(QStringLiteral("a widget to strike keys into"), [this, key, modifiers, text] {
        if (keyTarget() == nullptr) {
            return false;
        }
        strike(key, modifiers, text);
        return true;
    });
}

KeyScript &KeyScript::menu(const QString &heading) {
    press(Qt::Key_Alt);
    return add(QLatin1String("the menu ") + heading, [this, heading] {
        const auto *window = qobject_cast<QMainWindow *>(QApplication::activeWindow());
        if (window == nullptr) {
            return false;
        }
        const QAction *action = window->menuBar()->activeAction();
        const bool there = action != nullptr && action->text().remove(u'&') == heading;
        strike(there ? Qt::Key_Down : Qt::Key_Right, {}, QString());
        return there;
    });
}

KeyScript &KeyScript::choose(const QString &caption) {
    return add(QLatin1String("the menu entry ") + caption, [this, caption] {
        const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (menu == nullptr) {
            return false;
        }
        const QAction *action = menu->activeAction();
        const bool there = action != nullptr && action->text().remove(u'&') == caption;
        strike(there ? Qt::Key_Return : Qt::Key_Down, {}, QString());
        return there;
    });
}

KeyScript &KeyScript::alt(char letter) {
    const QChar character = QChar::fromLatin1(letter);
    return press(static_cast<Qt::Key>(character.toUpper().unicode()), Qt::AltModifier,
                 QString(character));
}

KeyScript &KeyScript::picture(const QString &name) {
    return add(QLatin1String("the picture ") + name, [this, name] {
        if (!folder_.isEmpty()) {
            QDir().mkpath(folder_);
            desktopPicture().save(QStringLiteral("%1/%2-%3.png")
                                      .arg(folder_)
                                      .arg(++pictures_, 2, 10, QLatin1Char('0'))
                                      .arg(name));
        }
        return true;
    });
}

KeyScript &KeyScript::call(std::function<void()> action) {
    return add(QStringLiteral("an action"), [action = std::move(action)] {
        action();
        return true;
    });
}

void KeyScript::start() {
    waiting_.start();
    timer_.start();
}

void KeyScript::tick() {
    if (isDone()) {
        timer_.stop();
        emit finished();
        return;
    }
    const Step step = steps_.at(next_);
    if (step.act()) {
        ++next_;
        waiting_.restart();
    } else if (waiting_.elapsed() > patience_) {
        timer_.stop();
        emit failed(QStringLiteral("step %1 waited for %2 in vain; %3")
                        .arg(next_ + 1)
                        .arg(step.what, situation()));
    }
}

void KeyScript::strike(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text) {
    // Queued, so that the script never stands on the stack of what its keys set off; through the
    // window, so that shortcuts, mnemonics and pop-ups get their share as with a real keyboard.
    QMetaObject::invokeMethod(
        this,
        [key, modifiers, text] {
            QWindow *window = QGuiApplication::focusWindow();
            if (window == nullptr) {
                window = keyTarget()->window()->windowHandle();
            }
            QTest::sendKeyEvent(QTest::Click, window, key, text, modifiers);
        },
        Qt::QueuedConnection);
}

QImage desktopPicture() {
    QWidget *ground = nullptr;
    QList<QWidget *> above;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible()) {
            continue;
        }
        if (window->objectName() == QLatin1String("FRM000")) {
            ground = window;
        } else {
            above += window;
        }
    }
    if (ground == nullptr && !above.isEmpty()) {
        ground = above.takeFirst();
    }
    if (ground == nullptr) {
        return {};
    }
    // A modal window stands over those that wait for it, a pop-up over all.
    std::stable_sort(above.begin(), above.end(), [](QWidget *left, QWidget *right) {
        const auto height = [](QWidget *window) {
            const bool front = window == QApplication::activeModalWidget();
            return window->windowType() == Qt::Popup ? 2 : front ? 1 : 0;
        };
        return height(left) < height(right);
    });
    QPixmap picture = ground->grab();
    QPainter painter(&picture);
    for (QWidget *window : above) {
        painter.drawPixmap(window->geometry().topLeft() - ground->geometry().topLeft(),
                           window->grab());
    }
    painter.end();
    return picture.toImage();
}

}  // namespace kaldo
