#include "Socket.h"

#include "ChildProcess.h"
#include "ConnectedSocket.h"
#include "SyslogLines.h"

#include <chrono>
#include <type_traits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/sockios.h>
#include <sys/resource.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

static_assert(std::is_same_v<SOCKET, int>);
static_assert(std::has_virtual_destructor_v<IInternetComm>);
static_assert(CSocket::SELECT_READ == 0 && CSocket::SELECT_WRITE == 1 && CSocket::SELECT_EXCEPT == 2);

namespace {

/// Bytes that have been written and not yet sent. qemu-user does not support this request.
int BytesHeldBack(const CSocket& socket)
{
    int count = -1;
    EXPECT_EQ(ioctl(socket.GetFD(), SIOCOUTQNSD, &count), 0);
    return count;
}

int IntOption(const CSocket& socket, int level, int name)
{
    int value = -1;
    socklen_t size = sizeof value;
    EXPECT_EQ(getsockopt(socket.GetFD(), level, name, &value, &size), 0);
    return value;
}

/// Records the sizes of its reads and writes, and transfers nothing.
class CountingSocket : public CSocket
{
public:
    CountingSocket()
    {
        m_Sock = 0; // counts as open
    }
    ~CountingSocket() override
    {
        m_Sock = -1;
    }
    int Write(const char*, int nSize) override
    {
        sizes.push_back(nSize);
        return std::min(nSize, most);
    }
    int PollRead(DWORD dwTimeoutMilliSec) override
    {
        waits.push_back(dwTimeoutMilliSec);
        return pollResult;
    }
    int Read(char*, int nSize) override
    {
        sizes.push_back(nSize);
        return std::min(nSize, most);
    }

    int most = 1000000; ///< bytes that one call transfers
    int pollResult = 0;
    std::vector<int> sizes;
    std::vector<DWORD> waits;
};

class Clock
{
public:
    long Milliseconds() const
    {
        return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() -
                                                                     m_start)
            .count();
    }

private:
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

} // namespace

TEST(Socket, FailsBeforeOpen)
{
    SyslogLines lines;
    CSocket socket;
    char byte = 0;
    EXPECT_EQ(socket.GetFD(), -1);
    EXPECT_EQ(socket.Connect("127.0.0.1", 80, 1000), -3);
    EXPECT_EQ(socket.Shutdown(SHUT_RDWR), -3);
    EXPECT_EQ(socket.Read(&byte, 1), -3);
    EXPECT_EQ(socket.ReadToCount(&byte, 0), -3);
    EXPECT_EQ(socket.Write(&byte, 1), -3);
    EXPECT_EQ(socket.WriteToCount(&byte, 0), -3);
    EXPECT_EQ(socket.PollRead(1000), -3);
    EXPECT_EQ(socket.Poll(CSocket::SELECT_WRITE, 1000), -3);
    EXPECT_EQ(socket.SetSockOpt(SOL_SOCKET, SO_REUSEADDR, &byte, 1), -3);
    EXPECT_EQ(socket.SetNoCommTimeout(1), 0);
    EXPECT_EQ(socket.Close(), 0);
    EXPECT_THAT(lines.Take(), IsEmpty());
}

TEST(Socket, OpensOnce)
{
    SyslogLines lines;
    CSocket socket;
    ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
    const int descriptor = socket.GetFD();
    EXPECT_EQ(socket.Open(AF_INET, SOCK_STREAM), -4);
    EXPECT_EQ(socket.GetFD(), descriptor);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Open ALREADY OPEN"));
    EXPECT_EQ(socket.Close(), 0);
    EXPECT_EQ(socket.GetFD(), -1);
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
    EXPECT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
}

TEST(Socket, FailsForAnUnknownFamily)
{
    SyslogLines lines;
    CSocket socket;
    EXPECT_EQ(socket.Open(9999, SOCK_STREAM), -13);
    EXPECT_EQ(socket.GetFD(), -1);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Open socket() error = 97"));
}

