// Reads from private profile files: lines, sections, keys and their values.
#include "ProfileText.h"
#include "TextFiles.h"
#include "Win_def.h"

#include <array>
#include <cerrno>
#include <clocale>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>
#include <tuple>

namespace {

const char FILE_NAME[] = "/tmp/a.ini";

struct Reading
{
    std::string text;
    DWORD length;
    bool operator==(const Reading&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Reading& reading)
{
    return out << '"' << reading.text << "\" " << reading.length;
}

/// Reads into a buffer of exactly `size` bytes, so that a byte too many is a memory error.
Reading Read(const char* section, const char* key, DWORD size = 2048, const char* fallback = "default",
             const char* file = FILE_NAME)
{
    std::vector<char> buffer(size, '\x7F');
    const DWORD length = GetPrivateProfileStringA(section, key, fallback, buffer.data(), size, file);
    return {buffer.data(), length};
}

Reading Found(const std::string& text)
{
    return {text, static_cast<DWORD>(text.size())};
}

const Reading NOTHING = {"", 0};

/// A way to read the keys of a file that can be opened.
struct Reader
{
    const char* name;
    Reading (*text)(const char* section, const char* key, DWORD size, const char* file);
    UINT (*number)(const char* section, const char* key, INT fallback, const char* file);
};

const Reader READERS[] = {
    {"OneKey",
     [](const char* section, const char* key, DWORD size, const char* file) {
         return Read(section, key, size, "default", file);
     },
     GetPrivateProfileIntA},
    {"AllKeys",
     [](const char* section, const char* key, DWORD size, const char* file) {
         return Found(ProfileText::Read(file)->Value(section, key, size - 1));
     },
     [](const char* section, const char* key, INT fallback, const char* file) {
         return ProfileText::Read(file)->Number(section, key, fallback);
     }},
};

/// Tests for all ways to read.
class PrivateProfileReader : public testing::TestWithParam<Reader>
{
protected:
    static Reading ReadKey(const char* section, const char* key, DWORD size = 2048,
                           const char* file = FILE_NAME)
    {
        return GetParam().text(section, key, size, file);
    }
};

INSTANTIATE_TEST_SUITE_P(, PrivateProfileReader, testing::ValuesIn(READERS),
                         [](const auto& reader) { return reader.param.name; });

using PrivateProfileDeathTest = testing::Test;

} // namespace

TEST(PrivateProfile, TheDefaultIsUsedIfTheFileCannotBeOpened)
{
    EXPECT_EQ(Read("Common", "Key"), Found("default"));
    EXPECT_EQ(Read("Common", "Key", 2048, ""), NOTHING);
    EXPECT_EQ(Read("Common", "Key", 2048, nullptr), NOTHING);
    EXPECT_EQ(Read("Common", "Key", 2048, "default", nullptr), Found("default"));
}

TEST(PrivateProfile, ADefaultThatDoesNotFitBecomesTheEmptyText)
{
    EXPECT_EQ(Read("Common", "Key", 8, "default"), Found("default"));
    EXPECT_EQ(Read("Common", "Key", 7, "default"), NOTHING);
    EXPECT_EQ(Read("Common", "Key", 1, "default"), NOTHING);
}

TEST_P(PrivateProfileReader, AMissingKeyGivesTheEmptyTextAndNotTheDefault)
{
    WriteText(FILE_NAME, "[Common]\nOther=1\nEmpty=\n");
    EXPECT_EQ(ReadKey("Common", "Key"), NOTHING);
    EXPECT_EQ(ReadKey("Common", "Empty"), NOTHING);
    EXPECT_EQ(ReadKey("Absent", "Other"), NOTHING);
    WriteText(FILE_NAME, "");
    EXPECT_EQ(ReadKey("Common", "Key"), NOTHING);
}

// A file, and the expected value of key "Key" in section "Common".
struct ReadCase
{
    const char* what;
    std::string text;
    std::string value;
};

TEST_P(PrivateProfileReader, LineTable)
{
    using namespace std::string_literals;
    const ReadCase cases[] = {
        {"as the system writes it", "[Common]\nKey=value\n", "value"},
        {"no line feed at the end", "[Common]\nKey=value", "value"},
        {"lines with CR LF", "[Common]\r\nKey=value\r\n", "value"},
        {"blanks around the equals sign", "[Common]\nKey  =   value\n", "value"},
        {"a blank instead of the equals sign", "[Common]\nKey value\n", "value"},
        {"a second equals sign is skipped", "[Common]\nKey==value\n", "value"},
        {"a third one is not", "[Common]\nKey===value\n", "=value"},
        {"a second one after the delimiter and blanks is skipped", "[Common]\nKey= = value\n", "value"},
        {"one after a blank as delimiter", "[Common]\nKey = =value\n", "=value"},
        {"equals signs alone are not a value", "[Common]\nKey==\nKey= = \nKey=later\n", "later"},
        {"inner blanks are kept", "[Common]\nKey=a  b = c\n", "a  b = c"},
        {"trailing blanks are removed", "[Common]\nKey=value  \n", "value"},
        {"a tab is removed", "[Common]\nKey=va\tlue\t\n", "value"},
        {"a tab is not a delimiter", "[Common]\nKey\tvalue\n", ""},
        {"a tab in the name is removed", "[Common]\nK\tey=value\n", "value"},
        {"bytes above 126 are removed", "[Common]\nKey=\xC3\xA4p\x7Fq\xFF\n", "pq"},
        {"a value of such bytes only is empty", "[Common]\nKey=\xC3\xA4\nKey=later\n", "later"},
        {"control bytes are removed", "[Common]\nKey=p\x01q\x1Br\n", "pqr"},
        {"a NUL byte is removed", "[Common]\nKey=a\0b\n"s, "ab"},
        {"a semicolon ends the value", "[Common]\nKey=a;b\n", "a"},
        {"the blank before it is removed", "[Common]\nKey=a ; b\n", "a"},
        {"nothing before the semicolon", "[Common]\nKey=;b\n", ""},
        {"a comment line", "[Common]\n;Key=old\nKey=value\n", "value"},
        {"a semicolon in the section line", "[Com;mon]\nKey=a\n[Common];x\nKey=b\n", "b"},
        {"a section in a comment", ";[Common]\nKey=a\n", ""},
        {"a section named in another case", "[COMMON]\nKey=value\n", "value"},
        {"a key named in another case", "[Common]\nKEY=value\n", "value"},
        {"blanks in the section name count", "[ Common ]\nKey=value\n", ""},
        {"text after the section name", "[Common]x\nKey=value\n", "value"},
        {"a section line is not indented", " [Common]\nKey=value\n", ""},
        {"a section line requires a closing bracket", "[Common\nKey=value\n", ""},
        {"without it the line is an ordinary one", "[Common]\n[Other\nKey=value\n", "value"},
        {"before any section", "Key=value\n", ""},
        {"in another section", "[Other]\nKey=value\n[Common]\n", ""},
        {"after another section", "[Other]\nKey=a\n[Common]\nKey=b\n", "b"},
        {"the section ends at the next", "[Common]\n[Other]\nKey=value\n", ""},
        {"the section twice", "[Common]\nA=1\n[Other]\n[common]\nKey=value\n", "value"},
        {"the first match wins", "[Common]\nKey=first\nKey=second\n", "first"},
        {"an empty one does not match", "[Common]\nKey=\nKey= \nKey=later\n", "later"},
        {"an empty one, and a later section", "[Common]\nKey=\n[COMMON]\nKey=later\n", "later"},
        {"an indented line never matches", "[Common]\n Key=value\n", ""},
        {"a longer name", "[Common]\nKey2=value\n", ""},
        {"a shorter name", "[Common]\nKe=value\n", ""},
        {"no delimiter", "[Common]\nKey\nKeyvalue\n", ""},
        {"the end of an old text after the match", "[Common]\nKey=1\n345\nKey=2\n", "1"},
    };
    for (const ReadCase& c : cases) {
        WriteText(FILE_NAME, c.text);
        EXPECT_EQ(ReadKey("Common", "Key"), Found(c.value)) << c.what;
    }
}

TEST_P(PrivateProfileReader, ALineIsCutAt1023PrintableBytesAndTheNextLineIsFound)
{
    for (const size_t length : {1022U, 1023U, 1024U, 1025U, 5000U, 100000U}) {
        const std::string line = "Key=" + std::string(length - 4, 'v');
        WriteText(FILE_NAME, "[Common]\n" + line + "\nNext=found\n");
        EXPECT_EQ(ReadKey("Common", "Key"), Found(line.substr(4, 1019))) << length;
        EXPECT_EQ(ReadKey("Common", "Next"), Found("found")) << length;
    }
}

TEST_P(PrivateProfileReader, TheRestOfALongLineIsDropped)
{
    WriteText(FILE_NAME, "[Common]\n" + std::string(1023, 'x') + "[Other]\nKey=a\n" + std::string(1023, ';') +
                             "Key=b\n" + std::string(1023, 'x') + "Key=c\n");
    EXPECT_EQ(ReadKey("Common", "Key"), Found("a"));
    EXPECT_EQ(ReadKey("Other", "Key"), NOTHING);
}

TEST_P(PrivateProfileReader, DroppedBytesDoNotCountTowardsTheLineLength)
{
    WriteText(FILE_NAME,
              "[Common]\n" + std::string(3000, '\t') + "Key=" + std::string(3000, '\xFF') + "value\n");
    EXPECT_EQ(ReadKey("Common", "Key"), Found("value"));
}

TEST_P(PrivateProfileReader, AValueThatDoesNotFitIsCut)
{
    WriteText(FILE_NAME, "[Common]\nKey=value\n");
    EXPECT_EQ(ReadKey("Common", "Key", 6), Found("value"));
    EXPECT_EQ(ReadKey("Common", "Key", 5), Found("valu"));
    EXPECT_EQ(ReadKey("Common", "Key", 2), Found("v"));
    EXPECT_EQ(ReadKey("Common", "Key", 1), NOTHING);
}

TEST(PrivateProfile, ASizeOfZeroDoesNotChangeTheBuffer)
{
    WriteText(FILE_NAME, "[Common]\nKey=value\n");
    char byte = '#';
    EXPECT_EQ(GetPrivateProfileStringA("Common", "Key", "default", &byte, 0, FILE_NAME), 0U);
    EXPECT_EQ(GetPrivateProfileStringA("Common", "Key", "default", &byte, 0, "/tmp/absent"), 0U);
    EXPECT_EQ(GetPrivateProfileStringA("Common", "Key", "default", nullptr, 0, FILE_NAME), 0U);
    EXPECT_EQ(GetPrivateProfileStringA("Common", "Key", "default", nullptr, 10, FILE_NAME), 0U);
    EXPECT_EQ(byte, '#');
}

TEST(PrivateProfile, NoByteBehindTheBufferIsWritten)
{
    WriteText(FILE_NAME, "[Common]\nKey=value\n");
    for (const char* file : {FILE_NAME, "/tmp/absent"}) {
        char bytes[] = "##";
        EXPECT_EQ(GetPrivateProfileStringA("Common", "Key", "default", bytes, 1, file), 0U);
        EXPECT_EQ(std::string(bytes, 2), std::string("\0#", 2));
    }
}

TEST_P(PrivateProfileReader, NonRegularFilesReadAsEmptyWithoutBlocking)
{
    ASSERT_EQ(mkfifo("/tmp/fifo.ini", 0644), 0);
    std::fstream fifo("/tmp/fifo.ini"); // for both, which does not block
    fifo << "[Common]\nKey=value\n" << std::flush;
    EXPECT_EQ(ReadKey("Common", "Key", 64, "/tmp/fifo.ini"), NOTHING);
    EXPECT_EQ(ReadKey("Common", "Key", 64, "/tmp"), NOTHING);
    EXPECT_EQ(ReadKey("Common", "Key", 64, "/dev/zero"), NOTHING);
}

TEST_P(PrivateProfileReader, TheLocaleHasNoEffect)
{
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    WriteText(FILE_NAME, "[COMMON]\nPUBLISHERID=\xC3\x84p\xE9\n");
    EXPECT_EQ(ReadKey("common", "publisherid"), Found("p"));
}

TEST_P(PrivateProfileReader, RandomBytesDoNotAffectEarlierLines)
{
    std::mt19937 random(4711);
    const std::string marks = "[]=; \t\n\nKeyCommon";
    for (int round = 0; round < 300; ++round) {
        std::string text = "[Common]\nFirst=sound\n";
        for (int count = 0; count < 3000; ++count) {
            const auto number = random();
            text += number % 2 == 0 ? marks[number / 2 % marks.size()] : static_cast<char>(number >> 8);
        }
        WriteText(FILE_NAME, text);
        ASSERT_EQ(ReadKey("Common", "First", 16), Found("sound"));
        const Reading reading = ReadKey("Common", "Key", 16);
        ASSERT_EQ(reading.length, reading.text.size());
        for (const char byte : reading.text) {
            ASSERT_TRUE(byte >= 0x20 && byte <= 0x7E);
        }
    }
}

struct NumberCase
{
    const char* line;
    UINT number;
};

TEST_P(PrivateProfileReader, NumberTable)
{
    const NumberCase cases[] = {
        {"Key=42", 42},
        {"Key=-1", 0xFFFFFFFF},
        {"Key= 7 apples", 7},
        {"Key=007", 7},
        {"Key=0x10", 0},
        {"Key=apples", 0},
        {"Key=;42", 5}, // an empty value
        {"Key=", 5},
        {"Other=42", 5},
        {"Key=\nKey=9", 9},
        {"Key=2147483647", 2147483647},
        {"Key=99999999999999999999", 0xFFFFFFFF},
    };
    for (const NumberCase& c : cases) {
        WriteText(FILE_NAME, std::string("[Common]\n") + c.line + "\n");
        errno = 0;
        EXPECT_EQ(GetParam().number("Common", "Key", 5, FILE_NAME), c.number) << c.line;
        EXPECT_EQ(errno, 0);
    }
}

TEST_P(PrivateProfileReader, AFileMayBeginWithTheSectionWithoutAName)
{
    WriteText(FILE_NAME, "[]\nKey=1\n[Common]\nKey=2\n");
    EXPECT_EQ(ReadKey("", "Key"), Found("1"));
    EXPECT_EQ(ReadKey("Common", "Key"), Found("2"));
}

TEST_P(PrivateProfileReader, AFileLargerThanAnySettingFileIsReadInFull)
{
    const std::string filler = "Other=" + std::string(90, 'x') + "\n";
    std::string text = "[Common]\nFirst=1\n";
    while (text.size() < 2'000'000) {
        text += filler;
    }
    WriteText(FILE_NAME, text + "Last=2\n[Other]\nKey=3\n");
    EXPECT_EQ(ReadKey("Common", "First"), Found("1"));
    EXPECT_EQ(ReadKey("Common", "Last"), Found("2"));
    EXPECT_EQ(ReadKey("Common", "Last", 1), NOTHING);
    EXPECT_EQ(GetParam().number("Other", "Key", 5, FILE_NAME), 3U);
    EXPECT_EQ(GetParam().number("Other", "Last", 5, FILE_NAME), 5U);
}

TEST_P(PrivateProfileReader, TheFirstOfTwoValuesFarApartCounts)
{
    WriteText(FILE_NAME, "[Common]\nKey=1\n;" + std::string(9000, 'x') + "\nKey=2\n");
    EXPECT_EQ(ReadKey("Common", "Key"), Found("1"));
}

TEST_P(PrivateProfileReader, TheLastByteOfAnySizeCounts)
{
    for (const size_t size : {4095, 4096, 4097, 4098}) {
        const std::string head = "[Common]\n;";
        const std::string tail = "\nKey=12";
        WriteText(FILE_NAME, head + std::string(size - head.size() - tail.size(), 'x') + tail);
        EXPECT_EQ(ReadKey("Common", "Key"), Found("12")) << size;
    }
}

TEST(PrivateProfile, TheNumberOfAFileThatCannotBeOpenedIsTheDefault)
{
    EXPECT_EQ(GetPrivateProfileIntA("Common", "Key", -1, "/tmp/absent"), 0xFFFFFFFFU);
}

TEST(ProfileTextTest, IsNullWhenTheFileCannotBeOpened)
{
    EXPECT_EQ(ProfileText::Read("/tmp/absent"), nullptr);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(ProfileText::Read(nullptr), nullptr);
}

TEST(ProfileTextTest, KeepsTheContentsOfTheTimeOfTheRead)
{
    WriteText(FILE_NAME, "[Common]\nA=1\nB=2\n");
    const auto text = ProfileText::Read(FILE_NAME);
    WriteText(FILE_NAME, "[Common]\nA=3\nB=4\n");
    EXPECT_EQ(text->Value("Common", "A", 255), "1");
    EXPECT_EQ(text->Value("Common", "B", 255), "2");
}

TEST(ProfileTextTest, OnlyAFileAboveOneMebibyteIsReadByEachLookup)
{
    for (const size_t size : {size_t{1} << 20, (size_t{1} << 20) + 1}) {
        std::string text = "[Common]\nA=1\n";
        text.resize(size, '\n');
        WriteText(FILE_NAME, text);
        const auto profile = ProfileText::Read(FILE_NAME);
        EXPECT_TRUE(profile->IsComplete());
        text.replace(text.find('1'), 1, "2");
        WriteText(FILE_NAME, text);
        EXPECT_EQ(profile->Value("Common", "A", 255), size > 1'048'576 ? "2" : "1") << size;
    }
}

TEST(ProfileTextTest, AnEmptyFileIsComplete)
{
    WriteText(FILE_NAME, "");
    EXPECT_TRUE(ProfileText::Read(FILE_NAME)->IsComplete());
}

TEST(ProfileTextTest, FindsEveryKeyOfEverySection)
{
    WriteText(FILE_NAME, "None=0\n[One]\nA=1\nB=\n[Two]\nA=2\nC=3\n[one]\nB=4\nA=5\n[]\nA=6\n[Two]\n"
                         "D=7\n[One]x\n");
    const auto text = ProfileText::Read(FILE_NAME);
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"One", "A", "1"}, {"ONE", "b", "4"}, {"Two", "A", "2"}, {"Two", "C", "3"},   {"Two", "B", ""},
        {"", "A", "6"},    {"Two", "D", "7"}, {"", "None", ""},  {"One", "None", ""}, {"Three", "A", ""},
    };
    for (const auto& [section, key, value] : rows) {
        EXPECT_EQ(text->Value(section, key, 255), value) << section << " " << key;
        EXPECT_EQ(Read(section, key), Found(value)) << section << " " << key;
    }
}

TEST_F(PrivateProfileDeathTest, SectionAndKeyAreRequired)
{
    char text[8];
    EXPECT_DEATH(GetPrivateProfileStringA(nullptr, "Key", "", text, sizeof text, FILE_NAME),
                 "Assertion `lpAppName != NULL' failed");
    EXPECT_DEATH(GetPrivateProfileStringA("Common", nullptr, "", text, sizeof text, FILE_NAME),
                 "Assertion `lpKeyName != NULL' failed");
    EXPECT_DEATH(GetPrivateProfileIntA(nullptr, "Key", 0, FILE_NAME), "Assertion `lpAppName != NULL' failed");
    EXPECT_DEATH(GetPrivateProfileIntA("Common", nullptr, 0, FILE_NAME),
                 "Assertion `lpKeyName != NULL' failed");
}
