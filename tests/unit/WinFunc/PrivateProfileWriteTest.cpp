// Writes to private profile files: the bytes of the file after each write, and the log lines of failures.
#include "ChildProcess.h"
#include "FileLocks.h"
#include "OrdinaryRights.h"
#include "SmallDisk.h"
#include "StdoutCapture.h"
#include "TextFiles.h"
#include "TrustedLink.h"
#include "Win_def.h"
#include "Win_def_log.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <gtest/gtest.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <thread>

namespace {

const char FILE_NAME[] = "/tmp/a.ini";

using namespace std::string_literals;

std::string Read(const char* section, const char* key, const char* file = FILE_NAME)
{
    char text[2048];
    GetPrivateProfileStringA(section, key, "cannot be opened", text, sizeof text, file);
    return text;
}

mode_t Mode(const char* path)
{
    struct stat info = {};
    EXPECT_EQ(stat(path, &info), 0);
    return info.st_mode & 07777;
}

/// The lines that a call logs at level 3: warnings, but no debug traces.
template <class Call>
std::string Logged(Call call)
{
    SetLogLevel(3);
    StdoutCapture output;
    call();
    return output.Stop();
}

void ExpectOneLine(const std::string& lines, const std::string& text)
{
    EXPECT_NE(lines.find(text + "\x1b"), std::string::npos) << lines;
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 1) << lines;
}

/// Makes every further read of a file fail with EIO.
bool BreakReading()
{
    sock_filter program[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_read, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EIO),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog filter = {sizeof program / sizeof program[0], program};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

using PrivateProfileWriteDeathTest = testing::Test;

} // namespace

// ---------------------------------------------------------------------------------------------------------------------
// One key

struct KeyCase
{
    const char* what;
    std::string before;
    const char* key;
    const char* value;
    std::string behind; // empty: refused, the file is unchanged
};

