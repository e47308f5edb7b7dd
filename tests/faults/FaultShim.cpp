// A preloaded library that counts the fallible calls of a program between FaultsBegin and FaultsEnd, and
// fails, shortens or replaces by a kill the call with a given number.
//
// It counts the calls of our own code: those that return to the main executable, into which all our libraries
// are linked. An allocation also counts if it returns to the C++ library, because std::string and the
// containers allocate there. Calls that start a thread, a process or a program count for any caller,
// because our code starts all of them through Qt or the C++ library. The calls that Qt and the C library make
// for themselves are not counted.
//
// Environment: FAULT_WHAT is "memory" (allocations are counted) or "calls" (all others are). FAULT_AT is the
// number of the call to fail, from 1; without it the calls are only counted. FAULT_HOW is an errno, "short"
// (half of the bytes), "none" (0 bytes or no event), "kill" (SIGKILL before the call) or "tear" (half of the
// bytes, then SIGKILL). FAULT_FOLDER receives the files "calls" (the names of the counted calls, at
// FaultsEnd), "hit" (name and return address of the failed call) and "blocks" (the return addresses of
// outstanding allocations, at FaultsReport).
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <new>
#include <string>
#include <string_view>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr long mostCalls = 200000;

enum class How
{
    error,
    shorten,
    none,
    kill,
    tear
};

struct Plan
{
    bool memory = false;
    long at = 0; ///< 0: no call is failed
    How how = How::error;
    int error = 0;
    std::array<char, 256> folder = {};
};

/// Shared with forked children, so that the calls between fork and exec count.
struct Counted
{
    std::atomic<bool> isArmed;
    std::atomic<long> calls;
    std::array<const char*, mostCalls> names;
};

struct Range
{
    uintptr_t begin = 0;
    uintptr_t end = 0;

    bool holds(const void* address) const
    {
        const auto place = reinterpret_cast<uintptr_t>(address);
        return place >= begin && place < end;
    }
};

Plan plan;
Counted* counted = nullptr;
Range executable;
Range cppLibrary;

int rangeOf(dl_phdr_info* info, size_t, void*)
{
    Range range{~uintptr_t{0}, 0};
    for (int i = 0; i < info->dlpi_phnum; ++i) {
        const ElfW(Phdr)& part = info->dlpi_phdr[i];
        if (part.p_type == PT_LOAD) {
            range.begin = std::min(range.begin, uintptr_t{info->dlpi_addr + part.p_vaddr});
            range.end = std::max(range.end, uintptr_t{info->dlpi_addr + part.p_vaddr + part.p_memsz});
        }
    }
    if (executable.end == 0) { // the first one is the main executable
        executable = range;
    } else if (std::string_view(info->dlpi_name).find("/libstdc++.so") != std::string_view::npos) {
        cppLibrary = range;
    }
    return 0;
}

How howOf(std::string_view text)
{
    if (text == "short") {
        return How::shorten;
    }
    if (text == "none") {
        return How::none;
    }
    if (text == "kill") {
        return How::kill;
    }
    return text == "tear" ? How::tear : How::error;
}

