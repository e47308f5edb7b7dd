// File permissions as for an ordinary user.
#pragma once

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

/// Drops all capabilities: from now on file modes apply to this process, although it is root inside its
/// sandbox. True on success.
inline bool TakeAwayPrivileges()
{
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct none[2] = {};
    return syscall(SYS_capset, &header, none) == 0;
}
