#include "FailingCalls.h"

#include <array>
#include <cerrno>
#include <cstdarg>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

struct Failure
{
    int error = 0; ///< 0: none
    int passed = 0;
};

thread_local std::array<Failure, 3> failures = {};

/// True, with errno, if the call must fail.
bool Fails(FailingCall call)
{
    Failure& failure = failures[static_cast<size_t>(call)];
    if (failure.error == 0 || failure.passed-- > 0) {
        return false;
    }
    errno = std::exchange(failure.error, 0);
    return true;
}

} // namespace

void FailOne(FailingCall call, int error, int passed)
{
    failures[static_cast<size_t>(call)] = {error, passed};
}

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : mode_t{0};
    va_end(more);
    return Fails(FailingCall::OPEN) ? -1 : static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

int fstat(int fd, struct stat* info) noexcept
{
    return Fails(FailingCall::FSTAT) ? -1 : static_cast<int>(syscall(SYS_fstat, fd, info));
}

ssize_t read(int fd, void* buffer, size_t size)
{
    return Fails(FailingCall::READ) ? -1 : syscall(SYS_read, fd, buffer, size);
}
}
