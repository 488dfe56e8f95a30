// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace lumerin {

// A linear axis: from values to pixels, with ticks at round values (1, 2 or 5 times a power of ten).
class Scale {
  public:
    // Covers [low, high] and, with `wholeSteps`, goes on to the next tick at both ends. Equal ends are moved
    // apart. `pixelLow` belongs to the low end.
    Scale(double low, double high, double pixelLow, double pixelHigh, int mostTicks, bool wholeSteps);

    double At(double value) const {
        return m_pixelLow + (value - m_low) / (m_high - m_low) * (m_pixelHigh - m_pixelLow);
    }
    double Low() const { return m_low; }
    double High() const { return m_high; }
    // The round values inside the axis.
    std::vector<double> Ticks() const;
    // A tick with as many decimals as the step needs.
    std::string TickText(double tick) const;

  private:
    double m_low, m_high, m_pixelLow, m_pixelHigh;
    double m_step = 1.0;
    int m_decimals = 0;
};

}  // namespace lumerin
