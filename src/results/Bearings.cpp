// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>

#include "framework/Index.h"
#include "results/Bearings.h"
#include "results/ProjectFiles.h"
#include "results/SeqFile.h"

namespace lumerin {

namespace {

// Two rows of bearings are further apart than this. Projects in metres use the same number, so that a pair of
// rows counts as one there; the bearing rows of their cap tables depend on it.
constexpr double kRowDistance = 2.4;

using Entry = std::array<double, 3>;

// A row's entries may be in separate records or in one, so they are read together.
std::vector<Entry> ReadEntries(CSeqFile& file, int count) {
    std::vector<Entry> entries(Index(count));
    file.ReadRecord(entries.data(), static_cast<unsigned>(entries.size() * sizeof(Entry)), "bearing entries");
    return entries;
}

// The node numbers of a row's records, one less than its entries.
std::vector<int> ReadNodes(CSeqFile& file, int entries) {
    std::vector<std::array<int, 3>> records(Index(std::max(entries, 1) - 1));
    file.ReadRecord(records.data(), static_cast<unsigned>(records.size() * sizeof(records[0])),
                    "bearing nodes");
    std::vector<int> nodes;
    nodes.reserve(records.size());
    for (const std::array<int, 3>& record : records) nodes.push_back(record[1]);
    return nodes;
}

bool IsOneRow(const std::vector<Entry>& left, const std::vector<Entry>& right) {
    if (left.size() != right.size()) return false;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (right[i][1] - left[i][1] <= kRowDistance) return true;
    }
    return false;
}

CBearingRow MakeRow(const std::vector<int>& nodes, int entries) {
    CBearingRow row;
    row.m_Bearings.resize(Index(entries / 2));
    for (std::size_t i = 0; i < row.m_Bearings.size() && i < nodes.size(); ++i) {
        row.m_Bearings[i].m_nNode = nodes[i];
    }
    return row;
}

}  // namespace

BearingRows ReadBearings(const std::string& basePath, int number) {
    CSeqFile file(SubstructureFile(basePath, ".pls", number));
    const std::array<int, 12> counts = file.ReadInts<12>("bearing counts");
    const int left = counts[0], right = counts[1];
    file.CheckCount("bearing count", left, 24);
    file.CheckCount("bearing count", right, 24);
    const std::vector<Entry> leftEntries = ReadEntries(file, left);
    const std::vector<Entry> rightEntries = ReadEntries(file, right);
    const std::vector<int> leftNodes = ReadNodes(file, left);
    const std::vector<int> rightNodes = ReadNodes(file, right);

    BearingRows rows{MakeRow(leftNodes, left)};
    if (!IsOneRow(leftEntries, rightEntries)) rows.push_back(MakeRow(rightNodes, right));
    return rows;
}

}  // namespace lumerin
