// Path helpers.
#include "OpenDescriptors.h"
#include "OrdinaryRights.h"
#include "TextFiles.h"
#include "Utility.h"

#include <cerrno>
#include <filesystem>
#include <string>
#include <type_traits>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

static_assert(CUtility::ACCESS_NONE == 0 && CUtility::ACCESS_READ == 1 && CUtility::ACCESS_READ_WRITE == 2 &&
              CUtility::ACCESS_EXECUTE == 3);
static_assert(std::has_virtual_destructor_v<CUtility>);

struct Text
{
    const char* path;
    const char* result;
};

TEST(PathUtilityTest, IsPathBackSlash)
{
    struct Row
    {
        const char* path;
        bool result;
    };
    for (const Row& row : {Row{"", false}, Row{"/", true}, Row{"a", false}, Row{"a/", true}, Row{"/a", false},
                           Row{"/a/b/", true}, Row{"a//", true}, Row{"a\\", false}}) {
        EXPECT_EQ(CUtility::IsPathBackSlash(row.path), row.result) << row.path;
    }
    EXPECT_DEATH(CUtility::IsPathBackSlash(nullptr), "Assertion .\\(pszPath != ");
}

TEST(PathUtilityTest, AddBackSlash)
{
    for (const Text& row :
         {Text{"", "/"}, Text{"/", "/"}, Text{"/a", "/a/"}, Text{"/a/", "/a/"}, Text{"a\\", "a\\/"}}) {
        CString path = row.path;
        CUtility::AddBackSlash(path);
        EXPECT_EQ(path, row.result) << row.path;
    }
}

TEST(PathUtilityTest, RemoveBackSlash)
{
    for (const Text& row : {Text{"", ""}, Text{"/", ""}, Text{"///", ""}, Text{"/a", "/a"}, Text{"/a/", "/a"},
                            Text{"/a///", "/a"}, Text{"a\\", "a\\"}}) {
        CString path = row.path;
        CUtility::RemoveBackSlash(path);
        EXPECT_EQ(path, row.result) << row.path;
    }
}

