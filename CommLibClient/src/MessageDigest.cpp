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

std::string MessageDigest_MD5::GetTypeName()
{
    return "MD5";
}

std::string MessageDigest_SHA1::GetTypeName()
{
    return "SHA-1";
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
