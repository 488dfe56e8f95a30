// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "results/SeqFile.h"

namespace lumerin {

// A section record of the pile file: its kind and its dimensions, of which two are used.
struct CSectionRecord {
    int kind = 0;
    double first = 0.0, second = 0.0;

    // The width of a pile of this section: a round one (kind 1) by its diameter, any other by its second
    // dimension.
    double Dimension() const { return kind == 1 ? first : second; }
};

// The most section records that a pile file has.
inline constexpr int kMaxSectionRecords = 128;

// The head of a pile file: block sizes, section records and title. Throws on a file with wrong counts.
struct CPileFileHead {
    int blocks = 0;
    std::vector<CSectionRecord> sections;
};
CPileFileHead ReadPileFileHead(CSeqFile& file);

}  // namespace lumerin
