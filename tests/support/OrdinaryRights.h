// Permissions as an ordinary user meets them.
#pragma once

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

/// From here on the mode bits of files bind this process, although it is root inside its sandbox. True on
/// success.
inline bool TakeAwayPrivileges()
{
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct none[2] = {};
    return syscall(SYS_capset, &header, none) == 0;
}
