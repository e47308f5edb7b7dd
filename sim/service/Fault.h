// Simulated faults between the service and its client.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "Wire.h"

namespace udsim {

/// The longest time, in milliseconds, by which a fault delays a reply or each of its bytes.
inline constexpr uint64_t LONGEST_FAULT_DELAY = 3'600'000;

struct Fault
{
    enum class Kind
    {
        refuse,       ///< the service does not listen: every connection is refused
        stall,        ///< the request is read and never answered
        wrongId,      ///< the reply carries another control id
        shortHeader,  ///< half a header, then the end of the connection
        shortPayload, ///< the whole header and half the payload, then the end
        hugeLength,   ///< the header announces 2^62 bytes
        result,       ///< the result code is `number`; the payload is still sent
        close,        ///< the connection ends without a reply
        delay,        ///< a correct reply, `number` real milliseconds late
    };

    Kind kind = Kind::stall;
    uint64_t number = 0;   ///< of `result` and `delay`
    uint64_t control = 0;  ///< only requests with this control id; 0: all
    std::string publisher; ///< only requests for the machine with this scenario name; empty: all
    uint64_t times = 0;    ///< number of requests it affects; 0: all that match

    /// Parses "stall", "result 1001", "delay 300" ...; returns nothing, with the reason in `error`, on a
    /// mistake.
    static std::optional<Fault> parse(const std::string& text, std::string& error);
};

/// What the service does with one request.
struct Delivery
{
    std::string bytes;                  ///< sent in one piece
    std::chrono::milliseconds delay{0}; ///< real time before it is sent
    bool stall = false;                 ///< nothing is ever sent, and the connection stays open
    bool close = false;                 ///< the connection ends after `bytes`
};

/// Returns the delivery of the reply, changed by `fault` unless it is null.
Delivery deliver(const Reply& reply, const Fault* fault);

} // namespace udsim
