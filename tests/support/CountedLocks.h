// Records which files a program locks, in order. Only for programs of one source file: it defines flock in
// place of the C library.
#pragma once

#include <array>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

class CountedLocks
{
public:
    static void Note(int descriptor)
    {
        std::array<char, 4096> path = {};
        if (readlink(("/proc/self/fd/" + std::to_string(descriptor)).c_str(), path.data(), path.size() - 1) >
            0) {
            const std::lock_guard lock(Guard());
            Names().push_back(std::string(path.data()).substr(std::string(path.data()).rfind('/') + 1));
        }
    }
    /// The names of the files locked since the last call, without their folders.
    static std::vector<std::string> Take()
    {
        const std::lock_guard lock(Guard());
        return std::exchange(Names(), {});
    }

private:
    static std::mutex& Guard()
    {
        static std::mutex guard;
        return guard;
    }
    static std::vector<std::string>& Names()
    {
        static std::vector<std::string> names;
        return names;
    }
};

int flock(int descriptor, int operation) noexcept
{
    if ((operation & LOCK_EX) != 0) {
        CountedLocks::Note(descriptor);
    }
    return static_cast<int>(syscall(SYS_flock, descriptor, operation));
}
