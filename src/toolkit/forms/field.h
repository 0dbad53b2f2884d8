#pragma once

#include <QString>

#include <functional>
#include <memory>

class QWidget;

namespace kaldo {

/// What every field of a form is, whatever its widget: it takes part in the Enter and leave
/// protocol.
///
/// Enter, fresh: the field commits what was typed, its enter handler runs, and unless the handler
/// asked for a focus by moveFocus() or stayHere(), opened or closed its window, or failed, the
/// focus moves to the next field. Enter, repeated by a held key: swallowed, it does nothing.
///
/// Leave: the leave handler is queued when the focus goes to another widget of the same window, and
/// runs once. It does not run when the focus goes to a pop-up, a menu, another window or a button
/// marked by markAsEscape(), when the screen is closing, nor when the field was disabled or hidden
/// under the focus. When it puts the focus back, no leave handler of another field runs for that.
///
/// All handlers are guarded: a failure is shown and the focus stays.
class Field {
public:
    using Handler = std::function<void()>;

    virtual ~Field();

    /// The field that a widget is or belongs to, for an editor the one that it edits; null for
    /// other widgets.
    static Field *of(QWidget *widget);

    QWidget *fieldWidget() const { return widget_; }

    void setEnterHandler(Handler handler);
    void setLeaveHandler(Handler handler);
    /// When the focus arrives from another widget of the window; not on return from a box.
    void setArriveHandler(Handler handler);
    /// For a function key and the like; the key goes no further. Plain Enter is not for here.
    void setKeyHandler(int key, Handler handler, Qt::KeyboardModifiers modifiers = {});

    /// Does what a fresh Enter does: for screens whose rules say "acts as Enter on the field".
    void pressEnter();

    /// Takes what is being typed into the value: the amount box reads its text, a list its row.
    /// False if that can't be: the field has told so, keeps the text and the focus.
    virtual bool commit() { return true; }
    virtual void clearField() = 0;
    virtual void setFieldReadOnly(bool readOnly) = 0;

    /// Widgets that together are this one field: its focus moves among them are no leave.
    void watchPart(QWidget *part);
    /// Makes this field the editor of another one, which alone takes part in the protocol from then
    /// on. Once, and no handlers are set here.
    void becomePartOf(Field *owner);

protected:
    explicit Field(QWidget *widget);

private:
    friend class FieldEvents;
    class FieldEvents *events_;
    QWidget *widget_;
};

}  // namespace kaldo
