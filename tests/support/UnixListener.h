// A scripted peer on a Unix stream socket. It accepts on request, reads exactly the requested bytes and sends
// exactly the given ones. Every wait is bounded, so that a test fails instead of hanging if the expected data
// never arrives.
#pragma once

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// One accepted connection, closed by the destructor. A default-constructed object holds none.
class UnixPeer
{
public:
    static constexpr int patience = 10000; ///< milliseconds, for any event that a test expects

    UnixPeer() = default;
    explicit UnixPeer(int descriptor) : m_fd(descriptor) {}
    UnixPeer(UnixPeer&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    UnixPeer& operator=(UnixPeer&& other) noexcept
    {
        Close();
        m_fd = std::exchange(other.m_fd, -1);
        return *this;
    }
    ~UnixPeer()
    {
        Close();
    }

    bool IsOpen() const
    {
        return m_fd >= 0;
    }

    /// Reads `size` bytes; fewer if the other side closes, fails or sends nothing within `milliseconds`.
    std::string ReadExactly(size_t size, int milliseconds = patience)
    {
        std::string data;
        while (data.size() < size && IsReadable(milliseconds)) {
            char piece[4096];
            const size_t wanted = std::min(sizeof piece, size - data.size());
            const ssize_t count = ::recv(m_fd, piece, wanted, 0);
            if (count < 0 && errno == EINTR) {
                continue;
            }
            if (count <= 0) {
                break;
            }
            data.append(piece, static_cast<size_t>(count));
        }
        return data;
    }

    /// True if the other side closes or is shut down in time, without sending another byte.
    bool WaitForClose(int milliseconds = patience)
    {
        char byte = 0;
        return IsReadable(milliseconds) && ::recv(m_fd, &byte, 1, 0) <= 0;
    }

    /// True if all of it was sent. A closed peer raises no signal.
    bool Write(const std::string& data)
    {
        size_t sent = 0;
        while (sent < data.size()) {
            const ssize_t count = ::send(m_fd, data.data() + sent, data.size() - sent, MSG_NOSIGNAL);
            if (count < 0 && errno == EINTR) {
                continue;
            }
            if (count <= 0) {
                return false;
            }
            sent += static_cast<size_t>(count);
        }
        return true;
    }

    /// Ends the data: the other side reads its end of file and may still write.
    void FinishWriting()
    {
        ::shutdown(m_fd, SHUT_WR);
    }

    void Close()
    {
        if (m_fd >= 0) {
            ::close(std::exchange(m_fd, -1));
        }
    }

protected:
    int m_fd = -1;

private:
    bool IsReadable(int milliseconds) const
    {
        if (m_fd < 0) {
            return false;
        }
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
        while (true) {
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
            pollfd entry{m_fd, POLLIN, 0};
            const int ready = ::poll(&entry, 1, std::max(0, static_cast<int>(left.count())));
            if (ready >= 0 || errno != EINTR) {
                return ready > 0;
            }
        }
    }
};

/// A listening socket at `path`. The destructor removes both; the constructor throws std::runtime_error if it
/// cannot listen. The kernel completes the connect of a client: to simulate a peer that stalls, never accept
/// it.
class UnixListener
{
public:
    explicit UnixListener(std::string path, int backlog = 128) : m_path(std::move(path))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        if (m_path.size() >= sizeof address.sun_path) {
            throw std::runtime_error("UnixListener: path too long: " + m_path);
        }
        std::memcpy(address.sun_path, m_path.c_str(), m_path.size() + 1);
        m_fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (m_fd < 0 || ::bind(m_fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
            ::listen(m_fd, backlog) != 0) {
            const std::string reason = std::strerror(errno);
            StopListening();
            throw std::runtime_error("UnixListener: " + m_path + ": " + reason);
        }
    }
    UnixListener(const UnixListener&) = delete;
    UnixListener& operator=(const UnixListener&) = delete;
    ~UnixListener()
    {
        StopListening();
        ::unlink(m_path.c_str());
    }

    /// The next connection, or a peer that is not open if none arrives in time.
    UnixPeer Accept(int milliseconds = UnixPeer::patience)
    {
        pollfd entry{m_fd, POLLIN, 0};
        if (m_fd < 0 || ::poll(&entry, 1, milliseconds) <= 0) {
            return UnixPeer();
        }
        return UnixPeer(::accept4(m_fd, nullptr, nullptr, SOCK_CLOEXEC));
    }

    /// Refuses all further connections (ECONNREFUSED); the name in the file system stays.
    void StopListening()
    {
        if (m_fd >= 0) {
            ::close(std::exchange(m_fd, -1));
        }
    }

private:
    std::string m_path;
    int m_fd = -1;
};
