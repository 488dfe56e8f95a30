// SPDX-License-Identifier: MIT
// Node and element numbers: the element table must agree with the walk by which its readers number members.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "ProjectReader.h"
#include "support/SampleFolder.h"

namespace lumerin {

namespace {

struct Numbered {
    int number, nodeI, nodeJ;
    bool operator==(const Numbered&) const = default;
};

void PrintTo(const Numbered& e, std::ostream* out) {
    *out << e.number << ": " << e.nodeI << '-' << e.nodeJ;
}

// The readers' walk: each column, the left cantilever after the first, a span after each but the last, the
// right cantilever after the last.
class Walk {
  public:
    explicit Walk(const reader::Model& model) : m_model(model) {
        const bool pier = m_model.type == 0;
        if (pier) {
            m_ownNodes = (m_model.columns - 1) * m_model.spanNodes +
                         (m_model.columnNodes + 2) * m_model.columns + 2 * (m_model.cantileverNodes + 1);
        }
        if (m_model.type == 4) m_ownNodes = (m_model.columnNodes + 2) * m_model.columns;
        foundation = pier || m_model.type == 4 ? m_model.nodeCount - m_ownNodes : 0;
        if ((pier && foundation > 1) || m_model.type == 4) m_element = 4 * m_model.columns + 1;
        m_node = pier || m_model.type == 4 ? foundation + 1 : m_model.nodeCount + 1;
        for (int c = 0; c < m_model.columns; ++c) Support(c);
        for (std::size_t s = 0; s < m_spanEnds.size(); ++s) elements[m_spanEnds[s]].nodeJ = m_tops[s + 1];
    }

    std::vector<Numbered> elements;
    int foundation = 0;

  private:
    bool IsBent() const { return m_model.type == 7; }
    bool HasCap() const { return m_model.type == 0 || IsBent(); }
    void Add(int nodeI, int nodeJ) { elements.push_back({m_element++, nodeI, nodeJ}); }

    void Support(int c) {
        for (int i = 0; !IsBent() && i <= m_model.columnNodes; ++i, ++m_node) Add(m_node, m_node + 1);
        m_tops.push_back(IsBent() ? c + 1 : m_node);
        if (c == 0) LeftCantilever();
        if (!HasCap()) return;
        if (c + 1 == m_model.columns) {
            RightCantilever(c);
        } else {
            Span(c);
        }
    }

    int CantileverElements() const { return m_model.cantilevers > 0 ? m_model.cantileverNodes + 1 : 0; }

    void LeftCantilever() {
        if (IsBent()) m_node = m_model.piles;
        ++m_node;
        for (int i = 0; i < CantileverElements(); ++i, ++m_node) {
            Add(m_node, i + 1 == CantileverElements() ? m_tops[0] : m_node + 1);
        }
    }

    void Span(int c) {
        if (m_model.type == 0 && c > 0) ++m_node;
        Add(m_tops.back(), m_node);
        for (int i = 0; i < m_model.spanNodes; ++i, ++m_node) Add(m_node, m_node + 1);
        m_spanEnds.push_back(elements.size() - 1);
    }

    void RightCantilever(int c) {
        if (m_model.type == 0 && c > 0) ++m_node;
        for (int i = 0; i < CantileverElements(); ++i) {
            if (i == 0) {
                Add(m_tops.back(), m_node);
            } else {
                Add(m_node, m_node + 1);
                ++m_node;
            }
        }
    }

    const reader::Model& m_model;
    int m_element = 1;  // the number of the next element
    int m_node = 0;     // of the next node
    int m_ownNodes = 0;
    std::vector<int> m_tops;
    std::vector<std::size_t> m_spanEnds;
};

void ExpectTableFollowsWalk(const reader::Model& model) {
    const Walk walk(model);
    std::map<int, Numbered> table;
    for (const auto& row : model.rows) table[row.number] = {row.number, row.nodeI, row.nodeJ};
    std::size_t missing = 0;
    for (const auto& element : walk.elements) {
        const auto found = table.find(element.number);
        if (found == table.end()) {
            ++missing;
            continue;
        }
        EXPECT_EQ(found->second, element);
        table.erase(found);
    }
    // The rest are the connectors before and the extra members after.
    const int connectors = walk.elements.empty() ? 4 : walk.elements.front().number - 1;
    EXPECT_EQ(table.size(), static_cast<std::size_t>(connectors + model.extraMembers));
    const auto gaps = static_cast<std::size_t>(model.rows.back().number) - model.rows.size();
    EXPECT_EQ(missing, gaps);
    EXPECT_EQ(model.rows.front().number, 1);
}

class EveryPreset : public testing::TestWithParam<const char*> {
  protected:
    void ExpectConsistent(const samples::SampleOptions& options) {
        const std::string base = m_folder.Write(options);
        const int count = reader::Int(reader::Records(reader::ReadAll(base + ".TWR")).at(0), 0);
        for (int k = 0; k < count; ++k) {
            SCOPED_TRACE(base + " " + std::to_string(k + 1));
            const reader::Model model = reader::ReadModel(base, k);
            ExpectTableFollowsWalk(model);
            ExpectSizes(base, k, model);
        }
    }

