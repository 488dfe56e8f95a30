// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace lumerin {

// A folder of the test that runs, empty at first and removed with the object. Its name is that of the test
// and a few letters that no other folder has, so that test programs can run side by side.
class ScratchFolder {
  public:
    ScratchFolder() {
        const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
        std::string name = std::string(test.test_suite_name()) + "-" + test.name() + "-XXXXXX";
        std::replace(name.begin(), name.end(), '/', '-');
        std::string path = (std::filesystem::temp_directory_path() / name).string();
        if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("no folder can be made: " + path);
        m_path = path;
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    const std::filesystem::path& Path() const { return m_path; }
    std::string PathOf(const std::string& file) const { return (m_path / file).string(); }
    bool Has(const std::string& file) const { return std::filesystem::exists(m_path / file); }
    // The stored bytes; empty for a file that does not exist.
    std::string Read(const std::string& file) const {
        std::ifstream in(m_path / file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    // Creates the folders of the path.
    void Write(const std::string& file, const std::string& bytes) const {
        std::filesystem::create_directories((m_path / file).parent_path());
        std::ofstream(m_path / file, std::ios::binary) << bytes;
    }

  private:
    std::filesystem::path m_path;
};

}  // namespace lumerin
