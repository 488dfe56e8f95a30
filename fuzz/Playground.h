// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "fuzz/Archive.h"

namespace lumerin {

// The folder in memory in which a fuzz target keeps its project, and the runs of the dialogs. A target ends
// by abort when a step fails with anything but a message of the file layer: such a failure is not a check
// that was written for the input.
class Playground {
  public:
    Playground();
    Playground(const Playground&) = delete;
    Playground& operator=(const Playground&) = delete;
    ~Playground();

    void Clear() const;
    // Writes a file by its name after the base path; false for a name that is not one of a project's files.
    bool Write(const std::string& name, std::string_view bytes) const;
    void WriteArchive(const Archive& archive) const;
    std::string Base() const { return m_folder + "/p"; }
    std::string Path(const std::string& name) const;

    // Opens the report dialog on the project and plays the script; the output is discarded.
    void Play(const std::string& script, int format = 2) const;

    // Makes every table of records of the project, its verdict and its description.
    void EvaluateTables() const;

  private:
    std::string m_folder;
};

Playground& TheFolder();

// Presses every table and the full report in every format, for all cases and for a selection of them.
std::string EveryTableScript(std::uint8_t choice);

// The files of a small sample project.
Archive SampleArchive(const std::string& preset);

inline std::span<const std::uint8_t> Bytes(const std::uint8_t* data, std::size_t size) {
    return {data, size};
}
inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

}  // namespace lumerin
