// The results of the client if pipes are busy or transfers stay pending.
#include "BasicPublisherMgr.h"
#include "InstallPaths.h"
#include "LogAgent.h"
#include "ManagerLog.h"
#include "ScriptedPlatform.h"
#include "Win_def_log.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr DWORD pending = 997;
constexpr DWORD busy = 231;

std::string Header(unsigned long id, unsigned long result, unsigned long length)
{
    const unsigned long fields[] = {id, result, length};
    return {reinterpret_cast<const char*>(fields), sizeof fields};
}

class ServiceTimeouts : public testing::Test
{
protected:
    void SetUp() override
    {
        g_platform = ScriptedPlatform();
        SetLogLevel(2);
    }

    void TearDown() override
    {
        EXPECT_EQ(g_platform.misuses, 0);
    }

    /// Runs one command with control 13 and returns its result.
    int Run()
    {
        response = this;
        length = 77;
        return mgr.GetServiceResponse(13, "R", nullptr, 0, &response, &length);
    }

    LogAgent agent;
    CBasicPublisherMgr mgr{true, PUBLISHER_SETTING_DIR};
    void* response = nullptr;
    ULONG length = 0;
};

TEST_F(ServiceTimeouts, ThePipeIsOpenedForOverlappedTransfer)
{
    g_platform.reads = {{TRUE, Header(13, 0, 0), 0, 0}};
    EXPECT_EQ(Run(), 0);
    EXPECT_EQ(g_platform.openedName, R"(\\.\pipe\ARVEN RT-300 Service Control)");
    EXPECT_EQ(g_platform.openedAccess, 0xC0000000u);
    EXPECT_EQ(g_platform.openedShare, 0u);
    EXPECT_EQ(g_platform.openedDisposition, 3u);
    EXPECT_EQ(g_platform.openedFlags, 0x40000080u);
    EXPECT_EQ(g_platform.opens, 1);
    EXPECT_EQ(g_platform.closes, 1);
    EXPECT_EQ(response, nullptr);
    EXPECT_EQ(length, 0u);
    EXPECT_TRUE(g_platform.waits.empty());
    EXPECT_TRUE(g_platform.sleeps.empty());
    EXPECT_TRUE(agent.TakeAll().empty());
}

TEST_F(ServiceTimeouts, AMissingServiceFailsAtTheFirstAttempt)
{
    g_platform.openErrors = {2};
    EXPECT_EQ(Run(), -1);
    EXPECT_EQ(g_platform.opens, 1);
    EXPECT_TRUE(g_platform.sleeps.empty());
    EXPECT_EQ(agent.TakeAll(),
              (std::vector{LogLine(4, "CBasicPublisherMgr::OpenServicePipe, failed to connect pipe"),
                           LogLine(4, "CBasicPublisherMgr::GetServiceResponse, failed to open pipe")}));
}

TEST_F(ServiceTimeouts, ABusyPipeIsTried41Times)
{
    g_platform.openErrors = {busy};
    EXPECT_EQ(Run(), -2);
    EXPECT_EQ(g_platform.opens, 41);
    EXPECT_EQ(g_platform.sleeps, std::vector<DWORD>(40, 50));
    const std::vector<std::string> lines = agent.TakeAll(); // limited by the queue of the agent
    EXPECT_GT(lines.size(), 1u);
    for (const std::string& line : lines) {
        EXPECT_EQ(line, LogLine(4, "CBasicPublisherMgr::OpenServicePipe, failed to connect pipe"));
    }
    EXPECT_EQ(response, nullptr);
    EXPECT_EQ(length, 0u);
}

TEST_F(ServiceTimeouts, APipeThatBecomesFreeIsUsed)
{
    g_platform.openErrors = std::vector<DWORD>(40, busy);
    g_platform.openErrors.push_back(0);
    g_platform.reads = {{TRUE, Header(13, 0, 0), 0, 0}};
    EXPECT_EQ(Run(), 0);
    EXPECT_EQ(g_platform.opens, 41);
    EXPECT_EQ(g_platform.sleeps.size(), 40u);
}

TEST_F(ServiceTimeouts, AnotherErrorEndsTheRetries)
{
    g_platform.openErrors = {busy, busy, 5};
    EXPECT_EQ(Run(), -1);
    EXPECT_EQ(g_platform.opens, 3);
    EXPECT_EQ(g_platform.sleeps.size(), 2u);
    const std::string failed = LogLine(4, "CBasicPublisherMgr::OpenServicePipe, failed to connect pipe");
    EXPECT_EQ(agent.TakeAll(),
              (std::vector{failed, failed, failed,
                           LogLine(4, "CBasicPublisherMgr::GetServiceResponse, failed to open pipe")}));
}

