// The registry key of one device of this computer. The control service writes it.
#pragma once

#include "PubMgrConst.h"

#include <string>

/// Under HKEY_LOCAL_MACHINE.
inline std::string DeviceKey(const std::string& strGUID)
{
    return std::string(REG_PUB_DEVICE_KEY_ROOT) + "\\" + strGUID;
}
