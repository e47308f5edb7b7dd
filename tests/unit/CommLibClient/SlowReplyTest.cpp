// Tests the time limit of a whole reply. The clock is that of the test; nothing waits for it.
#include "ConnectedSocket.h"
#include "FakeComm.h"
#include "SyslogLines.h"
#include "TestClock.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;

namespace {

constexpr DWORD HOUR = 3'600'000; // milliseconds, as all times here
constexpr DWORD TEN_MINUTES = 600'000;
constexpr int NO_COMM = -6;

int ReadOne(CSocket& socket)
{
    char byte = 0;
    return socket.ReadToCount(&byte, 1);
}

/// A socket whose peer sends `head` at once, and then one byte of `rest` in each `step`, again and again.
class SlowSocket : public CSocket
{
public:
    SlowSocket(std::string head, std::string rest, DWORD step)
        : m_head(std::move(head)), m_rest(std::move(rest)), m_step(step)
    {
    }

    int Connect(const char*, WORD, DWORD milliseconds) override
    {
        const int result = CSocket::Connect(m_listener.Address(), m_listener.Port(), milliseconds);
        m_peer = m_listener.Accept();
        EXPECT_TRUE(m_peer.Write(m_head));
        ++connects;
        return result;
    }
    int PollRead(DWORD milliseconds) override
    {
        EXPECT_LE(milliseconds, 120'000U);
        if (m_left > 0) {
            --m_left;
        } else {
            testClock += m_step;
            EXPECT_TRUE(m_peer.Write(m_rest.substr(m_sent % m_rest.size(), 1)));
            ++m_sent;
        }
        return CSocket::PollRead(milliseconds);
    }

    int connects = 0;

private:
    TcpListener m_listener;
    TcpPeer m_peer;
    std::string m_head;
    std::string m_rest;
    DWORD m_step;
    size_t m_left = m_head.size(); ///< bytes of the head that the client has not read
    size_t m_sent = 0;
};

/// The result of a request.
int Ask(CHttp& http)
{
    ST_HTTP_RESPONSE response;
    return http.SendRequest(CHttp::METHOD_GET, "/", CHttp::VERSION_1_1, "localhost", nullptr, nullptr,
                            nullptr, nullptr, 0, &response);
}

} // namespace

TEST(SlowReply, WithoutALimitOnlySilenceCounts)
{
    ConnectedSocket connection;
    for (int byte = 0; byte < 5; ++byte) {
        testClock += HOUR;
        connection.peer.Write("x");
        EXPECT_EQ(ReadOne(connection.socket), 1);
    }
    connection.socket.LimitReads(1000);
    connection.socket.LimitReads(0);
    testClock += HOUR;
    connection.peer.Write("x");
    EXPECT_EQ(ReadOne(connection.socket), 1);
}

TEST(SlowReply, ALimitHoldsForAllReadsTogether)
{
    ConnectedSocket connection;
    connection.socket.LimitReads(1000);
    connection.peer.Write("x");
    EXPECT_EQ(ReadOne(connection.socket), 1);
    testClock += 999;
    connection.peer.Write("x");
    EXPECT_EQ(ReadOne(connection.socket), 1);
    testClock += 1;
    connection.peer.Write("x");
    SyslogLines lines;
    EXPECT_EQ(ReadOne(connection.socket), NO_COMM);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::ReadToCount time limit"));
    connection.socket.LimitReads(1000);
    EXPECT_EQ(ReadOne(connection.socket), 1);
}

TEST(SlowReply, ReceivedBytesAreDeliveredAfterTheLimit)
{
    ConnectedSocket connection;
    connection.socket.LimitReads(1000);
    connection.peer.Write("xyz");
    connection.WaitForBytes(3);
    EXPECT_EQ(ReadOne(connection.socket), 1); // the other two are in the buffer of the socket object
    testClock += HOUR;
    EXPECT_EQ(ReadOne(connection.socket), 1);
    EXPECT_EQ(ReadOne(connection.socket), 1);
    connection.peer.Write("x");
    EXPECT_EQ(ReadOne(connection.socket), NO_COMM);
}

TEST(SlowReply, AWaitIsNotLongerThanTheRestOfTheLimit)
{
    ConnectedSocket connection;
    connection.socket.SetNoCommTimeout(600'000);
    connection.socket.LimitReads(20);
    SyslogLines lines;
    EXPECT_EQ(ReadOne(connection.socket), NO_COMM);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Poll select() timeout"));
}

TEST(SlowReply, AReplyEndsAfterTenMinutes)
{
    const std::string ok = "HTTP/1.1 200 OK\r\n";
    const struct
    {
        std::string head;
        std::string rest;
        DWORD step;
    } rows[] = {
        {"", "HTTP/1.1 100 Continue\r\n\r\n", 1000},
        {ok, "X-Padding: x\r\n", 1000},
        {ok, "X-Padding: x\r\n", 119'000},
        {ok + "Content-Length: 4000000\r\n\r\n", "x", 1000},
        {ok + "Transfer-Encoding: chunked\r\n\r\n", "1\r\nx\r\n", 1000},
        {ok + "Transfer-Encoding: chunked\r\n\r\n300000\r\n", "x", 119'000},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.head + row.rest);
        auto* const socket = new SlowSocket(row.head, row.rest, row.step); // the client owns it
        FakeHttp http(socket);
        SyslogLines lines;
        const DWORD start = testClock;
        EXPECT_EQ(Ask(http), NO_COMM);
        const DWORD time = testClock - start;
        EXPECT_GE(time, TEN_MINUTES);
        EXPECT_LT(time, TEN_MINUTES + row.step);
        EXPECT_EQ(socket->connects, 1) << "a timeout is not repeated";
        EXPECT_THAT(lines.Take(), Contains("<3>[CommLib(HTTP)] Network Timeout (No Comm)"));
    }
}

TEST(SlowReply, EachReplyHasItsOwnTime)
{
    const std::string reply = "HTTP/1.1 200 OK\r\nContent-Length: 1\r\n\r\nx";
    TcpServer server({[&](TcpServer& self, TcpPeer& peer) {
        for (int round = 0; round < 5; ++round) {
            self.TakeRequest(peer);
            testClock += TEN_MINUTES - 1;
            peer.Write(reply);
        }
    }});
    CHttp http;
    ASSERT_EQ(http.Open(server.Address(), server.Port(), FALSE), 0);
    for (int round = 0; round < 5; ++round) {
        EXPECT_EQ(Ask(http), 0);
    }
}
