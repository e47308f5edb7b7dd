// The server of the network benchmarks: an HTTP server in its own process that gives the same answer to every
// request, and a connection of the client library to it.
#pragma once

#include "NW_Com_Lib_internal.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include <arpa/inet.h>
#include <csignal>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

inline void Check(bool condition, const char* what)
{
    if (!condition) {
        std::perror(what);
        std::exit(EXIT_FAILURE);
    }
}

/// A connection of the client library to this port, which stays open until the process ends.
inline DWORD OpenHandle(uint16_t port)
{
    auto* ncl = new ST_NCL;
    ncl->m_pHttp = new CHttp;
    ncl->m_pHttp->Open("127.0.0.1", port, FALSE);
    ncl->m_dwNPType = NCL_NPTYPE_300NII;
    ncl->m_dwServerMode = NCL_MODE_NORMAL;
    ncl->m_bFinishStartConnection = TRUE;
    return SetNCLObj(ncl);
}

/// Keeps connections open, and serves each in a thread. The destructor ends the server. The object must be
/// created before the process has threads.
class HttpBenchServer
{
public:
    explicit HttpBenchServer(const std::string& body)
    {
        const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        Check(::bind(listener, reinterpret_cast<const sockaddr*>(&address), size) == 0, "bind");
        Check(::listen(listener, 128) == 0, "listen");
        Check(::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size) == 0, "getsockname");
        m_port = ntohs(address.sin_port);
        m_process = ::fork();
        Check(m_process >= 0, "fork");
        if (m_process == 0) {
            const std::string answer =
                "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
            while (true) {
                const int peer = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
                std::thread(Serve, peer, answer).detach();
            }
        }
        ::close(listener);
    }
    HttpBenchServer(const HttpBenchServer&) = delete;
    HttpBenchServer& operator=(const HttpBenchServer&) = delete;
    ~HttpBenchServer()
    {
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
    }

    std::string Url(const std::string& path) const
    {
        return "http://127.0.0.1:" + std::to_string(m_port) + path;
    }

    /// A handle of the client library, which stays open until the process ends.
    DWORD OpenHandle() const
    {
        return ::OpenHandle(m_port);
    }

private:
    static void Serve(int peer, std::string answer)
    {
        const int on = 1;
        ::setsockopt(peer, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        std::vector<char> buffer(256 * 1024);
        std::string head;
        size_t bodyLeft = 0;
        while (true) {
            const ssize_t count = ::recv(peer, buffer.data(), buffer.size(), 0);
            if (count <= 0) {
                break;
            }
            // One request at a time: nothing follows its body.
            size_t received = static_cast<size_t>(count);
            if (bodyLeft == 0) {
                head.append(buffer.data(), received);
                const size_t end = head.find("\r\n\r\n");
                if (end == std::string::npos) {
                    continue;
                }
                const std::string name = "Content-Length: ";
                const size_t place = head.find(name);
                bodyLeft = place < end ? std::strtoul(head.c_str() + place + name.size(), nullptr, 10) : 0;
                received = head.size() - (end + 4);
                head.clear();
            }
            bodyLeft -= std::min(bodyLeft, received);
            if (bodyLeft == 0) {
                Check(::send(peer, answer.data(), answer.size(), MSG_NOSIGNAL) ==
                          static_cast<ssize_t>(answer.size()),
                      "send");
            }
        }
        ::close(peer);
    }

    uint16_t m_port = 0;
    pid_t m_process = -1;
};
