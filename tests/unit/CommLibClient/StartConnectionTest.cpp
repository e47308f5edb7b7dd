#include "FailingMemory.h"
#include "PublisherFiles.h"
#include "Servlets.h"
#include "SyslogLines.h"
#include "TcpPeer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Contains;
using testing::ElementsAre;

namespace {

constexpr char HOST[] = "127.0.0.1";

const std::string MODE_REQUEST = "GET /webapp2/ServerModeGetter HTTP/1.1\r\nHost:localhost\r\n\r\n";
const std::string BDXL_REQUEST =
    "GET /webapp2/DevInfoIntGetter?ifversion=02000000&type=8 HTTP/1.1\r\nHost:localhost\r\n\r\n";
const std::string INTERFACE_REQUEST =
    "POST /webapp2/IFVersionChecker HTTP/1.1\r\nHost:localhost\r\n"
    "Content-Type:application/x-www-form-urlencoded\r\nContent-Length: 18\r\n\r\nifversion=02000000";
const std::string VERSION_REQUEST =
    "GET /webapp2/DevInfoGetter?ifversion=02000000&type=5 HTTP/1.1\r\nHost:localhost\r\n\r\n";

const std::string NOT_FOUND = HttpResponse("", "404 Not Found");

std::string ModeReply(char mode)
{
    return GoodReply(std::string(1, mode));
}

/// The answers of a server while a connection starts.
struct Answers
{
    std::string mode = ModeReply(2);
    std::string bdxl = GoodReply(WireWord(0));
    std::string interfaceVersion = HttpResponse(ReplyItem(""));
    std::string version = GoodReply("3.30");

    std::vector<std::string> All() const
    {
        return {mode, bdxl, interfaceVersion, version};
    }
};

/// Starts a connection to a server on port 80 that gives these answers, one per request.
class Start
{
public:
    explicit Start(std::vector<std::string> answers, const char* address = HOST)
        : m_server({[this, answers = std::move(answers)](TcpServer& self, TcpPeer& peer) {
                       for (const std::string& answer : answers) {
                           if (self.TakeRequest(peer).empty()) {
                               m_isClosed = true;
                               return;
                           }
                           peer.Write(answer);
                       }
                       m_isClosed = peer.WaitForClose();
                   }},
                   HOST, 80)
    {
        result = StartConnection(0, address, &handle);
        lines = m_lines.Take();
    }
    explicit Start(const Answers& answers, const char* address = HOST) : Start(answers.All(), address) {}

    ~Start()
    {
        if (handle != 0) {
            EndConnection(handle);
        }
    }

    /// The requests, without the empty one that marks the end of a connection.
    std::vector<std::string> Requests()
    {
        std::vector<std::string> all = m_server.Requests();
        std::erase(all, "");
        return all;
    }
    bool IsClosed()
    {
        for (int round = 0; round < 200 && !m_isClosed; ++round) {
            ::poll(nullptr, 0, 10);
        }
        return m_isClosed;
    }

    DWORD handle = 99;
    DWORD result = 0;
    std::vector<std::string> lines;

private:
    SyslogLines m_lines;
    std::atomic<bool> m_isClosed = false;
    TcpServer m_server;
};

void WriteServer(const std::string& rest)
{
    WritePublisher("A", std::string("[Common]\nPublisherURL=") + HOST + "\n" + rest);
}

void AllowCompatibility(const std::string& value)
{
    WriteRegistry("[HKLM/Software/ARVEN/Ulmar Disc Maker]\n\"CompatiMode\"=" + value + "\n");
}

// Give access to the protected limits of a client.
struct HttpLimits : CHttp
{
    static CInternetCon& Con(CHttp& http)
    {
        return http.*&HttpLimits::m_Con;
    }
};
struct ConLimits : CInternetCon
{
    static DWORD Connect(CInternetCon& con)
    {
        return con.*&ConLimits::m_dwConTimeoutMilliSec;
    }
    static IInternetComm* Comm(CInternetCon& con)
    {
        return con.*&ConLimits::m_pComm;
    }
    static WORD Port(CInternetCon& con)
    {
        return con.*&ConLimits::m_wPort;
    }
};
struct SocketLimits : CSocket
{
    static DWORD Silence(CSocket& socket)
    {
        return socket.*&SocketLimits::m_dwNoCommTimeoutMilliSec;
    }
};

} // namespace

