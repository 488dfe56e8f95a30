// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "framework/WholeFile.h"

namespace lumerin {

// An output file in which every line feed is stored as carriage return and line feed, on every platform, and
// which counts the stored bytes. The file gets its name, and replaces an earlier one, when it is closed
// without a fault; a stream that is destroyed without a close leaves the earlier file unchanged. A failed
// stream ignores what is written to it.
class StoredStream {
  public:
    StoredStream() = default;
    explicit StoredStream(const std::string& path) { Open(path); }
    StoredStream(const StoredStream&) = delete;
    StoredStream& operator=(const StoredStream&) = delete;
    ~StoredStream() = default;

    // Closes an open file first.
    void Open(const std::string& path);
    StoredStream& operator<<(std::string_view text) {
        Write(text);
        return *this;
    }
    void Write(std::string_view text);
    // Bytes stored so far, those in the buffer included.
    std::int64_t Position() const { return m_position; }
    // Puts the file in its place. Sets the fail state when the file system has refused a part of it; the
    // earlier file is unchanged then.
    void Close();
    bool IsOpen() const { return m_file.IsOpen(); }
    bool Failed() const { return m_failed; }
    void ClearState() { m_failed = false; }

  private:
    void Flush();
    void ReportFailure() const;
    WholeFile m_file;
    std::string m_path;
    std::vector<char> m_buffer;
    std::size_t m_used = 0;
    std::int64_t m_position = 0;
    bool m_failed = false;
};

}  // namespace lumerin