TEST(PrivateProfileWrite, KeyTable)
{
    const KeyCase cases[] = {
        {"an empty file", "", "Key", "value", "[Common]\nKey=value\n"},
        {"a new section", "[Other]\nA=1\n", "Key", "value", "[Other]\nA=1\n[Common]\nKey=value\n"},
        {"after an unfinished line", "[Other]\nA=1", "Key", "value", "[Other]\nA=1\n[Common]\nKey=value\n"},
        {"after two bytes", "ab", "Key", "value", "ab\n[Common]\nKey=value\n"},
        {"after one byte", "a", "Key", "value", "a[Common]\nKey=value\n"},
        {"after one line feed", "\n", "Key", "value", "\n[Common]\nKey=value\n"},
        {"a new key becomes the first", "[Common]\nA=1\nB=2\n", "Key", "value",
         "[Common]\nKey=value\nA=1\nB=2\n"},
        {"in an empty section", "[Common]\n", "Key", "value", "[Common]\nKey=value\n"},
        {"a section between others", "[A]\nKey=0\n[Common]\n[B]\nKey=9\n", "Key", "value",
         "[A]\nKey=0\n[Common]\nKey=value\n[B]\nKey=9\n"},
        {"a section line with CR LF", "[Common]\r\nA=1\r\n", "Key", "value",
         "[Common]\nKey=value\n\nA=1\r\n"},
        {"a value of the same length", "[Common]\nKey=abc\nB=2\n", "Key", "xyz", "[Common]\nKey=xyz\nB=2\n"},
        {"a longer value", "[Common]\nKey=1\nB=2\n", "Key", "12345", "[Common]\nKey=12345\nB=2\n"},
        {"a shorter value keeps the old end of the file", "[Common]\nKey=12345\nB=abcd\n", "Key", "1",
         "[Common]\nKey=1\nB=abcd\nbcd\n"},
        {"an empty value", "[Common]\nKey=1\n", "Key", "", "[Common]\nKey=\n\n"},
        {"an empty value is replaced", "[Common]\nKey=\nB=2\n", "Key", "value", "[Common]\nKey=value\nB=2\n"},
        {"a blank before the equals sign is the delimiter", "[Common]\nKey = 1\n", "Key", "234",
         "[Common]\nKey 234\n"},
        {"a tab before the equals sign is the delimiter", "[Common]\nKey\t=1\n", "Key", "2",
         "[Common]\nKey\t2\n\n"},
        {"case matters for the key", "[Common]\nKEY=old\n", "Key", "new", "[Common]\nKey=new\nKEY=old\n"},
        {"case matters for the section", "[COMMON]\nKey=old\n", "Key", "new",
         "[COMMON]\nKey=old\n[Common]\nKey=new\n"},
        {"a match at the end of an earlier key", "[Common]\nMyKey=1\nKey=2\n", "Key", "3",
         "[Common]\nMyKey=3\nKey=2\n"},
        {"a match in an earlier value", "[Common]\nA=Key x\nKey=2\n", "Key", "3",
         "[Common]\nA=Key 3\nKey=2\n"},
        {"a match of the section in a value", "[A]\nB=[Common] \nC=1\n", "Key", "v",
         "[A]\nB=[Common]\nKey=v\n\nC=1\n"},
        {"a key without a delimiter uses that of the next line", "[Common]\nKey\nB=1\n", "Key", "2",
         "[Common]\nKey\nB=2\n"},
        {"one byte after the section's name is removed", "[Common]x\nA=1\n", "Key", "v",
         "[Common]\nKey=v\n\nA=1\n"},
        {"a bracket in a value hides later keys", "[Common]\nA=[x]\nKey=1\n", "Key", "2",
         "[Common]\nKey=2\nA=[x]\nKey=1\n"},
        {"a key that begins with a bracket", "[Common]\n[Key=1\n", "[Key", "2", "[Common]\n[Key=2\n"},
        {"the key on an unfinished last line", "[Common]\nA=1\nKey=old", "Key", "new", ""},
        {"the key without a delimiter on the last line", "[Common]\nA=1\nKey", "Key", "new", ""},
        {"the section line ends the file", "[A]\nB=1\n[Common]", "Key", "new", ""},
        {"the section line is the whole file", "[Common]", "Key", "new", ""},
        {"a key without a name", "[Common]\nA=1\n", "", "new", ""},
        {"bytes after a NUL are kept", "[Common]\nKey=1\n\0\xFFrest\n"s, "Key", "2",
         "[Common]\nKey=2\n\0\xFFrest\n"s},
        {"a key after a NUL is not found", "[Common]\n\0Key=1\n"s, "Key", "2", "[Common]\nKey=2\n\0Key=1\n"s},
        {"a section after a NUL is not found", "a\0\n[Common]\nKey=1\n"s, "Key", "2",
         "a\0\n[Common]\nKey=1\n[Common]\nKey=2\n"s},
        {"a NUL ends the section line", "[Common]\0\nKey=1\n"s, "Key", "2", ""},
        {"a NUL ends the key's line", "[Common]\nKey=1\0\n"s, "Key", "2", ""},
        {"bytes above 126 are kept", "[Common]\nN=\xC3\xA4\nKey=1\n", "Key", "\xC3\xBC",
         "[Common]\nN=\xC3\xA4\nKey=\xC3\xBC\n"},
    };
    for (const KeyCase& c : cases) {
        SCOPED_TRACE(c.what);
        WriteText(FILE_NAME, c.before);
        BOOL result = FALSE;
        EXPECT_EQ(Logged([&] { result = WritePrivateProfileStringA("Common", c.key, c.value, FILE_NAME); }),
                  "");
        EXPECT_EQ(result, c.behind.empty() ? FALSE : TRUE);
        EXPECT_EQ(ReadText(FILE_NAME), c.behind.empty() ? c.before : c.behind);
    }
}

