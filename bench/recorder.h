#pragma once

#include <utility>
#include <vector>

#include "data/connection.h"

namespace kaldo::bench {

using Log = std::vector<Execution>;

/// The seam that writes down every execution, for the replay to repeat.
class Recorder final : public Seam {
public:
    void beforeExecution(const Execution &execution) override { log_.push_back(execution); }

    /// What came since the last call.
    Log take() { return std::exchange(log_, {}); }

private:
    Log log_;
};

}  // namespace kaldo::bench
