#include "Base64.h"

#include "InternetResult.h"
#include "Win_def.h"

#include <climits>
#include <cstring>
#include <new>

namespace {

const char ALPHABET[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

} // namespace

CBase64::~CBase64()
{
    Init();
}

void CBase64::Init()
{
    delete[] m_pData;
    m_pData = nullptr;
    m_nDataSize = 0;
}

int CBase64::Encode(const char* pData, int nDataSize)
{
    assert(pData != nullptr);
    return Codec(pData, nDataSize, true);
}

int CBase64::Encode(const char* pszData)
{
    assert(pszData != nullptr);
    return Codec(pszData, static_cast<int>(strlen(pszData)), true);
}

int CBase64::Decode(const char* pData, int nDataSize)
{
    assert(pData != nullptr);
    return Codec(pData, nDataSize, false);
}

int CBase64::Decode(const char* pszData)
{
    assert(pszData != nullptr);
    return Codec(pszData, static_cast<int>(strlen(pszData)), false);
}

const char* CBase64::GetData() const
{
    return m_pData;
}

int CBase64::GetSize() const
{
    return m_nDataSize;
}

int CBase64::Codec(const char* pData, int nDataSize, bool bEncode)
{
    assert(pData != nullptr && nDataSize >= 0);
    Init();
    const int64_t size = bEncode ? ((int64_t{nDataSize} - 1) / 3 + 1) * 4 + 1 : nDataSize;
    if (size > INT_MAX) {
        return INTERNET_ERR_MEMORY;
    }
    m_pData = new (std::nothrow) char[static_cast<size_t>(size)]();
    if (m_pData == nullptr) {
        return INTERNET_ERR_MEMORY;
    }
    m_nDataSize = CodecBase(pData, nDataSize, m_pData, static_cast<int>(size), bEncode);
    return 0;
}

int CBase64::CodecBase(const char* pSrcData, int nSrcDataSize, char* pDstBuf, int nDstBufSize, bool bEncode)
{
    assert(pSrcData != nullptr && pDstBuf != nullptr && nSrcDataSize >= 0);
    assert(bEncode);
    assert(nDstBufSize > 0 && (int64_t{nSrcDataSize} + 2) / 3 * 4 < nDstBufSize);
    const auto* source = reinterpret_cast<const unsigned char*>(pSrcData);
    int length = 0;
    for (int left = nSrcDataSize; left > 0; left -= 3, source += 3) {
        const unsigned int second = left > 1 ? source[1] : 0;
        const unsigned int third = left > 2 ? source[2] : 0;
        const unsigned int bits = static_cast<unsigned int>(source[0]) << 16 | second << 8 | third;
        pDstBuf[length++] = ALPHABET[bits >> 18];
        pDstBuf[length++] = ALPHABET[bits >> 12 & 63];
        pDstBuf[length++] = left > 1 ? ALPHABET[bits >> 6 & 63] : '=';
        pDstBuf[length++] = left > 2 ? ALPHABET[bits & 63] : '=';
    }
    pDstBuf[length] = '\0';
    return length;
}
