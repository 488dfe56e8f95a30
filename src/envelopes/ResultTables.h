// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "envelopes/Records.h"
#include "model/Applicability.h"
#include "model/DataSet.h"

namespace lumerin {

// What the searches find: places in the model, and numbers only for the cap, whose values can be inside an
// element. The caller of the searches owns the tables. A search writes the entries that it finds and leaves
// the others as an earlier search wrote them.

// The tables of one substructure.
struct PierResults {
    std::vector<std::vector<int>> maxTension, maxCompression;  // [slot][pile], load case or -1
    CRecordTable pileDc, columnDc;                             // [section][slot]
    CRecordTable pileForces, columnForces, extraMemberForces;  // [section][slot][13]

    CCapTable momentSupports;  // [support][slot][kind 0..2][extreme]
    CCapTable shearSupports;   // [support][slot][kind 0..3][extreme]
    CCapTable momentBearings;  // [bearing][slot][row][extreme]
    CCapTable shearBearings;   // [bearing][slot][row * 2 + side][extreme]
    // The faces and centrelines in order of position. Lists of fixed length; entries past the last one found
    // keep zeros.
    std::vector<double> momentSupportX, shearSupportX;
    std::vector<CSupportLocation> momentSupportList, shearSupportList;
    std::size_t momentSupportsFound = 0, shearSupportsFound = 0;
    std::vector<double> momentPointX, shearPointX;  // merged with the bearings
};

struct ResultTables {
    ResultTables() = default;
    // Tables of the project's sizes with nothing found. Every table is valid but the shear table of a project
    // whose first substructure has no cap.
    explicit ResultTables(const CDataSet& data);

    std::vector<PierResults> piers;
    // Cleared when a number of a table fails its check; such a table is not written as a worksheet.
    TableFlags valid = kAllTables;
};

// The next place along the cap after that many support sections and bearings.
enum class NextPoint { nothing, support, bearing };
NextPoint NextCapPoint(const std::vector<double>& supportX, int supportCursor,
                       const std::vector<double>& bearingX, int bearingCursor);

}  // namespace lumerin