TEST(PathUtilityTest, IsFullPath)
{
    struct Row
    {
        const char* path;
        bool result;
    };
    const Row rows[] = {
        {nullptr, false},   {"", false},     {"/", false},   {"/opt", false},    {"//", true},
        {"//server", true}, {"\\\\", true},  {"\\", false},  {"\\\\s\\d", true}, {"c:", false},
        {"c:/", true},      {"C:\\x", true}, {"c:x", false}, {"1:/", false},     {":/", false},
        {"cd:/", false},    {"a", false},    {"../", false}, {"z:/", true},      {"Z:\\", true},
        {"@:/", false},     {"[:/", false},  {"`:/", false}, {"{:/", false},     {"\xe9:/", false},
        {"a:/", true},      {"A:\\", true},  {"ab/", false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(CUtility::IsFullPath(row.path), row.result) << (row.path == nullptr ? "NULL" : row.path);
    }
}

TEST(PathUtilityTest, CombinePath)
{
    EXPECT_EQ(CUtility::CombinePath("/a", "b"), "/a/b");
    EXPECT_EQ(CUtility::CombinePath("/a/", "b"), "/a/b");
    EXPECT_EQ(CUtility::CombinePath("/a", "/b"), "/a//b");
    EXPECT_EQ(CUtility::CombinePath("/a", ""), "/a/");
    EXPECT_EQ(CUtility::CombinePath("", "b"), "/b");
    EXPECT_EQ(CUtility::CombinePath("Software\\ARVEN", "{id}"), "Software\\ARVEN/{id}");
    const std::string longName(5000, 'n');
    EXPECT_EQ(CUtility::CombinePath(longName.c_str(), longName.c_str()), longName + "/" + longName);
    EXPECT_DEATH(CUtility::CombinePath(nullptr, "b"), "Assertion .\\(pPath != ");
    EXPECT_DEATH(CUtility::CombinePath("/a", nullptr), "Assertion .\\(pFileName != ");
}

TEST(PathUtilityTest, GetFileNameFromPath)
{
    for (const Text& row :
         {Text{"/a/b.c", "b.c"}, Text{"/a/b/", "b"}, Text{"/a/b///", "b"}, Text{"b", "b"}, Text{"/b", "b"},
          Text{"/", ""}, Text{"", ""}, Text{"a\\b", "a\\b"}, Text{nullptr, ""}}) {
        EXPECT_EQ(CUtility::GetFileNameFromPath(row.path), row.result);
    }
}

TEST(PathUtilityTest, GetFileNameFromPathNoExt)
{
    for (const Text& row :
         {Text{"/a/b.c", "b"}, Text{"/a/b.c.d", "b.c"}, Text{"/a/b", "b"}, Text{"/a.x/b", "b"},
          Text{"/a/.c", ""}, Text{"/a/b.", "b"}, Text{"/a/b.c/", "b"}, Text{"", ""}}) {
        EXPECT_EQ(CUtility::GetFileNameFromPathNoExt(row.path), row.result) << row.path;
    }
}

TEST(PathUtilityTest, GetFileExtFromPath)
{
    struct Row
    {
        const char* path;
        const char* withDot;
        const char* without;
    };
    for (const Row& row :
         {Row{"/a/b.c", ".c", "c"}, Row{"/a/b.c.d", ".d", "d"}, Row{"/a/b", "", ""}, Row{"b.", ".", ""},
          Row{".c", ".c", "c"}, Row{"", "", ""}, Row{"/a.x/b", ".x/b", "x/b"}}) {
        EXPECT_EQ(CUtility::GetFileExtFromPath(row.path, true), row.withDot) << row.path;
        EXPECT_EQ(CUtility::GetFileExtFromPath(row.path, false), row.without) << row.path;
    }
}

TEST(PathUtilityTest, GetFolderPathFromFilePath)
{
    for (const Text& row : {Text{"/a/b.c", "/a"}, Text{"/a/b/", "/a"}, Text{"/a//b", "/a/"}, Text{"/a", ""},
                            Text{"a/b", "a"}, Text{"/", ""}, Text{"", ""}, Text{"a", ""}}) {
        EXPECT_EQ(CUtility::GetFolderPathFromFilePath(row.path), row.result) << row.path;
    }
}

constexpr CUtility::enAccessMode allModes[] = {CUtility::ACCESS_NONE, CUtility::ACCESS_READ,
                                               CUtility::ACCESS_READ_WRITE, CUtility::ACCESS_EXECUTE};

class CheckPathTest : public testing::Test
{
protected:
    void SetUp() override
    {
        fs::create_directory("/tmp/folder");
        WriteText("/tmp/file", "text");
    }
};

using CheckFilePathTest = CheckPathTest;
using CheckFolderPathTest = CheckPathTest;
using CreateFolderTest = CheckPathTest;

TEST_F(CheckPathTest, EmptyAndMissingPathsReturn3)
{
    for (const CUtility::enAccessMode mode : allModes) {
        for (const char* path :
             {static_cast<const char*>(nullptr), "", "/tmp/absent", "/tmp/absent/below", "/tmp/file/below"}) {
            EXPECT_EQ(CUtility::CheckFilePath(path, mode), 3);
            EXPECT_EQ(CUtility::CheckFolderPath(path, mode), 3);
        }
    }
}

TEST_F(CheckFilePathTest, AnEarlierErrnoIsReplacedByThatOfThePath)
{
    errno = EEXIST;
    EXPECT_EQ(CUtility::CheckFilePath("/tmp/folder", CUtility::ACCESS_NONE), 0);
    EXPECT_EQ(errno, 0);
    errno = EEXIST;
    EXPECT_EQ(CUtility::CheckFilePath("/tmp/absent", CUtility::ACCESS_NONE), 3);
    EXPECT_EQ(errno, ENOENT);
}

TEST_F(CheckFilePathTest, ARegularFileReturns267)
{
    for (const mode_t mode : {0644, 0444, 0000}) {
        ASSERT_EQ(chmod("/tmp/file", mode), 0);
        EXPECT_EQ(CUtility::CheckFilePath("/tmp/file", CUtility::ACCESS_NONE), 267);
        EXPECT_EQ(CUtility::CheckFilePath("/tmp/file", CUtility::ACCESS_READ), 267);
    }
}

TEST_F(CheckFilePathTest, ARegularFileInAnyOtherAccessModeStopsTheProcess)
{
    EXPECT_DEATH(CUtility::CheckFilePath("/tmp/file", CUtility::ACCESS_READ_WRITE),
                 "Assertion .\\(\\(0\\)\\) != FALSE. failed");
    EXPECT_DEATH(CUtility::CheckFilePath("/tmp/file", CUtility::ACCESS_EXECUTE),
                 "Assertion .\\(\\(0\\)\\) != FALSE. failed");
}

TEST_F(CheckFilePathTest, AFolderCanBeOpenedForReadingOnly)
{
    EXPECT_EQ(CUtility::CheckFilePath("/tmp/folder", CUtility::ACCESS_NONE), 0);
    EXPECT_EQ(CUtility::CheckFilePath("/tmp/folder", CUtility::ACCESS_READ), 0);
    EXPECT_EQ(CUtility::CheckFilePath("/tmp/folder", CUtility::ACCESS_EXECUTE), 3) << "EISDIR";
    EXPECT_DEATH(CUtility::CheckFilePath("/tmp/folder", CUtility::ACCESS_READ_WRITE), "Assertion ");
    EXPECT_EQ(CUtility::CheckFilePath("/dev/null", CUtility::ACCESS_EXECUTE), 0);
}

TEST_F(CheckPathTest, PathsThatAreReadOnlyForEveryoneReturn6009)
{
    struct Row
    {
        mode_t mode;
        long result;
    };
    for (const Row& row : {Row{0444, 6009}, Row{0555, 6009}, Row{0440, 0}, Row{0644, 0}, Row{0666, 0},
                           Row{0400, 0}, Row{0000, 0}, Row{0755, 0}}) {
        ASSERT_EQ(chmod("/tmp/folder", row.mode), 0);
        EXPECT_EQ(CUtility::CheckFilePath("/tmp/folder", CUtility::ACCESS_NONE), row.result)
            << std::oct << row.mode;
        EXPECT_EQ(CUtility::CheckFilePath("/tmp/folder", CUtility::ACCESS_READ), row.result)
            << std::oct << row.mode;
        EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_NONE), row.result)
            << std::oct << row.mode;
        EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_READ_WRITE), row.result)
            << std::oct << row.mode;
    }
    ASSERT_EQ(chmod("/tmp/folder", 0444), 0);
    EXPECT_EQ(CUtility::CheckFilePath("/tmp/folder", CUtility::ACCESS_EXECUTE), 6009)
        << "a status takes precedence over an error";
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_READ), 6009);
    EXPECT_DEATH(CUtility::CheckFilePath("/tmp/folder", CUtility::ACCESS_READ_WRITE), "Assertion ");
    EXPECT_DEATH(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_EXECUTE), "Assertion ");
}

