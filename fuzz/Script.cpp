// SPDX-License-Identifier: MIT
// Random scripts on the dialogs of a whole project.

#include <algorithm>
#include <random>

#include "fuzz/Playground.h"
#include "script/Script.h"
#include "session/ReportControls.h"

using namespace lumerin;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

constexpr int kFirstControl = IDC_FULL_REPORT, kLastControl = IDC_CASES_NONE;
constexpr std::size_t kLongestScript = 4000;

std::string Number(std::minstd_rand& random) {
    static constexpr const char* kNumbers[] = {
        "0", "1", "2", "3", "-1", "4", "2147483647", "-2147483648", "99999999999", "", "a", "1.5", " 2"};
    return kNumbers[random() % std::size(kNumbers)];
}

int Control(std::minstd_rand& random) {
    if (random() % 8 == 0) return static_cast<int>(random() % 3);
    return kFirstControl + static_cast<int>(random() % (kLastControl - kFirstControl + 1));
}

std::string Whole(std::minstd_rand& random) {
    return std::to_string(static_cast<int>(random() % 8) - 1);
}

std::string Mouse(std::minstd_rand& random) {
    static constexpr const char* kDeeds[] = {"move",   "press",        "press Shift", "click", "click Ctrl",
                                             "double", "shaky-double", "release",     "right"};
    static constexpr const char* kPlaces[] = {"beside", "frame", "above", "below", "left", "right", "away"};
    static constexpr const char* kOthers[] = {"wheel -2",     "wheel 1",        "scroll last",
                                              "scroll first", "scroll page-up", "scroll down 3",
                                              "lose",         "cancel"};
    if (random() % 4 == 0) return std::string("mouse ") + kOthers[random() % std::size(kOthers)] + "\n";
    const std::string deed = std::string("mouse ") + kDeeds[random() % std::size(kDeeds)] + " ";
    if (random() % 4 == 0) return deed + kPlaces[random() % std::size(kPlaces)] + "\n";
    return deed + Whole(random) + " " + Whole(random) + "\n";
}

std::string Line(std::minstd_rand& random) {
    const std::string control = std::to_string(Control(random));
    switch (random() % 18) {
        case 0:
            return "text " + control + " " + Number(random) + "\n";
        case 1:
            return "text 1025 " + Number(random) + "\n";
        case 2:
            return "focus " + control + "\n";
        case 3:
            return "select " + std::string(random() % 2 == 0 ? "1027 " : "1035 ") + Whole(random) + "\n";
        case 4:
            return "spin 1026 " + std::string(random() % 2 == 0 ? "up\n" : "down\n");
        case 5:
            return "cell " + Whole(random) + " " + Whole(random) + " " + Number(random) + "\n";
        case 6:
            return "graph-click " + std::to_string(static_cast<int>(random() % 200) - 50) + "\n";
        case 7:
            return random() % 2 == 0 ? "answer yes\n" : "answer no\n";
        case 8:
            return "dump\n";
        case 9:
            return random() % 4 == 0   ? "key Esc\n"
                   : random() % 2 == 0 ? "key Return\n"
                                       : "key F1 " + control + "\n";
        case 10:
            return random() % 4 == 0 ? "again\n" : "click 1038\nclick 1039\n";
        case 11:
            return "click 1022\n";
        case 12:
        case 13:
            return Mouse(random);
        default:
            return "click " + control + "\n";
    }
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
    std::minstd_rand random(seed);
    std::string script(Text(data, size));
    if (random() % 10 == 0) return LLVMFuzzerMutate(data, size, maxSize);
    std::size_t at = script.empty() ? 0 : script.find('\n', random() % script.size());
    at = at == std::string::npos ? script.size() : std::min(at + 1, script.size());
    if (random() % 4 == 0) {
        script.erase(at, script.find('\n', at) - at);
    } else {
        for (auto lines = 1 + random() % 4; lines > 0; --lines) script.insert(at, Line(random));
    }
    script.resize(std::min(script.size(), std::min(maxSize, kLongestScript)));
    std::copy(script.begin(), script.end(), data);
    return script.size();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Archive sample = SampleArchive("pier");
    static const bool written = (TheFolder().WriteArchive(sample), true);
    if (!written || size > kLongestScript) return -1;
    try {
        TheFolder().Play(std::string(Text(data, size)));
    } catch (const ScriptError&) {
        return -1;
    }
    return 0;
}
