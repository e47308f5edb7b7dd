#include "Http.h"

#include "InternetResult.h"
#include "LogManager.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

namespace {

constexpr DWORD HEADER_LINE_SIZE = 1024;  ///< the longest status or header line, its end included
constexpr DWORD CHUNK_LINE_SIZE = 12;     ///< the longest line around a chunk, its end included
constexpr size_t VERSION_LENGTH = 8;      ///< of "HTTP/1.1"; the code is searched for after it
constexpr DWORD FIRST_BODY_PIECE = 65536; ///< allocated for an announced size before any of it has arrived

/// Parses the whole text as a number that fits in a DWORD. Like strtoul, it accepts leading blanks and a
/// sign, and no digits at all is 0. It does not reset errno: an earlier ERANGE makes any text fail.
bool ParseNumber(const char* text, int base, DWORD* value)
{
    char* end = nullptr;
    const unsigned long number = strtoul(text, &end, base);
    if (errno == ERANGE || *end != '\0' || number > UINT32_MAX) {
        return false;
    }
    *value = static_cast<DWORD>(number);
    return true;
}

bool Holds(const char* text, const char* part)
{
    return strstr(text, part) != nullptr;
}

} // namespace

/// A body that grows as it arrives. An announced size alone costs no memory, and many small chunks take
/// linear time.
class ReplyBody
{
public:
    /// Room for `size` more bytes after those that have arrived; null if memory runs out.
    char* Room(DWORD size)
    {
        if (m_capacity - m_size < size) {
            const DWORD capacity = std::max(m_size + size, std::min(m_capacity * 2, CHttp::MAX_REPLY_SIZE));
            std::unique_ptr<char[]> grown(new (std::nothrow) char[capacity]);
            if (grown == nullptr) {
                return nullptr;
            }
            std::copy_n(m_bytes.get(), m_size, grown.get());
            m_bytes = std::move(grown);
            m_capacity = capacity;
        }
        return m_bytes.get() + m_size;
    }
    void HasArrived(DWORD size)
    {
        m_size += size;
    }
    DWORD Size() const
    {
        return m_size;
    }
    /// Moves the bytes to the response; null if there are none.
    void MoveTo(ST_HTTP_RESPONSE* response)
    {
        response->m_pContent = m_bytes.release();
        response->m_dwContentLength = m_size;
    }

private:
    std::unique_ptr<char[]> m_bytes;
    DWORD m_size = 0;
    DWORD m_capacity = 0;
};

ST_HTTP_RESPONSE::~ST_HTTP_RESPONSE()
{
    delete[] m_pContent;
}

void ST_HTTP_RESPONSE::Init()
{
    m_eStatus = CHttp::STATUS_EMPTY;
    delete[] m_pContent;
    m_pContent = nullptr;
    m_dwContentLength = 0;
    m_bConActive = TRUE;
    m_strCookie.clear();
    m_bChunked = FALSE;
    m_eMethod = CHttp::EMPTY;
}

int CHttp::RecvResponse(ST_HTTP_RESPONSE* pstHttpRes)
{
    assert(pstHttpRes != nullptr);
    CLogManager log;
    m_dwReplySize = 0;
    m_Con.LimitReads(MAX_REPLY_TIME);
    char buffer[HEADER_LINE_SIZE] = {};
    int result = RecvHeader(buffer, sizeof buffer, pstHttpRes);
    if (result < 0) {
        log.LOG_WARN("CHttp::RecvResponse RecvHeader() error");
        m_Con.Shutdown();
        return result;
    }
    result = RecvMessage(pstHttpRes);
    if (result < 0) {
        log.LOG_WARN("CHttp::RecvResponse RecvMessage() error");
        m_Con.Shutdown();
        return result;
    }
    if (!pstHttpRes->m_bConActive) {
        m_Con.Shutdown();
    }
    return 0;
}

int CHttp::RecvHeader(char* pBuf, DWORD dwBufSize, ST_HTTP_RESPONSE* pstHttpRes)
{
    assert(pBuf != nullptr);
    assert(pstHttpRes != nullptr);
    CLogManager log;
    pstHttpRes->Init();
    do {
        memset(pBuf, 0, dwBufSize);
        int result = RecvLine(pBuf, dwBufSize);
        if (result < 0) {
            log.LOG_ERR("CHttp::RecvHeader Start 1");
            return result;
        }
        if (StrCmp(pBuf, GetVersionStringPtr(VERSION_1_0)) != nullptr) {
            pstHttpRes->m_eVersion = VERSION_1_0;
        } else if (StrCmp(pBuf, GetVersionStringPtr(VERSION_1_1)) != nullptr) {
            pstHttpRes->m_eVersion = VERSION_1_1;
        } else {
            return INTERNET_ERR_MALFORMED;
        }
        const STATUS status = GetStatusCode(pBuf + VERSION_LENGTH);
        if (status == STATUS_EMPTY) {
            return INTERNET_ERR_MALFORMED;
        }
        pstHttpRes->m_eStatus = status;

        while (true) {
            memset(pBuf, 0, dwBufSize);
            result = RecvLine(pBuf, dwBufSize);
            if (result < 0) {
                log.LOG_ERR("CHttp::RecvHeader Start 2");
                return result;
            }
            if (pBuf[0] == '\0') {
                break;
            }
            result = ParseHeaderLine(pBuf, pstHttpRes);
            if (result < 0) {
                return result;
            }
        }
    } while (pstHttpRes->m_eStatus == STATUS_CONTINUE);
    return 0;
}

