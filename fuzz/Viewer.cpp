// SPDX-License-Identifier: MIT
// The text viewer's settings: five numbers of four bytes each, then header and trailer separated by a zero
// byte. They determine the pages of the text tables.

#include <array>
#include <cstring>

#include "framework/headless/Headless.h"
#include "fuzz/Playground.h"
#include "session/OutputFiles.h"

using namespace lumerin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Archive sample = SampleArchive("pier");
    static const bool written = (TheFolder().WriteArchive(sample), true);
    static constexpr const char* kNumbers[] = {"iMarginLeft", "iMarginRight", "iMarginTop", "iMarginBottom",
                                               "iPointSize"};
    if (!written) return -1;
    headless::Settings& state = headless::State();
    state.userNumbers[kTextViewerKey].clear();
    std::string_view rest = Text(data, size);
    for (const char* name : kNumbers) {
        int value = 0;
        if (rest.size() < sizeof(value)) break;
        std::memcpy(&value, rest.data(), sizeof(value));
        rest.remove_prefix(sizeof(value));
        state.userNumbers[kTextViewerKey][name] = value;
    }
    const std::size_t end = rest.find('\0');
    state.userTexts[kTextViewerKey]["szHeader"] = std::string(rest.substr(0, end));
    if (end != std::string_view::npos)
        state.userTexts[kTextViewerKey]["szTrailer"] = std::string(rest.substr(end + 1));
    TheFolder().Play("click 1004\nclick 1007\nclick 1010\nclick 1001\nclick 1002\n");
    return 0;
}
