// The file by which a test moves the clocks of a program that runs with JumpingClock.
#pragma once

#include <atomic>
#include <ctime>

struct ClockOffsets
{
    std::atomic<time_t> wall; ///< seconds, added to the wall clock
    std::atomic<time_t> boot; ///< seconds, added to the time since boot
};
static_assert(std::atomic<time_t>::is_always_lock_free); // two processes use it
