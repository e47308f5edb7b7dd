#include "LogManager.h"
#include "NW_Com_Lib_internal.h"

#include <iterator>

const char* const NCL_ERROR_STRING[15] = {
    "Success",
    "Parameter",
    "Get Memory",
    "Socket Initialization",
    "Socket Connection",
    "SSL Initialization",
    "SSL Connection",
    "Commutication",
    "Network Timeout",
    "Conection Close",
    "Buffer Size",
    "Process Creation",
    "Cancel Sending",
    "Invalid Comm Spec",
    "Hash calculation error",
};

const char* const NCL_SERVER_ERROR_STRING[13] = {
    "Server Other",     "Version Discrepancy", "Device Offline",      "Authentication",
    "Password Expired", "Registration Busy",   "Hard Disc Capacity",  "Server Job ID",
    "Invalid Job File", "Permission Denied",   "User Not Registered", "Server Busy (Backup or Restore)",
    "Spool Job Limit",
};

// The numbers of the servlets and the codes differ from 9 on.
const DWORD SERVLET_ERR[14] = {
    NCL_SUCCESS,
    NCL_ERR_APP_VERSION,
    NCL_ERR_DEVICE_OFFLINE,
    NCL_ERR_AUTHENTICATION,
    NCL_ERR_PASSWORD_EXPIRED,
    NCL_ERR_REGISTRATION_BUSY,
    NCL_ERR_HARD_DISC_CAPACITY,
    NCL_ERR_SERVER_JOB_ID,
    NCL_ERR_JOB_FILE_INVALID,
    NCL_ERR_SERVER_OTHER,
    NCL_ERR_PERMISSION_DENIED,
    NCL_ERR_USER_NOT_REGISTERED,
    NCL_ERR_SERVER_BUSY,
    NCL_ERR_SPOOL_JOB_LIMIT,
};

const char* const SERVLET_ERR_STRING[14] = {
    "",
    "Version Discrepancy",
    "Device Offline",
    "Authentication",
    "Password Expired",
    "Registration Busy",
    "Hard Disk Capacity",
    "ServerJobID",
    "Invalid Job File",
    "Server Other",
    "Permission Denied",
    "User Not Registered",
    "Server Busy (Backup or Restore)",
    "Spool Job Limit",
};

namespace {

/// By the absolute value of an internet result. The numbers that no result of this client has belong to a
/// secure transport.
const DWORD internetErrors[] = {
    NCL_SUCCESS,
    NCL_ERR_UNNAMED,             // 1
    NCL_ERR_GET_MEMORY,          // 2
    NCL_ERR_UNNAMED,             // 3
    NCL_ERR_UNNAMED,             // 4
    NCL_ERR_COMMUNICATION,       // 5
    NCL_ERR_NETWORK_TIMEOUT,     // 6
    NCL_ERR_NETWORK_TIMEOUT,     // 7
    NCL_ERR_NETWORK_TIMEOUT,     // 8
    NCL_ERR_COMMUNICATION,       // 9
    NCL_ERR_COMMUNICATION,       // 10
    NCL_ERR_CONNECTION_CLOSE,    // 11
    NCL_ERR_SOCK_INITIALIZATION, // 12
    NCL_ERR_SOCK_INITIALIZATION, // 13
    NCL_ERR_SOCK_CONNECTION,     // 14
    NCL_ERR_UNNAMED,             // 15
    NCL_ERR_SSL_INITIALIZATION,  // 16
    NCL_ERR_SSL_INITIALIZATION,  // 17
    NCL_ERR_SSL_CONNECTION,      // 18
    NCL_ERR_UNNAMED,             // 19
    NCL_ERR_UNNAMED,             // 20
    NCL_ERR_SSL_INITIALIZATION,  // 21
    NCL_ERR_SSL_INITIALIZATION,  // 22
    NCL_ERR_SSL_INITIALIZATION,  // 23
    NCL_ERR_SSL_INITIALIZATION,  // 24
    NCL_ERR_INVALID_COMM_SPEC,   // 25
    NCL_ERR_UNNAMED,             // 26
};

} // namespace

const char* GetNCLErrorString(DWORD dwNCLRet)
{
    if (dwNCLRet < NCL_ERR_SERVER_OTHER) {
        return NCL_ERROR_STRING[dwNCLRet < std::size(NCL_ERROR_STRING) ? dwNCLRet : 0];
    }
    const DWORD index = dwNCLRet - NCL_ERR_SERVER_OTHER;
    return NCL_SERVER_ERROR_STRING[index < std::size(NCL_SERVER_ERROR_STRING) ? index : 0];
}

DWORD ConvertInternetError(int nValue)
{
    const unsigned int index = nValue < 0 ? 0U - static_cast<unsigned int>(nValue) : nValue;
    return index < std::size(internetErrors) ? internetErrors[index] : NCL_ERR_UNNAMED;
}

DWORD ConvertServerStatus(DWORD dwValue)
{
    if (dwValue >= std::size(SERVLET_ERR)) {
        return NCL_ERR_SERVER_OTHER;
    }
    if (dwValue != 0) {
        CLogManager log;
        log.LOG_ERR("[Servlet] %s", SERVLET_ERR_STRING[dwValue]);
    }
    return SERVLET_ERR[dwValue];
}

DWORD CheckHttpResponseStatus(ST_HTTP_RESPONSE* pstHttpRes, const char* pszPath)
{
    DWORD result = NCL_ERR_SERVER_OTHER;
    switch (pstHttpRes->m_eStatus) {
    case CHttp::STATUS_OK:
    case CHttp::STATUS_CREATED:
    case CHttp::STATUS_NO_CONTENT:
        return NCL_SUCCESS;
    case CHttp::STATUS_UNAUTHORIZED:
        result = NCL_ERR_SERVER_JOB_ID;
        break;
    case CHttp::STATUS_INSUFFICIENT_STORAGE:
        result = NCL_ERR_HARD_DISC_CAPACITY;
        break;
    default:
        break;
    }
    CLogManager log;
    log.LOG_ERR("[Apache/Tomcat] HTTP %d error (%s, %s)", CHttp::GetStatusCode(pstHttpRes->m_eStatus),
                CHttp::GetMethodStringPtr(pstHttpRes->m_eMethod), pszPath);
    return result;
}
