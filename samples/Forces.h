// SPDX-License-Identifier: MIT
// Forces of every element of a substructure in every case, as records of the force file.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "samples/CapForces.h"
#include "samples/LoadCases.h"
#include "samples/Model.h"
#include "samples/Random.h"

namespace lumerin {

namespace samples {

constexpr std::size_t kWordsPerRecord = 17;

// Forces on a pile at its head; axial force is negative in compression.
struct PileHead {
    double axial = 0.0;
    double shear2 = 0.0;
    double shear3 = 0.0;
    double torque = 0.0;
};

class ForceModel {
  public:
    // The project must outlive the model. `index` counts the substructures from 0.
    ForceModel(const Project& project, std::size_t index);

    // Works out the forces of one case, counted from 0.
    void Solve(int caseIndex);
    // Records of the case solved last: piles from the head down, then the rows of the element table.
    void AppendRecords(std::vector<float>& words) const;

    const std::vector<PileHead>& Piles() const { return m_piles; }
    const CaseLoads& Loads() const { return m_loads; }

    // Forces at one end (0 I, 1 J) of an element of the table.
    SectionForces RowForces(const ElementRow& row, int end) const;
    // Forces of a pile at a node; node 0 is its head.
    SectionForces PileForces(std::size_t pile, std::size_t node) const;
    // Axial force at the tip over that at the head.
    static constexpr double kTipShare = 0.25;

  private:
    // Demand of each force in units of what the member can carry.
    struct Capacity {
        double axial = 0.0;
        double shear = 0.0;
        double moment = 0.0;
    };
    struct Column {
        SectionForces foot;
        SectionForces top;
    };
    struct Foundation {
        double down = 0.0;
        double along = 0.0;
        double across = 0.0;
        double momentAlong = 0.0;
        double momentAcross = 0.0;
    };

    void BuildPileShapes();
    void MeasureFoundation();
    void Calibrate();
    void Demand(Capacity& most, const SectionForces& forces) const;
    double Ratio(MemberKind kind, const SectionForces& forces) const;
    double Ratio(const Capacity& capacity, const SectionForces& forces) const;

    double BearingLoad(double place, double scatter) const;
    void LoadCap(Random& random);
    void SolveColumns();
    void SolveWalls(Random& random);
    void SolveGroup();
    void SolveBent();
    void AddColumnToFoundation(std::size_t column);
    void SharePiles();

    const Substructure& m_substructure;
    LoadGenerator m_generator;
    std::uint64_t m_seed;
    std::uint64_t m_stream;
    int m_cases;
    double m_height;  // feet or metres

    CaseLoads m_loads;
    std::optional<CapModel> m_cap;
    CapLoads m_capLoads;
    std::vector<Column> m_columns;
    Foundation m_foundation;
    std::vector<PileHead> m_piles;

    std::vector<double> m_axialShape, m_shearShape, m_momentShape;  // by pile node
    std::vector<double> m_pileX, m_pileY;                           // from the middle of the foundation
    double m_sumXX = 0.0;
    double m_sumYY = 0.0;
    double m_centerX = 0.0;
    double m_momentShapeMost = 0.0;
    Capacity m_pileCapacity;
    std::array<Capacity, 4> m_capacity;  // by MemberKind
};

}  // namespace samples

}  // namespace lumerin
