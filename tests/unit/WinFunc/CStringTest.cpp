#include "Win_def_MFC.h"

#include <cstring>
#include <random>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

using namespace std::string_literals;

static_assert(std::is_base_of_v<std::string, CString>);
static_assert(std::is_base_of_v<std::deque<unsigned int>, CArray<unsigned int, unsigned int>>);
static_assert(std::is_base_of_v<CArray<CString, const char*>, CStringArray>);

TEST(CString, ConstructedFromTextsAndNull)
{
    EXPECT_EQ(CString(), "");
    EXPECT_EQ(CString("text"), "text");
    EXPECT_EQ(CString(LPCTSTR{nullptr}), "");
    EXPECT_EQ(CString("with\0nul"s).GetLength(), 8);
    CString text;
    text = "assigned";
    text += ", appended";
    EXPECT_EQ(text, "assigned, appended");
    EXPECT_EQ(text.GetLength(), 18);
}

TEST(CString, GetBufferCopiesTheTextAndGrowsToTheSize)
{
    CString text("abc");
    for (const int size : {-1, 0, 1, 4}) {
        EXPECT_STREQ(text.GetBuffer(size), "abc") << size;
    }
    text.GetBuffer(1);
    text.ReleaseBuffer();
    EXPECT_EQ(text, "abc") << "a smaller size does not cut the text";
    char* buffer = text.GetBuffer(100);
    EXPECT_STREQ(buffer, "abc");
    memset(buffer, 'x', 100); // the caller may write all of it
    EXPECT_EQ(text, "abc");   // unchanged until the release
    text.ReleaseBuffer();
    EXPECT_EQ(text, std::string(100, 'x')); // without a NUL, all of it
}

TEST(CString, ASecondGetBufferStartsFromTheText)
{
    CString text("abc");
    strcpy_s(text.GetBuffer(10), 10, "lost");
    EXPECT_STREQ(text.GetBuffer(10), "abc");
    memset(text.GetBuffer(100), 'x', 99);
    EXPECT_STREQ(text.GetBuffer(0), "abc") << "the old bytes do not follow the text";
}

TEST(CString, ReleaseBufferTakesTheTextUpToItsNul)
{
    CString text("abc");
    strcpy_s(text.GetBuffer(10), 10, "new");
    text.ReleaseBuffer();
    EXPECT_EQ(text, "new");

    text.GetBuffer(10)[0] = '\0';
    text.ReleaseBuffer();
    EXPECT_EQ(text, "");

    text.assign("kept");
    text.ReleaseBuffer(); // without a buffer, no effect
    EXPECT_EQ(text, "kept");
}

TEST(CString, TheBufferIncludesNulsOfTheText)
{
    CString text("ab\0cd"s);
    EXPECT_EQ(memcmp(text.GetBuffer(0), "ab\0cd", 6), 0); // including the NUL after it
    text.ReleaseBuffer();
    EXPECT_EQ(text, "ab");
}

TEST(CString, FormatSupports1023Bytes)
{
    CString text;
    text.Format("%s=%d", "PublisherNum", 12);
    EXPECT_EQ(text, "PublisherNum=12");
    const std::string longest(1023, 'x');
    text.Format("%s", longest.c_str());
    EXPECT_EQ(text, longest);
    text.Format("a%cb", 0);
    EXPECT_EQ(text, "a"); // up to the first NUL
    text.Format("%s-%s", text.c_str(), text.c_str());
    EXPECT_EQ(text, "a-a");
    text.Format("%s", "");
    EXPECT_EQ(text, "");
}

