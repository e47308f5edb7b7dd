#include "TableText.h"

#include "Utf8Text.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

class TableText : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    }
};

TEST_F(TableText, CellsCountWideAndCombiningCharacters)
{
    EXPECT_EQ(cellsOf(""), 0);
    EXPECT_EQ(cellsOf("abc"), 3);
    EXPECT_EQ(cellsOf(utf8("\xe6\x97\xa5\xe6\x9c\xac")), 4); // two wide characters
    EXPECT_EQ(cellsOf(utf8("e\xcc\x81")), 1);                // a letter with a combining accent
    EXPECT_EQ(cellsOf(utf8("\xf0\x9f\x92\xbf")), 2);         // outside the basic plane
}

TEST_F(TableText, LongTextsAreCutWithAnEllipsis)
{
    EXPECT_EQ(cutToCells("Studio", 6), "Studio");
    EXPECT_EQ(cutToCells("Studio", 5), utf8("Stud\xe2\x80\xa6"));
    EXPECT_EQ(cutToCells("Studio", 1), utf8("\xe2\x80\xa6"));
    EXPECT_EQ(cutToCells("Studio", 0), "");
    EXPECT_EQ(cutToCells(utf8("\xe6\x97\xa5\xe6\x9c\xac\xe8\xaa\x9e"), 4),
              utf8("\xe6\x97\xa5\xe2\x80\xa6")); // half of a wide character does not fit
}

TEST_F(TableText, ColumnsAreAlignedByCells)
{
    const std::vector<TableColumn> columns = {{"Name"}, {"Status"}, {"Jobs", true}};
    const QStringList lines = tableLines(
        columns,
        {{{utf8("\xe6\x97\xa5\xe6\x9c\xac\xe8\xaa\x9e")}, {"a"}, {"1"}}, {{"x"}, {"bcd"}, {"12345"}}}, {});
    EXPECT_EQ(lines, (QStringList{"Name    Status   Jobs",
                                  utf8("\xe6\x97\xa5\xe6\x9c\xac\xe8\xaa\x9e  a           1"),
                                  "x       bcd     12345"}));
}

TEST_F(TableText, TheWidestColumnsAreCutFirst)
{
    const std::vector<TableColumn> columns = {{"Name", false, 4}, {"Status", false, 4}, {"Jobs", true, 2}};
    const std::vector<std::vector<TableCell>> rows = {{{"A very long name"}, {"Not connected"}, {"12"}}};
    for (int width = 12; width < 50; ++width) {
        for (const QString& line : tableLines(columns, rows, {width, false})) {
            EXPECT_LE(cellsOf(line), width) << line.toStdString();
        }
    }
    EXPECT_EQ(tableLines(columns, rows, {24, false})[1],
              utf8("A very l\xe2\x80\xa6 Not conn\xe2\x80\xa6   12"));
}

TEST_F(TableText, ColoursDoNotChangeTheAlignment)
{
    const std::vector<TableColumn> columns = {{"Status"}, {"Jobs", true}};
    const QStringList lines = tableLines(columns, {{{"on", "32"}, {"1"}}}, {0, true});
    EXPECT_EQ(lines[1], "\x1b[32mon    \x1b[0m     1");
    EXPECT_EQ(coloured("a", "31", {0, false}), "a");
    EXPECT_EQ(coloured("a", nullptr, {0, true}), "a");
}

TEST_F(TableText, WithoutUtf8TheEllipsisIsAscii)
{
    ASSERT_NE(std::setlocale(LC_ALL, "C"), nullptr);
    EXPECT_EQ(cutToCells("Studio", 5), "Stud~");
    EXPECT_EQ(cellsOf(utf8("\xc3\xa9")), 1);
}

TEST_F(TableText, WithoutUtf8CellsAreTheSame)
{
    ASSERT_NE(std::setlocale(LC_ALL, "C"), nullptr);
    EXPECT_EQ(cellsOf(utf8("\xe6\x9d\xb1\xe4\xba\xac")), 4); // two ideographs
    EXPECT_EQ(cellsOf(utf8("e\xcc\x81")), 1);                // with a combining accent
    EXPECT_EQ(cutToCells(utf8("\xe6\x9d\xb1\xe4\xba\xac\xe6\x9d\xb1"), 5), utf8("\xe6\x9d\xb1\xe4\xba\xac~"));
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
}

} // namespace
