// SPDX-License-Identifier: MIT
#include "figures/Scale.h"

#include <algorithm>
#include <cmath>

#include "text/Format.h"

namespace lumerin {

namespace {

// The least round step with which at most that many ticks cover the range.
double RoundStep(double range, int mostTicks, int& decimals) {
    const double least = range / std::max(mostTicks, 1);
    const int power = static_cast<int>(std::floor(std::log10(least)));
    for (int p = power; p <= power + 1; ++p) {
        for (const double factor : {1.0, 2.0, 5.0}) {
            const double step = factor * std::pow(10.0, p);
            // Half a millionth of the step is the noise of the division.
            if (step < least * (1.0 - 5e-7)) continue;
            decimals = std::clamp(-p, 0, 12);
            return step;
        }
    }
    decimals = std::clamp(-power - 2, 0, 12);
    return std::pow(10.0, power + 2);
}

}  // namespace

Scale::Scale(double low, double high, double pixelLow, double pixelHigh, int mostTicks, bool wholeSteps)
    : m_low(low), m_high(high), m_pixelLow(pixelLow), m_pixelHigh(pixelHigh) {
    if (!std::isfinite(m_low) || !std::isfinite(m_high) || m_low > m_high) {
        m_low = 0.0;
        m_high = 1.0;
    }
    if (m_low == m_high) {
        const double half = m_low == 0.0 ? 1.0 : std::abs(m_low) * 0.1;
        m_low -= half;
        m_high += half;
    }
    m_step = RoundStep(m_high - m_low, mostTicks, m_decimals);
    if (!wholeSteps) return;
    constexpr double kNoise = 1e-9;
    m_low = std::floor(m_low / m_step + kNoise) * m_step;
    m_high = std::ceil(m_high / m_step - kNoise) * m_step;
}

std::vector<double> Scale::Ticks() const {
    constexpr double kNoise = 1e-9;
    std::vector<double> ticks;
    const double last = std::floor(m_high / m_step + kNoise);
    for (double k = std::ceil(m_low / m_step - kNoise); k <= last && ticks.size() < 100; k += 1.0) {
        ticks.push_back(k * m_step + 0.0);
    }
    return ticks;
}

std::string Scale::TickText(double tick) const {
    const std::string text = FormatFixed(tick, m_decimals);
    return text.find_first_of("123456789") == std::string::npos ? FormatFixed(0.0, m_decimals) : text;
}

}  // namespace lumerin
