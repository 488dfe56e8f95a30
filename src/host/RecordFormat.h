// SPDX-License-Identifier: MIT
#pragma once

namespace lumerin {

// One line a record: its kind and its fields, each preceded by the character kRecordFieldEnd.
//     open    program ("" for the program of the document's type), document
//     module  file name, then the eight arguments

inline constexpr const char* kRecordVariable = "LUMERIN_RECORD";  // the file's path
inline constexpr char kRecordFieldEnd = '\x1f';
inline constexpr const char* kRecordOpen = "open";
inline constexpr const char* kRecordModule = "module";

}  // namespace lumerin
