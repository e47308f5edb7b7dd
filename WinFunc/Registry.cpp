// Opens, closes, sets, queries and enumerates the keys and values of the registry.
#include "ReadPass.h"
#include "RegistryFile.h"
#include "RegistryPath.h"

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <string_view>

RegistryMap& g_Registry = *new RegistryMap;

namespace {

struct Root
{
    HKEY key;
    const char* shortName;
};

const Root ROOTS[] = {
    {HKEY_CLASSES_ROOT, "HKCR"}, {HKEY_CURRENT_USER, "HKCU"},   {HKEY_LOCAL_MACHINE, "HKLM"},
    {HKEY_USERS, "HKU"},         {HKEY_CURRENT_CONFIG, "HKCC"}, {HKEY_DYN_DATA, "HKDD"},
};

/// Windows uses NULL for the default value; here it is the value with the empty name.
std::string ValueName(LPCSTR lpValueName)
{
    return lpValueName == nullptr ? "" : lpValueName;
}

/// Calls `visit` with the path relative to `hKey` of every key below it, in order, until it returns false.
template <class Visitor>
void ForEachKeyBelow(HKEY hKey, Visitor visit)
{
    const std::string prefix = RegKeyPath(hKey) + "/";
    for (auto entry = g_Registry.lower_bound(prefix);
         entry != g_Registry.end() && entry->first.starts_with(prefix); ++entry) {
        if (!visit(std::string_view(entry->first).substr(prefix.size()))) {
            return;
        }
    }
}

} // namespace

std::recursive_mutex& RegistryMutex()
{
    // Never destroyed, for the same reason as the map.
    static auto& mutex = *new std::recursive_mutex;
    return mutex;
}

const char* RegRootName(HKEY hKey)
{
    for (const Root& root : ROOTS) {
        if (root.key == hKey) {
            return root.shortName;
        }
    }
    return nullptr;
}

CRegistryKey& RegOpenKeyObject(HKEY hKey)
{
    if (RegRootName(hKey) != nullptr) {
        assert(false);
    }
    return *static_cast<CRegistryKey*>(hKey);
}

std::string RegKeyPath(HKEY hKey)
{
    const char* root = RegRootName(hKey);
    return root == nullptr ? static_cast<CRegistryKey*>(hKey)->key : root;
}

