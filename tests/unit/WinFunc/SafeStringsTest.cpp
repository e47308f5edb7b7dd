#include "Win_def.h"

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

// Makes an allocation that is too large return NULL under the sanitizers too.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "allocator_may_return_null=1";
}
extern "C" const char* __tsan_default_options();
extern "C" const char* __tsan_default_options()
{
    return "allocator_may_return_null=1";
}

namespace {

/// A destination of 16 bytes that holds a text and its NUL, followed by '#' bytes.
class Destination
{
public:
    explicit Destination(const std::string& text = "old") : m_bytes(16, '#')
    {
        std::copy_n(text.c_str(), text.size() + 1, m_bytes.begin());
    }
    char* data()
    {
        return m_bytes.data();
    }
    const std::string& bytes() const
    {
        return m_bytes;
    }

private:
    std::string m_bytes;
};

/// `text` padded with '#' to the 16 bytes of a destination.
std::string Bytes(std::string text)
{
    text.resize(16, '#');
    return text;
}

using namespace std::string_literals;

} // namespace

TEST(SafeStrings, StrcpyTable)
{
    struct Row
    {
        size_t size;
        const char* source;
        int result;
        std::string bytes;
    };
    const Row rows[] = {
        {16, "new text", 0, Bytes("new text\0"s)},
        {4, "abc", 0, Bytes("abc\0"s)},
        {4, "abcd", 34, Bytes("\0ld\0"s)}, // exactly as long as the destination
        {4, "abcde", 34, Bytes("\0ld\0"s)},
        {1, "", 0, Bytes("\0ld\0"s)},
        {1, "a", 34, Bytes("\0ld\0"s)},
        {0, "", 34, Bytes("\0ld\0"s)},
        {16, nullptr, 22, Bytes("\0ld\0"s)},
    };
    for (const Row& row : rows) {
        Destination destination;
        EXPECT_EQ(strcpy_s(destination.data(), row.size, row.source), row.result);
        EXPECT_EQ(destination.bytes(), row.bytes) << row.size << " " << (row.source ? row.source : "NULL");
    }
    EXPECT_EQ(strcpy_s(nullptr, 16, "a"), 22);
    EXPECT_EQ(strcpy_s(nullptr, 16, nullptr), 22);
}

TEST(SafeStrings, StrncpyTable)
{
    struct Row
    {
        size_t size;
        const char* source;
        size_t count;
        int result;
        std::string bytes;
    };
    const Row rows[] = {
        {16, "abc", 6, 0, Bytes("abc\0\0\0"s)},    // padded with NULs to the count
        {16, "abcdef", 6, 0, Bytes("abcdef"s)},    // not terminated
        {16, "abcdefghi", 6, 0, Bytes("abcdef"s)}, // cut and not terminated
        {16, "abc", 0, 0, Bytes("old\0"s)},        // nothing requested, nothing written
        {6, "abcdef", 6, 34, Bytes("\0ld\0"s)},    // the count alone would fill the destination
        {6, "abcdefghi", 9, 34, Bytes("\0ld\0"s)}, // the size limits the scan
        {7, "abcdefghi", 6, 0, Bytes("abcdef"s)},  // one byte of room left
        {4, "abc", 8, 0, Bytes("abc\0\0\0\0\0"s)}, // padded to the count, not the size
        {0, "abc", 0, 34, Bytes("\0ld\0"s)},       {16, nullptr, 6, 22, Bytes("\0ld\0"s)},
    };
    for (const Row& row : rows) {
        Destination destination;
        EXPECT_EQ(strncpy_s(destination.data(), row.size, row.source, row.count), row.result);
        EXPECT_EQ(destination.bytes(), row.bytes)
            << row.size << " " << (row.source ? row.source : "NULL") << " " << row.count;
    }
    EXPECT_EQ(strncpy_s(nullptr, 16, "a", 1), 22);
}

