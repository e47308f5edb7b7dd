// The memory that a call leaves allocated.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <malloc.h>

/// Bytes that remain allocated after each 100 calls: the least growth of several rounds, because a round may
/// also fill something that is allocated only once. Always 0 with a sanitizer, which replaces the heap.
template <class Call>
size_t HeapGrowth(Call call)
{
    size_t least = SIZE_MAX;
    for (int round = 0; round < 5; ++round) {
        const size_t before = mallinfo2().uordblks;
        for (int count = 0; count < 100; ++count) {
            call();
        }
        const size_t after = mallinfo2().uordblks;
        least = std::min(least, after > before ? after - before : 0);
    }
    return least;
}
