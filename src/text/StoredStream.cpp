// SPDX-License-Identifier: MIT
#include "text/StoredStream.h"

#include <cstring>
#include <exception>

#include "framework/Backend.h"
#include "framework/Index.h"

namespace lumerin {

namespace {
constexpr std::size_t kBufferBytes = std::size_t{1} << 18;
}

void StoredStream::Open(const std::string& path) {
    Close();
    m_used = 0;
    m_position = 0;
    m_path = path;
    m_failed = !m_file.Open(path);
    if (m_failed) {
        ReportFailure();
        return;
    }
    m_buffer.resize(kBufferBytes);
}

void StoredStream::Write(std::string_view text) {
    if (m_failed || !IsOpen()) return;
    while (!text.empty()) {
        // A line feed is stored as two bytes, so a piece always leaves space for the second one.
        if (m_buffer.size() - m_used < 2) Flush();
        const std::size_t room = m_buffer.size() - m_used;
        const std::string_view head = text.substr(0, room - 1);
        const void* feed = std::memchr(head.data(), '\n', head.size());
        const std::size_t plain =
            feed == nullptr ? head.size() : Index(static_cast<const char*>(feed) - head.data());
        std::memcpy(m_buffer.data() + m_used, head.data(), plain);
        m_used += plain;
        m_position += static_cast<std::int64_t>(plain);
        text.remove_prefix(plain);
        if (feed != nullptr) {
            if (m_buffer.size() - m_used < 2) Flush();
            m_buffer[m_used++] = '\r';
            m_buffer[m_used++] = '\n';
            m_position += 2;
            text.remove_prefix(1);
        }
    }
}

void StoredStream::Flush() {
    if (m_used > 0 && !m_file.Write(m_buffer.data(), m_used)) m_failed = true;
    m_used = 0;
}

void StoredStream::Close() {
    if (!IsOpen()) return;
    Flush();
    if (!m_file.Commit()) m_failed = true;
    if (m_failed) ReportFailure();
}

// Called while another failure is handled, so it must not fail.
void StoredStream::ReportFailure() const {
    try {
        services::ReportOutputFailed(m_path);
    } catch (const std::exception&) {
        // There is no memory for the message either.
    }
}

}  // namespace lumerin