TEST(StartConnection, RefusesNullArguments)
{
    SyslogLines lines;
    DWORD handle = 99;
    EXPECT_EQ(StartConnection(0, nullptr, &handle), 1U);
    EXPECT_EQ(handle, 99U);
    EXPECT_EQ(StartConnection(0, HOST, nullptr), 1U);
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[CommLib] ***Common Parameta Error***",
                                          "<3>[CommLib] ***Common Parameta Error***"));
}

TEST(StartConnection, SendsItsQueriesInOrder)
{
    Start start(Answers{});
    EXPECT_EQ(start.result, 0U);
    EXPECT_EQ(start.handle, 1U);
    EXPECT_THAT(start.Requests(),
                ElementsAre(MODE_REQUEST, BDXL_REQUEST, INTERFACE_REQUEST, VERSION_REQUEST));
    EXPECT_THAT(start.lines,
                ElementsAre("<7>127.0.0.1 , GetServerMode , Start", "<7>127.0.0.1 , GetServerMode , End(2)",
                            "<7>127.0.0.1 , GetDeviceInfoInt , Start",
                            "<7>127.0.0.1 , GetDeviceInfoInt , End(0)",
                            "<7>127.0.0.1 , GetDeviceInfo , Start", "<7>127.0.0.1 , GetDeviceInfo , End"));
    const ST_NCL* const ncl = GetNCLObj(start.handle);
    ASSERT_NE(ncl, nullptr);
    EXPECT_EQ(ncl->m_strServerAddress, HOST);
    EXPECT_EQ(ncl->m_dwServerMode, 2U);
    EXPECT_EQ(ncl->m_dwNPType, 2U);
    EXPECT_EQ(ncl->m_dwCompatiMode, 0U);
    EXPECT_EQ(ncl->m_bFinishStartConnection, 1);
    EXPECT_EQ(ncl->m_refCount.load(), 0);
    EXPECT_EQ(ncl->m_pHttpSecure, nullptr);
    CInternetCon& con = HttpLimits::Con(*ncl->m_pHttp);
    EXPECT_EQ(ConLimits::Port(con), 80);
    EXPECT_EQ(ConLimits::Connect(con), 5000U);
    EXPECT_EQ(SocketLimits::Silence(dynamic_cast<CSocket&>(*ConLimits::Comm(con))), 120000U);
}

TEST(StartConnection, UsesTheAddressAfterTheLastBackslash)
{
    for (const char* address : {"\\\\127.0.0.1", "\\127.0.0.1", "a\\b\\127.0.0.1"}) {
        Start start(Answers{}, address);
        EXPECT_EQ(start.result, 0U) << address;
        EXPECT_EQ(GetNCLObj(start.handle)->m_strServerAddress, HOST);
    }
}

