// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <ostream>
#include <string>

namespace lumerin {

// What the program ends with. The numbers are for scripts and are never given another meaning.
enum ExitStatus {
    kExitDone = 0,        // done; of a check: passes
    kExitIncomplete = 1,  // something is missing in the output; of a check: over the limit
    kExitUsage = 2,       // wrong usage
    kExitNotLoaded = 3,   // a project could not be loaded
    kExitUnsound = 4,     // the data of a project have errors
};

// Of several statuses the first of this list is that of the program: what kept work from being done comes
// before what is wrong with the data, and that before the answer.
inline constexpr std::array<ExitStatus, 5> kWorstFirst = {kExitUsage, kExitNotLoaded, kExitUnsound,
                                                          kExitIncomplete, kExitDone};
ExitStatus Worse(ExitStatus a, ExitStatus b);

// The statuses of several projects.
class BatchSummary {
  public:
    // The words for statuses 0 and 1 of the command.
    BatchSummary(std::string done, std::string incomplete)
        : m_done(std::move(done)), m_incomplete(std::move(incomplete)) {}

    void Add(ExitStatus status) { ++m_counts.at(status); }
    // A project that was passed over, with its status of an earlier run.
    void AddUnchanged(ExitStatus status) {
        Add(status);
        ++m_unchanged;
    }
    ExitStatus Worst() const;
    // "5 projects: 3 done, 1 not loaded, 1 not sound; 2 unchanged".
    std::string Line() const;
    // Prints the line when there were several projects.
    void Print(std::ostream& err) const;

  private:
    int Total() const;
    std::string m_done, m_incomplete;
    std::array<int, 5> m_counts{};
    int m_unchanged = 0;
};

}  // namespace lumerin
