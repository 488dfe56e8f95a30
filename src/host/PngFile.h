// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace lumerin {

// The bytes of a PNG file for an image of 8 bits a colour: red, green, blue; rows from the top.
std::string PngBytes(int width, int height, std::span<const std::uint8_t> pixels);

}  // namespace lumerin
