// SPDX-License-Identifier: MIT
#include "grid/GridCellNumeric.h"

#include "grid/InPlaceEdit.h"

namespace lumerin {

bool CGridCellBOOL::Edit(int row, int column, const GridRect& rect, GridPoint, int id, unsigned key) {
    if (m_pGrid == nullptr) return false;
    return OpenEditor(std::make_unique<CInPlaceEditNum>(*m_pGrid, row, column, id, m_sText, key, kZeroOrOne),
                      rect);
}

bool CGridCellFloat::Edit(int row, int column, const GridRect& rect, GridPoint, int id, unsigned key) {
    if (m_pGrid == nullptr) return false;
    return OpenEditor(std::make_unique<CInPlaceEditNum>(*m_pGrid, row, column, id, m_sText, key, kReal),
                      rect);
}

}  // namespace lumerin
