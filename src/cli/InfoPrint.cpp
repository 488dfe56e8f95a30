// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>
#include <utility>

#include "cli/InfoReport.h"
#include "cli/JsonRecord.h"
#include "cli/TextTable.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

using Align = TextTable::Align;
using Json = nlohmann::ordered_json;

constexpr std::string_view kIndent = "  ";

std::string CasesText(const ProjectInfo& info) {
    std::string text = std::to_string(info.converged) + " " + info.kindOfCases;
    if (info.converged < info.analysed) {
        text += " of " + std::to_string(info.analysed) + " (the others did not converge)";
    }
    std::string classes;
    for (const ClassCount& count : info.classes) {
        if (count.name.empty()) continue;
        classes += (classes.empty() ? ": " : ", ") + std::to_string(count.cases) + " " + count.name;
    }
    return text + classes;
}

void PrintSubstructures(const ProjectInfo& info, std::ostream& out) {
    TextTable table({{"substructure", Align::right},
                     {"type", Align::left},
                     {"piles", Align::right},
                     {"columns", Align::right},
                     {"spans", Align::right},
                     {"cantilevers", Align::left},
                     {"extra members", Align::right},
                     {"bearings", Align::right},
                     {"elements", Align::right},
                     {"nodes", Align::right},
                     {"force file", Align::left},
                     {"bytes", Align::right}});
    int number = 0;
    for (const SubstructureInfo& sub : info.substructures) {
        std::string elements = std::to_string(sub.elements);
        if (sub.masked > 0) elements += " (" + std::to_string(sub.masked) + " masked)";
        table.Add({std::to_string(++number), sub.type, std::to_string(sub.piles), std::to_string(sub.columns),
                   std::to_string(sub.spans), sub.cantilevers ? "yes" : "no",
                   std::to_string(sub.extraMembers), std::to_string(sub.bearings), elements,
                   std::to_string(sub.nodes), sub.forceFile, std::to_string(sub.bytes)});
    }
    out << '\n';
    table.Print(out, kIndent);
}

void PrintTables(const ProjectInfo& info, std::ostream& out) {
    TextTable table({{"table", Align::left}, {"applies", Align::left}});
    for (const TableInfo& entry : info.tables) {
        table.Add({entry.name, entry.reason.empty() ? "yes" : "no: " + entry.reason});
    }
    out << '\n';
    table.Print(out, kIndent);
}

void PrintCases(const ProjectInfo& info, std::ostream& out) {
    if (info.cases.empty()) return;
    TextTable table({{"case", Align::right},
                     {"limit state", Align::left},
                     {"class", Align::left},
                     {"title", Align::left}});
    for (const CaseInfo& loadCase : info.cases) {
        table.Add({std::to_string(loadCase.number), loadCase.limitState, loadCase.className, loadCase.title});
    }
    out << '\n';
    table.Print(out, kIndent);
}

Json TextOrNull(const std::string& text) {
    return text.empty() ? Json() : Json(text);
}

Json SubstructureJson(const SubstructureInfo& sub) {
    return {{"type", sub.type},
            {"piles", sub.piles},
            {"columns", sub.columns},
            {"spans", sub.spans},
            {"cantilevers", sub.cantilevers},
            {"extra_members", sub.extraMembers},
            {"bearings", sub.bearings},
            {"elements", sub.elements},
            {"masked_elements", sub.masked},
            {"nodes", sub.nodes},
            {"force_file", sub.forceFile},
            {"bytes", sub.bytes}};
}

void AddLists(const ProjectInfo& info, Json& json) {
    json["classes"] = Json::array();
    for (const ClassCount& count : info.classes) {
        json["classes"].push_back({{"class", TextOrNull(count.name)}, {"cases", count.cases}});
    }
    json["substructures"] = Json::array();
    for (const SubstructureInfo& sub : info.substructures) {
        json["substructures"].push_back(SubstructureJson(sub));
    }
    json["tables"] = Json::array();
    for (const TableInfo& table : info.tables) {
        json["tables"].push_back(
            {{"table", table.name}, {"applies", table.reason.empty()}, {"reason", TextOrNull(table.reason)}});
    }
    if (info.cases.empty()) return;
    json["case_list"] = Json::array();
    for (const CaseInfo& loadCase : info.cases) {
        json["case_list"].push_back({{"case", loadCase.number},
                                     {"limit_state", TextOrNull(loadCase.limitState)},
                                     {"class", TextOrNull(loadCase.className)},
                                     {"title", TextOrNull(loadCase.title)}});
    }
}

}  // namespace

void PrintInfo(const ProjectInfo& info, std::ostream& out) {
    out << info.name.name << ".in";
    if (!info.fault.empty()) {
        out << "  " << info.fault << '\n';
        return;
    }
    out << "  " << WithoutControls(info.title) << '\n';
    TextTable lines({{"", Align::left}, {"", Align::left}});
    lines.Add({"design code", info.code.empty() ? "none" : info.code});
    lines.Add({"units", info.units == "us" ? "us (kips, ft)" : "si (kN, m)"});
    lines.Add({"cases", CasesText(info)});
    lines.Add({"embedment study", info.hasStudy ? std::to_string(info.trials) + " trials" : "none"});
    lines.Print(out, kIndent);
    PrintSubstructures(info, out);
    PrintTables(info, out);
    PrintCases(info, out);
    out << '\n';
    for (const Finding& finding : info.findings) out << kIndent << LineOf(finding) << '\n';
    if (info.findings.empty()) out << kIndent << "no findings\n";
    if (!info.hasReadForces) out << kIndent << "the forces were not read; --findings looks at them too\n";
}

void PrintInfoJson(const ProjectInfo& info, std::ostream& out) {
    Json json{{"project", info.name.name}, {"status", static_cast<int>(info.status)}};
    if (!info.fault.empty()) {
        json["error"] = info.fault;
    } else {
        json["title"] = TextOrNull(info.title);
        json["code"] = TextOrNull(info.code);
        json["units"] = info.units;
        json["kind_of_cases"] = info.kindOfCases;
        json["cases"] = info.analysed;
        json["converged"] = info.converged;
        AddLists(info, json);
        json["study_trials"] = info.hasStudy ? Json(info.trials) : Json();
        json["forces_read"] = info.hasReadForces;
    }
    json["findings"] = FindingsJson(info.findings);
    out << RecordLine(std::move(json));
}

}  // namespace lumerin
