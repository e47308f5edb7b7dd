// Queries the current status of a device, with one operation for each part. DeviceStatusUnpack.cpp decodes
// the bytes.
#include "Operation.h"

#include <algorithm>
#include <functional>

namespace {

struct StatusLines
{
    NCLLine start;
    NCLLine trace; ///< of a failed request
    NCLLine end;
};

/// Requests the status, which is one item. Logs a failure.
DWORD AskStatus(NCLOperation& operation, DeviceStatusType eType, NCLLine trace)
{
    const DWORD result = GetDeviceStatus(operation.Object(), operation.Response(), operation.Items(), eType);
    return result == NCL_SUCCESS ? result : LogTrace(trace, result);
}

/// Gets a status of fixed size. `unpack` returns 0, or the number of the check that failed.
DWORD GetStatus(DWORD dwHandle, const char* pszName, DeviceStatusType eType, DWORD dwItemSize,
                bool areArgumentsGood, const StatusLines& lines, NCLNumberedLine invalid,
                const std::function<int(const char* pData, const ST_NCL& ncl)>& unpack)
try {
    NCLOperation operation(dwHandle, NCLOperation::QUERY, lines.start);
    DWORD result = operation.Enter(areArgumentsGood);
    if (result != NCL_SUCCESS) {
        return result;
    }
    result = AskStatus(operation, eType, lines.trace);
    if (result != NCL_SUCCESS) {
        return result;
    }
    if (operation.Item().m_dwDataSize != dwItemSize) {
        return LogInvalid(invalid, 1);
    }
    const int check = unpack(operation.Item().m_pData, *operation.Object());
    return check == 0 ? operation.End(lines.end) : LogInvalid(invalid, check);
} catch (const std::bad_alloc&) {
    return OutOfMemory(pszName);
}

/// Gets a status that the caller receives unchanged.
DWORD GetBlock(DWORD dwHandle, const char* pszName, DeviceStatusType eType, BYTE* pBuf, DWORD dwBufSize,
               DWORD* pdwGetSize, const StatusLines& lines)
try {
    NCLOperation operation(dwHandle, NCLOperation::QUERY, lines.start);
    DWORD result = operation.Enter(pBuf != nullptr && pdwGetSize != nullptr);
    if (result != NCL_SUCCESS) {
        return result;
    }
    *pdwGetSize = 0;
    result = AskStatus(operation, eType, lines.trace);
    if (result != NCL_SUCCESS) {
        return result;
    }
    const ST_COMM_REPLY& item = operation.Item();
    *pdwGetSize = item.m_dwDataSize;
    if (dwBufSize < item.m_dwDataSize) {
        return NCL_ERR_BUF_SIZE;
    }
    std::copy_n(item.m_pData, item.m_dwDataSize, pBuf);
    return operation.End(lines.end);
} catch (const std::bad_alloc&) {
    return OutOfMemory(pszName);
}

} // namespace

DWORD GetDeviceStatus(ST_NCL* pNCL, ST_HTTP_RESPONSE* pstHttpRes, std::list<ST_COMM_REPLY>& rliReply,
                      DeviceStatusType eType)
{
    ASSERT(pNCL != nullptr);
    ASSERT(pstHttpRes != nullptr);
    const bool isRetired = eType == DEV_STATUS_TYPE_RETIRED01;
    NCLRequest request;
    request.path = "/webapp2/DevStatusGetter?ifversion=02000000&type=";
    if (!isRetired) {
        request.path += std::to_string(eType);
    }
    const DWORD result = SendRequest(pNCL, request, pstHttpRes);
    if (result != NCL_SUCCESS) {
        return result;
    }
    return ParseCommReply(pstHttpRes->m_pContent, pstHttpRes->m_dwContentLength, rliReply, isRetired ? 0 : 1);
}

