// What the network library reads from publisher servers that were written independently of it.
#include <array>
#include <cstring>
#include <fstream>
#include <sstream>
#include <vector>

#include "LibraryRoom.h"

namespace {

std::string setting(const std::string& id)
{
    std::ostringstream text;
    text << std::ifstream("/opt/arven/Ulmar Disc Maker/conf/RegPublisher/" + id + ".ini").rdbuf();
    return text.str();
}

} // namespace

TEST(ServerQueries, KindOfEachModel)
{
    const LibraryRoom open(
        "[network A]\nmodel = RT-300N\nid = a\nknown-kind = 1\n[network B]\nmodel = RT-300NII\n"
        "id = b\n[network C]\nmodel = RT-300NII BD-XL\nid = c\n");
    const std::pair<const char*, DWORD> table[] = {{"127.0.0.11", NCL_NPTYPE_300N},
                                                   {"127.0.0.12", NCL_NPTYPE_300NII},
                                                   {"127.0.0.13", NCL_NPTYPE_300NII_BDXL}};
    for (const auto& [host, kind] : table) {
        const LibraryConnection connection(host);
        ASSERT_EQ(connection.result, NCL_SUCCESS) << host;
        DWORD found = 99;
        GetNPType(connection.handle, &found);
        EXPECT_EQ(found, kind) << host;
        MaintenanceInfo plain{};
        MaintenanceInfoEx extended{};
        EXPECT_EQ(GetMaintenanceInfo(connection.handle, &plain) == NCL_SUCCESS, kind == NCL_NPTYPE_300N)
            << host;
        EXPECT_EQ(GetMaintenanceInfoEx(connection.handle, &extended) == NCL_SUCCESS, kind != NCL_NPTYPE_300N)
            << host;
    }
    EXPECT_NE(setting("b").find("NPType=2"), std::string::npos) << setting("b");
    EXPECT_NE(setting("c").find("NPType=3"), std::string::npos) << setting("c");
}

TEST(ServerQueries, ModeOfEachServer)
{
    for (const DWORD mode : {NCL_MODE_NORMAL, NCL_MODE_OUTPUT, NCL_MODE_BATCH}) {
        const LibraryRoom open("[network A]\nmodel = RT-300NII\nserver-mode = " + std::to_string(mode));
        const LibraryConnection connection;
        EXPECT_EQ(connection.result, NCL_SUCCESS) << mode;
        DWORD found = 99;
        EXPECT_EQ(GetServerMode(connection.handle, &found), NCL_SUCCESS);
        EXPECT_EQ(found, mode);
    }
}

TEST(ServerQueries, SecureServersAreNotSupported)
{
    for (const DWORD mode : {NCL_MODE_SECURITY, NCL_MODE_OUTPUT_CONTROL}) {
        const LibraryRoom open("[network A]\nmodel = RT-300NII\nserver-mode = " + std::to_string(mode));
        EXPECT_EQ(LibraryConnection().result, NCL_ERR_SSL_INITIALIZATION) << mode;
    }
}

TEST(ServerQueries, FailedConnectionsReturnTheCause)
{
    LibraryRoom open(
        "[network A]\nmodel = RT-300NII\n[network Old]\nmodel = RT-300NII\nserver-version = 3.29\n"
        "[network Later]\nmodel = RT-300NII\ninterface-version = 03000000\n");
    EXPECT_EQ(LibraryConnection("127.0.0.12").result, NCL_ERR_APP_VERSION);
    EXPECT_EQ(LibraryConnection("127.0.0.13").result, NCL_ERR_APP_VERSION);
    EXPECT_EQ(LibraryConnection("127.0.0.99").result, NCL_ERR_SOCK_CONNECTION);
    const std::pair<const char*, DWORD> table[] = {
        {"status 2", NCL_ERR_DEVICE_OFFLINE},    {"http 500", NCL_ERR_SERVER_OTHER},
        {"http 401", NCL_ERR_SERVER_JOB_ID},     {"empty", NCL_ERR_INVALID_COMM_SPEC},
        {"size 2", NCL_ERR_INVALID_COMM_SPEC},   {"extra-item", NCL_ERR_INVALID_COMM_SPEC},
        {"length 9", NCL_ERR_INVALID_COMM_SPEC}, {"chunk-extension", NCL_ERR_INVALID_COMM_SPEC},
    };
    for (const auto& [text, result] : table) {
        std::string error;
        auto fault = udsim::HttpFault::parse(text, error);
        ASSERT_TRUE(fault) << error;
        fault->path = "/webapp2/ServerModeGetter";
        open.room.setFault(*fault);
        EXPECT_EQ(LibraryConnection().result, result) << text;
        open.room.clearFaults();
    }
    for (const char* const harmless : {"chunked", "interim 3", "drip 1", "delay 10"}) {
        std::string error;
        open.room.setFault(udsim::HttpFault::parse(harmless, error).value_or(udsim::HttpFault{}));
        EXPECT_EQ(LibraryConnection().result, NCL_SUCCESS) << harmless;
        open.room.clearFaults();
    }
}