TEST(Socket, IsClosedByTheDestructorAndOnExec)
{
    int descriptor = -1;
    {
        CSocket socket;
        ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
        descriptor = socket.GetFD();
        EXPECT_EQ(fcntl(descriptor, F_GETFD), FD_CLOEXEC);
    }
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
}

TEST(Socket, IsNotAStandardStream)
{
    EXPECT_TRUE(WaitFor(StartChild([] {
        close(0);
        close(1);
        close(2);
        CSocket socket;
        return socket.Open(AF_INET, SOCK_STREAM) == 0 && socket.GetFD() > 2;
    })));
}

TEST(Socket, ExchangesBytesWithItsPeer)
{
    ConnectedSocket connection;
    EXPECT_EQ(connection.socket.WriteToCount("hello", 5), 5);
    EXPECT_EQ(connection.peer.ReadExactly(5), "hello");
    connection.peer.Write("abc");
    EXPECT_EQ(connection.socket.PollRead(10000), 0);
    char buffer[10] = {};
    EXPECT_EQ(connection.socket.Read(buffer, 10), 3);
    EXPECT_STREQ(buffer, "abc");
}

TEST(Socket, BlocksAndSendsAtOnceOnceConnected)
{
    ConnectedSocket connection;
    EXPECT_EQ(fcntl(connection.socket.GetFD(), F_GETFL) & O_NONBLOCK, 0);
    EXPECT_EQ(IntOption(connection.socket, IPPROTO_TCP, TCP_NODELAY), 1);
    EXPECT_EQ(IntOption(connection.socket, SOL_SOCKET, SO_SNDBUF), 2 * 32768); // the system doubles it
}

TEST(Socket, ConnectsByName)
{
    const TcpListener listener;
    CSocket socket;
    ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
    EXPECT_EQ(socket.Connect("localhost", listener.Port(), 5000), 0);
}

TEST(Socket, FailsForAnUnknownName)
{
    for (const char* name : {"no-such-publisher.invalid", "", "256.256.256.256"}) {
        SyslogLines lines;
        CSocket socket;
        ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
        EXPECT_EQ(socket.Connect(name, 80, 5000), -14) << name;
        EXPECT_THAT(lines.Take(), ElementsAre(StartsWith("<4>CSocket::Connect gethostbyname() error = ")));
    }
}

TEST(Socket, FailsIfTheConnectionIsRefused)
{
    SyslogLines lines;
    TcpListener listener;
    listener.StopListening();
    CSocket socket;
    ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
    EXPECT_EQ(socket.Connect(listener.Address(), listener.Port(), 5000), -14);
    EXPECT_THAT(lines.Take(), IsEmpty());
    EXPECT_NE(socket.GetFD(), -1);
}

TEST(Socket, TimesOutIfThePeerDoesNotAnswer)
{
    const TcpListener listener("127.0.0.1", 0, 0);
    std::vector<CSocket> waiting(8); // more than the backlog: later connects do not complete
    for (CSocket& socket : waiting) {
        ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
        socket.Connect(listener.Address(), listener.Port(), 0);
    }
    SyslogLines lines;
    CSocket socket;
    ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
    const Clock clock;
    EXPECT_EQ(socket.Connect(listener.Address(), listener.Port(), 250), -6);
    EXPECT_GE(clock.Milliseconds(), 250);
    EXPECT_THAT(lines.Take(), IsEmpty());
    EXPECT_EQ(fcntl(socket.GetFD(), F_GETFL) & O_NONBLOCK, 0);
}

