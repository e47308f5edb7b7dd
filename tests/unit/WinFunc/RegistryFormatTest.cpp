// The registry's text file, byte for byte: what the store writes, and how it reads existing text.
#include "LocalMachineKeys.h"
#include "RegistryPath.h"
#include "TextFiles.h"
#include "WinFunc.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

const char KEY[] = "Software\\ARVEN\\Ulmar Disc Maker";
const char PATH[] = "HKLM/Software/ARVEN/Ulmar Disc Maker";

void SetText(HKEY key, const char* name, const std::string& text)
{
    const auto* data = reinterpret_cast<const BYTE*>(text.c_str());
    EXPECT_EQ(RegSetValueExA(key, name, 0, REG_SZ, data, static_cast<DWORD>(text.size() + 1)), 0);
}

void SetNumber(HKEY key, const char* name, DWORD number)
{
    EXPECT_EQ(RegSetValueExA(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), 4), 0);
}

/// Writes a file with this text and loads it.
void Load(const std::string& text)
{
    WriteRegistry(text);
    ASSERT_TRUE(RegReadIn(O_RDWR));
}

using Texts = std::map<std::string, std::string, std::less<>>;
using Numbers = std::map<std::string, uint32_t, std::less<>>;

class RegistryFormat : public testing::Test
{
protected:
    void SetUp() override
    {
        umask(022);
        MakeConfFolder();
    }
};

} // namespace

TEST_F(RegistryFormat, ACreatedKeyIsWrittenAsASectionLineAndAnEmptyLine)
{
    RegCloseKey(Create(KEY));
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/Software/ARVEN/Ulmar Disc Maker]\n\n");
}

TEST_F(RegistryFormat, StringsComeFirstThenNumbersAsEightHexadecimalDigits)
{
    HKEY key = Create(KEY);
    SetNumber(key, "B", 42);
    SetText(key, "A", "text");
    RegCloseKey(key);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/Software/ARVEN/Ulmar Disc Maker]\n"
                                       "\"A\"=\"text\"\n"
                                       "\"B\"=dword:0000002a\n"
                                       "\n");
}

TEST_F(RegistryFormat, StringsPrecedeNumbersWhateverTheNames)
{
    HKEY key = Create("K");
    SetNumber(key, "A", 1);
    SetText(key, "Z", "z");
    SetText(key, "Y", "");
    SetNumber(key, "0", 0xFFFFFFFF);
    RegCloseKey(key);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/K]\n"
                                       "\"Y\"=\"\"\n"
                                       "\"Z\"=\"z\"\n"
                                       "\"0\"=dword:ffffffff\n"
                                       "\"A\"=dword:00000001\n"
                                       "\n");
}

TEST_F(RegistryFormat, SectionsAreInByteOrderOfTheirPaths)
{
    for (const char* name : {"b", "a\\x", "a", "B", "a b", "\xC3\xA4"}) {
        RegCloseKey(Create(name));
    }
    EXPECT_EQ(ReadText(REGISTRY_FILE),
              "[HKLM/B]\n\n[HKLM/a]\n\n[HKLM/a b]\n\n[HKLM/a/x]\n\n[HKLM/b]\n\n[HKLM/\xC3\xA4]\n\n");
}

TEST_F(RegistryFormat, NothingIsEscaped)
{
    HKEY key = Create("K");
    SetText(key, "a=b", "x\"y\\z");
    RegCloseKey(key);
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/K]\n\"a=b\"=\"x\"y\\z\"\n\n");
}

TEST_F(RegistryFormat, ALoadedFileIsWrittenBackUnchanged)
{
    const std::string text = "[HKCU/Other]\n\"n\"=\"v\"\n\n[HKLM/K]\n\"A\"=\"1\"\n\"B\"=dword:00000002\n\n";
    WriteRegistry(text);
    RegCloseKey(Create("K"));
    EXPECT_EQ(ReadText(REGISTRY_FILE), text);
}

