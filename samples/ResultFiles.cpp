// SPDX-License-Identifier: MIT
#include "samples/ResultFiles.h"

#include <algorithm>
#include <bit>
#include <vector>

#include "samples/Forces.h"

namespace lumerin {

namespace samples {
namespace {

constexpr char kFileMark = 0x4B;
constexpr std::size_t kBlockLength = 128;
constexpr char kEndingMark = static_cast<char>(0x82);
constexpr char kContinuedMark = static_cast<char>(0x81);

template <typename Word>
void AppendLittleEndian(std::string& bytes, Word word) {
    for (std::size_t i = 0; i < sizeof word; ++i)
        bytes.push_back(static_cast<char>((word >> (8 * i)) & 0xff));
}

void WriteCount(const std::filesystem::path& base, const Project& project) {
    SequentialFile file(WithSuffix(base, ".TWR"));
    file.Write(Record().Int(static_cast<std::int32_t>(project.substructures.size())));
    file.Close();
}

void WriteConvergence(const std::filesystem::path& base, const Project& project) {
    SequentialFile file(WithSuffix(base, ".ncv"));
    file.Write(Record().Int(project.cases));
    file.Write(Record().Zeros(4));
    file.Write(Record().Int(0));
    file.Write(Record().Int(0));
    file.Write(Record().Int(static_cast<std::int32_t>(project.mode)));
    file.Write(Record().Real(0.0));
    file.Write(Record().Int(0));
    file.Close();
}

void WriteSections(SequentialFile& file, const SubstructurePlan& plan) {
    Record sizes;
    for (int size : plan.sectionBlocks) sizes.Int(size);
    file.Write(Record().Int(static_cast<std::int32_t>(plan.sectionBlocks.size())));
    file.Write(sizes);
    for (const auto& section : plan.pileSections) {
        file.Write(Record().Int(section.kind).Real(section.first).Real(section.second).Real(section.third));
    }
}

void WriteModelHeader(SequentialFile& file, const Substructure& sub) {
    const auto& plan = sub.plan;
    const auto extra = static_cast<std::int32_t>(plan.extraMembers.size());
    int sections = 0;
    if (extra > 0) {
        const auto bySection = [](const auto& a, const auto& b) { return a.section < b.section; };
        const auto [low, high] =
            std::minmax_element(plan.extraMembers.begin(), plan.extraMembers.end(), bySection);
        sections = high->section - low->section + 1;
    }
    file.Write(Record().Ints(
        {static_cast<std::int32_t>(sub.nodes.size()), 0, static_cast<std::int32_t>(plan.type)}));
    file.Write(Record().Ints({sub.columns, sub.HasCantilevers() ? 2 : 0, sub.cantileverNodes, extra, sections,
                              plan.columnNodes, sub.spanNodes, 0, static_cast<std::int32_t>(plan.units), 0, 0,
                              plan.columnSections, 0}));
    file.Write(Record().Zeros(10));
}

// Node k only orients the local axes; the first node does for every element.
void WriteElements(SequentialFile& file, const Substructure& sub) {
    file.Write(Record().Ints({0, static_cast<std::int32_t>(sub.elements.size())}));
    for (const auto& row : sub.elements) {
        file.Write(Record().Ints({row.number, 0, row.nodeI, row.nodeJ, 1, row.section, 0}));
    }
}

void WritePileFile(const std::filesystem::path& path, const Project& project, const Substructure& sub) {
    SequentialFile file(path);
    WriteSections(file, sub.plan);
    file.Write(Record().Text(project.title, 256));
    WriteModelHeader(file, sub);
    for (const auto& node : sub.nodes) file.Write(Record().Real(node.x).Real(node.y).Real(node.z));
    for (std::size_t i = 0; i < sub.nodes.size(); ++i) file.Write(Record().Real(0.0).Real(0.0).Real(0.0));
    WriteElements(file, sub);
    if (sub.plan.type != StructureType::PileBent) file.Write(Record().Zeros(2));
    file.Close();
}

// The upper half of a pile has the first section, the lower half the last.
void WritePileModel(const std::filesystem::path& path, const Project& project, const Substructure& sub) {
    const auto& plan = sub.plan;
    SequentialFile file(path);
    file.Write(Record().Ints({sub.PileCount() * plan.pileNodes, project.cases, 0, plan.pileRows,
                              plan.pileColumns, 0, sub.PileCount(), 0, plan.pileNodes}));
    file.Write(Record().Zeros(plan.pileRows - 1));
    file.Write(Record().Zeros(plan.pileColumns - 1));
    Record sections;
    for (int e = 0; e < sub.PileElements(); ++e) {
        sections.Int(2 * e < sub.PileElements() ? 1 : static_cast<std::int32_t>(plan.pileSections.size()));
    }
    for (int p = 0; p < sub.PileCount(); ++p) file.Write(sections);
    file.Write(Record().Zeros(sub.PileCount()));
    file.Close();
}

void WriteCodeFamily(const std::filesystem::path& path, const Project& project) {
    SequentialFile file(path);
    file.Write(Record().Int(static_cast<std::int32_t>(project.family)));
    file.Write(Record().Zeros(18));
    file.Write(Record().Zeros(54));
    file.Close();
}

// Every bearing has two load points; only the records at the front of the second list carry its node.
void WriteBearings(const std::filesystem::path& path, const Substructure& sub) {
    const auto& rows = sub.bearingRows;
    const auto& left = rows.empty() ? std::vector<Bearing>{} : rows.front();
    const auto& right = rows.size() > 1 ? rows[1] : left;
    const auto& y = sub.plan.bearingRowY;
    SequentialFile file(path);
    file.Write(
        Record()
            .Ints({static_cast<std::int32_t>(2 * left.size()), static_cast<std::int32_t>(2 * right.size())})
            .Zeros(10));
    for (std::size_t r = 0; r < 2; ++r) {
        for (const auto& bearing : r == 0 ? left : right) {
            const Record point =
                Record().Real(bearing.at.x).Real(y[std::min(r, y.size() - 1)]).Real(bearing.at.z);
            file.Write(point);
            file.Write(point);
        }
    }
    for (const auto* row : {&left, &right}) {
        for (std::size_t i = 0; i + 1 < 2 * row->size(); ++i) {
            file.Write(Record().Ints({0, i < row->size() ? (*row)[i].node : 0, 0}));
        }
    }
    file.Close();
}

void WriteForces(const std::filesystem::path& path, const Project& project, std::size_t index) {
    ForceModel model(project, index);
    OutputFile file(path);
    std::vector<float> words;
    std::string swapped;
    const int endOfHole = project.cases - project.filledCases;
    for (int c = 0; c < project.cases; ++c) {
        if (c == project.filledCases && c < endOfHole) {
            const std::int64_t caseBytes = static_cast<std::int64_t>(words.size() * sizeof(float));
            file.Skip((endOfHole - c) * caseBytes);
            c = endOfHole;
        }
        words.clear();
        model.Solve(c);
        model.AppendRecords(words);
        if constexpr (std::endian::native == std::endian::little) {
            const auto bytes = std::as_bytes(std::span(words));
            file.Write(std::span(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
        } else {
            swapped.clear();
            for (float word : words) AppendLittleEndian(swapped, std::bit_cast<std::uint32_t>(word));
            file.Write(std::string_view(swapped));
        }
    }
    file.Close();
}

}  // namespace

Record& Record::Int(std::int32_t value) {
    AppendLittleEndian(m_bytes, static_cast<std::uint32_t>(value));
    return *this;
}

Record& Record::Ints(std::initializer_list<std::int32_t> values) {
    for (std::int32_t value : values) Int(value);
    return *this;
}

Record& Record::Zeros(int count) {
    for (int i = 0; i < count; ++i) Int(0);
    return *this;
}

Record& Record::Real(double value) {
    AppendLittleEndian(m_bytes, std::bit_cast<std::uint64_t>(value));
    return *this;
}

Record& Record::Text(std::string_view text, std::size_t width) {
    const std::size_t end = m_bytes.size() + width;
    m_bytes.append(text.substr(0, width));
    m_bytes.resize(end, ' ');
    return *this;
}

SequentialFile::SequentialFile(const std::filesystem::path& path) : m_file(path) {
    m_file.Write(std::string_view(&kFileMark, 1));
}

void SequentialFile::Write(const Record& record) {
    std::string_view rest = record.Bytes();
    std::string framed;
    while (!rest.empty()) {
        const std::size_t length = std::min(rest.size(), kBlockLength);
        const char mark = rest.size() > kBlockLength ? kContinuedMark : static_cast<char>(length);
        framed.push_back(mark);
        framed.append(rest.substr(0, length));
        framed.push_back(mark);
        rest.remove_prefix(length);
    }
    m_file.Write(std::string_view(framed));
}

void SequentialFile::Close() {
    m_file.Write(std::string_view(&kEndingMark, 1));
    m_file.Close();
}

std::string NumberedSuffix(std::string_view suffix, std::size_t substructure) {
    std::string result(suffix);
    if (substructure > 0) result += std::to_string(substructure + 1);
    return result;
}

void WriteResultFiles(const std::filesystem::path& base, const Project& project) {
    WriteCount(base, project);
    WriteConvergence(base, project);
    for (std::size_t k = 0; k < project.substructures.size(); ++k) {
        const Substructure& sub = project.substructures[k];
        WritePileFile(WithSuffix(base, NumberedSuffix(".PLF", k)), project, sub);
        WritePileModel(WithSuffix(base, NumberedSuffix(".PIL", k)), project, sub);
        WriteBearings(WithSuffix(base, NumberedSuffix(".pls", k)), sub);
        if (project.family != CodeFamily::None) {
            WriteCodeFamily(WithSuffix(base, NumberedSuffix(".ash", k)), project);
        }
        WriteForces(WithSuffix(base, NumberedSuffix(".vmd", k)), project, k);
    }
}

}  // namespace samples

}  // namespace lumerin