TEST(SafeStrings, StrcatTable)
{
    struct Row
    {
        size_t size;
        const char* source;
        int result;
        std::string bytes;
    };
    const Row rows[] = {
        {16, "er", 0, Bytes("older\0"s)}, {6, "er", 0, Bytes("older\0"s)},
        {5, "er", 34, Bytes("\0ld\0"s)},  {4, "", 0, Bytes("old\0"s)},
        {3, "", 34, Bytes("\0ld\0"s)}, // no NUL within the size
        {0, "", 34, Bytes("\0ld\0"s)},    {16, nullptr, 22, Bytes("\0ld\0"s)},
    };
    for (const Row& row : rows) {
        Destination destination;
        EXPECT_EQ(strcat_s(destination.data(), row.size, row.source), row.result);
        EXPECT_EQ(destination.bytes(), row.bytes) << row.size << " " << (row.source ? row.source : "NULL");
    }
    EXPECT_EQ(strcat_s(nullptr, 16, "a"), 22);
}

TEST(SafeStrings, StrncatTable)
{
    struct Row
    {
        size_t size;
        const char* source;
        size_t count;
        int result;
        std::string bytes;
    };
    const Row rows[] = {
        {16, "erxyz", 2, 0, Bytes("older\0"s)}, {6, "erxyz", 2, 0, Bytes("older\0"s)},
        {5, "erxyz", 2, 34, Bytes("\0ld\0"s)},  {16, "er", 100, 0, Bytes("older\0"s)},
        {4, "er", 0, 0, Bytes("old\0"s)},       {3, "er", 0, 34, Bytes("\0ld\0"s)},
        {16, nullptr, 2, 22, Bytes("old\0"s)}, // no change
    };
    for (const Row& row : rows) {
        Destination destination;
        EXPECT_EQ(strncat_s(destination.data(), row.size, row.source, row.count), row.result);
        EXPECT_EQ(destination.bytes(), row.bytes)
            << row.size << " " << (row.source ? row.source : "NULL") << " " << row.count;
    }
    EXPECT_EQ(strncat_s(nullptr, 16, "a", 1), 22);
}

TEST(SafeStrings, StrlwrLowersUpToTheFirstNulOrTheSize)
{
    Destination whole("AZ@[az\xc4");
    EXPECT_EQ(_strlwr_s(whole.data(), 16), 0);
    EXPECT_STREQ(whole.data(), "az@[az\xc4");

    Destination part("ABCDEF");
    EXPECT_EQ(_strlwr_s(part.data(), 3), 0);
    EXPECT_STREQ(part.data(), "abcDEF");

    std::string behindNul("AB\0CD"s);
    EXPECT_EQ(_strlwr_s(behindNul.data(), 5), 0);
    EXPECT_EQ(behindNul, "ab\0CD"s);

    EXPECT_EQ(_strlwr_s(part.data(), 0), 0);
    EXPECT_STREQ(part.data(), "abcDEF");
    EXPECT_EQ(_strlwr_s(nullptr, 3), 22);
}

TEST(SafeStrings, StruprConvertsBytesAfterANulToo)
{
    std::string text("ab\0cd`{z"s);
    EXPECT_EQ(_strupr_s(text.data(), text.size()), 0);
    EXPECT_EQ(text, "AB\0CD`{Z"s);

    std::string part("abcdef");
    EXPECT_EQ(_strupr_s(part.data(), 3), 0);
    EXPECT_EQ(part, "ABCdef");

    EXPECT_EQ(_strupr_s(part.data(), 0), 22);
    EXPECT_EQ(_strupr_s(nullptr, 3), 22);
    EXPECT_EQ(_strupr_s(nullptr, 0), 22);
    EXPECT_EQ(_strupr_s(part.data(), SIZE_MAX / 2), 12);
    EXPECT_EQ(part, "ABCdef");
}

