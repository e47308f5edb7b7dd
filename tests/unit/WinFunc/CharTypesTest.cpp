#include "Win_def.h"

#include <array>
#include <climits>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

struct CharTypeRow
{
    const char* characters;
    WORD word;
};

constexpr CharTypeRow type1[] = {
    {" ", 584},
    {"0123456789", 644},
    {"ABCDEF", 897},
    {"GHIJKLMNOPQRSTUVWXYZ", 769},
    {"abcdef", 898},
    {"ghijklmnopqrstuvwxyz", 770},
    {"!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~", 528},
};

constexpr CharTypeRow type4[] = {
    {" !#%&()*+,.:;<>?[]{|}", 72},
    {"\"$/=@\\_~", 1096},
    {"'-", 1088},
    {"0123456789", 64},
    {"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", 32832},
    {"^`", 1098},
};

/// The word of each of the 256 bytes; none for a byte outside the table.
template <size_t ROWS>
std::array<std::optional<WORD>, 256> WholeTable(const CharTypeRow (&rows)[ROWS])
{
    std::array<std::optional<WORD>, 256> table;
    for (const CharTypeRow& row : rows) {
        for (const char ch : std::string(row.characters)) {
            table[static_cast<unsigned char>(ch)] = row.word;
        }
    }
    return table;
}

void ExpectTable(DWORD type, const std::array<std::optional<WORD>, 256>& table)
{
    size_t known = 0;
    for (unsigned int byte = 1; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        WORD word = 0xAAAA;
        const BOOL result = GetStringTypeA(1024, type, text.c_str(), 1, &word);
        EXPECT_EQ(result, table[byte].has_value() ? TRUE : FALSE) << type << " " << byte;
        EXPECT_EQ(word, table[byte].value_or(0xAAAA)) << type << " " << byte;
        known += table[byte].has_value() ? 1 : 0;
    }
    EXPECT_EQ(known, 95U); // all printable ASCII
}

} // namespace

TEST(CharTypes, AllBytesOfType1)
{
    ExpectTable(1, WholeTable(type1));
}

TEST(CharTypes, AllBytesOfType4)
{
    ExpectTable(4, WholeTable(type4));
}

TEST(CharTypes, WordsBeforeAnUnknownByteAreWritten)
{
    std::vector<WORD> words(4, 7);
    EXPECT_EQ(GetStringTypeA(1024, 1, "A1\tB", 4, words.data()), FALSE);
    EXPECT_EQ(words, (std::vector<WORD>{897, 644, 7, 7}));
}

TEST(CharTypes, StopsAtTheNulOrTheLength)
{
    std::vector<WORD> words(4, 7);
    EXPECT_EQ(GetStringTypeA(1024, 4, "a", 4, words.data()), TRUE);
    EXPECT_EQ(words, (std::vector<WORD>{32832, 7, 7, 7}));

    words.assign(4, 7);
    EXPECT_EQ(GetStringTypeA(1024, 4, "a^b", 2, words.data()), TRUE);
    EXPECT_EQ(words, (std::vector<WORD>{32832, 1098, 7, 7}));

    words.assign(4, 7);
    EXPECT_EQ(GetStringTypeA(1024, 4, "a1-", -1, words.data()), TRUE);
    EXPECT_EQ(words, (std::vector<WORD>{32832, 64, 1088, 7}));

    words.assign(4, 7);
    EXPECT_EQ(GetStringTypeA(1024, 1, "", 1, words.data()), TRUE);
    EXPECT_EQ(words, (std::vector<WORD>(4, 7)));
}

TEST(CharTypes, RefusesOtherLocalesOtherTypesAndLengthZero)
{
    WORD word = 7;
    EXPECT_EQ(GetStringTypeA(1024, 1, "a", 0, &word), FALSE);
    for (const LCID locale : {0U, 127U, 1023U, 1025U, 2048U, 0xFFFFFFFFU}) {
        EXPECT_EQ(GetStringTypeA(locale, 1, "a", 1, &word), FALSE) << locale;
    }
    for (const DWORD type : {0U, 2U, 3U, 5U, 8U, 0xFFFFFFFFU}) {
        EXPECT_EQ(GetStringTypeA(1024, type, "a", 1, &word), FALSE) << type;
    }
    EXPECT_EQ(word, 7);
}
