// A small HTTP client: one request at a time over one connection, which stays open while the server allows.
#pragma once

#include "Internet.h"

#include <string>

class ReplyBody;
struct ST_HTTP_RESPONSE;

/// Implements what the servlets of a publisher server require: a request line, a few headers, a body in
/// memory, and a reply with a Content-Length or in chunks. All results are internet results
/// (InternetResult.h); an HTTP error status is not a failure. One exchange at a time.
class CHttp
{
public:
    enum METHOD
    {
        METHOD_GET = 0,
        METHOD_HEAD = 1,
        METHOD_POST = 2,
        METHOD_PUT = 3,
        METHOD_DELETE = 4,
        METHOD_OPTIONS = 5,
        METHOD_TRACE = 6,
        METHOD_CONNECT = 7,
        METHOD_PATCH = 8,
        METHOD_LINK = 9,
        METHOD_UPLINK = 10,
        METHOD_PROPFIND = 11,
        METHOD_PROPPATCH = 12,
        METHOD_MKCOL = 13,
        METHOD_COPY = 14,
        METHOD_MOVE = 15,
        METHOD_LOCK = 16,
        METHOD_UNLOCK = 17,
        EMPTY = 18
    };

    enum VERSION
    {
        VERSION_1_0 = 0,
        VERSION_1_1 = 1
    };

    enum STATUS
    {
        STATUS_EMPTY = 0,
        STATUS_CONTINUE = 1,
        STATUS_SWITCHING_PROTOCOLS = 2,
        STATUS_OK = 3,
        STATUS_CREATED = 4,
        STATUS_ACCEPTED = 5,
        STATUS_NON_AUTHORITATIVE_INFOMATION = 6,
        STATUS_NO_CONTENT = 7,
        STATUS_RESET_CONTENT = 8,
        STATUS_PARTIAL_CONTENT = 9,
        STATUS_MULTIPLE_CHOICES = 10,
        STATUS_MOVED_PERMANENTLY = 11,
        STATUS_MOVED_TEMPORARILY = 12,
        STATUS_SEE_OTHER = 13,
        STATUS_NOT_MODIFIED = 14,
        STATUS_USE_PROXY = 15,
        STATUS_BAD_REQUEST = 16,
        STATUS_UNAUTHORIZED = 17,
        STATUS_PAYMENT_REQUIRED = 18, ///< not in the table of codes, so never parsed
        STATUS_FORBIDDEN = 19,
        STATUS_NOT_FOUND = 20,
        STATUS_METHOD_NOT_ALLOWED = 21,
        STATUS_NOT_ACCEPTABLE = 22,
        STATUS_PROXY_AUTHENTICATION_REQUIRED = 23,
        STATUS_REQUEST_TIME_OUT = 24,
        STATUS_CONFLICT = 25,
        STATUS_GONE = 26,
        STATUS_LENGTH_REQUIRED = 27,
        STATUS_RRECONDITION_FAILED = 28,
        STATUS_REQUEST_ENTITY_TOO_LARGE = 29,
        STATUS_REQUEST_URI_TOO_LARGE = 30,
        STATUS_UNSUPPORTED_MEDIA_TYPE = 31,
        STATUS_INTERNAL_SERVER_ERROR = 32,
        STATUS_NOT_IMPLEMENTED = 33,
        STATUS_BAD_GATEWAY = 34,
        STATUS_SERVICE_UNAVAILABLE = 35,
        STATUS_GATEWAY_TIME_OUT = 36,
        STATUS_HTTP_VERSION_NO_SUPPORTED = 37,
        STATUS_VARIANT_ALSO_NEGOTIATES = 38,
        STATUS_INSUFFICIENT_STORAGE = 39,
        STATUS_NO_EXTENDED = 40
    };

    /// The longest reply in bytes, its head and interim replies included. The largest reply of a publisher
    /// server, a list of 1000 jobs, has about 1.2 MB.
    static constexpr DWORD MAX_REPLY_SIZE = 4U << 20;
    /// The longest time for receiving a reply in milliseconds, its head and interim replies included. It is
    /// five times the silence that a server may keep, and suffices for the largest reply at 7 KB/s.
    static constexpr DWORD MAX_REPLY_TIME = 600000;

    CHttp() = default;
    CHttp(const CHttp&) = delete;
    CHttp& operator=(const CHttp&) = delete;
    virtual ~CHttp() = default;

