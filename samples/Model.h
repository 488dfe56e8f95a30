// SPDX-License-Identifier: MIT
// The model of a sample project: what a preset requests, and what the files then contain.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lumerin {

namespace samples {

// Codes as the host writes them in the pile file.
enum class StructureType : int { Pier = 0, PileGroup = 1, Walls = 4, PileBent = 7 };

// Codes as the host writes them; UsFeet is the older code of US units.
enum class Units : int { Us = 0, Si = 1, UsFeet = 3 };

enum class CodeFamily : int { None = -1, Lrfd = 0, Lfd = 1, Arema = 2 };

enum class AnalysisMode : int { LoadCases = 0, TimeSteps = 1 };

// One of the host's section records; the pile's width is `first` for kind 1, else `second`.
struct SectionRecord {
    int kind = 1;
    double first = 0.0;
    double second = 0.0;
    double third = 0.0;
};

// One line of cross-section data; lengths in inches or metres.
struct CrossSection {
    int shape = 2;
    double depth = 0.0;
    double width = 0.0;
    double z = 0.0;
    double g = 0.0;
};

// A bearing at a cap node with this x, or, off the cap, at a column node below it.
struct BearingPlan {
    double x = 0.0;
    bool onCap = true;
};

// A brace between two nodes, which count from 0 among the nodes after the foundation's.
struct ExtraMemberPlan {
    int positionI = 0;
    int positionJ = 0;
    int section = 0;
};

// Unfactored loads in kips or kN: dead and live load of one bearing (or of one column top without a cap),
// the cap's own weight per foot or metre, and the footing's weight for each pile.
struct LoadPlan {
    double dead = 0.0;
    double live = 0.0;
    double capWeight = 0.0;
    double columnWeight = 0.0;
    double footingWeight = 0.0;
};

// What a preset sets for one substructure. Lengths are inches or metres.
struct SubstructurePlan {
    StructureType type = StructureType::Pier;
    Units units = Units::Us;
    double locationX = 0.0;

    int pileRows = 1;
    int pileColumns = 1;
    int pileNodes = 2;
    double pileSpacing = 0.0;
    double pileLength = 0.0;
    std::vector<int> sectionBlocks;
    std::vector<SectionRecord> pileSections;

    std::vector<double> supportX;  // columns, walls, or the piles of a bent
    double height = 0.0;           // of the cap over the footing
    int columnNodes = 0;           // interior nodes of a column
    int columnSections = 1;
    std::vector<double> leftCantilever;          // x of its nodes, tip first; empty without cantilevers
    std::vector<double> rightCantilever;         // x of its nodes, tip last
    std::vector<std::vector<double>> spanNodes;  // x of the interior nodes, span by span
    std::vector<int> missingSpanElements;        // places in the row of span elements that have no element
    std::vector<ExtraMemberPlan> extraMembers;

    std::vector<std::vector<BearingPlan>> bearingRows;
    std::vector<double> bearingRowY;

    // Cross-section lines: one, or one for each element.
    std::vector<CrossSection> columnLines;
    std::vector<CrossSection> spanLines;
    std::vector<CrossSection> leftLines;  // last element first, as the text file has them
    std::vector<CrossSection> rightLines;

    LoadPlan loads;
};

struct Node {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

enum class MemberKind { Connector, Column, Cap, Extra };

// A row of the element table and the place whose forces its record holds.
struct ElementRow {
    int number = 0;
    int nodeI = 0;  // from 1
    int nodeJ = 0;
    int section = 0;
    MemberKind kind = MemberKind::Connector;
    int member = 0;   // column or extra member; for a cap element its place in the chain
    int element = 0;  // in the column
};

struct CapPoint {
    int node = 0;  // from 1
    double x = 0.0;
};

struct Bearing {
    int node = 0;
    int capPoint = -1;  // -1 off the cap
    Node at;
};

// A substructure with its numbers; cap element i joins the cap points i and i + 1.
struct Substructure {
    SubstructurePlan plan;
    int columns = 0;          // as the host counts them: supports
    int cantileverNodes = 0;  // interior nodes of one; -1 without cantilevers
    int spanNodes = 0;
    int foundationNodes = 0;
    int elementGaps = 0;
    std::vector<Node> nodes;
    std::vector<ElementRow> elements;
    std::vector<CapPoint> cap;
    std::vector<bool> capMissing;       // for each cap element
    std::vector<int> supportCapPoints;  // for each support of a cap
    std::vector<std::vector<Bearing>> bearingRows;

    int PileCount() const { return plan.pileRows * plan.pileColumns; }
    int PileElements() const { return plan.pileNodes - 1; }
    int ColumnElements() const { return plan.columnNodes + 1; }
    bool HasCantilevers() const { return !plan.leftCantilever.empty(); }
    // Records of one load case in the force file.
    std::int64_t RecordsPerCase() const {
        return std::int64_t{PileCount()} * PileElements() + static_cast<std::int64_t>(elements.size());
    }
};

// The trials of an embedment study; no lengths, no study.
struct EmbedmentStudy {
    std::vector<double> lengths;  // feet or metres; the first is that of the project itself
    int missingTrial = 0;         // number, from 1, of the trial without a folder; 0 for none
    int unfinishedTrial = 0;      // number of the trial whose file has no end mark; 0 for none
};

struct Project {
    std::string name;
    std::string preset;
    std::string title;
    std::uint64_t seed = 0;
    int cases = 0;
    int filledCases =
        0;  // with forces, at each end of a force file; zeros between them take no space on the disk
    CodeFamily family = CodeFamily::None;
    AnalysisMode mode = AnalysisMode::LoadCases;
    EmbedmentStudy study;
    std::vector<Substructure> substructures;
};

// Feet or metres of one unit of length of the coordinates.
inline double LengthFactor(Units units) {
    return units == Units::Si ? 1.0 : 1.0 / 12.0;
}

}  // namespace samples

}  // namespace lumerin
