// The kernel's reports of changes in a folder.
#include "FolderWatch.h"
#include "DirtyStack.h"
#include "OpenDescriptors.h"
#include "TextFiles.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

const std::string WATCHED = "/tmp/watched";

/// The descriptors of inotify.
std::set<int> InotifyDescriptors()
{
    std::set<int> found;
    std::error_code ignored; // for the descriptor of the listing itself
    for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
        if (fs::read_symlink(entry.path(), ignored) == "anon_inode:inotify") {
            found.insert(std::stoi(entry.path().filename()));
        }
    }
    return found;
}

/// The number of folders that the kernel watches for this process.
size_t Watches()
{
    size_t count = 0;
    for (const int descriptor : InotifyDescriptors()) {
        std::ifstream info("/proc/self/fdinfo/" + std::to_string(descriptor));
        for (std::string line; std::getline(info, line);) {
            count += line.starts_with("inotify wd:") ? 1 : 0;
        }
    }
    return count;
}

class FolderWatchTest : public testing::Test
{
protected:
    void SetUp() override
    {
        fs::create_directories(WATCHED);
        WriteText(WATCHED + "/a", "text");
        WriteText(WATCHED + "/b", "text");
    }

    /// Expects this result of the next report.
    void ExpectReport(const Names& names, bool isListSame)
    {
        Names changed;
        EXPECT_EQ(watch.Report([&](std::string_view name) { changed.emplace(name); }), isListSame);
        EXPECT_EQ(changed, names);
    }

    FolderWatch watch;
};

} // namespace

TEST_F(FolderWatchTest, ReportsTheFilesThatChanged)
{
    ASSERT_TRUE(watch.Start(WATCHED.c_str()));
    EXPECT_TRUE(watch.IsActive());
    ExpectReport({}, true);
    WriteText(WATCHED + "/a", "other");
    ExpectReport({"a"}, true);
    fs::permissions(WATCHED + "/b", fs::perms(0400));
    ExpectReport({"b"}, true);
    WriteText(WATCHED + "/b", "other");
    WriteText(WATCHED + "/a", "text");
    ExpectReport({"a", "b"}, true);
    ExpectReport({}, true);
}

TEST_F(FolderWatchTest, DoesNotReportReading)
{
    ASSERT_TRUE(watch.Start(WATCHED.c_str()));
    EXPECT_EQ(ReadText(WATCHED + "/a"), "text");
    EXPECT_FALSE(fs::is_empty(WATCHED));
    ExpectReport({}, true);
}

TEST_F(FolderWatchTest, EveryChangeOfTheListIsReported)
{
    ASSERT_TRUE(watch.Start(WATCHED.c_str()));
    fs::create_directory(WATCHED + "/below");
    ExpectReport({}, false);
    fs::rename(WATCHED + "/a", WATCHED + "/c");
    ExpectReport({}, false);
    fs::rename(WATCHED + "/c", "/tmp/elsewhere");
    ExpectReport({}, false);
    fs::rename("/tmp/elsewhere", WATCHED + "/a");
    ExpectReport({}, false);
    fs::remove(WATCHED + "/a");
    ExpectReport({}, false);
    fs::create_symlink("/tmp/nothing", WATCHED + "/a");
    ExpectReport({}, false);
    ExpectReport({}, true);
}

TEST_F(FolderWatchTest, AChangeOfTheFolderItselfIsReported)
{
    ASSERT_TRUE(watch.Start(WATCHED.c_str()));
    fs::permissions(WATCHED, fs::perms(0700));
    ExpectReport({}, false);
    fs::rename(WATCHED, "/tmp/renamed");
    ExpectReport({}, false);
    fs::remove_all("/tmp/renamed");
    ExpectReport({}, false);
}

TEST_F(FolderWatchTest, ALossOfReportsIsReported)
{
    ASSERT_TRUE(watch.Start(WATCHED.c_str()));
    for (unsigned round = 0; round < 10000; ++round) { // the kernel keeps 16,384 reports
        fs::permissions(WATCHED + "/a", fs::perms(0600 + round % 2));
        fs::permissions(WATCHED + "/b", fs::perms(0600 + round % 2));
    }
    ExpectReport({"a", "b"}, false);
    ExpectReport({}, true);
}

