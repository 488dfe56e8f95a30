// SPDX-License-Identifier: MIT
#include "samples/Presets.h"

#include <algorithm>
#include <cstdlib>

#include "samples/Geometry.h"
#include "samples/OutputFile.h"

namespace lumerin {

namespace samples {
namespace {

constexpr int kMostCases = 10'000'000;
constexpr int kMostPilesInLine = 200;
constexpr int kStudyTrials = 8;
constexpr int kMostTrials = 1000;

struct PileField {
    int rows = 1;
    int columns = 1;
};

// The requested size, or the preset's own.
PileField Piles(const SampleOptions& options, int rows, int columns) {
    return {options.rows.value_or(rows), options.columns.value_or(columns)};
}

void SetPiles(SubstructurePlan& plan, PileField field, double spacing, double length, int nodes) {
    plan.pileRows = field.rows;
    plan.pileColumns = field.columns;
    plan.pileSpacing = spacing;
    plan.pileLength = length;
    plan.pileNodes = nodes;
}

// A foundation with more piles than the preset's own carries proportionally more load.
void ScaleLoads(SubstructurePlan& plan, int presetPiles) {
    const double factor = static_cast<double>(plan.pileRows * plan.pileColumns) / presetPiles;
    plan.loads.dead *= factor;
    plan.loads.live *= factor;
    plan.loads.capWeight *= factor;
    plan.loads.columnWeight *= factor;
}

// Two columns under a cap with cantilevers, two bearing rows that share a place; inches and kips. The faces
// of the first column fall on nodes, those of the second inside elements. One bearing is outside the cap.
SubstructurePlan TwoColumnPier(const SampleOptions& options) {
    SubstructurePlan plan;
    plan.type = StructureType::Pier;
    SetPiles(plan, Piles(options, 2, 4), 84.0, 720.0, 13);
    plan.sectionBlocks = {2};
    plan.pileSections = {{1, 24.0, 24.0, 0.5}, {3, 24.0, 22.0, 0.0}};
    plan.supportX = {120.0, 360.0};
    plan.height = 240.0;
    plan.columnNodes = 2;
    plan.columnSections = 2;
    plan.leftCantilever = {36.0, 66.0, 96.0};
    plan.spanNodes = {{144.0, 180.0, 240.0, 300.0, 330.0}};
    plan.rightCantilever = {390.0, 420.0, 444.0};
    plan.bearingRows = {{{66.0}, {180.0}, {300.0}, {420.0}}, {{66.0}, {120.0}, {240.0}, {360.0, false}}};
    plan.bearingRowY = {-18.0, 18.0};
    // The columns widen by two inches an element; half a step more gives 48 at the cap.
    plan.columnLines = {
        {2, 44.0, 43.0, 13.0, 0.25}, {2, 44.0, 45.0, 13.0, 0.25}, {2, 44.0, 47.0, 13.0, 0.25}};
    plan.spanLines = {{1, 54.0, 48.0, 24.0, 0.0}};
    plan.leftLines = {{1, 54.0, 48.0, 24.0, 0.0}, {1, 48.0, 48.0, 24.0, 0.0}, {1, 42.0, 48.0, 24.0, 0.0}};
    plan.rightLines = {{1, 54.0, 48.0, 24.0, 0.0}, {1, 48.0, 48.0, 24.0, 0.0}, {1, 42.0, 48.0, 24.0, 0.0}};
    plan.loads = {150.0, 70.0, 2.4, 1.9, 18.0};
    ScaleLoads(plan, 8);
    return plan;
}

// A row of piles under a cap whose left end stops ten inches out, inside the first pile's width. Right faces
// fall on nodes, left faces inside elements.
SubstructurePlan BentPlan(const SampleOptions& options, int presetPiles) {
    const PileField field = Piles(options, 1, presetPiles);
    const int piles = field.rows * field.columns;
    SubstructurePlan plan;
    plan.type = StructureType::PileBent;
    SetPiles(plan, {1, piles}, 108.0, 660.0, 12);
    plan.sectionBlocks = {1, 1};
    plan.pileSections = {{1, 24.0, 24.0, 0.5}, {1, 20.0, 20.0, 0.0}};
    for (int p = 0; p < piles; ++p) plan.supportX.push_back(60.0 + 108.0 * p);
    plan.height = 180.0;
    plan.leftCantilever = {plan.supportX.front() - 10.0, plan.supportX.front() - 5.0};
    plan.rightCantilever = {plan.supportX.back() + 12.0, plan.supportX.back() + 30.0};
    plan.bearingRows.emplace_back();
    plan.bearingRowY = {0.0};
    for (int p = 0; p + 1 < piles; ++p) {
        const double x = plan.supportX[static_cast<std::size_t>(p)];
        plan.spanNodes.push_back({x + 12.0, x + 54.0, x + 90.0});
        if (p % 2 == 1) plan.bearingRows.front().push_back({x});
        plan.bearingRows.front().push_back({x + 54.0});
    }
    plan.bearingRows.front().push_back({plan.supportX.back() + 12.0});
    plan.columnLines = {{2, 24.0, 24.0, 12.0, 0.0}};
    plan.spanLines = {{1, 36.0, 42.0, 18.0, 0.0}};
    plan.leftLines = {{1, 36.0, 42.0, 18.0, 0.0}};
    plan.loads = {70.0, 45.0, 1.6, 0.0, 0.0};
    return plan;
}

// A group under a machine or a mast; metres and kilonewtons, loads for each pile.
SubstructurePlan GroupPlan(const SampleOptions& options, int rows, int columns, Units units) {
    const double factor = units == Units::Si ? 1.0 : 39.5;
    SubstructurePlan plan;
    plan.type = StructureType::PileGroup;
    plan.units = units;
    SetPiles(plan, Piles(options, rows, columns), 1.5 * factor, 15.0 * factor, 11);
    plan.sectionBlocks = {2};
    plan.pileSections = {{1, 0.5 * factor, 0.5 * factor, 0.0}, {3, 0.5 * factor, 0.45 * factor, 0.0}};
    plan.columnLines = {{2, 0.5 * factor, 0.5 * factor, 0.2 * factor, 0.0}};
    plan.loads = {420.0, 160.0, 0.0, 0.0, 60.0};
    if (units != Units::Si) plan.loads = {95.0, 36.0, 0.0, 0.0, 14.0};
    return plan;
}

// Two walls of an abutment on one footing.
SubstructurePlan WallPlan(const SampleOptions& options) {
    SubstructurePlan plan;
    plan.type = StructureType::Walls;
    SetPiles(plan, Piles(options, 3, 6), 72.0, 540.0, 10);
    plan.sectionBlocks = {2};
    plan.pileSections = {{3, 14.0, 14.5, 0.6}, {3, 14.0, 14.5, 0.6}};
    plan.supportX = {90.0, 330.0};
    plan.height = 288.0;
    plan.columnNodes = 3;
    plan.columnSections = 2;
    plan.columnLines = {{1, 180.0, 30.0, 15.0, 0.0}};
    plan.loads = {620.0, 240.0, 0.0, 5.6, 16.0};
    ScaleLoads(plan, 18);
    return plan;
}

// Three columns without cantilevers; metres and kilonewtons.
SubstructurePlan SwayFrame(const SampleOptions& options) {
    SubstructurePlan plan;
    plan.type = StructureType::Pier;
    plan.units = Units::Si;
    SetPiles(plan, Piles(options, 2, 5), 3.0, 20.0, 11);
    plan.sectionBlocks = {2};
    plan.pileSections = {{1, 0.75, 0.75, 0.02}, {1, 0.75, 0.75, 0.0}};
    plan.supportX = {2.0, 8.0, 14.0};
    plan.height = 7.5;
    plan.columnNodes = 4;
    plan.columnSections = 1;
    plan.spanNodes = {{2.75, 5.0, 6.5}, {8.75, 11.0, 12.5}};
    plan.bearingRows = {{{2.0}, {5.0}, {8.0}, {11.0}, {14.0}}};
    plan.bearingRowY = {0.0};
    plan.columnLines = {{2, 1.5, 1.5, 0.75, 0.0}};
    plan.spanLines = {{1, 1.5, 1.75, 0.75, 0.0}};
    plan.loads = {900.0, 300.0, 62.0, 42.0, 120.0};
    ScaleLoads(plan, 10);
    return plan;
}

// Three columns with struts between them; a joint in the second span leaves one element out.
SubstructurePlan ThreeColumnPier(const SampleOptions& options) {
    SubstructurePlan plan;
    plan.type = StructureType::Pier;
    SetPiles(plan, Piles(options, 2, 6), 84.0, 600.0, 11);
    plan.sectionBlocks = {1, 2};
    plan.pileSections = {{1, 24.0, 24.0, 0.5}, {3, 24.0, 22.0, 0.0}, {3, 18.0, 18.0, 0.0}};
    plan.supportX = {96.0, 288.0, 480.0};
    plan.height = 300.0;
    plan.columnNodes = 2;
    plan.columnSections = 2;
    plan.leftCantilever = {30.0, 54.0};
    plan.spanNodes = {{120.0, 192.0, 252.0}, {312.0, 372.0, 444.0}};
    plan.rightCantilever = {504.0, 546.0};
    plan.missingSpanElements = {5};  // from 312 to 372
    plan.bearingRows = {{{54.0}, {192.0}, {288.0}, {444.0}}, {{120.0}, {192.0}, {504.0}}};
    plan.bearingRowY = {-15.0, 15.0};
    plan.extraMembers = {{ColumnNodePosition(plan, 0, 1), ColumnNodePosition(plan, 1, 1), 5},
                         {ColumnNodePosition(plan, 1, 1), ColumnNodePosition(plan, 2, 1), 5},
                         {ColumnNodePosition(plan, 0, 1), ColumnNodePosition(plan, 1, 2), 6}};
    plan.columnLines = {{2, 42.0, 42.0, 12.0, 0.0}};
    plan.spanLines = {{1, 48.0, 45.0, 24.0, 0.0}};
    plan.leftLines = {{1, 48.0, 45.0, 24.0, 0.0}};
    plan.loads = {160.0, 60.0, 2.2, 1.5, 15.0};
    ScaleLoads(plan, 12);
    return plan;
}

// The bridge's bent leaves two elements out of its third span where it has one.
SubstructurePlan JointedBent(const SampleOptions& options) {
    SubstructurePlan plan = BentPlan(options, 5);
    if (plan.spanNodes.size() < 3) return plan;
    plan.missingSpanElements = {9, 10};
    auto& row = plan.bearingRows.front();
    const double between = plan.spanNodes[2][1];
    std::erase_if(row, [between](const BearingPlan& bearing) { return bearing.x == between; });
    return plan;
}

std::vector<SubstructurePlan> BridgePlans(const SampleOptions& options) {
    std::vector<SubstructurePlan> plans = {ThreeColumnPier(options), JointedBent(options),
                                           GroupPlan(options, 2, 3, Units::Us)};
    plans[1].locationX = 1200.0;
    plans[2].locationX = 2400.0;
    // A tie beam between the first and the last pile head.
    plans[2].extraMembers = {{0, plans[2].pileRows * plans[2].pileColumns - 1, 3}};
    return plans;
}

std::vector<SubstructurePlan> PierPlans(const SampleOptions& options) {
    return {TwoColumnPier(options)};
}

std::vector<SubstructurePlan> BentPlans(const SampleOptions& options) {
    SubstructurePlan plan = BentPlan(options, 4);
    plan.units = Units::UsFeet;
    return {plan};
}

std::vector<SubstructurePlan> GroupPlans(const SampleOptions& options) {
    return {GroupPlan(options, 3, 4, Units::Si)};
}

std::vector<SubstructurePlan> WallPlans(const SampleOptions& options) {
    return {WallPlan(options)};
}

std::vector<SubstructurePlan> HistoryPlans(const SampleOptions& options) {
    return {SwayFrame(options)};
}

struct Preset {
    std::string_view name;
    std::string_view title;
    int cases;
    CodeFamily family;
    AnalysisMode mode;
    bool study;
    std::vector<SubstructurePlan> (*plans)(const SampleOptions&);
};

constexpr Preset kPresets[] = {
    {"pier", "Mill Road over Ash Creek", 26, CodeFamily::Lrfd, AnalysisMode::LoadCases, true, PierPlans},
    {"bent", "Branch line trestle at Low Marsh", 18, CodeFamily::Arema, AnalysisMode::LoadCases, false,
     BentPlans},
    {"group", "Crane base, north quay", 8, CodeFamily::None, AnalysisMode::LoadCases, false, GroupPlans},
    {"walls", "West abutment of Orchard Street", 13, CodeFamily::Lrfd, AnalysisMode::LoadCases, false,
     WallPlans},
    {"bridge", "County Road 9 over Stony River", 22, CodeFamily::Lfd, AnalysisMode::LoadCases, false,
     BridgePlans},
    {"history", "Harbour viaduct, pier 4, ground motion", 60, CodeFamily::None, AnalysisMode::TimeSteps,
     false, HistoryPlans},
};

constexpr PresetInfo kInfos[] = {
    {"pier", "two columns, cap with cantilevers, AASHTO-LRFD combinations, embedment study"},
    {"bent", "pile bent, AREMA combinations"},
    {"group", "pile group, plain load cases, SI"},
    {"walls", "two walls on piles, AASHTO-LRFD combinations"},
    {"bridge", "pier, bent and group; extra members, gaps in the numbers, AASHTO-LFD combinations"},
    {"history", "three columns, time steps of a ground motion, SI"},
};

const Preset& FindPreset(const std::string& name) {
    for (const auto& preset : kPresets) {
        if (preset.name == name) return preset;
    }
    std::string known;
    for (const auto& preset : kPresets) known += (known.empty() ? "" : ", ") + std::string(preset.name);
    throw SampleError("unknown preset '" + name + "'; there are " + known);
}

void CheckRange(const char* what, int value, int most) {
    if (value >= 1 && value <= most) return;
    throw SampleError(std::string("the number of ") + what + " must lie between 1 and " +
                      std::to_string(most) + ", not " + std::to_string(value));
}

// The name is part of file names and of a folder's text, so it must be valid in a file name.
void CheckName(const std::string& name) {
    const bool bad =
        name.empty() || name.front() == '.' || name.find_first_of("/\\:*?\"<>|") != std::string::npos;
    if (bad) throw SampleError("'" + name + "' cannot be the name of a project");
}

// The piles get shorter from trial to trial; one folder is missing and one analysis did not finish.
EmbedmentStudy ShorteningStudy(int trials) {
    EmbedmentStudy study;
    for (int trial = 0; trial < trials; ++trial) study.lengths.push_back(60.0 - 32.0 / trials * trial);
    study.missingTrial = 5;
    study.unfinishedTrial = 7;
    return study;
}

}  // namespace

std::span<const PresetInfo> Presets() {
    return kInfos;
}

Project MakeProject(const SampleOptions& options) {
    const Preset& preset = FindPreset(options.preset);
    Project project;
    project.preset = options.preset;
    project.name = options.name.value_or(options.preset);
    project.title = preset.title;
    project.seed = options.seed;
    project.cases = options.cases.value_or(preset.cases);
    project.family = preset.family;
    project.mode = preset.mode;
    CheckName(project.name);
    CheckRange("cases", project.cases, kMostCases);
    project.filledCases = options.filled.value_or(project.cases);
    CheckRange("filled cases", project.filledCases, kMostCases);
    CheckRange("pile rows", options.rows.value_or(1), kMostPilesInLine);
    CheckRange("pile columns", options.columns.value_or(1), kMostPilesInLine);
    CheckRange("trials", options.trials.value_or(1), kMostTrials);
    if (preset.study) project.study = ShorteningStudy(options.trials.value_or(kStudyTrials));
    for (const auto& plan : preset.plans(options)) project.substructures.push_back(BuildSubstructure(plan));
    return project;
}

}  // namespace samples

}  // namespace lumerin
