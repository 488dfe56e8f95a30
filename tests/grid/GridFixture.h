// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "grid/GridCellNumeric.h"
#include "grid/GridCtrl.h"
#include "grid/headless/HeadlessGrid.h"

namespace lumerin {

// A grid in a window of a given size without a screen: a character is 6 pixels wide, a scroll bar 17. Rows
// are 20 high and columns 50 wide, and each cell holds its place, such as "r1c2".
class GridFixture : public testing::Test {
  protected:
    void Build(int rows, int columns, GridSize size = {250, 200}) {
        auto host = std::make_unique<HeadlessGrid>(m_grid, size);
        m_host = host.get();
        m_grid.SetHost(std::move(host));
        m_grid.SetRowCount(rows);
        m_grid.SetColumnCount(columns);
        for (int row = 0; row < rows; ++row) m_grid.SetRowHeight(row, 20);
        for (int column = 0; column < columns; ++column) m_grid.SetColumnWidth(column, 50);
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                m_grid.SetCellText(row, column, "r" + std::to_string(row) + "c" + std::to_string(column));
            }
        }
        m_grid.SetEditable(true);
        m_grid.UpdateScrollBars();
    }
    void Press(unsigned key, KeyState keys = {}) { m_host->PressKey(key, keys); }
    void Type(const std::string& text) {
        for (const char c : text) m_host->TypeChar(static_cast<unsigned char>(c));
    }
    void FocusOn(int row, int column) {
        ASSERT_TRUE(m_grid.MoveFocusCell(row, column));
        m_grid.SelectRange(row, column, row, column, false, true);
    }
    CCellID Focus() const { return m_grid.FocusCell(); }

    CGridCtrl m_grid;
    HeadlessGrid* m_host = nullptr;  // the grid's
};

inline constexpr KeyState kShift{true, false};
inline constexpr KeyState kCtrl{false, true};

inline void PrintTo(const CCellID& cell, std::ostream* out) {
    *out << "(" << cell.row << ", " << cell.column << ")";
}

}  // namespace lumerin