    /// Like CInternetCon::Open. There is no network traffic before the first request.
    int Open(const char* pszServerAddress, WORD wPort, BOOL bSSL);
    int Close();
    /// Milliseconds allowed for a connect.
    int SetTimeout(DWORD dwMilliSec);
    /// Milliseconds of silence allowed before each read. Always returns 0.
    int SetNoCommTimeout(DWORD dwMilliSec);

    /// Makes a whole exchange. A failed exchange is retried once from the start, unless it timed out or the
    /// reply exceeded MAX_REPLY_SIZE (-2). `pszHost` is the value of the Host header. Authorisation is sent
    /// only with both user and password. `pszAddHeader` may be null; it holds complete lines, each with its
    /// CR LF. Nothing is escaped. After a failure the response holds what was parsed before it.
    int SendRequest(METHOD eMethod, const char* pszPath, VERSION eVersion, const char* pszHost,
                    const char* pszUser, const char* pszPassword, const char* pszAddHeader,
                    const char* pMsgBody, DWORD dwMsgSize, ST_HTTP_RESPONSE* pstHttpRes);

    // The stages of the exchange. A stage that fails closes the connection, unless the connect failed.

    /// Connects if necessary, and sends the head.
    int SendHeader(METHOD eMethod, const char* pszPath, VERSION eVersion, const char* pszHost,
                   const char* pszUser, const char* pszPassword, const char* pszAddHeader);
    int SendMessage(const char* pData, DWORD dwSize);
    /// Receives the next final response and skips interim ones. -2 if the reply exceeds MAX_REPLY_SIZE, -6 if
    /// it exceeds MAX_REPLY_TIME or the silence allowed before each byte.
    int RecvResponse(ST_HTTP_RESPONSE* pstHttpRes);

    static const char* GetMethodStringPtr(METHOD eMethod);
    /// The status code of a status; 0 for a status without one.
    static int GetStatusCode(STATUS eStatus);

protected:
    CInternetCon m_Con;

private:
    /// Reads a line of at most `dwBufSize` bytes, including its end, and removes the end: the line feed and
    /// the byte before it, whatever that is.
    int RecvLine(char* pBuf, DWORD dwBufSize);
    int ParseHeaderLine(char* pszData, ST_HTTP_RESPONSE* pstHttpRes);
    int RecvHeader(char* pBuf, DWORD dwBufSize, ST_HTTP_RESPONSE* pstHttpRes);
    int RecvMessage(ST_HTTP_RESPONSE* pstHttpRes);
    int RecvChunkData(ST_HTTP_RESPONSE* pstHttpRes);
    /// Reads `dwSize` bytes from the connection and appends them to the body.
    int RecvBytes(ReplyBody& body, DWORD dwSize);
    /// Adds to the size of the reply. False, and logged, if the sum exceeds MAX_REPLY_SIZE.
    bool CountReply(DWORD dwSize);

    /// The text after the prefix; null if `pszData` does not start with the prefix.
    static char* StrCmp(char* pszData, const char* pszPrefix);
    static const char* GetVersionStringPtr(VERSION eVersion);
    /// The first status, in the order of the enumeration, whose code occurs anywhere in the text.
    static STATUS GetStatusCode(char* pszData);
    static int ConvertBase64Error(int nValue);
    /// True for a timeout, which it logs.
    static bool IsNetworkTimeoutError(int nValue);

    DWORD m_dwReplySize = 0;        ///< bytes of the current reply, including its announced body
    bool m_isReplyTooLarge = false; ///< in the current exchange
};

/// One response. It owns its body.
struct ST_HTTP_RESPONSE
{
    ST_HTTP_RESPONSE() = default;
    ST_HTTP_RESPONSE(const ST_HTTP_RESPONSE&) = delete;
    ST_HTTP_RESPONSE& operator=(const ST_HTTP_RESPONSE&) = delete;
    ~ST_HTTP_RESPONSE();

    /// Makes it ready for the next response.
    void Init();

    CHttp::VERSION m_eVersion = CHttp::VERSION_1_0; ///< meaningless before the first status line
    CHttp::STATUS m_eStatus = CHttp::STATUS_OK;
    char* m_pContent = nullptr; ///< the body, not zero-terminated; null if there is none
    DWORD m_dwContentLength = 0;
    BOOL m_bConActive = TRUE; ///< the connection may stay open
    std::string m_strCookie;  ///< the text after "Set-Cookie:" on the last such line
    BOOL m_bChunked = FALSE;
    CHttp::METHOD m_eMethod = CHttp::EMPTY; ///< of the request, once the exchange has succeeded
};