TEST(PrivateProfileWrite, TheKeyWriterCreatesMode0755AndTheSectionWriter0600)
{
    umask(0);
    EXPECT_TRUE(WritePrivateProfileStringA("Common", "Key", "value", FILE_NAME));
    EXPECT_EQ(Mode(FILE_NAME), 0755U);
    EXPECT_EQ(ReadText(FILE_NAME), "[Common]\nKey=value\n");
    EXPECT_TRUE(WritePrivateProfileSectionA("Common", "Key=value\0", "/tmp/b.ini"));
    EXPECT_EQ(Mode("/tmp/b.ini"), 0600U);
    EXPECT_EQ(ReadText("/tmp/b.ini"), "[Common]\nKey=value\n");
}

TEST(PrivateProfileWrite, AKeyWrittenInAnotherCaseIsReadFirst)
{
    WriteText(FILE_NAME, "[Common]\nKEY=old\n");
    EXPECT_TRUE(WritePrivateProfileStringA("Common", "key", "new", FILE_NAME));
    EXPECT_EQ(ReadText(FILE_NAME), "[Common]\nkey=new\nKEY=old\n");
    EXPECT_EQ(Read("Common", "Key"), "new");
}

TEST(PrivateProfileWrite, ASectionWrittenInAnotherCaseIsReadSecond)
{
    WriteText(FILE_NAME, "[COMMON]\nKey=first\n");
    EXPECT_TRUE(WritePrivateProfileStringA("Common", "Key", "second", FILE_NAME));
    EXPECT_TRUE(WritePrivateProfileStringA("Common", "Other", "only here", FILE_NAME));
    EXPECT_EQ(ReadText(FILE_NAME), "[COMMON]\nKey=first\n[Common]\nOther=only here\nKey=second\n");
    EXPECT_EQ(Read("Common", "Key"), "first");
    EXPECT_EQ(Read("Common", "Other"), "only here");
}

TEST(PrivateProfileWrite, WritingOneDigitOverFiveKeepsTheLastFourBytesOfTheFile)
{
    WriteText(FILE_NAME, "[Common]\nStacker3=12345\nName=abcdefg\n");
    EXPECT_TRUE(WritePrivateProfileStringA("Common", "Stacker3", "7", FILE_NAME));
    EXPECT_EQ(ReadText(FILE_NAME), "[Common]\nStacker3=7\nName=abcdefg\nefg\n");
    EXPECT_EQ(Read("Common", "Name"), "abcdefg");
}

TEST(PrivateProfileWrite, LongTextsAreWrittenInFull)
{
    const std::string before(3000000, 'x');
    WriteText(FILE_NAME, "[A]\n" + before + "\n[Common]\nKey=1\n[Z]\n" + before);
    const std::string value(100000, 'v');
    EXPECT_TRUE(WritePrivateProfileStringA("Common", "Key", value.c_str(), FILE_NAME));
    EXPECT_EQ(ReadText(FILE_NAME), "[A]\n" + before + "\n[Common]\nKey=" + value + "\n[Z]\n" + before);
}

TEST(PrivateProfileWrite, AFileTooLargeForOneWriteIsRefused)
{
    WriteText(FILE_NAME, "[Common]\nKey=1\n");
    std::filesystem::resize_file(FILE_NAME, 3ULL << 30);
    const std::string lines =
        Logged([] { EXPECT_FALSE(WritePrivateProfileStringA("Common", "Key", "2", FILE_NAME)); });
    ExpectOneLine(lines, "WritePrivateProfileStringA, read failed with errno=27");
    EXPECT_FALSE(WritePrivateProfileSectionA("Common", "Key=2\0", FILE_NAME));
    EXPECT_EQ(std::filesystem::file_size(FILE_NAME), 3ULL << 30);
    EXPECT_EQ(Read("Common", "Key"), "1");
}

TEST(PrivateProfileWrite, ALinkIsFollowed)
{
    WriteText("/tmp/target.ini", "[Common]\nKey=1\nLong=" + std::string(500, 'x') + "\n");
    ASSERT_EQ(symlink("/tmp/target.ini", FILE_NAME), 0);
    EXPECT_TRUE(WritePrivateProfileStringA("Common", "Key", "2", FILE_NAME));
    EXPECT_EQ(ReadText("/tmp/target.ini"), "[Common]\nKey=2\nLong=" + std::string(500, 'x') + "\n");
    EXPECT_TRUE(std::filesystem::is_symlink(FILE_NAME));
}