TEST_F(ServiceTimeouts, BelowLevel2NothingIsLogged)
{
    SetLogLevel(1);
    g_platform.openErrors = {2};
    EXPECT_EQ(Run(), -1);
    g_platform.openErrors = {0};
    for (const ScriptedTransfer& write :
         {ScriptedTransfer{FALSE, "", 0, 109}, ScriptedTransfer{FALSE, "", 0, pending},
          ScriptedTransfer{TRUE, "", 407, 0}}) {
        g_platform.write = write;
        EXPECT_NE(Run(), 0);
    }
    EXPECT_TRUE(agent.TakeAll().empty());
}

TEST_F(ServiceTimeouts, TheEventLivesAsLongAsTheObject)
{
    {
        const CBasicPublisherMgr other(true, PUBLISHER_SETTING_DIR);
        EXPECT_EQ(g_platform.eventCloses, 0);
    }
    EXPECT_EQ(g_platform.eventCloses, 1);
    EXPECT_EQ(g_platform.closes, 0); // no pipe was open
}

TEST_F(ServiceTimeouts, AFailedWriteReturnsNoCommunication)
{
    g_platform.write = {FALSE, "", 0, 109};
    EXPECT_EQ(Run(), -1);
    EXPECT_TRUE(g_platform.waits.empty());
    EXPECT_EQ(g_platform.closes, 1);
    EXPECT_FALSE(mgr.IsRunningCommunicateService());
    EXPECT_EQ(agent.TakeAll(), std::vector{LogLine(4, "CBasicPublisherMgr::WriteServiceCommand, 1")});
}

TEST_F(ServiceTimeouts, AWriteThatStaysPendingTimesOut)
{
    g_platform.write = {FALSE, "", 0, pending};
    EXPECT_EQ(Run(), -2);
    EXPECT_EQ(g_platform.waits, std::vector<DWORD>{1000});
    EXPECT_EQ(g_platform.overlappedResults, 1);
    EXPECT_EQ(g_platform.closes, 1);
    EXPECT_EQ(agent.TakeAll(), std::vector{LogLine(4, "CBasicPublisherMgr::WriteServiceCommand, 2")});
}

TEST_F(ServiceTimeouts, AShortWriteReturnsNoCommunication)
{
    g_platform.write = {TRUE, "", 407, 0};
    EXPECT_EQ(Run(), -1);
    EXPECT_EQ(g_platform.closes, 1);
    EXPECT_EQ(agent.TakeAll(), std::vector{LogLine(4, "CBasicPublisherMgr::WriteServiceCommand, 3")});
}

TEST_F(ServiceTimeouts, APendingWriteThatEndsShortReturnsNoCommunication)
{
    g_platform.write = {FALSE, "", 0, pending};
    g_platform.overlappedResult = TRUE;
    g_platform.overlappedCount = 100;
    EXPECT_EQ(Run(), -1);
    EXPECT_EQ(agent.TakeAll(), std::vector{LogLine(4, "CBasicPublisherMgr::WriteServiceCommand, 3")});
}

TEST_F(ServiceTimeouts, APendingWriteThatCompletesContinues)
{
    g_platform.write = {FALSE, "", 0, pending};
    g_platform.overlappedResult = TRUE; // regardless of the result of the wait
    g_platform.overlappedCount = 408;
    g_platform.reads = {{TRUE, Header(13, 0, 0), 0, 0}};
    EXPECT_EQ(Run(), 0);
}

TEST_F(ServiceTimeouts, AHeaderThatStaysPendingTimesOut)
{
    g_platform.reads = {{FALSE, "", 0, pending}};
    EXPECT_EQ(Run(), -2);
    EXPECT_EQ(g_platform.waits, std::vector<DWORD>{1000});
    EXPECT_EQ(g_platform.readSizes, std::vector<DWORD>{24});
    EXPECT_EQ(g_platform.closes, 1);
    EXPECT_TRUE(agent.TakeAll().empty());
}

TEST_F(ServiceTimeouts, AFailedHeaderReturnsNoCommunication)
{
    g_platform.reads = {{FALSE, "", 0, 109}};
    EXPECT_EQ(Run(), -1);
    EXPECT_TRUE(g_platform.waits.empty());
}

TEST_F(ServiceTimeouts, APendingHeaderThatEndsShortReturnsNoCommunication)
{
    g_platform.reads = {{FALSE, Header(13, 0, 0), 0, pending}};
    g_platform.overlappedResult = TRUE;
    g_platform.overlappedCount = 23;
    EXPECT_EQ(Run(), -1);
    g_platform.readSizes.clear();
    g_platform.overlappedCount = 24;
    EXPECT_EQ(Run(), 0);
}

