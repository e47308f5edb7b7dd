// Symbolic links in a folder that several users may write to.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// The flag to add to those of open(2) for a file with this lstat(2) result: O_NOFOLLOW, except for links
/// owned by root or by this user. The folder of the setting files is writable by a group. A link that another
/// member puts there, before or after lstat(2), can point to a file to which that member has no access.
inline int NoFollowUnlessTrusted(const struct stat& info)
{
    const bool trusted = S_ISLNK(info.st_mode) && (info.st_uid == 0 || info.st_uid == geteuid());
    return trusted ? 0 : O_NOFOLLOW;
}
