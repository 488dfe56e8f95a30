// SPDX-License-Identifier: MIT
// A file that is written front to back in large blocks.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lumerin {

namespace samples {

// The fault, as one line for the terminal.
class SampleError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// The path with text appended to it.
std::filesystem::path WithSuffix(const std::filesystem::path& base, std::string_view suffix);

// Makes the folder and those above it where they are not there; throws SampleError.
void MakeFolder(const std::filesystem::path& folder);

class OutputFile {
  public:
    // Creates the file anew; throws SampleError, which names it, here and in the operations below.
    explicit OutputFile(const std::filesystem::path& path);
    ~OutputFile() = default;
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void Write(std::span<const char> bytes);
    void Write(std::string_view text) { Write(std::span<const char>(text.data(), text.size())); }

    // Leaves a hole, which reads as zeros; data must follow it.
    void Skip(std::int64_t bytes);

    // Writes what is still in the buffer. A file that is not closed may lack its end.
    void Close();

  private:
    void Flush();
    [[noreturn]] void Fail() const;

    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::filesystem::path m_path;
    std::unique_ptr<std::FILE, Closer> m_file;
    std::vector<char> m_block;
};

}  // namespace samples

}  // namespace lumerin
