#include "LockedFile.h"

#include "SystemCalls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

int Open(const char* path, int flags, mode_t mode)
{
    if (path == nullptr) {
        errno = EFAULT;
        return -1;
    }
    const int fd = Uninterrupted([&] { return open(path, flags | O_CLOEXEC | O_NONBLOCK, mode); });
    return AboveStandardStreams(fd);
}

} // namespace

LockedFile::LockedFile(const char* path, int flags, mode_t mode) : m_fd(Open(path, flags, mode))
{
    if (IsOpen()) {
        Uninterrupted([&] { return flock(m_fd, LOCK_EX); });
    }
}

LockedFile::~LockedFile()
{
    const ErrnoKeeper keeper; // the caller may still read the errno of an earlier failure
    Close();
}

off_t LockedFile::Size() const
{
    struct stat info = {};
    if (fstat(m_fd, &info) != 0) {
        return -1;
    }
    return S_ISREG(info.st_mode) ? info.st_size : 0;
}

ssize_t LockedFile::Read(char* buffer, size_t size) const
{
    size_t done = 0;
    while (done < size) {
        const ssize_t count = read(m_fd, buffer + done, size - done);
        if (count == 0) {
            break;
        }
        if (count > 0) {
            done += static_cast<size_t>(count);
        } else if (errno != EINTR) {
            return -1;
        }
    }
    return static_cast<ssize_t>(done);
}

bool LockedFile::WriteAll(const std::string& text) const
{
    size_t done = 0;
    while (done < text.size()) {
        const ssize_t count = write(m_fd, text.data() + done, text.size() - done);
        if (count > 0) {
            done += static_cast<size_t>(count);
        } else if (count == 0 || errno != EINTR) {
            return false;
        }
    }
    return true;
}

bool LockedFile::Close()
{
    if (!IsOpen()) {
        return true;
    }
    // Unlock explicitly: a child that has just forked shares the lock and would hold it until its exec.
    flock(m_fd, LOCK_UN);
    const bool closed = close(m_fd) == 0;
    m_fd = -1;
    return closed;
}
