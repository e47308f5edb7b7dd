// Searches for the setting files of a server: the cache must change nothing but the number of calls.
#include "ServerFiles.h"
#include "ChildProcess.h"
#include "CountedLocks.h"
#include "NW_Com_Lib_internal.h"
#include "OrdinaryRights.h"
#include "PublisherFiles.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <functional>
#include <random>
#include <thread>

#include <dirent.h>
#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;

const std::string FOLDER = PUBLISHER_SETTING_DIR;

bool g_isInotifyMissing = false;
bool g_isFolderRemote = false;
std::atomic<int> g_stats = 0;

std::string Text(const std::string& server, int kind)
{
    return "[Common]\nPublisherURL=" + server + "\nNPType=" + std::to_string(kind) + "\n";
}

/// The names in the order in which the folder lists them.
std::vector<std::string> Listed()
{
    std::vector<std::string> names;
    if (DIR* folder = opendir(FOLDER.c_str())) {
        while (const dirent* entry = readdir(folder)) {
            if (entry->d_name[0] != '.') {
                names.emplace_back(entry->d_name);
            }
        }
        closedir(folder);
    }
    return names;
}

using Result = std::vector<std::pair<std::string, unsigned int>>;

/// The result of a search that reads every file.
Result Searched(const std::string& server)
{
    Result result;
    for (const std::string& name : Listed()) {
        const std::string path = FOLDER + "/" + name;
        char text[260] = {};
        GetPrivateProfileStringA("Common", "PublisherURL", "", text, sizeof text, path.c_str());
        if (text == server) {
            result.emplace_back(path, GetPrivateProfileIntA("Common", "NPType", 0, path.c_str()));
        }
    }
    return result;
}

Result Found(const std::string& server)
{
    Result result;
    for (const ServerFile& file : FilesOfServer(server)) {
        result.emplace_back(file.path, file.kind);
    }
    return result;
}

unsigned int Kind(const char* server)
{
    unsigned int kind = 99;
    return ReadNPType(&kind, server) ? kind : 99;
}

/// Waits until any later change has a time that differs from the last change so far.
void WaitUntilSettled()
{
    const char probe[] = "/opt/probe";
    WriteText(probe, "");
    std::chrono::nanoseconds age{};
    while (age < std::chrono::milliseconds(200)) {
        std::this_thread::yield();
        struct stat info = {};
        timespec now = {};
        ASSERT_EQ(lstat(probe, &info), 0);
        clock_gettime(CLOCK_REALTIME_COARSE, &now);
        age = std::chrono::seconds(now.tv_sec - info.st_ctim.tv_sec) +
              std::chrono::nanoseconds(now.tv_nsec - info.st_ctim.tv_nsec);
    }
}

/// With the kernel's reports, without them, and where they are not complete.
class ServerFilesTest : public testing::TestWithParam<const char*>
{
protected:
    ServerFilesTest()
    {
        g_isInotifyMissing = GetParam() == std::string("NoWatch");
        g_isFolderRemote = GetParam() == std::string("Remote");
        fs::create_directories(FOLDER);
    }
};

INSTANTIATE_TEST_SUITE_P(, ServerFilesTest, testing::Values("Watch", "NoWatch", "Remote"),
                         [](const auto& variant) { return std::string(variant.param); });

} // namespace

// Replace the functions of the C library in this program.

int inotify_init1(int flags) noexcept
{
    if (g_isInotifyMissing) {
        errno = EMFILE;
        return -1;
    }
    return static_cast<int>(syscall(SYS_inotify_init1, flags));
}

int statfs(const char* path, struct statfs* info) noexcept
{
    const int result = static_cast<int>(syscall(SYS_statfs, path, info));
    if (g_isFolderRemote) {
        info->f_type = 0x6969; // a network file system
    }
    return result;
}

int stat(const char* path, struct stat* info) noexcept
{
    ++g_stats;
    return fstatat(AT_FDCWD, path, info, 0);
}

