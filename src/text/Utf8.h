#pragma once

#include <string>
#include <string_view>

// A text of the Western code page as UTF-8; a text that is UTF-8 already (a path) stays.
std::string ToUtf8(std::string_view text);
