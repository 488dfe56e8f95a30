// SPDX-License-Identifier: MIT
#include "records/Units.h"

#include <array>

#include "framework/Index.h"

namespace lumerin {

namespace {

// The exact definitions: a foot is 0.3048 m, a pound-force 4.4482216152605 N, a kip 1000 pounds-force.
constexpr double kMetresOfAFoot = 0.3048;
constexpr double kMetresOfAnInch = 0.0254;
constexpr double kKilonewtonsOfAKip = 4.4482216152605;

struct Unit {
    std::string_view us, si;
    double siOfUs;  // how many SI units a US unit is
};
// By Quantity.
constexpr std::array<Unit, 6> kUnits{{
    {"", "", 1.0},
    {"ft", "m", kMetresOfAFoot},
    {"in", "m", kMetresOfAnInch},
    {"kips", "kN", kKilonewtonsOfAKip},
    {"kip-ft", "kN-m", kKilonewtonsOfAKip* kMetresOfAFoot},
    {"", "", 1.0},
}};

const Unit& UnitOf(Quantity quantity) {
    return kUnits.at(Index(static_cast<int>(quantity)));
}

}  // namespace

std::string_view UnitSystemName(UnitSystem system) {
    return system == UnitSystem::us ? "us" : "si";
}

std::optional<UnitSystem> ReadUnitSystem(std::string_view name) {
    if (name == "us") return UnitSystem::us;
    if (name == "si") return UnitSystem::si;
    return std::nullopt;
}

std::string_view UnitName(Quantity quantity, UnitSystem system) {
    const Unit& unit = UnitOf(quantity);
    return system == UnitSystem::us ? unit.us : unit.si;
}

double ConversionFactor(Quantity quantity, UnitSystem from, UnitSystem to) {
    if (from == to) return 1.0;
    const double factor = UnitOf(quantity).siOfUs;
    return to == UnitSystem::si ? factor : 1.0 / factor;
}

}  // namespace lumerin
