#include "FailingCalls.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <utility>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr size_t ANY_SIZE = ~size_t{0};

struct Failure
{
    int error = 0; ///< 0: none
    int passed = 0;
    size_t longest = ANY_SIZE; ///< of the next call, in bytes
};

thread_local std::array<Failure, static_cast<size_t>(FailingCall::READ_FOLDER) + 1> failures = {};

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

/// The number of bytes that the call may transfer.
size_t Shortened(FailingCall call, size_t size)
{
    return std::min(size, std::exchange(failures[static_cast<size_t>(call)].longest, ANY_SIZE));
}

} // namespace

void FailOne(FailingCall call, int error, int passed)
{
    failures[static_cast<size_t>(call)].error = error;
    failures[static_cast<size_t>(call)].passed = passed;
}

void ShortenOne(FailingCall call, size_t size)
{
    failures[static_cast<size_t>(call)].longest = size;
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
    return Fails(FailingCall::READ) ? -1 : syscall(SYS_read, fd, buffer, Shortened(FailingCall::READ, size));
}

ssize_t write(int fd, const void* buffer, size_t size)
{
    return Fails(FailingCall::WRITE) ? -1
                                     : syscall(SYS_write, fd, buffer, Shortened(FailingCall::WRITE, size));
}

int ftruncate(int fd, off_t size) noexcept
{
    return Fails(FailingCall::TRUNCATE) ? -1 : static_cast<int>(syscall(SYS_ftruncate, fd, size));
}

int close(int fd)
{
    const auto result = static_cast<int>(syscall(SYS_close, fd));
    return Fails(FailingCall::CLOSE) ? -1 : result;
}

DIR* fdopendir(int fd)
{
    static const auto libraryCall = reinterpret_cast<DIR* (*)(int)>(dlsym(RTLD_NEXT, "fdopendir"));
    return Fails(FailingCall::OPEN_FOLDER) ? nullptr : libraryCall(fd);
}

dirent* readdir(DIR* folder)
{
    static const auto libraryCall = reinterpret_cast<dirent* (*)(DIR*)>(dlsym(RTLD_NEXT, "readdir"));
    return Fails(FailingCall::READ_FOLDER) ? nullptr : libraryCall(folder);
}
}
