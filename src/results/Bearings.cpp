#include <algorithm>
#include <array>

#include "results/CollectData.h"
#include "results/ProjectFiles.h"
#include "results/SeqFile.h"

namespace {

// Two rows of bearings stand further apart than this, by the units of the collection object.
constexpr double kRowDistanceUs = 2.4;
constexpr double kRowDistanceSi = 0.16;
constexpr int kSiUnits = 1;

using Entry = std::array<double, 3>;

// A row's entries may stand in records of their own or in one: they are asked for together.
std::vector<Entry> ReadEntries(CSeqFile& file, int count) {
    std::vector<Entry> entries(static_cast<std::size_t>(count));
    file.ReadRecord(entries.data(), static_cast<unsigned>(entries.size() * sizeof(Entry)), "bearing entries");
    return entries;
}

// The node numbers of a row's records, one less than its entries.
std::vector<int> ReadNodes(CSeqFile& file, int entries) {
    std::vector<std::array<int, 3>> records(static_cast<std::size_t>(std::max(entries, 1) - 1));
    file.ReadRecord(records.data(), static_cast<unsigned>(records.size() * sizeof(records[0])),
                    "bearing nodes");
    std::vector<int> nodes;
    nodes.reserve(records.size());
    for (const std::array<int, 3>& record : records) nodes.push_back(record[1]);
    return nodes;
}

bool IsOneRow(const std::vector<Entry>& left, const std::vector<Entry>& right, double limit) {
    if (left.size() != right.size()) return false;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (right[i][1] - left[i][1] <= limit) return true;
    }
    return false;
}

CBearingRow MakeRow(const std::vector<int>& nodes, int entries) {
    CBearingRow row;
    row.m_Bearings.resize(static_cast<std::size_t>(entries / 2));
    for (std::size_t i = 0; i < row.m_Bearings.size() && i < nodes.size(); ++i) {
        row.m_Bearings[i].m_nNode = nodes[i];
    }
    return row;
}

}  // namespace

void CCollectData::ReadBearings(int k) {
    const int firstType = g_DataSet.FirstPier().m_nStructureType;
    if (firstType != kTypePier && firstType != kTypePileBent) return;
    CSeqFile file(SubstructureFile(".pls", k + 1));
    const std::array<int, 12> counts = file.ReadInts<12>("bearing counts");
    const int left = counts[0], right = counts[1];
    file.CheckCount(left, 24, "bearing entries");
    file.CheckCount(right, 24, "bearing entries");
    const std::vector<Entry> leftEntries = ReadEntries(file, left);
    const std::vector<Entry> rightEntries = ReadEntries(file, right);
    const std::vector<int> leftNodes = ReadNodes(file, left);
    const std::vector<int> rightNodes = ReadNodes(file, right);

    CPier& pier = g_DataSet.m_Piers[static_cast<std::size_t>(k)];
    // Built before any file was read, this object still has US units: the limit of 2.4 serves SI projects
    // too.
    const double limit = m_nUnits == kSiUnits ? kRowDistanceSi : kRowDistanceUs;
    pier.m_BearingRows.assign(1, MakeRow(leftNodes, left));
    if (!IsOneRow(leftEntries, rightEntries, limit)) pier.m_BearingRows.push_back(MakeRow(rightNodes, right));
    pier.m_nBearingRows = static_cast<int>(pier.m_BearingRows.size());
}
