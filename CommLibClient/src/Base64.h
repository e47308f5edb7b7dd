// Base64 for Basic authorisation: encoding only.
#pragma once

/// Holds its last result. A null argument is a programming error.
class CBase64
{
public:
    CBase64() = default;
    CBase64(const CBase64&) = delete;
    CBase64& operator=(const CBase64&) = delete;
    virtual ~CBase64();

    /// Discards the result.
    void Init();
    /// 0, or the internet result -2 if memory runs out.
    int Encode(const char* pData, int nDataSize);
    int Encode(const char* pszData);
    /// Not supported: calling it is a programming error.
    int Decode(const char* pData, int nDataSize);
    int Decode(const char* pszData);

    /// The zero-terminated result; null before the first.
    const char* GetData() const;
    /// Its length without the zero byte.
    int GetSize() const;

    int Codec(const char* pData, int nDataSize, bool bEncode);
    /// Encodes with the standard alphabet of RFC 4648, padded, on one line and zero-terminated. `nDstBufSize`
    /// includes the zero byte. Returns the encoded length.
    static int CodecBase(const char* pSrcData, int nSrcDataSize, char* pDstBuf, int nDstBufSize,
                         bool bEncode);

protected:
    char* m_pData = nullptr; ///< owned
    int m_nDataSize = 0;
};
