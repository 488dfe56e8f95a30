#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <vector>

#include "framework/headless/Headless.h"
#include "model/DataSet.h"
#include "session/Session.h"
#include "tables/WriteData.h"

// Small projects built in memory for the tests of the worksheets, and readers of what was written.
namespace sheets {

inline constexpr int kStrength = 0, kService = 1, kExtreme = 2, kFatigue = 3;

struct PierShape {
    int type = kTypePier;
    int piles = 0, columns = 0, extraMembers = 0;
    int cases = 1;
    int family = kFamilyNone;
};

// A pile of one element, a column of one element; the elements are numbered from 1 in the list's order, an
// element e (from 0) has the nodes 10 * (e + 1) at I and 10 * (e + 1) + 1 at J. All forces are 0.
inline void BuildPier(CPier& pier, const PierShape& shape) {
    pier.m_nStructureType = shape.type;
    CMemberCounts counts;
    counts.piles = shape.piles;
    counts.pileNodes = 2;
    counts.columns = shape.columns;
    counts.extraMembers = shape.extraMembers;
    pier.AllocateMembers(counts, shape.cases);
    for (int e = 0; e < pier.ElementCount(); ++e) {
        pier.Element(e) = {0, e + 1, 10 * (e + 1), 10 * (e + 1) + 1};
    }
    pier.m_nPiles = shape.piles;
    pier.m_nColumns = shape.columns;
    pier.m_nExtraMembers = shape.extraMembers;
    pier.m_nCodeFamily = shape.family;
    pier.m_bCombinations = shape.family != kFamilyNone;
    pier.AllocateCaseSelection(shape.cases);
    pier.SelectAllCases();
}

// The forces of one end, FAX F22 F33 M22 M33 TORQUE D/C.
inline void SetForces(CPier& pier, int loadCase, int element, int end, const std::array<float, 7>& values) {
    const auto forces = pier.MutableForces(loadCase, element);
    for (std::size_t i = 0; i < values.size(); ++i) {
        forces[static_cast<std::size_t>(end) * values.size() + i] = values[i];
    }
}

class SheetTest : public testing::Test {
  protected:
    void SetUp() override {
        headless::ResetState();
        headless::State().clock = LocalTime{2026, 11, 14, 6, 8, 30, 5};
        g_DataSet.m_Piers.clear();
        g_DataSet.Reset();
        g_DataSet.m_sForceUnit = "kips";
        g_DataSet.m_sMomentUnit = "kip-ft";
        g_DataSet.m_nUnits = 0;
        g_DataSet.m_nAnalysisMode = 0;
        g_DataSet.m_bTableEnabled.fill(true);
        g_ReportFormat = kFormatSpreadsheet;
    }
    void TearDown() override {
        std::remove(Path().c_str());
        headless::ResetState();
        g_DataSet.m_Piers.clear();
        g_DataSet.Reset();
    }

    void MakePiers(const std::vector<PierShape>& shapes) {
        g_DataSet.m_Piers.clear();
        g_DataSet.m_Piers.resize(shapes.size());
        for (std::size_t p = 0; p < shapes.size(); ++p) BuildPier(g_DataSet.m_Piers[p], shapes[p]);
    }
    static CPier& Pier(std::size_t p = 0) { return g_DataSet.m_Piers.at(p); }
    static void PresentClasses(std::initializer_list<int> classes) {
        Pier().m_nFirstOfClass.fill(-1);
        for (const int c : classes) Pier().m_nFirstOfClass.at(static_cast<std::size_t>(c)) = 0;
    }
    static std::string Path() {
        const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
        return testing::TempDir() + test.test_suite_name() + "." + test.name() + ".xml";
    }

    using Writer = int (CWriteData::*)(StoredStream&, bool);
    static Writer WriterOf(int table) {
        static constexpr Writer kWriters[] = {
            &CWriteData::WriteMaxAxialSheet,      &CWriteData::WritePileDcSheet,
            &CWriteData::WriteColumnDcSheet,      &CWriteData::WriteCapShearSheet,
            &CWriteData::WriteCapMomentSheet,     &CWriteData::WritePileForcesSheet,
            &CWriteData::WriteColumnForcesSheet,  &CWriteData::WriteExtraMemberForcesSheet,
            &CWriteData::WritePileHeadForcesSheet};
        return kWriters[table];
    }
    // What the writer stored, with plain line feeds; each must have been stored with a carriage return.
    static std::string Written(int table, bool embedded = true) {
        {
            StoredStream out(Path());
            CWriteData writer;
            EXPECT_EQ((writer.*WriterOf(table))(out, embedded), 1);
            EXPECT_EQ(out.IsOpen(), embedded) << "a workbook of its own is closed by its writer";
            out.Close();
        }
        return Stored();
    }
    static std::string Stored() {
        std::ifstream file(Path(), std::ios::binary);
        std::string text;
        for (std::istreambuf_iterator<char> it(file), end; it != end; ++it) {
            if (*it == '\n') {
                EXPECT_TRUE(!text.empty() && text.back() == '\r');
                if (!text.empty()) text.pop_back();
            }
            text += *it;
        }
        return text;
    }
};

// The worksheets of a text, each from its opening to its closing tag.
inline std::vector<std::string> Worksheets(const std::string& text) {
    std::vector<std::string> sheets;
    static const std::string close = "</Worksheet>\n";
    for (std::size_t at = text.find("<Worksheet "); at != std::string::npos;
         at = text.find("<Worksheet ", at + 1)) {
        const std::size_t end = text.find(close, at);
        sheets.push_back(text.substr(at, end == std::string::npos ? end : end + close.size() - at));
    }
    return sheets;
}

// The value of the first attribute of that name.
inline std::string Attribute(const std::string& text, const std::string& name) {
    const std::string mark = name + "=\"";
    const std::size_t at = text.find(mark);
    if (at == std::string::npos) return "(none)";
    const std::size_t from = at + mark.size();
    return text.substr(from, text.find('"', from) - from);
}

inline int AnnouncedRows(const std::string& sheet) {
    return std::stoi(Attribute(sheet, "ss:ExpandedRowCount"));
}

// The number of the last row; a row with an index of its own jumps to it.
inline int CountedRows(const std::string& sheet) {
    int rows = 0;
    for (std::size_t at = sheet.find("<Row"); at != std::string::npos; at = sheet.find("<Row", at + 1)) {
        static const std::string index = "<Row ss:Index=\"";
        rows = sheet.compare(at, index.size(), index) == 0 ? std::stoi(sheet.substr(at + index.size()))
                                                           : rows + 1;
    }
    return rows;
}

// From the end of the title rows' last closing tag to the end of the table: heads, headings and rows.
inline std::string Body(const std::string& sheet, const std::string& lastTitleText) {
    const std::size_t title = sheet.find(lastTitleText);
    static const std::string rowEnd = "</Row>\n";
    const std::size_t from = sheet.find(rowEnd, title) + rowEnd.size();
    return sheet.substr(from, sheet.find("</Table>", from) - from);
}

}  // namespace sheets
