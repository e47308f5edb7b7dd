// Publisher servers at their addresses: the HTTP traffic, the recorded requests and the faults.
#include <fstream>
#include <sstream>

#include "HttpClient.h"
#include "NetworkFixture.h"
#include "SimPaths.h"

namespace {

constexpr char TWO_SERVERS[] = R"(
[network A]
model = RT-300NII
id = a
[network B]
model = RT-300N
id = b
known-kind = 1
[publisher L]
model = RT-30
id = l
)";

const std::string MODE = "GET /webapp2/ServerModeGetter HTTP/1.1\r\nHost:localhost\r\n\r\n";
const std::string MODE_BODY = hex("00 00 01 02");

std::string bodyOf(const std::string& reply)
{
    const size_t at = reply.find("\r\n\r\n");
    return at == std::string::npos ? "no reply" : reply.substr(at + 4);
}

std::string readFile(const std::string& path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

class SimNetworkRoom : public testing::Test
{
protected:
    void befall(const std::string& text, const std::string& path = "", uint64_t times = 0, uint64_t after = 0)
    {
        std::string error;
        auto fault = udsim::HttpFault::parse(text, error);
        ASSERT_TRUE(fault) << error;
        fault->path = path;
        fault->times = times;
        fault->after = after;
        m_open.room.setFault(*fault);
    }
    /// All bytes after one request until the connection ends. Fails the test if it does not end.
    std::string toTheEnd(const std::string& request = MODE) const
    {
        const HttpClient client;
        EXPECT_TRUE(client.send(request));
        bool ended = false;
        std::string all = client.readUntil("", ended);
        EXPECT_TRUE(ended);
        return all;
    }

    OpenRoom m_open{TWO_SERVERS};
    udsim::Room& m_room = m_open.room;
};

} // namespace

TEST_F(SimNetworkRoom, ConnectionsAreKeptAlive)
{
    const HttpClient client;
    ASSERT_EQ(client.error(), 0);
    for (int turn = 0; turn < 3; ++turn) {
        const std::string reply = client.ask(MODE);
        EXPECT_TRUE(reply.starts_with("HTTP/1.1 200 OK\r\n")) << reply;
        EXPECT_EQ(reply.find("\r\nConnection:"), std::string::npos) << reply;
        EXPECT_EQ(bodyOf(reply), MODE_BODY);
    }
    EXPECT_EQ(m_room.httpConnections(), 1U);
    EXPECT_EQ(m_room.httpRequests().size(), 3U);
}

TEST_F(SimNetworkRoom, RequestsAreRecorded)
{
    const HttpClient client("127.0.0.12");
    const std::string reply = client.ask("POST /webapp2/IFVersionChecker HTTP/1.1\r\nHost:localhost\r\n"
                                         "Content-Type:application/x-www-form-urlencoded\r\n"
                                         "Content-Length: 18\r\n\r\nifversion=02000000");
    EXPECT_EQ(bodyOf(reply), std::string(3, '\0'));
    ASSERT_TRUE(m_room.waitForHttpRequests("/webapp2/IFVersionChecker", 1));
    const udsim::HttpRequest request = m_room.httpRequests().at(0);
    EXPECT_EQ(request.host, "127.0.0.12");
    EXPECT_EQ(request.method, "POST");
    EXPECT_EQ(request.target, "/webapp2/IFVersionChecker");
    EXPECT_EQ(request.version, "HTTP/1.1");
    const udsim::HttpHeaders headers{{"Host", "localhost"},
                                     {"Content-Type", "application/x-www-form-urlencoded"},
                                     {"Content-Length", "18"}};
    EXPECT_EQ(request.headers, headers);
    EXPECT_EQ(request.body, "ifversion=02000000");
    EXPECT_EQ(request.bodySize, 18U);
    EXPECT_EQ(request.bodySha1, "b39e442a4af593ed103305f45a9fbee696796bb7");
}

