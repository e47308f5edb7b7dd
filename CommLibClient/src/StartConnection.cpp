// Opens a connection, and checks the mode, kind and version of the server.
#include "LogManager.h"
#include "Operation.h"
#include "PubMgrConst.h"
#include "SystemCalls.h"

#include <array>
#include <cstdlib>
#include <new>

namespace {

constexpr WORD SERVER_PORT = 80;
constexpr DWORD CONNECT_TIMEOUT = 5000;   ///< milliseconds
constexpr DWORD SILENCE_TIMEOUT = 120000; ///< milliseconds

constexpr char INTERFACE_VERSION[] = "02000000";

void LogError(const char* line)
{
    CLogManager log;
    log.LOG_ERR("%s", line);
}

std::string WithoutFolders(const std::string& address)
{
    return address.substr(address.rfind('\\') + 1);
}

/// The kind that this computer has stored; 0 for an unknown server.
DWORD RememberedKind(const std::string& address)
{
    unsigned int kind = NCL_NPTYPE_UNKNOWN;
    return ReadNPType(&kind, address.c_str()) ? kind : NCL_NPTYPE_UNKNOWN;
}

/// Determines the kind by whether the server writes discs with three or more layers. An older server
/// rejects this query with NCL_ERR_SERVER_OTHER.
DWORD LearnKind(DWORD dwHandle, ST_NCL& ncl)
{
    if (ncl.m_dwNPType == NCL_NPTYPE_300N) {
        return NCL_SUCCESS;
    }
    DWORD support = NCL_SUPPORT_BDXL_NO;
    const DWORD result = GetDeviceInfoInt(dwHandle, NCL_DIT_SUPPORT_BDXL, &support);
    if (result == NCL_ERR_SERVER_OTHER) {
        if (ncl.m_dwNPType == NCL_NPTYPE_300NII_BDXL) {
            ncl.m_dwNPType = NCL_NPTYPE_300NII;
        }
        return NCL_SUCCESS;
    }
    if (result != NCL_SUCCESS) {
        return LogTrace("\t## trace ## StartConnection GetDeviceInfoInt() %s", result);
    }
    ncl.m_dwNPType = support == NCL_SUPPORT_BDXL_YES ? NCL_NPTYPE_300NII_BDXL : NCL_NPTYPE_300NII;
    return NCL_SUCCESS;
}

/// An old server is supported only if the user has allowed the compatibility mode.
DWORD CheckServerVersion(DWORD dwHandle, ST_NCL& ncl)
{
    std::array<char, 256> version = {}; // stays empty if the query fails: the server then counts as new
    GetDeviceInfo(dwHandle, NCL_DIT_VERSION_OF_SERVER_APP, version.data(), DWORD{version.size()});
    if (!IsOldServer(ServerVersionNumber(version.data()))) {
        return NCL_SUCCESS;
    }
    DWORD allowed = 0;
    if (!GetRegistryIntValue(HKEY_LOCAL_MACHINE, REG_PUB_KEY_ROOT, REG_PUB_OPTION_COMPATIMODE, allowed) ||
        allowed != 1) {
        LogError("\t## trace ## StartConnection CompatiMode not allowed");
        return NCL_ERR_APP_VERSION;
    }
    ncl.m_dwCompatiMode = 1;
    LogError("\t## trace ## StartConnection CompatiMode ");
    return NCL_SUCCESS;
}

/// All queries of the server, in this order.
DWORD MeetServer(DWORD dwHandle, ST_NCL& ncl, DWORD oldKind)
{
    DWORD result = GetServerMode(dwHandle, &ncl.m_dwServerMode);
    if (result != NCL_SUCCESS) {
        return LogTrace("\t## trace ## StartConnection GetServerMode() %s", result);
    }
    result = LearnKind(dwHandle, ncl);
    if (result != NCL_SUCCESS) {
        return result;
    }
    if (ncl.m_dwNPType != oldKind) {
        WriteNPType(ncl.m_dwNPType, ncl.m_strServerAddress.c_str());
    }
    result = CheckIFVersion(&ncl, INTERFACE_VERSION);
    if (result != NCL_SUCCESS) {
        return LogTrace("\t## trace ## StartConnection CheckIFVersion() %s", result);
    }
    return CheckServerVersion(dwHandle, ncl);
}

/// Creates the HTTP client, without network traffic.
DWORD OpenHttp(ST_NCL& ncl)
{
    std::unique_ptr<CHttp> http(new (std::nothrow) CHttp);
    if (http == nullptr) {
        LogError("[CommLib] StartConnection Get Memory error 2");
        return NCL_ERR_GET_MEMORY;
    }
    const DWORD result = ConvertInternetError(http->Open(ncl.m_strServerAddress.c_str(), SERVER_PORT, FALSE));
    if (result != NCL_SUCCESS) {
        return LogTrace("[CommLib] StartConnection pHttp->Open() %s", result);
    }
    http->SetTimeout(CONNECT_TIMEOUT);
    http->SetNoCommTimeout(SILENCE_TIMEOUT);
    ncl.m_pHttp = http.release();
    return NCL_SUCCESS;
}

/// All steps that can fail between the entry in the table and the check of the server's mode.
DWORD Open(DWORD dwHandle, ST_NCL& ncl)
try {
    const DWORD oldKind = RememberedKind(ncl.m_strServerAddress);
    ncl.m_dwNPType = oldKind;
    const DWORD result = OpenHttp(ncl);
    return result == NCL_SUCCESS ? MeetServer(dwHandle, ncl, oldKind) : result;
} catch (const std::bad_alloc&) {
    return OutOfMemory("StartConnection");
}

} // namespace

