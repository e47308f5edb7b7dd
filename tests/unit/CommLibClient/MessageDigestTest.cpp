#include "MessageDigest.h"

#include <type_traits>

#include <gtest/gtest.h>

static_assert(std::is_base_of_v<MessageDigestIF, MessageDigest>);
static_assert(std::has_virtual_destructor_v<MessageDigestIF>);

namespace {

struct Kind
{
    DWORD type;
    const char* name;
    size_t size;
    const char* ofNothing;
    const char* ofAbc;
};

const char MD5_OF_NOTHING[] = "d41d8cd98f00b204e9800998ecf8427e";
const char MD5_OF_ABC[] = "900150983cd24fb0d6963f7d28e17f72";

const Kind kinds[] = {
    {0, "MD5", 16, MD5_OF_NOTHING, MD5_OF_ABC},
    {1, "MD5", 16, MD5_OF_NOTHING, MD5_OF_ABC},
    {2, "MD5", 16, MD5_OF_NOTHING, MD5_OF_ABC},
    {3, "MD5", 16, MD5_OF_NOTHING, MD5_OF_ABC},
    {4, "SHA-1", 20, "da39a3ee5e6b4b0d3255bfef95601890afd80709", "a9993e364706816aba3e25717850c26c9cd0d89d"},
    {5, "SHA-256", 32, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855",
     "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
    {6, "MD5", 16, MD5_OF_NOTHING, MD5_OF_ABC},
    {7, "MD5", 16, MD5_OF_NOTHING, MD5_OF_ABC},
    {8, "MD5", 16, MD5_OF_NOTHING, MD5_OF_ABC},
    {0xFFFFFFFF, "MD5", 16, MD5_OF_NOTHING, MD5_OF_ABC},
};

const uint8_t* Bytes(const char* text)
{
    return reinterpret_cast<const uint8_t*>(text);
}

} // namespace

TEST(MessageDigest, HasTheRequestedType)
{
    for (const Kind& kind : kinds) {
        MessageDigest nothing(kind.type);
        EXPECT_EQ(nothing.GetTypeName(), kind.name);
        EXPECT_EQ(nothing.End(), kind.ofNothing);

        MessageDigest digest(kind.type);
        EXPECT_EQ(digest.Update(Bytes("a"), 1), 0U);
        EXPECT_EQ(digest.Update(Bytes("bc"), 2), 0U);
        EXPECT_EQ(digest.Update(Bytes(""), 0), 0U);
        EXPECT_EQ(digest.End(), kind.ofAbc) << kind.type;
    }
}

TEST(MessageDigest, ReturnsTheBytesOfItsType)
{
    for (const Kind& kind : kinds) {
        MessageDigest digest(kind.type);
        digest.Update(Bytes("abc"), 3);
        std::vector<unsigned char> hash(100, 'x');
        EXPECT_EQ(digest.Final(hash), 0U);
        EXPECT_EQ(hash.size(), kind.size);
        EXPECT_EQ(digest.Encode(hash), kind.ofAbc);
    }
}

TEST(MessageDigest, InitStartsANewDigest)
{
    MessageDigest digest(BCH_HASH_TYPE_SHA1);
    digest.Update(Bytes("abc"), 3);
    digest.Init(BCH_HASH_TYPE_SHA256);
    EXPECT_EQ(digest.GetTypeName(), "SHA-256");
    EXPECT_EQ(digest.End(), kinds[5].ofNothing);
}

TEST(MessageDigest, DoesNotDependOnThePieces)
{
    std::string data(100000, '\0');
    for (size_t index = 0; index < data.size(); ++index) {
        data[index] = static_cast<char>(index * 31);
    }
    for (const DWORD type : {BCH_HASH_TYPE_MD5, BCH_HASH_TYPE_SHA1, BCH_HASH_TYPE_SHA256}) {
        MessageDigest whole(type);
        whole.Update(Bytes(data.data()), data.size());
        const std::string expected = whole.End();
        for (const size_t piece : {1U, 63U, 64U, 65U, 4096U}) {
            MessageDigest digest(type);
            for (size_t offset = 0; offset < data.size(); offset += piece) {
                digest.Update(Bytes(data.data()) + offset, std::min(piece, data.size() - offset));
            }
            EXPECT_EQ(digest.End(), expected) << piece;
        }
    }
}

TEST(MessageDigest, WritesTwoLowerCaseDigitsPerByte)
{
    MessageDigest_MD5 digest;
    EXPECT_EQ(digest.Encode({}), "");
    EXPECT_EQ(digest.Encode({0x00, 0x0a, 0xa0, 0x12, 0xff, 0x7f}), "000aa012ff7f");
}

TEST(MessageDigest, NumbersItsTypesAndResults)
{
    EXPECT_EQ(BCH_HASH_TYPE_AUTO, 0U);
    EXPECT_EQ(BCH_HASH_TYPE_MD2, 1U);
    EXPECT_EQ(BCH_HASH_TYPE_MD4, 2U);
    EXPECT_EQ(BCH_HASH_TYPE_MD5, 3U);
    EXPECT_EQ(BCH_HASH_TYPE_SHA1, 4U);
    EXPECT_EQ(BCH_HASH_TYPE_SHA256, 5U);
    EXPECT_EQ(BCH_HASH_TYPE_SHA384, 6U);
    EXPECT_EQ(BCH_HASH_TYPE_SHA512, 7U);
    EXPECT_EQ(BCH_SUCCESS, 0U);
    EXPECT_EQ(BCH_ERR_NOT_INITIALIZE, 1U);
    EXPECT_EQ(BCH_ERR_CLAC_HASH, 2U);
    EXPECT_EQ(BCH_ERR_MEMORY, 3U);
    EXPECT_EQ(BCH_ERR_GET_HASH, 4U);
    EXPECT_EQ(BCH_ERR_OTHER, 99U);
}
