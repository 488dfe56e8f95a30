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
    m_nUsed = 0;
    m_nPosition = 0;
    m_strPath = path;
    m_bFailed = !m_file.Open(path);
    if (m_bFailed) {
        TellFailure();
        return;
    }
    m_buffer.resize(kBufferBytes);
}

void StoredStream::Write(std::string_view text) {
    if (m_bFailed || !IsOpen()) return;
    while (!text.empty()) {
        // A line feed is stored as two bytes, so a piece always leaves space for the second one.
        if (m_buffer.size() - m_nUsed < 2) Flush();
        const std::size_t room = m_buffer.size() - m_nUsed;
        const std::string_view head = text.substr(0, room - 1);
        const void* feed = std::memchr(head.data(), '\n', head.size());
        const std::size_t plain =
            feed == nullptr ? head.size() : Index(static_cast<const char*>(feed) - head.data());
        std::memcpy(m_buffer.data() + m_nUsed, head.data(), plain);
        m_nUsed += plain;
        m_nPosition += static_cast<std::int64_t>(plain);
        text.remove_prefix(plain);
        if (feed != nullptr) {
            if (m_buffer.size() - m_nUsed < 2) Flush();
            m_buffer[m_nUsed++] = '\r';
            m_buffer[m_nUsed++] = '\n';
            m_nPosition += 2;
            text.remove_prefix(1);
        }
    }
}

void StoredStream::Flush() {
    if (m_nUsed > 0 && !m_file.Write(m_buffer.data(), m_nUsed)) m_bFailed = true;
    m_nUsed = 0;
}

void StoredStream::Close() {
    if (!IsOpen()) return;
    Flush();
    if (!m_file.Commit()) m_bFailed = true;
    if (m_bFailed) TellFailure();
}

// Called while another failure is handled, so it must not fail.
void StoredStream::TellFailure() const {
    try {
        services::ReportOutputFailed(m_strPath);
    } catch (const std::exception&) {
        // There is no memory for the message either.
    }
}

}  // namespace lumerin
