// SPDX-License-Identifier: MIT
#include "web/ReportFront.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "framework/Index.h"
#include "records/FindingAdvice.h"
#include "records/TableRows.h"
#include "records/Verdict.h"
#include "tables/Catalogue.h"
#include "tables/Words.h"
#include "text/Format.h"
#include "text/Paths.h"
#include "text/Utf8.h"
#include "web/HtmlTable.h"

namespace lumerin {

namespace {

constexpr std::size_t kMostRatios = 10;
constexpr int kForceDecimals = 2;

std::string Spaced(const std::string& family) {
    return ReplaceAll(family, "_", " ");
}

std::string NumberText(double number) {
    std::string text;
    AppendNumber(text, number);
    return text;
}

std::string CaseWords(int loadCase, const std::string& limitState) {
    return "case " + std::to_string(loadCase) + (limitState.empty() ? "" : " " + limitState);
}

// "all 26 load combinations", "14 of 26 load cases".
std::string CasesUsed(const Evaluation& evaluation) {
    const CDataSet& data = evaluation.Data();
    const int cases = data.FirstPier().m_nLoadCases;
    const int chosen = evaluation.Selection().SelectedCount(cases);
    const std::string words = data.m_nAnalysisMode == kModeTimeSteps ? "time steps"
                              : data.HasCombinations()               ? "load combinations"
                                                                     : "load cases";
    if (chosen == cases) return (cases == 1 ? "" : "all ") + std::to_string(cases) + " " + words;
    return std::to_string(chosen) + " of " + std::to_string(cases) + " " + words;
}

std::string SubstructuresText(const CDataSet& data) {
    std::string text;
    for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
        if (!text.empty()) text += ", ";
        if (data.m_Piers.size() > 1) text += std::to_string(p + 1) + " ";
        text += StructureTypeName(data.m_Piers[p].m_nStructureType);
    }
    return text;
}

std::vector<HtmlColumn> RatioColumns(UnitSystem units) {
    const std::string force = "(" + std::string(UnitName(Quantity::force, units)) + ")";
    const std::string moment = "(" + std::string(UnitName(Quantity::moment, units)) + ")";
    return {{"SUB", "", true},     {"MEMBER", "", false},      {"D/C", "(ratio)", true},
            {"PLACE", "", false},  {"ELEM", "NO.", true},      {"I/J", "", false},
            {"CASE", "", true},    {"LIMIT STATE", "", false}, {"FAX", force, true},
            {"F22", force, true},  {"F33", force, true},       {"M22", moment, true},
            {"M33", moment, true}, {"TORQUE", moment, true}};
}

void AppendRatioRow(HtmlTable& table, const EndRatio& ratio, double limit) {
    std::array<std::string, 14> texts{std::to_string(ratio.substructure), Spaced(ratio.family),
                                      RatioText(ratio.ratio, limit),      ratio.place,
                                      std::to_string(ratio.element),      ratio.end == kEndI ? "I" : "J",
                                      std::to_string(ratio.loadCase),     ratio.limitState};
    for (std::size_t i = 0; i < ratio.forces.size(); ++i) {
        texts.at(8 + i) = FormatFixed(ratio.forces[i], kForceDecimals);
    }
    const bool isOver = static_cast<double>(ratio.ratio) > limit;
    table.TextRow(texts, isOver ? std::optional<std::size_t>(2) : std::nullopt);
}

void AppendCounts(const Verdict& verdict, Html& html) {
    for (const FamilyVerdict& family : verdict.families) {
        if (family.endsOver == 0) continue;
        html.Element("p", "Substructure " + std::to_string(family.worst.substructure) + ", " +
                              Spaced(family.worst.family) + ": " + std::to_string(family.endsOver) + " of " +
                              std::to_string(family.ends) + " element ends are over the limit.");
    }
}

void AppendHeads(const Verdict& verdict, UnitSystem units, Html& html) {
    if (verdict.heads.empty()) return;
    const std::string force = "(" + std::string(UnitName(Quantity::force, units)) + ")";
    const std::array<HtmlColumn, 7> columns{{{"SUB", "", true},
                                             {"PILE", "", true},
                                             {"SIGN", "", false},
                                             {"FORCE", force, true},
                                             {"CAPACITY", force, true},
                                             {"CASE", "", true},
                                             {"LIMIT STATE", "", false}}};
    HtmlTable table(html, {"capacities", "Pile heads against the capacities that were given", ""}, columns);
    for (const HeadVerdict& head : verdict.heads) {
        const std::array<std::string, 7> texts{std::to_string(head.substructure),
                                               std::to_string(head.pile),
                                               head.tension ? "tension" : "compression",
                                               FormatFixed(head.force, kForceDecimals),
                                               FormatFixed(head.capacity, kForceDecimals),
                                               std::to_string(head.loadCase),
                                               head.limitState};
        table.TextRow(texts, head.passes ? std::nullopt : std::optional<std::size_t>(3));
    }
    table.Finish();
}

void AppendAnswer(const Evaluation& evaluation, const Verdict& verdict, Html& html) {
    const FamilyVerdict* worst = verdict.Worst();
    const double limit = evaluation.Bounds().ratio;
    if (worst == nullptr) {
        html.Raw("<div class=\"verdict\">\n").Element("strong", "No verdict");
        html.Element("p", "No element has a D/C ratio in the chosen cases.");
    } else {
        const EndRatio& ratio = worst->worst;
        html.Raw(verdict.passes ? "<div class=\"verdict pass\">\n" : "<div class=\"verdict fail\">\n");
        html.Element("strong", std::string(verdict.passes ? "PASSES" : "FAILS") + ": greatest D/C " +
                                   RatioText(ratio.ratio, limit));
        html.Element("p", "At " + ratio.place + " (" + Spaced(ratio.family) + ", substructure " +
                              std::to_string(ratio.substructure) + "), " +
                              CaseWords(ratio.loadCase, ratio.limitState) + ". The limit is " +
                              NumberText(limit) + ".");
        if (!verdict.passes && ratio.ratio <= limit) {
            html.Element("p", "A pile head is over a capacity that was given.");
        }
    }
    if (HasError(evaluation.Findings())) {
        html.Element("p", "The data have errors, so this is not sound: see the findings.");
    }
    html.Raw("</div>\n");
}

}  // namespace

