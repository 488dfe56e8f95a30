// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <fstream>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/ExitStatus.h"
#include "records/OpenProject.h"
#include "script/CommandParser.h"

namespace lumerin {

// What --resume reads: a file with a line for each project that a run has done, so that a later run with
// the same options passes over the projects whose files are unchanged. docs/formats.md describes it. A line
// is appended when its project is done, so that a run that was ended has the lines of what it did. Only the
// places of the lines are in memory.

// What came of a project.
struct ProjectOutcome {
    ExitStatus status = kExitDone;
    std::string output;              // what it printed on standard output, or its part of the output file
    std::vector<std::string> files;  // that were written for it
};

// Names, lengths and times of the project's files: all of its folder whose names begin with that of the
// project and a point, in letters of either case. Taken before a load, so that a file that changes meanwhile
// counts as changed.
std::string InputStamp(const ProjectName& project);

class RunStamps {
  public:
    // `file`: that of the stamps. `options`: what the outcome depends on besides the project's files. A file
    // that is damaged, of another version of the program, or of other options is begun anew. Throws
    // std::invalid_argument when no such file can be written.
    RunStamps(std::string file, const std::string& options);
    RunStamps(const RunStamps&) = delete;
    RunStamps& operator=(const RunStamps&) = delete;
    ~RunStamps() = default;

    // Earlier and Add may be called in several threads.

    // What came of the project earlier. None: it was not done, its files have changed, or a file that was
    // written for it is gone or is another one.
    std::optional<ProjectOutcome> Earlier(const ProjectName& project, const std::string& inputs) const;
    // Keeps the outcome of a project that was done. One that could not be loaded is not kept.
    void Add(const ProjectName& project, const std::string& inputs, const ProjectOutcome& outcome);
    // Removes the lines of earlier states of projects. Empty: all was stored; else why not, for the user.
    std::string Close();

  private:
    struct Place {
        std::int64_t offset = 0, length = 0;
    };
    bool ReadLines(const std::string& head);
    std::string LineAt(const Place& place) const;
    std::string NotStored() const { return "the stamps of --resume could not be stored whole: " + m_file; }
    void Append(const std::string& line, const std::string& project);

    mutable std::mutex m_mutex;  // held while the members below are used
    std::string m_file;
    std::string m_head;
    std::map<std::string, Place> m_places;  // by project; the last line of each
    mutable std::fstream m_stream;          // the file, open for its whole life
    std::int64_t m_length = 0;
    std::size_t m_lines = 0;
    std::string m_fault;
};

// The options of a command that were given, with their values, in the order of its help. Those that change no
// outcome are left out: the projects, --files-from and --resume.
std::string GivenOptions(const CommandParser& command);

void AddResumeOption(CommandParser& command, bool& resume, const char* needs);

}  // namespace lumerin
