#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

namespace kaldo {

/// The form that a widget belongs to, for the Enter and leave protocol: its child window in the
/// desktop, else its window.
QWidget *formOf(QWidget *widget);

/// Keeps the requests for the focus and the work that waits for it, for the whole application; a
/// child of the application object.
class FocusKeeper : public QObject {
public:
    static FocusKeeper &get();

    /// The time in which a handler of a field runs. Focus requests of its form are carried out when
    /// it ends, and in a leave handler no focus move counts as a leave.
    class Scope {
    public:
        enum class Kind { Enter, Leave, Other };

        Scope(QWidget *field, Kind kind);
        ~Scope();
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;

        bool held() const { return held_; }

    private:
        friend class FocusKeeper;
        QPointer<QWidget> form_;
        QPointer<QWidget> focus_;
        Kind kind_;
        bool held_ = false;
        Scope *outer_;
    };

    /// The time in which what waits goes on waiting: a handler stands still in the middle of its
    /// work, and nothing may overtake it.
    class Hold {
    public:
        Hold() { ++FocusKeeper::get().holds_; }
        ~Hold();
        Hold(const Hold &) = delete;
        Hold &operator=(const Hold &) = delete;
    };

    void request(QWidget *widget);
    void stay();
    /// The handler that runs now has asked where the focus goes.
    bool held() const { return scope_ && scope_->held_; }
    /// A leave handler of this form is running.
    bool leaving(const QWidget *form) const;

    /// Runs later, in order; at the latest before the next key stroke into a field.
    void post(std::function<void()> task);
    /// Runs what waits now, and carries out the focus requests. A handler that opens a dialog runs
    /// the dialog's own work in the meantime, and the rest after it.
    /// True if a leave handler put the focus elsewhere: a key stroke that waited has no target.
    bool settle();

    void owe(QObject *field) { owed_ = field; }
    QObject *owed() const { return owed_; }

private:
    explicit FocusKeeper(QObject *parent) : QObject(parent) {}
    void schedule();
    void carryOut(QWidget *form);

    Scope *scope_ = nullptr;
    QHash<QObject *, QPointer<QWidget>> requests_;
    std::vector<std::function<void()>> tasks_;
    QPointer<QObject> owed_;
    int holds_ = 0;
    bool scheduled_ = false;
    bool sentBack_ = false;
};

}  // namespace kaldo
