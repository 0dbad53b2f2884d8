#pragma once

#include <chrono>
#include <optional>

#include "data/database_error.h"

namespace kaldo {

/// The last attach that failed. One action of a user may need a connection several times: only its
/// first statement is to wait for a server that isn't there, and only its first failure to be told.
class AttachRefusal {
public:
    /// An attach to this database has failed within the last second.
    bool fresh(const QString &database) const {
        return last_ && last_->database == database && within(last_->tried, kNotAgain);
    }
    /// Its failure was met so short a time ago that nobody wants to read it again.
    bool repeats(const QString &database) const {
        return last_ && last_->database == database && within(last_->met, kTold);
    }
    void remember(const QString &database, const DatabaseError &failure) {
        last_ = Last{database, failure, Clock::now(), {}};
    }
    void forget() { last_.reset(); }
    /// Throws the failure once more.
    [[noreturn]] void tell(bool repeated) {
        last_->met = Clock::now();
        DatabaseError::Details details = last_->failure.details();
        details.repeated = repeated;
        throw DatabaseError(last_->failure.message(), details);
    }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::seconds kNotAgain{1};
    static constexpr std::chrono::seconds kTold{3};

    struct Last {
        QString database;
        DatabaseError failure;
        Clock::time_point tried;
        Clock::time_point met;
    };
    static bool within(Clock::time_point moment, std::chrono::seconds time) {
        return Clock::now() - moment < time;
    }

    std::optional<Last> last_;
};

}  // namespace kaldo
