// SPDX-License-Identifier: MIT
#pragma once

#include "records/Units.h"

namespace lumerin {

// How far two values may be apart and still count as the same. A value differs when its change is above the
// relative and above the absolute tolerance of its kind; exactly at a tolerance is no difference.
struct Tolerances {
    double relative = 0.01;  // of the greater magnitude of the two values, so that both orders agree
    double force = 0.5;      // kips or kN, as the comparison is in
    double moment = 1.0;     // kip-ft or kN-m
    double ratio = 0.01;
};

// Places and widths have a tolerance of their own: programs store them as texts and in other units, which
// rounds, and a model that was moved on purpose is moved by more.
inline constexpr double kLengthTolerance = 0.001;           // ft or m
inline constexpr double kRelativeLengthTolerance = 0.0001;  // of the greater magnitude

// A change from one value to another. Neither value is changed when they are equal or both not numbers.
struct Change {
    double difference = 0.0;  // after less before; not finite where one of them is not
    double relative = 0.0;  // of the greater magnitude: -2 to 2; not a number where one of them is not finite
    double times = 0.0;     // how often the tolerance is in the difference; infinite without a tolerance
    bool exceeds = false;   // above both tolerances
};

// Of counts and the like (Quantity::none) every difference exceeds.
Change ChangeOf(double before, double after, Quantity quantity, const Tolerances& tolerances);

}  // namespace lumerin
