#include "NW_Com_Lib_internal.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

std::string Utf8(const std::u16string& text)
{
    return toUTF8(text.data(), text.size());
}

} // namespace

TEST(Utf8, NeedsItsLocale)
{
    ASSERT_NE(setlocale(LC_ALL, "en_US.utf8"), nullptr)
        << "This system has no locale en_US.utf8: \"./check --install\" makes it, or \"localedef -i en_US -f "
           "UTF-8 en_US.UTF-8\" as root. Without it every text that comes from a server loses all but ASCII.";
}

TEST(Utf8, IsTheSameText)
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

TEST(Utf8, DropsSurrogatesThatAreAlone)
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

TEST(Utf8, KeepsZerosForTheCallerToSee)
{
    EXPECT_EQ(Utf8(std::u16string(u"a\0b", 3)), std::string("a\0b", 3));
}

TEST(Utf8, SetsTheLocaleOfTheProcessForGood)
{
    setlocale(LC_ALL, "C");
    EXPECT_EQ(Utf8(u"\u65E5"), "\xE6\x97\xA5");
    EXPECT_STREQ(setlocale(LC_ALL, nullptr), "en_US.utf8");
    setlocale(LC_ALL, "C");
    EXPECT_EQ(Utf8(u""), "");
    EXPECT_STREQ(setlocale(LC_ALL, nullptr), "en_US.utf8"); // at each call
}
