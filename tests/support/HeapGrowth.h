// The memory that a call leaves allocated.
#pragma once

#include <cstddef>
#include <malloc.h>

/// Bytes that remain allocated after 100 calls. As many calls before them fill what is allocated only once.
/// Always 0 with a sanitizer, which replaces the heap.
template <class Call>
size_t HeapGrowth(Call call)
{
    const auto callOften = [&call] {
        for (int count = 0; count < 100; ++count) {
            call();
        }
    };
    callOften();
    const size_t before = mallinfo2().uordblks;
    callOften();
    const size_t after = mallinfo2().uordblks;
    return after > before ? after - before : 0;
}
