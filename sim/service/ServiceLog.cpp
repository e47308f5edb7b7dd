#include "ServiceLog.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Descriptor.h"

namespace udsim {

namespace {

std::string now()
{
    const std::time_t seconds = std::time(nullptr);
    std::tm date{};
    ::localtime_r(&seconds, &date);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &date);
    return text.data();
}

} // namespace

bool ServiceLog::write(const std::string& text, std::string& error) const
{
    const std::string line = now() + " " + text + "\n";
    struct stat status{};
    if (::stat(m_path.c_str(), &status) == 0 && status.st_size > 0 &&
        static_cast<uint64_t>(status.st_size) + line.size() > m_largest) {
        rotate();
    }
    // Opened for each line, because the log may be removed at any time.
    const Descriptor file(
        ::open(m_path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW | O_CLOEXEC, 0644));
    if (!file.isOpen() ||
        ::write(file.get(), line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
        error = m_path + ": " + std::strerror(errno);
        return false;
    }
    return true;
}

void ServiceLog::rotate() const
{
    for (unsigned number = m_older; number > 1; --number) {
        std::rename((m_path + "." + std::to_string(number - 1)).c_str(),
                    (m_path + "." + std::to_string(number)).c_str());
    }
    std::rename(m_path.c_str(), (m_path + ".1").c_str());
}

} // namespace udsim
