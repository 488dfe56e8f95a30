#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// An output file in which every line feed is stored as carriage return and line feed, on every platform, and
// which knows the stored position. Opening truncates. A stream that failed swallows what is written to it.
class StoredStream {
  public:
    StoredStream() = default;
    explicit StoredStream(const std::string& path) { Open(path); }
    StoredStream(const StoredStream&) = delete;
    StoredStream& operator=(const StoredStream&) = delete;
    ~StoredStream() { Close(); }

    void Open(const std::string& path);
    StoredStream& operator<<(std::string_view text) {
        Write(text);
        return *this;
    }
    void Write(std::string_view text);
    // Bytes stored so far, those in the buffer included.
    std::int64_t Position() const { return m_nPosition; }
    // Sets the fail state when the file system refuses the rest.
    void Close();
    bool IsOpen() const { return m_file != nullptr; }
    bool Failed() const { return m_bFailed; }
    void ClearState() { m_bFailed = false; }

  private:
    void Flush();
    void TellFailure() const;
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Closer> m_file;
    std::string m_strPath;
    std::vector<char> m_buffer;
    std::size_t m_nUsed = 0;
    std::int64_t m_nPosition = 0;
    bool m_bFailed = false;
};
