// Old data on the stack, which a function must not use.
#pragma once

#include <algorithm>
#include <array>

/// Leaves 40,000 bytes of this number below the stack frame of the caller, where the next call has its local
/// variables.
[[gnu::noinline]] inline void DirtyStack(int number)
{
    std::array<volatile int, 10000> numbers;
    std::fill(numbers.begin(), numbers.end(), number);
}
