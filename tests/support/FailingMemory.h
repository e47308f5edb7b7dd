// Simulates a lack of memory: failing requests with std::nothrow return null, all others throw
// std::bad_alloc.
#pragma once

#include <cstddef>

/// During the lifetime of an object, requests of at least `size` bytes fail in this thread after `passed` of
/// them have succeeded.
class FailingMemory
{
public:
    enum Requests
    {
        NOTHROW, ///< only those with std::nothrow
        ALL
    };

    explicit FailingMemory(size_t size, size_t passed = 0, Requests requests = NOTHROW);
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;
    ~FailingMemory();

    /// The largest request since construction, in bytes.
    size_t Largest() const;
    /// True if a request has failed.
    bool HasFailed() const;
};
