#include "Utility.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool IsSlash(char c)
{
    return c == '/' || c == '\\';
}

bool IsLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// Readable for owner, group and others, writable for none of them.
bool IsReadOnly(const struct stat& status)
{
    constexpr mode_t readable = S_IRUSR | S_IRGRP | S_IROTH;
    constexpr mode_t writable = S_IWUSR | S_IWGRP | S_IWOTH;
    return (status.st_mode & (readable | writable)) == readable;
}

/// Opens the member "*" of a folder: there is no wildcard, the name is literal. Returns the errno, 0 on
/// success.
int TryMembers(const CString& strFolder)
{
    DIR* const directory = opendir(CUtility::CombinePath(strFolder.c_str(), "*").c_str());
    if (directory == nullptr) {
        return errno;
    }
    closedir(directory);
    return 0;
}

/// Returns the errno of opening, 0 on success. Does not wait for the other end of a named pipe.
int TryOpen(LPCTSTR path, int flags)
{
    const int fd = open(path, flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0) {
        return errno;
    }
    close(fd);
    return 0;
}

/// A status takes precedence over an error.
long ResultOf(long status, int error)
{
    if (status != ERROR_SUCCESS) {
        return status;
    }
    switch (error) {
    case 0:
        return ERROR_SUCCESS;
    case EACCES:
        return ERROR_ACCESS_DENIED;
    default:
        return ERROR_PATH_NOT_FOUND;
    }
}

} // namespace

bool CUtility::IsPathBackSlash(LPCTSTR pszPath)
{
    ASSERT(pszPath != nullptr);
    return CString(pszPath).ends_with('/');
}

void CUtility::AddBackSlash(CString& strPath)
{
    if (!IsPathBackSlash(strPath.c_str())) {
        strPath += '/';
    }
}

void CUtility::RemoveBackSlash(CString& strPath)
{
    strPath.TrimRight('/');
}

bool CUtility::IsFullPath(LPCTSTR pPath)
{
    if (pPath == nullptr) {
        return false;
    }
    const bool drive = IsLetter(pPath[0]) && pPath[1] == ':' && IsSlash(pPath[2]);
    return drive || (IsSlash(pPath[0]) && IsSlash(pPath[1]));
}

CString CUtility::CombinePath(LPCTSTR pPath, LPCTSTR pFileName)
{
    ASSERT(pPath != nullptr);
    ASSERT(pFileName != nullptr);
    CString strPath = pPath;
    AddBackSlash(strPath);
    strPath += pFileName;
    return strPath;
}

CString CUtility::GetFileNameFromPath(LPCTSTR pszPath)
{
    CString strPath = pszPath;
    RemoveBackSlash(strPath);
    return strPath.substr(strPath.rfind('/') + 1); // npos + 1 is 0
}

CString CUtility::GetFileNameFromPathNoExt(LPCTSTR pszPath)
{
    const CString strName = GetFileNameFromPath(pszPath);
    return strName.substr(0, strName.rfind('.'));
}

CString CUtility::GetFileExtFromPath(LPCTSTR pszPath, bool bOutputPaser)
{
    const CString strPath = pszPath;
    const size_t dot = strPath.rfind('.');
    if (dot == CString::npos) {
        return {};
    }
    return strPath.substr(bOutputPaser ? dot : dot + 1);
}

CString CUtility::GetFolderPathFromFilePath(LPCTSTR pszFilePath)
{
    CString strPath = pszFilePath;
    RemoveBackSlash(strPath);
    const size_t slash = strPath.rfind('/');
    if (slash == CString::npos) {
        return {};
    }
    return strPath.substr(0, slash);
}

long CUtility::CheckFilePath(LPCTSTR pFilePath, enAccessMode AccessMode)
{
    if (pFilePath == nullptr || *pFilePath == '\0') {
        return ERROR_PATH_NOT_FOUND;
    }
    int error = 0;
    long status = ERROR_SUCCESS;
    struct stat properties = {};
    errno = 0; // an earlier error must not be reported for this path
    if (stat(pFilePath, &properties) != 0) {
        error = errno;
    } else if (S_ISREG(properties.st_mode)) {
        status = ERROR_DIRECTORY;
    } else if (IsReadOnly(properties)) {
        status = ERROR_FILE_READ_ONLY;
    }

    if (AccessMode != ACCESS_NONE && (status != ERROR_SUCCESS || error == 0)) {
        if (status == ERROR_DIRECTORY) {
            if (AccessMode != ACCESS_READ) {
                ASSERT((FALSE));
            }
            error = TryMembers(pFilePath);
        } else if (AccessMode == ACCESS_READ) {
            error = TryOpen(pFilePath, O_RDONLY);
        } else if (AccessMode == ACCESS_EXECUTE) {
            error = TryOpen(pFilePath, O_RDWR);
        } else {
            ASSERT((FALSE));
        }
    }
    return ResultOf(status, error);
}

long CUtility::CheckFolderPath(LPCTSTR lpszFolderPath, enAccessMode AccessMode)
{
    if (lpszFolderPath == nullptr || *lpszFolderPath == '\0') {
        return ERROR_PATH_NOT_FOUND;
    }
    int error = 0;
    long status = ERROR_SUCCESS;
    struct stat properties = {};
    if (stat(lpszFolderPath, &properties) != 0) {
        error = errno;
    } else if (IsReadOnly(properties)) {
        status = ERROR_FILE_READ_ONLY;
    }

    if (status != ERROR_SUCCESS || error == 0) {
        switch (AccessMode) {
        case ACCESS_NONE:
            break;
        case ACCESS_READ:
            error = TryMembers(lpszFolderPath);
            break;
        case ACCESS_READ_WRITE:
            error = TryOpen(lpszFolderPath, O_RDONLY);
            break;
        default:
            ASSERT(false);
        }
    }
    return ResultOf(status, error);
}

bool CUtility::CreateFolder(LPCTSTR lpszFolderPath)
{
    struct stat properties = {};
    if (lpszFolderPath != nullptr && stat(lpszFolderPath, &properties) == 0) {
        const int result = mkdir(lpszFolderPath, 0755);
        ASSERT(result == 0);
    }
    return true;
}
