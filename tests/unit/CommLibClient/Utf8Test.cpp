#include "NW_Com_Lib_internal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <clocale>
#include <cstdlib>
#include <cuchar>
#include <random>

namespace {

/// The conversion as it is specified: character by character, by the C library.
std::string Specified(const std::u16string& text)
{
    setlocale(LC_ALL, "en_US.utf8");
    std::string result;
    mbstate_t state = {};
    for (size_t index = 0; index < text.size(); ++index) {
        char32_t character = text[index];
        const bool isHigh = character >= 0xD800 && character <= 0xDBFF;
        if (isHigh && index + 1 < text.size() && text[index + 1] >= 0xDC00 && text[index + 1] <= 0xDFFF) {
            character = (character - 0xD7C0) * 1024 + (text[index + 1] - 0xDC00);
            ++index;
        }
        char bytes[MB_LEN_MAX];
        const size_t count = std::c32rtomb(bytes, character, &state);
        if (count != 0 && count != static_cast<size_t>(-1) && count != static_cast<size_t>(-2)) {
            result.append(bytes, count);
        }
    }
    return result;
}

std::string Utf8(const std::u16string& text)
{
    return toUTF8(text.data(), text.size());
}

} // namespace

TEST(Utf8, RequiresItsLocale)
{
    ASSERT_NE(setlocale(LC_ALL, "en_US.utf8"), nullptr)
        << "This system has no locale en_US.utf8. Create it with \"./check --install\", or as root with "
           "\"localedef -i en_US -f UTF-8 en_US.UTF-8\". Without it, texts from servers lose all non-ASCII "
           "characters.";
}

TEST(Utf8, KeepsTheText)
{
    EXPECT_EQ(Utf8(u""), "");
    EXPECT_EQ(Utf8(u"Disc 1"), "Disc 1");
    EXPECT_EQ(Utf8(u"\u00E9\u00DF\u20AC"), "\xC3\xA9\xC3\x9F\xE2\x82\xAC");
    EXPECT_EQ(Utf8(u"\u65E5\u672C\u8A9E"), "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E");
    EXPECT_EQ(Utf8(u"\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFD"),
              "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBD");
    EXPECT_EQ(toUTF8(nullptr, 0), "");
}

TEST(Utf8, JoinsSurrogatePairs)
{
    EXPECT_EQ(Utf8(u"\U0001F4BF"), "\xF0\x9F\x92\xBF");
    EXPECT_EQ(Utf8(u"a\U00010000b\U0010FFFFc"), "a\xF0\x90\x80\x80"
                                                "b\xF4\x8F\xBF\xBF"
                                                "c");
}

TEST(Utf8, DropsLoneSurrogates)
{
    const char16_t high = 0xD83D;
    const char16_t low = 0xDCBF;
    EXPECT_EQ(Utf8({u'a', high, u'b'}), "ab");
    EXPECT_EQ(Utf8({u'a', low, u'b'}), "ab");
    EXPECT_EQ(Utf8({low, high, u'b'}), "b");
    EXPECT_EQ(Utf8({high, high, low, u'b'}), "\xF0\x9F\x92\xBF"
                                             "b");
    const char16_t cut[] = {u'a', high, low};
    EXPECT_EQ(toUTF8(cut, 2), "a"); // the other half is not part of the text
}

TEST(Utf8, EveryUnitAloneIsAsSpecified)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const std::u16string text(1, static_cast<char16_t>(unit));
        ASSERT_EQ(Utf8(text), Specified(text)) << unit;
    }
}

TEST(Utf8, EveryPairOfSurrogatesIsAsSpecified)
{
    for (char16_t high = 0xD800; high <= 0xDBFF; ++high) {
        std::u16string text;
        for (char16_t low = 0xDC00; low <= 0xDFFF; ++low) {
            text += {high, low};
        }
        ASSERT_EQ(Utf8(text), Specified(text)) << unsigned{high};
    }
}

/// Neighbours of every kind: characters of one, two and three bytes, their bounds, and both surrogates.
const char16_t neighbours[] = {0,      u'a',   0x7F,   0x80,   0x7FF,  0x800,  0xD7FF,
                               0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFE, 0xFFFF};

TEST(Utf8, EverySequenceOfFourNeighboursIsAsSpecified)
{
    for (const char16_t first : neighbours) {
        for (const char16_t second : neighbours) {
            for (const char16_t third : neighbours) {
                for (const char16_t fourth : neighbours) {
                    const std::u16string text = {first, second, third, fourth};
                    ASSERT_EQ(Utf8(text), Specified(text))
                        << std::hex << unsigned{first} << " " << unsigned{second} << " " << unsigned{third}
                        << " " << unsigned{fourth};
                }
            }
        }
    }
}

TEST(Utf8, LongSequencesAreAsSpecified)
{
    std::mt19937 random(4711);
    for (int round = 0; round < 2000; ++round) {
        std::u16string text;
        for (size_t length = random() % 256; length > 0; --length) {
            const auto number = random();
            text += number % 2 == 0 ? neighbours[number / 2 % std::size(neighbours)]
                                    : static_cast<char16_t>(number >> 8);
        }
        ASSERT_EQ(Utf8(text), Specified(text)) << round;
    }
}

TEST(Utf8, WorksAsSpecifiedWithoutItsLocale)
{
    ASSERT_EQ(setenv("LOCPATH", "/tmp", 1), 0); // it contains no locale
    ASSERT_EQ(setlocale(LC_ALL, "en_US.utf8"), nullptr);
    ASSERT_STREQ(setlocale(LC_ALL, "C"), "C");
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const std::u16string text = {u'a', static_cast<char16_t>(unit), 0xDC00, u'b'};
        ASSERT_EQ(Utf8(text), Specified(text)) << unit;
    }
    EXPECT_EQ(Utf8(u"a\u00E9b"), "ab");
}

TEST(Utf8, KeepsZeroUnits)
{
    EXPECT_EQ(Utf8(std::u16string(u"a\0b", 3)), std::string("a\0b", 3));
}

TEST(Utf8, SetsTheLocaleOfTheProcessPermanently)
{
    setlocale(LC_ALL, "C");
    EXPECT_EQ(Utf8(u"\u65E5"), "\xE6\x97\xA5");
    EXPECT_STREQ(setlocale(LC_ALL, nullptr), "en_US.utf8");
    setlocale(LC_ALL, "C");
    EXPECT_EQ(Utf8(u""), "");
    EXPECT_STREQ(setlocale(LC_ALL, nullptr), "en_US.utf8"); // at each call
}
