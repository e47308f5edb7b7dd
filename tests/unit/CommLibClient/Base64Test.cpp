#include "Base64.h"

#include "FailingMemory.h"
#include "HeapGrowth.h"

#include <climits>
#include <string>

#include <gtest/gtest.h>

namespace {

struct Example
{
    std::string plain;
    const char* encoded;
};

} // namespace

TEST(Base64, FollowsTheStandard)
{
    const Example examples[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
        {"0000002a:secret", "MDAwMDAwMmE6c2VjcmV0"},
        {std::string("\0\0\0", 3), "AAAA"},
        {"\xff\xff\xff", "////"},
        {"\xfb\xef\xbe", "++++"},
        {"\x80", "gA=="},
    };
    for (const Example& example : examples) {
        CBase64 base64;
        EXPECT_EQ(base64.Encode(example.plain.data(), static_cast<int>(example.plain.size())), 0);
        EXPECT_STREQ(base64.GetData(), example.encoded);
        EXPECT_EQ(base64.GetSize(), static_cast<int>(std::string(example.encoded).size()));
    }
}

TEST(Base64, EncodesNoByteBehindTheData)
{
    for (const std::string& behind : {std::string("\xff\xff\xff"), std::string("\0\0\0", 3)}) {
        CBase64 base64;
        ASSERT_EQ(base64.Encode(("f" + behind).c_str(), 1), 0);
        EXPECT_STREQ(base64.GetData(), "Zg==");
        ASSERT_EQ(base64.Encode(("fo" + behind).c_str(), 2), 0);
        EXPECT_STREQ(base64.GetData(), "Zm8=");
    }
}

TEST(Base64, EncodesWithTheWholeAlphabet)
{
    const unsigned char bytes[] = {0x00, 0x10, 0x83, 0x10, 0x51, 0x87, 0x20, 0x92, 0x8b, 0x30, 0xd3, 0x8f,
                                   0x41, 0x14, 0x93, 0x51, 0x55, 0x97, 0x61, 0x96, 0x9b, 0x71, 0xd7, 0x9f,
                                   0x82, 0x18, 0xa3, 0x92, 0x59, 0xa7, 0xa2, 0x9a, 0xab, 0xb2, 0xdb, 0xaf,
                                   0xc3, 0x1c, 0xb3, 0xd3, 0x5d, 0xb7, 0xe3, 0x9e, 0xbb, 0xf3, 0xdf, 0xbf};
    CBase64 base64;
    ASSERT_EQ(base64.Encode(reinterpret_cast<const char*>(bytes), sizeof bytes), 0);
    EXPECT_STREQ(base64.GetData(), "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/");
}

TEST(Base64, WritesNoLineBreaks)
{
    CBase64 base64;
    ASSERT_EQ(base64.Encode(std::string(3000, 'a').c_str()), 0);
    EXPECT_EQ(base64.GetSize(), 4000);
    EXPECT_EQ(std::string(base64.GetData()).find_first_of("\r\n"), std::string::npos);
}

TEST(Base64, EncodesATextUpToItsZeroByte)
{
    CBase64 base64;
    ASSERT_EQ(base64.Encode("foo\0bar"), 0);
    EXPECT_STREQ(base64.GetData(), "Zm9v");
}

TEST(Base64, KeepsOnlyTheLastResult)
{
    CBase64 base64;
    EXPECT_EQ(base64.GetData(), nullptr);
    EXPECT_EQ(base64.GetSize(), 0);
    ASSERT_EQ(base64.Encode("foobar"), 0);
    ASSERT_EQ(base64.Encode("f"), 0);
    EXPECT_STREQ(base64.GetData(), "Zg==");
    base64.Init();
    EXPECT_EQ(base64.GetData(), nullptr);
    EXPECT_EQ(base64.GetSize(), 0);
}

TEST(Base64, FreesItsResults)
{
    const size_t growth = HeapGrowth([] {
        CBase64 base64;
        EXPECT_EQ(base64.Encode("foobar"), 0);
        EXPECT_EQ(base64.Encode("foobar"), 0);
    });
    EXPECT_LT(growth, 1000U);
}

TEST(Base64, ReportsOutOfMemory)
{
    CBase64 base64;
    ASSERT_EQ(base64.Encode("foobar"), 0);
    const FailingMemory memory(1);
    EXPECT_EQ(base64.Encode("foobar"), -2);
    EXPECT_EQ(memory.Largest(), 9U); // with the zero byte
    EXPECT_EQ(base64.Decode("Zg=="), -2);
    EXPECT_EQ(base64.Decode("Zg==", 4), -2);
    EXPECT_EQ(base64.GetSize(), 0);
    EXPECT_EQ(base64.GetData(), nullptr);
}

TEST(Base64, DoesNotOverflowForAnyLength)
{
    CBase64 base64;
    EXPECT_EQ(base64.Encode("", INT_MAX), -2);
}

TEST(Base64, WritesIntoABufferOfExactlyItsLength)
{
    char buffer[6] = {'x', 'x', 'x', 'x', 'x', 'x'};
    EXPECT_EQ(CBase64::CodecBase("fo", 2, buffer, 5, true), 4);
    EXPECT_EQ(std::string(buffer, 6), std::string("Zm8=\0x", 6));
}

TEST(Base64DeathTest, InvalidCallsStopTheProcess)
{
    CBase64 base64;
    EXPECT_DEATH(base64.Encode(nullptr), "pszData != nullptr");
    EXPECT_DEATH(base64.Encode(nullptr, 1), "pData != nullptr");
    EXPECT_DEATH(base64.Decode("Zg=="), "bEncode");
    EXPECT_DEATH(base64.Decode("Zg==", 4), "bEncode");
    EXPECT_DEATH(base64.Decode(nullptr), "pszData != nullptr");
    EXPECT_DEATH(base64.Decode(nullptr, 1), "pData != nullptr");
    char buffer[4];
    EXPECT_DEATH(CBase64::CodecBase("f", 1, buffer, 4, true), "nDstBufSize");
}