TEST_F(RegistryFormat, ANewFileHasMode0644)
{
    ASSERT_TRUE(RegReadIn(O_RDWR));
    struct stat info = {};
    ASSERT_EQ(stat(REGISTRY_FILE, &info), 0);
    EXPECT_EQ(info.st_mode & 07777, 0644U);
    EXPECT_EQ(info.st_size, 0);

    ASSERT_EQ(unlink(REGISTRY_FILE), 0);
    ASSERT_TRUE(RegWriteOut());
    ASSERT_EQ(stat(REGISTRY_FILE, &info), 0);
    EXPECT_EQ(info.st_mode & 07777, 0644U);
}

TEST_F(RegistryFormat, AShorterTextReplacesALongerOneCompletely)
{
    WriteRegistry(std::string(5000, 'x') + "\n");
    RegCloseKey(Create("K"));
    EXPECT_EQ(ReadText(REGISTRY_FILE), "[HKLM/K]\n\n");
}

TEST_F(RegistryFormat, WriteOutFailsIfTheDiskIsFull)
{
    RegCloseKey(Create("A key whose section line is longer than the disk has room for"));
    signal(SIGXFSZ, SIG_IGN);
    const rlimit tiny = {10, 10};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tiny), 0);
    EXPECT_FALSE(RegWriteOut());
}

TEST_F(RegistryFormat, WriteOutFailsIfTheFileCannotBeOpened)
{
    ASSERT_TRUE(std::filesystem::create_directory(REGISTRY_FILE));
    EXPECT_FALSE(RegWriteOut());
}

// One line in section "[S]", and the values that it sets there.
struct LineCase
{
    const char* line;
    Texts texts;
    Numbers numbers;
};

TEST_F(RegistryFormat, LineTable)
{
    const LineCase cases[] = {
        {"\"a\"=\"text\"", {{"a", "text"}}, {}},
        {"\"a\"=\"\"", {{"a", ""}}, {}},
        {"\"\"=\"default\"", {{"", "default"}}, {}},
        {"\"a b\"=\" c \"", {{"a b", " c "}}, {}},
        {"\"a\"=\"x=y\"", {{"a", "x=y"}}, {}},
        {"\"a\"=\"cut\"here\"", {{"a", "cut"}}, {}},
        {"\"a\"=\"b\" behind", {{"a", "b"}}, {}},
        {"\"a\" anything =\"b\"", {{"a", "b"}}, {}},
        {"\"a\"=\"[x]\"", {{"a", "[x]"}}, {}},
        {"\"a\"=\"no end", {}, {}},
        {"\"a=b\"=\"c\"", {}, {}},
        {"\"=\"=\"c\"", {}, {}},
        {"\"a\"", {}, {}},
        {"\"a=", {}, {}},
        {"\"a\"= \"b\"", {}, {}},
        {"\"a\"=b", {}, {}},
        {"\"a\"=", {}, {}},
        {"\"", {}, {}},
        {"a=\"b\"", {}, {}},
        {" \"a\"=\"b\"", {}, {}},
        {"; comment", {}, {}},
        {"[no end", {}, {}},
        {"\"n\"=dword:0000002a", {}, {{"n", 42}}},
        {"\"n\"=dword:2A", {}, {{"n", 42}}},
        {"\"n\"=dword:0x2a", {}, {{"n", 42}}},
        {"\"n\"=dword:ffffffff", {}, {{"n", 0xFFFFFFFF}}},
        {"\"n\"=dword:-1", {}, {{"n", 0xFFFFFFFF}}},
        {"\"n\"=dword:123456789", {}, {{"n", 0x23456789}}},
        {"\"n\"=dword:99999999999999999999", {}, {{"n", 0xFFFFFFFF}}},
        {"\"n\"=dword:", {}, {{"n", 0}}},
        {"\"n\"=dword:rubbish", {}, {{"n", 0}}},
        {"\"n\"=DWORD:00000001", {}, {}},
        {"\"n\"=dword", {}, {}},
        {"\"n\"=hex:00", {}, {}},
        {"\"a\"=\"1\"\n\"a\"=dword:2", {{"a", "1"}}, {{"a", 2}}},
        {"\"a\"=\"1\"\n\"a\"=\"2\"", {{"a", "2"}}, {}},
        {"\"a\"=\"1\"\n\n\"b\"=\"2\"", {{"a", "1"}, {"b", "2"}}, {}},
        {"\"a\"=\"1\"\n[no end\n\"b\"=\"2\"", {{"a", "1"}, {"b", "2"}}, {}},
    };
    for (const LineCase& c : cases) {
        SCOPED_TRACE(c.line);
        g_Registry.clear();
        errno = 0;
        Load(std::string("[S]\n") + c.line + "\n[T]\n\"t\"=\"t\"\n");
        EXPECT_EQ(errno, 0); // also for a number out of range
        EXPECT_EQ(g_Registry["S"].stringValues, c.texts);
        EXPECT_EQ(g_Registry["S"].dwordValues, c.numbers);
        EXPECT_EQ(g_Registry["T"].stringValues, (Texts{{"t", "t"}}));
        EXPECT_EQ(g_Registry.size(), 2U);
    }
}