std::string InputFileName(const Evaluation& evaluation) {
    const std::string& name = evaluation.Opened().name.name;
    const std::size_t separator = name.find_last_of("/\\");
    return (separator == std::string::npos ? name : name.substr(separator + 1)) + ".in";
}

std::string ProjectTitle(const Evaluation& evaluation) {
    const std::string name = ToUtf8(Trim(evaluation.Data().m_sProjectN));
    return name.empty() ? InputFileName(evaluation) : name;
}

void AppendCover(const Evaluation& evaluation, const WebReportTexts& texts, Html& html) {
    const CDataSet& data = evaluation.Data();
    html.Raw("<header>\n").Element("p class=\"kicker\"", "Substructure report");
    html.Element("h1", ProjectTitle(evaluation));
    for (const std::string& text : {data.m_sProjectD, data.m_sProjectT, data.m_sProjectC}) {
        if (!Trim(text).empty()) html.Element("p", Trim(text));
    }
    html.Raw("<dl>\n");
    const auto line = [&html](const char* label, const std::string& text) {
        if (!text.empty()) html.Element("dt", label).Element("dd", text);
    };
    line("Project file", InputFileName(evaluation));
    line("Date", DateText(0, texts.now) + ", " + TimeText(0, texts.now));
    line("Made by", "lumerin " + std::string(ProgramVersion()));
    line("Host version", texts.hostVersion);
    line("Design code",
         data.HasCombinations() ? std::string(FamilyName(data.FirstPier().m_nCodeFamily)) : "");
    line("Units", evaluation.Units() == UnitSystem::us ? "US: kips, feet, inches" : "SI: kN, m");
    line("Cases", CasesUsed(evaluation));
    line(data.m_Piers.size() > 1 ? "Substructures" : "Substructure", SubstructuresText(data));
    html.Raw("</dl>\n");
    AppendAnswer(evaluation, Judge(evaluation), html);
    html.Raw("</header>\n");
}

void AppendGoverning(const Evaluation& evaluation, Html& html) {
    const Verdict verdict = Judge(evaluation);
    const double limit = evaluation.Bounds().ratio;
    html.Raw("<section id=\"governing\">\n").Element("h2", "What governs");
    if (!verdict.families.empty()) {
        const std::vector<HtmlColumn> columns = RatioColumns(evaluation.Units());
        HtmlTable families(html,
                           {"families", "The greatest ratio of each family of members",
                            "with the forces there in that case"},
                           columns);
        for (const FamilyVerdict& family : verdict.families) AppendRatioRow(families, family.worst, limit);
        families.Finish();
        AppendCounts(verdict, html);
        HtmlTable greatest(html, {"greatest", "The greatest ratios of element ends", ""}, columns);
        for (const EndRatio& ratio : GreatestRatios(evaluation, kMostRatios)) {
            AppendRatioRow(greatest, ratio, limit);
        }
        greatest.Finish();
    }
    if (verdict.families.empty()) html.Element("p", "No element has a D/C ratio in the chosen cases.");
    AppendHeads(verdict, evaluation.Units(), html);
    html.Raw("</section>\n");
}

