// A folder for one test, taken away when the test ends.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "samples/Presets.h"
#include "samples/Project.h"

class SampleFolder {
  public:
    SampleFolder() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        std::string name = std::string(test->test_suite_name()) + "." + test->name();
        for (char& c : name) {
            if (c == '/') c = '-';
        }
        m_path = std::filesystem::temp_directory_path() / (name + "." + std::to_string(getpid()));
        std::filesystem::remove_all(m_path);
    }
    ~SampleFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }
    SampleFolder(const SampleFolder&) = delete;
    SampleFolder& operator=(const SampleFolder&) = delete;

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

  private:
    std::filesystem::path m_path;
};
