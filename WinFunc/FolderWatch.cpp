#include "FolderWatch.h"

#include "SystemCalls.h"

#include <array>
#include <cstring>

#include <linux/magic.h>
#include <sys/inotify.h>
#include <sys/vfs.h>

namespace {

constexpr uint32_t FILE_CHANGED = IN_MODIFY | IN_ATTRIB | IN_CLOSE_WRITE;
constexpr uint32_t LIST_CHANGED = IN_CREATE | IN_DELETE | IN_MOVE | IN_DELETE_SELF | IN_MOVE_SELF;

/// True if every change goes through the kernel of this computer.
bool IsLocalFileSystem(const char* folder)
{
    struct statfs info = {};
    if (statfs(folder, &info) != 0) {
        return false;
    }
    switch (info.f_type) {
    case EXT4_SUPER_MAGIC: // ext2 and ext3 too
    case XFS_SUPER_MAGIC:
    case BTRFS_SUPER_MAGIC:
    case F2FS_SUPER_MAGIC:
    case TMPFS_MAGIC:
        return true;
    default:
        return false;
    }
}

} // namespace

FolderWatch::~FolderWatch()
{
    if (m_descriptor >= 0) {
        close(m_descriptor);
    }
}

bool FolderWatch::Start(const char* folder)
{
    if (m_descriptor < 0) {
        m_descriptor = AboveStandardStreams(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    }
    const int before = m_watch;
    m_watch = m_descriptor >= 0 && IsLocalFileSystem(folder)
                  ? inotify_add_watch(m_descriptor, folder, FILE_CHANGED | LIST_CHANGED | IN_ONLYDIR)
                  : -1;
    if (before >= 0 && before != m_watch) {
        inotify_rm_watch(m_descriptor, before); // fails if the folder, and with it the watch, is gone
    }
    return IsActive();
}

bool FolderWatch::Report(const std::function<void(std::string_view)>& changed)
{
    alignas(inotify_event) std::array<char, 16384> buffer;
    bool isListSame = true;
    ssize_t count = 0;
    while (IsActive() &&
           (count = Uninterrupted([&] { return read(m_descriptor, buffer.data(), buffer.size()); })) > 0) {
        const inotify_event* event = nullptr;
        for (ssize_t place = 0; place < count;
             place += static_cast<ssize_t>(sizeof(inotify_event) + event->len)) {
            event = reinterpret_cast<const inotify_event*>(buffer.data() + place);
            if (event->wd != m_watch && event->wd != -1) { // -1: reports were lost
                continue;                                  // from a folder watched earlier
            }
            if (event->len > 0 && (event->mask & FILE_CHANGED) != 0) {
                changed(event->name);
            } else {
                isListSame = false;
            }
        }
    }
    return isListSame && IsActive() && count < 0 && errno == EAGAIN;
}
