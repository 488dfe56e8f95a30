// SPDX-License-Identifier: MIT
#pragma once

namespace lumerin {

// A round axis for a range of data.
struct AxisScale {
    double min = 0.0, max = 0.0;
    int ticks = 0;     // equal parts of the axis
    int decimals = 0;  // of its labels
};

// Ends for any input, values that are not finite among them; the axis may then have no length.
AxisScale ScaleAxis(double lo, double hi);

}  // namespace lumerin