TEST_F(RegistryFormat, ASectionNameEndsAtTheFirstBracket)
{
    Load("[a]b]c\n\"x\"=\"1\"\n[]\n\"y\"=\"2\"\n");
    EXPECT_EQ(g_Registry["a"].stringValues, (Texts{{"x", "1"}}));
    EXPECT_EQ(g_Registry[""].stringValues, (Texts{{"y", "2"}}));
    EXPECT_EQ(g_Registry.size(), 2U);
}

TEST_F(RegistryFormat, ATextThatContainsAQuoteIsReadBackCut)
{
    HKEY key = Create("K");
    SetText(key, "a", "before\"behind");
    RegCloseKey(key);
    ASSERT_TRUE(RegReadIn(O_RDWR));
    EXPECT_EQ(g_Registry["HKLM/K"].stringValues, (Texts{{"a", "before"}}));
}

TEST_F(RegistryFormat, AValueLineBeforeAnySectionIsIgnored)
{
    Load("\"a\"=\"stray\"\n\"n\"=dword:1\n[S]\n\"b\"=\"own\"\n");
    EXPECT_EQ(g_Registry.size(), 1U);
    EXPECT_EQ(g_Registry["S"].stringValues, (Texts{{"b", "own"}}));
    EXPECT_TRUE(g_Registry["S"].dwordValues.empty());
}

TEST_F(RegistryFormat, ALoadMergesTheFileIntoTheMap)
{
    Load("[S]\n\"a\"=\"1\"\n\"b\"=\"2\"\n[T]\n\"t\"=\"t\"\n");
    Load("[S]\n\"a\"=\"new\"\n\"c\"=\"3\"\n");
    EXPECT_EQ(g_Registry["S"].stringValues, (Texts{{"a", "new"}, {"b", "2"}, {"c", "3"}}));
    EXPECT_EQ(g_Registry["T"].stringValues, (Texts{{"t", "t"}}));
}

TEST_F(RegistryFormat, AnEmptyFileLeavesTheMapEmpty)
{
    Load("");
    EXPECT_TRUE(g_Registry.empty());
}

TEST_F(RegistryFormat, TheLastLineNeedsNoLineFeed)
{
    Load("[S]\n\"a\"=\"1\"");
    EXPECT_EQ(g_Registry["S"].stringValues, (Texts{{"a", "1"}}));
}

TEST_F(RegistryFormat, LinesWithCrLfAreReadTheSame)
{
    Load("[S]\r\n\"a\"=\"1\"\r\n\"n\"=dword:0000000f\r\n\r\n");
    EXPECT_EQ(g_Registry["S"].stringValues, (Texts{{"a", "1"}}));
    EXPECT_EQ(g_Registry["S"].dwordValues, (Numbers{{"n", 15}}));
}

