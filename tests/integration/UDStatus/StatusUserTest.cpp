// The console program as an ordinary user, for whom file modes count.
#include "StatusRun.h"

#include "PublisherFiles.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace {

using testing::HasSubstr;
using testing::Not;

void addServer(const std::string& id, const std::string& name)
{
    WritePublisher(id, "[Common]\nPublisherName=" + name +
                           "\nPublisherConnectionType=1\nPublisherURL=127.0.0.99\n");
}

TEST(StatusUser, RunsWithoutRoot)
{
    ASSERT_NE(::getuid(), 0U);
    addServer("A", "Library");
    const StatusEnd end = runStatus({});
    EXPECT_EQ(end.code, 1); // there is no such server
    EXPECT_THAT(end.out, HasSubstr("Library"));
    EXPECT_EQ(end.err, "ulmar-disc-status: Library: the server cannot be reached or is in a secure mode\n");
}

TEST(StatusUser, AnUnreadableSettingFolderIsReported)
{
    addServer("A", "Library");
    ASSERT_EQ(::chmod(PUBLISHER_SETTING_DIR, 0), 0);
    const std::string reason =
        "cannot read the folder " + std::string(PUBLISHER_SETTING_DIR) + ": Permission denied";
    for (const char* option : {"--json", "--metrics", "--names", "--watch"}) {
        const StatusEnd end = runStatus({option});
        EXPECT_EQ(end.code, 1);
        EXPECT_EQ(end.out, "");
        EXPECT_EQ(end.err, "ulmar-disc-status: " + reason + "\n");
    }
    const StatusEnd monitor = runStatus({"--monitor"});
    EXPECT_EQ(monitor.code, 3);
    EXPECT_EQ(monitor.out, "UNKNOWN - " + reason + "\n");
    ::chmod(PUBLISHER_SETTING_DIR, 0755);
}

TEST(StatusUser, ASettingFileWithoutPermissionIsReported)
{
    addServer("A", "Library");
    ASSERT_EQ(::chmod(PublisherFile("A").c_str(), 0), 0);
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{}, {"--names"}, {"--json"}}) {
        const StatusEnd end = runStatus(arguments);
        EXPECT_EQ(end.code, 1);
        EXPECT_THAT(end.out, Not(HasSubstr("NotSet")));
        EXPECT_EQ(end.err, "ulmar-disc-status: cannot read the settings of A\n");
    }
    const StatusEnd monitor = runStatus({"--monitor"});
    EXPECT_EQ(monitor.code, 3);
    EXPECT_EQ(monitor.out, "UNKNOWN - cannot read the settings of A\n");
}

TEST(StatusUser, AMonitorReportsAnUnreadableSettingFile)
{
    MakePublisherFolder();
    std::filesystem::create_symlink("nowhere", PublisherFile("A"));
    const StatusEnd monitor = runStatus({"--monitor"});
    EXPECT_EQ(monitor.code, 3);
    EXPECT_EQ(monitor.out, "UNKNOWN - cannot read the settings of A\n");
}

} // namespace
