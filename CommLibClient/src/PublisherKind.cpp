// Facts about a server that are stored on this computer: its kind in its setting file, and a switch in the
// registry.
#include "NW_Com_Lib_internal.h"
#include "PubMgrConst.h"
#include "ServerFiles.h"
#include "WinFunc.h"

#include <unistd.h>

namespace {

/// Reading ignores the case of section names and also finds "Common"; writing distinguishes the two.
constexpr char NPTYPE_SECTION[] = "COMMON";

} // namespace

bool ReadNPType(unsigned int* uiNPType, const char* pszServerAddress)
{
    const std::vector<ServerFile> files = FilesOfServer(pszServerAddress);
    *uiNPType = files.empty() ? NCL_NPTYPE_UNKNOWN : files.front().kind;
    return !files.empty();
}

bool WriteNPType(unsigned int uiNPType, const char* pszServerAddress)
{
    for (const ServerFile& file : FilesOfServer(pszServerAddress)) {
        if (access(file.path.c_str(), R_OK | W_OK) == 0) {
            WritePrivateProfileStringA(NPTYPE_SECTION, REG_PUB_SETUP_VAL_NPTYPE,
                                       std::to_string(uiNPType).c_str(), file.path.c_str());
            return true;
        }
    }
    return false;
}

bool GetRegistryIntValue(HKEY hKeyRoot, LPCSTR lpstrKeyName, LPCSTR lpstrValueName, DWORD& dwData)
{
    dwData = 0;
    const std::lock_guard lock(RegistryMutex());
    HKEY key = nullptr;
    if (RegOpenKeyExA(hKeyRoot, lpstrKeyName, 0, KEY_READ, &key) != ERROR_SUCCESS) {
        return false;
    }
    DWORD type = 0;
    DWORD value = 0;
    DWORD size = sizeof value;
    const LSTATUS result =
        RegQueryValueExA(key, lpstrValueName, nullptr, &type, reinterpret_cast<BYTE*>(&value), &size);
    RegCloseKey(key);
    if (result != ERROR_SUCCESS || type != REG_DWORD || size != sizeof value) {
        return false;
    }
    dwData = value;
    return true;
}
