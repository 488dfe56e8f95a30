// SPDX-License-Identifier: MIT
#include "model/LimitStates.h"

#include <cstddef>

#include "framework/Index.h"

namespace lumerin {

const std::array<std::array<const char*, 3>, 18> g_LimitStateNames = {{
    {"STRENGTH-I", "GROUP-I", "LFD-GROUP-I"},
    {"STRENGTH-II", "GROUP-IA", "LFD-GROUP-IA"},
    {"STRENGTH-III", "GROUP-II", "LFD-GROUP-II"},
    {"STRENGTH-IV", "GROUP-III", "LFD-GROUP-III"},
    {"STRENGTH-V", "GROUP-IV", "LFD-GROUP-IV"},
    {"EXTREME-I", "GROUP-V", "LFD-GROUP-V"},
    {"EXTREME-II", "GROUP-VI", "LFD-GROUP-VI"},
    {"SERVICE-I", "GROUP-VII", "LFD-GROUP-VII"},
    {"SERVICE-II", "GROUP-VIII", "LFD-GROUP-VIII"},
    {"SERVICE-III", "GROUP-IX", "LFD-GROUP-IX"},
    {"SERVICE-IV", "GROUP-VESSEL", "SLD-GROUP-I"},
    {"FATIGUE-I", "", "SLD-GROUP-II"},
    {"FATIGUE-II", "", "SLD-GROUP-III"},
    {"", "", "SLD-GROUP-IV"},
    {"", "", "SLD-GROUP-V"},
    {"", "", "SLD-GROUP-VI"},
    {"", "", "SLD-GROUP-VII"},
    {"", "", "SLD-GROUP-VIII"},
}};

namespace {

// The first limit state code of each family; the names are in the three columns of g_LimitStateNames.
struct CodeBlock {
    int first, count;
    std::size_t column;
};
constexpr CodeBlock kCodeBlocks[] = {{101, 13, 0}, {201, 11, 1}, {301, 18, 2}};
// The host's list gives this code the name of code 307; reports use the same name.
constexpr int kMisnamedCode = 305, kNamedAsCode = 307;

struct ClassRange {
    CodeFamily family;
    int first, last;
    LimitClass limitClass;
};
constexpr ClassRange kClassRanges[] = {
    {kFamilyLrfd, 101, 105, kStrength},  {kFamilyLrfd, 106, 107, kExtreme},
    {kFamilyLrfd, 108, 111, kService},   {kFamilyLrfd, 112, 113, kFatigue},
    {kFamilyArema, 301, 310, kStrength}, {kFamilyArema, 311, 318, kService},
};

}  // namespace

std::string LimitStateName(int code) {
    const int named = code == kMisnamedCode ? kNamedAsCode : code;
    for (const CodeBlock& block : kCodeBlocks) {
        if (named >= block.first && named < block.first + block.count) {
            return g_LimitStateNames[Index(named - block.first)][block.column];
        }
    }
    return "ERROR 1";
}

bool FindLimitClass(CodeFamily family, int code, LimitClass& limitClass) {
    for (const ClassRange& range : kClassRanges) {
        if (range.family != family || code < range.first || code > range.last) continue;
        limitClass = range.limitClass;
        return true;
    }
    return false;
}

}  // namespace lumerin
