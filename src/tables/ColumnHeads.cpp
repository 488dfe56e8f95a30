// SPDX-License-Identifier: MIT
#include <array>
#include <utility>

#include "framework/Index.h"
#include "tables/Catalogue.h"
#include "tables/TableLayout.h"
#include "tables/Words.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr std::size_t kLimitStateWidth = 15;

// The head of table 0 names the step and the limit state twice, and AREMA's second word is a blank narrower.
struct PileHeadLines {
    const char* upper;
    const char* lowerUs;
    const char* lowerSi;
};
constexpr PileHeadLines kTimeStepHead{
    "   SUBSTRUCTURE   PILE  TIME  MAX TENSION      D/C  TIME     MAX COMP      D/C",
    "                        STEP       (kips)  (ratio)  STEP       (kips)  (ratio)",
    "                        STEP         (kN)  (ratio)  STEP         (kN)  (ratio)"};
constexpr PileHeadLines kLoadCaseHead{
    "   SUBSTRUCTURE   PILE  LOAD  MAX TENSION      D/C  LOAD     MAX COMP      D/C",
    "                        CASE       (kips)  (ratio)  CASE       (kips)  (ratio)",
    "                        CASE         (kN)  (ratio)  CASE         (kN)  (ratio)"};
constexpr const char* kCombLowerUs =
    "                        COMB                      (kips)  (ratio)    COMB                      (kips)  "
    "(ratio)";
constexpr const char* kCombLowerSi =
    "                        COMB                        (kN)  (ratio)    COMB                        (kN)  "
    "(ratio)";
constexpr std::array<const char*, 3> kCombUpper{
    "   SUBSTRUCTURE   PILE  LOAD    AASHTO-LRFD  MAX TENSION      D/C    LOAD    AASHTO-LRFD     MAX COMP   "
    "   D/C",
    "   SUBSTRUCTURE   PILE  LOAD     AASHTO-LFD  MAX TENSION      D/C    LOAD     AASHTO-LFD     MAX COMP   "
    "   D/C",
    "   SUBSTRUCTURE   PILE  LOAD          AREMA  MAX TENSION      D/C    LOAD         AREMA     MAX COMP    "
    "  D/C"};

bool IsNamedFamily(CodeFamily family) {
    return family >= kFamilyLrfd && family <= kFamilyArema;
}

void AddPileHeadLines(ColumnHead& head, const CPier& first, int mode, bool us) {
    if (first.m_bCombinations) {
        // A family without a name has the lower line alone.
        if (IsNamedFamily(first.m_nCodeFamily)) {
            head.lines.emplace_back(kCombUpper[Index(first.m_nCodeFamily)]);
        }
        head.lines.emplace_back(us ? kCombLowerUs : kCombLowerSi);
        return;
    }
    const StepLines words = StepLinesOf({}, false, mode);
    if (words.upper == nullptr) return;
    const PileHeadLines& lines = mode == 1 ? kTimeStepHead : kLoadCaseHead;
    head.lines.emplace_back(lines.upper);
    head.lines.emplace_back(us ? lines.lowerUs : lines.lowerSi);
}

std::string LimitStateHeading(const HeadTexts& texts, CodeFamily family) {
    return PadLeft(FamilyName(family), family == kFamilyArema ? texts.aremaWidth : kLimitStateWidth);
}

void AddSteppedLines(ColumnHead& head, const HeadTexts& texts, const CPier& first, int mode, bool us,
                     bool cap) {
    const bool combinations = first.m_bCombinations;
    const StepLines words = StepLinesOf(texts, combinations, mode);
    if (words.upper == nullptr) {
        // The cap tables end their head with the line feed of the block, also when the head is empty.
        if (cap) head.lines.emplace_back();
        return;
    }
    std::string upper = first.m_nStructureType == kTypeNoPileTables ? texts.openingType8 : texts.opening;
    upper += words.upper;
    std::string lower = texts.lowerOpening;
    lower += words.lower;
    if (combinations) lower.append(kLimitStateWidth, ' ');
    lower += us ? texts.unitsUs : texts.unitsSi;
    if (!combinations || IsNamedFamily(first.m_nCodeFamily)) {
        if (combinations) upper += LimitStateHeading(texts, first.m_nCodeFamily);
        head.lines.push_back(upper + texts.columns);
    } else if (cap) {
        head.lines.emplace_back();
    }
    head.lines.push_back(std::move(lower));
}

}  // namespace

StepLines StepLinesOf(const HeadTexts& head, bool combinations, int mode) {
    if (combinations) return {"LOAD", "COMB"};
    if (mode == 1 || (mode == 2 && head.mode2IsTimeStep)) return {"TIME", "STEP"};
    if (mode <= 0 || mode == 2) return {"LOAD", "CASE"};
    return {};
}

ColumnHead BuildColumnHead(const CDataSet& data, const TableLayout& layout) {
    ColumnHead head;
    head.linesAfter = layout.head.linesAfter;
    head.linesAfterFirst = layout.head.linesAfterFirst;
    // Two lines are counted even where a head has fewer.
    head.counted = 2 + head.linesAfter + head.linesAfterFirst;
    if (data.IsPierless()) return head;
    const CPier& first = data.FirstPier();
    const int mode = data.m_nAnalysisMode;
    const bool us = data.m_nUnits == 0;
    if (layout.table == kTableMaxAxial) {
        AddPileHeadLines(head, first, mode, us);
        return head;
    }
    const bool cap = layout.table == kTableCapShear || layout.table == kTableCapMoment;
    AddSteppedLines(head, layout.head, first, mode, us, cap);
    // A section table with an empty head has no empty line after it either.
    if (head.lines.empty()) head.linesAfter = 0;
    return head;
}

const std::string& LimitStateOf(const CDataSet& data, int loadCase) {
    static const std::string kNone = "none";
    if (data.IsPierless() || loadCase < 0) return kNone;
    const std::vector<CLoadCase>& cases = data.FirstPier().m_LoadCases;
    const auto index = Index(loadCase);
    return index < cases.size() ? cases[index].m_sLimitState : kNone;
}

}  // namespace lumerin
