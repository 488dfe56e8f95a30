// SPDX-License-Identifier: MIT
#include "samples/Forces.h"

#include <algorithm>
#include <cmath>

#include "samples/Random.h"

namespace lumerin {

namespace samples {
namespace {

// Fixity moment at the head, as a share of lateral force times length.
constexpr double kHeadFixity = 0.12;
constexpr int kCalibrationCases = 256;

// The force file has the signs of forces on the element, which are opposite for some components; so is the
// torque of a pile at its end I.
void AppendRecord(std::vector<float>& words, const SectionForces& i, const SectionForces& j, double ratioI,
                  double ratioJ, double torqueSignI) {
    const double record[kWordsPerRecord] = {
        0.0,      -i.f22, -i.f33, j.f22,  j.f33,  i.m33,   i.m22,   -j.m33,
        -j.m22,   0.0,    0.0,    ratioI, ratioJ, i.axial, j.axial, torqueSignI * i.torque,
        -j.torque};
    for (double value : record) words.push_back(static_cast<float>(value));
}

double Largest(const std::vector<double>& values) {
    double most = 0.0;
    for (double value : values) most = std::max(most, std::abs(value));
    return most;
}

double Reciprocal(double share, double most) {
    return most > 0.0 ? share / most : 0.0;
}

SectionForces Blend(const SectionForces& a, const SectionForces& b, double t) {
    const auto mix = [t](double p, double q) { return p + (q - p) * t; };
    return {mix(a.axial, b.axial), mix(a.f22, b.f22), mix(a.f33, b.f33),
            mix(a.m22, b.m22),     mix(a.m33, b.m33), mix(a.torque, b.torque)};
}

}  // namespace

ForceModel::ForceModel(const Project& project, std::size_t index)
    : m_substructure(project.substructures.at(index)),
      m_generator(project),
      m_seed(project.seed),
      m_stream(static_cast<std::uint64_t>(index) + 1),
      m_cases(project.cases),
      m_height(m_substructure.plan.height * LengthFactor(m_substructure.plan.units)) {
    if (!m_substructure.cap.empty()) m_cap.emplace(m_substructure);
    m_columns.resize(static_cast<std::size_t>(m_substructure.columns));
    m_piles.resize(static_cast<std::size_t>(m_substructure.PileCount()));
    BuildPileShapes();
    MeasureFoundation();
    Calibrate();
}

// Axial force decreases along the shaft; the lateral force bends the upper part, and the moment changes its
// sign a little below the head. Shear is the slope of the moment.
void ForceModel::BuildPileShapes() {
    const auto& plan = m_substructure.plan;
    const double length = plan.pileLength * LengthFactor(plan.units);
    const double slope = 1.0 - 4.0 * kHeadFixity;
    for (int node = 0; node < plan.pileNodes; ++node) {
        const double z = static_cast<double>(node) / (plan.pileNodes - 1);
        const double rest = (1.0 - z) * (1.0 - z) * (1.0 - z);
        const double line = slope * z - kHeadFixity;
        m_axialShape.push_back(1.0 - (1.0 - kTipShare) * z);
        m_momentShape.push_back(length * rest * (1.0 - z) * line);
        m_shearShape.push_back(rest * (slope * (1.0 - z) - 4.0 * line));
    }
    m_momentShapeMost = Largest(m_momentShape);
}

void ForceModel::MeasureFoundation() {
    const double factor = LengthFactor(m_substructure.plan.units);
    const double count = static_cast<double>(m_piles.size());
    double middleX = 0.0;
    double middleY = 0.0;
    for (std::size_t p = 0; p < m_piles.size(); ++p) {
        m_pileX.push_back(m_substructure.nodes[p].x * factor);
        m_pileY.push_back(m_substructure.nodes[p].y * factor);
        middleX += m_pileX.back() / count;
        middleY += m_pileY.back() / count;
    }
    m_centerX = middleX;
    for (std::size_t p = 0; p < m_piles.size(); ++p) {
        m_pileX[p] -= middleX;
        m_pileY[p] -= middleY;
        m_sumXX += m_pileX[p] * m_pileX[p];
        m_sumYY += m_pileY[p] * m_pileY[p];
    }
}

// Members are designed for their loads: the greatest demands among spread cases come out near 1.
void ForceModel::Calibrate() {
    const int samples = std::min(m_cases, kCalibrationCases);
    std::array<Capacity, 4> most;
    Capacity pile;
    for (int s = 0; s < samples; ++s) {
        Solve(static_cast<int>(std::int64_t{s} * m_cases / samples));
        for (const auto& row : m_substructure.elements) {
            auto& kind = most[static_cast<std::size_t>(row.kind)];
            Demand(kind, RowForces(row, 0));
            Demand(kind, RowForces(row, 1));
        }
        for (const auto& head : m_piles) {
            pile.axial = std::max(pile.axial, std::abs(head.axial));
            const double shear = std::abs(head.shear2) + std::abs(head.shear3);
            pile.moment = std::max(pile.moment, shear * m_momentShapeMost);
        }
    }
    constexpr Capacity shares[] = {{0.7, 0.0, 0.3}, {0.45, 0.0, 0.6}, {0.0, 0.4, 0.65}, {0.8, 0.0, 0.25}};
    for (std::size_t k = 0; k < most.size(); ++k) {
        m_capacity[k] = {Reciprocal(shares[k].axial, most[k].axial),
                         Reciprocal(shares[k].shear, most[k].shear),
                         Reciprocal(shares[k].moment, most[k].moment)};
    }
    m_pileCapacity = {Reciprocal(0.55, pile.axial), 0.0, Reciprocal(0.5, pile.moment)};
}

void ForceModel::Demand(Capacity& most, const SectionForces& forces) const {
    most.axial = std::max(most.axial, std::abs(forces.axial));
    most.shear = std::max(most.shear, std::abs(forces.f22));
    most.moment = std::max(most.moment, std::abs(forces.m22) + std::abs(forces.m33));
}

double ForceModel::Ratio(const Capacity& capacity, const SectionForces& forces) const {
    return std::abs(forces.axial) * capacity.axial + std::abs(forces.f22) * capacity.shear +
           (std::abs(forces.m22) + std::abs(forces.m33)) * capacity.moment;
}

double ForceModel::Ratio(MemberKind kind, const SectionForces& forces) const {
    return Ratio(m_capacity[static_cast<std::size_t>(kind)], forces);
}

// `place` runs from -1 at the left end to 1 at the right one.
double ForceModel::BearingLoad(double place, double scatter) const {
    const auto& plan = m_substructure.plan.loads;
    return scatter * (plan.dead * m_loads.dead + plan.live * m_loads.live * (1.0 + m_loads.lane * place));
}

void ForceModel::LoadCap(Random& random) {
    const auto& plan = m_substructure.plan.loads;
    const auto& cap = m_substructure.cap;
    const double middle = (cap.front().x + cap.back().x) / 2.0;
    const double half = std::max((cap.back().x - cap.front().x) / 2.0, 1.0);
    for (auto* list : {&m_capLoads.down, &m_capLoads.along, &m_capLoads.across})
        list->assign(cap.size(), 0.0);
    m_capLoads.weight = plan.capWeight * m_loads.dead;
    for (const auto& row : m_substructure.bearingRows) {
        for (const auto& bearing : row) {
            const double scatter = random.Between(0.95, 1.05);
            if (bearing.capPoint < 0) continue;
            const auto at = static_cast<std::size_t>(bearing.capPoint);
            m_capLoads.down[at] += BearingLoad((cap[at].x - middle) / half, scatter);
            m_capLoads.along[at] += plan.dead * m_loads.lateralX;
            m_capLoads.across[at] += plan.dead * m_loads.lateralY * scatter;
        }
    }
}

void ForceModel::Solve(int caseIndex) {
    m_loads = m_generator.Loads(caseIndex);
    m_foundation = {};
    Random random(m_seed, static_cast<std::uint64_t>(caseIndex), m_stream);
    switch (m_substructure.plan.type) {
        case StructureType::Pier:
            LoadCap(random);
            m_cap->Solve(m_capLoads);
            SolveColumns();
            break;
        case StructureType::PileBent:
            LoadCap(random);
            m_cap->Solve(m_capLoads);
            return SolveBent();
        case StructureType::Walls:
            SolveWalls(random);
            break;
        case StructureType::PileGroup:
            SolveGroup();
            break;
    }
    SharePiles();
}

// The column's moment at the cap that is not from sway also thrusts its ends apart, as in any frame.
void ForceModel::SolveColumns() {
    const auto& loads = m_substructure.plan.loads;
    for (std::size_t c = 0; c < m_columns.size(); ++c) {
        const SupportForces& support = m_cap->Supports()[c];
        SectionForces top;
        top.axial = -support.down;
        top.f22 = support.along + 1.5 * (support.moment - support.swayMoment) / m_height;
        top.f33 = support.across;
        top.m33 = support.moment;
        top.torque = m_loads.twist * 0.05 * loads.dead;
        m_columns[c].top = top;
        AddColumnToFoundation(c);
    }
}

void ForceModel::SolveWalls(Random& random) {
    const auto& loads = m_substructure.plan.loads;
    const double last = static_cast<double>(m_columns.size()) - 1.0;
    for (std::size_t c = 0; c < m_columns.size(); ++c) {
        const double place = last > 0.0 ? 2.0 * static_cast<double>(c) / last - 1.0 : 0.0;
        SectionForces top;
        top.axial = -BearingLoad(place, random.Between(0.97, 1.03));
        top.f22 = loads.dead * m_loads.lateralX;
        top.f33 = loads.dead * m_loads.lateralY;
        top.m22 = 0.4 * loads.live * m_loads.live * m_loads.lane;
        top.torque = m_loads.twist * 0.05 * loads.dead;
        m_columns[c].top = top;
        AddColumnToFoundation(c);
    }
}

// Completes a column from its top down and puts it on the footing.
void ForceModel::AddColumnToFoundation(std::size_t column) {
    const double weight = m_substructure.plan.loads.columnWeight * m_loads.dead * m_height;
    auto& [foot, top] = m_columns[column];
    foot = top;
    foot.axial = top.axial - weight;
    foot.m33 = top.m33 - top.f22 * m_height;
    foot.m22 = top.m22 - top.f33 * m_height;
    const double x =
        m_substructure.plan.supportX[column] * LengthFactor(m_substructure.plan.units) - m_centerX;
    m_foundation.down -= foot.axial;
    m_foundation.along += foot.f22;
    m_foundation.across += foot.f33;
    m_foundation.momentAlong += -foot.m33 - foot.axial * x;
    m_foundation.momentAcross -= foot.m22;
}

void ForceModel::SolveGroup() {
    const auto& loads = m_substructure.plan.loads;
    const double piles = static_cast<double>(m_piles.size());
    const double arm = m_substructure.plan.pileLength * LengthFactor(m_substructure.plan.units) * 0.25;
    m_foundation.down = piles * (loads.dead * m_loads.dead + loads.live * m_loads.live);
    m_foundation.along = piles * loads.dead * m_loads.lateralX;
    m_foundation.across = piles * loads.dead * m_loads.lateralY;
    m_foundation.momentAlong = m_foundation.along * arm + piles * loads.live * m_loads.live * m_loads.lane;
    m_foundation.momentAcross = m_foundation.across * arm;
}

void ForceModel::SolveBent() {
    for (std::size_t p = 0; p < m_piles.size(); ++p) {
        const SupportForces& support = m_cap->Supports()[p];
        m_piles[p] = {-support.down, support.along, support.across,
                      m_loads.twist * 0.01 * m_substructure.plan.loads.dead};
    }
}

// A stiff footing: axial forces are linear over the pile heads, and the leading rows carry more of the
// lateral load.
void ForceModel::SharePiles() {
    const double piles = static_cast<double>(m_piles.size());
    const double down = m_foundation.down + m_substructure.plan.loads.footingWeight * m_loads.dead * piles;
    const double tiltX = m_sumXX > 0.0 ? m_foundation.momentAlong / m_sumXX : 0.0;
    const double tiltY = m_sumYY > 0.0 ? m_foundation.momentAcross / m_sumYY : 0.0;
    const double halfX = std::max(-m_pileX.front(), 1.0);
    const double halfY = std::max(-m_pileY.front(), 1.0);
    const double leadX = m_foundation.along < 0.0 ? -0.15 : 0.15;
    const double leadY = m_foundation.across < 0.0 ? -0.15 : 0.15;
    for (std::size_t p = 0; p < m_piles.size(); ++p) {
        m_piles[p].axial = -down / piles - tiltX * m_pileX[p] - tiltY * m_pileY[p];
        m_piles[p].shear2 = m_foundation.along / piles * (1.0 + leadX * m_pileX[p] / halfX);
        m_piles[p].shear3 = m_foundation.across / piles * (1.0 + leadY * m_pileY[p] / halfY);
        m_piles[p].torque = m_loads.twist * 0.002 * down / piles;
    }
}

SectionForces ForceModel::PileForces(std::size_t pile, std::size_t node) const {
    const PileHead& head = m_piles[pile];
    return {head.axial * m_axialShape[node],   head.shear2 * m_shearShape[node],
            head.shear3 * m_shearShape[node],  head.shear3 * m_momentShape[node],
            head.shear2 * m_momentShape[node], head.torque * m_axialShape[node]};
}

SectionForces ForceModel::RowForces(const ElementRow& row, int end) const {
    const auto member = static_cast<std::size_t>(row.member);
    switch (row.kind) {
        case MemberKind::Cap:
            return end == 0 ? m_cap->AtI(member) : m_cap->AtJ(member);
        case MemberKind::Column: {
            const double t = static_cast<double>(row.element + end) / m_substructure.ColumnElements();
            return Blend(m_columns[member].foot, m_columns[member].top, t);
        }
        case MemberKind::Connector: {
            SectionForces forces;
            forces.axial = m_columns.empty() ? -m_foundation.down / 4.0 : m_columns[member].foot.axial / 4.0;
            return forces;
        }
        case MemberKind::Extra:
            break;
    }
    SectionForces forces;
    const double push = m_substructure.plan.loads.dead * m_loads.lateralX;
    forces.axial = (row.member % 2 == 0 ? 1.8 : -1.8) * push - 0.01 * m_substructure.plan.loads.dead;
    forces.f22 = 0.02 * push;
    forces.m33 = (end == 0 ? -0.5 : 0.5) * forces.f22 * 12.0;
    forces.torque = 0.1 * m_loads.twist;
    return forces;
}

void ForceModel::AppendRecords(std::vector<float>& words) const {
    const std::size_t nodes = m_axialShape.size();
    for (std::size_t p = 0; p < m_piles.size(); ++p) {
        SectionForces upper = PileForces(p, 0);
        double upperRatio = Ratio(m_pileCapacity, upper);
        for (std::size_t node = 1; node < nodes; ++node) {
            const SectionForces lower = PileForces(p, node);
            const double lowerRatio = Ratio(m_pileCapacity, lower);
            AppendRecord(words, lower, upper, lowerRatio, upperRatio, -1.0);
            upper = lower;
            upperRatio = lowerRatio;
        }
    }
    for (const auto& row : m_substructure.elements) {
        const SectionForces i = RowForces(row, 0);
        const SectionForces j = RowForces(row, 1);
        AppendRecord(words, i, j, Ratio(row.kind, i), Ratio(row.kind, j), 1.0);
    }
}

}  // namespace samples

}  // namespace lumerin
