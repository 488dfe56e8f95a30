// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Worksheets.h"

namespace lumerin::sheets {

// Worksheets of one substructure with a member of each kind and no results.
class SheetHeads : public SheetTest {
  protected:
    void Make(CodeFamily family) {
        MakePiers({{.type = kTypePier, .piles = 1, .columns = 1, .extraMembers = 1, .family = family}});
        Pier().m_nPileSections = Pier().m_nColumnSections = Pier().m_nXMemberSections = 1;
        AllocateResults();
        Pier().m_nCapShearPoints = Pier().m_nCapMomentPoints = 0;
        if (family == kFamilyLrfd) PresentClasses({kStrength, kService, kExtreme, kFatigue});
        if (family == kFamilyArema) PresentClasses({kStrength, kService});
    }
    // Index and width of every listed column.
    static std::vector<std::pair<int, std::string>> Columns(const std::string& sheet) {
        std::vector<std::pair<int, std::string>> columns;
        static const std::string mark = "  <Column ss:Index=\"";
        for (std::size_t at = sheet.find(mark); at != std::string::npos; at = sheet.find(mark, at + 1)) {
            const std::string line = sheet.substr(at, sheet.find('\n', at) - at);
            const std::string width = Attribute(line, "ss:Width");
            EXPECT_EQ(line, mark + Attribute(line, "ss:Index") + "\"  ss:Width=\"" + width + "\"/>");
            columns.emplace_back(std::stoi(Attribute(line, "ss:Index")), width);
        }
        return columns;
    }
};

}  // namespace lumerin::sheets
