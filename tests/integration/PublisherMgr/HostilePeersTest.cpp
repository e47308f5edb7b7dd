// Every operation against a publisher server or a control service that sends without end, announces more than
// fits into memory, or sends slowly. Each operation ends with the result of a failed request, and the
// process, which includes the hostile peer, stays below 100 MiB.
#include "LibraryOperations.h"
#include "NetworkExpectations.h"
#include "PublisherFiles.h"
#include "ScriptedControlService.h"
#include "ServiceOperations.h"
#include "ServiceWire.h"
#include "SimulatedServer.h"
#include "TcpPeer.h"
#include "TestClock.h"
#include "Win_def_log.h"

#include <fstream>

namespace {

constexpr DWORD TEN_MINUTES = 600'000; // milliseconds

/// Sanitizers need memory of their own.
void ExpectLittleMemory()
{
#ifndef ULMAR_SANITIZED
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line) && !line.starts_with("VmHWM:")) { // the peak of resident memory in KiB
    }
    ASSERT_GT(line.size(), 6U);
    EXPECT_LT(std::stoul(line.substr(6)), 100U * 1024);
#endif
}

std::string Times(const std::string& text, size_t count)
{
    std::string all;
    for (size_t i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

// ---------------------------------------------------------------------------------------------------------------------
// Publisher servers

/// What a hostile server sends.
struct Hostility
{
    std::string name;
    std::string head;
    std::string piece;   ///< sent until the client closes the connection; empty: the connection ends
    DWORD step = 0;      ///< milliseconds that pass with each byte of it; 0: the piece is sent at once
    bool isGood = false; ///< valid as HTTP
};

const std::vector<Hostility>& Hostilities()
{
    const std::string ok = "HTTP/1.1 200 OK\r\n";
    const std::string chunked = ok + "Transfer-Encoding: chunked\r\n\r\n";
    const std::string mebibyte(1 << 20, '\0');
    static const std::vector<Hostility> all = {
        {"endless status line", "HTTP/1.1 200 ", std::string(4096, 'x')},
        {"endless header line", ok + "X-Padding: ", std::string(4096, 'x')},
        {"endless headers", ok, Times("X-Padding: " + std::string(1000, 'x') + "\r\n", 100)},
        {"endless short headers", ok, Times("X:\r\n", 10'000)},
        {"endless interim replies", "", Times("HTTP/1.1 100 Continue\r\n\r\n", 1000)},
        {"endless chunks", chunked, "100000\r\n" + mebibyte + "\r\n"},
        {"millions of chunks", chunked, Times("1\r\nx\r\n", 10'000)},
        {"chunk of 4 GiB", chunked + "FFFFFFFF\r\n", mebibyte},
        {"chunk above 4 GiB", chunked + "100000000\r\n", mebibyte},
        {"length of 4 GiB", ok + "Content-Length: 4294967295\r\n\r\n", mebibyte},
        {"length above 4 GiB", ok + "Content-Length: 4294967296\r\n\r\n", mebibyte},
        {"length of 64 bits", ok + "Content-Length: 18446744073709551615\r\n\r\n", mebibyte},
        {"negative length", ok + "Content-Length: -1\r\n\r\n", mebibyte},
        {"length without a body", ok + "Content-Length: 4194000\r\n\r\n", ""},
        {"millions of items", ok + "Content-Length: 4194000\r\n\r\n" + std::string(4'194'000, '\0'), "", 0,
         true},
        {"one byte per second, headers", ok, "X-Padding: x\r\n", 1000},
        {"one byte per second, body", ok + "Content-Length: 4000000\r\n\r\n", "x", 1000},
    };
    return all;
}

/// A server at 127.0.0.1 that answers the first `good` requests well, and all later ones with a hostility.
class HostileServer
{
public:
    HostileServer(size_t good, const Hostility& hostility)
        : m_good(good), m_hostility(hostility), m_thread([this] { Run(); })
    {
    }
    HostileServer(const HostileServer&) = delete;
    HostileServer& operator=(const HostileServer&) = delete;
    ~HostileServer()
    {
        m_isEnding = true;
        m_thread.join();
    }

    /// How many hostile replies it began.
    size_t HostileReplies() const
    {
        return m_hostile;
    }

private:
    void Run()
    {
        while (!m_isEnding) {
            TcpPeer peer = m_listener.Accept(20);
            for (std::string request; peer.IsOpen() && !(request = peer.ReadRequest()).empty();) {
                if (m_requests++ < m_good) {
                    peer.Write(m_server.Answer(request));
                } else {
                    BeHostile(peer);
                    break;
                }
            }
        }
    }
    void BeHostile(TcpPeer& peer)
    {
        ++m_hostile;
        const std::string& piece = m_hostility.piece;
        const bool isSlow = m_hostility.step != 0;
        bool isOpen = peer.Write(m_hostility.head) && !piece.empty();
        for (size_t at = 0; isOpen && !m_isEnding; ++at) {
            testClock += m_hostility.step;
            isOpen = peer.Write(isSlow ? piece.substr(at % piece.size(), 1) : piece);
        }
    }

    TcpListener m_listener{"127.0.0.1", 80};
    SimulatedServer m_server;
    const size_t m_good;
    const Hostility& m_hostility;
    size_t m_requests = 0;
    std::atomic<size_t> m_hostile = 0;
    std::atomic<bool> m_isEnding = false;
    std::thread m_thread; // last: it uses all of the above
};

class HostileServers : public testing::TestWithParam<NetworkOperation>
{
protected:
    HostileServers()
    {
        WritePublisher("R", "[Common]\nPublisherName=Lab\nPublisherURL=127.0.0.1\n");
    }

    CNetworkPublisherMgr m_mgr{true, PUBLISHER_SETTING_DIR};
};

TEST_P(HostileServers, EveryOperationEnds)
{
    const NetworkOperation& operation = GetParam();
    // The requests of the connection are the same for all operations.
    const size_t first = operation.requests == 0 ? 0 : OF_CONNECTION;
    const size_t last = operation.requests == 0 ? OF_CONNECTION : OF_CONNECTION + 1;
    for (const Hostility& hostility : Hostilities()) {
        for (size_t request = first; request < last; ++request) {
            SCOPED_TRACE(hostility.name + " at request " + std::to_string(request));
            const DWORD start = testClock;
            HostileServer server(request, hostility);
            const NetworkAnswer answer = operation.call(m_mgr, "R", true);
            EXPECT_GT(server.HostileReplies(), 0U);
            if (request != OF_VERSION) { // its failure is ignored
                EXPECT_EQ(answer.result, request < OF_CONNECTION ? operation.ResultWhenUnreachable()
                                                                 : operation.resultWhenRefused);
            }
            if (hostility.step != 0) {
                EXPECT_GE(testClock - start, TEN_MINUTES);
            }
            ExpectLittleMemory();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Each, HostileServers, testing::ValuesIn(NetworkOperations()));

class HostileToLibrary : public testing::TestWithParam<LibraryOperation>
{
};

TEST_P(HostileToLibrary, EveryOperationEnds)
{
    for (const Hostility& hostility : Hostilities()) {
        SCOPED_TRACE(hostility.name);
        const DWORD start = testClock;
        HostileServer server(OF_CONNECTION, hostility);
        DWORD handle = 0;
        ASSERT_EQ(StartConnection(0, "127.0.0.1", &handle), 0U);
        const DWORD code = GetParam().call(handle);
        EXPECT_TRUE(code != 0 || hostility.isGood) << "an upload does not read the body of its reply";
        EndConnection(handle);
        EXPECT_GT(server.HostileReplies(), 0U);
        if (hostility.step != 0) {
            EXPECT_GE(testClock - start, TEN_MINUTES);
        }
        ExpectLittleMemory();
    }
}

INSTANTIATE_TEST_SUITE_P(Each, HostileToLibrary, testing::ValuesIn(LibraryOperations()));

// ---------------------------------------------------------------------------------------------------------------------
// The control service

/// What a hostile service sends to a request.
struct ServiceHostility
{
    const char* name;
    std::string (*head)(unsigned long long control);
    std::string piece = {};
};

const std::vector<ServiceHostility>& ServiceHostilities()
{
    const std::string mebibyte(1 << 20, '\1');
    static const std::vector<ServiceHostility> all = {
        {"endless bytes", [](unsigned long long) { return std::string(); }, mebibyte},
        {"length of 2 GiB", [](unsigned long long id) { return Header(id, 0, 0x7FFFFFFF); }, mebibyte},
        {"length above 2 GiB", [](unsigned long long id) { return Header(id, 0, 0x80000000); }, mebibyte},
        {"length of 4 GiB", [](unsigned long long id) { return Header(id, 0, 0xFFFFFFFF); }, mebibyte},
        {"length above 4 GiB", [](unsigned long long id) { return Header(id, 0, 0x100000004); }, mebibyte},
        {"length of 64 bits", [](unsigned long long id) { return Header(id, 0, ~0ULL); }, mebibyte},
        {"a million jobs", [](unsigned long long id) { return Header(id, 0, 1'088'000'000); }, mebibyte},
        {"one byte of a header", [](unsigned long long id) { return Header(id, 0, 4).substr(0, 1); }},
        {"one byte of a payload", [](unsigned long long id) { return Header(id, 0, 344) + "x"; }},
    };
    return all;
}

class HostileService : public testing::TestWithParam<ServiceOperation>
{
};

TEST_P(HostileService, EveryOperationEnds)
{
    SetLogLevel(0);
    const ServiceOperation& operation = GetParam();
    const bool resultOfFailure = std::string(operation.name) == "IsFatalErrorInPublisher";
    C300MODPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    for (const ServiceHostility& hostility : ServiceHostilities()) {
        SCOPED_TRACE(hostility.name);
        const ScriptedControlService service([&](UnixPeer& peer, const std::string& request) {
            bool isOpen = peer.Write(hostility.head(static_cast<unsigned char>(request[0])));
            if (hostility.piece.empty()) {
                peer.WaitForClose(); // the client does not wait for more
                return;
            }
            while (isOpen) {
                isOpen = peer.Write(hostility.piece);
            }
        });
        EXPECT_EQ(operation.run(mgr), resultOfFailure);
        EXPECT_FALSE(mgr.IsRunningCommunicateService());
        ExpectLittleMemory();
    }
}

INSTANTIATE_TEST_SUITE_P(Each, HostileService, testing::ValuesIn(ServiceOperations()));

} // namespace
