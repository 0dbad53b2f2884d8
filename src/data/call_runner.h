#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

namespace kaldo {

/// What a program shows while a call makes it wait. All on the thread that made the call.
class WaitObserver {
public:
    virtual ~WaitObserver() = default;
    /// A call has been waited for for two seconds. `whom`: "la base de datos de la clínica".
    virtual void waitingBegan(const QString &whom) = 0;
    /// Some thirty times a second from then on; true gives the call up. It may run an event loop:
    /// a statement that is tried in there fails (DatabaseFailure::Busy).
    virtual bool stillWaiting(std::chrono::milliseconds waited) = 0;
    virtual void waitingEnded() = 0;
};

/// How one call is waited for.
struct CallTerms {
    QString whom;                                    ///< for the observer
    std::optional<std::chrono::milliseconds> limit;  ///< none: as long as it takes
    std::function<void()> cancel;                    ///< makes the call return soon; may be empty
    bool observed = true;                            ///< false: the observer isn't told
};

/// A call that was not waited for to its end. What it did nobody knows.
struct CallCut {
    bool givenUp;  ///< by the user; else its time was over
    std::chrono::milliseconds waited;
};

/// Lets calls that may block for ever run on a second thread, one at a time, while the thread that
/// makes them waits, and for no longer than it will: that one thread is the only one that may use
/// it. The second thread starts with the first call.
class CallRunner {
public:
    CallRunner();
    ~CallRunner();
    CallRunner(const CallRunner &) = delete;
    CallRunner &operator=(const CallRunner &) = delete;

    /// It must outlive the calls; null takes it away.
    void setObserver(WaitObserver *observer) { observer_ = observer; }

    /// True while a call is being waited for: in what an observer runs, nothing else may be called.
    bool waiting() const { return waiting_; }

    /// The bound of calls that name none of their own.
    std::optional<std::chrono::milliseconds> limit() const { return limit_; }

    /// Runs `work` on the second thread; its result, or what it threw. Throws CallCut where it
    /// wasn't waited for. `work` is copied and owns all that it touches: where not even the cancel
    /// brings it back it's left behind, and ends when it ends.
    template <typename Work>
    auto run(const CallTerms &terms, Work work) {
        using Result = std::invoke_result_t<Work &>;
        if constexpr (std::is_void_v<Result>) {
            wait(terms, std::move(work));
        } else {
            const auto result = std::make_shared<std::optional<Result>>();
            wait(terms, [work = std::move(work), result]() mutable { result->emplace(work()); });
            return Result(std::move(**result));
        }
    }

private:
    friend class CallLimit;
    class Worker;

    void wait(const CallTerms &terms, std::function<void()> work);
    bool patient(const CallTerms &terms, CallCut *cut);
    void leaveBehind();

    std::shared_ptr<Worker> worker_;
    WaitObserver *observer_ = nullptr;
    std::optional<std::chrono::milliseconds> limit_;
    bool waiting_ = false;
};

/// Another bound for the calls made while it lives; none for work that takes as long as it takes.
class CallLimit {
public:
    CallLimit(CallRunner &runner, std::optional<std::chrono::milliseconds> limit)
        : runner_(runner), before_(std::exchange(runner.limit_, limit)) {}
    ~CallLimit() { runner_.limit_ = before_; }
    CallLimit(const CallLimit &) = delete;
    CallLimit &operator=(const CallLimit &) = delete;

private:
    CallRunner &runner_;
    std::optional<std::chrono::milliseconds> before_;
};

}  // namespace kaldo
