// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/DataSet.h"
#include "text/Messages.h"

namespace lumerin {

// The counts of one substructure, as its pile file, its pile model file and the convergence file have them.
struct PierCounts {
    StructureType type = kTypePier;
    int units = 0;  // 0 US, anything else SI
    int columns = 0, cantilevers = 0;
    int columnNodes = 0, spanNodes = 0, cantileverNodes = 0;  // interior nodes
    int extraMembers = 0, extraSections = 0;
    int columnSections = 0;
    int sectionBlocks = 0, sectionRecords = 0;
    int nodes = 0;         // in the pile file's node list
    int elements = 0;      // rows of the element table
    int elementGaps = 0;   // in the numbering of the element table
    int closingCount = 0;  // not used
    int piles = 0, pileNodes = 0;
    int pileNodesTotal = 0;  // as the file states it
    int pilesFromNodes = 0;  // by that total
    int pileElements = 0;    // of all piles
    int pileTableSize = 0;   // entries that are skipped
    int loadCases = 0;       // that converged
    int analysedCases = 0;
    int analysisMode = 0;          // AnalysisMode
    double convergenceReal = 0.0;  // not used
    int convergenceInteger = 0;    // not used
};

// The contents of the model files of one substructure.
struct PierModel {
    PierCounts counts;
    std::vector<std::array<double, 3>> nodes;  // the substructure's own, foundation nodes left out
    std::vector<std::array<double, 3>> allNodes;
    int pierNodes = 0, foundationNodes = 0;
    std::vector<CElementRow> elementTable;
    std::vector<std::uint8_t> elementMask;       // 1: that element number (less one) has no row
    std::vector<std::vector<int>> pileSections;  // per pile, the section number of each element
};

// Which substructure is read, and what those before it determine.
struct PierRead {
    const std::string& basePath;
    int index = 0;                           // from 0
    std::optional<StructureType> firstType;  // of the first substructure; empty while that one is read
    long long maskBytes = 0;                 // of the substructures before it
};

// Reads the pile file (PLF), the pile model file (PIL) and the convergence file (ncv). Empty: nothing
// converged, which was reported. Throws CFileException for a missing or broken file; every count was compared
// with its file.
std::optional<PierModel> ReadPierModel(const PierRead& read, Messages& messages);

// The widths of the piles, from the section records of the pile file (plf), by the section of each pile's
// first element; `number` counts from 1. Throws CFileException.
void ReadPileDimensions(const std::string& basePath, int number, CPier& pier);

}  // namespace lumerin
