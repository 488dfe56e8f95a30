// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include "records/Table.h"

namespace lumerin {

// The tables as Markdown: what a row of each is, and name, type, unit and meaning of its columns. This is the
// part of docs/data.md that no hand writes.
std::string DescribeTables(std::span<const Table> tables);

}  // namespace lumerin