TEST_F(SimNetworkRoom, OtherMethodsAndALargeBody)
{
    const HttpClient client;
    const std::string registered =
        client.ask("POST /webapp2/NormalJobSetter HTTP/1.1\r\nHost:localhost\r\nContent-Length: 1\r\n\r\nx");
    EXPECT_EQ(bodyOf(registered), hex("00 00 04 00 00 00 01"));
    const auto server = m_room.lookAtServer("A");
    ASSERT_TRUE(server);
    const udsim::ServerJob& job = server->uploads().jobs().at(0);
    const std::string authorization =
        "Host:localhost\r\nAuthorization:" + udsim::basicCredentials(job.user(), job.password) + "\r\n";
    EXPECT_TRUE(client.ask("MKCOL /uploads/00000001/ HTTP/1.1\r\n" + authorization + "\r\n")
                    .starts_with("HTTP/1.1 201 Created\r\n"));
    const std::string image(10U << 20, 'i');
    EXPECT_TRUE(client
                    .ask("PUT /uploads/00000001/DiscImage_x HTTP/1.1\r\n" + authorization +
                         "Content-Range: bytes 0-10485759/10485760\r\nContent-Length: 10485760\r\n\r\n" +
                         image)
                    .starts_with("HTTP/1.1 201 Created\r\n"));
    const auto after = m_room.lookAtServer("A");
    EXPECT_TRUE(after->uploads().jobs().at(0).files.at("DiscImage_x").contents == image);
    EXPECT_EQ(m_room.httpRequests().back().bodySize, 10U << 20);
    EXPECT_EQ(m_room.httpRequests().back().body.size(), udsim::HttpRequest::MOST_BODY_KEPT);
}

TEST_F(SimNetworkRoom, SettingFiles)
{
    EXPECT_EQ(readFile(std::string(SETTINGS) + "/a.ini"),
              "[Common]\nPublisherName=A\nPrinterName=ARVEN RT-300NIIPRN\nPublisherConnectionType=1\n"
              "PublisherURL=127.0.0.11\n");
    EXPECT_EQ(readFile(std::string(SETTINGS) + "/b.ini"),
              "[Common]\nPublisherName=B\nPrinterName=ARVEN RT-300NPRN\nPublisherConnectionType=1\n"
              "PublisherURL=127.0.0.12\nNPType=1\n");
}

TEST_F(SimNetworkRoom, AServerCanStopAndRestart)
{
    const HttpClient open;
    ASSERT_EQ(bodyOf(open.ask(MODE)), MODE_BODY);
    ASSERT_TRUE(m_room.tell("A", "server off"));
    EXPECT_EQ(HttpClient().error(), ECONNREFUSED);
    EXPECT_EQ(open.ask(MODE), "") << "open connections are closed";
    EXPECT_EQ(bodyOf(HttpClient("127.0.0.12").ask(MODE)), MODE_BODY) << "the other server still replies";
    ASSERT_TRUE(m_room.tell("A", "server on"));
    EXPECT_EQ(bodyOf(HttpClient().ask(MODE)), MODE_BODY);
    EXPECT_FALSE(m_room.tell("L", "server off")) << "a local publisher has no server";
    EXPECT_TRUE(m_room.tell("A", "offline"));
    EXPECT_EQ(bodyOf(HttpClient().ask("GET /webapp2/DevStatusGetter?ifversion=02000000&type=0 HTTP/1.1\r\n"
                                      "Host:localhost\r\n\r\n")),
              hex("02 00 00"));
}

TEST_F(SimNetworkRoom, AServerRestartsRepeatedlyWithStalledConnections)
{
    befall("stall", "/stalled");
    for (int i = 0; i < 50; ++i) {
        const HttpClient silent;
        const HttpClient stalled;
        ASSERT_TRUE(stalled.send("GET /stalled HTTP/1.1\r\nHost:localhost\r\n\r\n"));
        ASSERT_TRUE(m_room.waitForHttpRequests("/stalled", static_cast<size_t>(i) + 1));
        ASSERT_TRUE(m_room.tell("A", "server off"));
        ASSERT_EQ(HttpClient().error(), ECONNREFUSED) << i;
        bool ended = false;
        ASSERT_EQ(stalled.readUntil("", ended), "");
        ASSERT_TRUE(ended) << i;
        ASSERT_EQ(silent.readUntil("", ended), "");
        ASSERT_TRUE(ended) << i;
        ASSERT_TRUE(m_room.tell("A", "server on"));
        ASSERT_EQ(bodyOf(HttpClient().ask(MODE)), MODE_BODY) << i;
    }
}

