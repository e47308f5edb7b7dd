#include "Http.h"

#include "Base64.h"
#include "InternetResult.h"
#include "LogFormat.h"

#include <algorithm>
#include <climits>
#include <new>

namespace {

constexpr DWORD LARGEST_SMALL_BODY = 8192; ///< bytes; the head is held back until such a body follows

/// The log lines of a failed stage of an exchange.
struct StageLines
{
    LogFormat<const char*, const char*, const char*> timeout; ///< method, path, added header
    const char* retry;
};

constexpr StageLines SEND_HEADER = {
    .timeout = "CHttp::SendRequest SendHeader() Method = %s Path = %s, Add Header = %s",
    .retry = "CHttp::SendRequest SendHeader() retry"};
constexpr StageLines SEND_MESSAGE = {
    .timeout = "CHttp::SendRequest SendMessage() Method = %s Path = %s, Add Header = %s",
    .retry = "CHttp::SendRequest SendMessage() retry"};
constexpr StageLines RECV_RESPONSE = {
    .timeout = "CHttp::SendRequest RecvResponse() Method = %s Path = %s, Add Header = %s",
    .retry = "CHttp::SendRequest RecvResponse() retry"};

const char* OrNull(const char* text)
{
    return text != nullptr ? text : "null";
}

} // namespace

int CHttp::Open(const char* pszServerAddress, WORD wPort, BOOL bSSL)
{
    return m_Con.Open(pszServerAddress, wPort, bSSL);
}

int CHttp::Close()
{
    return m_Con.Close();
}

int CHttp::SetTimeout(DWORD dwMilliSec)
{
    return m_Con.SetTimeout(dwMilliSec);
}

int CHttp::SetNoCommTimeout(DWORD dwMilliSec)
{
    m_Con.SetNoCommTimeout(dwMilliSec);
    return 0;
}

int CHttp::SendRequest(METHOD eMethod, const char* pszPath, VERSION eVersion, const char* pszHost,
                       const char* pszUser, const char* pszPassword, const char* pszAddHeader,
                       const char* pMsgBody, DWORD dwMsgSize, ST_HTTP_RESPONSE* pstHttpRes)
try {
    assert(pszPath != nullptr);
    assert(pszHost != nullptr);
    assert(pstHttpRes != nullptr);
    if (pszPath == nullptr || pszHost == nullptr || pstHttpRes == nullptr) {
        return INTERNET_ERR_ARGUMENT;
    }
    std::string header = pszAddHeader != nullptr ? pszAddHeader : "";
    if (pMsgBody != nullptr && dwMsgSize != 0) {
        header += "Content-Length: " + std::to_string(dwMsgSize) + "\r\n";
    }

    m_isReplyTooLarge = false;
    for (int nRetryNum = 0;; ++nRetryNum) {
        const StageLines* stage = &SEND_HEADER;
        m_Con.SetMoreFollows(pMsgBody != nullptr && dwMsgSize != 0 && dwMsgSize <= LARGEST_SMALL_BODY);
        int result = SendHeader(eMethod, pszPath, eVersion, pszHost, pszUser, pszPassword, header.c_str());
        m_Con.SetMoreFollows(false);
        if (result >= 0 && pMsgBody != nullptr) {
            stage = &SEND_MESSAGE;
            result = SendMessage(pMsgBody, dwMsgSize);
        }
        if (result >= 0) {
            stage = &RECV_RESPONSE;
            result = RecvResponse(pstHttpRes);
        }
        if (result >= 0) {
            pstHttpRes->m_eMethod = eMethod;
            return 0;
        }

        if (IsNetworkTimeoutError(result)) {
            stage->timeout.Warn(GetMethodStringPtr(eMethod), OrNull(pszPath), OrNull(pszAddHeader));
            return result;
        }
        if (nRetryNum > 0 || m_isReplyTooLarge) {
            return result;
        }
        CLogManager().LOG_WARN("%s", stage->retry);
    }
} catch (const std::bad_alloc&) {
    m_Con.Shutdown(); // the next request must not read the rest of this exchange
    return INTERNET_ERR_MEMORY;
}

int CHttp::SendHeader(METHOD eMethod, const char* pszPath, VERSION eVersion, const char* pszHost,
                      const char* pszUser, const char* pszPassword, const char* pszAddHeader)
{
    assert(pszPath != nullptr);
    assert(pszHost != nullptr);
    std::string head = GetMethodStringPtr(eMethod);
    head.append(" ").append(pszPath).append(" ").append(GetVersionStringPtr(eVersion)).append("\r\n");
    head.append("Host:").append(pszHost).append("\r\n");
    if (pszUser != nullptr && pszPassword != nullptr) {
        const std::string credentials = std::string(pszUser) + ":" + pszPassword;
        CBase64 base64;
        const int result = base64.Encode(credentials.c_str());
        if (result < 0) {
            return ConvertBase64Error(result);
        }
        head.append("Authorization:Basic ").append(base64.GetData()).append("\r\n");
    }
    if (pszAddHeader != nullptr) {
        head.append(pszAddHeader);
    }
    head.append("\r\n");

    int result = m_Con.Connect();
    if (result < 0) {
        return result;
    }
    result = m_Con.WriteToCount(head.data(), static_cast<int>(head.size()));
    if (result < 0) {
        m_Con.Shutdown();
        return result;
    }
    return 0;
}

int CHttp::SendMessage(const char* pData, DWORD dwSize)
{
    DWORD sent = 0;
    do { // the transport takes an int
        const int piece = static_cast<int>(std::min<DWORD>(dwSize - sent, INT_MAX));
        const int result = m_Con.WriteToCount(pData + sent, piece);
        if (result < 0) {
            m_Con.Shutdown();
            return result;
        }
        sent += static_cast<DWORD>(piece);
    } while (sent < dwSize);
    return 0;
}

bool CHttp::IsNetworkTimeoutError(int nValue)
{
    CLogManager log;
    switch (nValue) {
    case INTERNET_ERR_NO_COMM:
        log.LOG_ERR("[CommLib(HTTP)] Network Timeout (No Comm)");
        return true;
    case INTERNET_ERR_RECV_TIMEOUT:
        log.LOG_ERR("[CommLib(HTTP)] Network Timeout (recv)");
        return true;
    case INTERNET_ERR_SEND_TIMEOUT:
        log.LOG_ERR("[CommLib(HTTP)] Network Timeout (send)");
        return true;
    default:
        return false;
    }
}