DWORD GetALDStatus(DWORD dwHandle, ALDStatus* pStatusOut)
{
    return GetStatus(dwHandle, "GetALDStatus", DEV_STATUS_TYPE_ALD, ALD_STATUS_SIZE, pStatusOut != nullptr,
                     {.start = "%s , GetALDStatus , Start",
                      .trace = "\t## trace ## GetALDStatus GetDeviceStatus() %s",
                      .end = "%s , GetALDStatus , End"},
                     "[CommLib] GetALDStatus %s %d",
                     [&](const char* data, const ST_NCL&) { return UnpackALDStatus(data, pStatusOut); });
}

DWORD GetStackerStatus(DWORD dwHandle, StackerStatus* pStatusOut)
{
    return GetStatus(dwHandle, "GetStackerStatus", DEV_STATUS_TYPE_STACKER, STACKER_STATUS_SIZE,
                     pStatusOut != nullptr,
                     {.start = "%s , GetStackerStatus , Start",
                      .trace = "\t## trace ## GetStackerStatus GetDeviceStatus() %s",
                      .end = "%s , GetStackerStatus , End"},
                     "[CommLib] GetStackerStatus %s %d",
                     [&](const char* data, const ST_NCL&) { return UnpackStackerStatus(data, pStatusOut); });
}

DWORD GetDrvStatus(DWORD dwHandle, DrvStatus* pStatusOut)
{
    return GetStatus(dwHandle, "GetDrvStatus", DEV_STATUS_TYPE_DRV, DRV_STATUS_SIZE, pStatusOut != nullptr,
                     {.start = "%s , GetDrvStatus , Start",
                      .trace = "\t## trace ## GetDrvStatus GetDeviceStatus() %s",
                      .end = "%s , GetDrvStatus , End"},
                     "[CommLib] GetDrvStatus %s %d",
                     [&](const char* data, const ST_NCL&) { return UnpackDrvStatus(data, pStatusOut); });
}

DWORD GetDrvStatusEx(DWORD dwHandle, DrvStatusEx* pStatusOut)
{
    return GetStatus(dwHandle, "GetDrvStatusEx", DEV_STATUS_TYPE_DRV_EX, DRV_STATUS_EX_SIZE,
                     pStatusOut != nullptr,
                     {.start = "%s , GetDrvStatusEx , Start",
                      .trace = "\t## trace ## GetDrvStatusEx GetDeviceStatus() %s",
                      .end = "%s , GetDrvStatusEx , End"},
                     "[CommLib] GetDrvStatusEx %s %d",
                     [&](const char* data, const ST_NCL&) { return UnpackDrvStatusEx(data, pStatusOut); });
}

DWORD GetPrnStatus(DWORD dwHandle, PrnStatus* pStatusOut)
{
    return GetStatus(dwHandle, "GetPrnStatus", DEV_STATUS_TYPE_PRN, PRN_STATUS_SIZE, pStatusOut != nullptr,
                     {.start = "%s , GetPrnStatus , Start",
                      .trace = "\t## trace ## GetPrnStatus GetDeviceStatus() %s",
                      .end = "%s , GetPrnStatus , End"},
                     "[CommLib] GetPrnStatus %s %d",
                     [&](const char* data, const ST_NCL&) { return UnpackPrnStatus(data, pStatusOut); });
}

DWORD GetInkStatus(DWORD dwHandle, InkStatus* pStatusOut)
{
    return GetStatus(dwHandle, "GetInkStatus", DEV_STATUS_TYPE_INK, INK_STATUS_SIZE, pStatusOut != nullptr,
                     {.start = "%s , GetInkStatus , Start",
                      .trace = "\t## trace ## GetInkStatus GetDeviceStatus() %s",
                      .end = "%s , GetInkStatus , End"},
                     "[CommLib] GetInkStatus %s %d",
                     [&](const char* data, const ST_NCL&) { return UnpackInkStatus(data, pStatusOut); });
}

