// What the calls of this layer do about errno.
#pragma once

#include <cerrno>

/// At the end of its scope errno is again what it was at the start, so that GetLastError tells of the call
/// that failed and not of what was done about the failure.
class ErrnoKeeper
{
public:
    ErrnoKeeper() = default;
    ~ErrnoKeeper()
    {
        errno = number;
    }
    ErrnoKeeper(const ErrnoKeeper&) = delete;
    ErrnoKeeper& operator=(const ErrnoKeeper&) = delete;

    const int number = errno;
};

/// Runs a system call again for as long as a signal interrupts it before anything was done.
template <class Call>
auto Uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}
