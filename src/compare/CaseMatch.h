// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "records/Evaluation.h"

namespace lumerin {

// A case as a person names it.
struct CaseName {
    int number = 0;          // from 1; 0: no case
    std::string title;       // UTF-8; empty where the project has no titles
    std::string limitState;  // empty without combinations
    std::string className;
    bool chosen = true;
    bool operator==(const CaseName&) const = default;
};

// "case 7 STRENGTH-IV, Strength IV, load position 1"; "none" of no case.
std::string TextOf(const CaseName& name);

// The cases of two runs, each with the one that it is in the other run. Cases are the same when their titles
// are, or, where a run has no titles, their limit states; of several with the same words the first is the
// first, the second the second and so on, in the order of their numbers.
class CaseMatch {
  public:
    CaseMatch(const Evaluation& before, const Evaluation& after);

    const std::vector<CaseName>& Before() const { return m_before; }
    const std::vector<CaseName>& After() const { return m_after; }
    // The number of the case in the later run; 0: it has none.
    int AfterOf(int before) const { return m_afterOf.at(static_cast<std::size_t>(before)); }
    // The number of the case in the earlier run; 0: it has none.
    int BeforeOf(int after) const { return m_beforeOf.at(static_cast<std::size_t>(after)); }

  private:
    std::vector<CaseName> m_before, m_after;
    std::vector<int> m_afterOf, m_beforeOf;  // by number; entry 0 is that of no case
};

}  // namespace lumerin