TEST(ServerQueries, StatusDuringAJob)
{
    LibraryRoom open("[network A]\nmodel = RT-300NII\ndisc-time = 10s\nink.black = 9\nstacker1 = 60\n"
                     "job = \xC3\x9C"
                     "bung, copies=3\n");
    open.room.advance(3'000);
    const LibraryConnection connection;
    ASSERT_EQ(connection.result, NCL_SUCCESS);
    DrvStatusEx drives{};
    ASSERT_EQ(GetDrvStatusEx(connection.handle, &drives), NCL_SUCCESS);
    EXPECT_EQ(drives.Drv1.dwStatus, NCL_DRV_STATUS_WRITING);
    EXPECT_EQ(drives.Drv2.dwStatus, NCL_DRV_STATUS_IDLE);
    EXPECT_GT(drives.Drv1.dwProgress, 0U);
    StackerStatus stackers{};
    ASSERT_EQ(GetStackerStatus(connection.handle, &stackers), NCL_SUCCESS);
    EXPECT_EQ(stackers.Stacker1.dwDiscQuantity, 59U);
    EXPECT_TRUE(stackers.Stacker1.bSupply);
    InkStatus ink{};
    ASSERT_EQ(GetInkStatus(connection.handle, &ink), NCL_SUCCESS);
    EXPECT_EQ(ink.Black.dwInkCartridge, 9U);
    EXPECT_TRUE(ink.Black.bInkNearEnd);
    EXPECT_EQ(ink.Yellow.dwInkCartridge, 100U);
    std::vector<JobStatusEx> jobs(4);
    DWORD count = 0;
    ASSERT_EQ(GetJobStatusEx(connection.handle, NCL_JST_PROCESS_JOB_EX, jobs.data(), 4, &count), NCL_SUCCESS);
    ASSERT_EQ(count, 1U);
    EXPECT_STREQ(jobs[0].wszJobName, "\xC3\x9C"
                                     "bung");
    EXPECT_STREQ(jobs[0].wszPublicationPerson, "udsim");
    EXPECT_EQ(jobs[0].dwJobStatus, NCL_JOB_STATUS_RUNNING);
    EXPECT_EQ(jobs[0].dwPublicationNumber, 3U);
    EXPECT_EQ(jobs[0].dwRemainingTime, 27U);
    open.room.tell("A", "error 9");
    ALDStatus loader{};
    ASSERT_EQ(GetALDStatus(connection.handle, &loader), NCL_SUCCESS);
    EXPECT_TRUE(loader.bDiscCoverOpen);
    open.room.tell("A", "offline");
    EXPECT_EQ(GetALDStatus(connection.handle, &loader), NCL_ERR_DEVICE_OFFLINE);
    open.room.tell("A", "server off");
    EXPECT_EQ(GetALDStatus(connection.handle, &loader), NCL_ERR_CONNECTION_CLOSE);
    open.room.tell("A", "server on");
    EXPECT_EQ(GetALDStatus(connection.handle, &loader), NCL_ERR_DEVICE_OFFLINE) << "the library reconnects";
}
