// The service's log file: dated lines, and older files beside it.
#pragma once

#include <cstdint>
#include <string>

namespace udsim {

inline constexpr char SERVICE_LOG[] = "/var/log/arvenUlmarDiscControl.log";

class ServiceLog
{
public:
    /// A file ends before it would grow beyond `largest` bytes; `older` of them stay, as PATH.1 (the
    /// youngest) and so on.
    explicit ServiceLog(std::string path = SERVICE_LOG, uint64_t largest = 262'144, unsigned older = 4)
        : m_path(std::move(path)), m_largest(largest), m_older(older)
    {
    }

    /// Appends a line with the present date and local time. False, with the reason in `error`, when it cannot
    /// be written.
    bool write(const std::string& text, std::string& error) const;

private:
    void rotate() const;

    std::string m_path;
    uint64_t m_largest;
    unsigned m_older;
};

} // namespace udsim
