#include "WinFunc.h"

DWORD GetLastError()
{
    constexpr DWORD anyOther = 1;
    switch (errno) {
    case 0:
        return ERROR_SUCCESS;
    case ENOENT:
    case ENXIO:
        return ERROR_FILE_NOT_FOUND;
    case ENAMETOOLONG:
    case ELOOP:
        return ERROR_PATH_NOT_FOUND;
    case EACCES:
    case ETXTBSY:
        return ERROR_ACCESS_DENIED;
    case ENOMEM:
        return ERROR_NOT_ENOUGH_MEMORY;
    case EIO:
        return ERROR_CRC;
    case EEXIST:
        return ERROR_FILE_EXISTS;
    case EINVAL:
    case EISDIR:
        return ERROR_INVALID_PARAMETER;
    case EPIPE:
        return ERROR_BROKEN_PIPE;
    case ENOSPC:
    case EDQUOT:
        return ERROR_DISK_FULL;
    case EBUSY:
        return ERROR_BUSY_DRIVE;
    case ENOTDIR:
        return ERROR_DIRECTORY;
    case EROFS:
        return ERROR_FILE_READ_ONLY;
    default:
        return anyOther;
    }
}

void SetLastError(DWORD dwErrCode)
{
    errno = static_cast<int>(dwErrCode);
}
