// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "embedment/EmbedmentFiles.h"
#include "text/Messages.h"

namespace lumerin {

// The five results of a load case in a trial of the embedment study, by their place in its file.
enum EmbedmentQuantity {
    kLateral = 0,   // resultant displacement, the greatest of all pile heads
    kLateralX = 1,  // its two components
    kLateralY = 2,
    kMaxAxial = 3,  // over all pile elements
    kMinAxial = 4,
    kQuantityCount = 5,
};

// As the study's dialog and the title of its plot name them.
inline constexpr std::array<const char*, kQuantityCount> kQuantityNames = {
    "Lateral Displacement", "Lateral X-Displacement", "Lateral Y-Displacement", "Max Axial Force",
    "Min Axial Force"};

// The results of a minimum pile tip embedment study: a table by trial and load case. Each trial is an
// analysis of its own with its own file, and one that has not run to its end has no results. Values that no
// file gave are 0, whatever trial or case is asked for.
class CEmbedmentResults {
  public:
    // Reads the counts of the base file beside the project's input file; without it the table is empty. The
    // caller owns both and keeps them as long as the object. Throws CFileException for counts that no study
    // has.
    CEmbedmentResults(const std::string& inputFile, Messages& messages);

    bool ReadGlobalData();  // false: the message was shown and the counts stay
    void LoadTrials();

    // Whether the file exists and has its end mark.
    static bool IsTrialFileComplete(const std::string& path);
    // Reads one file into row `trial`; cases beyond the table are passed over.
    void ReadTrialFile(const std::string& path, int trial);

    // Of the trial that was read last: each header may state another count.
    int GetCaseCount() const { return m_nCases; }
    int GetTrialCount() const { return m_nTrials; }
    int GetSubstructure() const { return m_nSubstructure; }

    // Trials and cases count from 0.
    double GetEmbedment(int trial) const;
    double GetValue(int trial, int loadCase, int quantity) const;
    int GetLocation(int trial, int loadCase, int quantity) const;  // the pile where the value was found
    bool IsTrialIncomplete(int trial) const;

    // The next complete trial after `trial`, or before it; -1: there is none.
    int FindAdjacentTrial(int trial, bool backwards) const;
    int FirstTrial() const { return FindAdjacentTrial(-1, false); }

    enum Order { kDescending = 0, kAscending = 1, kNoOrder = 3 };
    // By the embedments of the first two complete trials; equal ones ascend.
    Order GetTrialOrder() const;

  private:
    template <class Value>
    using TrialTable = std::vector<std::array<Value, kQuantityCount>>;

    void ReadHeader(const std::string& line, int trial);
    void ReadCase(const std::string& line, int trial);
    bool IsTrial(int trial) const { return trial >= 0 && trial < m_nTrials; }
    std::string TrialPath(int trial) const;

    const std::string& m_inputFile;
    Messages& m_messages;
    int m_nCases = 0;
    int m_nTrials = 0;
    int m_nSubstructure = 1;
    int m_nTableCases = 0;  // cases that a trial's table can hold, from the base file
    // Rows that the tables may still grow by. Each line of a file brings its own; the rest serves studies
    // that leave cases out, and prevents a wrong number from using memory without a file of that size.
    long long m_nFreeRows = 200000;
    // By trial; a trial's table grows to the last case that its file has.
    std::vector<TrialTable<double>> m_pppValues;
    std::vector<TrialTable<int>> m_pppLocations;
    std::vector<double> m_pEmbedments;
    std::vector<std::uint8_t> m_pIncomplete;
};

}  // namespace lumerin
