// SPDX-License-Identifier: MIT
// A small project whose files are written byte by byte, so that a test decides about every byte.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "framework/File.h"
#include "model/CaseSelection.h"
#include "results/LoadProject.h"
#include "support/Messages.h"
#include "support/ScratchFolder.h"

namespace lumerin {

// Bytes of a sequential file: the mark, then records in frames of at most 128 bytes.
class SeqBytes {
  public:
    template <class Value>
    SeqBytes& Record(const std::vector<Value>& values) {
        std::string bytes(values.size() * sizeof(Value), '\0');
        if (!values.empty()) std::memcpy(bytes.data(), values.data(), bytes.size());
        return Frame(bytes);
    }
    SeqBytes& Ints(const std::vector<int>& values) { return Record(values); }
    SeqBytes& Doubles(const std::vector<double>& values) { return Record(values); }
    SeqBytes& Zeros(std::size_t count) { return Frame(std::string(count, '\0')); }
    SeqBytes& Frame(std::string_view bytes) {
        do {
            const std::string_view block = bytes.substr(0, 128);
            bytes.remove_prefix(block.size());
            const char length = static_cast<char>(bytes.empty() ? block.size() : 0x81);
            m_bytes += length;
            m_bytes += block;
            m_bytes += length;
        } while (!bytes.empty());
        return *this;
    }
    std::string End() const { return m_bytes + '\x82'; }
    const std::string& WithoutEnd() const { return m_bytes; }

  private:
    std::string m_bytes = "K";
};

struct ResultSection {
    int kind = 1;
    double first = 0.0, second = 0.0;
};

struct ResultRow {
    int number = 0, nodeI = 0, nodeJ = 0, section = 0;
};

// One substructure in the words of its files. The start values are a group of two piles with two elements.
struct ResultSubstructure {
    std::vector<ResultSection> sections{{1, 12.0, 10.0}, {2, 14.0, 16.0}};
    int type = 1;
    int columns = 0, cantilevers = 0, cantileverNodes = -1, columnNodes = 0, spanNodes = 0;
    int extraMembers = 0, xMemberSections = 0, columnSections = 0, units = 0;
    std::vector<std::array<double, 3>> nodes;
    std::vector<ResultRow> rows;
    int piles = 2, pileNodes = 3, rowsA = 1, rowsB = 2;
    std::vector<std::vector<int>> pileSections{{1, 2}, {1, 1}};
    std::vector<std::array<double, 3>> leftBearings, rightBearings;
    std::vector<int> leftBearingNodes, rightBearingNodes;
    int codeFamily = -2;  // -2: no such file
};

class ResultProject {
  public:
    ResultProject() : substructures(1) {}

    const std::filesystem::path& Folder() const { return m_folder.Path(); }
    std::string Base() const { return m_folder.PathOf("p"); }
    std::string Path(const std::string& suffix) const { return Base() + suffix; }
    void WriteFile(const std::string& suffix, const std::string& bytes) const {
        m_folder.Write("p" + suffix, bytes);
    }
    void Remove(const std::string& suffix) const { std::filesystem::remove(Path(suffix)); }
    std::string Suffix(const std::string& plain, std::size_t k) const {
        return k == 0 ? plain : plain + std::to_string(k + 1);
    }

    // Records of one case's block of a substructure.
    int BlockRecords(std::size_t k) const {
        const ResultSubstructure& sub = substructures[k];
        return sub.piles * (sub.pileNodes - 1) + static_cast<int>(sub.rows.size());
    }

    // Writes every file. `word` gives word w of record r (from 1 inside the block) of case c (from 0).
    void Write(const std::function<float(std::size_t k, int c, int r, int w)>& word = PlainWord) const {
        WriteFile(".TWR", SeqBytes().Ints({static_cast<int>(substructures.size())}).End());
        WriteFile(".ncv", Convergence(cases).Ints({mode}).End());
        for (std::size_t k = 0; k < substructures.size(); ++k) {
            WriteFile(Suffix(".PLF", k), PileFile(substructures[k]));
            WriteFile(Suffix(".PIL", k), PileModel(substructures[k]));
            WriteFile(Suffix(".pls", k), Bearings(substructures[k]));
            if (substructures[k].codeFamily != -2) WriteFile(Suffix(".ash", k), CodeFamily(substructures[k]));
            std::string forces;
            for (int c = 0; c < cases; ++c) {
                for (int r = 1; r <= BlockRecords(k); ++r) {
                    for (int w = 0; w < 17; ++w) {
                        const float value = word(k, c, r, w);
                        forces.append(reinterpret_cast<const char*>(&value), sizeof(value));
                    }
                }
            }
            WriteFile(Suffix(".vmd", k), forces);
        }
    }

