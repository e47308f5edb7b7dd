// Clocks that a test sets: the test program's clock_gettime and gettimeofday replace those of the C library
// for the code under test.
#pragma once

#include <chrono>

/// Stops all clocks of the program at the same time. The destructor lets them run again. One object at a
/// time.
class StoppedClocks
{
public:
    /// The time since the epoch of each clock; not negative.
    explicit StoppedClocks(std::chrono::nanoseconds time);
    StoppedClocks(const StoppedClocks&) = delete;
    StoppedClocks& operator=(const StoppedClocks&) = delete;
    ~StoppedClocks();

    /// Only while the clocks are stopped.
    static void Advance(std::chrono::nanoseconds time);
};
