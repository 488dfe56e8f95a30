// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace lumerin {

// The names of a figure's marks: ids of their groups in the SVG document, by which other documents find them.

// "pile-7", "left-cantilever" of a member as the figure calls it.
std::string MemberMarkName(std::string_view member);
// "strength-max-col-1-lf" of a row of a printed cap table, by its class (empty: none) and its label.
std::string CapMarkName(std::string_view className, bool isMaximum, std::string_view label);

}  // namespace lumerin
