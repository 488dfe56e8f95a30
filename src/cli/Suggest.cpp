// SPDX-License-Identifier: MIT
#include "cli/Suggest.h"

#include <algorithm>

#include "text/Lists.h"

namespace lumerin {

namespace {

// Insertions, deletions, replacements and swaps of neighbours between two words.
std::size_t Distance(std::string_view a, std::string_view b) {
    std::vector<std::vector<std::size_t>> steps(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) steps[i][0] = i;
    for (std::size_t j = 0; j <= b.size(); ++j) steps[0][j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = steps[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            steps[i][j] = std::min({steps[i - 1][j] + 1, steps[i][j - 1] + 1, replaced});
            const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (swapped) steps[i][j] = std::min(steps[i][j], steps[i - 2][j - 2] + 1);
        }
    }
    return steps[a.size()][b.size()];
}

}  // namespace

std::string NearestWord(std::string_view given, std::span<const std::string> words) {
    constexpr std::size_t kLettersPerFault = 3, kLongest = 64;
    if (given.size() > kLongest) return {};
    const std::string lower = LowerCase(given);
    std::string nearest;
    std::size_t least = (given.size() + kLettersPerFault - 1) / kLettersPerFault + 1;
    for (const std::string& word : words) {
        const std::size_t distance = Distance(lower, LowerCase(word));
        if (distance >= least) continue;
        least = distance;
        nearest = word;
    }
    if (!nearest.empty() || lower.size() < kLettersPerFault) return nearest;
    // A word that was not typed to its end.
    const auto begun = std::find_if(words.begin(), words.end(),
                                    [&](const std::string& word) { return word.starts_with(lower); });
    return begun == words.end() ? std::string() : *begun;
}

std::string Suggestion(std::string_view given, const std::vector<std::string>& words, std::string_view before,
                       std::string_view after) {
    const std::string nearest = NearestWord(given, words);
    if (nearest.empty()) return {};
    return std::string("; do you mean ").append(before).append(nearest).append(after).append("?");
}

std::string UnknownWord(std::string_view given, std::string_view kind,
                        const std::vector<std::string>& words) {
    std::string all;
    for (const std::string& word : words) all += (all.empty() ? "" : ", ") + word;
    return "\"" + std::string(given) + "\" is no " + std::string(kind) + Suggestion(given, words) + " (" +
           all + ")";
}

}  // namespace lumerin
