#include "WinFunc.h"

#include <cstdlib>
#include <cstring>
#include <memory>

#include <dirent.h>
#include <libgen.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

bool IsSlash(char c)
{
    return c == '/' || c == '\\';
}

void Store(PULARGE_INTEGER output, ULONGLONG value)
{
    if (output != nullptr) {
        output->QuadPart = value;
    }
}

void Store(LPDWORD output, ULONGLONG value)
{
    if (output != nullptr) {
        *output = static_cast<DWORD>(value);
    }
}

constexpr unsigned long sectorsPerCluster = 8;

/// Blocks of the file system as clusters of eight sectors.
ULONGLONG ClustersOf(ULONGLONG blocks, unsigned long blockSize)
{
    const unsigned long bytesPerSector = blockSize / sectorsPerCluster;
    return bytesPerSector == 0 ? 0 : blocks * blockSize / bytesPerSector / sectorsPerCluster;
}

} // namespace

BOOL DeleteFileA(LPCSTR lpFileName)
{
    return lpFileName != nullptr && unlink(lpFileName) == 0 ? TRUE : FALSE;
}

BOOL CreateDirectoryA(LPCSTR lpDirectoryName, LPSECURITY_ATTRIBUTES)
{
    return lpDirectoryName != nullptr && mkdir(lpDirectoryName, 0775) == 0 ? TRUE : FALSE;
}

BOOL PathIsDirectoryA(LPCSTR pszPath)
{
    DIR* const directory = pszPath == nullptr ? nullptr : opendir(pszPath);
    if (directory == nullptr) {
        return FALSE;
    }
    closedir(directory);
    return TRUE;
}

DWORD GetFileAttributesA(LPCSTR lpFileName)
{
    struct stat status = {};
    if (lpFileName == nullptr || stat(lpFileName, &status) != 0) {
        return INVALID_FILE_ATTRIBUTES;
    }
    const DWORD kind = S_ISDIR(status.st_mode) ? FILE_ATTRIBUTE_DIRECTORY : 0;
    const bool readOnly = (status.st_mode & ACCESSPERMS) == (S_IRUSR | S_IRGRP | S_IROTH);
    return kind | (readOnly ? FILE_ATTRIBUTE_READONLY : 0);
}

BOOL PathAppendA(LPSTR pszPath, LPCSTR pszMore)
{
    size_t length = std::strlen(pszPath);
    size_t dots = 0;
    if (length >= 2 && pszPath[0] == '.' && IsSlash(pszPath[1])) {
        dots = 1;
    } else if (length > 2 && pszPath[0] == '.' && pszPath[1] == '.' && IsSlash(pszPath[2])) {
        dots = 2;
    }
    length -= dots;
    std::memmove(pszPath, pszPath + dots, length + 1);
    if (length == 0 || pszPath[length - 1] != '/') {
        pszPath[length++] = '/';
    }
    std::memcpy(pszPath + length, pszMore, std::strlen(pszMore) + 1);
    return TRUE;
}

DWORD GetModuleFileNameA(HMODULE, LPSTR lpFilename, DWORD nSize)
{
    if (lpFilename == nullptr || nSize == 0) {
        return 0;
    }
    std::memset(lpFilename, 0, nSize);
    return static_cast<DWORD>(readlink("/proc/self/exe", lpFilename, nSize - 1));
}

int fopen_s(FILE** pFile, const char* filename, const char* mode)
{
    if (pFile == nullptr || filename == nullptr || mode == nullptr) {
        return EINVAL;
    }
    // "e" sets close-on-exec. It is inserted after the first letter: at the end it could become part of a
    // ",ccs=" clause.
    std::string closeOnExec = mode;
    const size_t behindFirst = closeOnExec.empty() ? 0 : 1;
    closeOnExec.insert(behindFirst, 1, 'e');
    *pFile = std::fopen(filename, closeOnExec.c_str());
    return *pFile != nullptr ? 0 : static_cast<int>(ERROR_ACCESS_DENIED);
}

BOOL GetDiskFreeSpaceEx(LPCSTR lpDirectoryName, PULARGE_INTEGER lpFreeBytesAvailableToCaller,
                        PULARGE_INTEGER lpTotalNumberOfBytes, PULARGE_INTEGER lpTotalNumberOfFreeBytes)
{
    const std::unique_ptr<char, decltype(&std::free)> path(
        canonicalize_file_name(lpDirectoryName != nullptr ? lpDirectoryName : "."), &std::free);
    struct statvfs space = {};
    if (path == nullptr || statvfs(dirname(path.get()), &space) != 0) {
        return FALSE;
    }
    Store(lpFreeBytesAvailableToCaller, ULONGLONG{space.f_bavail} * space.f_frsize);
    Store(lpTotalNumberOfBytes, ULONGLONG{space.f_blocks} * space.f_frsize);
    Store(lpTotalNumberOfFreeBytes, ULONGLONG{space.f_bavail} * space.f_bsize);
    return TRUE;
}

BOOL GetDiskFreeSpace(LPCSTR RootPathName, LPDWORD SectorsPerCluster, LPDWORD BytesPerSector,
                      LPDWORD FreeClusters, LPDWORD Clusters)
{
    struct statvfs space = {};
    if (statvfs(RootPathName != nullptr ? RootPathName : ".", &space) != 0) {
        return FALSE;
    }
    Store(SectorsPerCluster, sectorsPerCluster);
    Store(BytesPerSector, space.f_bsize / sectorsPerCluster);
    Store(FreeClusters, ClustersOf(space.f_bavail, space.f_bsize));
    Store(Clusters, ClustersOf(space.f_blocks, space.f_bsize));
    return TRUE;
}
