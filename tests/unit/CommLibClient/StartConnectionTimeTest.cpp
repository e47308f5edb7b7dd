// The only timeout at the start of a connection that is short enough for a test.
#include "NW_Com_Lib_internal.h"
#include "SyslogLines.h"
#include "TcpPeer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

TEST(StartConnectionTime, TimesOutAfterFiveSecondsIfTheServerDoesNotAnswer)
{
    const TcpListener listener("127.0.0.1", 80, 0);
    std::vector<CSocket> waiting(8); // more than the backlog: later connects do not complete
    for (CSocket& socket : waiting) {
        ASSERT_EQ(socket.Open(AF_INET, SOCK_STREAM), 0);
        socket.Connect(listener.Address(), listener.Port(), 0);
    }
    SyslogLines lines;
    DWORD handle = 99;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(StartConnection(0, listener.Address(), &handle), 8U); // the cause itself, and no retry
    const auto seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_GE(seconds, 4.9);
    EXPECT_LT(seconds, 9.0);
    EXPECT_EQ(handle, 0U);
    EXPECT_THAT(
        lines.Take(),
        ElementsAre(
            "<7>127.0.0.1 , GetServerMode , Start", "<3>[CommLib(HTTP)] Network Timeout (No Comm)",
            "<4>CHttp::SendRequest SendHeader() Method = GET Path = /webapp2/ServerModeGetter, Add Header = ",
            "<3>127.0.0.1 , [CommLib] SendRequest pHttp->SendRequest() Network Timeout "
            "(/webapp2/ServerModeGetter)",
            "<3>\t## trace ## GetServerMode SendRequest() Network Timeout",
            "<3>\t## trace ## StartConnection GetServerMode() Network Timeout"));
}
