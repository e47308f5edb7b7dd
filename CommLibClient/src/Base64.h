// Base64 as Basic authorisation needs it: one way.
#pragma once

/// Holds its last result. A null argument is a programming error.
class CBase64
{
public:
    CBase64() = default;
    CBase64(const CBase64&) = delete;
    CBase64& operator=(const CBase64&) = delete;
    virtual ~CBase64();

    /// Drops the result.
    void Init();
    /// 0, or the internet result -2 when memory ran out.
    int Encode(const char* pData, int nDataSize);
    int Encode(const char* pszData);
    /// Nobody decodes here: a programming error.
    int Decode(const char* pData, int nDataSize);
    int Decode(const char* pszData);

    /// The result, ended by a zero byte; null before the first.
    const char* GetData() const;
    /// Its length without the zero byte.
    int GetSize() const;

    int Codec(const char* pData, int nDataSize, bool bEncode);
    /// The standard alphabet of RFC 4648, padded, in one line, ended by a zero byte: `nDstBufSize` counts
    /// that too. Returns the encoded length.
    static int CodecBase(const char* pSrcData, int nSrcDataSize, char* pDstBuf, int nDstBufSize,
                         bool bEncode);

protected:
    char* m_pData = nullptr; ///< owned
    int m_nDataSize = 0;
};
