// Waits until the time of the last change distinguishes the state of the registry file.
#pragma once

#include "InstallPaths.h"

#include <chrono>
#include <ctime>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

/// Waits until the last change of the registry file is so old that any later one gets a different time.
inline void WaitUntilSettled()
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (std::chrono::steady_clock::now() < end) {
        struct stat info = {};
        timespec now = {};
        ASSERT_EQ(stat(REGISTRY_FILE, &info), 0);
        clock_gettime(CLOCK_REALTIME_COARSE, &now);
        const auto age = std::chrono::seconds(now.tv_sec - info.st_ctim.tv_sec) +
                         std::chrono::nanoseconds(now.tv_nsec - info.st_ctim.tv_nsec);
        if (age > std::chrono::milliseconds(200)) {
            return;
        }
        std::this_thread::yield();
    }
    FAIL() << "the clock does not advance";
}
