// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "compare/Comparison.h"
#include "compare/ResultColumns.h"
#include "records/OpenProject.h"

namespace lumerin {

// Compares two projects that were written to files.
struct RunOptions {
    CaseChoice cases;
    Limits limits;
    Tolerances tolerances;
    std::vector<const Table*> tables = ComparableTables();
    UnitSystem units = UnitSystem::us;
};

inline Comparison CompareFiles(const std::string& before, const std::string& after,
                               const RunOptions& options = {}) {
    const auto old = LoadByName(ProjectName(before)), now = LoadByName(ProjectName(after));
    const CompareChoice choice{options.tables, options.tolerances, options.units};
    const TableNeeds needs = NeedsOfComparison(choice);
    return Compare(Evaluation(*old, options.cases, options.limits, needs),
                   Evaluation(*now, options.cases, options.limits, needs), choice);
}

// "section_forces pile section 1, Max f22" of each result.
inline std::vector<std::string> NamesOf(const std::vector<ResultChange>& results) {
    std::vector<std::string> names;
    for (const ResultChange& result : results) {
        names.push_back(std::string(result.table->name) + " " + result.label);
    }
    return names;
}

// "new case: case 3 STRENGTH-I, third"
inline std::vector<std::string> LinesOf(const std::vector<StructureChange>& structure) {
    std::vector<std::string> lines;
    for (const StructureChange& change : structure) {
        lines.push_back(std::string(PresenceName(change.presence)) + " " + std::string(change.kind) + ": " +
                        change.what + (change.count > 1 ? " x" + std::to_string(change.count) : ""));
    }
    return lines;
}

}  // namespace lumerin