TEST_P(ServerFilesTest, UnchangedFilesAreReadOnce)
{
    WritePublisher("A", Text("one", 1));
    WritePublisher("B", Text("two", 2));
    WritePublisher("C", Text("two", 3));
    WaitUntilSettled();
    EXPECT_EQ(Found("two"), Searched("two"));
    CountedLocks::Take();
    for (int round = 0; round < 10; ++round) {
        EXPECT_EQ(Kind("one"), 1U);
        EXPECT_EQ(Found("two").size(), 2U);
        EXPECT_EQ(Kind("none"), 99U);
    }
    EXPECT_THAT(CountedLocks::Take(), IsEmpty());
    WritePublisher("B", Text("one", 3));
    EXPECT_EQ(Found("two").size(), 1U);
    EXPECT_EQ(Found("one").size(), 2U);
    EXPECT_GE(CountedLocks::Take().size(), 1U);
    WaitUntilSettled();
    EXPECT_EQ(Found("one").size(), 2U);
    CountedLocks::Take();
    EXPECT_EQ(Found("one").size(), 2U);
    EXPECT_THAT(CountedLocks::Take(), IsEmpty());
}

TEST_P(ServerFilesTest, AFileThatCouldNotBeOpenedIsReadByTheNextSearch)
{
    WritePublisher("A", Text("server", 3));
    rlimit limit = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
    Found("other"); // starts the watch of the folder and lists it
    WritePublisher("A", Text("server", 2));
    WaitUntilSettled();
    const rlimit none{0, limit.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    EXPECT_EQ(Kind("server"), 99U);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
    EXPECT_EQ(Kind("server"), 2U);
}

TEST_P(ServerFilesTest, AKindOutOfRangeDoesNotSetErange)
{
    WritePublisher("A", "[Common]\nPublisherURL=server\nNPType=99999999999999999999\n");
    errno = 0;
    EXPECT_EQ(Kind("server"), 0U);
    EXPECT_NE(errno, ERANGE);
}

TEST_P(ServerFilesTest, EveryChangeOfAFileInPlaceIsSeenAtOnce)
{
    for (const char* id : {"A", "B", "C"}) {
        WritePublisher(id, Text("other", 1));
    }
    for (int round = 0; round < 300; ++round) { // of one size, within one tick of the clock
        const std::string id = {"ABC"[round % 3]};
        WritePublisher(id, Text(round % 2 == 0 ? "server" : "rather", round % 4));
        ASSERT_EQ(Found("server"), Searched("server")) << round;
        ASSERT_EQ(Found("rather"), Searched("rather")) << round;
    }
}

TEST_P(ServerFilesTest, AnEarlierFileThatNamesTheServerNowComesFirst)
{
    for (const char* id : {"A", "B", "C"}) {
        WritePublisher(id, Text("another", 1));
    }
    const std::vector<std::string> names = Listed();
    ASSERT_EQ(names.size(), 3U);
    WriteText(FOLDER + "/" + names[2], Text("servers", 3));
    WaitUntilSettled();
    EXPECT_EQ(Kind("servers"), 3U);
    struct stat before = {};
    ASSERT_EQ(lstat((FOLDER + "/" + names[0]).c_str(), &before), 0);
    WriteText(FOLDER + "/" + names[0], Text("servers", 2));
    const timespec times[] = {before.st_atim, before.st_mtim};
    ASSERT_EQ(utimensat(AT_FDCWD, (FOLDER + "/" + names[0]).c_str(), times, 0), 0);
    WaitUntilSettled();
    EXPECT_EQ(Kind("servers"), 2U);
    EXPECT_TRUE(WriteNPType(1, "servers"));
    EXPECT_EQ(Kind("servers"), 2U); // the one of the first section counts
    EXPECT_EQ(ReadText(FOLDER + "/" + names[0]), Text("servers", 2) + "[COMMON]\nNPType=1\n");
}

TEST_P(ServerFilesTest, ChangesByAnotherProcessAreSeen)
{
    WritePublisher("A", Text("server", 1));
    WaitUntilSettled();
    EXPECT_EQ(Kind("server"), 1U);
    ASSERT_TRUE(WaitFor(StartChild([] {
        WritePublisher("A", Text("server", 2));
        return true;
    })));
    EXPECT_EQ(Kind("server"), 2U);
    ASSERT_TRUE(WaitFor(StartChild([] {
        fs::rename(PublisherFile("A"), "/opt/elsewhere");
        return true;
    })));
    EXPECT_EQ(Kind("server"), 99U);
}

TEST_P(ServerFilesTest, SymbolicLinksAreFollowed)
{
    WriteText("/opt/target.ini", Text("server", 1));
    WriteText("/opt/other.ini", Text("server", 3));
    fs::create_symlink("/opt/target.ini", PublisherFile("L"));
    EXPECT_EQ(Kind("server"), 1U);
    WaitUntilSettled();
    EXPECT_EQ(Kind("server"), 1U);
    WriteText("/opt/target.ini", Text("server", 2));
    EXPECT_EQ(Kind("server"), 2U);
    fs::rename("/opt/other.ini", "/opt/target.ini");
    EXPECT_EQ(Kind("server"), 3U);
    fs::remove("/opt/target.ini");
    EXPECT_EQ(Kind("server"), 99U);
    WriteText("/opt/target.ini", Text("server", 1));
    EXPECT_EQ(Kind("server"), 1U);
}

TEST_P(ServerFilesTest, AChangeThroughAnotherNameIsSeen)
{
    WriteText("/opt/another name", Text("server", 1));
    MakePublisherFolder();
    fs::create_hard_link("/opt/another name", PublisherFile("A"));
    EXPECT_EQ(Kind("server"), 1U);
    WaitUntilSettled();
    EXPECT_EQ(Kind("server"), 1U);
    WriteText("/opt/another name", Text("server", 2));
    EXPECT_EQ(Kind("server"), 2U);
    WriteText("/opt/another name", Text("others", 2));
    EXPECT_EQ(Kind("others"), 2U);
    EXPECT_EQ(Kind("server"), 99U);
}

TEST_P(ServerFilesTest, ChangedPermissionsAreSeen)
{
    ASSERT_TRUE(TakeAwayPrivileges());
    WritePublisher("A", Text("server", 1));
    EXPECT_EQ(Kind("server"), 1U);
    fs::permissions(PublisherFile("A"), fs::perms(0));
    EXPECT_EQ(Kind("server"), 99U);
    fs::permissions(PublisherFile("A"), fs::perms(0600));
    EXPECT_EQ(Kind("server"), 1U);
    fs::permissions(FOLDER, fs::perms(0));
    EXPECT_EQ(Kind("server"), 99U);
    fs::permissions(FOLDER, fs::perms(0700));
    EXPECT_EQ(Kind("server"), 1U);
}

TEST_P(ServerFilesTest, AReplacedFolderIsSeen)
{
    WritePublisher("A", Text("server", 1));
    EXPECT_EQ(Kind("server"), 1U);
    fs::rename(FOLDER, FOLDER + ".old");
    EXPECT_EQ(Kind("server"), 99U);
    WritePublisher("B", Text("server", 2));
    EXPECT_EQ(Kind("server"), 2U);
    WriteText(FOLDER + ".old/A.ini", Text("server", 3)); // no longer a setting file
    EXPECT_EQ(Kind("server"), 2U);
    fs::rename(FOLDER, FOLDER + ".new");
    fs::rename(FOLDER + ".old", FOLDER);
    EXPECT_EQ(Kind("server"), 3U);
    fs::remove_all(FOLDER);
    EXPECT_EQ(Kind("server"), 99U);
}

TEST_P(ServerFilesTest, MoreChangesThanTheKernelReportsAreSeen)
{
    WritePublisher("A", Text("another", 1));
    WritePublisher("B", Text("another", 1));
    WritePublisher("C", Text("servers", 3));
    EXPECT_EQ(Kind("servers"), 3U);
    for (int round = 0; round < 10000; ++round) { // the kernel keeps 16,384 reports
        WritePublisher("A", Text("another", round % 4));
        WritePublisher("B", Text("another", round % 4));
    }
    fs::remove(PublisherFile("C"));
    WritePublisher("A", Text("servers", 2));
    EXPECT_EQ(Kind("servers"), 2U);
    WritePublisher("A", Text("servers", 1));
    EXPECT_EQ(Kind("servers"), 1U);
}

// After a random history, a search gives the same result as a search without a cache.
TEST_P(ServerFilesTest, ARandomHistoryGivesTheSameResults)
{
    std::mt19937 random(4711);
    const auto pick = [&](size_t count) { return random() % count; };
    const auto file = [&] { return FOLDER + "/" + std::string(1, "abcdefgh"[pick(8)]) + ".ini"; };
    const auto text = [&] { return Text(std::string(1, "xyz"[pick(3)]), static_cast<int>(pick(4))); };
    const auto target = [&] { return "/opt/target" + std::to_string(pick(2)); };
    std::error_code ignored;
    const std::function<void()> steps[] = {
        [&] { WriteText(file(), text()); },
        [&] { WriteText(file(), text()); },
        [&] { std::ofstream(file(), std::ios::app) << "[COMMON]\nNPType=2\n"; },
        [&] { fs::remove(file(), ignored); },
        [&] { fs::rename(file(), file(), ignored); },
        [&] {
            WriteText("/opt/new", text());
            fs::rename("/opt/new", file(), ignored);
        },
        [&] { fs::create_symlink(target(), file(), ignored); },
        [&] { fs::create_hard_link("/opt/name", file(), ignored); },
        [&] { fs::create_hard_link(file(), file(), ignored); },
        [&] { fs::remove("/opt/name", ignored); },
        [&] { WriteText("/opt/name", text()); },
        [&] { WriteText(target(), text()); },
        [&] { fs::remove(target(), ignored); },
        [&] { fs::create_directory(file(), ignored); },
        [&] { fs::resize_file(file(), 3, ignored); },
        [&] {
            if (pick(20) == 0) {
                fs::rename(FOLDER, FOLDER + ".other", ignored);
                fs::create_directory(FOLDER);
            } else if (pick(20) == 0) {
                fs::remove_all(FOLDER + ".other", ignored);
            }
        },
    };
    for (int round = 0; round < 4000; ++round) {
        steps[pick(std::size(steps))]();
        if (pick(3) == 0) {
            continue; // several changes between two searches
        }
        for (const char* server : {"x", "y", "z"}) {
            ASSERT_EQ(Found(server), Searched(server)) << round << " " << server;
        }
    }
}

TEST_P(ServerFilesTest, ThreadsSearchWhileFilesChange)
{
    for (int number = 0; number < 20; ++number) {
        WritePublisher("P" + std::to_string(number), Text("server" + std::to_string(number), 2));
    }
    std::atomic<bool> end = false;
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back([&end, number] {
            const std::string server = "server" + std::to_string(number);
            while (!end) {
                const unsigned int kind = Kind(server.c_str());
                EXPECT_TRUE(kind == 2 || kind == 3) << kind;
            }
        });
    }
    for (int round = 0; round < 100; ++round) {
        EXPECT_TRUE(WriteNPType(2 + round % 2, "server0"));
        EXPECT_TRUE(WriteNPType(2 + round % 2, "server3"));
        WritePublisher("Q" + std::to_string(round), Text("another", 1));
    }
    end = true;
    for (std::thread& thread : threads) {
        thread.join();
    }
}