DWORD StartConnection(DWORD /*dwAppVersion*/, const char* pszServerAddress, DWORD* pdwHandleOut)
try {
    if (pszServerAddress == nullptr || pdwHandleOut == nullptr) {
        return ReturnErrParam();
    }
    *pdwHandleOut = 0;
    std::unique_ptr<ST_NCL> object(new (std::nothrow) ST_NCL);
    if (object == nullptr) {
        LogError("[CommLib] StartConnection Get Memory error 1");
        return NCL_ERR_GET_MEMORY;
    }
    object->m_strServerAddress =
        WithoutFolders(pszServerAddress); // before another thread can find the object
    DWORD handle = SetNCLObj(object.get());
    while (handle == 0 && DestroyOldestUnclaimedNCL()) {
        handle = SetNCLObj(object.get());
    }
    if (handle == 0) {
        LogError("[CommLib] StartConnection Get Memory error 4");
        return NCL_ERR_GET_MEMORY;
    }
    ST_NCL* const ncl = object.release(); // the table owns it
    const DWORD result = Open(handle, *ncl);
    if (result != NCL_SUCCESS) {
        StopOperations(*ncl);
        DestroyNCL(handle, ncl);
        return result;
    }
    if (CheckSecureMode(ncl->m_dwServerMode) != FALSE) {
        LeaveUnclaimed(*ncl);
        return NCL_ERR_SSL_INITIALIZATION;
    }
    ncl->m_bFinishStartConnection = TRUE;
    *pdwHandleOut = handle;
    return NCL_SUCCESS;
} catch (const std::bad_alloc&) {
    return OutOfMemory("StartConnection");
}

DWORD ServerVersionNumber(const char* pszVersion)
{
    const std::string text = pszVersion;
    const size_t point = text.find('.');
    const ErrnoKeeper keeper; // an ERANGE of this text would make the next Content-Length fail
    const auto number = [](const std::string& part) { return static_cast<WORD>(std::atoi(part.c_str())); };
    const DWORD high = number(text.substr(0, point));
    const DWORD low = point == std::string::npos ? WORD{0} : number(text.substr(point + 1));
    return high << 16 | low;
}

bool IsOldServer(DWORD dwVersion)
{
    return (dwVersion >= 0x20000 && dwVersion <= 0x2001D) || (dwVersion >= 0x30000 && dwVersion <= 0x3001D);
}
