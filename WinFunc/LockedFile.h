// A file opened for one pass over it, under a lock that every program of the suite takes.
#pragma once

#include <string>
#include <sys/stat.h>
#include <sys/types.h>

/// A descriptor under an exclusive flock for as long as the object lives. Close-on-exec, never that of a
/// standard stream, and never waiting for the other end of a FIFO that lies in the place of a file.
class LockedFile
{
public:
    /// Opens and locks. `flags` and `mode` as for open(2); errno tells why it failed.
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
    /// Length in bytes, taken under the lock; 0 for all but regular files, which have no text to read.
    off_t Size() const;

    /// Reads on from the current position, through interruptions. The count is below `size` at the end of the
    /// file alone; -1 with errno on failure.
    ssize_t Read(char* buffer, size_t size) const;
    /// Writes all of the text from the current position on; false when not all of it could be written.
    bool WriteAll(const std::string& text) const;
    /// Unlocks and closes now; false when the system reports a late write failure.
    bool Close();

private:
    int m_fd;
};
