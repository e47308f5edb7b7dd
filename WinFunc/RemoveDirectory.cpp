#include "WinFunc.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct CloseDirectory
{
    void operator()(DIR* directory) const
    {
        closedir(directory);
    }
};

/// The names in a folder except "." and "..", or none if the folder cannot be read or is a symbolic link. The
/// folder is closed before its entries are processed, so that a deep tree needs one descriptor at a time.
std::optional<std::vector<std::string>> NamesIn(const std::string& path)
{
    const int fd = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0) {
        return std::nullopt;
    }
    const std::unique_ptr<DIR, CloseDirectory> directory(fdopendir(fd));
    if (directory == nullptr) {
        close(fd);
        return std::nullopt;
    }
    std::vector<std::string> names;
    const int before = errno; // restored on success
    const auto next = [&] {
        errno = 0;
        return readdir(directory.get());
    };
    while (const dirent* entry = next()) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") {
            names.push_back(name);
        }
    }
    if (errno != 0) {
        return std::nullopt;
    }
    errno = before;
    return names;
}

} // namespace

int is_file_delete(const std::string& path)
{
    struct stat target = {};
    struct stat entry = {};
    if (stat(path.c_str(), &target) != 0 || lstat(path.c_str(), &entry) != 0) {
        return -1;
    }
    // A link to a folder is deliberately treated as a link: its target lies elsewhere and must not be
    // emptied.
    if (S_ISDIR(entry.st_mode)) {
        return 0;
    }
    return unlink(path.c_str()) == 0 ? 1 : -1;
}

bool recursive_dir_clear(const std::string& path)
{
    switch (is_file_delete(path)) {
    case 1:
        return true;
    case 0:
        return rmdir_path(path);
    default:
        return false;
    }
}

bool dir_clear(const std::string& path)
{
    const auto names = NamesIn(path);
    if (!names) {
        return false;
    }
    return std::all_of(names->begin(), names->end(), [&](const std::string& name) {
        return recursive_dir_clear(std::string(path).append("/").append(name));
    });
}

bool rmdir_path(const std::string& path)
{
    return dir_clear(path) && rmdir(path.c_str()) == 0;
}

BOOL RemoveDirectoryA(LPCSTR lpPathName)
{
    if (lpPathName == nullptr) {
        return FALSE;
    }
    // With a trailing slash the system would follow a symbolic link.
    std::string path = lpPathName;
    while (path.size() > 1 && path.ends_with('/')) {
        path.pop_back();
    }
    return rmdir_path(path) ? TRUE : FALSE;
}
