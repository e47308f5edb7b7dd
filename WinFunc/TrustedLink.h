// Links in a folder that several people may write to.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// What to add to the flags of open(2) for a file that lstat(2) told so of: O_NOFOLLOW for all but the links
/// of root and of this user. The folder of the setting files is open to a group, and a link that another
/// member put into it, now or in a moment, leads where that person has no rights.
inline int NoFollowUnlessTrusted(const struct stat& info)
{
    const bool trusted = S_ISLNK(info.st_mode) && (info.st_uid == 0 || info.st_uid == geteuid());
    return trusted ? 0 : O_NOFOLLOW;
}
