// SPDX-License-Identifier: MIT
// A small generator whose numbers are the same on every machine.
#pragma once

#include <cstdint>

namespace lumerin {

namespace samples {

class Random {
  public:
    // One stream for each seed, case and further number.
    Random(std::uint64_t seed, std::uint64_t a, std::uint64_t b)
        : m_state(Mix(Mix(Mix(seed) ^ a) ^ (b << 32))) {}

    // From 0 up to, but not, 1.
    double Unit() { return static_cast<double>(Next() >> 11) * 0x1.0p-53; }
    double Between(double low, double high) { return low + (high - low) * Unit(); }
    double Sign() { return (Next() >> 63) != 0 ? 1.0 : -1.0; }
    int Below(int n) { return static_cast<int>(Next() % static_cast<std::uint64_t>(n)); }

  private:
    static constexpr std::uint64_t kStep = 0x9e3779b97f4a7c15u;

    // A mixer with good avalanche, known as splitmix64.
    static std::uint64_t Mix(std::uint64_t value) {
        value += kStep;
        value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9u;
        value = (value ^ (value >> 27)) * 0x94d049bb133111ebu;
        return value ^ (value >> 31);
    }

    std::uint64_t Next() {
        const std::uint64_t value = Mix(m_state);
        m_state += kStep;
        return value;
    }

    std::uint64_t m_state;
};

}  // namespace samples

}  // namespace lumerin
