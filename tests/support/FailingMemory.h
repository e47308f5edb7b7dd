// Memory that runs out: requests with std::nothrow return null, all others throw std::bad_alloc.
#pragma once

#include <cstddef>

/// While one lives, requests of at least `size` bytes fail in this thread, once `passed` of them have been
/// granted.
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

    /// The largest request since its start.
    size_t Largest() const;
    /// Whether a request has failed.
    bool HasFailed() const;
};
