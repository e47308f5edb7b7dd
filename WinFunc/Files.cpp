#include "WinFunc.h"

#include "SystemCalls.h"

#include <algorithm>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Returns the new position, or a negative value on failure. An unknown method moves nothing and returns 0.
off64_t Seek(HANDLE hFile, off64_t distance, DWORD method)
{
    const int fd = ObjectOf<WinFileHandle>(hFile).fd;
    switch (method) {
    case FILE_BEGIN:
        return lseek64(fd, distance, SEEK_SET);
    case FILE_CURRENT:
        return lseek64(fd, distance, SEEK_CUR);
    case FILE_END:
        return lseek64(fd, distance, SEEK_END);
    default:
        return 0;
    }
}

} // namespace

BOOL ReadFile(HANDLE hFile, LPVOID lpBuffer, DWORD nNumberOfBytesToRead, LPDWORD lpNumberOfBytesRead,
              LPOVERLAPPED)
{
    assert(lpNumberOfBytesRead != nullptr);
    const auto* file =
        IsObject(hFile) ? dynamic_cast<WinFileHandle*>(static_cast<IWinHandle*>(hFile)) : nullptr;
    if (file == nullptr) {
        errno = EBADF;
        return FALSE;
    }
    constexpr DWORD longest = std::numeric_limits<int32_t>::max();
    const DWORD wanted = std::min(nNumberOfBytesToRead, longest);
    const ssize_t count = Uninterrupted([&] { return read(file->fd, lpBuffer, wanted); });
    if (count < 0) {
        return FALSE;
    }
    *lpNumberOfBytesRead = static_cast<DWORD>(count);
    return TRUE;
}

BOOL WriteFile(HANDLE hFile, LPCVOID lpBuffer, DWORD NumberOfBytesToWrite, LPDWORD lpNumberOfBytesWrite,
               LPOVERLAPPED)
{
    assert(lpNumberOfBytesWrite != nullptr);
    const int fd = ObjectOf<WinFileHandle>(hFile).fd;
    *lpNumberOfBytesWrite = 0;
    const ssize_t count = Uninterrupted([&] { return write(fd, lpBuffer, NumberOfBytesToWrite); });
    if (count < 0) {
        const ErrnoKeeper keeper;
        if (GetLogLevel() > 1) {
            LogWarning("WriteFile, write(%d,0x%zX,%d) failed with errno %d", fd,
                       reinterpret_cast<size_t>(lpBuffer), static_cast<int>(NumberOfBytesToWrite),
                       keeper.number);
        }
        return FALSE;
    }
    *lpNumberOfBytesWrite = static_cast<DWORD>(count);
    return TRUE;
}

BOOL GetOverlappedResult(HANDLE, LPOVERLAPPED, LPDWORD, BOOL)
{
    return FALSE;
}

DWORD GetFileSize(HANDLE hFile, LPDWORD)
{
    LARGE_INTEGER size = {};
    return GetFileSizeEx(hFile, &size) != FALSE ? size.u.LowPart : INVALID_FILE_SIZE;
}

BOOL GetFileSizeEx(HANDLE hFile, PLARGE_INTEGER lpFileSize)
{
    struct stat status = {};
    if (fstat(ObjectOf<WinFileHandle>(hFile).fd, &status) != 0) {
        return FALSE;
    }
    lpFileSize->QuadPart = status.st_size;
    return TRUE;
}

DWORD SetFilePointer(HANDLE hFile, LONG lDistanceToMove, PLONG lpDistanceToMoveHigh, DWORD dwMoveMethod)
{
    LARGE_INTEGER position = {};
    position.QuadPart = Seek(hFile, lDistanceToMove, dwMoveMethod);
    if (position.QuadPart < 0) {
        return INVALID_SET_FILE_POINTER;
    }
    if (lpDistanceToMoveHigh != nullptr) {
        *lpDistanceToMoveHigh = position.u.HighPart;
    }
    return position.u.LowPart;
}

BOOL SetFilePointerEx(HANDLE hFile, LARGE_INTEGER liDistanceToMove, PLARGE_INTEGER lpNewFilePointer,
                      DWORD dwMoveMethod)
{
    const off64_t position = Seek(hFile, liDistanceToMove.QuadPart, dwMoveMethod);
    if (position < 0) {
        return FALSE;
    }
    if (lpNewFilePointer != nullptr) {
        lpNewFilePointer->QuadPart = position;
    }
    return TRUE;
}
