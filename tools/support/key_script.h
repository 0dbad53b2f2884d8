#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class QWidget;

namespace kaldo {

/// Plays a person at the keyboard: a list of steps, each of which waits until the window and the
/// field that it names have the focus, and then strikes keys into whatever has it. It runs from a
/// timer, so that it goes on inside the loops of modal dialogs. It calls no method of any screen.
class KeyScript : public QObject {
    Q_OBJECT

public:
    explicit KeyScript(QObject *parent = nullptr);

    /// Waits until the focus is in a window or widget called `window`, and, where one is named, in
    /// the field `field` of it. All steps that follow act there.
    KeyScript &at(const QString &window, const QString &field = {});
    /// Waits until a message box is up whose text begins with `text`.
    KeyScript &atBox(const QString &text);
    KeyScript &type(const QString &text);
    KeyScript &press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString &text = {});
    /// Alt and a letter.
    KeyScript &alt(char letter);
    /// Goes to a heading of the menu bar by Alt and the arrows, and opens it.
    KeyScript &menu(const QString &heading);
    /// Moves down an open menu to the entry with this caption and presses Enter on it.
    KeyScript &choose(const QString &caption);
    KeyScript &enter() { return press(Qt::Key_Return); }
    /// Saves a picture of the active window and what lies over it.
    KeyScript &picture(const QString &name);
    /// Runs something that isn't a key stroke: a note for the record, the start of a clock.
    KeyScript &call(std::function<void()> action);

    /// Where pictures go; none are saved without it.
    void setPictureFolder(const QString &folder) { folder_ = folder; }
    /// The longest wait of one step, in milliseconds.
    void setPatience(int milliseconds) { patience_ = milliseconds; }

    void start();
    bool isDone() const { return next_ >= steps_.size(); }

signals:
    void finished();
    /// A wait took too long; tells what was waited for and what had the focus.
    void failed(const QString &text);

private:
    struct Step {
        QString what;
        std::function<bool()> act;  ///< true when the step is done
    };

    KeyScript &add(const QString &what, std::function<bool()> act);
    void tick();
    void strike(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text);

    QList<Step> steps_;
    qsizetype next_ = 0;
    QTimer timer_;
    QElapsedTimer waiting_;
    QString folder_;
    int patience_ = 20000;
    int pictures_ = 0;
};

/// A picture of the whole desktop of the program: its windows one over the other.
QImage desktopPicture();

}  // namespace kaldo
