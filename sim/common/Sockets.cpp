#include "Sockets.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <memory>

#include <arpa/inet.h>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include "Text.h"

namespace udsim {

namespace {

constexpr int BACKLOG = 128;
constexpr int LONGEST_CONNECT = 10'000; // milliseconds
constexpr uint64_t HIGHEST_PORT = 65'535;

sockaddr_un unixAddress(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    return address;
}

bool fits(const std::string& path, std::string& error)
{
    if (path.empty() || path.size() >= sizeof(sockaddr_un::sun_path)) {
        error = "\"" + path + "\": a socket path must have 1 to " +
                std::to_string(sizeof(sockaddr_un::sun_path) - 1) + " bytes";
        return false;
    }
    return true;
}

/// Removes a socket left behind at the path. Fails if another kind of file exists there.
bool makeRoom(const std::string& path, std::string& error)
{
    struct stat found{};
    if (::lstat(path.c_str(), &found) != 0) {
        return true; // bind() reports any other problem with the path
    }
    if (!S_ISSOCK(found.st_mode)) {
        error = path + ": exists and is not a socket";
        return false;
    }
    ::unlink(path.c_str());
    return true;
}

/// Returns whether the client on this socket connected to the address.
bool cameTo(int client, const addrinfo& address)
{
    sockaddr_in here{};
    sockaddr_in there{};
    socklen_t size = sizeof here;
    std::memcpy(&there, address.ai_addr, std::min<size_t>(address.ai_addrlen, sizeof there));
    return ::getsockname(client, reinterpret_cast<sockaddr*>(&here), &size) == 0 &&
           here.sin_family == there.sin_family && here.sin_port == there.sin_port &&
           here.sin_addr.s_addr == there.sin_addr.s_addr;
}

/// Waits for a pending connection. Returns its error code, 0 on success.
int awaitConnection(int socket, int watched)
{
    std::array<pollfd, 2> entries{{{socket, POLLOUT, 0}, {watched, 0, 0}}};
    if (::poll(entries.data(), entries.size(), LONGEST_CONNECT) <= 0) {
        return ETIMEDOUT;
    }
    if (entries[0].revents == 0) {
        return ECONNABORTED;
    }
    int error = 0;
    socklen_t size = sizeof error;
    ::getsockopt(socket, SOL_SOCKET, SO_ERROR, &error, &size);
    return error;
}

} // namespace

std::optional<Address> Address::parse(const std::string& text, uint16_t defaultPort)
{
    const size_t colon = text.find(':');
    Address address{text.substr(0, colon), defaultPort};
    if (colon != std::string::npos) {
        const auto port = parseNumber(text.substr(colon + 1), HIGHEST_PORT);
        if (!port || *port == 0) {
            return std::nullopt;
        }
        address.port = static_cast<uint16_t>(*port);
    }
    return address.host.empty() ? std::nullopt : std::optional(address);
}

std::string Address::text() const
{
    return host + ":" + std::to_string(port);
}

bool isServed(int type, const std::string& path)
{
    const sockaddr_un address = unixAddress(path);
    const Descriptor probe(::socket(AF_UNIX, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return probe.isOpen() &&
           (::connect(probe.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 ||
            errno == EAGAIN);
}

Descriptor bindUnix(int type, const std::string& path, unsigned rights, std::string& error)
{
    if (!fits(path, error)) {
        return {};
    }
    if (isServed(type, path)) {
        error = path + ": another service is running";
        return {};
    }
    if (!makeRoom(path, error)) {
        return {};
    }
    const sockaddr_un address = unixAddress(path);
    Descriptor bound(::socket(AF_UNIX, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!bound.isOpen() ||
        ::bind(bound.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::chmod(path.c_str(), rights) != 0 || (type == SOCK_STREAM && ::listen(bound.get(), BACKLOG) != 0)) {
        error = path + ": " + std::strerror(errno);
        return {};
    }
    return bound;
}

Descriptor connectUnix(const std::string& path, std::string& error)
{
    if (!fits(path, error)) {
        return {};
    }
    const sockaddr_un address = unixAddress(path);
    Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!socket.isOpen() ||
        ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        error = path + ": " + std::strerror(errno);
        return {};
    }
    return socket;
}

Descriptor listenTcp(const Address& address, std::string& error)
{
    sockaddr_in wanted{};
    wanted.sin_family = AF_INET;
    wanted.sin_port = htons(address.port);
    if (::inet_pton(AF_INET, address.host.c_str(), &wanted.sin_addr) != 1) {
        error = "\"" + address.host + "\" is not an IPv4 address";
        return {};
    }
    const int on = 1;
    Descriptor listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!listener.isOpen() || ::setsockopt(listener.get(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on) != 0 ||
        ::bind(listener.get(), reinterpret_cast<const sockaddr*>(&wanted), sizeof wanted) != 0 ||
        ::listen(listener.get(), BACKLOG) != 0) {
        error = address.host + " port " + std::to_string(address.port) + ": " + std::strerror(errno);
        return {};
    }
    return listener;
}

Descriptor connectTcp(const Address& address, int watched, std::string& error)
{
    addrinfo wish{};
    wish.ai_family = AF_INET;
    wish.ai_socktype = SOCK_STREAM;
    addrinfo* list = nullptr;
    const int failure =
        ::getaddrinfo(address.host.c_str(), std::to_string(address.port).c_str(), &wish, &list);
    const std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> found(list, &::freeaddrinfo);
    if (failure != 0) {
        error = address.host + ": " + ::gai_strerror(failure);
        return {};
    }
    if (cameTo(watched, *found)) {
        error = address.text() + ": this is the address of the recorder";
        return {};
    }
    Descriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    int outcome =
        socket.isOpen() && ::connect(socket.get(), found->ai_addr, found->ai_addrlen) == 0 ? 0 : errno;
    if (outcome == EINPROGRESS) {
        outcome = awaitConnection(socket.get(), watched);
    }
    if (outcome != 0) {
        error = address.text() + ": " + std::strerror(outcome);
        return {};
    }
    return socket;
}

bool sendAll(int socket, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count >= 0) {
            bytes.remove_prefix(static_cast<size_t>(count));
        } else if (errno == EAGAIN) {
            pollfd entry{socket, POLLOUT, 0};
            ::poll(&entry, 1, -1);
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

} // namespace udsim
