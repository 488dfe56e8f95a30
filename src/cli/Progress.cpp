// SPDX-License-Identifier: MIT
#include "cli/Progress.h"

#include <unistd.h>

#include <chrono>
#include <utility>

namespace lumerin {

Progress::Progress(std::ostream& err, std::string text) : m_err(err) {
    if (isatty(STDERR_FILENO) == 0) return;
    m_thread = std::thread([this, line = std::move(text)] {
        std::unique_lock lock(m_mutex);
        if (m_ending.wait_for(lock, std::chrono::seconds(1), [this] { return m_ended; })) return;
        m_err << line << " ..." << std::flush;
        m_shown = true;
    });
}

void Progress::End() {
    if (!m_thread.joinable()) return;
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
    }
    m_ending.notify_one();
    m_thread.join();
    if (m_shown) m_err << "\r\033[K" << std::flush;
}

}  // namespace lumerin
