// What can go wrong between a publisher server and its client, on demand.
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
        close,          ///< the connection ends without an answer
        delay,          ///< a proper answer, `number` real milliseconds late
        status,         ///< the servlet refuses with status byte `number`, and does nothing
        http,           ///< HTTP status `number` without a body, and nothing is done
        empty,          ///< a reply without a body
        size,           ///< the first item's data is cut or filled up to `number` bytes
        length,         ///< the first item claims `number` bytes of data
        extraItem,      ///< an item without data stands behind the others
        cut,            ///< the first `number` bytes of the reply, head included, then the end
        chunked,        ///< a proper answer in chunks
        chunkExtension, ///< the same with an extension on the size line, then the end
        interim,        ///< `number` interim replies 100 ahead of a proper answer
        contentLength,  ///< the head promises `number` bytes; behind the body nothing comes
        drip,           ///< a proper answer, byte by byte, `number` milliseconds apart, then the end
    };

    Kind kind = Kind::stall;
    uint64_t number = 0;
    std::string method;    ///< only requests of this method; empty: all
    std::string path;      ///< only requests whose target begins so; empty: all
    std::string publisher; ///< only requests to the server with this scenario name; empty: all
    uint64_t after = 0;    ///< so many requests that fit pass first
    uint64_t times = 0;    ///< how many requests it befalls; 0: all that fit

    /// Reads "stall", "status 3", "cut 20" ...; nothing, and the reason in `error`, when it is none of these.
    static std::optional<HttpFault> parse(const std::string& text, std::string& error);

    bool fits(const HttpRequest& request, const std::string& publisherName) const;
    /// The server answers without doing anything: this is its reply.
    std::optional<HttpReply> refusal() const;
};

/// What the server does with one request.
struct HttpDelivery
{
    std::string raw;                       ///< bytes that go ahead of everything
    std::chrono::milliseconds dripTime{0}; ///< real time between two of these bytes; 0: all at once
    std::optional<HttpReply> reply;        ///< behind them; nothing: the connection ends, or stalls
    std::chrono::milliseconds delay{0};    ///< real time before anything is sent
    bool stall = false;                    ///< without a reply the connection stays open and silent
    bool chunked = false;                  ///< the reply's body goes in chunks
};

/// The reply as it should be, or as `fault`, which may be null, spoils it.
HttpDelivery deliver(const HttpReply& reply, const HttpFault* fault);

} // namespace udsim
