#include "data/call_runner.h"

#include <QScopeGuard>

#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

namespace kaldo {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds kDefaultLimit{30'000};
constexpr milliseconds kPatience{2'000};   ///< until the observer is told
constexpr milliseconds kTurn{30};          ///< between two questions to the observer
constexpr milliseconds kCancelled{2'000};  ///< for a cancelled call to come back

milliseconds since(steady_clock::time_point start) {
    return std::chrono::duration_cast<milliseconds>(steady_clock::now() - start);
}

}  // namespace

/// The second thread, and what the two hand each other. The thread shares it, since it may outlive
/// its runner.
class CallRunner::Worker {
public:
    static std::shared_ptr<Worker> start() {
        auto worker = std::make_shared<Worker>();
        worker->thread_ = std::thread([worker] { worker->loop(); });
        return worker;
    }

    void post(std::function<void()> work) {
        const std::lock_guard lock(mutex_);
        failure_ = nullptr;
        work_ = std::move(work);
        state_ = State::Asked;
        asked_.notify_one();
    }

    /// True once the call has ended; at the latest after this time.
    bool ended(milliseconds patience) {
        std::unique_lock lock(mutex_);
        return answered_.wait_for(lock, patience, [this] { return state_ == State::Idle; });
    }
    void waitForEnd() {
        std::unique_lock lock(mutex_);
        answered_.wait(lock, [this] { return state_ == State::Idle; });
    }
    std::exception_ptr failure() const { return failure_; }

    void join() {
        quit();
        thread_.join();
    }
    void leave() {
        quit();
        thread_.detach();
    }

private:
    enum class State { Idle, Asked, Working };

    void quit() {
        const std::lock_guard lock(mutex_);
        quit_ = true;
        asked_.notify_one();
    }

    void loop() {
        std::unique_lock lock(mutex_);
        for (;;) {
            asked_.wait(lock, [this] { return quit_ || state_ == State::Asked; });
            if (state_ != State::Asked) {
                return;
            }
            state_ = State::Working;
            std::function<void()> work = std::exchange(work_, nullptr);
            lock.unlock();
            std::exception_ptr failure;
            try {
                work();
            } catch (...) {
                failure = std::current_exception();
            }
            work = nullptr;
            lock.lock();
            failure_ = failure;
            state_ = State::Idle;
            answered_.notify_one();
        }
    }

    std::mutex mutex_;
    std::condition_variable asked_;
    std::condition_variable answered_;
    std::thread thread_;
    State state_ = State::Idle;
    bool quit_ = false;
    std::function<void()> work_;
    std::exception_ptr failure_;
};

CallRunner::CallRunner() : limit_(kDefaultLimit) {}

CallRunner::~CallRunner() {
    if (worker_) {
        worker_->join();
    }
}

void CallRunner::wait(const CallTerms &terms, std::function<void()> work) {
    waiting_ = true;
    const auto after = qScopeGuard([this] { waiting_ = false; });
    if (!worker_) {
        worker_ = Worker::start();
    }
    worker_->post(std::move(work));
    CallCut cut{};
    if (!patient(terms, &cut)) {
        if (terms.cancel) {
            terms.cancel();
        }
        const bool back = terms.cancel && worker_->ended(kCancelled);
        if (!back) {
            leaveBehind();
        }
        // One that ended in that very moment has done its work, and says so.
        if (!back || worker_->failure()) {
            throw cut;
        }
    }
    if (const std::exception_ptr failure = worker_->failure()) {
        std::rethrow_exception(failure);
    }
}

/// Waits for the end of the call: false where its time is over or the user gives it up.
bool CallRunner::patient(const CallTerms &terms, CallCut *cut) {
    WaitObserver *observer = terms.observed ? observer_ : nullptr;
    if (!observer && !terms.limit) {
        worker_->waitForEnd();
        return true;
    }
    const auto start = steady_clock::now();
    const milliseconds first =
        !observer ? *terms.limit : std::min(kPatience, terms.limit.value_or(kPatience));
    if (worker_->ended(first)) {
        return true;
    }
    *cut = {false, since(start)};
    if (terms.limit && cut->waited >= *terms.limit) {
        return false;
    }
    observer->waitingBegan(terms.whom);
    const auto after = qScopeGuard([observer] { observer->waitingEnded(); });
    while (!worker_->ended(kTurn)) {
        cut->waited = since(start);
        if (terms.limit && cut->waited >= *terms.limit) {
            return false;
        }
        if (observer->stillWaiting(cut->waited)) {
            cut->givenUp = true;
            return false;
        }
    }
    return true;
}

void CallRunner::leaveBehind() {
    worker_->leave();
    worker_.reset();
}

}  // namespace kaldo
