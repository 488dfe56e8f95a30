// SPDX-License-Identifier: MIT
// The host's binary result files: framed sequential files and the force file of fixed records.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "samples/Model.h"
#include "samples/OutputFile.h"

namespace lumerin {

namespace samples {

// One logical record; integers and reals are stored with the low byte first on every machine.
class Record {
  public:
    Record& Int(std::int32_t value);
    Record& Ints(std::initializer_list<std::int32_t> values);
    Record& Zeros(int count);  // 32-bit words
    Record& Real(double value);
    Record& Text(std::string_view text, std::size_t width);  // cut or filled with blanks
    const std::string& Bytes() const { return m_bytes; }

  private:
    std::string m_bytes;
};

// A sequential file: blocks of at most 128 bytes between two length bytes.
class SequentialFile {
  public:
    explicit SequentialFile(const std::filesystem::path& path);
    // An empty record is not stored: it cannot be requested.
    void Write(const Record& record);
    // Writes the end mark; throws SampleError as the writes do.
    void Close();

  private:
    OutputFile m_file;
};

// Suffix of a file of the substructure with this index from 0: the first has no number.
std::string NumberedSuffix(std::string_view suffix, std::size_t substructure);

// All binary files of the project; `base` is the path without suffix. Throws SampleError.
void WriteResultFiles(const std::filesystem::path& base, const Project& project);

}  // namespace samples

}  // namespace lumerin