DWORD GetDeviceFatalError(DWORD dwHandle, DeviceFatalError* pStatusOut)
{
    return GetStatus(dwHandle, "GetDeviceFatalError", DEV_STATUS_TYPE_DEV_FATAL_ERR, DEVICE_FATAL_ERROR_SIZE,
                     pStatusOut != nullptr,
                     {.start = "%s , GetDeviceFatalError , Start",
                      .trace = "\t## trace ## GetDeviceFatalError GetDeviceStatus() %s",
                      .end = "%s , GetDeviceFatalError , End"},
                     "[CommLib] GetDeviceFatalError %s %d", [&](const char* data, const ST_NCL&) {
                         return UnpackDeviceFatalError(data, pStatusOut);
                     });
}

DWORD GetNotifyStatus(DWORD dwHandle, NotifyStatus* pStatusOut)
{
    return GetStatus(dwHandle, "GetNotifyStatus", DEV_STATUS_TYPE_NOTIFY, NOTIFY_STATUS_SIZE,
                     pStatusOut != nullptr,
                     {.start = "%s , GetNotifyStatus , Start",
                      .trace = "\t## trace ## GetNotifyStatus GetDeviceStatus() %s",
                      .end = "%s , GetNotifyStatus , End"},
                     "[CommLib] GetNotifyStatus %s %d", [&](const char* data, const ST_NCL& ncl) {
                         return UnpackNotifyStatus(data, ncl.m_dwServerMode, pStatusOut);
                     });
}

DWORD GetASBStatus(DWORD dwHandle, BYTE* pBuf, DWORD dwBufSize, DWORD* pdwGetSize)
{
    return GetBlock(dwHandle, "GetASBStatus", DEV_STATUS_TYPE_ASB, pBuf, dwBufSize, pdwGetSize,
                    {.start = "%s , GetASBStatus , Start",
                     .trace = "\t## trace ## GetASBStatus GetDeviceStatus() %s",
                     .end = "%s , GetASBStatus , End"});
}

DWORD GetPrnStStatus(DWORD dwHandle, BYTE* pBuf, DWORD dwBufSize, DWORD* pdwGetSize)
{
    return GetBlock(dwHandle, "GetPrnStStatus", DEV_STATUS_TYPE_PRN_ST, pBuf, dwBufSize, pdwGetSize,
                    {.start = "%s , GetPrnStStatus , Start",
                     .trace = "\t## trace ## GetPrnStStatus GetDeviceStatus() %s",
                     .end = "%s , GetPrnStStatus , End"});
}

DWORD GetMaintenanceInfo(DWORD dwHandle, MaintenanceInfo* pStatusOut)
{
    return GetStatus(dwHandle, "GetMaintenanceInfo", DEV_STATUS_TYPE_MAINTENANCE_INFO, MAINTENANCE_INFO_SIZE,
                     pStatusOut != nullptr,
                     {.start = "%s , GetMaintenanceInfo , Start",
                      .trace = "\t## trace ## GetMaintenanceInfo GetDeviceStatus() %s",
                      .end = "%s , GetMaintenanceInfo , End"},
                     "[CommLib] GetMaintenanceInfo %s %d", [&](const char* data, const ST_NCL&) {
                         return UnpackMaintenanceInfo(data, pStatusOut);
                     });
}

DWORD GetMaintenanceInfoEx(DWORD dwHandle, MaintenanceInfoEx* pStatusOut)
{
    return GetStatus(dwHandle, "GetMaintenanceInfoEx", DEV_STATUS_TYPE_MAINTENANCE_INFO,
                     MAINTENANCE_INFO_EX_SIZE, pStatusOut != nullptr,
                     {.start = "%s , GetMaintenanceInfoEx , Start",
                      .trace = "\t## trace ## GetMaintenanceInfoEx GetDeviceStatus() %s",
                      .end = "%s , GetMaintenanceInfoEx , End"},
                     "[CommLib] GetMaintenanceInfoEx %s %d", [&](const char* data, const ST_NCL&) {
                         return UnpackMaintenanceInfoEx(data, pStatusOut);
                     });
}
