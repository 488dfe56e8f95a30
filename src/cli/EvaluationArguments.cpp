// SPDX-License-Identifier: MIT
#include "cli/EvaluationArguments.h"

#include <cmath>
#include <stdexcept>
#include <string>

#include "cli/Suggest.h"
#include "text/Lists.h"

namespace lumerin {

namespace {

void RequirePositive(const std::string& option, double value) {
    if (std::isfinite(value) && value > 0.0) return;
    throw std::invalid_argument(option + " takes a number that is greater than 0");
}

void AddCapacity(CommandParser& command, const std::string& option, std::optional<double>& capacity,
                 const std::string& help) {
    command
        .OnNumber(
            option,
            [option, &capacity](double value) {
                RequirePositive(option, value);
                capacity = value;
            },
            help)
        .Takes("FORCE");
}

// As ReadClasses, with the nearest class for a wrong word.
void ReadKnownClasses(const std::string& text, CaseChoice& cases) {
    const std::vector<std::string> names = {
        "strength", "service", "extreme", "fatigue", "load factor design", "service load design"};
    for (const std::string_view part : SplitList(text)) {
        try {
            ReadClasses(part, cases);
        } catch (const std::invalid_argument& fault) {
            throw std::invalid_argument(fault.what() + Suggestion(part, names));
        }
    }
}

}  // namespace

void AddCaseOptions(CommandParser& command, CaseChoice& cases) {
    command
        .OnTexts(
            "--cases",
            [&cases](const std::vector<std::string>& texts) {
                for (const std::string& text : texts) ReadCases(text, cases);
            },
            "Consider these cases alone: numbers, ranges and patterns of limit states and titles, such as "
            "1,3,5-9 or \"STRENGTH-*\"")
        .OneValueEach()
        .Takes("LIST");
    command
        .OnTexts(
            "--class",
            [&cases](const std::vector<std::string>& texts) {
                for (const std::string& text : texts) ReadKnownClasses(text, cases);
            },
            "Consider the cases of these limit classes alone, such as strength,service")
        .OneValueEach()
        .Takes("LIST");
}

void AddLimitOptions(CommandParser& command, Limits& limits) {
    command
        .OnNumber(
            "--limit",
            [&limits](double value) {
                RequirePositive("--limit", value);
                limits.ratio = value;
            },
            "The greatest D/C ratio that passes (default 1.0)")
        .Takes("RATIO");
    AddCapacity(command, "--pile-compression", limits.pileCompression,
                "Compare pile heads with this capacity in compression, in units of the project");
    AddCapacity(command, "--pile-tension", limits.pileTension,
                "Compare pile heads with this capacity in tension, in units of the project");
}

void AddUnitsOption(CommandParser& command, std::optional<UnitSystem>& units) {
    command
        .OnText(
            "--units",
            [&units](const std::string& text) {
                units = ReadUnitSystem(LowerCase(text));
                if (!units) throw std::invalid_argument("\"" + text + "\" is no unit system (us, si)");
            },
            "us (kips, ft, in) or si (kN, m); default: those of each project")
        .Takes("SYSTEM");
}

void AddEvaluationArguments(CommandParser& command, EvaluationArguments& arguments) {
    AddCaseOptions(command, arguments.cases);
    AddLimitOptions(command, arguments.limits);
    AddUnitsOption(command, arguments.units);
}

}  // namespace lumerin
