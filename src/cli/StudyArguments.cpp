// SPDX-License-Identifier: MIT
#include "cli/StudyArguments.h"

#include <CLI/CLI.hpp>
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

void AddStudyOptions(CLI::App& command, StudyView& view) {
    command
        .add_option_function<int>(
            "--case",
            [&view](int loadCase) {
                view.loadCase = loadCase;
                view.hasCase = true;
            },
            "Number of the load case (default 1)")
        ->type_name("N");
    command
        .add_option_function<std::string>(
            "--envelope", [&view](const std::string& word) { view.envelope = ReadEnvelope(word); },
            "max or min over all cases; with --case beside that case")
        ->type_name("WORD");
    command
        .add_option_function<std::string>(
            "--quantity", [&view](const std::string& word) { view.quantity = ReadQuantity(word); },
            "lateral displacement (default), lateral-x, lateral-y, max-axial or min-axial force")
        ->type_name("WORD");
}

}  // namespace lumerin
