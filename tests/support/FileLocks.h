// Locks a file like another program, and detects the processes that wait for the lock.
#pragma once

#include <atomic>
#include <chrono>
#include <fstream>
#include <functional>
#include <string>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

/// Holds an exclusive flock on the file until `Release` or destruction.
class FileLock
{
public:
    explicit FileLock(const char* path) : m_fd(::open(path, O_RDWR | O_CLOEXEC))
    {
        m_held = m_fd >= 0 && ::flock(m_fd, LOCK_EX) == 0;
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock()
    {
        Release();
        ::close(m_fd);
    }

    bool IsHeld() const
    {
        return m_held;
    }
    int Descriptor() const
    {
        return m_fd;
    }
    void Release()
    {
        if (m_held) {
            ::flock(m_fd, LOCK_UN);
            m_held = false;
        }
    }

private:
    int m_fd;
    bool m_held;
};

inline bool WaitUntil(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::yield();
    }
    return true;
}

/// True if a process waits for a lock on the file.
inline bool SomebodyWaitsFor(const char* path)
{
    struct stat info = {};
    if (::stat(path, &info) != 0) {
        return false;
    }
    const std::string file = ":" + std::to_string(info.st_ino) + " ";
    std::ifstream locks("/proc/locks");
    for (std::string line; std::getline(locks, line);) {
        if (line.find("-> FLOCK") != std::string::npos && line.find(file) != std::string::npos) {
            return true;
        }
    }
    return false;
}

/// Runs `pass` while the file is locked. True if `pass` waited for the release and then returned true.
template <class Pass>
bool WaitsForItsTurn(const char* path, Pass pass)
{
    FileLock lock(path);
    std::atomic<bool> done = false;
    bool result = false;
    std::thread thread([&] {
        result = pass();
        done = true;
    });
    const bool waited = lock.IsHeld() && WaitUntil([&] { return SomebodyWaitsFor(path); }) && !done;
    lock.Release();
    thread.join();
    return waited && result;
}
