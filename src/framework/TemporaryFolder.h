// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// A new folder in the system's folder for temporary files, which other users may not read. It is removed with
// what is in it at the end of the object's life.
class TemporaryFolder {
  public:
    // Throws std::runtime_error where no folder can be made.
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    // Without a separator at its end.
    const std::string& Path() const { return m_path; }

  private:
    std::string m_path;
};

}  // namespace lumerin
