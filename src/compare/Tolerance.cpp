// SPDX-License-Identifier: MIT
#include "compare/Tolerance.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lumerin {

namespace {

// Values are decimal texts of few digits. Their difference as binary numbers can miss the tolerance in the
// last places although the texts are exactly that far apart (0.52 and 0.51).
constexpr double kRounding = 1e-12;

struct Bounds {
    double relative = 0.0, absolute = 0.0;
};

Bounds BoundsOf(Quantity quantity, const Tolerances& tolerances) {
    switch (quantity) {
        case Quantity::force:
            return {tolerances.relative, tolerances.force};
        case Quantity::moment:
            return {tolerances.relative, tolerances.moment};
        case Quantity::ratio:
            return {tolerances.relative, tolerances.ratio};
        case Quantity::displacement:
            return {tolerances.relative, 0.0};
        case Quantity::length:
            return {kRelativeLengthTolerance, kLengthTolerance};
        case Quantity::none:
            break;
    }
    return {};
}

Change ChangeOfOthers(double before, double after) {
    Change change;
    const bool same = before == after || (std::isnan(before) && std::isnan(after));
    if (same) return change;
    change.exceeds = true;
    change.difference = after - before;
    change.relative = std::numeric_limits<double>::quiet_NaN();
    change.times = std::numeric_limits<double>::infinity();
    return change;
}

}  // namespace

Change ChangeOf(double before, double after, Quantity quantity, const Tolerances& tolerances) {
    if (!std::isfinite(before) || !std::isfinite(after)) return ChangeOfOthers(before, after);
    Change change;
    if (before == after) return change;
    const Bounds bounds = BoundsOf(quantity, tolerances);
    const double magnitude = std::max(std::abs(before), std::abs(after));
    change.difference = after - before;
    change.relative = change.difference / magnitude;
    const double distance = std::abs(change.difference);
    const double allowed = std::max(bounds.relative * magnitude, bounds.absolute);
    change.exceeds = distance > allowed + (allowed > 0.0 ? kRounding * magnitude : 0.0);
    change.times = allowed > 0.0 ? distance / allowed : std::numeric_limits<double>::infinity();
    return change;
}

}  // namespace lumerin
