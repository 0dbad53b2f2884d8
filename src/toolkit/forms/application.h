#pragma once

#include <QApplication>

#include <exception>
#include <functional>
#include <type_traits>
#include <utility>

namespace kaldo {

/// Lets one failure through at a time: a timer that fails each second must not stack one box each
/// second. What arrives while one is being shown is dropped and counted.
class FailureGate {
public:
    /// Runs `show` unless another failure is being shown; true if it ran.
    bool pass(const std::function<void()> &show);
    int dropped() const { return dropped_; }

private:
    bool showing_ = false;
    int dropped_ = 0;
};

/// The application object: the net below every handler.
class Application : public QApplication {
    Q_OBJECT

public:
    using FailureHandler = std::function<void(const std::exception &)>;
    /// Where the widths of columns that a person dragged are kept, by the name of the grid.
    struct ColumnMemory {
        std::function<QString(const QString &grid)> recall;
        std::function<void(const QString &grid, const QString &widths)> keep;
    };

    Application(int &argc, char **argv);

    /// The running application, or null where the process has another kind of QCoreApplication.
    static Application *current();

    /// What shows a failure that no screen handled. Set once by whoever owns the messages; without
    /// one the text goes to the log of Qt as a warning.
    void setFailureHandler(FailureHandler handler);

    /// Without one, widths last as long as their grid.
    void setColumnMemory(ColumnMemory memory);
    const ColumnMemory &columnMemory() const { return columnMemory_; }

    /// Shows a failure through the handler, one at a time; never throws.
    void reportFailure(const std::exception &failure) noexcept;
    const FailureGate &gate() const { return gate_; }

    /// Ends the application: marks it as ending and leaves every nested event loop, also those of
    /// modal dialogs, without asking any window whether it may close. A question that is open, or
    /// that is asked from now on, is answered Answer::Ended. Before exec() it only marks.
    void endApplication(int exitCode = 0);
    bool ending() const { return ending_; }

    bool notify(QObject *receiver, QEvent *event) override;

private:
    FailureHandler handler_;
    ColumnMemory columnMemory_;
    FailureGate gate_;
    bool ending_ = false;
};

/// Runs a callable; an exception goes to the application's failure handler. True if none came.
bool runGuarded(const std::function<void()> &call) noexcept;

/// A callable whose exceptions go to the application's failure handler, so that none travels
/// through Qt. Its result is discarded.
template <typename Call>
class GuardedCall {
public:
    explicit GuardedCall(Call call) : call_(std::move(call)) {}

    template <typename... Arguments>
    requires std::invocable<Call &, Arguments...>
    void operator()(Arguments &&...arguments) {
        runGuarded([&] { call_(std::forward<Arguments>(arguments)...); });
    }

private:
    Call call_;
};

template <typename Call>
GuardedCall<std::decay_t<Call>> guarded(Call &&call) {
    return GuardedCall<std::decay_t<Call>>(std::forward<Call>(call));
}

/// QObject::connect for all handlers of the screens: a failure of `call` is shown and the program
/// carries on. `call` may take fewer arguments than the signal has.
template <typename Sender, typename Signal, typename Call>
requires(!std::is_member_function_pointer_v<std::decay_t<Call>>) QMetaObject::Connection
    connectGuarded(const Sender *sender, Signal signal, const QObject *context, Call call) {
    return QObject::connect(sender, signal, context, guarded(std::move(call)));
}

/// The same for a method of the receiver.
template <typename Sender, typename Signal, typename Receiver, typename Class, typename Result,
          typename... Arguments>
QMetaObject::Connection connectGuarded(const Sender *sender, Signal signal, Receiver *receiver,
                                       Result (Class::*method)(Arguments...)) {
    return QObject::connect(
        sender, signal, receiver,
        guarded([receiver, method](Arguments... arguments) { (receiver->*method)(arguments...); }));
}

}  // namespace kaldo
