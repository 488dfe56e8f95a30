// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace lumerin {

// The kinds of numbers in tables of records, and their units in both systems.

enum class Quantity {
    none,          // a count, a number or a text
    length,        // places along a cap, embedments: ft or m
    displacement,  // in or m
    force,         // kips or kN
    moment,        // kip-ft or kN-m
    ratio,         // demand over capacity, without a unit
};

enum class UnitSystem { us, si };

// Of a project, by its own number: 0 US, anything else SI.
constexpr UnitSystem UnitSystemOf(int units) {
    return units == 0 ? UnitSystem::us : UnitSystem::si;
}
// "us" or "si".
std::string_view UnitSystemName(UnitSystem system);
std::optional<UnitSystem> ReadUnitSystem(std::string_view name);

// "kips", "kN-m" and the like; empty for a quantity without a unit.
std::string_view UnitName(Quantity quantity, UnitSystem system);
// What a number in `from` is multiplied with to be in `to`; exactly 1.0 within one system.
double ConversionFactor(Quantity quantity, UnitSystem from, UnitSystem to);

}  // namespace lumerin