TEST_F(ServiceTimeouts, APayloadThatStaysPendingReturnsNoCommunication)
{
    g_platform.reads = {{TRUE, Header(13, 0, 4), 0, 0}, {FALSE, "", 0, pending}};
    EXPECT_EQ(Run(), -1);
    EXPECT_EQ(g_platform.waits, std::vector<DWORD>{1000});
    EXPECT_EQ(g_platform.readSizes, (std::vector<DWORD>{24, 4}));
    EXPECT_EQ(response, nullptr);
    EXPECT_EQ(length, 0u);
    EXPECT_EQ(g_platform.closes, 1);
}

TEST_F(ServiceTimeouts, ATimeoutOfOneCommandDiscardsTheEarlierReplies)
{
    g_platform.reads = {{TRUE, Header(10, 0, 4), 0, 0},
                        {TRUE, "aaaa", 0, 0},
                        {TRUE, Header(12, 0, 4), 0, 0},
                        {TRUE, "bbbb", 0, 0},
                        {FALSE, "", 0, pending}};
    CBasicPublisherMgr::ServiceCommand commands[] = {
        {10, "R", nullptr, 0}, {12, "R", nullptr, 0}, {11, "R", nullptr, 0}};
    void* responses[3] = {};
    ULONG lengths[3] = {};
    EXPECT_EQ(mgr.GetServiceResponse(commands, 3, responses, lengths), -2);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(responses[i], nullptr);
        EXPECT_EQ(lengths[i], 0u);
    }
    EXPECT_EQ(g_platform.opens, 3);
    EXPECT_EQ(g_platform.closes, 3);
}

TEST_F(ServiceTimeouts, TheStepsPassTheirArgumentsUnchanged)
{
    int code = 77;
    const HANDLE pipe = mgr.OpenServicePipe(&code);
    ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
    EXPECT_EQ(code, 0);
    char image[] = "image";
    g_platform.write.count = 5;
    code = 77;
    EXPECT_TRUE(mgr.WriteServiceCommand(pipe, image, 5, &code));
    EXPECT_EQ(code, 0);
    EXPECT_EQ(g_platform.written, "image");
    g_platform.reads = {{TRUE, "abc", 0, 0}};
    char answer[3];
    code = 77;
    EXPECT_TRUE(mgr.ReadServiceResponse(pipe, answer, 3, &code));
    EXPECT_EQ(code, 0);
    EXPECT_EQ(std::string(answer, 3), "abc");
    EXPECT_FALSE(mgr.IsRunningCommunicateService());
}

using ServiceTimeoutsDeathTest = ServiceTimeouts;

TEST_F(ServiceTimeoutsDeathTest, AMissingEventStopsTheProcess)
{
    g_platform.eventsFail = true;
    EXPECT_DEATH(CBasicPublisherMgr(true, PUBLISHER_SETTING_DIR), "!= FALSE");
}

TEST_F(ServiceTimeoutsDeathTest, NullArgumentsAndZeroLengthsStopTheProcess)
{
    int code = 0;
    char byte = 0;
    void* data = nullptr;
    ULONG size = 0;
    HANDLE pipe = &byte;
    CBasicPublisherMgr::ServiceCommand command{13, "R", nullptr, 0};
    EXPECT_DEATH(mgr.OpenServicePipe(nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.WriteServiceCommand(nullptr, &byte, 1, &code), "!= FALSE");
    EXPECT_DEATH(mgr.WriteServiceCommand(pipe, nullptr, 1, &code), "!= FALSE");
    EXPECT_DEATH(mgr.WriteServiceCommand(pipe, &byte, 0, &code), "!= FALSE");
    EXPECT_DEATH(mgr.WriteServiceCommand(pipe, &byte, 1, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.ReadServiceResponse(nullptr, &byte, 1, &code), "!= FALSE");
    EXPECT_DEATH(mgr.ReadServiceResponse(pipe, nullptr, 1, &code), "!= FALSE");
    EXPECT_DEATH(mgr.ReadServiceResponse(pipe, &byte, 0, &code), "!= FALSE");
    EXPECT_DEATH(mgr.ReadServiceResponse(pipe, &byte, 1, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceResponse(nullptr, 1, &data, &size), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceResponse(&command, 1, nullptr, &size), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceResponse(&command, 1, &data, nullptr), "!= FALSE");
}

} // namespace
