// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "framework/Index.h"
#include "model/Element.h"
#include "results/FiniteForces.h"

namespace lumerin {

// The forces of all elements of a substructure in one load case, in the order of its element list: fourteen
// floats an element.
using CaseForces = std::span<const float>;

inline ElementForces ForcesOf(CaseForces forces, int element) {
    return forces.subspan(Index(element) * kForcesPerElement).first<kForcesPerElement>();
}

// The fourteen floats of one element in one case.
using ForceRow = std::array<float, kForcesPerElement>;

// Receives a case (from 0) with its forces, which are valid during the call only.
using CaseTaker = std::function<void(int loadCase, CaseForces forces)>;

// Single cases of a substructure, for the rows that a table shows. An object keeps its file open as long as
// it exists.
class ForceRows {
  public:
    ForceRows() = default;
    ForceRows(const ForceRows&) = delete;
    ForceRows& operator=(const ForceRows&) = delete;
    virtual ~ForceRows() = default;

    // Both indices are those of the substructure. Throws CFileException.
    virtual ForceRow At(int loadCase, int element) = 0;
};

// Where the forces of a substructure are. They are read when they are needed, never kept.
class ForceSource {
  public:
    ForceSource() = default;
    ForceSource(const ForceSource&) = delete;
    ForceSource& operator=(const ForceSource&) = delete;
    virtual ~ForceSource() = default;

    // Passes every case in order. Returns what is not finite in any of them. Throws CFileException.
    virtual FiniteForces ReadCases(const CaseTaker& take) const = 0;
    virtual std::unique_ptr<ForceRows> OpenRows() const = 0;
    // Whether the forces are still those that the project was loaded with.
    virtual bool IsUnchanged() const { return true; }
    // The file, for messages.
    virtual std::string Name() const { return {}; }
};

// By substructure.
using ForceSources = std::vector<std::unique_ptr<ForceSource>>;

}  // namespace lumerin
