#include "SocketCalls.h"

#include <cerrno>
#include <cstdarg>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

thread_local bool hasEnded = false; // still readable then

struct CallsOfThread : SocketCalls
{
    ~CallsOfThread()
    {
        hasEnded = true;
    }
};

} // namespace

SocketCalls& Calls()
{
    thread_local CallsOfThread calls;
    return calls;
}

namespace {

/// Counts the call. True, with errno set, if it must fail.
bool Fails(const char* name)
{
    if (hasEnded) { // gcov closes its files at the end of the process
        return false;
    }
    SocketCalls& calls = Calls();
    ++calls.count[name];
    const auto failure = calls.failed.find(name);
    if (failure == calls.failed.end()) {
        return false;
    }
    errno = failure->second;
    return true;
}

} // namespace

extern "C" {

int connect(int fd, const sockaddr* address, socklen_t size)
{
    return Fails("connect") ? -1 : static_cast<int>(syscall(SYS_connect, fd, address, size));
}

int close(int fd)
{
    const bool fails = Fails("close");
    const int error = errno;
    const int result = static_cast<int>(syscall(SYS_close, fd));
    if (fails) { // the descriptor is closed in any case
        errno = error;
        return -1;
    }
    return result;
}

int setsockopt(int fd, int level, int name, const void* value, socklen_t size) noexcept
{
    const std::string which = "setsockopt " + std::to_string(level) + " " + std::to_string(name);
    return Fails(which.c_str()) ? -1
                                : static_cast<int>(syscall(SYS_setsockopt, fd, level, name, value, size));
}

int getsockopt(int fd, int level, int name, void* value, socklen_t* size) noexcept
{
    if (Fails("getsockopt")) {
        return -1;
    }
    if (level == SOL_SOCKET && name == SO_ERROR && Calls().pendingError != 0) {
        *static_cast<int*>(value) = Calls().pendingError;
        return 0;
    }
    return static_cast<int>(syscall(SYS_getsockopt, fd, level, name, value, size));
}

int shutdown(int fd, int how) noexcept
{
    return Fails("shutdown") ? -1 : static_cast<int>(syscall(SYS_shutdown, fd, how));
}

ssize_t recv(int fd, void* buffer, size_t size, int flags)
{
    return Fails("recv") ? -1 : syscall(SYS_recvfrom, fd, buffer, size, flags, nullptr, nullptr);
}

ssize_t send(int fd, const void* data, size_t size, int flags)
{
    return Fails("send") ? -1 : syscall(SYS_sendto, fd, data, size, flags, nullptr, 0);
}

int fcntl(int fd, int command, ...)
{
    va_list args;
    va_start(args, command);
    const long argument = va_arg(args, long);
    va_end(args);
    const std::string which = "fcntl " + std::to_string(command);
    return Fails(which.c_str()) ? -1 : static_cast<int>(syscall(SYS_fcntl, fd, command, argument));
}

int ppoll(pollfd* entries, nfds_t count, const timespec* limit, const sigset_t*)
{
    if (Fails("ppoll")) {
        return -1;
    }
    if (Calls().foundEvents != 0) {
        entries[0].revents = Calls().foundEvents;
        return 1;
    }
    timespec left = limit != nullptr ? *limit : timespec{};
    return static_cast<int>(
        syscall(SYS_ppoll, entries, count, limit != nullptr ? &left : nullptr, nullptr, 0));
}
}
