// SPDX-License-Identifier: MIT
// Statics of a cap: shears and moments along a chain of elements under point loads and its own weight.
#pragma once

#include <vector>

#include "samples/Model.h"

namespace lumerin {

namespace samples {

// Forces at one place of a member, in kips and kip-feet or kN and kN-m. Axial force is positive in tension,
// M33 positive with tension at the bottom of a cap.
struct SectionForces {
    double axial = 0.0;
    double f22 = 0.0;
    double f33 = 0.0;
    double m22 = 0.0;
    double m33 = 0.0;
    double torque = 0.0;
};

// Loads of one case at the cap points.
struct CapLoads {
    std::vector<double> down;
    std::vector<double> along;   // in the cap's plane, to the right
    std::vector<double> across;  // out of the plane
    double weight = 0.0;         // per foot or metre
};

// The reactions of a support.
struct SupportForces {
    double down = 0.0;
    double along = 0.0;
    double across = 0.0;
    double moment = 0.0;      // in the plane: right of the support less left of it
    double swayMoment = 0.0;  // the part of it that comes from `along`
};

class CapModel {
  public:
    explicit CapModel(const Substructure& substructure);

    // Fills the forces at both ends of every element; missing elements stay without forces.
    void Solve(const CapLoads& loads);

    const SectionForces& AtI(std::size_t element) const { return m_atI[element]; }
    const SectionForces& AtJ(std::size_t element) const { return m_atJ[element]; }
    const std::vector<SupportForces>& Supports() const { return m_supports; }

  private:
    // One plane of bending: shear and moment at the element ends.
    struct Plane {
        std::vector<double> shearI, shearJ, momentI, momentJ;
    };

    void ShareAlong(const CapLoads& loads);
    void SolveAxial(const CapLoads& loads);
    void SolvePlane(Plane& plane, const std::vector<double>& loads, double weight, bool framed);
    void MarchRight(Plane& plane, std::size_t first, std::size_t last, double shear, double moment,
                    const std::vector<double>& loads, double weight) const;
    void MarchLeft(Plane& plane, std::size_t first, std::size_t last, const std::vector<double>& loads,
                   double weight) const;
    void SolveSpan(Plane& plane, std::size_t support, const std::vector<double>& loads, double weight,
                   bool framed);
    double SupportMoment(const Plane& plane, std::size_t support, bool rightSide,
                         const std::vector<double>& loads, double weight, bool framed) const;
    double FixedMoment(std::size_t support, const std::vector<double>& loads, double weight) const;
    double Length(std::size_t element) const { return m_x[element + 1] - m_x[element]; }

    std::vector<double> m_x;  // feet or metres
    std::vector<bool> m_missing;
    std::vector<std::size_t> m_supportPoints;
    std::vector<std::size_t> m_part;  // of each point; parts are what missing elements leave
    double m_sway = 0.0;              // arm of a column's shear at its top
    double m_eccentricity = 0.0;      // of the bearings over the cap's axis
    Plane m_vertical, m_across;
    std::vector<double> m_axial;  // by element
    std::vector<SectionForces> m_atI, m_atJ;
    std::vector<SupportForces> m_supports;
};

}  // namespace samples

}  // namespace lumerin
