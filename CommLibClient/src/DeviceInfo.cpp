// Reads settings and versions of a server's device.
#include "BigEndian.h"
#include "Operation.h"

#include <cstring>
#include <iterator>

const DWORD dwCommValueMaxConst[9] = {
    2,          // NCL_DIT_DRV_USED
    3,          // NCL_DIT_DRV_CONFIRM
    0xFFFFFFFF, // NCL_DIT_WRITE_ERR_RETRY_COUNT
    1,          // NCL_DIT_PRINT_ERR_DISC_MARK
    11,         // NCL_DIT_STACKER1_DISC_TYPE
    11,         // NCL_DIT_STACKER2_DISC_TYPE
    999,        // NCL_DIT_STACKER3_DISC_TYPE
    1,          // NCL_DIT_BATCH_JOB_SUSPEND
    1,          // NCL_DIT_SUPPORT_BDXL
};

DWORD GetDeviceInfo(DWORD dwHandle, DWORD dwInfoType, char* pszBuf, DWORD dwSize)
try {
    NCLOperation operation(dwHandle, NCLOperation::QUERY, "%s , GetDeviceInfo , Start");
    DWORD result = operation.Enter(pszBuf != nullptr && dwInfoType <= NCL_DIT_NAME_OF_DRV2);
    if (result != NCL_SUCCESS) {
        return result;
    }
    if (dwInfoType == NCL_DIT_VERSION_OF_SECURITY &&
        operation.Object()->m_dwServerMode != NCL_MODE_SECURITY) {
        return LogTrace(R"([CommLib] GetDeviceInfo "Mode!=Security && Type==version_of_toe" %s)",
                        NCL_ERR_PARAMETER);
    }
    NCLRequest request;
    request.path = "/webapp2/DevInfoGetter?ifversion=02000000&type=" + std::to_string(dwInfoType);
    result = operation.Exchange(request, 1,
                                {.request = "\t## trace ## GetDeviceInfo SendRequest() %s",
                                 .reply = "\t## trace ## GetDeviceInfo ParseCommReply() %s"});
    if (result != NCL_SUCCESS) {
        return result;
    }
    const ST_COMM_REPLY& item = operation.Item();
    if (dwSize < item.m_dwDataSize + 1) {
        return LogTrace(R"([CommLib] GetDeviceInfo "Buffer Size" %s)", NCL_ERR_PARAMETER);
    }
    if (item.m_dwDataSize != 0) {
        std::memcpy(pszBuf, item.m_pData, item.m_dwDataSize);
    }
    pszBuf[item.m_dwDataSize] = '\0';
    return operation.End("%s , GetDeviceInfo , End");
} catch (const std::bad_alloc&) {
    return OutOfMemory("GetDeviceInfo");
}

DWORD GetDeviceInfoInt(DWORD dwHandle, DWORD dwInfoType, DWORD* pdwValueOut)
try {
    NCLOperation operation(dwHandle, NCLOperation::QUERY, "%s , GetDeviceInfoInt , Start");
    DWORD result = operation.Enter(pdwValueOut != nullptr && dwInfoType < std::size(dwCommValueMaxConst));
    if (result != NCL_SUCCESS) {
        return result;
    }
    NCLRequest request;
    request.path = "/webapp2/DevInfoIntGetter?ifversion=02000000&type=" + std::to_string(dwInfoType);
    result = operation.Exchange(request, 1,
                                {.request = "\t## trace ## GetDeviceInfoInt SendRequest() %s",
                                 .reply = "\t## trace ## GetDeviceInfoInt ParseCommReply() %s"});
    if (result != NCL_SUCCESS) {
        return result;
    }
    if (operation.Item().m_dwDataSize != 4) {
        return LogInvalid("[CommLib] GetDeviceInfoInt %s 1");
    }
    const DWORD value = BigEndian32(operation.Item().m_pData);
    if (value > dwCommValueMaxConst[dwInfoType]) {
        return LogInvalid("[CommLib] GetDeviceInfoInt %s 2");
    }
    *pdwValueOut = value;
    return operation.End("%s , GetDeviceInfoInt , End(%d)", static_cast<int>(value));
} catch (const std::bad_alloc&) {
    return OutOfMemory("GetDeviceInfoInt");
}

DWORD GetServerMode(DWORD dwHandle, DWORD* pdwModeOut)
try {
    NCLOperation operation(dwHandle, NCLOperation::QUERY, "%s , GetServerMode , Start");
    DWORD result = operation.Enter(pdwModeOut != nullptr);
    if (result != NCL_SUCCESS) {
        return result;
    }
    NCLRequest request;
    request.path = "/webapp2/ServerModeGetter";
    result = operation.Exchange(request, 1,
                                {.request = "\t## trace ## GetServerMode SendRequest() %s",
                                 .reply = "\t## trace ## GetServerMode ParseCommReply() %s"});
    if (result != NCL_SUCCESS) {
        return result;
    }
    if (operation.Item().m_dwDataSize != 1) {
        return LogInvalid("[CommLib] GetServerMode %s 1");
    }
    *pdwModeOut = static_cast<BYTE>(operation.Item().m_pData[0]);
    return operation.End("%s , GetServerMode , End(%d)", static_cast<int>(*pdwModeOut));
} catch (const std::bad_alloc&) {
    return OutOfMemory("GetServerMode");
}
