// SPDX-License-Identifier: MIT
#include "envelopes/SectionSearch.h"

#include <algorithm>
#include <limits>

#include "framework/Index.h"

namespace lumerin {

namespace {

// Ends of an element, as offsets of its floats.
constexpr std::size_t kAtI = 0;
constexpr std::size_t kAtJ = kComponents;

// Even extremes are greatest values, odd ones least; extreme 12 is the greatest D/C ratio.
constexpr bool IsGreatest(int extreme) {
    return extreme % 2 == 0;
}

bool Beats(float value, float best, bool greatest) {
    return greatest ? value > best : value < best;
}

}  // namespace

void CDcSearch::Examine(const float* forces, int elements, int loadCase, int firstPlace) {
    for (int i = 0; i < elements; ++i, forces += kForcesPerElement) {
        const double atI = static_cast<double>(forces[kAtI + kDemandCapacity]);
        const double atJ = static_cast<double>(forces[kAtJ + kDemandCapacity]);
        if (atI > m_dBest) {
            m_dBest = atI;
            m_found = {loadCase, firstPlace + i, kEndI};
        }
        if (atJ > m_dBest) {
            m_dBest = atJ;
            m_found = {loadCase, firstPlace + i, kEndJ};
        }
    }
}

// The first element sets all limits but one: the D/C ratio has no least extreme, and no value is below this.
CForceSearch::CForceSearch() {
    m_greatest.fill(std::numeric_limits<float>::infinity());
    m_least.fill(-std::numeric_limits<float>::infinity());
}

// Whether one of the values exceeds the best so far. Only such a value can change an extreme, so elements
// whose values all fail this test need no closer look; a not-a-number always fails it.
template <std::size_t count>
bool CForceSearch::MayBeat(const float* forces) const {
    unsigned beats = 0;
    for (std::size_t i = 0; i < count; ++i) {
        beats |= static_cast<unsigned>(forces[i] > m_greatest[i]);
        beats |= static_cast<unsigned>(forces[i] < m_least[i]);
    }
    return beats != 0;
}

void CForceSearch::Examine(const float* forces, int elements, int loadCase, int firstPlace) {
    int i = 0;
    if (!m_bSeen && elements > 0) {
        ExamineElement(forces, loadCase, firstPlace);
        i = 1;
    }
    for (; i + 1 < elements; i += 2) {
        const float* pair = forces + Index(i) * kForcesPerElement;
        if (!MayBeat<kPair>(pair)) continue;
        ExamineElement(pair, loadCase, firstPlace + i);
        ExamineElement(pair + kForcesPerElement, loadCase, firstPlace + i + 1);
    }
    if (i >= elements) return;
    const float* last = forces + Index(i) * kForcesPerElement;
    if (MayBeat<kForcesPerElement>(last)) ExamineElement(last, loadCase, firstPlace + i);
}

void CForceSearch::ExamineElement(const float* forces, int loadCase, int place) {
    for (int extreme = 0; extreme < kExtremes; ++extreme) ExamineExtreme(extreme, forces, loadCase, place);
    m_bSeen = true;
}

void CForceSearch::ExamineExtreme(int extreme, const float* forces, int loadCase, int place) {
    const auto component = Index(extreme / 2);
    const bool greatest = IsGreatest(extreme);
    float best = m_best[Index(extreme)];
    int end = -1;
    if (const float value = forces[kAtJ + component]; !m_bSeen || Beats(value, best, greatest)) {
        best = value;
        end = kEndJ;
    }
    if (const float value = forces[kAtI + component]; Beats(value, best, greatest)) {
        best = value;
        end = kEndI;
    }
    if (end < 0) return;
    Take(extreme, best);
    m_found[Index(extreme)] = {loadCase, place, end};
}

void CForceSearch::Take(int extreme, float value) {
    m_best[Index(extreme)] = value;
    std::array<float, kPair>& limits = IsGreatest(extreme) ? m_greatest : m_least;
    for (std::size_t at = Index(extreme / 2); at < kPair; at += kComponents) {
        limits[at] = value;
    }
}

}  // namespace lumerin
