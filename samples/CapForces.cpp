// SPDX-License-Identifier: MIT
#include "samples/CapForces.h"

#include <algorithm>

namespace lumerin {

namespace samples {

CapModel::CapModel(const Substructure& substructure) : m_missing(substructure.capMissing) {
    const double factor = LengthFactor(substructure.plan.units);
    for (const auto& point : substructure.cap) m_x.push_back(point.x * factor);
    for (int point : substructure.supportCapPoints)
        m_supportPoints.push_back(static_cast<std::size_t>(point));
    const bool bent = substructure.plan.type == StructureType::PileBent;
    // Columns bend with a point of no moment at half height; the piles of a bent are held further down.
    m_sway = substructure.plan.height * factor * (bent ? 0.35 : 0.5);
    m_eccentricity = substructure.plan.units == Units::Si ? 0.5 : 1.5;
    m_part.assign(m_x.size(), 0);
    for (std::size_t i = 0; i < m_missing.size(); ++i) m_part[i + 1] = m_part[i] + (m_missing[i] ? 1 : 0);
    for (Plane* plane : {&m_vertical, &m_across}) {
        for (auto* list : {&plane->shearI, &plane->shearJ, &plane->momentI, &plane->momentJ}) {
            list->assign(m_missing.size(), 0.0);
        }
    }
    m_axial.assign(m_missing.size(), 0.0);
    m_atI.resize(m_missing.size());
    m_atJ.resize(m_missing.size());
    m_supports.resize(m_supportPoints.size());
}

void CapModel::Solve(const CapLoads& loads) {
    ShareAlong(loads);
    SolveAxial(loads);
    SolvePlane(m_vertical, loads.down, loads.weight, true);
    SolvePlane(m_across, loads.across, 0.0, false);
    for (std::size_t s = 0; s < m_supports.size(); ++s) {
        const std::size_t point = m_supportPoints[s];
        const bool left = point > 0;
        const bool right = point < m_missing.size();
        const auto jump = [&](const std::vector<double>& atI, const std::vector<double>& atJ) {
            return (right ? atI[point] : 0.0) - (left ? atJ[point - 1] : 0.0);
        };
        m_supports[s].down = jump(m_vertical.shearI, m_vertical.shearJ) + loads.down[point];
        m_supports[s].across = jump(m_across.shearI, m_across.shearJ) + loads.across[point];
        m_supports[s].moment = jump(m_vertical.momentI, m_vertical.momentJ);
    }
    for (std::size_t i = 0; i < m_missing.size(); ++i) {
        if (m_missing[i]) continue;
        m_atI[i] = {m_axial[i],          m_vertical.shearI[i],  m_across.shearI[i],
                    m_across.momentI[i], m_vertical.momentI[i], m_across.shearI[i] * m_eccentricity};
        m_atJ[i] = {m_axial[i],          m_vertical.shearJ[i],  m_across.shearJ[i],
                    m_across.momentJ[i], m_vertical.momentJ[i], m_across.shearJ[i] * m_eccentricity};
    }
}

// The supports of a part share the load along its axis.
void CapModel::ShareAlong(const CapLoads& loads) {
    const std::size_t parts = m_part.back() + 1;
    std::vector<double> push(parts, 0.0);
    std::vector<double> supports(parts, 0.0);
    for (std::size_t i = 0; i < m_x.size(); ++i) push[m_part[i]] += loads.along[i];
    for (std::size_t point : m_supportPoints) supports[m_part[point]] += 1.0;
    for (std::size_t s = 0; s < m_supports.size(); ++s) {
        const std::size_t part = m_part[m_supportPoints[s]];
        m_supports[s].along = push[part] / supports[part];
        m_supports[s].swayMoment = m_supports[s].along * m_sway;
    }
}

void CapModel::SolveAxial(const CapLoads& loads) {
    double axial = 0.0;
    std::size_t support = 0;
    for (std::size_t i = 0; i < m_missing.size(); ++i) {
        axial -= loads.along[i];
        if (support < m_supports.size() && m_supportPoints[support] == i)
            axial += m_supports[support++].along;
        if (m_missing[i]) axial = 0.0;
        m_axial[i] = axial;
    }
}

// From left to right, so that a support's left moment is known before its right one is computed.
void CapModel::SolvePlane(Plane& plane, const std::vector<double>& loads, double weight, bool framed) {
    const std::size_t first = m_supportPoints.front();
    const std::size_t last = m_supportPoints.back();
    MarchRight(plane, 0, first, -loads.front(), 0.0, loads, weight);
    MarchLeft(plane, last, m_missing.size(), loads, weight);
    for (std::size_t s = 0; s + 1 < m_supportPoints.size(); ++s) SolveSpan(plane, s, loads, weight, framed);
}

// Elements first to last - 1; shear and moment are those right of the first point.
void CapModel::MarchRight(Plane& plane, std::size_t first, std::size_t last, double shear, double moment,
                          const std::vector<double>& loads, double weight) const {
    for (std::size_t i = first; i < last; ++i) {
        const double length = Length(i);
        plane.shearI[i] = shear;
        plane.momentI[i] = moment;
        moment += shear * length - weight * length * length / 2.0;
        shear -= weight * length;
        plane.shearJ[i] = shear;
        plane.momentJ[i] = moment;
        shear -= loads[i + 1];
    }
}

// The same from a free right end to the left.
void CapModel::MarchLeft(Plane& plane, std::size_t first, std::size_t last, const std::vector<double>& loads,
                         double weight) const {
    double shear = 0.0;
    double moment = 0.0;
    for (std::size_t i = last; i > first; --i) {
        const std::size_t e = i - 1;
        const double length = Length(e);
        shear += loads[i];
        plane.shearJ[e] = shear;
        plane.momentJ[e] = moment;
        moment -= shear * length + weight * length * length / 2.0;
        shear += weight * length;
        plane.shearI[e] = shear;
        plane.momentI[e] = moment;
    }
}

void CapModel::SolveSpan(Plane& plane, std::size_t support, const std::vector<double>& loads, double weight,
                         bool framed) {
    const std::size_t a = m_supportPoints[support];
    const std::size_t b = m_supportPoints[support + 1];
    const auto from = m_missing.begin() + static_cast<std::ptrdiff_t>(a);
    const auto to = m_missing.begin() + static_cast<std::ptrdiff_t>(b);
    const auto gap = std::find(from, to, true);
    if (gap != to) {  // a joint leaves two free ends
        const auto open = static_cast<std::size_t>(gap - m_missing.begin());
        const auto closed = static_cast<std::size_t>(std::find(gap, to, false) - m_missing.begin());
        MarchLeft(plane, a, open, loads, weight);
        MarchRight(plane, closed, b, -loads[closed], 0.0, loads, weight);
        return;
    }
    const double length = m_x[b] - m_x[a];
    const double left = SupportMoment(plane, support, true, loads, weight, framed);
    const double right = SupportMoment(plane, support + 1, false, loads, weight, framed);
    double shear = (right - left) / length + weight * length / 2.0;
    for (std::size_t i = a + 1; i < b; ++i) shear += loads[i] * (m_x[b] - m_x[i]) / length;
    MarchRight(plane, a, b, shear, left, loads, weight);
}

// A moment of the size that a fully held span has at its ends.
double CapModel::FixedMoment(std::size_t support, const std::vector<double>& loads, double weight) const {
    const std::size_t a = m_supportPoints[support];
    const std::size_t b = m_supportPoints[support + 1];
    const double length = m_x[b] - m_x[a];
    double total = weight * length;
    for (std::size_t i = a + 1; i < b; ++i) total += loads[i];
    return total * length / 10.0;
}

// In its plane the cap is fixed to the columns and sways with them; out of plane the spans are simply
// supported.
double CapModel::SupportMoment(const Plane& plane, std::size_t support, bool rightSide,
                               const std::vector<double>& loads, double weight, bool framed) const {
    const bool isFirst = support == 0;
    const bool isLast = support + 1 == m_supportPoints.size();
    const std::size_t point = m_supportPoints[support];
    double outer = 0.0;  // moment of the cantilever at an outer support
    if (isFirst && point > 0) outer = plane.momentJ[point - 1];
    if (isLast && point < m_missing.size()) outer = plane.momentI[point];
    if (!framed) return outer;
    const double sway = m_supports[support].swayMoment;
    if (isFirst) return outer - 0.4 * FixedMoment(0, loads, weight) + sway;
    if (isLast) return outer - 0.4 * FixedMoment(support - 1, loads, weight) - sway;
    const double inner =
        -0.45 * (FixedMoment(support - 1, loads, weight) + FixedMoment(support, loads, weight));
    return inner + (rightSide ? sway / 2.0 : -sway / 2.0);
}

}  // namespace samples

}  // namespace lumerin
