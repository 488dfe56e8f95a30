// SPDX-License-Identifier: MIT
#include "results/PileFile.h"

#include <array>
#include <cstring>

#include "framework/Index.h"

namespace lumerin {

namespace {

constexpr unsigned kSectionRecordBytes = 28;
constexpr unsigned kTitleBytes = 256;

CSectionRecord ReadSectionRecord(CSeqFile& file) {
    std::array<char, kSectionRecordBytes> bytes{};
    file.ReadRecord(bytes.data(), kSectionRecordBytes, "section record");
    CSectionRecord record;
    std::memcpy(&record.kind, bytes.data(), sizeof(record.kind));
    std::memcpy(&record.first, bytes.data() + 4, sizeof(record.first));
    std::memcpy(&record.second, bytes.data() + 12, sizeof(record.second));
    return record;
}

}  // namespace

CPileFileHead ReadPileFileHead(CSeqFile& file) {
    CPileFileHead head;
    head.blocks = file.ReadInts<1>("section block count")[0];
    file.CheckCount("section block count", head.blocks, 4);
    std::vector<int> sizes(Index(head.blocks));
    file.ReadRecord(sizes.data(), static_cast<unsigned>(sizes.size() * 4), "section block sizes");
    long long records = 0;
    for (const int size : sizes) {
        file.CheckCount("section record count of a block", size, kSectionRecordBytes);
        records += size;
    }
    file.RequireRange("section record count", records, 0, kMaxSectionRecords);
    for (long long i = 0; i < records; ++i) head.sections.push_back(ReadSectionRecord(file));
    std::array<char, kTitleBytes> title{};
    file.ReadRecord(title.data(), kTitleBytes, "title");
    return head;
}

}  // namespace lumerin
