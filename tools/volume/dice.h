#pragma once

#include <cstdint>

namespace kaldo::volume {

/// Random numbers that are the same on every machine for the same seed.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : state_(seed) {}

    /// From 0 to `sides` - 1.
    int below(int sides) {
        return static_cast<int>((next() >> 32) * static_cast<std::uint64_t>(sides) >> 32);
    }
    int between(int first, int last) { return first + below(last - first + 1); }
    bool percent(int chance) { return below(100) < chance; }
    /// From 0 to `range` - 1, small numbers far more often than large ones.
    int nearZero(int range) {
        const int a = below(range);
        const int b = below(range);
        const int c = below(range);
        return static_cast<int>(static_cast<std::int64_t>(a) * b / range * c / range);
    }

private:
    std::uint64_t next() {
        state_ += 0x9e3779b97f4a7c15U;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebU;
        return mixed ^ (mixed >> 31);
    }

    std::uint64_t state_;
};

}  // namespace kaldo::volume
