// SPDX-License-Identifier: MIT
#include "framework/TemporaryFolder.h"

#include <filesystem>
#include <stdexcept>

#include "framework/NativePath.h"
#include "framework/Platform.h"

namespace lumerin {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::error_code failure;
    const fs::path parent = fs::temp_directory_path(failure);
    const std::string wanted = FromNativePath((failure ? fs::path("/tmp") : parent) / "new-");
    m_path = platform::MakeFolder(wanted);
    if (m_path.empty()) throw std::runtime_error("no temporary folder can be made: " + wanted + "XXXXXX");
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(NativePath(m_path), ignored);
}

}  // namespace lumerin
