// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "MeasuredProject.h"

namespace lumerin {

// A project of 8 MB in a folder of its own, made once for all benchmarks and removed after them.
class SampleProject {
  public:
    static const SampleProject& Get();
    SampleProject(const SampleProject&) = delete;
    SampleProject& operator=(const SampleProject&) = delete;
    ~SampleProject();

    // Reads the project anew; throws when that fails.
    MeasuredProject Load() const;
    // The project with every table's results, read on the first call.
    static MeasuredProject& Loaded();
    std::string OutputFile() const { return (m_folder / "out").string(); }
    long long ForceBytes() const;

  private:
    SampleProject();
    std::filesystem::path m_folder;
};

}  // namespace lumerin