TEST(Socket, WaitsForTheRequestedEvent)
{
    ConnectedSocket connection;
    SyslogLines lines;
    EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_WRITE, 0), 0);
    const Clock clock;
    EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_READ, 1), -6);
    EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_EXCEPT, 250), -6);
    EXPECT_GE(clock.Milliseconds(), 250);
    EXPECT_THAT(lines.Take(),
                ElementsAre("<4>CSocket::Poll select() timeout", "<4>CSocket::Poll select() timeout"));
    connection.peer.Write("x");
    EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_READ, 10000), 0);
    EXPECT_THAT(lines.Take(), IsEmpty());
}

TEST(Socket, WaitsForUrgentBytes)
{
    ConnectedSocket connection;
    connection.peer.WriteUrgent('!');
    EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_EXCEPT, 10000), 0);
}

TEST(Socket, ReportsNoExceptionForALostPeer)
{
    ConnectedSocket connection;
    connection.peer.Reset();
    EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_READ, 10000), 0);
    const Clock clock;
    EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_EXCEPT, 50), -6);
    EXPECT_GE(clock.Milliseconds(), 50);
    EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_WRITE, 0), 0);
}

TEST(Socket, MayHaveAnyDescriptor)
{
    const rlimit limit{4096, 4096};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
    std::vector<int> files;
    do {
        files.push_back(open("/dev/null", O_RDONLY | O_CLOEXEC));
        ASSERT_GE(files.back(), 0);
    } while (files.back() < 1024);
    {
        SyslogLines lines;
        ConnectedSocket connection;
        EXPECT_GT(connection.socket.GetFD(), 1023);
        connection.peer.Write("x");
        char byte = 0;
        EXPECT_EQ(connection.socket.ReadToCount(&byte, 1), 1);
        EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_READ, 1), -6);
        EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Poll select() timeout"));
    }
    for (const int file : files) {
        close(file);
    }
}

TEST(Socket, ReportsAnInvalidDescriptor)
{
    ConnectedSocket connection;
    SyslogLines lines;
    lines.Take(); // opens the socket of syslog, which would otherwise get the descriptor
    close(connection.socket.GetFD());
    EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_READ, 10000), -26);
    EXPECT_EQ(connection.socket.Close(), 0);
    EXPECT_EQ(connection.socket.GetFD(), -1);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Poll select() error = 9",
                                          "<4>CSocket::Close closesocket() error = 9"));
}

TEST(Socket, DetectsThatItsPeerClosed)
{
    ConnectedSocket connection;
    connection.peer.Write("ab");
    connection.peer.Close();
    SyslogLines lines;
    char buffer[3] = {};
    EXPECT_EQ(connection.socket.ReadToCount(buffer, 3), -11);
    EXPECT_STREQ(buffer, "ab");
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Read recv() shutdown"));
}

TEST(Socket, ReadsAllDataBeforeItDetectsTheClose)
{
    for (const int size : {1, 2, 4095, 4096, 5000}) {
        ConnectedSocket connection;
        std::string sent(10000, '\0');
        for (size_t index = 0; index < sent.size(); ++index) {
            sent[index] = static_cast<char>(index * 7);
        }
        connection.peer.Write(sent);
        connection.peer.Close();
        std::string read;
        std::string piece(static_cast<size_t>(size), '\0');
        int count = 0;
        while ((count = connection.socket.Read(piece.data(), size)) > 0) {
            read.append(piece, 0, static_cast<size_t>(count));
        }
        EXPECT_EQ(count, -11);
        EXPECT_EQ(read, sent) << size;
    }
}

TEST(Socket, DiscardsReceivedDataOnClose)
{
    ConnectedSocket connection;
    connection.peer.Write("abc");
    connection.WaitForBytes(3);
    char byte = 0;
    ASSERT_EQ(connection.socket.Read(&byte, 1), 1);
    EXPECT_EQ(connection.socket.Close(), 0);
    EXPECT_EQ(connection.socket.Read(&byte, 1), -3);
    EXPECT_EQ(connection.socket.PollRead(10), -3);

    ASSERT_EQ(connection.socket.Open(AF_INET, SOCK_STREAM), 0);
    ASSERT_EQ(connection.socket.Connect(connection.listener.Address(), connection.listener.Port(), 5000), 0);
    TcpPeer next = connection.listener.Accept();
    next.Write("x");
    EXPECT_EQ(connection.socket.ReadToCount(&byte, 1), 1);
    EXPECT_EQ(byte, 'x');
}

