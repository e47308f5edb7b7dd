// Counts the calls of usleep: the test program's definition replaces the C library's for the code under test.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

#include <unistd.h>

/// The calls of usleep since the last Start. One object per program.
class CountedSleep
{
public:
    /// Lengths in microseconds, each with the number of consecutive calls.
    using Runs = std::vector<std::pair<useconds_t, uint64_t>>;

    static CountedSleep& The();

    /// Clears the counts. From now on a sleep takes no time and first calls `before` with its number, counted
    /// from 1.
    void Start(std::function<void(uint64_t)> before = {});
    /// From now on a sleep takes the requested time.
    void LetTimePass();
    Runs Counted();
    /// The number of sleeps since the last Start. Any thread may call this while others sleep.
    uint64_t Count() const
    {
        return m_count;
    }

    int Asked(useconds_t microseconds);

private:
    std::mutex m_mutex;
    Runs m_runs;
    std::function<void(uint64_t)> m_before;
    std::atomic<uint64_t> m_count = 0;
    std::atomic<bool> m_timePasses = false;
};
