// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

#include "records/Table.h"

namespace lumerin {

// The columns that several tables have, and lists of columns put together.

inline constexpr std::array<Column, 2> kPlaceColumns{{
    {"project", "name of the project as it was given, without its extension", ColumnType::text,
     Quantity::none, true},
    {"substructure", "number of the substructure, from 1", ColumnType::integer, Quantity::none, true},
}};
inline constexpr Column kProjectColumn = kPlaceColumns[0];

inline constexpr std::array<Column, 6> kForceColumns{{
    {"fax", "axial force, positive in tension", ColumnType::real, Quantity::force},
    {"f22", "shear along the local axis 2", ColumnType::real, Quantity::force},
    {"f33", "shear along the local axis 3", ColumnType::real, Quantity::force},
    {"m22", "moment about the local axis 2", ColumnType::real, Quantity::moment},
    {"m33", "moment about the local axis 3", ColumnType::real, Quantity::moment},
    {"torque", "moment about the length", ColumnType::real, Quantity::moment},
}};

inline constexpr std::array<Column, 2> kCaseColumns{{
    {"case", "number of the case, from 1, as the printed tables count", ColumnType::integer},
    {"limit_state", "limit state of that case", ColumnType::text},
}};

inline constexpr Column kClassColumn{"class", "limit class; empty where the cases have none",
                                     ColumnType::text, Quantity::none, true};
inline constexpr Column kRatioColumn{"dc", "demand over capacity", ColumnType::real, Quantity::ratio};
inline constexpr Column kElementColumn{"element", "ELEM number", ColumnType::integer};
inline constexpr Column kNodeColumn{"node", "NODE number", ColumnType::integer};
inline constexpr Column kSectionColumn{"section", "PROP number", ColumnType::integer};
inline constexpr Column kEndColumn{"end", "end of the element, I or J", ColumnType::text};

constexpr Column AsKey(Column column) {
    column.key = true;
    return column;
}

namespace columns {

template <class Part>
inline constexpr std::size_t kCount = 1;
template <std::size_t Count>
inline constexpr std::size_t kCount<std::array<Column, Count>> = Count;

template <std::size_t Count>
constexpr void Append(std::array<Column, Count>& list, std::size_t& next, const Column& column) {
    list[next++] = column;
}
template <std::size_t Count, std::size_t More>
constexpr void Append(std::array<Column, Count>& list, std::size_t& next,
                      const std::array<Column, More>& columns) {
    for (const Column& column : columns) list[next++] = column;
}

}  // namespace columns

// Columns and lists of columns as one list.
template <class... Parts>
constexpr auto JoinColumns(const Parts&... parts) {
    std::array<Column, (std::size_t{0} + ... + columns::kCount<Parts>)> list{};
    std::size_t next = 0;
    (columns::Append(list, next, parts), ...);
    return list;
}

}  // namespace lumerin
