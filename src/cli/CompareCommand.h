// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/Command.h"
#include "compare/Comparison.h"
#include "records/CaseChoice.h"
#include "records/Evaluation.h"

namespace lumerin {

enum class CompareFormat { text, json, csv, html };

struct CompareRequest {
    std::string before, after;         // two projects or two folders
    std::vector<const Table*> tables;  // empty: the usual ones
    CaseChoice cases;                  // of each run, by its own numbers
    Limits limits;                     // capacities in units of the later run
    Tolerances tolerances;             // in the units of the comparison
    std::optional<UnitSystem> units;   // none: those of the later run
    CompareFormat format = CompareFormat::text;
    std::optional<std::size_t> top;  // rows of each list; 0: all; none: as the form usually has
    std::string output = "-";        // a file, or standard output
    bool colour = false;
};

// Compares each pair. A pair that fails in any way does not stop the others.
ExitStatus RunCompare(const CompareRequest& request, std::ostream& out, std::ostream& err);

ProgramCommand AddCompareCommand(CommandParser& program);

}  // namespace lumerin
