// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "compare/CaseMatch.h"
#include "compare/Tolerance.h"
#include "records/Table.h"
#include "records/Units.h"
#include "records/Verdict.h"

namespace lumerin {

// What changed from one run of a project to the next.

// The answer of a run for the whole project.
struct RunVerdict {
    enum class Answer { passes, fails, none };  // none: no element has a ratio in the chosen cases
    Answer answer = Answer::none;
    double ratio = 0.0;  // the greatest; of `none` 0
    std::string place;   // "pile 2 head (pile, substructure 1)"
    CaseName loadCase;
};

// A verdict of a family of members, or of the whole project, that is another one now.
struct Flip {
    int substructure = 0;  // 0: the project
    std::string label;     // "pile"
    bool before = false, after = false;
};

enum class Presence { changed, added, removed };
std::string_view PresenceName(Presence presence);  // "changed", "new", "gone"

// A case, a substructure, a member or a part of the geometry.
struct StructureChange {
    std::string_view kind;  // "case", "substructure", "members", "supports", ...
    Presence presence = Presence::changed;
    int substructure = 0;       // from 1; 0: the whole project
    std::string what;           // "case 5 SERVICE-I, Service I, load position 1", "node 12"
    std::string before, after;  // of something that changed, in words with units
    // Of the same kind, presence and substructure; `what` is the first of them.
    long long count = 1;
};

// A row of results that one of the runs does not have.
struct RowChange {
    const Table* table = nullptr;
    Presence presence = Presence::added;
    int substructure = 0;
    std::string label;
    CaseName loadCase;  // of a row of one case; else none
};

struct ValueChange {
    std::string_view column;
    Quantity quantity = Quantity::none;
    std::optional<double> before, after;  // empty: no value there
    // Without one of the values it exceeds, difference and relative change are no numbers, and `times` is
    // that from 0.
    Change change;
};

// Values of a row that one case governs.
struct ResultChange {
    const Table* table = nullptr;
    int substructure = 0;                   // 0: the whole project
    std::string label;                      // what the row is: "pile section 1, strength, Max f22"
    long long rowBefore = 0, rowAfter = 0;  // its number in the table of each run, from 1
    // The governing cases, or the case of the row in each run; number 0: the values have none.
    CaseName caseBefore, caseAfter;
    std::string placeBefore, placeAfter;
    bool otherCase = false;   // another case governs
    bool otherPlace = false;  // at another place
    // Those over the tolerance, the worst first; before them the one that the row is the extreme of. Of a
    // result that no value of is over it, that one alone.
    std::vector<ValueChange> values;

    bool Exceeds() const;
    // Whether the value that the row is the extreme of is over the tolerance, not only those that act with
    // it.
    bool leads = false;
};

struct CompareChoice {
    std::vector<const Table*> tables;  // of ComparableTables
    Tolerances tolerances;             // in `units`
    UnitSystem units = UnitSystem::us;
};

// Everything that differs. Grows with what differs, not with what was compared.
struct Comparison {
    UnitSystem unitsBefore = UnitSystem::us, unitsAfter = UnitSystem::us;  // the projects' own
    UnitSystem units = UnitSystem::us;                                     // of all values below
    RunVerdict before, after;
    std::vector<Flip> flips;
    std::vector<StructureChange> structure;
    std::vector<RowChange> rows;
    std::vector<ResultChange> results;    // over the tolerance, the worst first
    std::vector<ResultChange> governing;  // another case or place governs, and no value is over the tolerance
    int renumbered = 0;                   // cases of both runs with another number
    long long compared = 0;               // values that both runs have
    // Whether anything but governing cases and numbers differs.
    bool Differs() const;
};

// What an evaluation must have for a comparison of these tables.
TableNeeds NeedsOfComparison(const CompareChoice& choice);

// The evaluations have the needs of the comparison and the same limits. Beyond the result the memory is that
// of the rows of one table of the earlier run. Throws CFileException when a file cannot be read.
Comparison Compare(const Evaluation& before, const Evaluation& after, const CompareChoice& choice);

}  // namespace lumerin