TEST(SafeStrings, StrnicmpTable)
{
    enum Sign
    {
        Less = -1,
        Same = 0,
        More = 1
    };
    struct Row
    {
        const char* left;
        const char* right;
        size_t count;
        Sign sign;
    };
    const Row rows[] = {
        {"abc", "abc", 3, Same},
        {"abc", "ABC", 3, Same},
        {"ABC", "abc", 3, Same},
        {"aBc", "AbD", 2, Same},
        {"aBc", "AbD", 3, More}, // the exact comparison gives the result: 'a' is after 'A'
        {"AbC", "aBd", 3, Less},
        {"a1", "a2", 2, Less},
        {"a2", "a1", 2, More},
        {"a ", "a\t", 2, More},
        {"a b", "A B", 3, Same},
        {"a-b", "a+b", 3, Same}, // neither letter, digit nor white space: not compared
        {"a-b", "axb", 3, Same},
        {"axb", "a-b", 3, More}, // the left text's byte decides
        {"abc", "abd", 0, Same},
        {"abc", "abcd", 4, Same}, // the end of the left text matches anything
        {"abcd", "abc", 4, More},
        {"", "abc", 3, Same},
        {"abc", "", 3, More},
        {"a---", "a", 4, Same},
        {"a--x", "a", 4, More},
        {"a-b", "a\0b", 3, More}, // the bytes behind the end of the right text do not belong to it
        {"abc", "ABC", 100, Same},
        {"\xe4", "\xc4", 1, Same},
    };
    for (const Row& row : rows) {
        const int result = _strnicmp(row.left, row.right, row.count);
        EXPECT_EQ((result > 0) - (result < 0), row.sign)
            << row.left << " | " << row.right << " | " << row.count;
    }
    EXPECT_EQ(_strnicmp(nullptr, "a", 1), 22);
    EXPECT_EQ(_strnicmp("a", nullptr, 1), 22);
    EXPECT_EQ(_strnicmp(nullptr, nullptr, 0), 22);
}

TEST(SafeStrings, StrnicmpStaysInsideBothTexts)
{
    // Each text has a memory block of exactly its size, so that the address sanitizer detects reads beyond
    // it.
    std::mt19937 random(20261121);
    const std::string alphabet = "aAbB1 -\xe4";
    std::uniform_int_distribution<size_t> letter(0, alphabet.size() - 1);
    std::uniform_int_distribution<size_t> length(0, 6);
    for (int round = 0; round < 20000; ++round) {
        std::vector<char> texts[2];
        for (std::vector<char>& text : texts) {
            for (size_t rest = length(random); rest > 0; --rest) {
                text.push_back(alphabet[letter(random)]);
            }
            text.push_back('\0');
            text.shrink_to_fit();
        }
        const int exact = strncmp(texts[0].data(), texts[1].data(), 10);
        const int result = _strnicmp(texts[0].data(), texts[1].data(), 10);
        EXPECT_TRUE(result == 0 || (result < 0) == (exact < 0));
        EXPECT_EQ(_strnicmp(texts[0].data(), texts[0].data(), 10), 0);
    }
}

TEST(SafeStrings, StrspnpReturnsThePositionAfterTheSpan)
{
    const char text[] = "aabbc";
    EXPECT_EQ(_strspnp(text, "ab"), text + 4);
    EXPECT_EQ(_strspnp(text, "x"), text);
    EXPECT_EQ(_strspnp(text, ""), text);
    EXPECT_EQ(_strspnp(text, "abc"), nullptr);
    EXPECT_EQ(_strspnp("", "abc"), nullptr);
    EXPECT_EQ(_strspnp("", ""), nullptr);
}

TEST(SafeStrings, StrtokIgnoresItsContext)
{
    char text[] = "one, two,,three";
    char* context = nullptr;
    EXPECT_STREQ(strtok_s(text, ", ", &context), "one");
    EXPECT_STREQ(strtok_s(nullptr, ", ", nullptr), "two");
    EXPECT_STREQ(strtok_s(nullptr, ", ", &context), "three");
    EXPECT_EQ(strtok_s(nullptr, ", ", &context), nullptr);
    EXPECT_EQ(context, nullptr);
}

TEST(SafeStrings, MemcpyIgnoresTheSize)
{
    char destination[8] = "-------";
    EXPECT_EQ(memcpy_s(destination, 2, "abcd", 4), 0);
    EXPECT_STREQ(destination, "abcd---");
}
