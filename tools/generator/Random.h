// Pseudo-random numbers that are the same everywhere; the standard library's distributions are not.
#pragma once

#include <cstdint>
#include <vector>

namespace generator {

// SplitMix64: a 64-bit counter, mixed.
class Random {
public:
    explicit Random(std::uint64_t seed) : state(seed) {}

    std::uint64_t next() {
        std::uint64_t z = state += 0x9e3779b97f4a7c15;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }

    // A whole number from low to high, both included.
    int from(int low, int high) {
        return low + static_cast<int>(next() % static_cast<std::uint64_t>(high - low + 1));
    }

    bool percent(int chance) { return from(1, 100) <= chance; }

    // One of the entries; the list must not be empty.
    template <class List>
    const auto& pick(const List& list) {
        return list[static_cast<std::size_t>(from(0, static_cast<int>(std::size(list)) - 1))];
    }

private:
    std::uint64_t state;
};

}
