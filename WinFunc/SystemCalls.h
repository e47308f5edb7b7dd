// What the calls of this layer do about errno and about the descriptors that they get.
#pragma once

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

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

/// A program whose standard streams are closed gets their numbers for its files. 0 stands for no descriptor,
/// and whatever is printed goes to 1 and 2: so those move up. Negative, with errno, when that fails.
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
