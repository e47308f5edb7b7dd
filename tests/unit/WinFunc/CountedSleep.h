// The C library's usleep, counted: the test program's definition takes the place of the library's for the
// code under test.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

#include <unistd.h>

/// What usleep was asked for since the last Start. One object in a program.
class CountedSleep
{
public:
    /// Lengths in microseconds, each with how often it came in a row.
    using Runs = std::vector<std::pair<useconds_t, uint64_t>>;

    static CountedSleep& The();

    /// Forgets what was counted. No time passes in a sleep from here on; `before` runs ahead of each, with
    /// its number from 1.
    void Start(std::function<void(uint64_t)> before = {});
    /// From here on a sleep lasts as long as it says.
    void LetTimePass();
    Runs Counted();
    /// Sleeps since the last Start; any thread may ask while others sleep.
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
