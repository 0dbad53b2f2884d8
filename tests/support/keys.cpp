#include "tests/support/keys.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QTest>

namespace kaldo::test {

QWidget *keyTarget() {
    if (QWidget *popup = QApplication::activePopupWidget()) {
        return popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
    }
    if (QWidget *focus = QApplication::focusWidget()) {
        return focus;
    }
    if (QWidget *window = QApplication::activeWindow()) {
        return window;
    }
    throw std::runtime_error("no window is active");
}

void typeText(const QString &text) {
    for (const QChar character : text) {
        QWidget *target = keyTarget();
        const int key = character.toUpper().unicode();
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, character);
        QApplication::sendEvent(target, &down);
        QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, character);
        QApplication::sendEvent(keyTarget(), &up);
    }
    settle();
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(keyTarget(), key, modifiers);
    settle();
}

void hold(Qt::Key key, int times) {
    for (int at = 0; at < times; ++at) {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, QString(), at > 0);
        QApplication::sendEvent(keyTarget(), &down);
        settle();
    }
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(keyTarget(), &up);
    settle();
}

void settle() {
    for (int round = 0; round < 5; ++round) {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
}

void showActive(QWidget *window) {
    window->show();
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window)) {
        throw std::runtime_error("the window did not become active");
    }
    settle();
}

void picture(QWidget *widget, const QString &name) {
    const QString folder = qEnvironmentVariable("KALDO_PICTURES");
    if (!folder.isEmpty()) {
        QDir().mkpath(folder);
        widget->grab().save(folder + '/' + name + ".png");
    }
}

}  // namespace kaldo::test