TEST_F(SimNetworkRoom, TheRoomStopsWithOpenConnections)
{
    befall("stall");
    const HttpClient stalled;
    ASSERT_TRUE(stalled.send(MODE));
    const HttpClient silent;
    const HttpClient half;
    ASSERT_TRUE(half.send("GET /webapp2/Ser"));
    ASSERT_TRUE(m_room.waitForHttpRequests("/", 1));
    EXPECT_FALSE(stalled.isReadable(0));
    m_room.stop();
    bool ended = false;
    EXPECT_EQ(stalled.readUntil("", ended), "");
    EXPECT_TRUE(ended);
    EXPECT_EQ(HttpClient().error(), ECONNREFUSED);
    std::string error;
    ASSERT_TRUE(m_room.start(error)) << error;
    m_room.clearFaults();
    EXPECT_EQ(bodyOf(HttpClient().ask(MODE)), MODE_BODY);
}

TEST_F(SimNetworkRoom, AnAddressInUseIsRefused)
{
    udsim::Room second(scenarioOf(TWO_SERVERS));
    std::string error;
    m_room.tell("", "service off");
    EXPECT_FALSE(second.start(error));
    EXPECT_EQ(bodyOf(HttpClient().ask(MODE)), MODE_BODY) << "the first room still replies";
}

TEST_F(SimNetworkRoom, ManyConnectionsAtOnce)
{
    std::vector<std::unique_ptr<HttpClient>> clients;
    for (int i = 0; i < 110; ++i) {
        clients.push_back(std::make_unique<HttpClient>());
        ASSERT_TRUE(clients.back()->send(MODE));
    }
    for (const auto& client : clients) {
        ASSERT_EQ(bodyOf(client->readReply()), MODE_BODY);
    }
    EXPECT_EQ(m_room.httpConnections(), 110U);
}

TEST_F(SimNetworkRoom, FaultsThatKeepTheConnection)
{
    struct Row
    {
        const char* fault;
        const char* line;
        std::string body;
    };
    const Row table[] = {
        {"status 3", "HTTP/1.1 200 OK\r\n", hex("03 00 00")},
        {"http 403", "HTTP/1.1 403 Forbidden\r\n", ""},
        {"http 507", "HTTP/1.1 507 Insufficient Storage\r\n", ""},
        {"empty", "HTTP/1.1 200 OK\r\n", ""},
        {"size 2", "HTTP/1.1 200 OK\r\n", hex("00 00 02 02 00")},
        {"size 0", "HTTP/1.1 200 OK\r\n", hex("00 00 00")},
        {"length 300", "HTTP/1.1 200 OK\r\n", hex("00 01 2c 02")},
        {"extra-item", "HTTP/1.1 200 OK\r\n", hex("00 00 01 02 00 00 00")},
        {"delay 20", "HTTP/1.1 200 OK\r\n", MODE_BODY},
    };
    const HttpClient client;
    for (const Row& row : table) {
        befall(row.fault);
        const std::string reply = client.ask(MODE);
        EXPECT_TRUE(reply.starts_with(row.line)) << row.fault << ": " << reply;
        EXPECT_EQ(bodyOf(reply), row.body) << row.fault;
        m_room.clearFaults();
    }
    EXPECT_EQ(bodyOf(client.ask(MODE)), MODE_BODY);
}

