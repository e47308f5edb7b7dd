// What can go wrong between the service and its client, on demand.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "Wire.h"

namespace udsim {

struct Fault
{
    enum class Kind
    {
        refuse,       ///< nobody listens: every connection is refused, whatever it would have asked
        stall,        ///< the request is read and never answered
        wrongId,      ///< the reply carries another control id
        shortHeader,  ///< half a header, then the end of the connection
        shortPayload, ///< the whole header and half the payload, then the end
        hugeLength,   ///< the header promises 2^62 bytes
        result,       ///< the service's own error code `number`; the payload comes with it all the same
        close,        ///< the connection ends without an answer
        delay,        ///< a proper answer, `number` real milliseconds late
    };

    Kind kind = Kind::stall;
    uint64_t number = 0;   ///< of `result` and `delay`
    uint64_t control = 0;  ///< only requests with this control id; 0: all
    std::string publisher; ///< only requests for the machine with this scenario name; empty: all
    uint64_t times = 0;    ///< how many requests it befalls; 0: all that fit

    /// Reads "stall", "result 1001", "delay 300" ...; nothing, and the reason in `error`, when it is none of
    /// these.
    static std::optional<Fault> parse(const std::string& text, std::string& error);
};

/// What the service does with one request.
struct Delivery
{
    std::string bytes;                  ///< sent in one piece
    std::chrono::milliseconds delay{0}; ///< real time before it is sent
    bool stall = false;                 ///< nothing is ever sent, and the connection stays open
    bool close = false;                 ///< the connection ends behind `bytes`
};

/// The reply as it should be, or as `fault`, which may be null, spoils it.
Delivery deliver(const Reply& reply, const Fault* fault);

} // namespace udsim