TEST(Socket, DetectsAReset)
{
    ConnectedSocket connection;
    connection.peer.Reset();
    ASSERT_EQ(connection.socket.PollRead(10000), 0);
    SyslogLines lines;
    char byte = 0;
    EXPECT_EQ(connection.socket.Read(&byte, 1), -9);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Read recv() error = 104"));
}

TEST(Socket, SurvivesAWriteToALostPeer)
{
    ConnectedSocket connection;
    connection.peer.Reset();
    ASSERT_EQ(connection.socket.PollRead(10000), 0);
    SyslogLines lines;
    EXPECT_EQ(connection.socket.WriteToCount("x", 1), -10); // the reset
    EXPECT_EQ(connection.socket.WriteToCount("x", 1), -10); // a broken pipe from now on
    EXPECT_THAT(lines.Take(),
                ElementsAre("<4>CSocket::Write send() error = 104", "<4>CSocket::Write send() error = 32"));
}

TEST(Socket, HoldsBackAWriteIfMoreFollows)
{
    ConnectedSocket connection;
    connection.socket.SetMoreFollows(true);
    EXPECT_EQ(connection.socket.WriteToCount("head", 4), 4);
    EXPECT_EQ(BytesHeldBack(connection.socket), 4);
    connection.socket.SetMoreFollows(false);
    EXPECT_EQ(connection.socket.WriteToCount("body", 4), 4);
    EXPECT_EQ(BytesHeldBack(connection.socket), 0);
    EXPECT_EQ(connection.peer.ReadExactly(8), "headbody");
}

TEST(Socket, HoldsNothingBackFromAClosedPeer)
{
    ConnectedSocket connection;
    connection.peer.Close();
    ASSERT_EQ(connection.socket.PollRead(10000), 0);
    connection.socket.SetMoreFollows(true);
    EXPECT_EQ(connection.socket.WriteToCount("head", 4), 4);
    EXPECT_EQ(BytesHeldBack(connection.socket), 0);
}

TEST(Socket, ReportsAResetAtOnceEvenIfMoreFollows)
{
    ConnectedSocket connection;
    connection.peer.Reset();
    ASSERT_EQ(connection.socket.PollRead(10000), 0);
    connection.socket.SetMoreFollows(true);
    SyslogLines lines;
    EXPECT_EQ(connection.socket.WriteToCount("x", 1), -10);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Write send() error = 104"));
}

TEST(Socket, ReportsThatItWouldBlock)
{
    ConnectedSocket connection;
    SyslogLines lines;
    ASSERT_EQ(fcntl(connection.socket.GetFD(), F_SETFL, O_NONBLOCK), 0);
    char byte = 0;
    EXPECT_EQ(connection.socket.Read(&byte, 1), -14);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Connect connect() error = 11"));
    const std::string data(100000000, 'x');
    EXPECT_EQ(connection.socket.WriteToCount(data.data(), static_cast<int>(data.size())), -8);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Write send() timeout"));
}

TEST(Socket, ShutsDownOneDirection)
{
    ConnectedSocket connection;
    EXPECT_EQ(connection.socket.Shutdown(SHUT_WR), 0);
    EXPECT_TRUE(connection.peer.WaitForClose());
    connection.peer.Write("x");
    char byte = 0;
    EXPECT_EQ(connection.socket.ReadToCount(&byte, 1), 1);

    SyslogLines lines;
    CSocket unconnected;
    ASSERT_EQ(unconnected.Open(AF_INET, SOCK_STREAM), 0);
    EXPECT_EQ(unconnected.Shutdown(SHUT_RDWR), -11);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Shutdown shutdown() error = 107"));
}

