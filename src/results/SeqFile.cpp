// SPDX-License-Identifier: MIT
#include "results/SeqFile.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#include "text/OutOfRange.h"

namespace lumerin {

namespace {

constexpr unsigned char kMark = 0x4B;
constexpr unsigned char kEndMark = 0x82;
constexpr unsigned kLongestBlock = 128;

// The mark is at the very start. Throws only when the read itself fails.
bool HasMark(CFile& file) {
    unsigned char first = 0;
    return file.ReadBytes(&first, 1) == 1 && first == kMark;
}

}  // namespace

CSeqFile::CSeqFile(const std::string& path) : CFile(path) {
    if (!HasMark(*this))
        Fail(CFileException::generic, "is not a sequential result file (its mark is missing)");
}

bool CSeqFile::Open(const std::string& path, CFileException* error) {
    if (!CFile::Open(path, error)) return false;
    if (HasMark(*this)) return true;
    Close();
    if (error != nullptr) {
        *error = CFileException(CFileException::generic, path,
                                "is not a sequential result file (its mark is missing)");
    }
    return false;
}

unsigned CSeqFile::Read(void* buffer, unsigned count) {
    if (count == 0) return 0;
    unsigned char* to = static_cast<unsigned char*>(buffer);
    unsigned left = count;
    while (left > 0) {
        unsigned char length = 0;
        if (ReadBytes(&length, 1) != 1 || length == kEndMark) return 0;
        const unsigned wanted = std::min(std::min<unsigned>(length, kLongestBlock), left);
        if (ReadBytes(to, wanted) != wanted) return 0;
        unsigned char trailer = 0;
        ReadBytes(&trailer, 1);
        to += wanted;
        left -= wanted;
    }
    return count;
}

void CSeqFile::ReadRecord(void* buffer, unsigned count, const char* record) {
    if (Read(buffer, count) != count) {
        Fail(CFileException::endOfFile, std::string("ends before its record \"") + record + "\"");
    }
}

void CSeqFile::RequireRange(const char* what, long long value, long long lowest, long long highest) const {
    if (value >= lowest && value <= highest) return;
    Fail(CFileException::badCount, OutOfRange(what, value, lowest, highest));
}

void CSeqFile::Fail(CFileException::Cause cause, const std::string& fault) const {
    throw CFileException(cause, Path(), fault);
}

bool CDirFile::Open(const std::string& path, unsigned recordLength, CFileException* error) {
    m_nRecordLength = recordLength;
    return CFile::Open(path, error);
}

unsigned CDirFile::Read(void* buffer, long long recordNumber) {
    Seek((recordNumber - 1) * static_cast<std::int64_t>(m_nRecordLength));
    std::vector<unsigned char> record(m_nRecordLength);
    const unsigned got = ReadBytes(record.data(), m_nRecordLength);
    if (got > 0 && got == m_nRecordLength) std::memcpy(buffer, record.data(), got);
    return got;
}

}  // namespace lumerin
