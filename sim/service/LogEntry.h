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
    std::string datagram; ///< the bytes as they came
};

/// Reads "MESSAGE=...\nPRIORITY=n\n". The message may itself hold line feeds; what stands behind the last
/// PRIORITY line is not looked at. Nothing when either key is missing or the priority is no number from 0
/// to 7.
std::optional<LogEntry> parseLogEntry(std::string_view datagram);

} // namespace udsim
