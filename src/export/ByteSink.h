// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "framework/WholeFile.h"

namespace lumerin {

// Where the bytes of a text form go. Both functions throw ExportError.
class ByteSink {
  public:
    ByteSink() = default;
    ByteSink(const ByteSink&) = delete;
    ByteSink& operator=(const ByteSink&) = delete;
    virtual ~ByteSink() = default;

    virtual void Write(std::string_view bytes) = 0;
    // All bytes are written; a file gets its name.
    virtual void Commit() = 0;
};

// A file, which replaces an earlier one when it is complete.
class FileSink : public ByteSink {
  public:
    // Throws ExportError when no file of that name can be written.
    explicit FileSink(const std::string& path);

    void Write(std::string_view bytes) override;
    void Commit() override;

  private:
    std::string m_path;
    WholeFile m_file;
};

// Standard output, or another stream of the caller's.
class StreamSink : public ByteSink {
  public:
    explicit StreamSink(std::ostream& out) : m_out(out) {}

    void Write(std::string_view bytes) override;
    void Commit() override;

  private:
    std::ostream& m_out;
};

// Throws ExportError for a name that no result may take: that of a file that projects are read from, which a
// slip of the user would destroy, and that of a device.
void RequireDocumentName(const std::string& path);

// Why a file of that path cannot be written: "permission denied: PATH" and the like.
std::string WhyNotWritten(const std::string& path);

}  // namespace lumerin
