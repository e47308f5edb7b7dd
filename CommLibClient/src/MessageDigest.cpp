#include "MessageDigest.h"

std::string MessageDigestIF::End()
{
    std::vector<unsigned char> hash;
    Final(hash);
    return Encode(hash);
}

std::string MessageDigestIF::Encode(const std::vector<unsigned char>& vHash)
{
    static const char digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(vHash.size() * 2);
    for (const unsigned char byte : vHash) {
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

MessageDigest_MD5::MessageDigest_MD5() : m_ctx()
{
    MD5Init(&m_ctx);
}

DWORD MessageDigest_MD5::Update(const uint8_t* input, size_t len)
{
    MD5Update(&m_ctx, input, len);
    return 0;
}

DWORD MessageDigest_MD5::Final(std::vector<unsigned char>& vHash)
{
    vHash.resize(MD5_DIGEST_LENGTH);
    MD5Final(vHash.data(), &m_ctx);
    return 0;
}

std::string MessageDigest_MD5::GetTypeName()
{
    return "MD5";
}

MessageDigest_SHA1::MessageDigest_SHA1() : m_ctx()
{
    SHA1Init(&m_ctx);
}

DWORD MessageDigest_SHA1::Update(const uint8_t* input, size_t len)
{
    SHA1Update(&m_ctx, input, len);
    return 0;
}

DWORD MessageDigest_SHA1::Final(std::vector<unsigned char>& vHash)
{
    vHash.resize(SHA1_DIGEST_LENGTH);
    SHA1Final(vHash.data(), &m_ctx);
    return 0;
}

std::string MessageDigest_SHA1::GetTypeName()
{
    return "SHA-1";
}

MessageDigest_SHA256::MessageDigest_SHA256() : m_ctx()
{
    SHA256Init(&m_ctx);
}

DWORD MessageDigest_SHA256::Update(const uint8_t* input, size_t len)
{
    SHA256Update(&m_ctx, input, len);
    return 0;
}

DWORD MessageDigest_SHA256::Final(std::vector<unsigned char>& vHash)
{
    vHash.resize(SHA256_DIGEST_LENGTH);
    SHA256Final(vHash.data(), &m_ctx);
    return 0;
}

std::string MessageDigest_SHA256::GetTypeName()
{
    return "SHA-256";
}

MessageDigest::MessageDigest(DWORD nHashType)
{
    Init(nHashType);
}

void MessageDigest::Init(DWORD nHashType)
{
    if (nHashType == BCH_HASH_TYPE_SHA1) {
        ptr = std::make_unique<MessageDigest_SHA1>();
    } else if (nHashType == BCH_HASH_TYPE_SHA256) {
        ptr = std::make_unique<MessageDigest_SHA256>();
    } else {
        ptr = std::make_unique<MessageDigest_MD5>();
    }
}

DWORD MessageDigest::Update(const uint8_t* input, size_t len)
{
    return ptr->Update(input, len);
}

DWORD MessageDigest::Final(std::vector<unsigned char>& vHash)
{
    return ptr->Final(vHash);
}

std::string MessageDigest::End()
{
    return ptr->End();
}

std::string MessageDigest::GetTypeName()
{
    return ptr->GetTypeName();
}
