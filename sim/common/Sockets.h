// Sockets at a path and at an address: what is listened on and connected to, with errors as a person reads
// them.
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

    /// "10.0.0.5" or "10.0.0.5:8080"; nothing for anything else. Whether the host exists is not looked at.
    static std::optional<Address> parse(const std::string& text, uint16_t defaultPort);
    std::string text() const; ///< "10.0.0.5:8080"
};

/// Somebody listens on the socket of this type (`SOCK_STREAM`, `SOCK_DGRAM`) at the path, if only with so
/// many waiting that no more are let in.
bool isServed(int type, const std::string& path);
/// A socket bound to the path, with these access rights; a stream socket listens. What a process that did not
/// end in good order left at the path goes, if it is a socket. Not open, with the reason, when it cannot be
/// made, or when another process listens there.
Descriptor bindUnix(int type, const std::string& path, unsigned rights, std::string& error);
/// A stream socket connected to the path; not open, with the reason, when nobody listens.
Descriptor connectUnix(const std::string& path, std::string& error);

/// A socket that listens at a numeric IPv4 address; not open, with the reason, when it cannot be had.
Descriptor listenTcp(const Address& address, std::string& error);
/// A socket connected to the address, which may be a name, for a client on the socket `watched`; not open,
/// with the reason, when that fails or takes more than ten seconds, when `watched` ends meanwhile, or when
/// the client came to this very address, so that its connection would go round in a circle.
Descriptor connectTcp(const Address& address, int watched, std::string& error);

/// Sends everything, waiting for room if need be; false when the connection has ended.
bool sendAll(int socket, std::string_view bytes);

} // namespace udsim
