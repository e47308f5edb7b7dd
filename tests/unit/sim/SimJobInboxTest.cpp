// The job folder: which files the service takes from it, when, and in which order.
#include <random>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "JobFile.h"
#include "JobFilesFixture.h"
#include "JobInbox.h"
#include "RoomFixture.h"

namespace {

using udsim::FoundFile;
using udsim::JobInbox;

constexpr char UNNAMED[] = "[publisher A]\nmodel = RT-300III BD\nid = {ARPUB20260105_1}\n";
constexpr char FOLDER[] = "/opt/arven/Ulmar Disc Maker/JOB";
constexpr JobInbox::Clock::time_point BEGIN{};

/// Drops all capabilities, so that file modes apply to this process.
void giveUpPrivileges()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct none[2]{};
    ASSERT_EQ(::syscall(SYS_capset, &header, none), 0);
}

class SimJobInbox : public testing::Test
{
protected:
    SimJobInbox()
    {
        std::filesystem::create_directory("/tmp/jobs");
    }
    /// The names of the files taken at this time, each with the reason if it is refused.
    std::vector<std::string> taken(std::chrono::milliseconds at = {})
    {
        std::vector<std::string> names;
        for (const FoundFile& found : m_inbox.take(BEGIN + at)) {
            names.push_back(found.name + (found.refusal.empty() ? "" : ": " + found.refusal));
        }
        return names;
    }
    static void put(const std::string& name, const std::string& text = HEAD_CLEANING)
    {
        putFile("/tmp/jobs/" + name, text);
    }
    static bool isThere(const std::string& name)
    {
        return std::filesystem::symlink_status("/tmp/jobs/" + name).type() !=
               std::filesystem::file_type::not_found;
    }

    JobInbox m_inbox{"/tmp/jobs"};
};

using Names = std::vector<std::string>;

} // namespace

TEST_F(SimJobInbox, FilesAreTakenInNameOrder)
{
    for (const char* const name : {"b_0001.epj", "a_0002.epj", "b_0000.epj", "a_0010.epj"}) {
        put(name);
    }
    EXPECT_EQ(taken(), (Names{"a_0002.epj", "a_0010.epj", "b_0000.epj", "b_0001.epj"}));
    EXPECT_TRUE(std::filesystem::is_empty("/tmp/jobs"));
    EXPECT_EQ(taken(), Names{});
}

TEST_F(SimJobInbox, TheTextIsReadByteForByte)
{
    put("a.epj", NOZZLE_CHECK);
    const auto found = m_inbox.take(BEGIN);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].text, NOZZLE_CHECK);
}

TEST_F(SimJobInbox, OtherFilesStay)
{
    for (const char* const name : {"a.eps", "a.EPJ", "a.epj.tmp", ".epj", ".a.epj", "epj"}) {
        put(name);
    }
    std::filesystem::create_directory("/tmp/jobs/folder.epj");
    EXPECT_EQ(taken(std::chrono::hours(1)), Names{});
    EXPECT_EQ(taken(std::chrono::hours(2)), Names{});
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator("/tmp/jobs"), {}), 7);
}

TEST_F(SimJobInbox, AWriterHasThreeSecondsToFinish)
{
    using std::chrono::milliseconds;
    const std::string whole = HEAD_CLEANING;
    put("a.epj", "");
    put("b.epj", "");
    put("c.epj", whole.substr(0, whole.size() - 1));
    EXPECT_EQ(taken(milliseconds(0)), Names{});
    EXPECT_EQ(taken(milliseconds(2999)), Names{});
    put("a.epj");
    EXPECT_EQ(taken(milliseconds(2999)), Names{"a.epj"});
    EXPECT_EQ(taken(milliseconds(3000)), (Names{"b.epj", "c.epj"})) << "even if incomplete";
    EXPECT_TRUE(std::filesystem::is_empty("/tmp/jobs"));
    put("b.epj", "");
    EXPECT_EQ(taken(milliseconds(3001)), Names{}) << "a new file with this name has its own time limit";
}

