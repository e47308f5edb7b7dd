#include "JobInbox.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Descriptor.h"
#include "JobFile.h"

namespace udsim {

namespace {

struct CloseFolder
{
    void operator()(DIR* folder) const
    {
        ::closedir(folder);
    }
};

/// Hidden files are ignored, so ".epj" alone is not a job file.
bool isJobFile(std::string_view name)
{
    return !name.starts_with(".") && name.ends_with(".epj");
}

std::vector<std::string> jobFileNames(DIR* folder)
{
    std::vector<std::string> names;
    while (const dirent* const entry = ::readdir(folder)) {
        if (isJobFile(entry->d_name)) {
            names.emplace_back(entry->d_name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Sets the file's text, or the reason why it cannot be read.
void read(int folder, FoundFile& found)
{
    const Descriptor file(
        ::openat(folder, found.name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status{};
    if (!file.isOpen() || ::fstat(file.get(), &status) != 0) {
        found.refusal = errno == ELOOP ? "it is a link" : std::strerror(errno);
        return;
    }
    if (!S_ISREG(status.st_mode)) {
        found.refusal = "it is no file";
        return;
    }
    std::string text(JobInbox::LARGEST + 1, '\0');
    size_t length = 0;
    while (length < text.size()) {
        const ssize_t count = ::read(file.get(), text.data() + length, text.size() - length);
        if (count == 0) {
            break;
        }
        if (count < 0 && errno != EINTR) {
            found.refusal = std::strerror(errno);
            return;
        }
        length += count > 0 ? static_cast<size_t>(count) : 0;
    }
    if (length > JobInbox::LARGEST) {
        found.refusal = "it is larger than " + std::to_string(JobInbox::LARGEST) + " bytes";
        return;
    }
    text.resize(length);
    found.text = std::move(text);
}

} // namespace

std::vector<FoundFile> JobInbox::take(Clock::time_point now)
{
    const std::unique_ptr<DIR, CloseFolder> folder(::opendir(m_path.c_str()));
    if (!folder) {
        m_seen.clear();
        return {};
    }
    const int fd = ::dirfd(folder.get());
    std::vector<FoundFile> taken;
    std::map<std::string, Sight> staying;
    for (const std::string& name : jobFileNames(folder.get())) {
        struct stat status{};
        if (::fstatat(fd, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0 || S_ISDIR(status.st_mode)) {
            continue;
        }
        const auto before = m_seen.find(name);
        Sight sight{status.st_ino, now, false};
        if (before != m_seen.end() && before->second.number == status.st_ino) {
            sight = before->second;
        }
        if (sight.stuck) {
            staying[name] = sight;
            continue;
        }
        FoundFile found{name, {}, {}};
        read(fd, found);
        if (found.refusal.empty() && !isWholeJobFile(found.text) && now - sight.since < PATIENCE) {
            staying[name] = sight;
            continue;
        }
        if (::unlinkat(fd, name.c_str(), 0) != 0) {
            found.refusal = std::string("it cannot be removed: ") + std::strerror(errno);
            sight.stuck = true;
            staying[name] = sight;
        }
        taken.push_back(std::move(found));
    }
    m_seen = std::move(staying);
    return taken;
}

} // namespace udsim
