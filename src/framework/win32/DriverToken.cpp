// SPDX-License-Identifier: MIT
#include "framework/win32/DriverToken.h"

#include <array>
#include <charconv>
#include <cstdint>

namespace lumerin {

namespace {

constexpr std::uint32_t kNoToken = 0;

constinit std::uint32_t g_driverToken = kNoToken;

std::uint32_t ReadToken(const char* variable) {
    std::array<char, 16> text{};
    const DWORD length = GetEnvironmentVariableA(variable, text.data(), static_cast<DWORD>(text.size()));
    if (length == 0 || length >= text.size()) return kNoToken;
    std::uint32_t token = kNoToken;
    const char* end = text.data() + length;
    const auto [at, fault] = std::from_chars(text.data(), end, token, 16);
    return fault == std::errc() && at == end ? token : kNoToken;
}

}  // namespace

namespace win32 {

void ReadDriverToken(const char* variable) noexcept {
    g_driverToken = ReadToken(variable);
}

bool IsFromDriver(WPARAM token) {
    return g_driverToken != kNoToken && token == g_driverToken;
}

}  // namespace win32

}  // namespace lumerin
