// SPDX-License-Identifier: MIT
#include "cli/StudyArguments.h"

#include <stdexcept>

#include "cli/Options.h"
#include "cli/Suggest.h"
#include "text/Lists.h"

namespace lumerin {

int ReadEnvelope(std::string_view text) {
    const std::string word = LowerCase(text);
    if (word == "max") return 0;
    if (word == "min") return 1;
    throw std::invalid_argument("\"" + std::string(text) + "\" is no envelope" +
                                Suggestion(text, {"max", "min"}) + " (max, min)");
}

void AddStudyOptions(CommandParser& command, StudyView& view) {
    command
        .OnInteger(
            "--case",
            [&view](int loadCase) {
                view.loadCase = loadCase;
                view.hasCase = true;
            },
            "Number of the load case (default 1)")
        .Takes("N");
    command
        .OnText(
            "--envelope", [&view](const std::string& word) { view.envelope = ReadEnvelope(word); },
            "max or min over all cases; with --case beside that case")
        .Takes("WORD");
    command
        .OnText(
            "--quantity", [&view](const std::string& word) { view.quantity = ReadQuantity(word); },
            "lateral displacement (default), lateral-x, lateral-y, max-axial or min-axial force")
        .Takes("WORD");
}

}  // namespace lumerin
