// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace lumerin {

// Work in several threads whose results are taken in order: what is printed does not depend on which thread
// was faster. Results that are waiting for their turn are few, whatever the number of items.
template <class Result>
class InOrder {
  public:
    // Called in any thread, in several at once.
    using Work = std::function<Result(std::size_t item)>;
    // Called in the thread of Run, in the order of the items.
    using Take = std::function<void(std::size_t item, Result&& result)>;

    InOrder(std::size_t items, Work work) : m_items(items), m_work(std::move(work)) {}
    InOrder(const InOrder&) = delete;
    InOrder& operator=(const InOrder&) = delete;
    ~InOrder() { End(); }

    // Does all items in up to `jobs` threads. An exception of `work` is thrown when its turn comes, one of
    // `take` at once; items that were not begun are left out then.
    void Run(std::size_t jobs, const Take& take) {
        if (jobs < 2) {
            for (std::size_t item = 0; item < m_items; ++item) take(item, m_work(item));
            return;
        }
        m_ahead = 4 * jobs;
        for (std::size_t i = 0; i < std::min(jobs, m_items); ++i) m_threads.emplace_back([this] { Loop(); });
        for (std::size_t item = 0; item < m_items; ++item) take(item, Next(item));
    }

  private:
    struct Done {
        std::optional<Result> result;
        std::exception_ptr fault;
    };

    void Loop() {
        while (true) {
            std::unique_lock lock(m_mutex);
            m_room.wait(lock,
                        [this] { return m_ended || m_begun == m_items || m_begun < m_taken + m_ahead; });
            if (m_ended || m_begun == m_items) return;
            const std::size_t item = m_begun++;
            lock.unlock();
            Done done;
            try {
                done.result = m_work(item);
            } catch (...) {
                done.fault = std::current_exception();
            }
            lock.lock();
            m_done.emplace(item, std::move(done));
            lock.unlock();
            m_ready.notify_one();
        }
    }

    Result Next(std::size_t item) {
        std::unique_lock lock(m_mutex);
        m_ready.wait(lock, [&] { return m_done.contains(item); });
        Done done = std::move(m_done.extract(item).mapped());
        m_taken = item + 1;
        lock.unlock();
        m_room.notify_all();
        if (done.fault) std::rethrow_exception(done.fault);
        return std::move(*done.result);
    }

    void End() {
        {
            const std::lock_guard lock(m_mutex);
            m_ended = true;
        }
        m_room.notify_all();
        for (std::thread& thread : m_threads) thread.join();
    }

    const std::size_t m_items;
    const Work m_work;
    std::size_t m_ahead = 0;
    std::mutex m_mutex;
    std::condition_variable m_room, m_ready;
    std::map<std::size_t, Done> m_done;  // that was not taken yet
    std::size_t m_begun = 0, m_taken = 0;
    bool m_ended = false;
    std::vector<std::thread> m_threads;
};

}  // namespace lumerin
