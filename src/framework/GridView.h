// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace lumerin {

// The visible state of a grid: focus cell, selection, open editor and title tip.
struct GridView {
    int row = -1, column = -1;  // the focus cell; -1: none
    int top = -1, left = -1, bottom = -1, right = -1;
    int selected = 0;  // how many cells
    bool editing = false;
    std::string text;                 // the editor's
    int start = 0, end = 0;           // the editor's selection, in characters
    int tipRow = -1, tipColumn = -1;  // the cell under the title tip; -1: none
    bool outgrewCell = false;         // the editor is wider than the cell
};

}  // namespace lumerin