TEST(ServerFilesCost, DoesNotDependOnTheNumberOfFiles)
{
    const auto statsOfASearch = [] {
        EXPECT_EQ(Kind("server0"), 2U);
        WaitUntilSettled();
        EXPECT_EQ(Kind("server0"), 2U);
        g_stats = 0;
        CountedLocks::Take();
        EXPECT_EQ(Kind("server0"), 2U);
        EXPECT_THAT(CountedLocks::Take(), IsEmpty());
        return g_stats.load();
    };
    WritePublisher("P0", Text("server0", 2));
    EXPECT_EQ(statsOfASearch(), 2); // the folder and the file
    for (int number = 1; number < 1000; ++number) {
        WritePublisher("P" + std::to_string(number), Text("server" + std::to_string(number), 2));
    }
    EXPECT_EQ(statsOfASearch(), 2);
}

TEST(ServerFilesCost, OnlyAChangedFileIsReadAgain)
{
    for (int number = 0; number < 100; ++number) {
        WritePublisher("P" + std::to_string(number), Text("server" + std::to_string(number), 1));
    }
    EXPECT_EQ(Kind("server0"), 1U);
    WaitUntilSettled();
    EXPECT_EQ(Kind("server0"), 1U);
    EXPECT_TRUE(WriteNPType(3, "server7"));
    CountedLocks::Take();
    EXPECT_EQ(Kind("server0"), 1U);
    EXPECT_THAT(CountedLocks::Take(), ElementsAre("P7.ini"));
}
