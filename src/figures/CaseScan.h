// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

#include "figures/Figure.h"

namespace lumerin {

// One element end in all chosen cases.

// A chosen case; the values by ForceComponent.
struct ScannedCase {
    int loadCase = 0;     // from 0
    bool isThere = true;  // the force file has the record
    std::array<float, kComponents> values{};
};

// The cases of a limit class, in their order.
struct ScannedClass {
    std::string name;  // empty where the cases have no classes
    std::vector<ScannedCase> cases;
};

struct CaseScan {
    ElementIdentity identity;
    int end = kEndI;
    std::string place;                  // of the end
    std::vector<ScannedClass> classes;  // those with a chosen case
};

// The element end that a request means: without an element that with the greatest ratio of the substructure,
// without an end that with the greater ratio. `identity` is null where no element has a ratio and none is
// named. Throws std::invalid_argument for an element without forces.
struct ScannedEnd {
    const ElementIdentity* identity = nullptr;
    int end = kEndI;
};
ScannedEnd EndOf(const Evaluation& evaluation, const FigureRequest& request);

// Reads the rows of the element from the force file. Throws CFileException.
CaseScan ScanCases(const Evaluation& evaluation, std::size_t pier, const ScannedEnd& end);

}  // namespace lumerin
