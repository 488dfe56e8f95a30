// SPDX-License-Identifier: MIT
#include "samples/OutputFile.h"

#include <cerrno>
#include <cstring>

namespace lumerin {

namespace samples {
namespace {

constexpr std::size_t kBlockSize = std::size_t{1} << 20;

}  // namespace

std::filesystem::path WithSuffix(const std::filesystem::path& base, std::string_view suffix) {
    std::filesystem::path path = base;
    path += suffix;
    return path;
}

void MakeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) throw SampleError("cannot make the folder " + folder.string() + ": " + error.message());
}

OutputFile::OutputFile(const std::filesystem::path& path)
    : m_path(path), m_file(std::fopen(path.string().c_str(), "wb")) {
    if (!m_file) Fail();
    std::setvbuf(m_file.get(), nullptr, _IONBF, 0);
    m_block.reserve(kBlockSize);
}

void OutputFile::Write(std::span<const char> bytes) {
    m_block.insert(m_block.end(), bytes.begin(), bytes.end());
    if (m_block.size() >= kBlockSize) Flush();
}

void OutputFile::Flush() {
    if (m_block.empty()) return;
    if (std::fwrite(m_block.data(), 1, m_block.size(), m_file.get()) != m_block.size()) Fail();
    m_block.clear();
}

void OutputFile::Skip(std::int64_t bytes) {
    Flush();
    if (fseeko(m_file.get(), bytes, SEEK_CUR) != 0) Fail();
}

void OutputFile::Close() {
    Flush();
    if (std::fclose(m_file.release()) != 0) Fail();
}

void OutputFile::Fail() const {
    throw SampleError("cannot write " + m_path.string() + ": " + std::strerror(errno));
}

}  // namespace samples

}  // namespace lumerin
