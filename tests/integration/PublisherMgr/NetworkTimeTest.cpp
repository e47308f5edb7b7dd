// Tests the timeout for a server that accepts no connection.
#include "NetworkOperations.h"
#include "PublisherFiles.h"
#include "Socket.h"
#include "TcpPeer.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

class NetworkTime : public testing::Test
{
protected:
    void SetUp() override
    {
        WritePublisher("R", "[Common]\nPublisherName=Lab\nPublisherURL=127.0.0.1\n");
        for (CSocket& socket : m_waiting) {
            ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
            socket.Connect(m_listener.Address(), m_listener.Port(), 0);
        }
        m_start = std::chrono::steady_clock::now();
    }
    void TearDown() override
    {
        const auto seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
        EXPECT_GE(seconds, 4.9);
        EXPECT_LT(seconds, 9.0) << "only one attempt";
    }

    TcpListener m_listener{"127.0.0.1", 80, 0};
    std::vector<CSocket> m_waiting{8}; ///< more than the backlog: the kernel stops answering
    std::chrono::steady_clock::time_point m_start;
    CNetworkPublisherMgr m_mgr{true, PUBLISHER_SETTING_DIR};
};

} // namespace

TEST_F(NetworkTime, TheConnectionTestReportsATimeout)
{
    EXPECT_EQ(m_mgr.ConnectionTest("127.0.0.1"), 8U);
}

TEST_F(NetworkTime, TheReachabilityQueryReportsATimeout)
{
    long code = 77;
    EXPECT_FALSE(m_mgr.IsPossibleCommunicate("R", &code));
    EXPECT_EQ(code, 8);
}

TEST_F(NetworkTime, AQueryDoesNotReportTheCause)
{
    const NetworkOperation& operation = NetworkOperationOf("GetServiceInkStatus");
    const NetworkAnswer answer = operation.call(m_mgr, "R", true);
    EXPECT_EQ(answer.result, 0);
    EXPECT_EQ(answer.code, -1);
    EXPECT_TRUE(answer.isKept);
}

TEST_F(NetworkTime, ARecordContainsItsLocalPart)
{
    PUBLISHERINFO info;
    EXPECT_FALSE(m_mgr.GetPublisherInfo("R", &info, FALSE));
    EXPECT_EQ(info.strPublisherName, "Lab");
    EXPECT_EQ(info.uiPublishMode, 0xFFFFFFFFU);
}
