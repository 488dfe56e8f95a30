// SPDX-License-Identifier: MIT
#include "records/FindingAdvice.h"

#include <algorithm>
#include <array>

namespace lumerin {

namespace {

struct Advice {
    std::string_view code, words;
};
constexpr std::array<Advice, 13> kAdvices{{
    {"missing-records",
     "The force file is cut short. Tables show the forces of earlier records. Run the analysis again."},
    {"not-finite",
     "A force is infinite or not a number, in any case, also one that was not chosen. Look for the cause in "
     "the "
     "analysis."},
    {"replaced-ratios",
     "A D/C ratio is not a finite number; tables show 0 for it. Look at the capacities of that member."},
    {"no-limit-states",
     "The project has combinations, but its .LIM is missing: all cases count as one class."},
    {"case-without-limit-state", "Cases that no row of the .LIM names; they count for the first class."},
    {"unknown-limit-state", "Limit states that the design code does not have."},
    {"unconverged-cases", "Fewer cases converged than were analysed. The others are in no table."},
    {"all-ratios-zero",
     "No member has a ratio: the analysis had no capacities, and the verdict says nothing."},
    {"no-width", "A support of the cap has no width, so its faces are at its centreline."},
    {"incomplete-trials", "Trials of the embedment study did not run to their end."},
    {"no-titles", "The file of the combinations' titles is missing."},
    {"no-input", "The results are there, the input file is not."},
    {"old-results", "The input file was changed more than two minutes after the results were written."},
}};

}  // namespace

std::string_view AdviceOn(std::string_view code) {
    const auto found = std::ranges::find(kAdvices, code, &Advice::code);
    return found == kAdvices.end() ? std::string_view() : found->words;
}

}  // namespace lumerin