TEST_F(RegistryFormat, ALineEndsAtANulByte)
{
    using namespace std::string_literals;
    Load("[S]\n\"a\"=\"1\0\"\n\"b\0\"=\"2\"\n\"c\"=\"3\"\0\"\n[x\0y]\n\"d\"=\"4\"\n"s);
    EXPECT_EQ(g_Registry.size(), 1U);
    EXPECT_EQ(g_Registry["S"].stringValues, (Texts{{"c", "3"}, {"d", "4"}}));
}

// Lines are read in pieces of 1023 bytes. A value whose closing quote is in a later piece is lost.
TEST_F(RegistryFormat, AValueThatFillsOnePieceIsKept)
{
    for (const size_t length : {1021U, 1022U, 1023U}) {
        const std::string text(length - std::string("\"a\"=\"\"").size(), 'v');
        const std::string line = "\"a\"=\"" + text + "\"";
        ASSERT_EQ(line.size(), length);
        g_Registry.clear();
        Load("[S]\n" + line + "\n\"b\"=\"next\"\n");
        EXPECT_EQ(g_Registry["S"].stringValues, (Texts{{"a", text}, {"b", "next"}})) << length;
    }
}

TEST_F(RegistryFormat, AValueLongerThanOnePieceIsLostButTheNextLinesAreKept)
{
    for (const size_t length : {1024U, 1025U, 5000U}) {
        const std::string line = "\"a\"=\"" + std::string(length - 6, 'v') + "\"";
        ASSERT_EQ(line.size(), length);
        g_Registry.clear();
        Load("[S]\n" + line + "\n\"b\"=\"next\"\n");
        EXPECT_EQ(g_Registry["S"].stringValues, (Texts{{"b", "next"}})) << length;
    }
}

TEST_F(RegistryFormat, AValueLongerThanOnePieceIsLostWhereverItsLineBegins)
{
    const std::string line = "\"a\"=\"" + std::string(1024 - 6, 'v') + "\"";
    ASSERT_EQ(line.size(), 1024U);
    for (const size_t start : {15400U, 15800U, 16300U, 16383U, 16384U}) { // the file is read in 16384 bytes
        std::string before;
        while (before.size() < start - 500) {
            before += std::string(99, '#') + "\n";
        }
        before += std::string(start - before.size() - 5, '#') + "\n[S]\n";
        ASSERT_EQ(before.size(), start);
        g_Registry.clear();
        Load(before + line + "\n\"b\"=\"next\"\n");
        EXPECT_EQ(g_Registry["S"].stringValues, (Texts{{"b", "next"}})) << start;
    }
}

TEST_F(RegistryFormat, TheLastByteOfAFileOfAnySizeCounts)
{
    const std::string start = "[S]\n#";
    const std::string end = "\n\"n\"=dword:2a";
    for (const size_t size : {16383U, 16384U, 16385U, 16386U, 32769U}) {
        g_Registry.clear();
        Load(start + std::string(size - start.size() - end.size(), 'x') + end);
        EXPECT_EQ(std::filesystem::file_size(REGISTRY_FILE), size);
        EXPECT_EQ(g_Registry["S"].dwordValues, (Numbers{{"n", 42}})) << size;
    }
}

TEST_F(RegistryFormat, EachPieceOfALongLineIsParsedAsALine)
{
    Load("[S]\n" + std::string(1023, '#') + "[T]\n\"a\"=\"1\"\n" + std::string(1023, '#') + "\"b\"=\"2\"\n");
    EXPECT_TRUE(g_Registry["S"].stringValues.empty());
    EXPECT_EQ(g_Registry["T"].stringValues, (Texts{{"a", "1"}, {"b", "2"}}));
}

