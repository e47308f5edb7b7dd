// Distinguishes states of a file without reading it.
#pragma once

#include <ctime>
#include <sys/stat.h>

/// Identity, size and times of a file.
struct FileStamp
{
    FileStamp() = default;
    explicit FileStamp(const struct stat& info)
        : device(info.st_dev), inode(info.st_ino), size(info.st_size), modified(info.st_mtim),
          changed(info.st_ctim)
    {
    }
    bool operator==(const FileStamp& other) const
    {
        return device == other.device && inode == other.inode && size == other.size &&
               SameTime(modified, other.modified) && SameTime(changed, other.changed);
    }
    /// False if a later change could leave the same stamp. The kernel's clock advances once per tick, and 100
    /// ms is longer than any tick. Some file systems store whole seconds only; a time without a fraction is
    /// assumed to come from one of them. `now` is CLOCK_REALTIME_COARSE, read before the stamp.
    bool IsSettled(const timespec& now) const
    {
        constexpr long long nsPerSecond = 1'000'000'000;
        const long long age = (now.tv_sec - changed.tv_sec) * nsPerSecond + now.tv_nsec - changed.tv_nsec;
        return age >= nsPerSecond / 10 && changed.tv_nsec != 0;
    }

    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    timespec modified = {};
    timespec changed = {};

private:
    static bool SameTime(const timespec& one, const timespec& two)
    {
        return one.tv_sec == two.tv_sec && one.tv_nsec == two.tv_nsec;
    }
};
