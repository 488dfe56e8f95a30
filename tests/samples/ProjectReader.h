// SPDX-License-Identifier: MIT
// A reader of project files for the tests, written apart from the sample maker: it walks the bytes itself.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

namespace lumerin {

namespace reader {

inline std::string ReadAll(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("no file " + path.string());
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline std::vector<std::string> ReadLines(const std::filesystem::path& path) {
    const std::string text = ReadAll(path);
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    if (start != text.size()) throw std::runtime_error("no line end in " + path.string());
    return lines;
}

// Logical records of a framed file; both length bytes of a block and the end mark are checked.
inline std::vector<std::string> Records(const std::string& bytes) {
    if (bytes.empty() || bytes[0] != 'K') throw std::runtime_error("no mark");
    std::vector<std::string> records;
    std::string record;
    std::size_t at = 1;
    for (;;) {
        const unsigned mark = static_cast<unsigned char>(bytes.at(at++));
        if (mark == 0x82) break;
        const std::size_t length = mark == 0x81 ? 128 : mark;
        if (length == 0 || length > 128) throw std::runtime_error("bad length byte");
        record += bytes.substr(at, length);
        at += length;
        if (static_cast<unsigned char>(bytes.at(at++)) != mark)
            throw std::runtime_error("length bytes differ");
        if (mark == 0x81) continue;
        records.push_back(record);
        record.clear();
    }
    if (at != bytes.size() || !record.empty()) throw std::runtime_error("bytes after the end mark");
    return records;
}

inline std::int32_t Int(const std::string& record, std::size_t word) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        value |= std::uint32_t{static_cast<unsigned char>(record.at(4 * word + i))} << (8 * i);
    }
    return static_cast<std::int32_t>(value);
}

inline double Real(const std::string& record, std::size_t byte) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < 8; ++i) {
        value |= std::uint64_t{static_cast<unsigned char>(record.at(byte + i))} << (8 * i);
    }
    double real = 0.0;
    std::memcpy(&real, &value, sizeof real);
    return real;
}

struct Row {
    int number, nodeI, nodeJ, section;
};

// The contents of the pile file, the pile model file and the bearing file for one substructure.
struct Model {
    int nodeCount = 0, type = 0, columns = 0, cantilevers = 0, cantileverNodes = 0, extraMembers = 0;
    int columnNodes = 0, spanNodes = 0, units = 0, columnSections = 0;
    std::vector<std::array<double, 3>> nodes;
    std::vector<Row> rows;
    std::vector<std::string> sections;
    int allPileNodes = 0, analysed = 0, pileRows = 0, pileColumns = 0, piles = 0, pileNodes = 0;
    std::vector<std::string> pileSections;

    int PileElements() const { return piles * (pileNodes - 1); }
    std::uintmax_t RecordsPerCase() const {
        return static_cast<std::uintmax_t>(PileElements()) + rows.size();
    }
};

// Reads records in order and refuses a record of another size than the format requires.
class Cursor {
  public:
    explicit Cursor(const std::filesystem::path& path) : m_records(Records(ReadAll(path))) {}
    std::string Take(std::size_t bytes) {
        if (bytes == 0) return {};
        const std::string& record = m_records.at(m_next++);
        if (record.size() != bytes) throw std::runtime_error("a record of another size");
        return record;
    }
    bool AtEnd() const { return m_next == m_records.size(); }

  private:
    std::vector<std::string> m_records;
    std::size_t m_next = 0;
};

inline void ReadPileFile(const std::filesystem::path& path, Model& model) {
    Cursor file(path);
    const auto blocks = static_cast<std::size_t>(Int(file.Take(4), 0));
    const std::string sizes = file.Take(4 * blocks);
    int sections = 0;
    for (std::size_t b = 0; b < blocks; ++b) sections += Int(sizes, b);
    for (int s = 0; s < sections; ++s) model.sections.push_back(file.Take(28));
    file.Take(256);
    const std::string counts = file.Take(12);
    model.nodeCount = Int(counts, 0);
    model.type = Int(counts, 2);
    const std::string header = file.Take(52);
    model.columns = Int(header, 0);
    model.cantilevers = Int(header, 1);
    model.cantileverNodes = Int(header, 2);
    model.extraMembers = Int(header, 3);
    model.columnNodes = Int(header, 5);
    model.spanNodes = Int(header, 6);
    model.units = Int(header, 8);
    model.columnSections = Int(header, 11);
    file.Take(40);
    for (int n = 0; n < model.nodeCount; ++n) {
        const std::string node = file.Take(24);
        model.nodes.push_back({Real(node, 0), Real(node, 8), Real(node, 16)});
    }
    for (int n = 0; n < model.nodeCount; ++n) file.Take(24);
    const int rows = Int(file.Take(8), 1);
    for (int r = 0; r < rows; ++r) {
        const std::string row = file.Take(28);
        model.rows.push_back({Int(row, 0), Int(row, 2), Int(row, 3), Int(row, 5)});
    }
    if (model.type != 7) file.Take(8);
    if (!file.AtEnd()) throw std::runtime_error("records after the pile file's last");
}

