// Simulated faults between a publisher server and its client.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "HttpMessage.h"

namespace udsim {

struct HttpFault
{
    enum class Kind
    {
        stall,          ///< the request is read and never answered
        close,          ///< the connection ends without a reply
        delay,          ///< a correct reply, `number` real milliseconds late
        status,         ///< the servlet refuses with status byte `number`, and does nothing
        http,           ///< HTTP status `number` without a body; the request has no effect
        empty,          ///< a reply without a body
        size,           ///< the first item's data is cut or padded to `number` bytes
        length,         ///< the length field of the first item is `number`
        extraItem,      ///< an item without data follows the others
        cut,            ///< the first `number` bytes of the reply, including the head, then the end
        chunked,        ///< a correct reply in chunks
        chunkExtension, ///< the same with an extension on the chunk's size line, then the end
        interim,        ///< `number` interim replies 100 before a correct reply
        contentLength,  ///< the head announces `number` bytes; after the body the connection stalls
        drip,           ///< a correct reply, byte by byte, `number` milliseconds apart, then the end
    };

    Kind kind = Kind::stall;
    uint64_t number = 0;
    std::string method;    ///< only requests of this method; empty: all
    std::string path;      ///< only requests whose target begins with it; empty: all
    std::string publisher; ///< only requests to the server with this scenario name; empty: all
    uint64_t after = 0;    ///< number of matching requests that pass first
    uint64_t times = 0;    ///< number of requests it affects; 0: all that match

    /// Parses "stall", "status 3", "cut 20" ...; returns nothing, with the reason in `error`, on a mistake.
    static std::optional<HttpFault> parse(const std::string& text, std::string& error);

    bool fits(const HttpRequest& request, const std::string& publisherName) const;
    /// Returns the reply if the server must refuse the request without carrying it out.
    std::optional<HttpReply> refusal() const;
};

/// What the server does with one request.
struct HttpDelivery
{
    std::string raw;                       ///< bytes that are sent first
    std::chrono::milliseconds dripTime{0}; ///< real time between two of these bytes; 0: all at once
    std::optional<HttpReply> reply;        ///< sent after them; nothing: the connection ends, or stalls
    std::chrono::milliseconds delay{0};    ///< real time before anything is sent
    bool stall = false;                    ///< without a reply the connection stays open and silent
    bool chunked = false;                  ///< the reply's body is sent in chunks
};

/// Returns the delivery of the reply, changed by `fault` unless it is null.
HttpDelivery deliver(const HttpReply& reply, const HttpFault* fault);

} // namespace udsim
