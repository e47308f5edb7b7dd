// A file descriptor that closes itself.
#pragma once

#include <utility>

#include <unistd.h>

namespace udsim {

class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int fd) : m_fd(fd) {}
    Descriptor(Descriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    ~Descriptor()
    {
        if (m_fd >= 0) {
            ::close(m_fd);
        }
    }

    int get() const
    {
        return m_fd;
    }
    bool isOpen() const
    {
        return m_fd >= 0;
    }

    /// Transfers ownership to the caller, who closes it.
    int release()
    {
        return std::exchange(m_fd, -1);
    }

private:
    int m_fd = -1;
};

} // namespace udsim
