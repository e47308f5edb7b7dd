// A client of a publisher server that uses plain socket calls and bytes.
#pragma once

#include <cerrno>
#include <string>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

class HttpClient
{
public:
    static constexpr int PATIENCE = 10'000;

    explicit HttpClient(const char* host = "127.0.0.11")
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(80);
        ::inet_pton(AF_INET, host, &address.sin_addr);
        m_fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        m_error =
            ::connect(m_fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 ? 0 : errno;
    }
    HttpClient(const HttpClient&) = delete;
    HttpClient& operator=(const HttpClient&) = delete;
    ~HttpClient()
    {
        ::close(m_fd);
    }

    int error() const
    {
        return m_error;
    }
    bool send(const std::string& bytes) const
    {
        return ::send(m_fd, bytes.data(), bytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size());
    }
    bool isReadable(int patience) const
    {
        pollfd entry{m_fd, POLLIN, 0};
        return ::poll(&entry, 1, patience) > 0;
    }
    /// Reads until the bytes end with `end`, the connection ends (sets `ended`) or PATIENCE has elapsed.
    std::string readUntil(const std::string& end, bool& ended) const
    {
        std::string all;
        char byte = 0;
        ended = false;
        while ((end.empty() || !all.ends_with(end)) && isReadable(PATIENCE)) {
            if (::recv(m_fd, &byte, 1, 0) <= 0) {
                ended = true;
                return all;
            }
            all += byte;
        }
        return all;
    }
    /// Reads a header with its "Content-Length" and the body after it.
    std::string readReply() const
    {
        bool ended = false;
        std::string head = readUntil("\r\n\r\n", ended);
        const size_t at = head.find("\r\nContent-Length: ");
        size_t left = at == std::string::npos ? 0 : std::stoul(head.substr(at + 18));
        char byte = 0;
        while (left-- > 0 && isReadable(PATIENCE) && ::recv(m_fd, &byte, 1, 0) == 1) {
            head += byte;
        }
        return head;
    }
    std::string ask(const std::string& request) const
    {
        return send(request) ? readReply() : "";
    }

private:
    int m_fd = -1;
    int m_error = 0;
};
