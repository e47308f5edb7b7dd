// Learning what changed in a folder without looking at each of its files.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

/// Reports changes in one folder by inotify. One thread at a time.
///
/// The kernel reports a change before the call that made it returns. It does not report: changes of the
/// target of a symbolic link; changes through another name of a file, outside the folder, nor that it got
/// one; changes by other computers on a network file system; writing to a memory mapping; mounting something
/// on a file.
class FolderWatch
{
public:
    FolderWatch() = default;
    ~FolderWatch();
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

    /// Watches this folder in the place of any other one. False when changes are not reported: the user's
    /// watches are used up, or it lies on a file system that other computers may change.
    bool Start(const char* folder);
    bool IsActive() const
    {
        return m_watch >= 0;
    }
    /// Calls `changed` with the name of each file that was written to, or whose rights changed, since the
    /// last call; a name may come twice. False when entries may have come or gone, or reports were lost.
    bool Report(const std::function<void(std::string_view)>& changed);

private:
    int m_descriptor = -1;
    int m_watch = -1;
};
