// SPDX-License-Identifier: MIT
// A separate process for steps that reduce the rights or the memory of the process, or end it.
#pragma once

#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <functional>

namespace lumerin {

// The end of a child, as waitpid reports it.
inline int StatusOfChild(const std::function<void()>& steps) {
    const pid_t child = fork();
    if (child == 0) {
        steps();
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = -1;
    if (child > 0) waitpid(child, &status, 0);
    return status;
}

// The steps' expectations count as those of the test.
inline void InChild(const std::function<void()>& steps) {
    const int status = StatusOfChild(steps);
    ASSERT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

// Limits the files of this process to that many bytes; a longer write is an error.
inline void LimitFileSize(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

// Root may write everywhere; without root's rights this process is subject to those of files and folders.
inline bool GiveUpRoot() {
    __user_cap_header_struct who{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct none[2]{};
    return syscall(SYS_capset, &who, none) == 0;
}

}  // namespace lumerin
