// The clock of the client's time limits, which a test sets.
#pragma once

#include "Win_def.h"

#include <atomic>

/// Milliseconds. Starts near the end of its range, so that it passes through 0 in the first hour.
inline std::atomic<DWORD> testClock = 0xFFFFFFFFU - 1'800'000;
