// Tests the client against scripted servers, with real sockets and in real time.
#include "Http.h"

#include "SyslogLines.h"
#include "TcpPeer.h"

#include <atomic>
#include <cerrno>
#include <chrono>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string HEAD = "GET /webapp2/ServerModeGetter HTTP/1.1\r\nHost:localhost\r\n\r\n";
const std::string GOOD = "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n" + std::string("\0\0\1\2", 4);
const std::string CHUNKED = "HTTP/1.1 100 Continue\r\n\r\n"
                            "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                            "3\r\nabc\r\n2\r\nde\r\n0\r\n\r\n";

/// A client of one server.
struct Client
{
    template <class Server>
    explicit Client(const Server& server)
    {
        EXPECT_EQ(http.Open(server.Address(), server.Port(), FALSE), 0);
    }

    int Get()
    {
        return http.SendRequest(CHttp::METHOD_GET, "/webapp2/ServerModeGetter", CHttp::VERSION_1_1,
                                "localhost", nullptr, nullptr, nullptr, nullptr, 0, &response);
    }

    int Post(const std::string& body)
    {
        return http.SendRequest(CHttp::METHOD_POST, "/", CHttp::VERSION_1_1, "localhost", nullptr, nullptr,
                                nullptr, body.data(), static_cast<DWORD>(body.size()), &response);
    }

    std::string Content() const
    {
        return response.m_pContent != nullptr ? std::string(response.m_pContent, response.m_dwContentLength)
                                              : std::string();
    }

    CHttp http;
    ST_HTTP_RESPONSE response;
};

/// A server that sends the start of a reply, and then closes.
TcpServer::Script Half(const std::string& reply, size_t size)
{
    return TcpServer::Answers({reply.substr(0, size)});
}

} // namespace

TEST(HttpExchange, SendsARequestAndReceivesItsReply)
{
    TcpServer server({TcpServer::Answers({GOOD})});
    Client client(server);
    EXPECT_EQ(client.Get(), 0);
    EXPECT_EQ(client.Content(), std::string("\0\0\1\2", 4));
    EXPECT_THAT(server.Requests(), ElementsAre(HEAD));
}

TEST(HttpExchange, ConnectsToPort80OfAnyHost)
{
    TcpServer server({TcpServer::Answers({GOOD})}, "127.0.0.5", 80);
    Client client(server);
    EXPECT_EQ(client.Get(), 0);
}

TEST(HttpExchange, ReceivesAReplyByteByByte)
{
    for (const std::string& reply : {GOOD, CHUNKED}) {
        TcpServer server({[&](TcpServer& self, TcpPeer& peer) {
            self.TakeRequest(peer);
            peer.WriteInPieces(reply, 1);
        }});
        Client client(server);
        EXPECT_EQ(client.Get(), 0);
        EXPECT_EQ(client.Content(), reply == GOOD ? std::string("\0\0\1\2", 4) : "abcde");
    }
}

TEST(HttpExchange, FailsAfterTwoPartialRepliesOfAnySize)
{
    for (const std::string& reply : {GOOD, CHUNKED}) {
        for (size_t size = 0; size < reply.size(); ++size) {
            TcpServer server({Half(reply, size), Half(reply, size)});
            Client client(server);
            EXPECT_EQ(client.Get(), -11) << size;
            EXPECT_THAT(server.Requests(), ElementsAre(HEAD, HEAD)) << size;
            EXPECT_EQ(client.response.m_pContent, nullptr);
        }
    }
}

TEST(HttpExchange, SucceedsOnRetryAfterAPartialReplyOfAnySize)
{
    for (size_t size = 0; size < GOOD.size(); ++size) {
        TcpServer server({Half(GOOD, size), TcpServer::Answers({GOOD})});
        Client client(server);
        EXPECT_EQ(client.Get(), 0) << size;
        EXPECT_EQ(client.Content(), std::string("\0\0\1\2", 4));
        EXPECT_EQ(server.Connections(), 2);
    }
}

TEST(HttpExchange, ReusesItsConnection)
{
    TcpServer server({TcpServer::Answers({GOOD, CHUNKED, GOOD})});
    Client client(server);
    EXPECT_EQ(client.Get(), 0);
    EXPECT_EQ(client.Post("body"), 0);
    EXPECT_EQ(client.Content(), "abcde");
    EXPECT_EQ(client.Get(), 0);
    EXPECT_EQ(server.Connections(), 1);
    EXPECT_THAT(
        server.Requests(),
        ElementsAre(HEAD, "POST / HTTP/1.1\r\nHost:localhost\r\nContent-Length: 4\r\n\r\nbody", HEAD));
}

TEST(HttpExchange, ClosesWhenTheServerRequestsIt)
{
    const std::string last = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n";
    std::atomic<bool> isClosed = false;
    TcpServer server({[&](TcpServer& self, TcpPeer& peer) {
                          self.TakeRequest(peer);
                          peer.Write(last);
                          isClosed = peer.WaitForClose();
                      },
                      TcpServer::Answers({GOOD})});
    Client client(server);
    EXPECT_EQ(client.Get(), 0);
    EXPECT_EQ(client.Get(), 0);
    EXPECT_TRUE(isClosed);
    EXPECT_EQ(server.Connections(), 2);
}

TEST(HttpExchange, ReconnectsAfterTheServerClosedTheConnection)
{
    SyslogLines lines;
    TcpServer server({TcpServer::Answers({GOOD}), TcpServer::Answers({GOOD})});
    Client client(server);
    EXPECT_EQ(client.Get(), 0);
    EXPECT_EQ(client.Get(), 0);
    EXPECT_EQ(server.Connections(), 2);
    EXPECT_EQ(lines.Take().back().substr(0, 23), "<4>CHttp::SendRequest R");
}