TEST_F(FolderWatchTest, ReportsMoreFilesThanOneReadReturns)
{
    Names names;
    for (int number = 0; number < 1000; ++number) {
        names.insert("a rather long name " + std::to_string(number));
    }
    for (const std::string& name : names) {
        WriteText(WATCHED + "/" + name, "text");
    }
    ASSERT_TRUE(watch.Start(WATCHED.c_str()));
    for (const std::string& name : names) {
        fs::permissions(WATCHED + "/" + name, fs::perms(0400));
    }
    ExpectReport(names, true);
}

TEST_F(FolderWatchTest, IgnoresTheBytesBehindTheReports)
{
    ASSERT_TRUE(watch.Start(WATCHED.c_str()));
    WriteText(WATCHED + "/a", "other");
    Names changed;
    const std::function<void(std::string_view)> collect = [&](std::string_view name) {
        changed.emplace(name);
    };
    DirtyStack(1); // would be a report of the first watch
    EXPECT_TRUE(watch.Report(collect));
    EXPECT_EQ(changed, Names{"a"});
}

TEST_F(FolderWatchTest, WatchesTheLastFolderOnly)
{
    fs::create_directories("/tmp/other");
    WriteText("/tmp/other/c", "text");
    const size_t before = OpenDescriptors();
    ASSERT_TRUE(watch.Start(WATCHED.c_str()));
    WriteText(WATCHED + "/a", "before");
    fs::remove(WATCHED + "/b");
    ASSERT_TRUE(watch.Start("/tmp/other"));
    WriteText(WATCHED + "/a", "after");
    ExpectReport({}, true);
    EXPECT_EQ(Watches(), 1U);
    EXPECT_EQ(OpenDescriptors(), before + 1);
    WriteText("/tmp/other/c", "other");
    ExpectReport({"c"}, true);
}

TEST_F(FolderWatchTest, MayStartTheSameFolderAgain)
{
    ASSERT_TRUE(watch.Start(WATCHED.c_str()));
    ASSERT_TRUE(watch.Start(WATCHED.c_str()));
    ExpectReport({}, true);
    WriteText(WATCHED + "/a", "other");
    ExpectReport({"a"}, true);
}

TEST_F(FolderWatchTest, StartsOnlyForAFolderOfThisComputer)
{
    for (const char* folder : {"/tmp/absent", "/tmp/watched/a", "/proc"}) {
        ASSERT_TRUE(watch.Start(WATCHED.c_str()));
        WriteText(WATCHED + "/a", "other");
        EXPECT_FALSE(watch.Start(folder)) << folder;
        EXPECT_FALSE(watch.IsActive());
        EXPECT_EQ(Watches(), 0U);
        ExpectReport({}, false);
    }
}

TEST_F(FolderWatchTest, WithoutAFolderNothingIsReported)
{
    ExpectReport({}, false);
}

TEST_F(FolderWatchTest, StartsAgainAfterALackOfDescriptors)
{
    rlimit limit = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit none{0, limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    EXPECT_FALSE(watch.Start(WATCHED.c_str()));
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
    EXPECT_TRUE(watch.Start(WATCHED.c_str()));
}

TEST_F(FolderWatchTest, OwnsOneDescriptorThatIsClosedOnExec)
{
    const size_t before = OpenDescriptors();
    {
        FolderWatch other;
        EXPECT_EQ(OpenDescriptors(), before);
        ASSERT_TRUE(other.Start(WATCHED.c_str()));
        EXPECT_EQ(OpenDescriptors(), before + 1);
        const std::set<int> descriptors = InotifyDescriptors();
        ASSERT_EQ(descriptors.size(), 1U);
        EXPECT_EQ(fcntl(*descriptors.begin(), F_GETFD), FD_CLOEXEC);
    }
    EXPECT_EQ(OpenDescriptors(), before);
}
