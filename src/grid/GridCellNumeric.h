// SPDX-License-Identifier: MIT
#pragma once

#include "grid/GridCell.h"

namespace lumerin {

// A cell that takes 0 or 1 by typing.
class CGridCellBOOL : public CGridCell {
  public:
    static const CRuntimeClass classCGridCellBOOL;
    static std::unique_ptr<CObject> Create() { return std::make_unique<CGridCellBOOL>(); }
    const CRuntimeClass& GetRuntimeClass() const override { return classCGridCellBOOL; }
    bool Edit(int row, int column, const GridRect& rect, GridPoint point, int id, unsigned key) override;
};

// A cell that takes a real number by typing.
class CGridCellFloat : public CGridCell {
  public:
    static const CRuntimeClass classCGridCellFloat;
    static std::unique_ptr<CObject> Create() { return std::make_unique<CGridCellFloat>(); }
    const CRuntimeClass& GetRuntimeClass() const override { return classCGridCellFloat; }
    bool Edit(int row, int column, const GridRect& rect, GridPoint point, int id, unsigned key) override;
};

inline const CRuntimeClass CGridCellBOOL::classCGridCellBOOL{"CGridCellBOOL", &CGridCell::classCGridCell,
                                                             &CGridCellBOOL::Create};
inline const CRuntimeClass CGridCellFloat::classCGridCellFloat{"CGridCellFloat", &CGridCell::classCGridCell,
                                                               &CGridCellFloat::Create};

}  // namespace lumerin
