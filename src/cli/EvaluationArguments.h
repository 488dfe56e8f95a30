// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "records/CaseChoice.h"
#include "records/Evaluation.h"
#include "records/Units.h"
#include "script/CommandParser.h"

namespace lumerin {

// What results are computed for and held against. The variables must live as long as the parser. Each wrong
// value is reported while the command line is parsed (std::invalid_argument).

// --cases and --class.
void AddCaseOptions(CommandParser& command, CaseChoice& cases);
// --limit, --pile-compression and --pile-tension.
void AddLimitOptions(CommandParser& command, Limits& limits);
// --units; none: those of each project.
void AddUnitsOption(CommandParser& command, std::optional<UnitSystem>& units);

struct EvaluationArguments {
    CaseChoice cases;
    Limits limits;
    std::optional<UnitSystem> units;
};
void AddEvaluationArguments(CommandParser& command, EvaluationArguments& arguments);

}  // namespace lumerin
