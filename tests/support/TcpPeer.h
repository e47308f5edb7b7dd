// A scripted peer on a loopback address. It accepts on request, records what arrives, and sends exactly the
// given bytes in the given pieces. Every wait is bounded, so that a test fails instead of hanging if the
// expected data never arrives.
#pragma once

#include "UnixListener.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>

/// One accepted connection, closed by the destructor. Each write is sent at once.
class TcpPeer : public UnixPeer
{
public:
    TcpPeer() = default;
    explicit TcpPeer(int descriptor) : UnixPeer(descriptor)
    {
        const int on = 1;
        ::setsockopt(m_fd, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    }

    /// The head of a request including its final empty line; less if the other side stops before.
    std::string ReadHead(int milliseconds = patience)
    {
        std::string head;
        while (head.find("\r\n\r\n") == std::string::npos) {
            const std::string byte = ReadExactly(1, milliseconds);
            if (byte.empty()) {
                break;
            }
            head += byte;
        }
        return head;
    }

    /// A request: its head, and as many bytes of body as Content-Length announces.
    std::string ReadRequest(int milliseconds = patience)
    {
        const std::string name = "\r\nContent-Length: ";
        std::string request = ReadHead(milliseconds);
        const size_t place = request.find(name);
        if (place != std::string::npos) {
            request += ReadExactly(std::stoul(request.substr(place + name.size())), milliseconds);
        }
        return request;
    }

    bool WriteInPieces(const std::string& data, size_t piece)
    {
        for (size_t sent = 0; sent < data.size(); sent += piece) {
            if (!Write(data.substr(sent, piece))) {
                return false;
            }
        }
        return true;
    }

    void WriteUrgent(char byte)
    {
        ::send(m_fd, &byte, 1, MSG_OOB | MSG_NOSIGNAL);
    }

    /// Breaks the connection: the other side reads an error, not an end of file.
    void Reset()
    {
        const linger now{1, 0};
        ::setsockopt(m_fd, SOL_SOCKET, SO_LINGER, &now, sizeof now);
        Close();
    }
};

/// A listening socket. Port 0 selects a free port; port 80 is free in the sandbox, and every 127.x.y.z is a
/// separate host. The constructor throws std::runtime_error if it cannot listen. The kernel completes the
/// connect of a client: to simulate a peer that stalls, never accept it.
class TcpListener
{
public:
    explicit TcpListener(std::string address = "127.0.0.1", uint16_t port = 0, int backlog = 128)
        : m_address(std::move(address))
    {
        sockaddr_in name{};
        name.sin_family = AF_INET;
        name.sin_port = htons(port);
        name.sin_addr.s_addr = ::inet_addr(m_address.c_str());
        socklen_t size = sizeof name;
        const int on = 1;
        m_fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        ::setsockopt(m_fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        if (m_fd < 0 || ::bind(m_fd, reinterpret_cast<const sockaddr*>(&name), size) != 0 ||
            ::listen(m_fd, backlog) != 0 ||
            ::getsockname(m_fd, reinterpret_cast<sockaddr*>(&name), &size) != 0) {
            const std::string reason = std::strerror(errno);
            StopListening();
            throw std::runtime_error("TcpListener: " + m_address + ": " + reason);
        }
        m_port = ntohs(name.sin_port);
    }
    TcpListener(const TcpListener&) = delete;
    TcpListener& operator=(const TcpListener&) = delete;
    ~TcpListener()
    {
        StopListening();
    }

    const char* Address() const
    {
        return m_address.c_str();
    }

    uint16_t Port() const
    {
        return m_port;
    }

    /// The next connection, or a peer that is not open if none arrives in time.
    TcpPeer Accept(int milliseconds = TcpPeer::patience)
    {
        pollfd entry{m_fd, POLLIN, 0};
        if (m_fd < 0 || ::poll(&entry, 1, milliseconds) <= 0) {
            return TcpPeer();
        }
        return TcpPeer(::accept4(m_fd, nullptr, nullptr, SOCK_CLOEXEC));
    }

    /// Refuses all further connections (ECONNREFUSED).
    void StopListening()
    {
        if (m_fd >= 0) {
            ::close(std::exchange(m_fd, -1));
        }
    }

private:
    std::string m_address;
    uint16_t m_port = 0;
    int m_fd = -1;
};

/// A server in its own thread. Each script handles one connection, in order of arrival, and the connection is
/// closed after it. Connections after the last script are refused.
class TcpServer
{
public:
    using Script = std::function<void(TcpServer& server, TcpPeer& peer)>;

    explicit TcpServer(std::vector<Script> scripts, std::string address = "127.0.0.1", uint16_t port = 0)
        : m_listener(std::move(address), port), m_scripts(std::move(scripts)), m_thread([this] { Play(); })
    {
    }
    TcpServer(const TcpServer&) = delete;
    TcpServer& operator=(const TcpServer&) = delete;
    ~TcpServer()
    {
        m_isEnding = true;
        m_thread.join();
    }

    /// A script that answers one request with each of `answers` and then closes.
    static Script Answers(std::vector<std::string> answers)
    {
        return [answers = std::move(answers)](TcpServer& server, TcpPeer& peer) {
            for (const std::string& answer : answers) {
                server.TakeRequest(peer);
                peer.Write(answer);
            }
        };
    }

    /// Reads a request and records it.
    std::string TakeRequest(TcpPeer& peer)
    {
        const std::string request = peer.ReadRequest();
        const std::lock_guard lock(m_mutex);
        m_requests.push_back(request);
        return request;
    }

    /// The requests recorded so far.
    std::vector<std::string> Requests()
    {
        const std::lock_guard lock(m_mutex);
        return m_requests;
    }

    /// The number of accepted connections.
    int Connections() const
    {
        return m_connections;
    }

    const char* Address() const
    {
        return m_listener.Address();
    }

    uint16_t Port() const
    {
        return m_listener.Port();
    }

private:
    void Play()
    {
        for (size_t index = 0; index < m_scripts.size(); ++index) {
            TcpPeer peer;
            while (!peer.IsOpen()) {
                if (m_isEnding) {
                    return;
                }
                peer = m_listener.Accept(20);
            }
            ++m_connections;
            if (index + 1 == m_scripts.size()) {
                m_listener.StopListening();
            }
            m_scripts[index](*this, peer);
        }
    }

    TcpListener m_listener;
    std::vector<Script> m_scripts;
    std::mutex m_mutex;
    std::vector<std::string> m_requests;
    std::atomic<int> m_connections = 0;
    std::atomic<bool> m_isEnding = false;
    std::thread m_thread; // last: it uses all of the above
};
