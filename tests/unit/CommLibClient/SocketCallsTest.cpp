// Tests how a socket handles failures of each system call.
#include "SocketCalls.h"
#include "ConnectedSocket.h"
#include "SyslogLines.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/syscall.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A connection whose calls so far are not counted.
struct Connection : ConnectedSocket
{
    Connection()
    {
        Calls() = SocketCalls();
    }
};

struct Refusal
{
    const char* call;
    int error;
    int result;
    std::vector<std::string> lines;
};

const std::string SEND_BUFFER = "setsockopt " + std::to_string(SOL_SOCKET) + " " + std::to_string(SO_SNDBUF);
const std::string NO_DELAY = "setsockopt " + std::to_string(IPPROTO_TCP) + " " + std::to_string(TCP_NODELAY);
const std::string GET_FLAGS = "fcntl " + std::to_string(F_GETFL);
const std::string SET_FLAGS = "fcntl " + std::to_string(F_SETFL);

bool IsBlocking(const CSocket& socket)
{
    return (syscall(SYS_fcntl, socket.GetFD(), F_GETFL) & O_NONBLOCK) == 0;
}

} // namespace

TEST(SocketCalls, FailuresInAConnect)
{
    const Refusal refusals[] = {
        {SEND_BUFFER.c_str(), EACCES, -14, {"<4>CSocket::Connect setsockopt() error = 13"}},
        {GET_FLAGS.c_str(), EACCES, -1, {}},
        {SET_FLAGS.c_str(), EACCES, -1, {}},
        {"connect", EADDRNOTAVAIL, -14, {"<4>CSocket::Connect connect() error = 99"}},
        {"connect", ENETUNREACH, -14, {"<4>CSocket::Connect connect() error = 101"}},
        {"connect", EINTR, -14, {"<4>CSocket::Connect connect() error = 4"}},
        {"getsockopt", EACCES, -14, {}},
        {NO_DELAY.c_str(), ENOPROTOOPT, 0, {}},
        {"ppoll", EINTR, 0, {}}, // SO_ERROR decides
    };
    for (const Refusal& refusal : refusals) {
        SyslogLines lines;
        const TcpListener listener;
        CSocket socket;
        ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
        Calls().failed[refusal.call] = refusal.error;
        EXPECT_EQ(socket.Connect(listener.Address(), listener.Port(), 5000), refusal.result) << refusal.call;
        Calls() = SocketCalls();
        EXPECT_EQ(lines.Take(), refusal.lines) << refusal.call;
        EXPECT_NE(socket.GetFD(), -1); // it stays open
    }
}

TEST(SocketCalls, AConnectInProgressContinues)
{
    for (const int error : {EINPROGRESS, EAGAIN}) {
        SyslogLines lines;
        CSocket socket;
        ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
        Calls().failed["connect"] = error;
        errno = 0;
        // No connect is in progress: ppoll reports an unconnected socket as hung up.
        EXPECT_EQ(socket.Connect("127.0.0.1", 1, 1000), 0);
        EXPECT_EQ(errno, error == EINPROGRESS ? 0 : EAGAIN);
        EXPECT_EQ(Calls().count["ppoll"], 1);
        EXPECT_TRUE(IsBlocking(socket));
        Calls() = SocketCalls();
        EXPECT_THAT(lines.Take(), IsEmpty());
    }
}

TEST(SocketCalls, AFailedConnectMakesTheSocketBlockAgain)
{
    CSocket socket;
    ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
    Calls().failed["connect"] = ECONNREFUSED;
    EXPECT_EQ(socket.Connect("127.0.0.1", 1, 1000), -14);
    Calls() = SocketCalls();
    EXPECT_TRUE(IsBlocking(socket));
}

TEST(SocketCalls, APendingErrorIsAFailedConnect)
{
    SyslogLines lines;
    const TcpListener listener;
    CSocket socket;
    ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
    Calls().pendingError = ETIMEDOUT;
    EXPECT_EQ(socket.Connect(listener.Address(), listener.Port(), 5000), -14);
    Calls() = SocketCalls();
    EXPECT_THAT(lines.Take(), IsEmpty());
}

TEST(SocketCalls, AnUrgentByteAloneIsNotAConnection)
{
    SyslogLines lines;
    const TcpListener listener;
    CSocket socket;
    ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
    Calls().foundEvents = POLLPRI;
    EXPECT_EQ(socket.Connect(listener.Address(), listener.Port(), 5000), -14);
    Calls() = SocketCalls();
    EXPECT_TRUE(IsBlocking(socket));
    EXPECT_THAT(lines.Take(), IsEmpty());
}

TEST(SocketCalls, FailuresInAWait)
{
    Connection connection;
    SyslogLines lines;
    for (const int error : {EINTR, EBADF, ENOMEM}) {
        Calls().failed["ppoll"] = error;
        EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_READ, 1000), -26);
        EXPECT_EQ(connection.socket.PollRead(1000), -26);
        char byte = 0;
        EXPECT_EQ(connection.socket.ReadToCount(&byte, 1), -26);
        Calls() = SocketCalls();
        const std::string line = "<4>CSocket::Poll select() error = " + std::to_string(error);
        EXPECT_THAT(lines.Take(), ElementsAre(line, line, line));
    }
}

