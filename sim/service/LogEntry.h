// An entry of the log agent: key-value lines in one datagram.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace udsim {

struct LogEntry
{
    std::string message;
    int priority = 0;     ///< a syslog number
    std::string datagram; ///< the bytes as received
};

/// Parses "MESSAGE=...\nPRIORITY=n\n". The message may contain line feeds; text after the last PRIORITY line
/// is ignored. Returns nothing if either key is missing or the priority is not a number from 0 to 7.
std::optional<LogEntry> parseLogEntry(std::string_view datagram);

} // namespace udsim