    void ExpectSizes(const std::string& base, int k, const reader::Model& model) {
        const auto convergence = reader::Records(reader::ReadAll(base + ".ncv"));
        const auto cases = static_cast<std::uintmax_t>(reader::Int(convergence.at(0), 0));
        EXPECT_EQ(std::filesystem::file_size(base + reader::Suffix(".vmd", k)),
                  cases * model.RecordsPerCase() * 68);
        EXPECT_EQ(model.analysed, static_cast<int>(cases));
        EXPECT_EQ(model.allPileNodes, model.piles * model.pileNodes);
        EXPECT_EQ(model.pileRows * model.pileColumns, model.piles);
        for (const auto& sections : model.pileSections) {
            for (std::size_t e = 0; 4 * e < sections.size(); ++e) {
                EXPECT_GE(reader::Int(sections, e), 1);
                EXPECT_LE(reader::Int(sections, e), static_cast<int>(model.sections.size()));
            }
        }
    }

    SampleFolder m_folder;
};

TEST_P(EveryPreset, NumbersAndSizesFitTogether) {
    samples::SampleOptions options;
    options.preset = GetParam();
    ExpectConsistent(options);
}

TEST_P(EveryPreset, FitsTogetherAtOtherSizes) {
    const int sizes[][3] = {{1, 1, 1}, {1, 2, 2}, {3, 1, 5}, {5, 7, 3}};
    for (const auto& [rows, columns, cases] : sizes) {
        SCOPED_TRACE(std::to_string(rows) + "x" + std::to_string(columns));
        samples::SampleOptions options;
        options.preset = GetParam();
        options.rows = rows;
        options.columns = columns;
        options.cases = cases;
        ExpectConsistent(options);
    }
}

INSTANTIATE_TEST_SUITE_P(Presets, EveryPreset,
                         testing::Values("pier", "bent", "group", "walls", "bridge", "history"),
                         [](const auto& preset) { return std::string(preset.param); });

// Eight piles give the foundation nodes 1 to 8; the first column has the nodes 9 to 12, then come the left
// cantilever 13 to 15, the span 16 to 20, the second column 21 to 24 and the right cantilever 25 to 27.
// Eight connectors come first.
TEST(PierNumbers, AreThoseOfTheHandDrawnModel) {
    const SampleFolder folder;
    const auto model = reader::ReadModel(folder.Write("pier"), 0);
    const Numbered expected[] = {
        {9, 9, 10},   {10, 10, 11}, {11, 11, 12},  // column 1
        {12, 13, 14}, {13, 14, 15}, {14, 15, 12},  // left cantilever
        {15, 12, 16}, {16, 16, 17}, {17, 17, 18}, {18, 18, 19}, {19, 19, 20}, {20, 20, 24},  // span
        {21, 21, 22}, {22, 22, 23}, {23, 23, 24},                                            // column 2
        {24, 24, 25}, {25, 25, 26}, {26, 26, 27},  // right cantilever
    };
    ASSERT_EQ(model.rows.size(), 26U);
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        const auto& row = model.rows[8 + i];
        EXPECT_EQ((Numbered{row.number, row.nodeI, row.nodeJ}), expected[i]);
    }
    for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(model.rows[i].section, 1);
}

// Three columns: 12 connectors, columns of 3 elements, cantilevers of 2, spans of 4. The second span's second
// element would be 12 + 3 + 2 + 4 + 3 + 2 = 26.
TEST(BridgeNumbers, JointTakesItsNumberWithIt) {
    const SampleFolder folder;
    const std::string base = folder.Write("bridge");
    const auto hasNumber = [](const reader::Model& model, int number) {
        return std::any_of(model.rows.begin(), model.rows.end(),
                           [&](const auto& r) { return r.number == number; });
    };
    const auto pier = reader::ReadModel(base, 0);
    EXPECT_EQ(pier.type, 0);
    EXPECT_TRUE(hasNumber(pier, 25));
    EXPECT_FALSE(hasNumber(pier, 26));
    EXPECT_TRUE(hasNumber(pier, 27));
    const auto bent = reader::ReadModel(base, 1);  // left 2, spans of 4: the third span has 11 to 14
    EXPECT_EQ(bent.type, 7);
    EXPECT_TRUE(hasNumber(bent, 11));
    EXPECT_FALSE(hasNumber(bent, 12));
    EXPECT_FALSE(hasNumber(bent, 13));
    EXPECT_TRUE(hasNumber(bent, 14));
    EXPECT_EQ(reader::ReadModel(base, 2).type, 1);
}

// Readers distinguish columns from the cap by the section: up to the column sections + 1, counted from 2.
TEST(Sections, DistinguishConnectorsColumnsAndCap) {
    const SampleFolder folder;
    const auto model = reader::ReadModel(folder.Write("bridge"), 0);
    ASSERT_EQ(model.columnSections, 2);
    std::map<int, int> rows;
    for (const auto& row : model.rows) ++rows[row.section];
    EXPECT_EQ(rows[1], 12);
    EXPECT_EQ(rows[2] + rows[3], 9);
    EXPECT_EQ(rows[4], 11);  // 4 on cantilevers, 8 on spans, one missing
    EXPECT_EQ(rows[5], 2);   // struts
    EXPECT_EQ(rows[6], 1);   // brace
}

}  // namespace

}  // namespace lumerin
