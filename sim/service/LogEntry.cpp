#include "LogEntry.h"

#include "Text.h"

namespace udsim {

std::optional<LogEntry> parseLogEntry(std::string_view datagram)
{
    constexpr std::string_view MESSAGE = "MESSAGE=";
    constexpr std::string_view PRIORITY = "\nPRIORITY=";
    constexpr uint64_t LOWEST_PRIORITY = 7;

    // The last PRIORITY line is the valid one: the message may contain such a line.
    const size_t at = datagram.rfind(PRIORITY);
    if (!datagram.starts_with(MESSAGE) || at == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view rest = datagram.substr(at + PRIORITY.size());
    const auto priority = parseNumber(rest.substr(0, rest.find('\n')), LOWEST_PRIORITY);
    if (!priority) {
        return std::nullopt;
    }
    const std::string_view message = datagram.substr(MESSAGE.size(), at - MESSAGE.size());
    return LogEntry{std::string(message), static_cast<int>(*priority), std::string(datagram)};
}

} // namespace udsim
