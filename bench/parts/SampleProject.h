#pragma once

#include <filesystem>
#include <string>

// A project of 8 MB in a folder of its own, made once for all benchmarks and removed behind them.
class SampleProject {
  public:
    static const SampleProject& Get();
    SampleProject(const SampleProject&) = delete;
    SampleProject& operator=(const SampleProject&) = delete;
    ~SampleProject();

    // Reads the project anew; throws when that fails.
    void Load() const;
    // Reads it where it is not held yet, with every table's results.
    void LoadOnce() const;
    std::string OutputFile() const { return (m_folder / "out").string(); }
    long long ForceBytes() const;

  private:
    SampleProject();
    std::filesystem::path m_folder;
};
