// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <system_error>

namespace lumerin {

// A failure of the result file layer. It carries the file and what is wrong with it; no reader catches it.
// The dialog that is being shown reports it in a message box and stays open.
class CFileException : public std::exception {
  public:
    enum Cause { none, generic, fileNotFound, accessDenied, endOfFile, badFormat, badCount };

    CFileException(Cause cause, std::string fileName, const std::string& fault, long osError = 0);

    const char* what() const noexcept override { return m_strText.c_str(); }

    Cause m_cause = none;
    long m_lOsError = 0;
    std::string m_strFileName;
    std::string m_strText;  // "<file>: <fault>"
};

// The path of an existing file: `path` itself or, on a file system with case-sensitive names, the file whose
// folders and name differ from it in case alone. Empty: there is none.
std::string FindFileAnyCase(const std::string& path);
bool IsFolder(const std::string& path);
// The same text for all paths that the file system takes for one because of the case of their letters alone.
std::string PathButForCase(const std::string& path);
// A folder itself, not a link to one.
bool IsRealFolder(const std::string& path);
// Makes the folder, and those above it that are missing. False: it is not there afterwards.
bool MakeFolders(const std::string& path);

// Null: it cannot be opened, for the reason in errno. The caller closes it.
std::FILE* OpenForReading(const std::string& path);

// Why an existing file cannot be written, or a new one not be made in its folder; none where it can be.
// Nothing is changed.
std::error_code ErrorOfWriting(const std::string& path);
// That fault for a message which names the file: "permission denied", "another program has it open".
std::string FaultInWords(const std::error_code& fault);

// Identifies a file and its version without reading it.
struct FileStamp {
    std::int64_t length = -1;   // -1: there is no such file
    std::int64_t modified = 0;  // in ticks of the platform
    std::uint64_t volume = 0, index = 0;

    bool operator==(const FileStamp&) const = default;
};
// The stamp of the file at the path, found whatever the case of its name.
FileStamp StampOf(const std::string& path);
// When the file was written last; nothing where there is none.
std::optional<std::chrono::system_clock::time_point> LastChange(const std::string& path);

// A file that is opened for reading; other programs may open it meanwhile, too. Reading fails with
// CFileException.
class CFile {
  public:
    CFile() = default;
    explicit CFile(const std::string& path);  // throws when the file cannot be opened

    // False: the file cannot be opened; `error`, when given, receives the reason.
    bool Open(const std::string& path, CFileException* error = nullptr);
    void Close() { m_file.reset(); }
    bool IsOpen() const { return m_file != nullptr; }

    // Bytes read: fewer than `count` only at the end of the file. Throws on a closed file; when the file
    // could not be opened, the message gives the reason.
    unsigned ReadBytes(void* buffer, unsigned count);
    void Seek(std::int64_t position);  // from the start; throws when negative
    std::int64_t Length() const;

    const std::string& Path() const { return m_strPath; }

  private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    [[noreturn]] void ThrowNotOpen() const;

    std::unique_ptr<std::FILE, Closer> m_file;
    std::string m_strPath;
    int m_nOpenError = 0;  // of an open that failed
};

}  // namespace lumerin
