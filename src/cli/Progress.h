// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <mutex>
#include <ostream>
#include <string>
#include <thread>

namespace lumerin {

// A line on the terminal while something takes longer than a second; it is wiped out at the end. Silent where
// standard error is no terminal.
class Progress {
  public:
    Progress(std::ostream& err, std::string text);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { End(); }

    void End();

  private:
    std::ostream& m_err;
    std::string m_line;
    std::mutex m_mutex;
    std::condition_variable m_ending;
    bool m_ended = false;
    bool m_shown = false;
    std::thread m_thread;
};

}  // namespace lumerin