TEST(CString, LeftTable)
{
    struct Row
    {
        std::string text;
        int count;
        std::string left;
    };
    const Row rows[] = {
        {"abcdef", 0, ""},       {"abcdef", 3, "abc"},     {"abcdef", 6, "abcdef"},
        {"abcdef", 7, "abcdef"}, {"abcdef", -1, "abcdef"}, {"", 3, ""},
        {"ab\0cd"s, 4, "ab"},    {"ab\0cd"s, 2, "ab"},     {"ab\0cd"s, -1, "ab"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(CString(row.text).Left(row.count), row.left) << row.text << " " << row.count;
    }
}

TEST(CString, RightTable)
{
    struct Row
    {
        std::string text;
        int count;
        std::string right;
    };
    const Row rows[] = {
        {"abcdef", 0, ""},
        {"abcdef", 1, "f"},
        {"abcdef", 5, "bcdef"},
        {"abcdef", 6, "abcdef"},
        {"abcdef", 7, "abcdef"},
        {"", 0, ""},
        {"", 1, ""},
        {"ab\0cd"s, 3, "\0cd"s},
        {"ab\0cd"s, 9, "ab\0cd"s},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(CString(row.text).Right(row.count), row.right) << row.text << " " << row.count;
    }
    EXPECT_DEATH(CString("abc").Right(-1), "Assertion");
}

TEST(CString, FindAndReverseFind)
{
    const CString text("a.b.c");
    EXPECT_EQ(text.ReverseFind('.'), 3);
    EXPECT_EQ(text.ReverseFind('x'), -1);
    EXPECT_EQ(CString().ReverseFind('x'), -1);
    EXPECT_EQ(text.Find('.'), 1);
    EXPECT_EQ(text.Find('.', 1), 1);
    EXPECT_EQ(text.Find('.', 2), 3);
    EXPECT_EQ(text.Find('.', 4), -1);
    EXPECT_EQ(text.Find('.', 100), -1);
    EXPECT_EQ(text.Find('.', -1), -1);
    EXPECT_EQ(text.Find('x'), -1);
}

TEST(CString, TrimRightTable)
{
    struct Row
    {
        const char* text;
        const char* trimmed;
    };
    const Row rows[] = {{"abc///", "abc"}, {"a/b/", "a/b"}, {"abc", "abc"},
                        {"///", ""},       {"", ""},        {"/a", "/a"}};
    for (const Row& row : rows) {
        CString text(row.text);
        text.TrimRight('/');
        EXPECT_EQ(text, row.trimmed) << row.text;
    }
}

TEST(CString, BothComparesAreCaseSensitive)
{
    const CString text("Publisher");
    EXPECT_EQ(text.Compare("Publisher"), 0);
    EXPECT_EQ(text.CompareNoCase("Publisher"), 0);
    EXPECT_NE(text.CompareNoCase("publisher"), 0);
    EXPECT_LT(text.CompareNoCase("publisher"), 0);
    EXPECT_GT(text.Compare("Publish"), 0);
    EXPECT_LT(text.Compare("Publishers"), 0);
    EXPECT_EQ(CString("ab\0cd"s).Compare("ab"), 0); // compares like strcmp
}

TEST(CString, ExtractSubStringTable)
{
    struct Row
    {
        const char* text;
        int index;
        char separator;
        BOOL result;
        const char* part;
    };
    const Row rows[] = {
        {"whole text", 0, ',', TRUE, "whole text"}, // no separator in it
        {"a,b,c", 0, ',', TRUE, "a"},
        {"a,b,c", 1, ',', TRUE, "b"},
        {"a,b,c", 2, ',', TRUE, "c"},
        {"a,b,c", 3, ',', FALSE, "before"},
        {"a,,c", 1, ',', TRUE, ""},
        {"a,b,", 2, ',', TRUE, ""},
        {"a,b,", 3, ',', FALSE, "before"},
        {"", 0, ',', TRUE, ""},
        {"", 1, ',', FALSE, "before"},
        {"abc", 0, '\0', TRUE, "abc"},
        {"abc", 1, '\0', FALSE, "before"}, // the end is not a separator
        {"a,b", -1, ',', FALSE, "before"},
        {nullptr, 0, ',', FALSE, "before"},
    };
    for (const Row& row : rows) {
        CString part("before");
        EXPECT_EQ(AfxExtractSubString(part, row.text, row.index, row.separator), row.result)
            << (row.text ? row.text : "NULL") << " " << row.index;
        EXPECT_EQ(part, row.part) << (row.text ? row.text : "NULL") << " " << row.index;
    }
    CString self("a,bc,d");
    EXPECT_TRUE(AfxExtractSubString(self, self.c_str(), 1, ','));
    EXPECT_EQ(self, "bc");
}

TEST(CString, JoiningTheExtractedPartsGivesTheText)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> letter(0, 2);
    std::uniform_int_distribution<size_t> length(0, 12);
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        for (size_t rest = length(random); rest > 0; --rest) {
            text += ",\xff"
                    "a"[letter(random)];
        }
        text.shrink_to_fit();
        std::string joined;
        CString part;
        int index = 0;
        for (; AfxExtractSubString(part, text.c_str(), index, ','); ++index) {
            joined += index == 0 ? part : "," + part;
        }
        EXPECT_GE(index, 1);
        EXPECT_EQ(joined, text);
    }
}

