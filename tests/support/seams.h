#pragma once

#include <QStringList>

#include <functional>

#include "data/connection.h"
#include "data/database_error.h"

namespace kaldo::test {

/// Where in an execution something goes wrong.
enum class Moment { BeforeExecution, BeforeCommit, AfterExecution };

/// Whether a seam strikes at this execution; `call` counts the executions that it has seen, from 1.
using Strikes = std::function<bool(const Execution &execution, int call)>;
using Act = std::function<void(const Execution &execution)>;

inline Strikes atCall(int wanted) {
    return [wanted](const Execution &, int call) { return call == wanted; };
}
/// The n-th execution of this query, command or routine from now on; 0 for each of them.
inline Strikes atName(const QString &name, int nth = 0) {
    return [=, left = nth](const Execution &execution, int) mutable {
        return execution.name == name && (nth == 0 || --left == 0);
    };
}
/// The n-th write from now on; 0 for each of them.
inline Strikes atWrite(int nth = 0) {
    return [nth, left = nth](const Execution &execution, int) mutable {
        return execution.writes && (nth == 0 || --left == 0);
    };
}

/// Throws what a database throws that has failed.
inline Act refusing(const QString &text = QStringLiteral("fallo de prueba")) {
    return [text](const Execution &) { throw DatabaseError(text, {}); };
}

/// Watches the executions of the connections that it is set for, and runs something, which may
/// throw, at one moment of those that it strikes at.
class TestSeam final : public Seam {
public:
    TestSeam() = default;
    TestSeam(Moment moment, Strikes strikes, Act act = refusing()) {
        strike(moment, std::move(strikes), std::move(act));
    }
    void strike(Moment moment, Strikes strikes, Act act = refusing()) {
        moment_ = moment;
        strikes_ = std::move(strikes);
        act_ = std::move(act);
    }

    void beforeExecution(const Execution &execution) override {
        begun += execution.name;
        at(Moment::BeforeExecution, execution);
    }
    void beforeCommit(const Execution &execution) override { at(Moment::BeforeCommit, execution); }
    void afterExecution(const Execution &execution) override {
        if (execution.writes) {
            written += execution.name;
        }
        at(Moment::AfterExecution, execution);
    }

    /// Names, in their order.
    QStringList begun;
    QStringList written;

private:
    void at(Moment moment, const Execution &execution) {
        if (strikes_ && moment == moment_ && strikes_(execution, static_cast<int>(begun.size()))) {
            act_(execution);
        }
    }

    Moment moment_ = Moment::BeforeExecution;
    Strikes strikes_;
    Act act_;
};

}  // namespace kaldo::test
