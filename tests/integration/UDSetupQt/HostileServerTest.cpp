// Runs the program with servers that send without end: it uses little memory, and the rows of other
// publishers stay up to date.
#include "RunningProgram.h"
#include "ServerRoom.h"
#include "TcpPeer.h"

#include <algorithm>
#include <fstream>

namespace {

/// A server that starts every reply with `head`, and repeats `piece` while the client reads, at most `pieces`
/// times. Only one of these servers sends at a time.
class HostileServer
{
public:
    HostileServer(const char* host, std::string head, std::string piece, size_t pieces = SIZE_MAX)
        : m_listener(host, 80), m_thread([this, head = std::move(head), piece = std::move(piece), pieces] {
              while (!m_isEnding) {
                  TcpPeer peer = m_listener.Accept(20);
                  if (peer.IsOpen()) {
                      serve(peer, head, piece, pieces);
                  }
              }
          })
    {
    }
    ~HostileServer()
    {
        m_isEnding = true;
        m_thread.join();
    }

    int replies() const
    {
        return m_replies;
    }

private:
    void serve(TcpPeer& peer, const std::string& head, const std::string& piece, size_t pieces)
    {
        while (!m_isEnding && !peer.ReadRequest().empty()) {
            const std::lock_guard lock(s_sending);
            if (!peer.Write(head)) {
                break;
            }
            ++m_replies;
            for (size_t count = 0; count < pieces && peer.Write(piece); ++count) {
            }
        }
    }

    static inline std::mutex s_sending;

    TcpListener m_listener;
    std::atomic<int> m_replies = 0;
    std::atomic<bool> m_isEnding = false;
    std::thread m_thread; // last, because it uses all of the above
};

class HostileServerTest : public RunningProgram
{
protected:
    bool waitFor(const std::function<bool()>& condition)
    {
        QElapsedTimer time;
        time.start();
        while (!condition() && time.elapsed() < 60'000 && m_program.state() == QProcess::Running) {
            m_program.waitForFinished(50); // or for a moment
        }
        return condition();
    }

    /// The peak resident memory of the program, in KiB.
    long peak() const
    {
        std::ifstream status("/proc/" + std::to_string(m_program.processId()) + "/status");
        for (std::string line; std::getline(status, line);) {
            if (line.starts_with("VmHWM:")) {
                return std::stol(line.substr(6));
            }
        }
        return -1;
    }
};

TEST_F(HostileServerTest, UsesLittleMemoryAndDelaysNoOther)
{
    const std::string ok = "HTTP/1.1 200 OK\r\n";
    const std::string mebibyte(1 << 20, '\0');
    const std::string chunked = ok + "Transfer-Encoding: chunked\r\n\r\n";
    std::string headers;
    for (int count = 0; count < 1000; ++count) {
        headers += "X-Padding: " + std::string(1000, 'x') + "\r\n";
    }
    std::string tinyChunks;
    for (int count = 0; count < 10'000; ++count) {
        tinyChunks += "1\r\nx\r\n";
    }
    HostileServer servers[] = {
        {"127.0.0.21", ok + "Content-Length: 67108864\r\n\r\n", mebibyte, 64},
        {"127.0.0.22", ok + "Content-Length: 4194000\r\n\r\n", std::string(4'194'000, '\0'),
         1}, // below the limit
        {"127.0.0.23", chunked, "100000\r\n" + mebibyte + "\r\n"},
        {"127.0.0.24", chunked, tinyChunks},
        {"127.0.0.25", ok, headers},
        {"127.0.0.26", "", "HTTP/1.1 100 Continue\r\n\r\n"},
    };
    int number = 21;
    for ([[maybe_unused]] const HostileServer& server : servers) {
        const std::string name = "Hostile " + std::to_string(number);
        Installation::addNetwork(name, name, "127.0.0." + std::to_string(number));
        ++number;
    }
    const ServerRoom room(studio());
    const QString poll = "GET /webapp2/DevStatusGetter?ifversion=02000000&type=5";
    start();
    const QString id = window(mainTitle);
    ASSERT_FALSE(id.isEmpty());
    EXPECT_TRUE(waitFor([&] {
        return room.asked().count(poll) >= 3 &&
               std::all_of(std::begin(servers), std::end(servers),
                           [](const HostileServer& server) { return server.replies() >= 2; });
    })) << "polls of the other server: "
        << room.asked().count(poll);
#ifndef ULMAR_SANITIZED
    EXPECT_GT(peak(), 0);
    EXPECT_LT(peak(), 100 * 1024);
#endif
    choose(id, "f", "x");
    expectEnd();
}

} // namespace
