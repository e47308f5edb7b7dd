// Unix-domain and TCP sockets: listens and connects, and reports errors as text for users.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <netinet/in.h>

#include "Descriptor.h"

namespace udsim {

struct Address
{
    std::string host;
    uint16_t port = 0;

    /// Parses "10.0.0.5" or "10.0.0.5:8080"; returns nothing for any other text. Does not resolve the host.
    static std::optional<Address> parse(const std::string& text, uint16_t defaultPort);
    std::string text() const; ///< "10.0.0.5:8080"
};

/// Returns whether a process listens on the socket of this type (`SOCK_STREAM`, `SOCK_DGRAM`) at the path,
/// even if its backlog is full.
bool isServed(int type, const std::string& path);
/// Returns a socket bound to the path, with these access rights; a stream socket listens. A socket file that
/// a killed process left at the path is removed. Not open, with the reason in `error`, if it cannot be
/// created or another process listens there.
Descriptor bindUnix(int type, const std::string& path, unsigned rights, std::string& error);
/// Returns a stream socket connected to the path; not open, with the reason in `error`, if no process
/// listens.
Descriptor connectUnix(const std::string& path, std::string& error);

/// Returns a socket that listens at a numeric IPv4 address; not open, with the reason in `error`, on failure.
Descriptor listenTcp(const Address& address, std::string& error);
/// Returns a socket connected to the address, whose host may be a name, for a client on the socket `watched`.
/// Not open, with the reason in `error`, on failure, after ten seconds, if `watched` closes meanwhile, or if
/// the client connected to this same address, which would be a loop.
Descriptor connectTcp(const Address& address, int watched, std::string& error);

/// Sends all bytes, waiting while the socket's buffer is full. Returns false if the connection has ended.
bool sendAll(int socket, std::string_view bytes);

} // namespace udsim
