#include "SafeText.h"

#include "Utf8Text.h"

#include <gtest/gtest.h>

namespace {

TEST(SafeText, HarmlessTextsStayAsTheyAre)
{
    for (const char* text : {"", "Studio A", "a\\x1b", "\xe6\x97\xa5\xe6\x9c\xac", "e\xcc\x81",
                             "\xf0\x9f\x92\xbf", "\xe2\x80\x8d", "\xe2\x80\x8c"}) {
        EXPECT_EQ(safeText(utf8(text)), utf8(text));
    }
}

TEST(SafeText, ControlCharactersAreEscaped)
{
    EXPECT_EQ(safeText(utf8("a\x1b[31mb")), utf8("a\\x1b[31mb"));
    EXPECT_EQ(safeText(utf8("a\r\n\tb")), utf8("a\\x0d\\x0a\\x09b"));
    EXPECT_EQ(safeText(utf8("\x7f")), utf8("\\x7f"));
    EXPECT_EQ(safeText(utf8("\xc2\x9b")), utf8("\\x9b")); // the one-character form of ESC [
    EXPECT_EQ(safeText(QString(QChar(0))), utf8("\\x00"));
}

TEST(SafeText, WhatHidesOrReordersTextIsEscaped)
{
    EXPECT_EQ(safeText(utf8("a\xe2\x80\xae"
                            "b")),
              utf8("a\\u202eb"));                               // right-to-left override
    EXPECT_EQ(safeText(utf8("\xe2\x81\xa6")), utf8("\\u2066")); // isolate
    EXPECT_EQ(safeText(utf8("\xe2\x80\xa8")), utf8("\\u2028")); // line separator
    EXPECT_EQ(safeText(utf8("a\xef\xbb\xbf")), utf8("a\\ufeff"));
    EXPECT_EQ(safeText(utf8("\xf3\xa0\x81\x81")), utf8("\\U000e0041")); // a tag character
}

TEST(SafeText, BrokenTextBecomesReplacementCharacters)
{
    EXPECT_EQ(safeText(QString(QChar(0xD800))), QString(QChar(0xFFFD)));
    EXPECT_EQ(safeText(utf8("a\xff"
                            "b")),
              QString("a") + QChar(0xFFFD) + "b");
}

TEST(SafeText, ADocumentKeepsItsLinesAndItsValues)
{
    EXPECT_EQ(safeJson("{\n  \"a\": \"x\xc2\x9b\x7f\"\n}\n"), "{\n  \"a\": \"x\\u009b\\u007f\"\n}\n");
    EXPECT_EQ(safeJson("\"\xf3\xa0\x81\x81\""), "\"\\udb40\\udc41\""); // a tag character, U+E0041
    EXPECT_EQ(safeJson("\"\xe6\x97\xa5\xf0\x9f\x92\xbf\""), "\"\xe6\x97\xa5\xf0\x9f\x92\xbf\"");
}

} // namespace