std::string RegGetFullPath(HKEY hKey, LPCSTR lpSubKey)
{
    std::string path = RegKeyPath(hKey);
    if (lpSubKey != nullptr) {
        path.append("/").append(lpSubKey);
    }
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

LSTATUS RegCreateKeyExA(HKEY hKey, LPCSTR lpSubKey, DWORD /*Reserved*/, LPSTR /*lpClass*/,
                        DWORD /*dwOptions*/, REGSAM /*samDesired*/,
                        const LPSECURITY_ATTRIBUTES /*lpSecurityAttributes*/, PHKEY phkResult,
                        LPDWORD /*lpdwDisposition*/)
{
    if (!RegReadIn(O_RDWR)) {
        return ERROR_ACCESS_DENIED;
    }
    auto key = std::make_unique<CRegistryKey>(CRegistryKey{RegGetFullPath(hKey, lpSubKey), true, true});
    g_Registry.try_emplace(key->key);
    if (phkResult != nullptr) {
        *phkResult = key.release();
    }
    return ERROR_SUCCESS;
}

LSTATUS RegOpenKeyExA(HKEY hKey, LPCSTR lpSubKey, DWORD /*ulOptions*/, REGSAM /*samDesired*/, PHKEY phkResult)
{
    if (RegIsInvalid(hKey)) {
        return ERROR_INVALID_HANDLE;
    }
    bool writable = false;
    if (!ReadPass::HasRegistry(RegState(), writable)) {
        writable = RegReadIn(O_RDWR);
        if (!writable && !RegReadIn(O_RDONLY)) {
            assert(false);
        }
        ReadPass::KeepRegistry(RegState(), writable);
    }
    auto key = std::make_unique<CRegistryKey>(CRegistryKey{RegGetFullPath(hKey, lpSubKey), writable, false});
    const bool found = g_Registry.contains(key->key);
    if (phkResult != nullptr) {
        *phkResult = found ? key.release() : nullptr;
    }
    return found ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
}

LSTATUS RegCloseKey(HKEY hKey)
{
    if (RegIsInvalid(hKey)) {
        return ERROR_INVALID_HANDLE;
    }
    CRegistryKey* key = &RegOpenKeyObject(hKey);
    const bool mustWrite = key->bWritable && key->bDirty;
    delete key;
    if (mustWrite && !RegWriteOut()) {
        assert(false);
    }
    return ERROR_SUCCESS;
}

LSTATUS RegSetValueExA(HKEY hKey, LPCSTR lpValueName, DWORD /*Reserved*/, DWORD dwType, const BYTE* lpData,
                       DWORD cbData)
{
    if (RegIsInvalid(hKey)) {
        return ERROR_INVALID_HANDLE;
    }
    CRegistryKey& key = RegOpenKeyObject(hKey);
    if (!key.bWritable) {
        assert(false);
    }
    CRegistryValueStore& store = g_Registry[key.key];
    if (dwType == REG_DWORD && cbData == sizeof(uint32_t)) {
        std::memcpy(&store.dwordValues[ValueName(lpValueName)], lpData, sizeof(uint32_t));
    } else if (dwType == REG_SZ && cbData != 0) {
        store.stringValues[ValueName(lpValueName)] = reinterpret_cast<const char*>(lpData);
    } else {
        return ERROR_SUCCESS;
    }
    key.bDirty = true;
    RegForgetLoad();
    return ERROR_SUCCESS;
}

LSTATUS RegQueryValueExA(HKEY hKey, LPCSTR lpValueName, LPDWORD /*lpReserved*/, LPDWORD lpType, LPBYTE lpData,
                         LPDWORD lpcbData)
{
    const CRegistryValueStore& store = g_Registry[RegKeyPath(hKey)];
    const std::string name = ValueName(lpValueName);

    if (const auto text = store.stringValues.find(name); text != store.stringValues.end()) {
        const auto needed = static_cast<DWORD>(text->second.size() + 1);
        const bool fits = *lpcbData >= needed;
        *lpType = REG_SZ;
        *lpcbData = needed;
        if (fits) {
            std::memcpy(lpData, text->second.c_str(), needed);
        }
        return ERROR_SUCCESS;
    }
    if (const auto number = store.dwordValues.find(name); number != store.dwordValues.end()) {
        *lpType = REG_DWORD;
        if (*lpcbData < sizeof(uint32_t)) {
            *lpcbData = sizeof(uint32_t);
        } else if (lpData != nullptr) {
            std::memcpy(lpData, &number->second, sizeof(uint32_t));
        }
        return ERROR_SUCCESS;
    }
    return ERROR_FILE_NOT_FOUND;
}

LSTATUS RegEnumKeyExA(HKEY hKey, DWORD dwIndex, LPSTR lpName, LPDWORD lpcchName, LPDWORD /*lpReserved*/,
                      LPSTR /*lpClass*/, LPDWORD /*lpcchClass*/, LPFILETIME /*lpftLastWriteTime*/)
{
    // NOLINTBEGIN(modernize-use-nullptr): the texts of these assertions are fixed
    assert(lpName != NULL);
    assert(lpcchName != NULL);
    // NOLINTEND(modernize-use-nullptr)

    LSTATUS result = ERROR_NO_MORE_ITEMS;
    ForEachKeyBelow(hKey, [&, position = DWORD{0}](std::string_view name) mutable {
        if (name.find('/') != std::string_view::npos || position++ != dwIndex) {
            return true;
        }
        const bool fits = name.size() < *lpcchName;
        if (fits) {
            strcpy_s(lpName, *lpcchName, std::string(name).c_str());
        }
        result = fits ? ERROR_SUCCESS : ERROR_MORE_DATA;
        return false;
    });
    return result;
}

LSTATUS RegQueryInfoKeyA(HKEY hKey, LPSTR lpClass, LPDWORD lpcchClass, LPDWORD lpReserved, LPDWORD lpcSubKeys,
                         LPDWORD lpcbMaxSubKeyLen, LPDWORD lpcbMaxClassLen, LPDWORD lpcValues,
                         LPDWORD lpcbMaxValueNameLen, LPDWORD lpcbMaxValueLen, LPDWORD lpcbSecurityDescriptor,
                         LPFILETIME lpftLastWriteTime)
{
    const bool asksForKeys = lpcSubKeys != nullptr || lpcbMaxSubKeyLen != nullptr;
    const bool asksForMore = lpClass != nullptr || lpcchClass != nullptr || lpReserved != nullptr ||
                             lpcbMaxClassLen != nullptr || lpcValues != nullptr ||
                             lpcbMaxValueNameLen != nullptr || lpcbMaxValueLen != nullptr ||
                             lpcbSecurityDescriptor != nullptr || lpftLastWriteTime != nullptr;
    if (!asksForKeys || asksForMore) {
        assert(false);
    }
    DWORD count = 0; // at any depth, although the enumeration lists direct children only
    size_t longest = 0;
    ForEachKeyBelow(hKey, [&](std::string_view name) {
        ++count;
        longest = std::max(longest, std::min(name.find('/'), name.size()));
        return true;
    });
    if (lpcSubKeys != nullptr) {
        *lpcSubKeys = count;
    }
    if (lpcbMaxSubKeyLen != nullptr) {
        *lpcbMaxSubKeyLen = static_cast<DWORD>(longest);
    }
    return ERROR_SUCCESS;
}

LSTATUS RegEnumValueA(HKEY /*hKey*/, DWORD /*dwIndex*/, LPSTR /*lpValueName*/, LPDWORD /*lpcchValueName*/,
                      LPDWORD /*lpReserved*/, LPDWORD /*lpType*/, LPBYTE /*lpData*/, LPDWORD /*lpcbData*/)
{
    assert(false);
    return ERROR_NO_MORE_ITEMS;
}
