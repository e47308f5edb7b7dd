// Reports what changed in a folder without examining each of its files.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

/// Reports changes in one folder through inotify. One thread at a time.
///
/// The kernel reports a change before the call that made it returns. It does not report: changes of the
/// target of a symbolic link; changes through a hard link outside the folder, or the creation of one; changes
/// by other computers on a network file system; writes to a memory mapping; a mount on a file.
class FolderWatch
{
public:
    FolderWatch() = default;
    ~FolderWatch();
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

    /// Watches this folder instead of any other one. False if changes cannot be reported: the folder cannot
    /// be opened, the user's watches are used up, or other computers may change its file system.
    bool Start(const char* folder);
    bool IsActive() const
    {
        return m_watch >= 0;
    }
    /// Calls `changed` with the name of each file that was written to, or whose attributes changed, since the
    /// last call; a name may be repeated. False if files may have been added or removed, or if reports were
    /// lost.
    bool Report(const std::function<void(std::string_view)>& changed);

private:
    int m_descriptor = -1;
    int m_watch = -1;
};
