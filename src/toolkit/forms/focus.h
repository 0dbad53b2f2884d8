#pragma once

#include <QPointer>
#include <QWidget>

namespace kaldo {

/// Puts the focus on a widget of its window when the handler that runs now has returned, or at the
/// next turn of the event loop outside of handlers. The last request of a window wins. A widget
/// that is then gone, hidden or disabled gets nothing, and the focus stays.
///
/// The way for all handlers to move the focus: what the handler still enables, hides or reloads
/// after the call is settled before the focus arrives.
void moveFocus(QWidget *widget);

/// Within an enter handler: Enter does not move on. Overrides earlier moveFocus() calls.
void stayHere();

/// Makes a button the way out of a form: going to it runs no leave handler, since one who cancels
/// needs no advice on the field that he leaves. If the focus then goes back to a field without the
/// button being pressed, the leave handler that is owed runs.
void markAsEscape(QWidget *button);
bool isEscape(const QWidget *widget);

/// The window that a person would call the one in front: the modal one, else the active one, else,
/// while the desktop is between two windows, the main window. Null if none is shown.
QWidget *windowInFront();

/// Gives the window in front its activation back when it goes: around the loop of a modal window,
/// for desktops whose window manager doesn't.
class ActivationReturn {
public:
    ActivationReturn() : window_(windowInFront()) {}
    ~ActivationReturn();
    ActivationReturn(const ActivationReturn &) = delete;
    ActivationReturn &operator=(const ActivationReturn &) = delete;

private:
    QPointer<QWidget> window_;
};

/// The next or previous enabled, visible widget of the window that takes the focus by Tab; null if
/// there is no other. Widgets inside `from` are passed over.
QWidget *nextInTabOrder(QWidget *from, bool forward = true);

/// Paints the ring of the widget that has the focus, for the end of its paint event: styles show it
/// with a hair line, or not at all after a press of the mouse.
void paintFocusRing(QWidget *widget);

}  // namespace kaldo