inline void ReadPileModel(const std::filesystem::path& path, Model& model) {
    Cursor file(path);
    const std::string head = file.Take(36);
    model.allPileNodes = Int(head, 0);
    model.analysed = Int(head, 1);
    model.pileRows = Int(head, 3);
    model.pileColumns = Int(head, 4);
    model.piles = Int(head, 6);
    model.pileNodes = Int(head, 8);
    for (int i = 0; i < Int(head, 5); ++i) file.Take(8);
    file.Take(4 * static_cast<std::size_t>(model.pileRows - 1));
    file.Take(4 * static_cast<std::size_t>(model.pileColumns - 1));
    const auto elements = static_cast<std::size_t>(model.pileNodes - 1);
    for (int p = 0; p < model.piles; ++p) model.pileSections.push_back(file.Take(4 * elements));
    file.Take(4 * static_cast<std::size_t>(model.piles));
    if (!file.AtEnd()) throw std::runtime_error("records after the pile model's last");
}

inline std::string Suffix(const std::string& suffix, int substructure) {
    return substructure == 0 ? suffix : suffix + std::to_string(substructure + 1);
}

inline Model ReadModel(const std::string& base, int substructure) {
    Model model;
    ReadPileFile(base + Suffix(".PLF", substructure), model);
    ReadPileModel(base + Suffix(".PIL", substructure), model);
    return model;
}

// Node numbers of the bearings, row by row, from the records after the load points.
inline std::vector<std::vector<int>> ReadBearings(const std::string& base, int substructure) {
    Cursor file(base + Suffix(".pls", substructure));
    const std::string counts = file.Take(48);
    const int points[] = {Int(counts, 0), Int(counts, 1)};
    std::vector<std::array<double, 3>> at[2];
    for (int r = 0; r < 2; ++r) {
        for (int i = 0; i < points[r]; ++i) {
            const std::string point = file.Take(24);
            at[r].push_back({Real(point, 0), Real(point, 8), Real(point, 16)});
        }
    }
    bool oneRow = points[0] == points[1] && points[0] == 0;
    for (std::size_t i = 0; points[0] == points[1] && i < at[0].size(); ++i) {
        if (at[1][i][1] - at[0][i][1] <= 2.4) oneRow = true;
    }
    std::vector<std::vector<int>> rows;
    for (int r = 0; r < 2; ++r) {
        auto& row = rows.emplace_back();
        for (int i = 0; i + 1 < points[r]; ++i) {
            const int node = Int(file.Take(12), 1);
            if (i < points[r] / 2) row.push_back(node);
        }
    }
    if (!file.AtEnd()) throw std::runtime_error("records after the bearing file's last");
    if (oneRow) rows.pop_back();
    return rows;
}

// Words of the force file, record by record.
class Forces {
  public:
    Forces(const std::string& base, int substructure, const Model& model)
        : m_bytes(ReadAll(base + Suffix(".vmd", substructure))), m_perCase(model.RecordsPerCase()) {}
    // Everything counts from 0.
    float Word(int loadCase, std::size_t record, std::size_t word) const {
        const auto at = (static_cast<std::size_t>(loadCase) * m_perCase + record) * 68 + 4 * word;
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            bits |= std::uint32_t{static_cast<unsigned char>(m_bytes.at(at + i))} << (8 * i);
        }
        float value = 0.0F;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

  private:
    std::string m_bytes;
    std::size_t m_perCase;
};

}  // namespace reader

}  // namespace lumerin
