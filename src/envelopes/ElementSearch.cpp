// SPDX-License-Identifier: MIT
#include "envelopes/ElementSearch.h"

#include <cmath>

namespace lumerin {

namespace {

// Whether a value takes the place of an extreme; the first number always does.
bool IsGreater(float value, const EndExtreme& extreme) {
    return extreme.loadCase < 0 ? !std::isnan(value) : value > extreme.value;
}
bool IsLess(float value, const EndExtreme& extreme) {
    return extreme.loadCase < 0 ? !std::isnan(value) : value < extreme.value;
}

// Pairs of an end's values and the best ones so far; the common case, in which nothing is better, is decided
// by one comparison.
void TakeRatios(int loadCase, CaseForces forces, EndExtreme* best) {
    const float* ratio = forces.data() + kDemandCapacity;
    const float* const end = forces.data() + forces.size();
    for (; ratio < end; ratio += kComponents, ++best) {
        if (*ratio > best->value || best->loadCase < 0) {
            if (IsGreater(*ratio, *best)) *best = {loadCase, *ratio};
        }
    }
}

void TakeCapEnd(int loadCase, float shear, float moment, CapEnvelopeEnd& end) {
    if (IsGreater(shear, end.greatestShear)) end.greatestShear = {loadCase, shear};
    if (IsLess(shear, end.leastShear)) end.leastShear = {loadCase, shear};
    if (IsGreater(moment, end.greatestMoment)) end.greatestMoment = {loadCase, moment};
    if (IsLess(moment, end.leastMoment)) end.leastMoment = {loadCase, moment};
}

}  // namespace

EndExtreme ElementResults::GreatestRatio(int element, int end) const {
    EndExtreme best;
    for (int slot = 0; slot < classes; ++slot) {
        const EndExtreme& here = Ratio(slot, element, end);
        if (here.loadCase < 0) continue;
        const bool isBetter = best.loadCase < 0 || here.value > best.value ||
                              (here.value == best.value && here.loadCase < best.loadCase);
        if (isBetter) best = here;
    }
    return best;
}

ElementSearch::ElementSearch(const PierInput& input, int others) : m_input(input) {
    const CPier& pier = input.pier;
    const CFrame& frame = pier.m_Frame;
    m_results.elements = pier.ElementCount() + others;
    m_results.classes = pier.m_bCombinations ? pier.SlotCount() : 1;
    m_results.firstCapElement = frame.m_Cantilevers[0].m_nFirstElement;
    m_results.capElements =
        frame.m_Cantilevers[0].m_nElements + frame.m_Beam.m_nElements + frame.m_Cantilevers[1].m_nElements;
    const std::size_t classes = Index(m_results.classes);
    m_results.ratios.resize(classes * Index(m_results.elements) * 2);
    m_results.cap.resize(classes * Index(m_results.capElements) * 2);
    m_results.greatestAxial.resize(pier.m_Piles.size());
    m_results.leastAxial.resize(pier.m_Piles.size());
}

void ElementSearch::Take(int loadCase, CaseForces forces) {
    if (m_results.elements == 0 || !m_input.selection.IsCaseSelected(loadCase)) return;
    const int slot = m_input.pier.SlotOf(loadCase);
    if (slot < 0 || slot >= m_results.classes) return;
    TakeHeads(loadCase, forces);
    TakeRatios(loadCase, forces, &m_results.ratios[Index(slot) * Index(m_results.elements) * 2]);
    for (int e = 0; e < m_results.capElements; ++e) {
        const ElementForces element = ForcesOf(forces, m_results.firstCapElement + e);
        CapEnvelopeEnd* ends = &m_results.cap[(Index(slot) * Index(m_results.capElements) + Index(e)) * 2];
        TakeCapEnd(loadCase, element[kF22], element[kM33], ends[kEndI]);
        TakeCapEnd(loadCase, element[kComponents + kF22], element[kComponents + kM33], ends[kEndJ]);
    }
}

void ElementSearch::TakeHeads(int loadCase, CaseForces forces) {
    std::size_t p = 0;
    for (const CPile& pile : m_input.pier.m_Piles) {
        EndExtreme& greatest = m_results.greatestAxial[p];
        EndExtreme& least = m_results.leastAxial[p++];
        if (pile.m_nElements < 1) continue;
        const float axial = ForcesOf(forces, pile.m_nFirstElement)[kComponents + kAxial];
        if (IsGreater(axial, greatest)) greatest = {loadCase, axial};
        if (IsLess(axial, least)) least = {loadCase, axial};
    }
}

}  // namespace lumerin
