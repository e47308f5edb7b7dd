// Requests in a recording, and the replay of a recording to a client.
#include <mutex>

#include <gtest/gtest.h>

#include "RawClient.h"
#include "Replay.h"
#include "Sockets.h"
#include "TcpPeer.h"

using udsim::questionOf;
using udsim::Recording;
using udsim::sizeOfRequest;
using Kind = udsim::Message::Kind;
using Of = udsim::Recording::Of;

namespace {

udsim::Message message(unsigned connection, Kind kind, const std::string& bytes)
{
    return {0, connection, kind, bytes.size(), bytes};
}

std::string answerText(const std::string& body)
{
    return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

/// Replays a recording of a server at 127.0.0.40, port 8080.
class Played
{
public:
    explicit Played(std::vector<udsim::Message> messages)
        : replay({Of::server, std::move(messages), {}}, [this](const std::string& note) {
              const std::lock_guard lock(mutex);
              notes.push_back(note);
          })
    {
        std::string error;
        auto listener = udsim::listenTcp({"127.0.0.40", 8080}, error);
        EXPECT_TRUE(listener.isOpen()) << error;
        EXPECT_TRUE(replay.start(std::move(listener), error)) << error;
    }

    static TcpPeer client()
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(8080);
        address.sin_addr.s_addr = ::inet_addr("127.0.0.40");
        const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        EXPECT_EQ(::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        return TcpPeer(fd);
    }

    std::mutex mutex;
    std::vector<std::string> notes;
    udsim::Replay replay;
};

std::string ask(TcpPeer& client, const std::string& request, size_t size)
{
    client.Write(request);
    return client.ReadExactly(size);
}

} // namespace

TEST(SimReplay, Questions)
{
    EXPECT_EQ(questionOf(Of::server, "GET /a?b=c HTTP/1.1\r\nHost:x\r\n\r\n"), "GET /a?b=c");
    EXPECT_EQ(questionOf(Of::server, "MKCOL /a b HTTP/1.0\r\n\r\n"), "MKCOL /a b");
    for (const char* const text : {"", "GET", "GET /a", "GET HTTP/1.1\r\n", "get /a HTTP/1.1\r\n",
                                   " /a HTTP/1.1\r\n", "body of an upload\r\n"}) {
        EXPECT_EQ(questionOf(Of::server, text), "") << text;
    }
    EXPECT_EQ(questionOf(Of::service, requestFrame(13, "R")), "control 13 of \"R\"");
    EXPECT_EQ(questionOf(Of::service, requestFrame(3, "R", "J", 9)),
              "control 3 of \"R\", job \"J\", parameter 9");
    EXPECT_EQ(questionOf(Of::service, requestFrame(13, "R").substr(1)), "");
}

TEST(SimReplay, SizesOfRequests)
{
    EXPECT_EQ(sizeOfRequest(Of::service, std::string(407, 'x')), 0U);
    EXPECT_EQ(sizeOfRequest(Of::service, std::string(900, 'x')), 408U);
    const std::pair<std::string, std::optional<uint64_t>> table[] = {
        {"", 0},
        {"GET / HTTP/1.1\r\n", 0},
        {"GET / HTTP/1.1\r\n\r\n", 18},
        {"GET / HTTP/1.1\r\n\r\nGET", 18},
        {"PUT / HTTP/1.1\r\nContent-Length: 5\r\n\r\n", 42},
        {"PUT / HTTP/1.1\r\ncontent-length:5\r\n\r\nhel", 41},
        {"PUT / HTTP/1.1\r\nContent-Length: 4294967295\r\n\r\n", uint64_t{46} + 4294967295U},
        {"PUT / HTTP/1.1\r\nContent-Length: 4294967296\r\n\r\n", std::nullopt},
        {"PUT / HTTP/1.1\r\nContent-Length: many\r\n\r\n", std::nullopt},
        {"PUT / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n", 0},
        {"PUT / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n0\r\n\r\n", 59},
        {"PUT / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n", 51},
        {"PUT / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n10\r\n\r\n", 0}, // 16 bytes, not the end
        {"PUT / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n" + std::string(5U << 20, 'x'), std::nullopt},
        {"hello\r\n\r\n", std::nullopt},
        {std::string(70'000, 'x'), std::nullopt},
    };
    for (const auto& [bytes, size] : table) {
        EXPECT_EQ(sizeOfRequest(Of::server, bytes), size) << bytes.substr(0, 100);
    }
}

TEST(SimReplay, AnswersComeInOrderAndTheLastOneRepeats)
{
    udsim::RecordedAnswers answers(
        {Of::server,
         {message(1, Kind::ask, "GET /a HTTP/1.1\r\n\r\n"), message(1, Kind::answer, "1"),
          message(2, Kind::ask, "GET /b HTTP/1.1\r\n\r\n"), message(1, Kind::ask, "GET /a HTTP/1.1\r\n\r\n"),
          message(2, Kind::answer, "b"), message(1, Kind::answer, "2"), message(1, Kind::closed, ""),
          message(3, Kind::answer, "to nobody"),
          message(4, Kind::ask, "PUT /c HTTP/1.1\r\nContent-Length: 9\r\n\r\nabc"),
          message(4, Kind::answer, "HTTP/1.1 100 Continue\r\n\r\n"), message(4, Kind::ask, "defghi"),
          message(4, Kind::answer, "done")},
         {}});
    EXPECT_EQ(answers.size(), 4U);
    EXPECT_EQ(answers.left(), 4U);
    EXPECT_EQ(answers.next("GET /x").answer, nullptr);
    const auto first = answers.next("GET /a");
    ASSERT_NE(first.answer, nullptr);
    EXPECT_EQ(first.answer->bytes, "1");
    EXPECT_FALSE(first.answer->closed);
    EXPECT_FALSE(first.again);
    const auto second = answers.next("GET /a");
    EXPECT_EQ(second.answer->bytes, "2");
    EXPECT_TRUE(second.answer->closed);
    const auto third = answers.next("GET /a");
    EXPECT_EQ(third.answer->bytes, "2");
    EXPECT_TRUE(third.again);
    EXPECT_EQ(answers.next("GET /b").answer->bytes, "b");
    EXPECT_EQ(answers.left(), 1U);
    EXPECT_EQ(answers.next("PUT /c").answer->bytes, "HTTP/1.1 100 Continue\r\n\r\ndone")
        << "both parts of the answer, without the request body between them";
}

TEST(SimReplay, RepliesToAClient)
{
    const std::string one = answerText("one");
    Played played({message(1, Kind::ask, "GET /a HTTP/1.1\r\n\r\n"), message(1, Kind::answer, one),
                   message(1, Kind::ask, "PUT /f HTTP/1.1\r\nContent-Length: 3000000\r\n\r\n"),
                   message(1, Kind::answer, answerText(""))});
    TcpPeer client = Played::client();
    EXPECT_EQ(ask(client, "GET /a HTTP/1.1\r\nHost:x\r\n\r\n", one.size()), one);
    const std::string upload =
        "PUT /f HTTP/1.1\r\nContent-Length: 3000000\r\n\r\n" + std::string(3'000'000, 'x');
    EXPECT_EQ(ask(client, upload, answerText("").size()), answerText(""));
    const std::string missing = "HTTP/1.1 404 Not Recorded\r\nContent-Length: 0\r\n\r\n";
    EXPECT_EQ(ask(client, "GET /other HTTP/1.1\r\n\r\n", missing.size()), missing);
    EXPECT_EQ(ask(client, "GET /a HTTP/1.1\r\n\r\n", one.size()), one) << "on the same connection";
    played.replay.stop();
    EXPECT_EQ(played.notes,
              (std::vector<std::string>{"GET /a: answered", "PUT /f: answered",
                                        "GET /other: not in the recording", "GET /a: last answer repeated"}));
    EXPECT_EQ(played.replay.summary(),
              "3 requests answered, 1 not in the recording; of its 2 answers, 0 were not used");
}

TEST(SimReplay, SilenceAndDisconnectsAreReplayed)
{
    Played played({message(1, Kind::ask, "GET /silent HTTP/1.1\r\n\r\n"),
                   message(2, Kind::ask, "GET /gone HTTP/1.1\r\n\r\n"),
                   message(2, Kind::closed, ""),
                   message(3, Kind::ask, "GET /half HTTP/1.1\r\n\r\n"),
                   {0, 3, Kind::answer, 1000, "HTTP/1.1 200"}});
    TcpPeer silent = Played::client();
    silent.Write("GET /silent HTTP/1.1\r\n\r\n");
    TcpPeer gone = Played::client();
    EXPECT_EQ(ask(gone, "GET /gone HTTP/1.1\r\n\r\n", 1), "");
    TcpPeer half = Played::client();
    EXPECT_EQ(ask(half, "GET /half HTTP/1.1\r\n\r\n", 1000), "HTTP/1.1 200");
    EXPECT_EQ(silent.ReadExactly(1, 50), "") << "no reply";
    EXPECT_TRUE(silent.Write("x")) << "the connection stays open";
    played.replay.stop();
    EXPECT_TRUE(silent.WaitForClose());
}

TEST(SimReplay, PeersThatSendInvalidRequests)
{
    Played played(
        {message(1, Kind::ask, "GET /a HTTP/1.1\r\n\r\n"), message(1, Kind::answer, answerText("x"))});
    TcpPeer nonsense = Played::client();
    nonsense.Write("hello\r\n\r\n");
    EXPECT_TRUE(nonsense.WaitForClose());
    TcpPeer endless = Played::client();
    endless.Write(std::string(70'000, 'x'));
    EXPECT_EQ(endless.ReadExactly(1), "");
    TcpPeer left = Played::client();
    left.Write("GET /a HT");
    left.Close();
    TcpPeer good = Played::client();
    EXPECT_EQ(ask(good, "GET /a HTTP/1.1\r\n\r\n", answerText("x").size()), answerText("x"));
}
