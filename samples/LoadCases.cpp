// SPDX-License-Identifier: MIT
#include "samples/LoadCases.h"

#include <algorithm>
#include <array>
#include <span>

#include "samples/Random.h"

namespace lumerin {

namespace samples {
namespace {

using enum LoadClass;

constexpr LimitState kLrfdStates[] = {
    {101, "Strength I", Strength},      {102, "Strength II", Strength}, {103, "Strength III", Strength},
    {104, "Strength IV", Strength},     {105, "Strength V", Strength},  {106, "Extreme Event I", Extreme},
    {107, "Extreme Event II", Extreme}, {108, "Service I", Service},    {109, "Service II", Service},
    {110, "Service III", Service},      {111, "Service IV", Service},   {112, "Fatigue I", Fatigue},
    {113, "Fatigue II", Fatigue},
};

constexpr LimitState kLfdStates[] = {
    {201, "Group I", Strength},   {202, "Group IA", Strength},     {203, "Group II", Strength},
    {204, "Group III", Strength}, {205, "Group IV", Strength},     {206, "Group V", Strength},
    {207, "Group VI", Strength},  {208, "Group VII", Strength},    {209, "Group VIII", Strength},
    {210, "Group IX", Strength},  {211, "Group Vessel", Strength},
};

constexpr LimitState kAremaStates[] = {
    {301, "Load factor Group I", Strength},    {302, "Load factor Group IA", Strength},
    {303, "Load factor Group II", Strength},   {304, "Load factor Group III", Strength},
    {305, "Load factor Group IV", Strength},   {306, "Load factor Group V", Strength},
    {307, "Load factor Group VI", Strength},   {308, "Load factor Group VII", Strength},
    {309, "Load factor Group VIII", Strength}, {310, "Load factor Group IX", Strength},
    {311, "Service load Group I", Service},    {312, "Service load Group II", Service},
    {313, "Service load Group III", Service},  {314, "Service load Group IV", Service},
    {315, "Service load Group V", Service},    {316, "Service load Group VI", Service},
    {317, "Service load Group VII", Service},  {318, "Service load Group VIII", Service},
};

std::span<const LimitState> StatesOf(CodeFamily family) {
    switch (family) {
        case CodeFamily::Lrfd:
            return kLrfdStates;
        case CodeFamily::Lfd:
            return kLfdStates;
        case CodeFamily::Arema:
            return kAremaStates;
        case CodeFamily::None:
            break;
    }
    return {};
}

// Assigns the classes in turn, so that few cases include all of them, and keeps the order of the codes.
std::vector<LimitState> ChooseStates(std::span<const LimitState> states, std::size_t count) {
    std::array<std::vector<LimitState>, 4> byClass;
    for (const auto& state : states) byClass[static_cast<std::size_t>(state.loadClass)].push_back(state);
    std::vector<LimitState> chosen;
    for (std::size_t turn = 0; turn < states.size(); ++turn) {
        for (const auto& list : byClass) {
            if (turn < list.size() && chosen.size() < count) chosen.push_back(list[turn]);
        }
    }
    std::sort(chosen.begin(), chosen.end(), [](const auto& a, const auto& b) { return a.code < b.code; });
    return chosen;
}

// Ranges from which a class draws its factors.
struct FactorRange {
    double deadLow, deadHigh;
    double liveLow, liveHigh;
    double lateral;
};

constexpr FactorRange kClassFactors[] = {
    {0.90, 1.25, 1.35, 1.75, 0.06},
    {1.00, 1.00, 1.00, 1.30, 0.04},
    {0.90, 1.00, 0.00, 0.50, 0.34},
    {1.00, 1.00, 0.75, 1.50, 0.01},
};

CaseLoads Draw(Random& random, const FactorRange& range) {
    CaseLoads loads;
    loads.dead = random.Between(range.deadLow, range.deadHigh);
    loads.live = random.Between(range.liveLow, range.liveHigh);
    loads.lane = random.Between(-1.0, 1.0);
    loads.lateralX = random.Sign() * random.Between(0.4, 1.0) * range.lateral;
    loads.lateralY = random.Sign() * random.Between(0.3, 0.9) * range.lateral;
    loads.twist = random.Between(-1.0, 1.0);
    return loads;
}

// A wave of period 1 and height 1 from two parabolas: smooth, and the same on every machine, since it calls
// no library function.
double Wave(double t) {
    const double u = t - static_cast<double>(static_cast<long long>(t));
    return u < 0.5 ? 8.0 * u * (1.0 - 2.0 * u) : -8.0 * (u - 0.5) * (2.0 - 2.0 * u);
}

// Strong motion grows over the first fifth of a record and decays slowly.
double ShakingEnvelope(double part) {
    return part < 0.2 ? part * 5.0 : 1.0 / (1.0 + 8.0 * (part - 0.2) * (part - 0.2) * 4.0);
}

}  // namespace

std::vector<LimitRow> DistributeLimitStates(CodeFamily family, int cases) {
    const auto states = StatesOf(family);
    if (states.empty() || cases < 1) return {};
    const auto chosen = ChooseStates(states, std::min(states.size(), static_cast<std::size_t>(cases)));
    const int rows = static_cast<int>(chosen.size());
    std::vector<LimitRow> result;
    int number = 1;
    for (int r = 0; r < rows; ++r) {
        const int count = cases / rows + (r < cases % rows ? 1 : 0);
        result.push_back({chosen[static_cast<std::size_t>(r)], number, count});
        number += count + (r % 3 == 1 ? 2 : 0);
    }
    return result;
}

LoadGenerator::LoadGenerator(const Project& project)
    : m_seed(project.seed),
      m_cases(project.cases),
      m_mode(project.mode),
      m_rows(DistributeLimitStates(project.family, project.cases)) {}

CaseLoads LoadGenerator::Loads(int index) const {
    if (m_mode == AnalysisMode::TimeSteps) return TimeStepLoads(index);
    return m_rows.empty() ? PlainLoads(index) : CombinationLoads(index);
}

LoadClass LoadGenerator::ClassOf(int index) const {
    for (const auto& row : m_rows) {
        if (index < row.count) return row.state.loadClass;
        index -= row.count;
    }
    return Strength;
}

CaseLoads LoadGenerator::CombinationLoads(int index) const {
    Random random(m_seed, static_cast<std::uint64_t>(index), 0);
    return Draw(random, kClassFactors[static_cast<int>(ClassOf(index))]);
}

// Case 1 is dead load alone; then traffic, wind and impact in turn.
CaseLoads LoadGenerator::PlainLoads(int index) const {
    constexpr FactorRange turns[] = {{1.0, 1.0, 0.8, 1.0, 0.02},
                                     {1.0, 1.0, 0.0, 0.0, 0.12},
                                     {1.0, 1.0, 0.3, 0.6, 0.07},
                                     {1.0, 1.0, 0.0, 0.3, 0.32}};
    if (index == 0) return {};
    Random random(m_seed, static_cast<std::uint64_t>(index), 0);
    return Draw(random, turns[(index - 1) % 4]);
}

CaseLoads LoadGenerator::TimeStepLoads(int index) const {
    Random random(m_seed, 0, 0);
    const double part = m_cases > 1 ? static_cast<double>(index) / (m_cases - 1) : 0.0;
    const double phase = random.Unit();
    CaseLoads loads;
    loads.dead = 1.0 + 0.08 * ShakingEnvelope(part) * Wave(23.0 * part + phase);
    loads.lateralX = 0.40 * ShakingEnvelope(part) * Wave(9.0 * part);
    loads.lateralY = 0.28 * ShakingEnvelope(part) * Wave(7.0 * part + phase);
    loads.twist = ShakingEnvelope(part) * Wave(5.0 * part + phase);
    return loads;
}

}  // namespace samples

}  // namespace lumerin
