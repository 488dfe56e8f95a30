// SPDX-License-Identifier: MIT
#include "samples/TextFiles.h"

#include <string>

#include "samples/LoadCases.h"
#include "samples/TextLines.h"

namespace lumerin {

namespace samples {
namespace {

std::string Key(std::string_view key, int value) {
    return std::string(key) + "= " + std::to_string(value);
}
std::string Key(std::string_view key, double value) {
    return std::string(key) + "= " + NumberText(value);
}

// Readers find the study's section from the ninth line after "PROBLEM" on; it is that line.
void WriteInput(const std::filesystem::path& base, const Project& project) {
    LineFile file(WithSuffix(base, ".in"));
    file.Line("HEADER");
    file.Line(project.title);
    file.Line();
    file.Line("PROBLEM");
    file.Line(Key("L", project.cases));
    file.Line(Key("P", static_cast<int>(project.substructures.size())));
    file.Line(Key("U", static_cast<int>(project.substructures.front().plan.units)));
    file.Line(Key("A", static_cast<int>(project.mode)));
    file.Line("D= 0");
    file.Line("E= 0.001");
    file.Line("I= 50");
    file.Line("S= 0");
    file.Line("MPTE");
    file.Line(Key("M", project.study.lengths.empty() ? 0 : 1));
    file.Line(":");
    file.Line();
    for (std::size_t k = 0; k < project.substructures.size(); ++k) {
        const auto& sub = project.substructures[k];
        file.Line("PIER");
        file.Line(Key("P", static_cast<int>(k) + 1) + " " + Key("T", static_cast<int>(sub.plan.type)) + " " +
                  Key("X", sub.plan.locationX));
        file.Line(Key("C", sub.columns) + " " + Key("N", sub.PileCount()));
        file.Line(":");
        file.Line();
    }
    file.Line("END");
    file.Close();
}

void WriteCrossSections(LineFile& file, const std::vector<CrossSection>& lines) {
    for (const auto& line : lines) {
        file.Line("  " + Key("S", line.shape) + "  " + Key("D", line.depth) + "  " + Key("W", line.width) +
                  "  " + Key("Z", line.z) + "  " + Key("G", line.g));
    }
}

int LineCount(const std::vector<CrossSection>& lines) {
    return lines.size() > 1 ? static_cast<int>(lines.size()) : 0;
}

// Every substructure keeps a column line, even where it has no columns.
void WriteSectionBlock(LineFile& file, const Project& project) {
    file.Line("PIERXSEC");
    file.Line(Key("P", static_cast<int>(project.substructures.size())) + " L= 0");
    for (std::size_t k = 0; k < project.substructures.size(); ++k) {
        const auto& plan = project.substructures[k].plan;
        file.Line("Cross sections of substructure " + std::to_string(k + 1));
        const auto lines =
            plan.columnLines.size() + plan.spanLines.size() + plan.leftLines.size() + plan.rightLines.size();
        file.Line(Key("N", static_cast<int>(lines)));
        file.Line(Key("C", LineCount(plan.columnLines)) + " " + Key("B", plan.spanLines.size() > 1 ? 1 : 0) +
                  " " + Key("R", plan.rightLines.empty() ? 0 : 1));
        WriteCrossSections(file, plan.columnLines);
        WriteCrossSections(file, plan.spanLines);
        WriteCrossSections(file, plan.leftLines);
        WriteCrossSections(file, plan.rightLines);
    }
    file.Line(":");
    file.Line();
}

void WriteProjectText(LineFile& file, std::string_view key, std::string_view text) {
    file.Line(Key("L", static_cast<int>(text.size())) + " " + std::string(key) + "= " + std::string(text));
}

void WriteKeyedFile(const std::filesystem::path& base, const Project& project) {
    LineFile file(WithSuffix(base, ".MIS"));
    file.Line("GENERAL");
    file.Line("A= 1");
    file.Line(":");
    file.Line();
    WriteSectionBlock(file, project);
    file.Line("PROJECTDATA");
    WriteProjectText(file, "N", project.title);
    WriteProjectText(file, "D", "Substructure design");
    WriteProjectText(file, "T", "Sample engineer");
    WriteProjectText(file, "C", "Sample project, preset " + project.preset);
    file.Line(":");
    file.Line();
    file.Line("PIERDATA");
    file.Line(Key("N", static_cast<int>(project.substructures.size())));
    for (std::size_t k = 0; k < project.substructures.size(); ++k) {
        file.Line(Key("P", static_cast<int>(k) + 1) + " " +
                  Key("X", project.substructures[k].plan.locationX));
    }
    file.Line(":");
    file.Line();
    file.Close();
}

// Between two combinations the host writes from none to two lines about their factors.
void WriteCombinations(const std::filesystem::path& base, const std::vector<LimitRow>& rows) {
    LineFile file(WithSuffix(base, ".CMB"));
    for (const auto& row : rows) {
        for (int i = 0; i < row.count; ++i) {
            const int number = row.firstNumber + i;
            file.Line("[Comb. " + std::to_string(number) + "]");
            file.Line(std::string(row.state.title) + ", load position " + std::to_string(i + 1));
            if (number % 3 != 0) file.Line("dead load, live load, wind or shaking");
            if (number % 3 == 2) file.Line();
        }
    }
    file.Close();
}

void WriteLimitStates(const std::filesystem::path& base, const std::vector<LimitRow>& rows) {
    LineFile file(WithSuffix(base, ".LIM"));
    file.Line("LIMIT STATES");
    file.Line("A= 1 F= 0");
    file.Line("limit states of the combinations");
    file.Line("code, first combination, combinations");
    for (const auto& row : rows) {
        file.Line(std::to_string(row.state.code) + " " + std::to_string(row.firstNumber) + " " +
                  std::to_string(row.count));
    }
    file.Line(":");
    file.Close();
}

}  // namespace

void WriteTextFiles(const std::filesystem::path& base, const Project& project) {
    WriteInput(base, project);
    WriteKeyedFile(base, project);
    if (project.family == CodeFamily::None) return;
    const auto rows = DistributeLimitStates(project.family, project.cases);
    WriteCombinations(base, rows);
    WriteLimitStates(base, rows);
}

}  // namespace samples

}  // namespace lumerin