__attribute__((constructor)) void prepare()
{
    const char* const folder = getenv("FAULT_FOLDER");
    if (folder == nullptr) {
        return;
    }
    snprintf(plan.folder.data(), plan.folder.size(), "%s", folder);
    const char* const what = getenv("FAULT_WHAT");
    const char* const at = getenv("FAULT_AT");
    const char* const how = getenv("FAULT_HOW");
    plan.memory = what != nullptr && strcmp(what, "memory") == 0;
    plan.at = at != nullptr ? strtol(at, nullptr, 10) : 0;
    plan.how = howOf(how != nullptr ? how : "");
    // With threads, the call with this number may be another one, which can be neither shortened nor empty.
    plan.error = how != nullptr && plan.how == How::error ? static_cast<int>(strtol(how, nullptr, 10)) : EIO;
    unsetenv("LD_PRELOAD"); // the programs that this one starts run without the shim
    dl_iterate_phdr(rangeOf, nullptr);
    void* const memory =
        mmap(nullptr, sizeof(Counted), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    counted = memory != MAP_FAILED ? new (memory) Counted{} : nullptr;
}

/// A file in the folder, written by system calls, which no wrapper counts. One at a time.
class Report
{
public:
    explicit Report(const char* name)
    {
        std::array<char, 300> path{};
        snprintf(path.data(), path.size(), "%s/%s", plan.folder.data(), name);
        m_fd = syscall(SYS_openat, AT_FDCWD, path.data(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    }
    ~Report()
    {
        flush();
        syscall(SYS_close, m_fd);
    }
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    void add(const char* name, uintptr_t place)
    {
        if (m_used + longestLine > buffer.size()) {
            flush();
        }
        m_used += static_cast<size_t>(
            snprintf(buffer.data() + m_used, longestLine, "%s %zx\n", name, size_t{place}));
    }

private:
    static constexpr size_t longestLine = 64;
    static std::array<char, 65536> buffer;

    void flush()
    {
        syscall(SYS_write, m_fd, buffer.data(), m_used);
        m_used = 0;
    }

    long m_fd;
    size_t m_used = 0;
};
std::array<char, 65536> Report::buffer;

[[noreturn]] void killProcess()
{
    syscall(SYS_kill, syscall(SYS_getpid), SIGKILL);
    for (;;) {
        syscall(SYS_pause);
    }
}

/// Counts the call. True, with errno set, if it must not be made as it is; plan.how then says what to do.
bool isHit(const char* name, const void* caller, bool counts)
{
    if (counted == nullptr || !counted->isArmed || !counts) {
        return false;
    }
    const long number = ++counted->calls;
    if (number <= mostCalls) {
        counted->names[static_cast<size_t>(number - 1)] = name;
    }
    if (number != plan.at) {
        return false;
    }
    Report("hit").add(name,
                      executable.holds(caller) ? reinterpret_cast<uintptr_t>(caller) - executable.begin : 0);
    if (plan.how == How::kill) {
        killProcess();
    }
    errno = plan.error;
    return true;
}

bool isHit(const char* name, const void* caller)
{
    return isHit(name, caller, !plan.memory && executable.holds(caller));
}

template <class Function>
Function* next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// Makes a call that transfers `size` bytes, with fewer of them if it is hit in that way.
template <class Transfer>
ssize_t transferred(bool hit, size_t& size, Transfer transfer)
{
    if (hit && plan.how == How::none) {
        return 0;
    }
    if (hit && (plan.how == How::shorten || plan.how == How::tear)) {
        size = (size + 1) / 2;
    } else if (hit) {
        return -1;
    }
    const ssize_t result = transfer();
    if (hit && plan.how == How::tear) {
        killProcess();
    }
    return result;
}

// ---------------------------------------------------------------------------------------------------------------------
// Outstanding allocations of our code, by return address

struct Block
{
    void* memory;
    uintptr_t site;
};

constexpr size_t slots = size_t{1} << 18;
constexpr size_t nearby = 64; ///< slots that are searched for a block

std::array<Block, slots + nearby>
    blocks; // by a hash of the address; a block without a free slot is not noted
std::atomic_flag blocksLock;

class BlocksGuard
{
public:
    BlocksGuard()
    {
        while (blocksLock.test_and_set(std::memory_order_acquire)) {
            sched_yield();
        }
    }
    ~BlocksGuard()
    {
        blocksLock.clear(std::memory_order_release);
    }
    BlocksGuard(const BlocksGuard&) = delete;
    BlocksGuard& operator=(const BlocksGuard&) = delete;
};

/// The slot of this memory, or for null a free one, near the place of `key`. Null if there is none.
Block* find(const void* memory, const void* key)
{
    const size_t place = (reinterpret_cast<uintptr_t>(key) / 16 * 0x9E3779B97F4A7C15ULL) >> 46;
    for (size_t slot = place; slot < place + nearby; ++slot) {
        if (blocks[slot].memory == memory) {
            return &blocks[slot];
        }
    }
    return nullptr;
}

void note(void* memory, const void* caller)
{
    const BlocksGuard guard;
    if (Block* const block = find(nullptr, memory)) {
        *block = {memory,
                  executable.holds(caller) ? reinterpret_cast<uintptr_t>(caller) - executable.begin : 0};
    }
}

void forget(const void* memory)
{
    const BlocksGuard guard;
    if (Block* const block = find(memory, memory)) {
        block->memory = nullptr;
    }
}

bool isOurs(const void* caller)
{
    return executable.holds(caller) || cppLibrary.holds(caller);
}

void* allocate(size_t size, const void* caller)
{
    if (isHit("new", caller, plan.memory && isOurs(caller))) {
        return nullptr;
    }
    void* const memory = malloc(size > 0 ? size : 1);
    if (memory != nullptr && counted != nullptr && isOurs(caller)) {
        note(memory, caller);
    }
    return memory;
}

void* allocateOrThrow(size_t size, const void* caller)
{
    void* const memory = allocate(size, caller);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void release(void* memory)
{
    if (memory != nullptr && counted != nullptr) {
        forget(memory);
    }
    free(memory);
}

/// A hundredth of the time, so that fixed waits do not determine the time of a run.
timespec shortened(const timespec& time)
{
    constexpr long divisor = 100;
    constexpr long nanosecondsPerSecond = 1000000000;
    return {time.tv_sec / divisor, (time.tv_sec % divisor * nanosecondsPerSecond + time.tv_nsec) / divisor};
}

} // namespace

void* operator new(size_t size)
{
    return allocateOrThrow(size, __builtin_return_address(0));
}

void* operator new[](size_t size)
{
    return allocateOrThrow(size, __builtin_return_address(0));
}

void* operator new(size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size, __builtin_return_address(0));
}

void* operator new[](size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size, __builtin_return_address(0));
}

void operator delete(void* memory) noexcept
{
    release(memory);
}

void operator delete[](void* memory) noexcept
{
    release(memory);
}

void operator delete(void* memory, size_t) noexcept
{
    release(memory);
}

void operator delete[](void* memory, size_t) noexcept
{
    release(memory);
}

// The names of the C library are set by labels, because its headers declare them differently from version to
// version.
#define WRAPPER(type, name, parameters)                                                                      \
    extern "C" type Wrapped_##name parameters asm(#name);                                                    \
    type Wrapped_##name parameters

#define FALLIBLE(type, failed, name, parameters, arguments)                                                  \
    WRAPPER(type, name, parameters)                                                                          \
    {                                                                                                        \
        static auto* const original = next<type parameters>(#name);                                          \
        return isHit(#name, __builtin_return_address(0)) ? (failed) : original arguments;                    \
    }

#define FALLIBLE_FROM_ANY(type, failed, name, parameters, arguments)                                         \
    WRAPPER(type, name, parameters)                                                                          \
    {                                                                                                        \
        static auto* const original = next<type parameters>(#name);                                          \
        return isHit(#name, __builtin_return_address(0), !plan.memory) ? (failed) : original arguments;      \
    }

#define TRANSFER(name, parameters, arguments)                                                                \
    WRAPPER(ssize_t, name, parameters)                                                                       \
    {                                                                                                        \
        static auto* const original = next<ssize_t parameters>(#name);                                       \
        return transferred(isHit(#name, __builtin_return_address(0)), size,                                  \
                           [&] { return original arguments; });                                              \
    }

TRANSFER(write, (int fd, const void* data, size_t size), (fd, data, size))
TRANSFER(recv, (int fd, void* buffer, size_t size, int flags), (fd, buffer, size, flags))
TRANSFER(send, (int fd, const void* data, size_t size, int flags), (fd, data, size, flags))
TRANSFER(sendto, (int fd, const void* data, size_t size, int flags, const sockaddr* peer, socklen_t length),
         (fd, data, size, flags, peer, length))

FALLIBLE(int, -1, flock, (int fd, int operation), (fd, operation))
FALLIBLE(int, -1, ftruncate, (int fd, off_t size), (fd, size))
FALLIBLE(FILE*, nullptr, fdopen, (int fd, const char* mode), (fd, mode))
FALLIBLE(FILE*, nullptr, fopen, (const char* path, const char* mode), (path, mode))
FALLIBLE(int, -1, stat, (const char* path, struct stat* info), (path, info))
FALLIBLE(int, -1, lstat, (const char* path, struct stat* info), (path, info))
FALLIBLE(int, -1, fstat, (int fd, struct stat* info), (fd, info))
FALLIBLE(int, -1, access, (const char* path, int mode), (path, mode))
FALLIBLE(int, -1, chmod, (const char* path, mode_t mode), (path, mode))
FALLIBLE(int, -1, mkdir, (const char* path, mode_t mode), (path, mode))
FALLIBLE(int, -1, rmdir, (const char* path), (path))
FALLIBLE(int, -1, unlink, (const char* path), (path))
FALLIBLE(int, -1, symlink, (const char* target, const char* path), (target, path))
FALLIBLE(int, -1, fchmodat, (int folder, const char* path, mode_t mode, int flags),
         (folder, path, mode, flags))
FALLIBLE(DIR*, nullptr, opendir, (const char* path), (path))
FALLIBLE(dirent*, nullptr, readdir, (DIR * folder), (folder))
FALLIBLE(char*, nullptr, realpath, (const char* path, char* resolved), (path, resolved))
FALLIBLE(ssize_t, -1, readlink, (const char* path, char* text, size_t size), (path, text, size))
FALLIBLE(int, -1, socket, (int domain, int type, int protocol), (domain, type, protocol))
FALLIBLE(int, -1, connect, (int fd, const sockaddr* address, socklen_t size), (fd, address, size))
FALLIBLE(int, -1, setsockopt, (int fd, int level, int name, const void* value, socklen_t size),
         (fd, level, name, value, size))
FALLIBLE(int, -1, getsockopt, (int fd, int level, int name, void* value, socklen_t* size),
         (fd, level, name, value, size))
FALLIBLE(int, plan.how == How::none ? 0 : -1, poll, (pollfd * entries, nfds_t count, int limit),
         (entries, count, limit))
FALLIBLE(int, plan.how == How::none ? 0 : -1, ppoll,
         (pollfd * entries, nfds_t count, const timespec* limit, const sigset_t* mask),
         (entries, count, limit, mask))
FALLIBLE(int, -1, inotify_init1, (int flags), (flags))
FALLIBLE(int, -1, inotify_add_watch, (int fd, const char* path, uint32_t mask), (fd, path, mask))
FALLIBLE_FROM_ANY(pid_t, -1, fork, (), ())
FALLIBLE_FROM_ANY(int, -1, execve, (const char* path, char* const* arguments, char* const* environment),
                  (path, arguments, environment))
FALLIBLE_FROM_ANY(int, -1, execv, (const char* path, char* const* arguments), (path, arguments))
FALLIBLE_FROM_ANY(int, -1, pipe2, (int* ends, int flags), (ends, flags))
FALLIBLE_FROM_ANY(int, plan.error, pthread_create,
                  (pthread_t * thread, const pthread_attr_t* attributes, void* (*function)(void*),
                   void* argument),
                  (thread, attributes, function, argument))

WRAPPER(ssize_t, read, (int fd, void* buffer, size_t size))
{
    static auto* const original = next<ssize_t(int, void*, size_t)>("read");
    struct stat info = {};
    const bool isSocket = syscall(SYS_fstat, fd, &info) == 0 && S_ISSOCK(info.st_mode);
    return transferred(isHit(isSocket ? "read-socket" : "read", __builtin_return_address(0)), size,
                       [&] { return original(fd, buffer, size); });
}

WRAPPER(int, open, (const char* path, int flags, ...))
{
    static auto* const original = next<int(const char*, int, ...)>("open");
    va_list more;
    va_start(more, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : mode_t{0};
    va_end(more);
    return isHit("open", __builtin_return_address(0)) ? -1 : original(path, flags, mode);
}

/// `open` without a mode, with flags that the compiler does not know.
WRAPPER(int, __open_2, (const char* path, int flags))
{
    static auto* const original = next<int(const char*, int)>("__open_2");
    return isHit("open", __builtin_return_address(0)) ? -1 : original(path, flags);
}

WRAPPER(int, fcntl, (int fd, int command, ...))
{
    static auto* const original = next<int(int, int, ...)>("fcntl");
    va_list more;
    va_start(more, command);
    const long argument = va_arg(more, long);
    va_end(more);
    return isHit("fcntl", __builtin_return_address(0)) ? -1 : original(fd, command, argument);
}

/// A failed close has closed the descriptor in any case.
WRAPPER(int, close, (int fd))
{
    static auto* const original = next<int(int)>("close");
    if (isHit("close", __builtin_return_address(0))) {
        syscall(SYS_close, fd);
        errno = plan.error;
        return -1;
    }
    return original(fd);
}

/// The file is closed in any case, but its data are lost, and the call fails.
WRAPPER(int, fclose, (FILE * file))
{
    static auto* const original = next<int(FILE*)>("fclose");
    const bool hit = isHit("fclose", __builtin_return_address(0));
    if (hit && plan.how == How::error) {
        // Without its data, as on a full disk: the descriptor is replaced by one of /dev/full.
        const long full = syscall(SYS_openat, AT_FDCWD, "/dev/full", O_WRONLY | O_CLOEXEC);
        syscall(SYS_dup3, full, fileno(file), O_CLOEXEC);
        syscall(SYS_close, full);
    }
    return original(file);
}

WRAPPER(int, usleep, (useconds_t microseconds))
{
    constexpr useconds_t perSecond = 1000000;
    const timespec time{static_cast<time_t>(microseconds / perSecond),
                        static_cast<long>(microseconds % perSecond) * 1000};
    const timespec shorter = shortened(time);
    return static_cast<int>(syscall(SYS_nanosleep, &shorter, nullptr));
}

WRAPPER(int, nanosleep, (const timespec* time, timespec* rest))
{
    const timespec shorter = shortened(*time);
    return static_cast<int>(syscall(SYS_nanosleep, &shorter, rest));
}

// ---------------------------------------------------------------------------------------------------------------------
// For the scenarios, which look these functions up

extern "C" {
void FaultsBegin();
void FaultsEnd();
void FaultsReport();
}

void FaultsBegin()
{
    if (counted != nullptr) {
        counted->calls = 0;
        counted->isArmed = true;
    }
}

void FaultsEnd()
{
    if (counted == nullptr) {
        return;
    }
    counted->isArmed = false;
    Report report("calls");
    const long count = std::min(counted->calls.load(), mostCalls);
    for (long i = 0; i < count; ++i) {
        report.add(counted->names[static_cast<size_t>(i)], 0);
    }
}

void FaultsReport()
{
    Report report("blocks");
    for (const Block& block : blocks) {
        if (block.memory != nullptr) {
            report.add("block", block.site);
        }
    }
}
