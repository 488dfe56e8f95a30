// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "framework/Index.h"
#include "model/Types.h"

namespace lumerin {

class CDataSet;

// Which load cases, combinations or time steps take part in the tables, the same ones in every substructure,
// and the first of them in each limit class. A class without a case has no blocks in any table.
class CaseSelection {
  public:
    CaseSelection() = default;
    // Every case of the project.
    explicit CaseSelection(const CDataSet& data);

    // Indices count from 0; one that the project does not have is not selected, and setting it does nothing.
    bool IsCaseSelected(int index) const {
        return index >= 0 && index < CaseCount() && m_selected[Index(index)] != 0;
    }
    // The same for the cases of the first substructure, which the dialogs list; others can have more of them.
    bool IsFirstPierCaseSelected(const CDataSet& data, int index) const;
    void SetCaseSelected(int index, bool selected);
    // How many of the first `cases` cases are selected.
    int SelectedCount(int cases) const;
    int CaseCount() const { return static_cast<int>(m_selected.size()); }

    // Finds the first selected case of each limit class again, by the cases of the first substructure. To be
    // called after the last SetCaseSelected. Families other than AASHTO-LRFD and AREMA have no classes.
    void FindFirstCases(const CDataSet& data);
    // Index of the first selected case of a class; -1: the class has none.
    int FirstOfClass(LimitClass limitClass) const;
    bool IsClassPresent(LimitClass limitClass) const { return FirstOfClass(limitClass) >= 0; }

    bool operator==(const CaseSelection&) const = default;

  private:
    std::vector<std::uint8_t> m_selected;  // 1: the case takes part
    std::array<int, kLimitClasses> m_firstOfClass{-1, -1, -1, -1};
};

}  // namespace lumerin
