// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "framework/File.h"

namespace lumerin {

// A sequential result file: the mark 'K', then a chain of blocks, each framed by a length byte on both sides.
// Integers are 32-bit little-endian, reals IEEE. Callers read bytes without the framing.
class CSeqFile : public CFile {
  public:
    CSeqFile() = default;
    explicit CSeqFile(const std::string& path);  // throws when the file cannot be opened or lacks the mark

    // False: the file cannot be opened or lacks the mark; the next Read then throws. `error` receives the
    // reason.
    bool Open(const std::string& path, CFileException* error = nullptr);

    // `count` bytes from as many blocks as that takes. 0 when the end mark or the end of the file comes
    // first, even when part of the request was stored already; an optional record is recognised by this.
    unsigned Read(void* buffer, unsigned count);

    // As Read, for a required record: throws with the record's name.
    void ReadRecord(void* buffer, unsigned count, const char* record);
    template <std::size_t N>
    std::array<int, N> ReadInts(const char* record) {
        std::array<int, N> values{};
        ReadRecord(values.data(), static_cast<unsigned>(sizeof(values)), record);
        return values;
    }

    // Throws when a number read from the file is out of its range. `what` names it in the message.
    void RequireRange(const char* what, long long value, long long lowest, long long highest) const;
    // The same for a count of things of which each takes bytes of the file.
    void CheckCount(const char* what, long long count, long long bytesEach) const {
        RequireRange(what, count, 0, Length() / bytesEach);
    }
    [[noreturn]] void Fail(CFileException::Cause cause, const std::string& fault) const;
};

// A direct file: records of one length, numbered from 1, without header or framing.
class CDirFile : public CFile {
  public:
    bool Open(const std::string& path, unsigned recordLength, CFileException* error = nullptr);

    // One record. Fewer bytes than the record length at the end of the file; the buffer then keeps its old
    // contents, so a record past the end returns the record before again.
    unsigned Read(void* buffer, long long recordNumber);

  private:
    unsigned m_nRecordLength = 0;
};

}  // namespace lumerin
