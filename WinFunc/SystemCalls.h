// Helpers for errno, interrupted system calls and descriptor numbers.
#pragma once

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

/// Restores errno at the end of its scope, so that GetLastError reports the call that failed and not its
/// cleanup.
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

/// Repeats a system call while a signal interrupts it before it has done anything.
template <class Call>
auto Uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// Returns a descriptor above those of the standard streams; `fd` is closed if it had to be moved. If the
/// standard streams are closed, open(2) returns 0 to 2, but in this layer 0 means no descriptor and printed
/// text goes to 1 and 2. Negative, with errno, on failure.
inline int AboveStandardStreams(int fd)
{
    if (fd < 0 || fd > STDERR_FILENO) {
        return fd;
    }
    const int moved = fcntl(fd, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const ErrnoKeeper keeper;
    close(fd);
    return moved;
}
