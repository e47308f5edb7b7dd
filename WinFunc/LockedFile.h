// An open file under an exclusive lock. Every program of the suite takes this lock while it reads or writes
// the file.
#pragma once

#include <string>
#include <sys/stat.h>
#include <sys/types.h>

/// Owns a descriptor and holds an exclusive flock on it for the lifetime of the object. The descriptor is
/// close-on-exec and never that of a standard stream. Opening does not wait for the other end if the path is
/// a FIFO.
class LockedFile
{
public:
    /// Opens and locks the file. `flags` and `mode` are those of open(2). On failure IsOpen returns false and
    /// errno holds the reason.
    LockedFile(const char* path, int flags, mode_t mode = 0);
    ~LockedFile();
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;

    bool IsOpen() const
    {
        return m_fd != -1;
    }
    int Descriptor() const
    {
        return m_fd;
    }
    /// Length in bytes, read under the lock. 0 for a file that is not regular: callers treat it as empty. -1,
    /// with errno, on failure.
    off_t Size() const;

    /// Reads from the current position and retries after signals. Returns less than `size` only at the end of
    /// the file, and -1 with errno on failure.
    ssize_t Read(char* buffer, size_t size) const;
    /// Writes the whole text at the current position. False if any part of it was not written.
    bool WriteAll(const std::string& text) const;
    /// Unlocks and closes. False if the system reports a late write failure.
    bool Close();

private:
    int m_fd;
};
