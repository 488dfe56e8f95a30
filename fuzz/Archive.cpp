// SPDX-License-Identifier: MIT
#include "fuzz/Archive.h"

#include <algorithm>

namespace lumerin {

namespace {

constexpr std::size_t kLengthBytes = 4;
constexpr std::size_t kLongestName = 40;

std::string Take(std::span<const std::uint8_t>& bytes, std::size_t count) {
    const std::span<const std::uint8_t> head = bytes.first(std::min(count, bytes.size()));
    bytes = bytes.subspan(head.size());
    return std::string(head.begin(), head.end());
}

}  // namespace

Archive Unpack(std::span<const std::uint8_t> bytes) {
    Archive archive;
    if (bytes.empty()) return archive;
    archive.choice = bytes[0];
    bytes = bytes.subspan(1);
    while (bytes.size() > kLengthBytes) {
        const std::size_t nameLength = bytes[0];
        bytes = bytes.subspan(1);
        std::string name = Take(bytes, nameLength);
        std::size_t length = 0, place = 0;
        for (const char byte : Take(bytes, kLengthBytes)) {
            length |= static_cast<std::size_t>(static_cast<unsigned char>(byte)) << (8 * place++);
        }
        archive.files.emplace_back(std::move(name), Take(bytes, length));
    }
    return archive;
}

std::string Pack(const Archive& archive) {
    std::string bytes(1, static_cast<char>(archive.choice));
    for (const auto& [name, content] : archive.files) {
        bytes += static_cast<char>(name.size());
        bytes += name;
        for (std::size_t i = 0; i < kLengthBytes; ++i) bytes += static_cast<char>(content.size() >> (8 * i));
        bytes += content;
    }
    return bytes;
}

bool IsFileName(std::string_view name) {
    if (name.size() < 2 || name.size() > kLongestName) return false;
    if (name.starts_with("MPTE")) {
        const std::size_t slash = name.find('/');
        if (slash == std::string_view::npos) return false;
        name.remove_prefix(slash + 1);
    } else if (name[0] != '.') {
        return false;
    }
    return std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '.' ||
               c == '_';
    });
}

}  // namespace lumerin
