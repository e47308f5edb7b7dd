// What this computer knows of a server before it is asked: its kind, in its setting file, and a switch in the
// registry.
#include "InstallPaths.h"
#include "NW_Com_Lib_internal.h"
#include "PubMgrConst.h"
#include "WinFunc.h"

#include <cstdlib>
#include <functional>

#include <dirent.h>
#include <unistd.h>

namespace {

/// Whoever reads finds this section and "Common" alike; whoever writes keeps them apart by their case.
constexpr char NPTYPE_SECTION[] = "COMMON";

/// Calls `visit` with the path of each setting file, until it gives true, which is the result.
bool FindSettingFile(const std::function<bool(const char*)>& visit)
{
    DIR* const directory = opendir(PUBLISHER_SETTING_DIR);
    if (directory == nullptr) {
        return false;
    }
    bool isFound = false;
    const dirent* entry = nullptr;
    while (!isFound && (entry = readdir(directory)) != nullptr) {
        const std::string path = std::string(PUBLISHER_SETTING_DIR) + "/" + entry->d_name;
        // A path beyond the limit of the suite's programs names no publisher.
        isFound = entry->d_name[0] != '.' && path.size() < size_t{MAX_PATH} && visit(path.c_str());
    }
    closedir(directory);
    return isFound;
}

bool IsOfServer(const char* path, const char* address)
{
    char server[260] = {};
    return GetPrivateProfileStringA(REG_PUB_SETUP_SECTION_COMMON, REG_PUB_SETUP_VAL_HOST, "", server,
                                    sizeof server, path) != 0 &&
           std::string(server) == address;
}

} // namespace

bool ReadNPType(unsigned int* uiNPType, const char* pszServerAddress)
{
    *uiNPType = NCL_NPTYPE_UNKNOWN;
    return FindSettingFile([&](const char* path) {
        if (!IsOfServer(path, pszServerAddress)) {
            return false;
        }
        char kind[32] = {};
        GetPrivateProfileStringA(NPTYPE_SECTION, REG_PUB_SETUP_VAL_NPTYPE, "", kind, sizeof kind, path);
        const auto number = static_cast<unsigned int>(std::atoi(kind)); // a negative one is no kind
        if (number <= NCL_NPTYPE_300NII_BDXL) {
            *uiNPType = number;
        }
        return true;
    });
}

bool WriteNPType(unsigned int uiNPType, const char* pszServerAddress)
{
    return FindSettingFile([&](const char* path) {
        if (access(path, R_OK | W_OK) != 0 || !IsOfServer(path, pszServerAddress)) {
            return false;
        }
        WritePrivateProfileStringA(NPTYPE_SECTION, REG_PUB_SETUP_VAL_NPTYPE, std::to_string(uiNPType).c_str(),
                                   path);
        return true;
    });
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
