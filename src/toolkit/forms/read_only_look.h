#pragma once

class QEvent;
class QWidget;

namespace kaldo {

/// A field that is only read stands on the ground of its window.
void showReadOnly(QWidget *field, bool readOnly);
/// For the event() of such a field: the ground follows when the colours of the application change.
void followColours(QWidget *field, bool readOnly, const QEvent &event);

}  // namespace kaldo
