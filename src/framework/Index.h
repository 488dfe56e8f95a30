// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <type_traits>

namespace lumerin {

// A number, or an enumerated one, of the model as an index or a size of a container. It is not negative: the
// caller has checked it, or the container's .at() reports it.
template <typename Number>
requires(std::is_integral_v<Number> || std::is_enum_v<Number>) constexpr std::size_t Index(Number number) {
    return static_cast<std::size_t>(number);
}

}  // namespace lumerin