    // Loads what was written, with the messages of this load alone.
    bool Load() {
        messages.texts.clear();
        m_loaded = LoadProject(Base(), messages);
        return m_loaded.has_value();
    }
    const Project& Loaded() const { return m_loaded.value(); }
    const CDataSet& Data() const { return Loaded().data; }
    // The fourteen forces of an element, read from the file.
    ForceRow Forces(int loadCase, int element, std::size_t pier = 0) const {
        return Loaded().forces[pier]->OpenRows()->At(loadCase, element);
    }
    // Which families of members a pass over all cases finds to be finite.
    FiniteForces Finite(std::size_t pier = 0) const {
        return Loaded().forces[pier]->ReadCases([](int, CaseForces) {});
    }
    const CPier& Pier(std::size_t index = 0) const { return Data().m_Piers.at(index); }

    static float PlainWord(std::size_t, int c, int r, int w) {
        return static_cast<float>(c * 10000 + r * 100 + w);
    }
    static SeqBytes Convergence(int cases) {
        SeqBytes file;
        file.Ints({cases}).Zeros(16).Zeros(4).Zeros(4);
        return file;
    }
    static std::string PileFile(const ResultSubstructure& sub) {
        SeqBytes file;
        file.Ints({1}).Ints({static_cast<int>(sub.sections.size())});
        for (const ResultSection& section : sub.sections) {
            std::string record(28, '\0');
            std::memcpy(record.data(), &section.kind, 4);
            std::memcpy(record.data() + 4, &section.first, 8);
            std::memcpy(record.data() + 12, &section.second, 8);
            file.Frame(record);
        }
        file.Zeros(256).Ints({static_cast<int>(sub.nodes.size()), 77, sub.type});
        file.Ints({sub.columns, sub.cantilevers, sub.cantileverNodes, sub.extraMembers, sub.xMemberSections,
                   sub.columnNodes, sub.spanNodes, 0, sub.units, 0, 0, sub.columnSections, 0});
        file.Zeros(40);
        for (const auto& node : sub.nodes) file.Doubles({node[0], node[1], node[2]});
        for (std::size_t i = 0; i < sub.nodes.size(); ++i) file.Zeros(24);
        file.Ints({0, static_cast<int>(sub.rows.size())});
        for (const ResultRow& row : sub.rows) {
            file.Ints({row.number, 0, row.nodeI, row.nodeJ, 0, row.section, 0});
        }
        if (sub.type != 7) file.Ints({0, 0});
        return file.End();
    }
    static std::string PileModel(const ResultSubstructure& sub, int analysed = 3) {
        SeqBytes file;
        file.Ints(
            {sub.piles * sub.pileNodes, analysed, 0, sub.rowsA, sub.rowsB, 1, sub.piles, 0, sub.pileNodes});
        file.Zeros(8);
        for (const int rows : {sub.rowsA, sub.rowsB}) {
            if (rows > 1) file.Zeros(static_cast<std::size_t>(rows - 1) * 4);
        }
        for (const auto& sections : sub.pileSections) file.Ints(sections);
        file.Zeros(static_cast<std::size_t>(sub.piles) * 4);
        return file.End();
    }
    static std::string Bearings(const ResultSubstructure& sub) {
        SeqBytes file;
        std::vector<int> counts(12, 0);
        counts[0] = static_cast<int>(sub.leftBearings.size());
        counts[1] = static_cast<int>(sub.rightBearings.size());
        file.Ints(counts);
        for (const auto& entry : sub.leftBearings) file.Doubles({entry[0], entry[1], entry[2]});
        for (const auto& entry : sub.rightBearings) file.Doubles({entry[0], entry[1], entry[2]});
        for (const int node : sub.leftBearingNodes) file.Ints({0, node, 0});
        for (const int node : sub.rightBearingNodes) file.Ints({0, node, 0});
        return file.End();
    }
    static std::string CodeFamily(const ResultSubstructure& sub) {
        return SeqBytes().Ints({sub.codeFamily}).Zeros(72).Zeros(216).End();
    }

    std::vector<ResultSubstructure> substructures;
    RecordedMessages messages;  // of the last load
    int cases = 2;
    int mode = 0;

  private:
    ScratchFolder m_folder;
    std::optional<Project> m_loaded;
};

// A pier of type 0: two foundation nodes for the pile cap, two columns with one interior node, cantilevers
// with one interior node, a span with one interior node.
//   Nodes, foundation first (1, 2); column 0: 3, 4, 5; left cantilever 6, 7; span 8; column 1: 9, 10, 11;
//   right cantilever 12, 13.
//   Element rows: eight foundation rows, column 0 (9, 10), left cantilever (11, 12), span (13, 14),
//   column 1 (15, 16), right cantilever (17, 18).
inline ResultSubstructure MakePier() {
    ResultSubstructure sub;
    sub.type = 0;
    sub.columns = 2;
    sub.cantilevers = 2;
    sub.cantileverNodes = 1;
    sub.columnNodes = 1;
    sub.spanNodes = 1;
    sub.columnSections = 2;
    for (int i = 0; i < 13; ++i) sub.nodes.push_back({100.0 + i, 0.0, 0.0});
    for (int i = 1; i <= 8; ++i) sub.rows.push_back({i, 1, 2, 1});
    const int sections[] = {2, 3, 4, 4, 4, 4, 2, 3, 4, 4};
    for (int i = 0; i < 10; ++i) sub.rows.push_back({9 + i, 0, 0, sections[i]});
    return sub;
}

}  // namespace lumerin
