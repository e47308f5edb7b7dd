// Internal to the registry store: root keys, open keys and their paths.
#pragma once

#include "WinFunc.h"

#include <string>

/// 0 and -1 are never keys.
inline bool RegIsInvalid(HKEY hKey)
{
    return hKey == nullptr || hKey == INVALID_HANDLE_VALUE;
}

/// The short name of a root, or NULL for an open key.
const char* RegRootName(HKEY hKey);

/// The object of an open key. A root key stops the process.
CRegistryKey& RegOpenKeyObject(HKEY hKey);

/// The path of a root or an open key.
std::string RegKeyPath(HKEY hKey);
