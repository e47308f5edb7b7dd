#include "Internet.h"

#include "FailingMemory.h"
#include "FakeComm.h"
#include "SyslogLines.h"
#include "TcpPeer.h"

#include <type_traits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

static_assert(std::has_virtual_destructor_v<CInternetCon>);

TEST(InternetCon, FailsBeforeOpen)
{
    CInternetCon con;
    char byte = 0;
    EXPECT_EQ(con.Close(), -3);
    EXPECT_EQ(con.SetTimeout(1), -3);
    EXPECT_EQ(con.SetNoCommTimeout(1), -3);
    EXPECT_EQ(con.Connect(), -3);
    EXPECT_EQ(con.Shutdown(), -3);
    EXPECT_EQ(con.ReadToCount(&byte, 1), -3);
    EXPECT_EQ(con.WriteToCount(&byte, 1), -3);
    EXPECT_EQ(con.PollRead(1), -3);
}

TEST(InternetCon, OpensOnceWithoutNetworkTraffic)
{
    TcpListener listener;
    CInternetCon con;
    EXPECT_EQ(con.Open(listener.Address(), listener.Port(), TRUE), 0);
    EXPECT_EQ(con.Open("127.0.0.2", 80, FALSE), -4);
    EXPECT_FALSE(listener.Accept(0).IsOpen());
    EXPECT_EQ(con.Connect(), 0); // with the first peer
    EXPECT_TRUE(listener.Accept().IsOpen());
    EXPECT_EQ(con.Close(), 0);
    EXPECT_EQ(con.Connect(), -3);
}

TEST(InternetCon, ReportsOutOfMemory)
{
    CInternetCon con;
    {
        const FailingMemory memory(1);
        EXPECT_EQ(con.Open("127.0.0.1", 80, FALSE), -2);
    }
    EXPECT_EQ(con.Connect(), -3);
    EXPECT_EQ(con.Open("127.0.0.1", 80, FALSE), 0);
}

TEST(InternetCon, ConnectsAStreamSocketWithinFiveSeconds)
{
    auto* comm = new FakeComm({{}, {}});
    FakeCon con(comm);
    EXPECT_EQ(con.Connect(), 0);
    EXPECT_THAT(comm->calls, ElementsAre("Close", "Open", "Connect"));
    EXPECT_EQ(comm->family, 2);
    EXPECT_EQ(comm->type, 1);
    EXPECT_THAT(comm->options, ElementsAre("1 2 1"));
    EXPECT_EQ(comm->connectTimeout, 5000U);
}

TEST(InternetCon, StoresATimeoutOnlyWhenOpen)
{
    TcpListener listener;
    FakeCon con(nullptr);
    EXPECT_EQ(con.SetTimeout(1), -3);
    EXPECT_EQ(con.m_dwConTimeoutMilliSec, 5000U);
    EXPECT_EQ(con.Open("127.0.0.1", 80, FALSE), 0);
    EXPECT_EQ(con.SetTimeout(1234), 0);
    EXPECT_EQ(con.m_dwConTimeoutMilliSec, 1234U);
}

TEST(InternetCon, PassesItsTimeoutsToTheTransport)
{
    auto* comm = new FakeComm({FakeConnection()});
    FakeCon con(comm);
    EXPECT_EQ(con.SetTimeout(777), 0);
    EXPECT_EQ(con.SetNoCommTimeout(120000), 0);
    EXPECT_EQ(con.Connect(), 0);
    EXPECT_EQ(comm->connectTimeout, 777U);
    EXPECT_EQ(comm->noCommTimeout, 120000U);
    EXPECT_EQ(con.PollRead(1), -6);
}

TEST(InternetCon, ConnectDoesNothingWhileConnected)
{
    auto* comm = new FakeComm({{}, {}});
    FakeCon con(comm);
    EXPECT_EQ(con.Connect(), 0);
    comm->calls.clear();
    EXPECT_EQ(con.Connect(), 0);
    EXPECT_THAT(comm->calls, IsEmpty());
    EXPECT_EQ(con.Shutdown(), 0);
    EXPECT_THAT(comm->calls, ElementsAre("Close"));
    EXPECT_FALSE(con.m_bConActive);
    EXPECT_EQ(con.Connect(), 0);
    EXPECT_THAT(comm->calls, ElementsAre("Close", "Close", "Open", "Connect"));
}

