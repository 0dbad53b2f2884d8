#pragma once

#include <QString>
#include <QWidget>

#include <stdexcept>

namespace kaldo::test {

/// Key strokes as a person makes them: into whatever widget has the focus, or into the list or
/// pop-up that is open.

/// The widget that the next key would reach; never null while a window is active.
QWidget *keyTarget();

void typeText(const QString &text);
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
/// A key that is held: `times` presses, all but the first marked as repeats.
void hold(Qt::Key key, int times);
/// Lets queued work run until nothing is left.
void settle();

/// Shows a window, activates it and waits until it has the focus.
void showActive(QWidget *window);

/// The child of this object name; fails the test where there is none.
template <typename Widget>
Widget *child(const QWidget *parent, const QString &name) {
    auto *found = parent->findChild<Widget *>(name);
    if (found == nullptr) {
        throw std::runtime_error("no widget of this kind is called " + name.toStdString());
    }
    return found;
}

/// Saves a picture of a widget under $KALDO_PICTURES, where that is set.
void picture(QWidget *widget, const QString &name);

}  // namespace kaldo::test