TEST(SocketCalls, FailuresInAReadOrWrite)
{
    const Refusal reads[] = {
        {"recv", EAGAIN, -14, {"<4>CSocket::Connect connect() error = 11"}},
        {"recv", EINTR, -9, {"<4>CSocket::Read recv() error = 4"}},
        {"recv", ECONNRESET, -9, {"<4>CSocket::Read recv() error = 104"}},
    };
    const Refusal writes[] = {
        {"send", EAGAIN, -8, {"<4>CSocket::Write send() timeout"}},
        {"send", EINTR, -10, {"<4>CSocket::Write send() error = 4"}},
        {"send", EPIPE, -10, {"<4>CSocket::Write send() error = 32"}},
    };
    Connection connection;
    connection.peer.Write("x");
    SyslogLines lines;
    char byte = 0;
    for (const Refusal& refusal : reads) {
        Calls().failed["recv"] = refusal.error;
        EXPECT_EQ(connection.socket.Read(&byte, 1), refusal.result);
        EXPECT_EQ(connection.socket.ReadToCount(&byte, 1), refusal.result);
        Calls() = SocketCalls();
        EXPECT_THAT(lines.Take(), ElementsAre(refusal.lines[0], refusal.lines[0]));
    }
    for (const Refusal& refusal : writes) {
        Calls().failed["send"] = refusal.error;
        EXPECT_EQ(connection.socket.Write("x", 1), refusal.result);
        EXPECT_EQ(connection.socket.WriteToCount("x", 1), refusal.result);
        Calls() = SocketCalls();
        EXPECT_THAT(lines.Take(), ElementsAre(refusal.lines[0], refusal.lines[0]));
    }
}

TEST(SocketCalls, FailuresInACloseOrShutdown)
{
    Connection connection;
    SyslogLines lines;
    Calls().failed["shutdown"] = ENOTCONN;
    EXPECT_EQ(connection.socket.Shutdown(SHUT_RDWR), -11);
    Calls().failed["close"] = EIO;
    EXPECT_EQ(connection.socket.Close(), 0);
    Calls() = SocketCalls();
    EXPECT_EQ(connection.socket.GetFD(), -1);
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Shutdown shutdown() error = 107",
                                          "<4>CSocket::Close closesocket() error = 5"));
}

TEST(SocketCalls, NoneIsMadeForZeroBytes)
{
    Connection connection;
    char byte = 0;
    EXPECT_EQ(connection.socket.ReadToCount(&byte, 0), 0);
    EXPECT_EQ(connection.socket.WriteToCount("", 0), 0);
    EXPECT_EQ(connection.socket.WriteToCountBase("", 0), 0);
    EXPECT_THAT(Calls().count, IsEmpty());
}

TEST(SocketCalls, AreFewForManySmallReads)
{
    Connection connection;
    const std::string text(1000, 'x');
    connection.peer.Write(text);
    connection.WaitForBytes(text.size());
    Calls() = SocketCalls();
    for (size_t index = 0; index < text.size(); ++index) {
        char byte = 0;
        ASSERT_EQ(connection.socket.ReadToCount(&byte, 1), 1);
        EXPECT_EQ(byte, 'x');
    }
    EXPECT_EQ(Calls().count, (std::map<std::string, int>{{"ppoll", 1}, {"recv", 1}}));
}

TEST(SocketCalls, NoneIsMadeToWaitForReceivedData)
{
    Connection connection;
    SyslogLines lines;
    connection.peer.Write("ab");
    connection.WaitForBytes(2);
    char byte = 0;
    ASSERT_EQ(connection.socket.Read(&byte, 1), 1);
    Calls() = SocketCalls();
    EXPECT_EQ(connection.socket.PollRead(10), 0);
    EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_READ, 10), 0);
    EXPECT_THAT(Calls().count, IsEmpty());
    EXPECT_EQ(connection.socket.Poll(CSocket::SELECT_WRITE, 10), 0);
    EXPECT_EQ(Calls().count["ppoll"], 1);
    ASSERT_EQ(connection.socket.Read(&byte, 1), 1);
    EXPECT_EQ(connection.socket.PollRead(10), -6); // all data has been read
    EXPECT_THAT(lines.Take(), ElementsAre("<4>CSocket::Poll select() timeout"));
}

TEST(SocketCalls, FailOnlyAfterReceivedDataIsRead)
{
    Connection connection;
    SyslogLines lines;
    connection.peer.Write("abc");
    connection.WaitForBytes(3);
    char bytes[3] = {};
    ASSERT_EQ(connection.socket.Read(bytes, 1), 1);
    Calls().failed["recv"] = ECONNRESET;
    Calls().failed["ppoll"] = ENOMEM;
    EXPECT_EQ(connection.socket.Read(bytes, 3), 2);
    EXPECT_EQ(std::string(bytes, 2), "bc");
    EXPECT_EQ(connection.socket.Read(bytes, 1), -9);
    EXPECT_EQ(connection.socket.PollRead(10), -26);
    Calls() = SocketCalls();
    lines.Take();
}

TEST(SocketCalls, ARefusedOptionIsNotLogged)
{
    Connection connection;
    SyslogLines lines;
    const char on = 1;
    EXPECT_EQ(connection.socket.SetSockOpt(SOL_SOCKET, SO_REUSEADDR, &on, 1), -15); // too short for an int
    const int value = 1;
    EXPECT_EQ(connection.socket.SetSockOpt(SOL_SOCKET, SO_REUSEADDR, reinterpret_cast<const char*>(&value),
                                           sizeof value),
              0);
    EXPECT_THAT(lines.Take(), IsEmpty());
}