// ---------------------------------------------------------------------------------------------------------------------

namespace {

struct Record
{
    int number;
    char text[4];
};

} // namespace

TEST(CArray, GrowsAndShrinks)
{
    CArray<unsigned int, unsigned int> array;
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(array.Add(10), 0);
    EXPECT_EQ(array.Add(20), 1);
    EXPECT_EQ(array.GetSize(), 2);
    EXPECT_EQ(array.GetCount(), 2);
    EXPECT_FALSE(array.IsEmpty());

    array.SetAt(0, 11);
    EXPECT_EQ(array.GetAt(0), 11U);
    array.GetAt(1) = 22;
    array.InsertAt(1, 15);
    EXPECT_EQ(array, (CArray<unsigned int, unsigned int>{{11, 15, 22}}));
    array.InsertAt(3, 33);
    array.InsertAt(5, 55); // beyond the end: the elements between are zero
    EXPECT_EQ(array, (CArray<unsigned int, unsigned int>{{11, 15, 22, 33, 0, 55}}));

    array.RemoveAt(0);
    array.RemoveAt(1, 3);
    EXPECT_EQ(array, (CArray<unsigned int, unsigned int>{{15, 55}}));
    array.SetSize(3);
    EXPECT_EQ(array.GetAt(2), 0U);
    array.SetSize(1);
    EXPECT_EQ(array.GetSize(), 1);
    array.RemoveAll();
    EXPECT_TRUE(array.IsEmpty());
}

TEST(CArray, CopyReplacesTheElements)
{
    CArray<CString, const char*> source;
    source.Add("one");
    source.Add("two");
    CArray<CString, const char*> copy;
    copy.Add("lost");
    copy.Copy(source);
    source.SetAt(0, "changed");
    EXPECT_EQ(copy.GetSize(), 2);
    EXPECT_EQ(copy.GetAt(0), "one");
    EXPECT_EQ(copy.GetAt(1), "two");
}

TEST(CArray, HoldsRecordsAndPointers)
{
    CArray<Record, const Record&> records;
    records.Add(Record{1, "abc"});
    EXPECT_STREQ(records.GetAt(0).text, "abc");

    int object = 0;
    CArray<int*, int*> pointers;
    pointers.Add(&object);
    EXPECT_EQ(pointers.GetAt(0), &object);
    pointers.SetSize(2);
    EXPECT_EQ(pointers.GetAt(1), nullptr);
}

TEST(CArray, AnIndexOutOfRangeStopsTheProcess)
{
    CArray<unsigned int, unsigned int> array;
    array.Add(1);
    EXPECT_DEATH(array.GetAt(1), "Assertion");
    EXPECT_DEATH(array.GetAt(-1), "Assertion");
    EXPECT_DEATH(array.SetAt(1, 5), "Assertion");
    EXPECT_DEATH(array.SetSize(-1), "Assertion");
    EXPECT_DEATH(array.InsertAt(-1, 5), "Assertion");
    EXPECT_DEATH(array.RemoveAt(1), "Assertion");
    EXPECT_DEATH(array.RemoveAt(0, 2), "Assertion");
    EXPECT_DEATH(array.RemoveAt(1, INTPTR_MAX), "Assertion");
    EXPECT_DEATH(array.RemoveAt(2, 0), "Assertion");
    EXPECT_DEATH(array.RemoveAt(0, -1), "Assertion");
    EXPECT_EQ(array.GetSize(), 1);
    array.RemoveAt(1, 0); // removes nothing at the end
    EXPECT_EQ(array.GetSize(), 1);
}

TEST(CStringArray, AddsTextsOfBothKinds)
{
    CStringArray array;
    EXPECT_EQ(array.Add("literal"), 0);
    const CString text("with\0nul"s);
    EXPECT_EQ(array.Add(text), 1);
    EXPECT_EQ(array.GetAt(0), "literal");
    EXPECT_EQ(array.GetAt(1).GetLength(), 8);
}
