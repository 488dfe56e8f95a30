// SPDX-License-Identifier: MIT
// A small sample project whose files a test damages, and what the whole program does with it.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "cli/ReportDriver.h"
#include "framework/headless/Headless.h"
#include "session/Constants.h"
#include "support/SampleFolder.h"

namespace lumerin {

// The sanitizers make every step several times slower, so the tests that walk through all bytes or all
// allocations take wider steps under them, and leave the process's memory alone.
#ifdef LUMERIN_SANITIZED
inline constexpr bool kSanitized = true;
#else
inline constexpr bool kSanitized = false;
#endif

struct ProjectBytes {
    std::string name;  // of the file, below the project's folder
    std::string bytes;
};

inline std::string ReadBytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

inline void WriteBytesOf(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

class BrokenProject {
  public:
    explicit BrokenProject(const std::string& preset, int cases = 3) {
        headless::ResetState();
        samples::SampleOptions options;
        options.preset = preset;
        options.name = "p";
        options.cases = cases;
        options.rows = 1;
        options.columns = 2;
        m_base = m_folder.Write(options);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(m_folder.Path())) {
            if (!entry.is_regular_file()) continue;
            m_files.push_back({std::filesystem::relative(entry.path(), m_folder.Path()).string(),
                               ReadBytesOf(entry.path())});
        }
        std::sort(m_files.begin(), m_files.end(),
                  [](const ProjectBytes& a, const ProjectBytes& b) { return a.name < b.name; });
    }

    const std::string& Base() const { return m_base; }
    const std::filesystem::path& Folder() const { return m_folder.Path(); }
    const std::vector<ProjectBytes>& Files() const { return m_files; }
    const ProjectBytes& File(const std::string& name) const {
        return *std::find_if(m_files.begin(), m_files.end(),
                             [&](const ProjectBytes& file) { return file.name == name; });
    }
    std::size_t TotalBytes() const {
        std::size_t total = 0;
        for (const ProjectBytes& file : m_files) total += file.bytes.size();
        return total;
    }
    void Put(const ProjectBytes& file, const std::string& bytes) const {
        WriteBytesOf(m_folder.Path() / file.name, bytes);
    }
    void Restore(const ProjectBytes& file) const { Put(file, file.bytes); }

  private:
    SampleFolder m_folder;
    std::string m_base;
    std::vector<ProjectBytes> m_files;
};

// The output of `lumerin report`.
struct Answer {
    ExitStatus status = kExitDone;
    std::string out;
    std::vector<std::string> said;      // lines on the error stream, except
    std::vector<std::string> findings;  // errors and warnings about the data
};

inline Answer ReportOf(const std::string& base, const std::vector<std::string>& tables = {"full"},
                       const std::vector<int>& formats = {kFormatText}) {
    ReportRequest options;
    options.projects = {base + ".in"};
    options.tables = tables;
    options.formats = formats;
    options.footer = {false, false, false, false};
    options.common.version = "5.2.1";
    headless::State().clock = LocalTime{2026, 11, 14, 6, 8, 30, 0};
    std::ostringstream out, err;
    Answer answer;
    answer.status = RunReports(options, out, err);
    answer.out = out.str();
    std::istringstream text(err.str());
    for (std::string line; std::getline(text, line);) {
        const bool isFinding =
            line.find(": warning: ") != std::string::npos || line.find(": error: ") != std::string::npos;
        (isFinding ? answer.findings : answer.said).push_back(line);
    }
    return answer;
}

// A loaded project, or one clear message that names a file of the project and its fault.
inline testing::AssertionResult IsLoadedOrOneClearMessage(const Answer& answer, const std::string& base) {
    for (const std::string& line : answer.said) {
        if (line.find("operation failed") != std::string::npos ||
            line.find("enough memory") != std::string::npos ||
            line.find("more than this process can have") != std::string::npos) {
            return testing::AssertionFailure() << "no check caught it: " << line;
        }
    }
    if (answer.status == kExitDone || answer.status == kExitIncomplete || answer.status == kExitUnsound) {
        return testing::AssertionSuccess();
    }
    if (answer.status != kExitNotLoaded || answer.said.empty()) {
        return testing::AssertionFailure()
               << "status " << answer.status << " with " << answer.said.size() << " messages";
    }
    // For a substructure before the damaged one a short force file may have been reported.
    for (std::size_t i = 0; i + 1 < answer.said.size(); ++i) {
        if (answer.said[i].find("force records are missing") == std::string::npos) {
            return testing::AssertionFailure() << "more than one message: " << answer.said[i];
        }
    }
    const std::string& line = answer.said.back();
    // After the name of the project: the file, then what is wrong with it. The host's engineers know the two
    // texts on convergence, which name none.
    if (line == "lumerin: no project " + base + ".in") return testing::AssertionSuccess();
    const std::string head = base + ".in: ";
    const std::string rest = line.starts_with(head) ? line.substr(head.size()) : std::string();
    const bool clear = rest.starts_with(base + ".") && rest.find(": ") != std::string::npos;
    if (clear || rest.starts_with("No load cases converged")) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "unclear: " << line;
}

}  // namespace lumerin
