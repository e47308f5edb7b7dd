// The digests of uploaded files. libmd provides the hash functions.
#pragma once

#include "NW_Com_LibConst.h"

#include <memory>
#include <string>
#include <vector>

#include <md5.h>
#include <sha1.h>
#include <sha2.h>

/// A digest in progress: any number of Update, then one Final or End, which finishes it.
class MessageDigestIF
{
public:
    MessageDigestIF() = default;
    MessageDigestIF(const MessageDigestIF&) = delete;
    MessageDigestIF& operator=(const MessageDigestIF&) = delete;

    /// Always returns 0.
    virtual DWORD Update(const uint8_t* input, size_t len) = 0;
    /// Always returns 0.
    virtual DWORD Final(std::vector<unsigned char>& vHash) = 0;
    /// Calls Final and returns the digest as Encode writes it.
    virtual std::string End();
    /// The server's name for the hash.
    virtual std::string GetTypeName() = 0;
    virtual ~MessageDigestIF() = default;

    /// Two lower-case hexadecimal digits per byte.
    std::string Encode(const std::vector<unsigned char>& vHash);
};

/// A digest by libmd.
template <class Context, void (*INIT)(Context*), void (*UPDATE)(Context*, const uint8_t*, size_t),
          void (*FINAL)(uint8_t*, Context*), size_t SIZE>
class LibmdDigest : public MessageDigestIF
{
public:
    LibmdDigest() : m_ctx()
    {
        INIT(&m_ctx);
    }
    DWORD Update(const uint8_t* input, size_t len) override
    {
        UPDATE(&m_ctx, input, len);
        return 0;
    }
    DWORD Final(std::vector<unsigned char>& vHash) override
    {
        vHash.resize(SIZE);
        FINAL(vHash.data(), &m_ctx);
        return 0;
    }

protected:
    Context m_ctx;
};

class MessageDigest_MD5 : public LibmdDigest<MD5_CTX, MD5Init, MD5Update, MD5Final, MD5_DIGEST_LENGTH>
{
public:
    std::string GetTypeName() override;
};

class MessageDigest_SHA1 : public LibmdDigest<SHA1_CTX, SHA1Init, SHA1Update, SHA1Final, SHA1_DIGEST_LENGTH>
{
public:
    std::string GetTypeName() override;
};

class MessageDigest_SHA256
    : public LibmdDigest<SHA2_CTX, SHA256Init, SHA256Update, SHA256Final, SHA256_DIGEST_LENGTH>
{
public:
    std::string GetTypeName() override;
};

/// The digest selected by a BCH_HASH_TYPE_ value: SHA-1, SHA-256, or MD5 for any other value.
class MessageDigest : public MessageDigestIF
{
public:
    explicit MessageDigest(DWORD nHashType);
    /// Starts a new digest of this type.
    void Init(DWORD nHashType);
    DWORD Update(const uint8_t* input, size_t len) override;
    DWORD Final(std::vector<unsigned char>& vHash) override;
    std::string End() override;
    std::string GetTypeName() override;

protected:
    std::unique_ptr<MessageDigestIF> ptr;
};
