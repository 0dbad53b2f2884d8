#pragma once

#include <QKeyEvent>

namespace kaldo {

/// Either of the two keys, whatever is held with it.
inline bool isEnter(const QKeyEvent &event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// A letter with Alt, which belongs to buttons and menus: where none takes it, because it is grey
/// or isn't there, it does nothing. With Ctrl as well it is a character of some keyboards.
inline bool isMnemonic(const QKeyEvent &event) {
    return (event.modifiers() & (Qt::AltModifier | Qt::ControlModifier)) == Qt::AltModifier &&
           !event.text().isEmpty() && event.text().at(0).isPrint();
}

}  // namespace kaldo
