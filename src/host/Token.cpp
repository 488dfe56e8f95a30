// SPDX-License-Identifier: MIT
#include "host/Token.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <random>

#include "text/Product.h"

namespace lumerin {

namespace {

std::uint32_t& Chosen() {
    static std::uint32_t token = 0;
    return token;
}

}  // namespace

namespace token {

void Publish() {
    std::random_device source;
    while (Chosen() == 0) Chosen() = source();
    std::array<char, 16> text{};
    std::to_chars(text.data(), text.data() + text.size() - 1, Chosen(), 16);
    SetEnvironmentVariableA(kDriverTokenVariable, text.data());
}

void Withdraw() {
    SetEnvironmentVariableA(kDriverTokenVariable, nullptr);
}

WPARAM Get() {
    return Chosen();
}

}  // namespace token

}  // namespace lumerin
