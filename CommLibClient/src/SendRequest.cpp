// Sends all requests of the library, and checks the interface version before all jobs.
#include "LogManager.h"
#include "Operation.h"

namespace {

constexpr char FORM_HEADER[] = "Content-Type:application/x-www-form-urlencoded\r\n";

/// Whether a code of the HTTP client means the loss of an open connection.
bool IsConnectionLost(DWORD code)
{
    return code == NCL_ERR_COMMUNICATION || code == NCL_ERR_NETWORK_TIMEOUT ||
           code == NCL_ERR_SOCK_CONNECTION || code == NCL_ERR_SSL_CONNECTION;
}

} // namespace

DWORD SendRequest(ST_NCL* pNCL, CHttp::METHOD eMethod, const char* pszPath, CHttp::VERSION eVersion,
                  const char* pszHost, const char* pszUser, const char* pszPassword, const char* pszAddHeader,
                  const char* pMsgBody, DWORD dwMsgSize, ST_HTTP_RESPONSE* pstHttpRes, CommType eCommType,
                  DWORD dwOption)
{
    std::string header = pszAddHeader == nullptr ? "" : pszAddHeader;
    if ((dwOption & SEND_OPTION_FORM) != 0) {
        header += FORM_HEADER;
    }
    if ((dwOption & SEND_OPTION_COOKIE) != 0 && !pNCL->m_strJSessionID.empty()) {
        header += "Cookie:" + pNCL->m_strJSessionID + "\r\n";
    }

    if (eCommType == COMM_TYPE_SELECT && CheckSecureMode(pNCL->m_dwServerMode) != FALSE) {
        return NCL_ERR_SSL_INITIALIZATION;
    }
    CHttp* const http = eCommType == COMM_TYPE_HTTPS ? pNCL->m_pHttpSecure : pNCL->m_pHttp;
    if (http == nullptr) {
        return ReturnErrParam(); // no caller requests a connection that does not exist
    }

    pstHttpRes->Init();
    const DWORD result =
        ConvertInternetError(http->SendRequest(eMethod, pszPath, eVersion, pszHost, pszUser, pszPassword,
                                               header.c_str(), pMsgBody, dwMsgSize, pstHttpRes));
    if (result == NCL_SUCCESS) {
        return CheckHttpResponseStatus(pstHttpRes, pszPath);
    }
    CLogManager log;
    log.LOG_ERR("%s , [CommLib] SendRequest pHttp->SendRequest() %s (%s)", GetNCLHostName(pNCL),
                GetNCLErrorString(result), pszPath);
    if (pNCL->m_bFinishStartConnection != FALSE && IsConnectionLost(result)) {
        log.LOG_ERR("%s , [CommLib] SendRequest Connection Close", GetNCLHostName(pNCL));
        return NCL_ERR_CONNECTION_CLOSE;
    }
    return result;
}

DWORD SendRequest(ST_NCL* pNCL, const NCLRequest& request, ST_HTTP_RESPONSE* pstHttpRes)
{
    return SendRequest(pNCL, request.method, request.path.c_str(), CHttp::VERSION_1_1, HOST_OF_REQUESTS,
                       nullptr, nullptr, nullptr, request.body, request.bodySize, pstHttpRes, request.type,
                       request.option);
}

DWORD CheckIFVersion(ST_NCL* pNCL, const char* pszAppVersion)
{
    const std::string body = std::string("ifversion=") + pszAppVersion;
    NCLRequest request;
    request.path = "/webapp2/IFVersionChecker";
    request.method = CHttp::METHOD_POST;
    request.body = body.data();
    request.bodySize = static_cast<DWORD>(body.size());
    request.option = SEND_OPTION_FORM;
    ST_HTTP_RESPONSE response;
    const DWORD result = SendRequest(pNCL, request, &response);
    if (result != NCL_SUCCESS) {
        return result;
    }
    std::list<ST_COMM_REPLY> items;
    return ParseCommReply(response.m_pContent, response.m_dwContentLength, items, 1);
}

BOOL CheckSecureMode(DWORD dwMode)
{
    return dwMode == NCL_MODE_SECURITY || dwMode == NCL_MODE_OUTPUT_CONTROL ? TRUE : FALSE;
}
