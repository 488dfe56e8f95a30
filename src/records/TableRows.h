// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "records/Evaluation.h"
#include "records/Table.h"

namespace lumerin {

// The tables by theme, each list in its own file.
extern const std::span<const Table> kModelTables;    // cases, elements
extern const std::span<const Table> kSectionTables;  // pile_axial, section_dc, section_forces
extern const std::span<const Table> kCapTables;      // cap_shear, cap_moment, cap_envelope
extern const std::span<const Table> kElementTables;  // pile_heads, element_dc, element_forces
extern const std::span<const Table> kStudyTables;    // embedment
extern const std::span<const Table> kVerdictTables;  // findings, verdict, projects

constexpr unsigned SearchBit(TableId table) {
    return 1U << static_cast<unsigned>(table);
}

// The classes that have rows: those with a chosen case, or one without a name where the cases have no
// classes.
std::vector<LimitClass> ClassesOf(const Evaluation& evaluation);
// The name of a class in the project's design code.
std::string_view ClassNameIn(const Evaluation& evaluation, LimitClass limitClass);
// The limit state of a case (from 0); empty where the cases are no combinations.
std::string_view LimitStateIn(const CDataSet& data, int loadCase);

inline std::string_view EndName(int end) {
    return end == kEndI ? "I" : "J";
}

}  // namespace lumerin
