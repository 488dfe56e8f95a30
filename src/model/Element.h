// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>

#include "framework/Index.h"

namespace lumerin {

// Force components, in the order in which tables print them. FAX positive is tension.
enum ForceComponent { kAxial = 0, kF22 = 1, kF33 = 2, kM22 = 3, kM33 = 4, kTorque = 5, kDemandCapacity = 6 };
inline constexpr int kComponents = 7;
inline constexpr int kNoTieBreak = 7;
enum ElementEnd { kEndI = 0, kEndJ = 1, kInsideElement = 2 };

// Floats of one element in one load case: the seven components at I, then the seven at J.
inline constexpr std::size_t kForcesPerElement = std::size_t{2} * kComponents;
using ElementForces = std::span<const float, kForcesPerElement>;

// The value of a component at an end, widened for comparing and computing; 0.0 for another end or component.
inline double GetForce(ElementForces forces, int end, int component) {
    if (end < kEndI || end > kEndJ || component < 0 || component >= kComponents) return 0.0;
    return static_cast<double>(forces[Index(end) * kComponents + Index(component)]);
}

// The identity of one beam element. It is the same in every load case, so it is stored once.
struct CElement {
    int m_nSection = 0;        // property (cross-section) number; -1: the model has no such element
    int m_nElementNumber = 0;  // shown in tables
    int m_nNodeI = 0;
    int m_nNodeJ = 0;

    int Node(int end) const { return end == kEndI ? m_nNodeI : m_nNodeJ; }
};

// The cross-section of a column or cap element in the input file; only the width is used.
struct CSectionData {
    int m_nShape = 0;
    double m_dD = 0.0, m_dWidth = 0.0, m_dZ = 0.0, m_dG = 0.0;
};

}  // namespace lumerin
