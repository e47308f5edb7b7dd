// A client of the control service that uses plain socket calls and bytes.
#pragma once

#include <cerrno>
#include <cstdint>
#include <optional>
#include <string>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// Bytes of a fixed size with fields at given offsets.
class Bytes
{
public:
    explicit Bytes(size_t size) : m_bytes(size, '\0') {}
    Bytes& u32(size_t at, uint64_t value)
    {
        return number(at, value, 4);
    }
    Bytes& u64(size_t at, uint64_t value)
    {
        return number(at, value, 8);
    }
    Bytes& text(size_t at, const std::string& value)
    {
        m_bytes.replace(at, value.size(), value);
        return *this;
    }
    const std::string& str() const
    {
        return m_bytes;
    }

private:
    Bytes& number(size_t at, uint64_t value, size_t size)
    {
        for (size_t i = 0; i < size; ++i) {
            m_bytes.at(at + i) = static_cast<char>(value >> (8 * i) & 0xFF);
        }
        return *this;
    }

    std::string m_bytes;
};

inline std::string requestFrame(uint64_t control, const std::string& publisher = "",
                                const std::string& job = "", uint64_t parameter = 0)
{
    return Bytes(408).u64(0, control).text(8, publisher).text(137, job).u64(400, parameter).str();
}

struct RawReply
{
    uint64_t control = 0;
    uint64_t result = 0;
    uint64_t length = 0;
    std::string payload;
};

inline uint64_t numberAt(const std::string& bytes, size_t at, size_t size)
{
    uint64_t value = 0;
    for (size_t i = size; i-- > 0;) {
        value = value << 8 | static_cast<uint8_t>(bytes.at(at + i));
    }
    return value;
}

class RawClient
{
public:
    static constexpr int PATIENCE = 10'000;

    RawClient()
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::string("/var/run/arvenUlmarDiscControl.socket")
            .copy(address.sun_path, sizeof address.sun_path - 1);
        m_fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        m_connected = ::connect(m_fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
        m_error = m_connected ? 0 : errno;
    }
    RawClient(const RawClient&) = delete;
    RawClient& operator=(const RawClient&) = delete;
    ~RawClient()
    {
        ::close(m_fd);
    }

    bool connected() const
    {
        return m_connected;
    }
    int error() const
    {
        return m_error;
    }
    bool send(const std::string& bytes) const
    {
        return ::send(m_fd, bytes.data(), bytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size());
    }
    void finishSending() const
    {
        ::shutdown(m_fd, SHUT_WR);
    }
    /// One read of at most `size` bytes. Empty at the end of the stream or after `patience` milliseconds.
    std::string readOnce(size_t size, int patience = PATIENCE) const
    {
        if (!isReadable(patience)) {
            return {};
        }
        std::string bytes(size, '\0');
        const ssize_t count = ::recv(m_fd, bytes.data(), size, 0);
        bytes.resize(count > 0 ? static_cast<size_t>(count) : 0);
        return bytes;
    }
    bool isReadable(int patience) const
    {
        pollfd entry{m_fd, POLLIN, 0};
        return ::poll(&entry, 1, patience) > 0;
    }
    /// Reads a header and then its payload, each in one read. Returns nothing if either is short.
    std::optional<RawReply> readReply() const
    {
        const std::string header = readOnce(24);
        if (header.size() != 24) {
            return std::nullopt;
        }
        RawReply reply{numberAt(header, 0, 8), numberAt(header, 8, 8), numberAt(header, 16, 8), {}};
        if (reply.length > 0) {
            reply.payload = readOnce(reply.length);
        }
        if (reply.payload.size() != reply.length) {
            return std::nullopt;
        }
        return reply;
    }

private:
    int m_fd = -1;
    int m_error = 0;
    bool m_connected = false;
};

/// Sends one command on its own connection. The result is 99999 without a complete reply.
inline RawReply ask(uint64_t control, const std::string& publisher = "", const std::string& job = "",
                    uint64_t parameter = 0)
{
    const RawClient client;
    client.send(requestFrame(control, publisher, job, parameter));
    return client.readReply().value_or(RawReply{0, 99999, 0, {}});
}
