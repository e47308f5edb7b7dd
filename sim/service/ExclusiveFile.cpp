#include "ExclusiveFile.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>

namespace udsim {

namespace {

constexpr mode_t FILE_MODE = 0644;
constexpr size_t LARGEST = size_t{64} << 20;

std::string reason(const std::string& path)
{
    return path + ": " + std::strerror(errno);
}

} // namespace

ExclusiveFile::ExclusiveFile(std::string path, Descriptor file)
    : m_path(std::move(path)), m_file(std::move(file))
{
}

std::optional<ExclusiveFile> ExclusiveFile::acquire(const std::string& path, int flags, std::string& error)
{
    Descriptor file(::open(path.c_str(), flags | O_CLOEXEC, FILE_MODE));
    if (!file.isOpen()) {
        error = reason(path);
        return std::nullopt;
    }
    while (::flock(file.get(), LOCK_EX) != 0) {
        if (errno != EINTR) {
            error = reason(path);
            return std::nullopt;
        }
    }
    return ExclusiveFile(path, std::move(file));
}

std::optional<std::string> ExclusiveFile::read(std::string& error) const
{
    std::string text;
    char piece[16384];
    while (text.size() <= LARGEST) {
        const ssize_t count = ::pread(m_file.get(), piece, sizeof piece, static_cast<off_t>(text.size()));
        if (count == 0) {
            return text;
        }
        if (count > 0) {
            text.append(piece, static_cast<size_t>(count));
        } else if (errno != EINTR) {
            error = reason(m_path);
            return std::nullopt;
        }
    }
    error = m_path + ": too large";
    return std::nullopt;
}

bool ExclusiveFile::write(const std::string& text, std::string& error) const
{
    size_t written = 0;
    while (written < text.size()) {
        const ssize_t count =
            ::pwrite(m_file.get(), text.data() + written, text.size() - written, static_cast<off_t>(written));
        if (count < 0 && errno != EINTR) {
            error = reason(m_path);
            return false;
        }
        written += count > 0 ? static_cast<size_t>(count) : 0;
    }
    if (::ftruncate(m_file.get(), static_cast<off_t>(text.size())) != 0) {
        error = reason(m_path);
        return false;
    }
    return true;
}

} // namespace udsim