TEST_F(RegistryFormat, AFileLargerThanAnyBufferIsReadInFull)
{
    std::string text;
    for (int number = 0; number < 5000; ++number) {
        text += "[S/" + std::to_string(number) + "]\n\"name\"=\"" + std::to_string(number) + "\"\n\n";
    }
    Load(text);
    ASSERT_EQ(g_Registry.size(), 5000U);
    for (int number = 0; number < 5000; ++number) {
        const std::string digits = std::to_string(number);
        EXPECT_EQ(g_Registry["S/" + digits].stringValues, (Texts{{"name", digits}}));
    }
}

TEST_F(RegistryFormat, RandomBytesDoNotAffectLaterSections)
{
    std::mt19937 random(4711);
    const std::string marks = "[]\"=\n\ndword:"; // bytes that the reader searches for
    for (int round = 0; round < 200; ++round) {
        std::string text;
        for (int count = 0; count < 3000; ++count) {
            const auto number = random();
            text += number % 2 == 0 ? marks[number / 2 % marks.size()] : static_cast<char>(number >> 8);
        }
        Load(text + "\n[S]\n\"a\"=\"sound\"\n");
        ASSERT_EQ(g_Registry["S"].stringValues["a"], "sound");
    }
}

TEST_F(RegistryFormat, NonRegularFilesReadAsEmpty)
{
    ASSERT_EQ(mkfifo(REGISTRY_FILE, 0644), 0);
    EXPECT_TRUE(RegReadIn(O_RDWR));
    EXPECT_TRUE(RegReadIn(O_RDONLY));
    ASSERT_EQ(unlink(REGISTRY_FILE), 0);
    ASSERT_EQ(symlink("/dev/zero", REGISTRY_FILE), 0);
    EXPECT_TRUE(RegReadIn(O_RDWR));
    EXPECT_TRUE(g_Registry.empty());
}

struct PathCase
{
    HKEY root;
    const char* subKey;
    const char* path;
};

TEST_F(RegistryFormat, RootsHaveShortNamesAndPathsUseForwardSlashes)
{
    const PathCase cases[] = {
        {HKEY_CLASSES_ROOT, "a", "HKCR/a"},
        {HKEY_CURRENT_USER, "a", "HKCU/a"},
        {HKEY_LOCAL_MACHINE, "a", "HKLM/a"},
        {HKEY_USERS, "a", "HKU/a"},
        {HKEY_CURRENT_CONFIG, "a", "HKCC/a"},
        {HKEY_DYN_DATA, "a", "HKDD/a"},
        {HKEY_LOCAL_MACHINE, nullptr, "HKLM"},
        {HKEY_LOCAL_MACHINE, "", "HKLM/"},
        {HKEY_LOCAL_MACHINE, "a\\b/c\\", "HKLM/a/b/c/"},
        {HKEY_LOCAL_MACHINE, KEY, PATH},
    };
    for (const PathCase& c : cases) {
        EXPECT_EQ(RegGetFullPath(c.root, c.subKey), c.path);
    }
}

TEST_F(RegistryFormat, RootsHaveTheirPublicNumbers)
{
    EXPECT_EQ(reinterpret_cast<uintptr_t>(HKEY_CLASSES_ROOT), 0x80000000U);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(HKEY_CURRENT_USER), 0x80000001U);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(HKEY_LOCAL_MACHINE), 0x80000002U);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(HKEY_USERS), 0x80000003U);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(HKEY_CURRENT_CONFIG), 0x80000005U);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(HKEY_DYN_DATA), 0x80000006U);
    EXPECT_EQ(RegRootName(reinterpret_cast<HKEY>(uintptr_t{0x80000004})), nullptr) << "no root";
}

TEST_F(RegistryFormat, ThePathOfAnOpenKeyIsThePrefixOfItsSubKeys)
{
    HKEY key = Create("a\\b");
    EXPECT_EQ(RegGetFullPath(key, "c\\d"), "HKLM/a/b/c/d");
    EXPECT_EQ(RegGetFullPath(key, nullptr), "HKLM/a/b");
    RegCloseKey(key);
}
