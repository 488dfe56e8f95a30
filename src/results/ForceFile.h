// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "results/ForcePlan.h"
#include "results/ForceSource.h"
#include "results/SeqFile.h"

namespace lumerin {

// The member force file of a substructure: for every converged case the end forces of every element, in
// records of 68 bytes, one block of records a case. The file is opened for each pass and closed after it, so
// that the host can replace it. A pass reads pieces that stay in the processor's cache and keeps the forces
// of one case; its cost grows with the length of the file alone.
//
// A record that is missing at the end of the file takes the forces of the record that is read before it, in
// the order of the plan (piles, cap, columns, extra members) and over the cases, starting from zeros.
// Elements without a record have zeros.
class ForceFile : public ForceSource {
  public:
    // Opens the file of a substructure that has its members. Throws CFileException when the file cannot be
    // read.
    ForceFile(const CPier& pier, const PierCounts& counts, std::vector<CForceRead> reads, CDirFile& file);

    FiniteForces ReadCases(const CaseTaker& take) const override;
    std::unique_ptr<ForceRows> OpenRows() const override;
    ForceLayout Layout() const override;
    bool IsUnchanged() const override { return m_reads.empty() || StampOf(m_path) == m_stamp; }
    std::string Name() const override { return m_path; }

    // The number of records that are missing in the file.
    long long MissingRecords() const;

    // The record of an element in a case, and how its words become forces. Record 0: all records before it
    // are missing. Empty: the element has no record, its forces are zeros.
    struct Source {
        long long record = 0;
        ForceKind kind = ForceKind::pile;
    };
    std::optional<Source> SourceOf(int loadCase, int element) const;

  private:
    class Pass;

    void MapBlock();
    void ListOthers();
    void FollowMissingRecords();

    std::string m_path;
    std::vector<CForceRead> m_reads;
    long long m_block;        // records of one case
    long long m_pileRecords;  // the first records of a block
    int m_cases, m_elements;
    std::vector<int> m_readOf;           // by element, its place in the plan; -1: it has no record
    std::vector<std::uint8_t> m_isHead;  // by element: 1, the head of a pile
    int m_firstColumnElement = 0, m_endOfColumns = 0;
    std::vector<long long> m_others;  // the records of a block that no element of the list has, rising
    // The element of each record of a block, the others after the list's. Empty when a record is outside its
    // block or has two elements, or an element has two records: such a file is read record by record, by its
    // numbers.
    std::vector<ForceTarget> m_targets;
    long long m_whole = 0;  // whole records of the file
    int m_wholeCases = 0;   // cases at the beginning whose block is complete
    // By case after those: the record that was read last before it; 0: none.
    std::vector<long long> m_lastBefore;
    FileStamp m_stamp;
};

}  // namespace lumerin