TEST(InternetCon, ReturnsTheErrorOfAFailedConnect)
{
    auto* comm = new FakeComm({{.openResult = -13}, {.connectResult = -6}, {.connectResult = -14}, {}});
    FakeCon con(comm);
    EXPECT_EQ(con.Connect(), -13);
    EXPECT_THAT(comm->calls, ElementsAre("Close", "Open"));
    EXPECT_EQ(con.Connect(), -6);
    EXPECT_FALSE(con.m_bConActive);
    EXPECT_EQ(con.Connect(), -14);
    EXPECT_EQ(comm->calls.back(), "Connect"); // the socket is kept until the next connect
    EXPECT_EQ(con.Connect(), 0);
}

TEST(InternetCon, IsDisconnectedAfterAReadFromAClosedPeer)
{
    const struct
    {
        int readEnd;
        bool isConnected;
    } rows[] = {{-11, false}, {-6, true}, {-9, true}, {-14, true}, {-26, true}};
    for (const auto& row : rows) {
        auto* comm = new FakeComm({{.reply = "ab", .readEnd = row.readEnd}});
        FakeCon con(comm);
        ASSERT_EQ(con.Connect(), 0);
        char buffer[2];
        EXPECT_EQ(con.ReadToCount(buffer, 2), 0); // not the count
        EXPECT_EQ(con.ReadToCount(buffer, 1), row.readEnd);
        EXPECT_EQ(con.m_bConActive != FALSE, row.isConnected) << row.readEnd;
    }
}

TEST(InternetCon, KeepsItsStateAfterAFailedWrite)
{
    auto* comm = new FakeComm({{.goodWrites = 1, .writeEnd = -10}});
    FakeCon con(comm);
    ASSERT_EQ(con.Connect(), 0);
    EXPECT_EQ(con.WriteToCount("abc", 3), 3);
    EXPECT_EQ(con.WriteToCount("abc", 3), -10);
    EXPECT_TRUE(con.m_bConActive);
}

TEST(InternetCon, KeepsItsStateAfterClose)
{
    FakeCon con(new FakeComm({FakeConnection()}));
    ASSERT_EQ(con.Connect(), 0);
    EXPECT_EQ(con.Close(), 0);
    EXPECT_EQ(con.m_pComm, nullptr);
    EXPECT_TRUE(con.m_bConActive);
}

TEST(InternetCon, OpensANewSocketAfterItsPeerClosed)
{
    SyslogLines lines;
    TcpListener listener;
    CInternetCon con;
    ASSERT_EQ(con.Open(listener.Address(), listener.Port(), FALSE), 0);
    ASSERT_EQ(con.Connect(), 0);
    listener.Accept().Close();
    EXPECT_EQ(con.Connect(), 0); // it does not check the peer
    EXPECT_FALSE(listener.Accept(0).IsOpen());
    char byte = 0;
    EXPECT_EQ(con.ReadToCount(&byte, 1), -11);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Read recv() shutdown"));
    EXPECT_EQ(con.Connect(), 0);
    TcpPeer peer = listener.Accept();
    EXPECT_EQ(con.WriteToCount("x", 1), 1);
    EXPECT_EQ(peer.ReadExactly(1), "x");
    EXPECT_EQ(con.Shutdown(), 0);
    EXPECT_TRUE(peer.WaitForClose());
}

TEST(InternetCon, TheDestructorClosesTheSocket)
{
    TcpListener listener;
    TcpPeer peer;
    {
        CInternetCon con;
        ASSERT_EQ(con.Open(listener.Address(), listener.Port(), FALSE), 0);
        ASSERT_EQ(con.Connect(), 0);
        peer = listener.Accept();
    }
    EXPECT_TRUE(peer.WaitForClose());
}

TEST(InternetConDeathTest, ANullAddressStopsTheProcess)
{
    CInternetCon con;
    EXPECT_DEATH(con.Open(nullptr, 80, FALSE), "pszServerAddress != nullptr");
}
