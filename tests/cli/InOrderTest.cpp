// SPDX-License-Identifier: MIT
#include "cli/InOrder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace lumerin {

namespace {

// Odd items take longer, so that they are done after the ones that follow them.
int Slow(std::size_t item) {
    std::this_thread::sleep_for(std::chrono::microseconds(item % 2 == 1 ? 300 : 0));
    return static_cast<int>(item) * 10;
}

}  // namespace

TEST(InOrder, ResultsAreTakenInTheOrderOfTheItems) {
    for (const std::size_t jobs : {1U, 2U, 5U, 50U}) {
        std::vector<int> taken;
        InOrder<int>(20, Slow).Run(jobs, [&](std::size_t item, int&& result) {
            EXPECT_EQ(result, static_cast<int>(item) * 10);
            taken.push_back(static_cast<int>(item));
        });
        ASSERT_EQ(taken.size(), 20U) << jobs;
        for (std::size_t i = 0; i < taken.size(); ++i) EXPECT_EQ(taken[i], static_cast<int>(i)) << jobs;
    }
}

TEST(InOrder, NothingIsNoWork) {
    InOrder<int>(0, Slow).Run(4, [](std::size_t, int&&) { FAIL(); });
}

// The first item takes as long as many others; their results must not fill the memory.
TEST(InOrder, FewResultsWaitForTheirTurn) {
    constexpr std::size_t kJobs = 3;
    std::atomic<int> begun{0};
    int waiting = 0;
    InOrder<int> work(1000, [&](std::size_t item) {
        ++begun;
        if (item == 0) std::this_thread::sleep_for(std::chrono::milliseconds(50));
        return 0;
    });
    work.Run(kJobs, [&](std::size_t item, int&&) {
        if (item == 0) waiting = begun;
    });
    EXPECT_LE(waiting, static_cast<int>(4 * kJobs + 1));
    EXPECT_EQ(begun, 1000);
}

TEST(InOrder, AFaultIsThrownWhenItsTurnComes) {
    for (const std::size_t jobs : {1U, 4U}) {
        std::vector<std::size_t> taken;
        InOrder<int> work(100, [](std::size_t item) {
            if (item == 5) throw std::runtime_error("item 5");
            return Slow(item);
        });
        EXPECT_THROW(work.Run(jobs, [&](std::size_t item, int&&) { taken.push_back(item); }),
                     std::runtime_error);
        EXPECT_EQ(taken, (std::vector<std::size_t>{0, 1, 2, 3, 4})) << jobs;
    }
}

// The threads end although the results of many items were not taken.
TEST(InOrder, AFaultOfTheTakerEndsTheWork) {
    InOrder<int> work(1000, Slow);
    EXPECT_THROW(work.Run(4, [](std::size_t, int&&) { throw std::runtime_error("disk full"); }),
                 std::runtime_error);
}

}  // namespace lumerin
