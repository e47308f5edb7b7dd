// The service's log file: lines with date and time, and rotated older files.
#pragma once

#include <cstdint>
#include <string>

namespace udsim {

inline constexpr char SERVICE_LOG[] = "/var/log/arvenUlmarDiscControl.log";

class ServiceLog
{
public:
    /// The file is rotated before it would exceed `largest` bytes; `older` files are kept, as PATH.1 (the
    /// newest) and so on.
    explicit ServiceLog(std::string path = SERVICE_LOG, uint64_t largest = 262'144, unsigned older = 4)
        : m_path(std::move(path)), m_largest(largest), m_older(older)
    {
    }

    /// Appends a line with the current date and local time. Returns false, with the reason in `error`, if it
    /// cannot be written.
    bool write(const std::string& text, std::string& error) const;

private:
    void rotate() const;

    std::string m_path;
    uint64_t m_largest;
    unsigned m_older;
};

} // namespace udsim
