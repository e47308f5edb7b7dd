// Receives log lines: a datagram socket at the path of the log agent, or at "/dev/log" for syslog.
#pragma once

#include "InstallPaths.h"

#include <cerrno>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// A datagram socket bound to `path`. The destructor removes both; the constructor throws std::runtime_error
/// if it cannot bind.
class LogAgent
{
public:
    static constexpr int patience = 10000; ///< milliseconds, for a line that a test expects

    explicit LogAgent(std::string path = LOG_AGENT_SOCKET) : m_path(std::move(path))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        if (m_path.size() >= sizeof address.sun_path) {
            throw std::runtime_error("LogAgent: path too long: " + m_path);
        }
        std::memcpy(address.sun_path, m_path.c_str(), m_path.size() + 1);
        m_fd = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
        if (m_fd < 0 || ::bind(m_fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
            const std::string reason = std::strerror(errno);
            if (m_fd >= 0) {
                ::close(m_fd);
            }
            throw std::runtime_error("LogAgent: " + m_path + ": " + reason);
        }
    }
    LogAgent(const LogAgent&) = delete;
    LogAgent& operator=(const LogAgent&) = delete;
    ~LogAgent()
    {
        ::close(m_fd);
        ::unlink(m_path.c_str());
    }

    /// The next datagram in full; none if none arrives in time.
    std::optional<std::string> Receive(int milliseconds = patience)
    {
        pollfd entry{m_fd, POLLIN, 0};
        int ready = 0;
        do {
            ready = ::poll(&entry, 1, milliseconds);
        } while (ready < 0 && errno == EINTR);
        if (ready <= 0) {
            return std::nullopt;
        }
        std::string datagram(65536, '\0');
        const ssize_t count = ::recv(m_fd, datagram.data(), datagram.size(), MSG_DONTWAIT);
        if (count < 0) {
            return std::nullopt;
        }
        datagram.resize(static_cast<size_t>(count));
        return datagram;
    }

    /// All datagrams that have arrived so far. A datagram has arrived when the call that sent it returns.
    std::vector<std::string> TakeAll()
    {
        std::vector<std::string> all;
        while (std::optional<std::string> datagram = Receive(0)) {
            all.push_back(*std::move(datagram));
        }
        return all;
    }

private:
    std::string m_path;
    int m_fd = -1;
};
