// Deletes keys and values from the registry's text file. The map keeps them.
#include "RegistryFile.h"
#include "RegistryPath.h"

#include "InstallPaths.h"

#include <cstring>
#include <fcntl.h>

namespace {

/// Calls `keep` with each piece of the file, as text up to its first NUL, and rewrites the file with the
/// pieces for which it returns true. Leaves the file unchanged if `changed` then returns false.
template <class Keep, class Changed>
LSTATUS EditFile(Keep keep, Changed changed)
{
    LockedFile file(REGISTRY_FILE, O_RDWR);
    if (!file.IsOpen()) {
        return ERROR_INVALID_ACCESS;
    }
    std::string kept;
    std::string piece;
    RegistryPieces pieces(file);
    while (pieces.Next(piece)) {
        if (keep(piece.c_str())) {
            kept += piece;
        }
    }
    if (!pieces.Complete()) {
        return ERROR_INVALID_ACCESS; // writing now would lose the part that could not be read
    }
    file.Close();
    if (!changed()) {
        return ERROR_SUCCESS;
    }
    return RegReplaceFile(kept) ? ERROR_SUCCESS : ERROR_INVALID_ACCESS;
}

} // namespace

LSTATUS RegDeleteKeyA(HKEY hKey, LPCSTR lpSubKey)
{
    if (RegIsInvalid(hKey)) {
        return ERROR_INVALID_HANDLE;
    }
    std::string target = RegKeyPath(hKey);
    if (lpSubKey != nullptr) {
        target.append("/").append(lpSubKey);
    }

    enum
    {
        BEFORE,
        INSIDE,
        BEHIND
    } state = BEFORE;
    return EditFile(
        [&](const char* line) {
            if (line[0] == '[') {
                const bool hit = state == BEFORE && std::strstr(line, target.c_str()) != nullptr;
                if (hit) {
                    state = INSIDE;
                } else if (state != BEFORE) {
                    state = BEHIND;
                }
            }
            return state != INSIDE;
        },
        [&] { return state != BEFORE; });
}

LSTATUS RegDeleteValueA(HKEY hKey, LPCSTR lpValueName)
{
    if (RegIsInvalid(hKey)) {
        return ERROR_INVALID_HANDLE;
    }
    const CRegistryKey& key = RegOpenKeyObject(hKey);
    if (!key.bWritable) {
        assert(false);
    }
    if (lpValueName == nullptr) {
        return ERROR_SUCCESS; // NULL names no value, and a missing value is not an error
    }

    enum
    {
        BEFORE,
        INSIDE,
        BEHIND,
        REMOVED
    } state = BEFORE;
    return EditFile(
        [&](const char* line) {
            if (line[0] == '[') {
                if (state == BEFORE && std::strstr(line, key.key.c_str()) != nullptr) {
                    state = INSIDE;
                } else if (state == INSIDE) {
                    state = BEHIND;
                }
            } else if (state == INSIDE && std::strstr(line, lpValueName) != nullptr) {
                state = REMOVED;
                return false;
            }
            return true;
        },
        [&] { return state == REMOVED; });
}