TEST_F(SimJobInbox, SizeIsBounded)
{
    put("a.epj", std::string(65'517, 'x') + "\nPrintQuality = 0\n\n");
    put("b.epj", std::string(65'518, 'x') + "\nPrintQuality = 0\n");
    put("c.epj", std::string(65'519, 'x') + "\nPrintQuality = 0\n");
    std::filesystem::resize_file("/tmp/jobs/a.epj", uintmax_t{1} << 40);
    EXPECT_EQ(taken(), (Names{"a.epj: it is larger than 65536 bytes", "b.epj",
                              "c.epj: it is larger than 65536 bytes"}));
    EXPECT_TRUE(std::filesystem::is_empty("/tmp/jobs"));
}

TEST_F(SimJobInbox, OnlyRegularFilesAreAccepted)
{
    putFile("/tmp/elsewhere", HEAD_CLEANING);
    std::filesystem::create_symlink("/tmp/elsewhere", "/tmp/jobs/link.epj");
    std::filesystem::create_symlink("/tmp/none", "/tmp/jobs/lost.epj");
    ASSERT_EQ(::mkfifo("/tmp/jobs/pipe.epj", 0666), 0);
    EXPECT_EQ(taken(),
              (Names{"link.epj: it is a link", "lost.epj: it is a link", "pipe.epj: it is no file"}));
    EXPECT_TRUE(std::filesystem::is_empty("/tmp/jobs"));
    EXPECT_EQ(fileText("/tmp/elsewhere"), HEAD_CLEANING);
}

TEST_F(SimJobInbox, AnUnreadableFileIsRefused)
{
    put("a.epj");
    std::filesystem::permissions("/tmp/jobs/a.epj", std::filesystem::perms::none);
    giveUpPrivileges();
    EXPECT_EQ(taken(), Names{"a.epj: Permission denied"});
    EXPECT_FALSE(isThere("a.epj"));
}

TEST_F(SimJobInbox, AFileThatCannotBeRemovedIsReportedOnce)
{
    put("a.epj");
    std::filesystem::permissions("/tmp/jobs", std::filesystem::perms{0555});
    giveUpPrivileges();
    EXPECT_EQ(taken(), Names{"a.epj: it cannot be removed: Permission denied"});
    EXPECT_EQ(taken(std::chrono::hours(1)), Names{});
    EXPECT_TRUE(isThere("a.epj"));
}

TEST_F(SimJobInbox, AMissingFolderHasNoFiles)
{
    std::filesystem::remove("/tmp/jobs");
    EXPECT_EQ(taken(), Names{});
    put("a.epj");
    putFile("/tmp/jobs", "a file in its place");
    EXPECT_EQ(taken(), Names{});
}

TEST_F(SimJobInbox, RandomBytesAreRefused)
{
    std::mt19937 random(7); // NOLINT: reproducible bytes
    for (int file = 0; file < 300; ++file) {
        std::string bytes(random() % 3000, '\0');
        std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
        put(std::to_string(file) + ".epj", bytes);
    }
    EXPECT_EQ(taken(), Names{});
    size_t refused = 0;
    for (const FoundFile& found : m_inbox.take(BEGIN + JobInbox::PATIENCE)) {
        std::string error;
        refused += udsim::parseJobFile(found.text, error) ? 0 : 1;
    }
    EXPECT_EQ(refused, 300U);
}

TEST(SimJobFolderOfARoom, IsCreatedForEveryone)
{
    ::umask(077);
    const OpenRoom open(UNNAMED);
    struct stat status{};
    ASSERT_EQ(::lstat(FOLDER, &status), 0);
    EXPECT_EQ(status.st_mode, S_IFDIR | 01777U);
    for (const std::string name : {"headCleaning.prn", "nozzleCheck.prn"}) {
        const std::string data = fileText("/opt/arven/Ulmar Disc Maker/res/prnfile/" + name);
        EXPECT_EQ(data.find("udsim: placeholder for the print data " + name + "\n"), 0U);
        EXPECT_GT(data.size(), 300U);
    }
}

TEST(SimJobFolderOfARoom, ExistingFilesStay)
{
    std::filesystem::create_directories("/opt/arven/Ulmar Disc Maker/res/prnfile");
    putFile("/opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn", "pattern");
    std::filesystem::create_directory(FOLDER);
    ASSERT_EQ(::chmod(FOLDER, 0700), 0);
    const OpenRoom open(UNNAMED);
    struct stat status{};
    ASSERT_EQ(::lstat(FOLDER, &status), 0);
    EXPECT_EQ(status.st_mode, S_IFDIR | 0700U);
    EXPECT_EQ(fileText("/opt/arven/Ulmar Disc Maker/res/prnfile/nozzleCheck.prn"), "pattern");
}

TEST(SimJobFolderOfARoom, ALinkIsFollowedAndStays)
{
    std::filesystem::create_directories("/opt/arven/Ulmar Disc Maker");
    std::filesystem::create_directories("/tmp/work/UlmarDiscMakerWork");
    std::filesystem::create_symlink("/tmp/work/UlmarDiscMakerWork", FOLDER);
    OpenRoom open(UNNAMED);
    EXPECT_TRUE(std::filesystem::is_symlink(FOLDER));
    putFile("/tmp/work/UlmarDiscMakerWork/{ARPUB20260105_1}_0000.epj", HEAD_CLEANING);
    open.room.advance(0);
    ASSERT_EQ(open.room.jobs("A").size(), 1U);
    EXPECT_TRUE(std::filesystem::is_empty("/tmp/work/UlmarDiscMakerWork"));
}

TEST(SimJobFolderOfARoom, TheFolderMayMoveWhileTheServiceRuns)
{
    OpenRoom open(UNNAMED);
    std::filesystem::create_directory("/tmp/work");
    ASSERT_EQ(::rmdir(FOLDER), 0);
    open.room.advance(0);
    std::filesystem::create_symlink("/tmp/work", FOLDER);
    putFile("/tmp/work/a.epj", HEAD_CLEANING);
    open.room.advance(0);
    ASSERT_EQ(open.room.takenFiles().size(), 1U);
    EXPECT_EQ(open.room.takenFiles()[0].job, CLEANING_ID);
}

TEST(SimJobFolderOfARoom, ADanglingLinkIsIgnored)
{
    std::filesystem::create_directories("/opt/arven/Ulmar Disc Maker");
    std::filesystem::create_symlink("/tmp/none", FOLDER);
    OpenRoom open(UNNAMED);
    open.room.advance(1000);
    EXPECT_EQ(std::filesystem::read_symlink(FOLDER), "/tmp/none");
}

TEST(SimJobFolderOfARoom, IsPolledWhileTheClockIsStopped)
{
    OpenRoom open(UNNAMED);
    putFile(JOBS + std::string("a.epj"), HEAD_CLEANING);
    ASSERT_TRUE(open.room.waitForTakenFiles(1));
    EXPECT_EQ(open.room.jobs("A").at(0).status, 1U) << "waiting until time advances";
    putFile(JOBS + std::string("b.epj"), "");
    ASSERT_TRUE(open.room.waitForTakenFiles(2));
    EXPECT_EQ(open.room.takenFiles()[1].refusal, "the file is empty");
    EXPECT_TRUE(std::filesystem::is_empty(FOLDER));
}

TEST(SimJobFolderOfARoom, IsNotReadWhileTheServiceIsStopped)
{
    OpenRoom open(UNNAMED);
    ASSERT_TRUE(open.room.tell("", "service off"));
    putFile(JOBS + std::string("a.epj"), HEAD_CLEANING);
    open.room.advance(1000);
    EXPECT_TRUE(open.room.takenFiles().empty());
    ASSERT_TRUE(open.room.tell("", "service on"));
    open.room.advance(0);
    EXPECT_EQ(open.room.takenFiles().size(), 1U);
}

TEST(SimJobFolderOfARoom, OnlyAStartedRoomTakesFiles)
{
    udsim::Room second(scenarioOf(UNNAMED));
    {
        OpenRoom first(UNNAMED);
        std::string error;
        EXPECT_FALSE(second.start(error));
        first.room.stop();
        putFile(JOBS + std::string("a.epj"), HEAD_CLEANING);
        first.room.advance(0);
        second.advance(0);
        EXPECT_TRUE(first.room.takenFiles().empty());
    }
    EXPECT_TRUE(second.takenFiles().empty());
    std::string error;
    ASSERT_TRUE(second.start(error)) << error;
    second.advance(0);
    EXPECT_EQ(second.takenFiles().size(), 1U);
    EXPECT_EQ(second.jobs("A").size(), 1U);
}
