// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "samples/Presets.h"
#include "samples/Project.h"
#include "support/ScratchFolder.h"

namespace lumerin {

// A place for sample projects; the first that is written makes the folder.
class SampleFolder {
  public:
    const std::filesystem::path& Path() const { return m_path; }
    std::string Base(const std::string& name) const { return (m_path / name).string(); }

    // Writes the project and returns its base path.
    std::string Write(const samples::SampleOptions& options) const {
        const auto project = samples::MakeProject(options);
        samples::WriteProject(m_path, project);
        return Base(project.name);
    }
    std::string Write(const std::string& preset) const {
        samples::SampleOptions options;
        options.preset = preset;
        return Write(options);
    }
    // A pile bent of two piles under two cases, the smallest project that is whole.
    std::string WriteSmall(const std::string& name) const {
        samples::SampleOptions options;
        options.preset = "bent";
        options.name = name;
        options.cases = 2;
        options.rows = 1;
        options.columns = 2;
        return Write(options);
    }

  private:
    ScratchFolder m_scratch;
    std::filesystem::path m_path = m_scratch.Path() / "samples";
};

}  // namespace lumerin
