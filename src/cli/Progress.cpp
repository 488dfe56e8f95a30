// SPDX-License-Identifier: MIT
#include "cli/Progress.h"

#include <chrono>
#include <utility>

#include "cli/Console.h"

namespace lumerin {

Progress::Progress(std::ostream& err, std::string text) : m_err(err) {
    if (!console::IsConsole(console::Stream::error)) return;
    m_line = std::move(text) + " ...";
    m_thread = std::thread([this] {
        std::unique_lock lock(m_mutex);
        if (m_ending.wait_for(lock, std::chrono::seconds(1), [this] { return m_ended; })) return;
        m_err << m_line << std::flush;
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
    if (!m_shown) return;
    if (console::TakesEscapes(console::Stream::error)) {
        m_err << "\r\033[K" << std::flush;
    } else {
        m_err << '\r' << std::string(m_line.size(), ' ') << '\r' << std::flush;
    }
}

}  // namespace lumerin