TEST_F(CheckPathTest, DeniedPathsReturn5)
{
    fs::create_directory("/tmp/folder/below");
    ASSERT_EQ(chmod("/tmp/folder", 0), 0);
    ASSERT_TRUE(TakeAwayPrivileges());
    EXPECT_EQ(CUtility::CheckFilePath("/tmp/folder", CUtility::ACCESS_READ), 5);
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_READ), 5);
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_READ_WRITE), 5);
    for (const CUtility::enAccessMode mode : allModes) {
        EXPECT_EQ(CUtility::CheckFilePath("/tmp/folder/below", mode), 5) << "stat fails with EACCES";
        EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder/below", mode), 5);
    }
}

TEST_F(CheckFolderPathTest, ReadingLooksForAMemberNamedStar)
{
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_READ), 3);
    fs::create_directory("/tmp/folder/*");
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_READ), 0);
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder/", CUtility::ACCESS_READ), 0);
}

TEST_F(CheckFolderPathTest, AnExistingPathOfAnyKindIsAccepted)
{
    for (const char* path : {"/tmp/folder", "/tmp/file"}) {
        EXPECT_EQ(CUtility::CheckFolderPath(path, CUtility::ACCESS_NONE), 0);
        EXPECT_EQ(CUtility::CheckFolderPath(path, CUtility::ACCESS_READ_WRITE), 0);
    }
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/file", CUtility::ACCESS_READ), 3);
}

TEST_F(CheckFolderPathTest, AnEarlierErrnoDoesNotCount)
{
    errno = EACCES;
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_READ_WRITE), 0);
}

TEST_F(CheckPathTest, LeavesNoDescriptorOpen)
{
    fs::create_directory("/tmp/folder/*");
    const size_t before = OpenDescriptors();
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_READ), 0);
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_READ_WRITE), 0);
    EXPECT_EQ(OpenDescriptors(), before);
}

TEST_F(CheckFolderPathTest, DescriptorZeroIsNoFailure)
{
    ASSERT_EQ(close(STDIN_FILENO), 0);
    errno = EACCES;
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_READ_WRITE), 0);
    EXPECT_EQ(fcntl(STDIN_FILENO, F_GETFD), -1) << "the descriptor is closed";
}

TEST_F(CheckFolderPathTest, ExecuteAccessStopsTheProcess)
{
    EXPECT_DEATH(CUtility::CheckFolderPath("/tmp/folder", CUtility::ACCESS_EXECUTE),
                 "Assertion .\\(false\\) != FALSE. failed");
}

TEST_F(CheckPathTest, OpeningANamedPipeDoesNotBlock)
{
    ASSERT_EQ(mkfifo("/tmp/fifo", 0600), 0);
    EXPECT_EQ(CUtility::CheckFilePath("/tmp/fifo", CUtility::ACCESS_READ), 0);
    EXPECT_EQ(CUtility::CheckFolderPath("/tmp/fifo", CUtility::ACCESS_READ_WRITE), 0);
}

TEST_F(CreateFolderTest, CreatesNothingAndReturnsTrue)
{
    EXPECT_TRUE(CUtility::CreateFolder("/tmp/absent"));
    EXPECT_FALSE(fs::exists("/tmp/absent"));
    EXPECT_TRUE(CUtility::CreateFolder(""));
    EXPECT_TRUE(CUtility::CreateFolder(nullptr));
}

TEST_F(CreateFolderTest, AnExistingPathStopsTheProcess)
{
    EXPECT_DEATH(CUtility::CreateFolder("/tmp/folder"), "Assertion .\\(result == 0\\) != FALSE. failed");
    EXPECT_DEATH(CUtility::CreateFolder("/tmp/file"), "Assertion .\\(result == 0\\) != FALSE. failed");
}

} // namespace