TEST(HttpExchange, ResendsTheWholeBodyOnRetry)
{
    const std::string body(300000, 'b');
    TcpServer server({[](TcpServer&, TcpPeer& peer) {
                          peer.ReadHead();
                          peer.ReadExactly(1000);
                          peer.Reset();
                      },
                      TcpServer::Answers({GOOD})});
    Client client(server);
    EXPECT_EQ(client.Post(body), 0);
    EXPECT_THAT(server.Requests(),
                ElementsAre("POST / HTTP/1.1\r\nHost:localhost\r\nContent-Length: 300000\r\n\r\n" + body));
}

TEST(HttpExchange, IsNotRetriedWithASilentServer)
{
    TcpListener listener;
    Client client(listener);
    EXPECT_EQ(client.http.SetNoCommTimeout(100), 0);
    SyslogLines lines;
    EXPECT_EQ(client.Get(), -6);
    EXPECT_THAT(lines.Take(),
                ElementsAre("<4>CSocket::Poll select() timeout", "<4>CHttp::RecvLine Count = 0",
                            "<3>CHttp::RecvHeader Start 1", "<4>CHttp::RecvResponse RecvHeader() error",
                            "<3>[CommLib(HTTP)] Network Timeout (No Comm)",
                            "<4>CHttp::SendRequest RecvResponse() Method = GET Path = "
                            "/webapp2/ServerModeGetter, Add Header = null"));
    TcpPeer peer = listener.Accept();
    EXPECT_EQ(peer.ReadRequest(), HEAD);
    EXPECT_TRUE(peer.WaitForClose());
    EXPECT_FALSE(listener.Accept(0).IsOpen());
}

TEST(HttpExchange, TheSilenceTimeoutRestartsWithEachByte)
{
    const std::string reply = "HTTP/1.1 200 OK\r\nContent-Length: 1\r\n\r\nx";
    TcpServer server({[&](TcpServer& self, TcpPeer& peer) {
        self.TakeRequest(peer);
        for (const char byte : reply) {
            peer.WaitForClose(30); // a pause: together they exceed the allowed silence
            peer.Write(std::string(1, byte));
        }
    }});
    Client client(server);
    EXPECT_EQ(client.http.SetNoCommTimeout(500), 0);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(client.Get(), 0);
    EXPECT_GT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1000));
    EXPECT_EQ(server.Connections(), 1);
}

TEST(HttpExchange, FailsWhenTheBodyStalls)
{
    TcpServer server({[&](TcpServer& self, TcpPeer& peer) {
        self.TakeRequest(peer);
        peer.Write("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nabc");
        peer.WaitForClose();
    }});
    Client client(server);
    client.http.SetNoCommTimeout(100);
    EXPECT_EQ(client.Get(), -6);
    EXPECT_EQ(server.Connections(), 1);
}

TEST(HttpExchange, RetriesARefusedConnectOnce)
{
    SyslogLines lines;
    TcpListener listener;
    listener.StopListening();
    Client client(listener);
    EXPECT_EQ(client.Get(), -14);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CHttp::SendRequest SendHeader() retry"));
}

TEST(HttpExchange, AcceptsAReplyBeforeTheUploadEnds)
{
    const std::string body(20000000, 'b');
    TcpServer server({[](TcpServer&, TcpPeer& peer) {
        peer.ReadHead();
        peer.Write("HTTP/1.1 403 Forbidden\r\n\r\n");
        peer.ReadExactly(20000000);
    }});
    Client client(server);
    EXPECT_EQ(client.Post(body), 0);
    EXPECT_EQ(client.response.m_eStatus, CHttp::STATUS_FORBIDDEN);
}

TEST(HttpExchange, RecoversFromAnEarlierErangeOnRetry)
{
    SyslogLines lines;
    TcpServer server({TcpServer::Answers({GOOD, GOOD}), TcpServer::Answers({GOOD})});
    Client client(server);
    ASSERT_EQ(client.Get(), 0);
    errno = ERANGE;
    EXPECT_EQ(client.Get(), 0); // the new connection clears it
    EXPECT_THAT(server.Requests(), ElementsAre(HEAD, HEAD, HEAD));
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CHttp::RecvResponse RecvHeader() error",
                                          "<4>CHttp::SendRequest RecvResponse() retry"));
}

TEST(HttpExchange, DoesNotReuseTheConnectionAfterCloseAndOpen)
{
    TcpServer server({TcpServer::Answers({GOOD}), TcpServer::Answers({GOOD})});
    Client client(server);
    ASSERT_EQ(client.Get(), 0);
    EXPECT_EQ(client.http.Close(), 0);
    EXPECT_EQ(client.http.Open(server.Address(), server.Port(), FALSE), 0);
    EXPECT_EQ(client.Get(), 0); // it counts as connected until the first write fails
    EXPECT_EQ(server.Connections(), 2);
}

TEST(HttpExchange, SendsASmallPostWithoutDelay)
{
    constexpr int COUNT = 50;
    TcpServer server({TcpServer::Answers(std::vector<std::string>(COUNT, GOOD))});
    Client client(server);
    const auto start = std::chrono::steady_clock::now();
    for (int count = 0; count < COUNT; ++count) {
        ASSERT_EQ(client.Post("ifversion=02000000"), 0);
    }
    // Otherwise each would wait 40 ms for the acknowledgement of its head.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(COUNT * 40 / 2));
}
