// SPDX-License-Identifier: MIT
// The limit states of a project's cases, and the load factors of each case.
#pragma once

#include <string>
#include <vector>

#include "samples/Model.h"

namespace lumerin {

namespace samples {

// The kind of loading of a limit state; the classes of a family count from 0 in this order.
enum class LoadClass : int { Strength = 0, Service = 1, Extreme = 2, Fatigue = 3 };

struct LimitState {
    int code = 0;
    const char* title = "";
    LoadClass loadClass = LoadClass::Strength;
};

// A run of combinations of one limit state. Numbers jump between runs where a combination did not converge.
struct LimitRow {
    LimitState state;
    int firstNumber = 0;
    int count = 0;
};

// Distributes the cases over the limit states, with every class in use where there are enough cases.
// Empty without combinations.
std::vector<LimitRow> DistributeLimitStates(CodeFamily family, int cases);

// Load factors of one case; the shares of lateral load are of the dead load.
struct CaseLoads {
    double dead = 1.0;
    double live = 0.0;
    double lane = 0.0;      // place of the traffic across the cap, -1 to 1
    double lateralX = 0.0;  // along the cap
    double lateralY = 0.0;  // across it
    double twist = 0.0;
};

class LoadGenerator {
  public:
    explicit LoadGenerator(const Project& project);

    // `index` counts from 0; the same for every substructure.
    CaseLoads Loads(int index) const;

  private:
    CaseLoads CombinationLoads(int index) const;
    CaseLoads PlainLoads(int index) const;
    CaseLoads TimeStepLoads(int index) const;
    LoadClass ClassOf(int index) const;

    std::uint64_t m_seed;
    int m_cases;
    AnalysisMode m_mode;
    std::vector<LimitRow> m_rows;
};

}  // namespace samples

}  // namespace lumerin