TEST(StartConnection, EachStepMayFail)
{
    MakeConfFolder();
    struct Row
    {
        size_t step; ///< of the four requests
        std::string answer;
        DWORD result;
        std::vector<std::string> endings; ///< the last lines of the log
    };
    const Row rows[] = {
        {0, NOT_FOUND, 8000, {"<3>\t## trace ## StartConnection GetServerMode() Server Other"}},
        {0,
         HttpResponse(ReplyItem("", 2)),
         8002,
         {"<3>\t## trace ## StartConnection GetServerMode() Device Offline"}},
        {0, GoodReply("ab"), 13, {"<3>\t## trace ## StartConnection GetServerMode() Invalid Comm Spec"}},
        {1,
         HttpResponse(ReplyItem("", 2)),
         8002,
         {"<3>\t## trace ## StartConnection GetDeviceInfoInt() Device Offline"}},
        {1,
         GoodReply(WireWord(2)),
         13,
         {"<3>\t## trace ## StartConnection GetDeviceInfoInt() Invalid Comm Spec"}},
        {1, GoodReply("a"), 13, {"<3>\t## trace ## StartConnection GetDeviceInfoInt() Invalid Comm Spec"}},
        {2,
         HttpResponse(ReplyItem("", 1)),
         8001,
         {"<3>[Servlet] Version Discrepancy",
          "<3>\t## trace ## StartConnection CheckIFVersion() Version Discrepancy"}},
        {2, NOT_FOUND, 8000, {"<3>\t## trace ## StartConnection CheckIFVersion() Server Other"}},
        {2, HttpResponse(""), 13, {"<3>\t## trace ## StartConnection CheckIFVersion() Invalid Comm Spec"}},
        {3, GoodReply("2.0"), 8001, {"<3>\t## trace ## StartConnection CompatiMode not allowed"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.endings.back());
        std::vector<std::string> answers = Answers().All();
        answers[row.step] = row.answer;
        Start start(answers);
        EXPECT_EQ(start.result, row.result);
        EXPECT_EQ(start.handle, 0U);
        EXPECT_EQ(start.Requests().size(), row.step + 1);
        ASSERT_GE(start.lines.size(), row.endings.size());
        EXPECT_EQ(std::vector(start.lines.end() - static_cast<std::ptrdiff_t>(row.endings.size()),
                              start.lines.end()),
                  row.endings);
        EXPECT_TRUE(start.IsClosed());
        EXPECT_THAT(g_pvarrNCL, ElementsAre(nullptr)); // the entry is free again
    }
}

TEST(StartConnection, ReturnsTheCauseIfThereIsNoServer)
{
    SyslogLines lines;
    DWORD handle = 99;
    EXPECT_EQ(StartConnection(0, HOST, &handle), 4U);
    EXPECT_EQ(handle, 0U);
    EXPECT_THAT(lines.Take(),
                Contains("<3>\t## trace ## StartConnection GetServerMode() Socket Connection").Times(1));
    EXPECT_THAT(g_pvarrNCL, ElementsAre(nullptr));
}

TEST(StartConnection, HandlesLossOfTheServerAtEachStep)
{
    for (size_t step = 0; step < 4; ++step) {
        std::vector<std::string> answers = Answers().All();
        answers.resize(step);
        TcpServer server({TcpServer::Answers(answers)}, HOST, 80);
        DWORD handle = 99;
        const DWORD result = StartConnection(0, HOST, &handle);
        if (step < 3) {
            EXPECT_EQ(result, 4U); // the retry finds no server; the cause itself is returned
            EXPECT_EQ(handle, 0U);
            EXPECT_THAT(g_pvarrNCL, ElementsAre(nullptr));
        } else {
            EXPECT_EQ(result, 0U); // the version is optional
            EndConnection(handle);
        }
    }
}

TEST(StartConnection, ReportsOutOfMemory)
{
    const char* const lastLines[] = {
        "<3>[CommLib] StartConnection Get Memory error 1",
        "<3>[CommLib] StartConnection Get Memory error 2",
        "<3>[CommLib] StartConnection pHttp->Open() Get Memory",
    };
    for (size_t granted = 0; granted < 3; ++granted) {
        SyslogLines lines;
        DWORD handle = 99;
        DWORD result = 0;
        {
            const FailingMemory memory(1, granted);
            result = StartConnection(0, HOST, &handle);
        }
        EXPECT_EQ(result, 2U);
        EXPECT_EQ(handle, 0U);
        EXPECT_THAT(lines.Take(), ElementsAre(lastLines[granted]));
        for (const ST_NCL* entry : g_pvarrNCL) {
            EXPECT_EQ(entry, nullptr);
        }
    }
}

TEST(StartConnection, TheHundredAndFirstConnectionFails)
{
    std::vector<ST_NCL> others(100); // the object without an entry is freed
    for (ST_NCL& other : others) {
        SetNCLObj(&other);
    }
    SyslogLines lines;
    DWORD handle = 99;
    EXPECT_EQ(StartConnection(0, HOST, &handle), 2U);
    EXPECT_EQ(handle, 0U);
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[CommLib] StartConnection Get Memory error 4"));
    for (DWORD entry = 1; entry <= 100; ++entry) {
        EXPECT_EQ(GetNCLObj(entry), &others[entry - 1]);
        DeleteNCLObj(entry);
    }
}

TEST(StartConnection, OpensAHundredConnections)
{
    std::vector<TcpServer::Script> scripts(100, [](TcpServer& self, TcpPeer& peer) {
        for (const std::string& answer : Answers().All()) {
            self.TakeRequest(peer);
            peer.Write(answer);
        }
    });
    TcpServer server(scripts, HOST, 80);
    for (DWORD expected = 1; expected <= 100; ++expected) {
        DWORD handle = 0;
        ASSERT_EQ(StartConnection(0, HOST, &handle), 0U);
        EXPECT_EQ(handle, expected);
    }
    EXPECT_EQ(server.Requests().size(), 400U);
    for (DWORD handle = 1; handle <= 100; ++handle) {
        EndConnection(handle);
    }
    EXPECT_EQ(g_pvarrNCL.size(), 100U);
    EXPECT_THAT(g_pvarrNCL, testing::Each(nullptr));
}

TEST(StartConnection, KeepsTheConnectionToAServerInASecureMode)
{
    for (const char mode : {'\0', '\1'}) {
        Answers answers;
        answers.mode = ModeReply(mode);
        Start start(answers);
        EXPECT_EQ(start.result, 5U);
        EXPECT_EQ(start.handle, 0U);
        EXPECT_EQ(start.Requests().size(), 4U);
        EXPECT_EQ(start.lines.back(), "<7>127.0.0.1 , GetDeviceInfo , End");
        ST_NCL* const ncl = g_pvarrNCL.back();
        ASSERT_NE(ncl, nullptr);
        EXPECT_EQ(ncl->m_bFinishStartConnection, 0);
        ncl->m_pHttp->Close(); // otherwise the server would wait
    }
    EXPECT_EQ(g_pvarrNCL.size(), 2U);
}

TEST(StartConnection, ReusesTheEntriesOfServersInASecureModeOldestFirst)
{
    Answers secure;
    secure.mode = ModeReply(0);
    std::vector<TcpPeer> peers; // in the order of their connections
    const auto serve = [&peers](const Answers& answers) {
        return [&peers, answers](TcpServer& self, TcpPeer& peer) {
            for (const std::string& answer : answers.All()) {
                self.TakeRequest(peer);
                peer.Write(answer);
            }
            peers.push_back(std::move(peer));
        };
    };
    std::vector<TcpServer::Script> scripts(102, serve(secure));
    scripts[1] = serve(Answers{});
    DWORD claimed = 0;
    {
        TcpServer server(scripts, HOST, 80);
        for (DWORD number = 1; number <= 102; ++number) { // two more than the table holds
            DWORD handle = 99;
            ASSERT_EQ(StartConnection(0, HOST, &handle), number == 2 ? 0U : 5U) << number;
            if (number == 2) {
                claimed = handle;
            } else {
                EXPECT_EQ(handle, 0U);
            }
        }
    }
    ASSERT_EQ(peers.size(), 102U);
    for (size_t index = 0; index < peers.size(); ++index) {
        const bool isFreed = index == 0 || index == 2; // not the one that a caller uses
        EXPECT_EQ(peers[index].WaitForClose(isFreed ? TcpPeer::patience : 0), isFreed) << index;
    }
    EXPECT_EQ(claimed, 2U);
    ASSERT_NE(GetNCLObj(claimed), nullptr);
    EXPECT_EQ(GetNCLObj(claimed)->m_bFinishStartConnection, 1);

    Start other(Answers{}, HOST); // a server that can be used
    EXPECT_EQ(other.result, 0U);
    EXPECT_EQ(other.handle, 4U);
    EndConnection(claimed);
}

TEST(StartConnection, ReadsTheNextLengthAfterAVersionOutOfRange)
{
    for (const char* version :
         {"3.99999999999999999999", "99999999999999999999.30", "99999999999999999999"}) {
        std::vector<std::string> answers = Answers().All();
        answers[3] = GoodReply(version);
        answers.push_back(ModeReply(2));
        errno = 0;
        Start start(answers);
        EXPECT_EQ(start.result, 0U) << version;
        DWORD mode = 0;
        EXPECT_EQ(GetServerMode(start.handle, &mode), 0U);
        EXPECT_EQ(start.Requests().size(), 5U); // not repeated
    }
}

TEST(StartConnection, AcceptsEveryOtherMode)
{
    for (const char mode : {'\2', '\3', '\4', '\5', '\x7F'}) {
        Answers answers;
        answers.mode = ModeReply(mode);
        Start start(answers);
        EXPECT_EQ(start.result, 0U);
        EXPECT_EQ(GetNCLObj(start.handle)->m_dwServerMode, static_cast<DWORD>(mode));
    }
}

TEST(StartConnection, DeterminesAndStoresTheKind)
{
    struct Row
    {
        std::string remembered;
        std::string answer;
        DWORD kind;
        std::string file; ///< its lines after the start
    };
    const std::string yes = GoodReply(WireWord(1));
    const std::string no = GoodReply(WireWord(0));
    const Row rows[] = {
        {"", yes, 3, "NPType=3\n"},
        {"", no, 2, "NPType=2\n"},
        {"", NOT_FOUND, 2, "NPType=2\n"},
        {"NPType=0\n", no, 2, "NPType=2\n"},
        {"NPType=2\n", yes, 3, "NPType=3\n"},
        {"NPType=2\n", no, 2, "NPType=2\n"},
        {"NPType=2\n", NOT_FOUND, 2, "NPType=2\n"},
        {"NPType=3\n", yes, 3, "NPType=3\n"},
        {"NPType=3\n", no, 2, "NPType=2\n"},
        {"NPType=3\n", NOT_FOUND, 2, "NPType=2\n"},
        {"NPType=7\n", yes, 3, "NPType=3\n"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.remembered + row.answer);
        WriteServer(row.remembered);
        const std::string before = ReadPublisher("A");
        Answers answers;
        answers.bdxl = row.answer;
        Start start(answers);
        EXPECT_EQ(start.result, 0U);
        DWORD kind = 99;
        GetNPType(start.handle, &kind);
        EXPECT_EQ(kind, row.kind);
        EXPECT_THAT(ReadPublisher("A"), testing::HasSubstr(row.file));
        if (row.file == row.remembered) {
            EXPECT_EQ(ReadPublisher("A"), before); // an unchanged kind is not written
        }
    }
}

TEST(StartConnection, SendsNoKindQueryToTheFirstKind)
{
    WriteServer("NPType=1\n");
    const std::string before = ReadPublisher("A");
    Answers answers;
    Start start(std::vector{answers.mode, answers.interfaceVersion, answers.version});
    EXPECT_EQ(start.result, 0U);
    EXPECT_THAT(start.Requests(), ElementsAre(MODE_REQUEST, INTERFACE_REQUEST, VERSION_REQUEST));
    EXPECT_EQ(GetNCLObj(start.handle)->m_dwNPType, 1U);
    EXPECT_EQ(ReadPublisher("A"), before);
}

TEST(StartConnection, WorksWithoutASettingFile)
{
    Answers answers;
    answers.bdxl = GoodReply(WireWord(1));
    Start start(answers);
    EXPECT_EQ(start.result, 0U);
    EXPECT_EQ(GetNCLObj(start.handle)->m_dwNPType, 3U);
    EXPECT_FALSE(std::filesystem::exists(PUBLISHER_SETTING_DIR));
}

TEST(StartConnection, AcceptsAnOldServerOnlyIfAllowed)
{
    for (const char* version : {"2.0", "2.29", "3.0", "3.29", "3", "2", "2.29.1"}) {
        SCOPED_TRACE(version);
        Answers answers;
        answers.version = GoodReply(version);
        for (const char* value : {"dword:00000000", "dword:00000002"}) {
            AllowCompatibility(value);
            Start start(answers);
            EXPECT_EQ(start.result, 8001U);
            EXPECT_EQ(start.lines.back(), "<3>\t## trace ## StartConnection CompatiMode not allowed");
        }
        AllowCompatibility("dword:00000001");
        Start start(answers);
        EXPECT_EQ(start.result, 0U);
        EXPECT_EQ(start.lines.back(), "<3>\t## trace ## StartConnection CompatiMode ");
        EXPECT_EQ(GetNCLObj(start.handle)->m_dwCompatiMode, 1U);
    }
}

TEST(StartConnection, AcceptsAServerWhoseVersionCannotBeRead)
{
    MakeConfFolder();
    for (const std::string& answer :
         {NOT_FOUND, HttpResponse(""), HttpResponse(ReplyItem("", 9)), GoodReply(""),
          GoodReply("2" + std::string(255, ' ')), GoodReply("x")}) {
        Answers answers;
        answers.version = answer;
        Start start(answers);
        EXPECT_EQ(start.result, 0U);
        EXPECT_EQ(GetNCLObj(start.handle)->m_dwCompatiMode, 0U);
    }
    Answers answers;
    answers.version = GoodReply("2" + std::string(254, ' ')); // the longest that is read
    Start start(answers);
    EXPECT_EQ(start.result, 8001U);
}

TEST(ServerVersion, IsANumberOfTwoHalves)
{
    const std::pair<const char*, DWORD> rows[] = {
        {"2.0", 0x20000},    {"2.29", 0x2001D},  {"2.30", 0x2001E}, {"3.0", 0x30000}, {"3.29", 0x3001D},
        {"3", 0x30000},      {"4.0", 0x40000},   {"1.9", 0x10009},  {"", 0},          {".", 0},
        {".5", 5},           {"2.", 0x20000},    {"x", 0},          {"3.x", 0x30000}, {" 2.1", 0x20001},
        {"2.29.9", 0x2001D}, {"65536.65536", 0}, {"2a.1b", 0x20001}};
    for (const auto& [text, number] : rows) {
        EXPECT_EQ(ServerVersionNumber(text), number) << text;
    }
}

TEST(ServerVersion, IsOldInTwoRanges)
{
    for (const DWORD number : {0x20000U, 0x20001U, 0x2001DU, 0x30000U, 0x3001DU}) {
        EXPECT_TRUE(IsOldServer(number)) << number;
    }
    for (const DWORD number : {0U, 0x10009U, 0x1FFFFU, 0x2001EU, 0x2FFFFU, 0x3001EU, 0x40000U, 0xFFFFFFFFU}) {
        EXPECT_FALSE(IsOldServer(number)) << number;
    }
}

TEST(StartedConnection, TreatsATimeoutAsALoss)
{
    TcpServer server({[](TcpServer& self, TcpPeer& peer) {
                          for (const std::string& answer : Answers().All()) {
                              self.TakeRequest(peer);
                              peer.Write(answer);
                          }
                          self.TakeRequest(peer);
                          peer.WaitForClose();
                      },
                      [](TcpServer& self, TcpPeer& peer) {
                          self.TakeRequest(peer);
                          peer.Write(ModeReply(3));
                          peer.WaitForClose();
                      }},
                     HOST, 80);
    DWORD handle = 0;
    ASSERT_EQ(StartConnection(0, HOST, &handle), 0U);
    GetNCLObj(handle)->m_pHttp->SetNoCommTimeout(30);
    DWORD mode = 0;
    EXPECT_EQ(GetServerMode(handle, &mode), 9U);
    GetNCLObj(handle)->m_pHttp->SetNoCommTimeout(10000);
    EXPECT_EQ(GetServerMode(handle, &mode), 0U); // the next request connects again
    EXPECT_EQ(mode, 3U);
    EXPECT_EQ(server.Connections(), 2);
    EndConnection(handle);
}