void AppendFindings(const Evaluation& evaluation, Html& html) {
    html.Raw("<section id=\"findings\">\n").Element("h2", "Findings about the data");
    if (evaluation.Findings().empty()) {
        html.Element("p", "None: the files are complete and every force is a number.");
    } else {
        html.Raw("<ul class=\"findings\">\n");
        for (const Finding& finding : evaluation.Findings()) {
            html.Raw("<li class=\"").Text(SeverityName(finding.severity)).Raw("\">");
            html.Raw("<b>").Text(SeverityName(finding.severity)).Raw("</b>");
            if (!finding.file.empty()) html.Raw("<code>").Text(finding.file).Raw("</code>: ");
            html.Text(finding.text);
            if (!finding.firstPlace.empty()) html.Text(" (first: " + finding.firstPlace + ")");
            html.Text(". ").Text(AdviceOn(finding.code)).Raw("</li>\n");
        }
        html.Raw("</ul>\n");
    }
    html.Raw("</section>\n");
}

void AppendPileHeadRanges(const Evaluation& evaluation, Html& html) {
    const std::string force = "(" + std::string(UnitName(Quantity::force, evaluation.Units())) + ")";
    const std::array<HtmlColumn, 8> columns{{{"SUB", "", true},
                                             {"PILE", "", true},
                                             {"LEAST FAX", force, true},
                                             {"CASE", "", true},
                                             {"LIMIT STATE", "", false},
                                             {"GREATEST FAX", force, true},
                                             {"CASE", "", true},
                                             {"LIMIT STATE", "", false}}};
    HtmlTable table(
        html, {"t8", "Range of the axial force at each pile head", "over all chosen cases; tension positive"},
        columns);
    const CDataSet& data = evaluation.Data();
    for (std::size_t p = 0; p < data.m_Piers.size(); ++p) {
        const ElementResults& results = evaluation.Elements()[p];
        for (std::size_t pile = 0; pile < results.leastAxial.size(); ++pile) {
            const EndExtreme &least = results.leastAxial[pile], &greatest = results.greatestAxial[pile];
            if (least.loadCase < 0) continue;
            const std::array<std::string, 8> texts{std::to_string(p + 1),
                                                   std::to_string(pile + 1),
                                                   FormatFixed(least.value, kForceDecimals),
                                                   std::to_string(least.loadCase + 1),
                                                   std::string(LimitStateIn(data, least.loadCase)),
                                                   FormatFixed(greatest.value, kForceDecimals),
                                                   std::to_string(greatest.loadCase + 1),
                                                   std::string(LimitStateIn(data, greatest.loadCase))};
            table.TextRow(texts);
        }
    }
    table.Finish();
    html.Raw("<p class=\"soft\">Every pile head in every case: <code>")
        .Text("lumerin export " + InputFileName(evaluation) + " --table pile_heads")
        .Raw("</code></p>\n");
}

void AppendCases(const Evaluation& evaluation, Html& html) {
    const CDataSet& data = evaluation.Data();
    const CPier& first = data.FirstPier();
    html.Raw("<section class=\"sheet\" id=\"cases\">\n").Element("h2", "Cases used");
    std::vector<HtmlColumn> columns{{"CASE", "", true}};
    const bool named = data.HasCombinations();
    if (named) {
        for (const char* words : {"LIMIT STATE", "CLASS", "TITLE"}) columns.push_back({words, "", false});
    }
    int listed = 0;
    HtmlTable table(html, {"case-list", CasesUsed(evaluation), ""}, columns);
    for (int c = 0; c < first.m_nLoadCases && listed < kMostListedCases; ++c) {
        if (!evaluation.Selection().IsCaseSelected(c)) continue;
        ++listed;
        std::vector<std::string> texts{std::to_string(c + 1)};
        if (named) {
            const CLoadCase& loadCase = first.m_LoadCases.at(Index(c));
            texts.insert(texts.end(),
                         {loadCase.m_sLimitState, std::string(ClassNameOf(data, c)), loadCase.m_sName});
        }
        table.TextRow(texts);
    }
    table.Finish();
    const int chosen = evaluation.Selection().SelectedCount(first.m_nLoadCases);
    if (listed < chosen) {
        html.Raw("<p>The first " + std::to_string(listed) + " of " + std::to_string(chosen) +
                 " are listed. All of them: <code>")
            .Text("lumerin export " + InputFileName(evaluation) + " --table cases")
            .Raw("</code></p>\n");
    }
    html.Raw("</section>\n");
}

}  // namespace lumerin