TEST(Socket, WritesInPiecesBelowItsSendBuffer)
{
    const struct
    {
        int count;
        std::vector<int> pieces;
    } rows[] = {
        {0, {}},
        {1, {1}},
        {32766, {32766}},
        {32767, {32767}},
        {32768, {32767, 1}},
        {65534, {32767, 32767}},
        {65535, {32767, 32767, 1}},
        {100000, {32767, 32767, 32767, 1699}},
    };
    const std::string data(100000, 'x');
    for (const auto& row : rows) {
        CountingSocket socket;
        EXPECT_EQ(socket.WriteToCount(data.data(), row.count), row.count);
        EXPECT_EQ(socket.sizes, row.pieces) << row.count;
    }
}

TEST(Socket, WritesAPieceCompletely)
{
    CountingSocket socket;
    socket.most = 20000;
    const std::string data(32768, 'x');
    EXPECT_EQ(socket.WriteToCount(data.data(), 32768), 32768);
    EXPECT_THAT(socket.sizes, ElementsAre(32767, 12767, 1));
    socket.sizes.clear();
    EXPECT_EQ(socket.WriteToCountBase(data.data(), 32768), 32768);
    EXPECT_THAT(socket.sizes, ElementsAre(32768, 12768));
}

TEST(Socket, WaitsTheWholeSilenceBeforeEachRead)
{
    CountingSocket socket;
    socket.most = 2;
    char buffer[5];
    EXPECT_EQ(socket.ReadToCount(buffer, 5), 5);
    EXPECT_THAT(socket.sizes, ElementsAre(5, 3, 1));
    EXPECT_THAT(socket.waits, ElementsAre(30000U, 30000U, 30000U));
    EXPECT_EQ(socket.SetNoCommTimeout(120000), 0);
    socket.pollResult = -6;
    EXPECT_EQ(socket.ReadToCount(buffer, 5), -6);
    EXPECT_THAT(socket.waits, ElementsAre(30000U, 30000U, 30000U, 120000U));
}

TEST(Socket, EndsAReadAfterTheAllowedSilence)
{
    ConnectedSocket connection;
    connection.socket.SetNoCommTimeout(100);
    connection.peer.Write("ab");
    SyslogLines lines;
    char buffer[3] = {};
    const Clock clock;
    EXPECT_EQ(connection.socket.ReadToCount(buffer, 3), -6);
    EXPECT_GE(clock.Milliseconds(), 100);
    EXPECT_STREQ(buffer, "ab");
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Poll select() timeout"));
}

TEST(Socket, TransfersManyBytesBothWays)
{
    ConnectedSocket connection;
    std::string data(3000000, '\0');
    for (size_t index = 0; index < data.size(); ++index) {
        data[index] = static_cast<char>(index * 7 / 3);
    }
    const int size = static_cast<int>(data.size());
    std::thread echo([&] { connection.peer.Write(connection.peer.ReadExactly(data.size())); });
    EXPECT_EQ(connection.socket.WriteToCount(data.data(), size), size);
    std::string back(data.size(), 'x');
    EXPECT_EQ(connection.socket.ReadToCount(back.data(), size), size);
    echo.join();
    EXPECT_TRUE(back == data);
}

TEST(SocketDeathTest, InvalidCallsStopTheProcess)
{
    CSocket socket;
    EXPECT_DEATH(socket.Connect(nullptr, 80, 1000), "pszServerAddress != nullptr");
    EXPECT_DEATH(socket.Read(nullptr, 1), "pBuf != nullptr");
    EXPECT_DEATH(socket.ReadToCount(nullptr, 0), "pBuf != nullptr");
    EXPECT_DEATH(socket.Write(nullptr, 1), "pData != nullptr");
    EXPECT_DEATH(socket.WriteToCount(nullptr, 0), "pData != nullptr");
}
