// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace lumerin {

namespace windows {

// Texts of the system from and to those of the program, in the encoding of its paths.
std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

// A path for the system's wide calls. Where paths are UTF-8, a long one gets the prefix with which the system
// takes it; the module's paths are those that its host can open by narrow calls, which take no long ones.
std::wstring WidePath(const std::string& path);

// Whether a narrow call of the system would refuse the path, by its length alone.
bool IsTooLong(const std::string& path);

}  // namespace windows

}  // namespace lumerin
