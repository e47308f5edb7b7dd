// Memory that runs out for whoever asks for it with std::nothrow.
#pragma once

#include <cstddef>

/// While one lives, such a request of at least `size` bytes fails in this thread, once `passed` of them have
/// been granted.
class FailingMemory
{
public:
    explicit FailingMemory(size_t size, size_t passed = 0);
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;
    ~FailingMemory();

    /// The largest request since its start.
    size_t Largest() const;
};