TEST(PrivateProfileWrite, OnlyLinksOfRootAndOfThisUserAreFollowed)
{
    const uid_t self = geteuid();
    const uid_t somebody = self + 1000;
    const struct
    {
        mode_t kind;
        uid_t owner;
        int flags;
    } rows[] = {
        {S_IFLNK, 0, 0},
        {S_IFLNK, self, 0},
        {S_IFLNK, somebody, O_NOFOLLOW},
        {S_IFREG, 0, O_NOFOLLOW}, // it may have become a link by the time it is opened
        {S_IFREG, self, O_NOFOLLOW},
        {S_IFREG, somebody, O_NOFOLLOW},
    };
    for (const auto& row : rows) {
        struct stat info = {};
        info.st_mode = row.kind | S_IRUSR;
        info.st_uid = row.owner;
        EXPECT_EQ(NoFollowUnlessTrusted(info), row.flags) << row.kind << " of " << row.owner;
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Failures

TEST(PrivateProfileWrite, AFailedLstatIsLogged)
{
    WriteText("/tmp/file", "");
    const std::string lines =
        Logged([] { EXPECT_FALSE(WritePrivateProfileStringA("Common", "Key", "v", "/tmp/file/a.ini")); });
    ExpectOneLine(lines, "WritePrivateProfileStringA, lstat failed with errno=20");
}

TEST(PrivateProfileWrite, AFileThatCannotBeOpenedIsLogged)
{
    WriteText(FILE_NAME, "[Common]\n");
    ASSERT_EQ(chmod(FILE_NAME, 0444), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    const std::string lines =
        Logged([] { EXPECT_FALSE(WritePrivateProfileStringA("Common", "Key", "v", FILE_NAME)); });
    ExpectOneLine(lines, "WritePrivateProfileStringA, open(,O_RDWR) failed with errno=13");
}

TEST(PrivateProfileWrite, AFileThatCannotBeReadIsLogged)
{
    WriteText(FILE_NAME, "[Common]\n");
    const int other = open(FILE_NAME, O_RDWR | O_CLOEXEC);
    // In a thread of its own: gcov reads its files when the process ends, and replaces those that it cannot
    // read.
    const std::string lines = Logged([] {
        std::thread([] {
            EXPECT_TRUE(BreakReading());
            EXPECT_FALSE(WritePrivateProfileStringA("Common", "Key", "v", FILE_NAME));
        }).join();
    });
    ExpectOneLine(lines, "WritePrivateProfileStringA, read failed with errno=5");
    EXPECT_EQ(flock(other, LOCK_EX | LOCK_NB), 0) << "the lock is released";
    close(other);
}

TEST(PrivateProfileWrite, AFileThatCannotBeCreatedIsLogged)
{
    const std::string lines =
        Logged([] { EXPECT_FALSE(WritePrivateProfileStringA("Common", "Key", "v", "/tmp/absent/a.ini")); });
    ExpectOneLine(lines, "WritePrivateProfileStringA, open(,O_RDWR|O_CREAT|O_EXCL) failed with errno=2");
}

TEST(PrivateProfileWrite, AFailedWriteIsLogged)
{
    const std::string lines =
        Logged([] { EXPECT_FALSE(WritePrivateProfileStringA("Common", "Key", "v", "/dev/full")); });
    ExpectOneLine(lines, "WritePrivateProfileStringA, write failed with errno=28");
}

TEST(PrivateProfileWrite, AShortWriteIsNotDetected)
{
    signal(SIGXFSZ, SIG_IGN);
    const rlimit tiny = {12, 12};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tiny), 0);
    EXPECT_TRUE(WritePrivateProfileStringA("Common", "Key", "value", FILE_NAME));
    EXPECT_EQ(ReadText(FILE_NAME), "[Common]\nKey");
}

// A changed value is written over the old one, and a setting file ends within its first block.
TEST(PrivateProfileWrite, AFullDiskDoesNotPreventAChangeWithinTheLastBlock)
{
    MountSmallDisk("/tmp/disk");
    WriteText("/tmp/disk/a.ini", "[Common]\nKey=1\nOther=2\n");
    FillDisk("/tmp/disk");
    EXPECT_TRUE(WritePrivateProfileStringA("Common", "Key", "a longer value", "/tmp/disk/a.ini"));
    EXPECT_EQ(ReadText("/tmp/disk/a.ini"), "[Common]\nKey=a longer value\nOther=2\n");
    EXPECT_TRUE(WritePrivateProfileSectionA("Common", "Key=3\0Other=4\0New=5\0", "/tmp/disk/a.ini"));
    EXPECT_EQ(Read("Common", "New", "/tmp/disk/a.ini"), "5");
}

TEST(PrivateProfileWrite, AFullDiskLeavesTheTextUnchangedAndANewFileEmpty)
{
    MountSmallDisk("/tmp/disk");
    const std::string text = "[Common]\nKey=" + std::string(4096 - 14, 'x') + "\n";
    ASSERT_EQ(text.size(), 4096U);
    WriteText("/tmp/disk/a.ini", text);
    FillDisk("/tmp/disk");
    const std::string lines = Logged([] {
        EXPECT_FALSE(WritePrivateProfileStringA("New", "Key", "v", "/tmp/disk/a.ini"));
        EXPECT_FALSE(WritePrivateProfileStringA("New", "Key", "v", "/tmp/disk/b.ini"));
        EXPECT_FALSE(WritePrivateProfileSectionA("New", "Key=v\0", "/tmp/disk/a.ini"));
        EXPECT_FALSE(WritePrivateProfileSectionA("New", "Key=v\0", "/tmp/disk/c.ini"));
    });
    EXPECT_EQ(ReadText("/tmp/disk/a.ini"), text);
    EXPECT_TRUE(std::filesystem::is_empty("/tmp/disk/b.ini"));
    EXPECT_TRUE(std::filesystem::is_empty("/tmp/disk/c.ini"));
    const std::string failed = "WritePrivateProfileStringA, write failed with errno=28\x1b";
    const size_t first = lines.find(failed);
    ASSERT_NE(first, std::string::npos) << lines;
    EXPECT_NE(lines.find(failed, first + 1), std::string::npos) << lines;
}

TEST(PrivateProfileWrite, BelowTheWarningLevelNothingIsLogged)
{
    SetLogLevel(1);
    StdoutCapture output;
    EXPECT_FALSE(WritePrivateProfileStringA("Common", "Key", "v", "/tmp/absent/a.ini"));
    EXPECT_EQ(output.Stop(), "");
}

TEST(PrivateProfileWrite, TheSectionWriterDoesNotLogFailures)
{
    WriteText("/tmp/file", "");
    const std::string lines = Logged([] {
        EXPECT_FALSE(WritePrivateProfileSectionA("Common", "Key=v\0", "/tmp/file/a.ini"));
        EXPECT_FALSE(WritePrivateProfileSectionA("Common", "Key=v\0", "/tmp/absent/a.ini"));
        EXPECT_FALSE(WritePrivateProfileSectionA("Common", "Key=v\0", "/tmp"));
        EXPECT_FALSE(WritePrivateProfileSectionA("Common", "Key=v\0", "/dev/full"));
    });
    EXPECT_EQ(lines, "");
}

TEST_F(PrivateProfileWriteDeathTest, NoArgumentMayBeNull)
{
    EXPECT_DEATH(WritePrivateProfileStringA(nullptr, "k", "v", FILE_NAME), "lpAppName != NULL");
    EXPECT_DEATH(WritePrivateProfileStringA("s", nullptr, "v", FILE_NAME), "lpKeyName != NULL");
    EXPECT_DEATH(WritePrivateProfileStringA("s", "k", nullptr, FILE_NAME), "lpString != NULL");
    EXPECT_DEATH(WritePrivateProfileStringA("s", "k", "v", nullptr), "lpFileName != NULL");
    EXPECT_DEATH(WritePrivateProfileSectionA(nullptr, "k=v\0", FILE_NAME), "lpAppName != NULL");
    EXPECT_DEATH(WritePrivateProfileSectionA("s", nullptr, FILE_NAME), "lpKeyValuePairs != NULL");
    EXPECT_DEATH(WritePrivateProfileSectionA("s", "k=v\0", nullptr), "lpFileName != NULL");
}

// ---------------------------------------------------------------------------------------------------------------------
// A whole section

struct SectionCase
{
    const char* what;
    std::string before;
    std::string pairs;  // each ended by NUL; the string's own NUL ends the list
    std::string behind; // empty: refused, the file is unchanged
};

TEST(PrivateProfileWrite, SectionTable)
{
    const SectionCase cases[] = {
        {"an empty file", "", "A=1\0B=2\0"s, "[Common]\nA=1\nB=2\n"},
        {"a new section", "[Other]\nC=3\n", "A=1\0B=2\0"s, "[Other]\nC=3\n[Common]\nA=1\nB=2\n"},
        {"after an unfinished line", "[Other]\nC=3", "A=1\0"s, "[Other]\nC=3\n[Common]\nA=1\n"},
        {"after one byte", "a", "A=1\0"s, "a[Common]\nA=1\n"},
        {"all lines are replaced, including blank ones", "[Common]\nA=1\n\nX=9\n\n[Z]\nz=1\n",
         "A=2\0BB=345\0"s, "[Common]\nA=2\nBB=345\n[Z]\nz=1\n"},
        {"a shorter section keeps the old end of the file", "[Common]\nA=1\n[Z]\nz=1\n", ""s,
         "[Common]\n[Z]\nz=1\nz=1\n"},
        {"the last section", "[Z]\nz=1\n[Common]\nA=1\n", "A=2\0"s, "[Z]\nz=1\n[Common]\nA=2\n"},
        {"the last section, shorter", "[Common]\nA=12345\n", "A=1\0"s, "[Common]\nA=1\n345\n"},
        {"a section without lines", "[Common]\n[Z]\n", "A=1\0"s, "[Common]\nA=1\n[Z]\n"},
        {"the section ends at the next bracket anywhere", "[Common]\nA=1[2]\nB=1\n", "A=222\0"s,
         "[Common]\nA=222\n[2]\nB=1\n"},
        {"the section line ends the file", "[Z]\nz=1\n[Common]", "A=1\0"s, ""},
        {"bytes after a NUL are kept", "[Common]\nA=1\n\0\xFFrest\n"s, "A=1\0B=2\0"s,
         "[Common]\nA=1\nB=2\n\0\xFFrest\n"s},
        {"a NUL ends the section line", "[Common]\0\nA=1\n"s, "A=2\0"s, ""},
    };
    for (const SectionCase& c : cases) {
        SCOPED_TRACE(c.what);
        WriteText(FILE_NAME, c.before);
        EXPECT_EQ(WritePrivateProfileSectionA("Common", c.pairs.c_str(), FILE_NAME),
                  c.behind.empty() ? FALSE : TRUE);
        EXPECT_EQ(ReadText(FILE_NAME), c.behind.empty() ? c.before : c.behind);
    }
}

TEST(PrivateProfileWrite, TheSectionWriterLogsATraceLine)
{
    SetLogLevel(4);
    StdoutCapture output;
    EXPECT_TRUE(WritePrivateProfileSectionA("Common", "A=1\0B=2\0", FILE_NAME));
    const std::string lines = output.Stop();
    EXPECT_NE(lines.find("WritePrivateProfileSectionA(\"Common\", \"A=1\", \"/tmp/a.ini\")\n"),
              std::string::npos)
        << lines;
}

TEST(PrivateProfileWrite, TheSectionWriterClearsErrno)
{
    WriteText(FILE_NAME, "[Common]\nA=1\n");
    SetLogLevel(3);
    errno = ENOTTY;
    const BOOL result = WritePrivateProfileSectionA("Common", "A=2\0", FILE_NAME);
    const int error = errno;
    EXPECT_TRUE(result);
    EXPECT_EQ(error, 0);
}

TEST(PrivateProfileWrite, BelowTheDebugLevelThereIsNoTraceLine)
{
    EXPECT_EQ(Logged([] { EXPECT_TRUE(WritePrivateProfileSectionA("Common", "A=1\0", FILE_NAME)); }), "");
}

// ---------------------------------------------------------------------------------------------------------------------
// Several processes on one file

TEST(PrivateProfileProcess, ReadersAndWritersWaitForTheLock)
{
    WriteText(FILE_NAME, "[Common]\nKey=1\n");
    EXPECT_TRUE(WaitsForItsTurn(FILE_NAME, [] { return Read("Common", "Key") == "1"; }));
    EXPECT_TRUE(
        WaitsForItsTurn(FILE_NAME, [] { return GetPrivateProfileIntA("Common", "Key", 0, FILE_NAME) == 1; }));
    EXPECT_TRUE(WaitsForItsTurn(
        FILE_NAME, [] { return WritePrivateProfileStringA("Common", "Key", "2", FILE_NAME) == TRUE; }));
    EXPECT_TRUE(WaitsForItsTurn(
        FILE_NAME, [] { return WritePrivateProfileSectionA("Common", "Key=3\0", FILE_NAME) == TRUE; }));
    EXPECT_EQ(ReadText(FILE_NAME), "[Common]\nKey=3\n");
}

TEST(PrivateProfileProcess, ReadersSeeWholeValuesWhileAWriterRuns)
{
    constexpr int rounds = 400;
    WriteText(FILE_NAME, "[Common]\nFirst=aaaaaaaa\nCount=1000\nLast=zzzzzzzz\n");
    const pid_t writer = StartChild([] {
        for (int round = 0; round < rounds; ++round) {
            const std::string number = std::to_string(1000 + round);
            if (!WritePrivateProfileStringA("Common", "Count", number.c_str(), FILE_NAME)) {
                return false;
            }
        }
        return true;
    });
    const auto read = [] {
        UINT last = 1000;
        while (last < 1000 + rounds - 1) {
            const UINT number = GetPrivateProfileIntA("Common", "Count", 0, FILE_NAME);
            if (number < last || Read("Common", "First") != "aaaaaaaa" ||
                Read("Common", "Last") != "zzzzzzzz") {
                return false;
            }
            last = number;
        }
        return true;
    };
    const pid_t reader = StartChild(read);
    EXPECT_TRUE(read());
    EXPECT_TRUE(WaitFor(reader));
    EXPECT_TRUE(WaitFor(writer));
}

TEST(PrivateProfileProcess, WritersThatExtendTheFileLoseNothing)
{
    constexpr int keys = 100;
    WriteText(FILE_NAME, "[Common]\nEnd=1\n");
    const auto write = [](const char* prefix) {
        for (int number = 0; number < keys; ++number) {
            const std::string key = prefix + std::to_string(1000 + number);
            if (!WritePrivateProfileStringA("Common", key.c_str(), "1", FILE_NAME)) {
                return false;
            }
        }
        return true;
    };
    const pid_t first = StartChild([&] { return write("A"); });
    const pid_t second = StartChild([&] { return write("B"); });
    EXPECT_TRUE(WaitFor(first));
    EXPECT_TRUE(WaitFor(second));
    for (const std::string prefix : {"A", "B"}) {
        for (int number = 0; number < keys; ++number) {
            EXPECT_EQ(Read("Common", (prefix + std::to_string(1000 + number)).c_str()), "1");
        }
    }
    EXPECT_EQ(Read("Common", "End"), "1");
    EXPECT_EQ(ReadText(FILE_NAME).size(), std::string("[Common]\nEnd=1\n").size() + size_t{2 * keys} * 8);
}