int CHttp::RecvLine(char* pBuf, DWORD dwBufSize)
{
    for (DWORD offset = 0; offset < dwBufSize; ++offset) {
        const int result = m_Con.ReadToCount(pBuf + offset, 1);
        if (result < 0) {
            CLogManager log;
            log.LOG_WARN("CHttp::RecvLine Count = %u", offset);
            return result;
        }
        if (pBuf[offset] == '\n') {
            pBuf[offset > 0 ? offset - 1 : 0] = '\0';
            return CountReply(offset + 1) ? 0 : INTERNET_ERR_MEMORY;
        }
    }
    return INTERNET_ERR_LINE_TOO_LONG;
}

int CHttp::ParseHeaderLine(char* pszData, ST_HTTP_RESPONSE* pstHttpRes)
{
    if (const char* length = StrCmp(pszData, "Content-Length:")) {
        if (!ParseNumber(length, 10, &pstHttpRes->m_dwContentLength)) {
            pstHttpRes->m_dwContentLength = 0;
            return INTERNET_ERR_MALFORMED;
        }
        return 0;
    }
    if (const char* coding = StrCmp(pszData, "Transfer-Encoding:")) {
        if (Holds(coding, "chunked")) {
            pstHttpRes->m_bChunked = TRUE;
        }
        return 0;
    }
    if (const char* connection = StrCmp(pszData, "Connection:")) {
        pstHttpRes->m_bConActive = Holds(connection, "keep-alive") && !Holds(connection, "close");
        return 0;
    }
    if (const char* cookie = StrCmp(pszData, "Set-Cookie:")) {
        pstHttpRes->m_strCookie = cookie;
    }
    return 0;
}

char* CHttp::StrCmp(char* pszData, const char* pszPrefix)
{
    const size_t length = strlen(pszPrefix);
    return strncmp(pszData, pszPrefix, length) == 0 ? pszData + length : nullptr;
}

int CHttp::RecvMessage(ST_HTTP_RESPONSE* pstHttpRes)
{
    if (pstHttpRes->m_bChunked) {
        return RecvChunkData(pstHttpRes);
    }
    const DWORD size = pstHttpRes->m_dwContentLength;
    if (size == 0) {
        return 0;
    }
    ReplyBody body;
    const int result = RecvBytes(body, size);
    if (result < 0) {
        return result;
    }
    body.MoveTo(pstHttpRes);
    return 0;
}

int CHttp::RecvBytes(ReplyBody& body, DWORD dwSize)
{
    if (!CountReply(dwSize)) {
        return INTERNET_ERR_MEMORY;
    }
    DWORD left = dwSize;
    while (left > 0) {
        const DWORD piece = std::min(left, std::max(body.Size(), FIRST_BODY_PIECE));
        char* const room = body.Room(piece);
        if (room == nullptr) {
            return INTERNET_ERR_MEMORY;
        }
        const int result = m_Con.ReadToCount(room, static_cast<int>(piece));
        if (result < 0) {
            return result;
        }
        body.HasArrived(piece);
        left -= piece;
    }
    return 0;
}

bool CHttp::CountReply(DWORD dwSize)
{
    if (dwSize > MAX_REPLY_SIZE - m_dwReplySize) {
        CLogManager log;
        log.LOG_ERR("[CommLib(HTTP)] Reply of more than %u bytes", MAX_REPLY_SIZE);
        m_isReplyTooLarge = true;
        return false;
    }
    m_dwReplySize += dwSize;
    return true;
}

int CHttp::RecvChunkData(ST_HTTP_RESPONSE* pstHttpRes)
{
    ReplyBody body;
    while (true) {
        char line[CHUNK_LINE_SIZE] = {};
        int result = RecvLine(line, sizeof line);
        if (result < 0) {
            return result;
        }
        DWORD size = 0;
        errno = 0;
        if (!ParseNumber(line, 16, &size)) {
            return INTERNET_ERR_MALFORMED;
        }
        if (size == 0) {
            result = RecvLine(line, sizeof line);
            if (result < 0) {
                return result;
            }
            break;
        }
        result = RecvBytes(body, size);
        if (result < 0) {
            return result;
        }
        result = RecvLine(line, sizeof line);
        if (result < 0) {
            return result;
        }
    }
    body.MoveTo(pstHttpRes);
    return 0;
}