TEST_F(SimNetworkRoom, ChunksAndInterimReplies)
{
    const HttpClient client;
    befall("chunked");
    ASSERT_TRUE(client.send(MODE));
    bool ended = false;
    const std::string chunked = client.readUntil("\r\n0\r\n\r\n", ended);
    EXPECT_NE(chunked.find("\r\nTransfer-Encoding: chunked\r\n"), std::string::npos) << chunked;
    EXPECT_EQ(bodyOf(chunked), "4\r\n" + MODE_BODY + "\r\n0\r\n\r\n");
    m_room.clearFaults();
    befall("interim 2");
    ASSERT_TRUE(client.send(MODE));
    const std::string interim = "HTTP/1.1 100 Continue\r\n\r\n";
    EXPECT_EQ(client.readUntil("\r\n\r\n", ended), interim);
    EXPECT_EQ(client.readUntil("\r\n\r\n", ended), interim);
    EXPECT_EQ(bodyOf(client.readReply()), MODE_BODY);
}

TEST_F(SimNetworkRoom, FaultsThatEndTheConnection)
{
    const std::string whole = "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n" + MODE_BODY;
    const std::pair<const char*, std::string> table[] = {
        {"close", ""},
        {"cut 0", ""},
        {"cut 20", whole.substr(0, 20)},
        {"cut 39", whole.substr(0, 39)},
        {"cut 1000", whole},
        {"drip 1", whole},
        {"chunk-extension",
         "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n4;x=y\r\n" + MODE_BODY + "\r\n0\r\n\r\n"},
    };
    for (const auto& [fault, expected] : table) {
        befall(fault);
        EXPECT_EQ(toTheEnd(), expected) << fault;
        m_room.clearFaults();
    }
}

TEST_F(SimNetworkRoom, AContentLengthLargerThanTheBody)
{
    befall("content-length 4294967296");
    const HttpClient client;
    ASSERT_TRUE(client.send(MODE));
    bool ended = false;
    const std::string expected = "HTTP/1.1 200 OK\r\nContent-Length: 4294967296\r\n\r\n" + MODE_BODY;
    EXPECT_EQ(client.readUntil(MODE_BODY, ended), expected);
    EXPECT_FALSE(ended);
    EXPECT_FALSE(client.isReadable(50)) << "no further bytes, and the connection stays open";
}

TEST_F(SimNetworkRoom, FaultsApplyToMatchingRequests)
{
    const HttpClient client;
    befall("status 12", "/webapp2/Server", 2, 1);
    EXPECT_EQ(bodyOf(client.ask(MODE)), MODE_BODY) << "the first match is skipped";
    EXPECT_EQ(bodyOf(client.ask(MODE)), hex("0c 00 00"));
    EXPECT_EQ(bodyOf(client.ask("GET /webapp2/JobNumGetter?type=0 HTTP/1.1\r\nHost:localhost\r\n\r\n")),
              hex("00 00 02 00 00"));
    EXPECT_EQ(bodyOf(client.ask(MODE)), hex("0c 00 00"));
    EXPECT_EQ(bodyOf(client.ask(MODE)), MODE_BODY) << "the fault applies twice";
}

TEST_F(SimNetworkRoom, ARefusedRequestChangesNothing)
{
    befall("http 500", "/webapp2/NormalJobSetter", 1);
    const HttpClient client;
    const std::string request =
        "POST /webapp2/NormalJobSetter HTTP/1.1\r\nHost:localhost\r\nContent-Length: 1\r\n\r\nx";
    EXPECT_TRUE(client.ask(request).starts_with("HTTP/1.1 500 "));
    EXPECT_TRUE(m_room.lookAtServer("A")->uploads().jobs().empty());
    EXPECT_EQ(bodyOf(client.ask(request)), hex("00 00 04 00 00 00 01"));
}

TEST_F(SimNetworkRoom, TimeAdvancesForServersToo)
{
    m_room.addJob("A", {.name = "Disc"});
    m_room.advance(60'000);
    EXPECT_EQ(m_room.jobs("A").at(0).status, 9U);
    EXPECT_EQ(m_room.look("A")->publishedDiscs(), 1U);
}
