// Records the network library with a publisher server, and repeats the session with the recording in place of
// the server.
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "ProgramProcess.h"
#include "Room.h"
#include "SessionFile.h"
#include "TcpPeer.h"
#include "TextFiles.h"

namespace {

constexpr char RECORDER[] = "127.0.0.99";
constexpr char REPLAY[] = "127.0.0.98";

Ended probe(std::vector<std::string> arguments)
{
    return runProgram(PROBE, std::move(arguments));
}

class RecordServer : public testing::Test
{
protected:
    RecordServer()
    {
        std::string error;
        const auto scenario = udsim::Scenario::load(NETWORK_SCENARIO, error);
        EXPECT_TRUE(scenario) << error;
        m_room.emplace(scenario.value_or(udsim::Scenario{}));
        EXPECT_TRUE(m_room->start(error)) << error;
    }

    std::optional<udsim::Room> m_room;
};

} // namespace

TEST_F(RecordServer, TheClientGetsTheSameAnswers)
{
    const std::vector<std::vector<std::string>> sessions[] = {
        {{}}, // all queries
        {{"--job", "Recorded", "--copies", "2", "--image", PROBE, "--print", NETWORK_SCENARIO}},
        {{"--special", "cleaning", NETWORK_SCENARIO}},
        {{"--do", "stop", "00000002"}, {"--do", "restart", "00000002"}, {"--do", "stop", "000000ff"}},
    };
    for (const char* const host : {"127.0.0.11", "127.0.0.12", "127.0.0.13"}) {
        for (const auto& session : sessions) {
            std::filesystem::remove(SESSION_FILE);
            std::vector<Ended> live;
            ProgramProcess recorder(UDSIM, {"record", "--server", host, "--listen", RECORDER, SESSION_FILE});
            recorder.readUntil("press Ctrl-C to stop\n");
            for (std::vector<std::string> arguments : session) {
                arguments.insert(arguments.begin(), RECORDER);
                live.push_back(probe(arguments));
            }
            EXPECT_EQ(
                recorder.end(),
                "udsim: recording " + std::string(host) +
                    ":80 in /tmp/session.udrec; clients connect to 127.0.0.99:80; press Ctrl-C to stop\n"
                    "udsim: recorded in /tmp/session.udrec\n");
            ProgramProcess player(UDSIM, {"replay", "--listen", REPLAY, SESSION_FILE});
            player.readUntil("press Ctrl-C to stop\n");
            for (size_t i = 0; i < session.size(); ++i) {
                std::vector<std::string> arguments = session[i];
                arguments.insert(arguments.begin(), REPLAY);
                const Ended again = probe(arguments);
                EXPECT_EQ(again.output, live[i].output) << host;
                EXPECT_EQ(again.status, live[i].status) << host;
                EXPECT_NE(again.output, "");
            }
            const std::string output = player.end();
            EXPECT_NE(output.find(" 0 not in the recording; "), std::string::npos) << output;
            EXPECT_NE(output.find(" answers, 0 were not used\n"), std::string::npos) << output;
        }
    }
}

TEST_F(RecordServer, PasswordsAreNotRecorded)
{
    ProgramProcess recorder(UDSIM, {"record", "--server", "127.0.0.12", "--listen", RECORDER, SESSION_FILE});
    recorder.readUntil("press Ctrl-C to stop\n");
    const Ended sent = probe({RECORDER, "--job", "Secret", "--image", NETWORK_SCENARIO});
    EXPECT_EQ(sent.status, 0) << sent.output;
    recorder.end();
    std::string authorization;
    for (const udsim::HttpRequest& request : m_room->httpRequests()) {
        if (!request.header("Authorization").empty()) {
            authorization = request.header("Authorization");
        }
    }
    ASSERT_EQ(authorization.find("Basic "), 0U) << "the server receives it";
    const std::string text = ReadText(SESSION_FILE);
    EXPECT_NE(text.find("Authorization:**"), std::string::npos);
    EXPECT_EQ(text.find(authorization.substr(6)), std::string::npos);
    const auto server = m_room->lookAtServer("Studio NII");
    ASSERT_TRUE(server);
    const std::string password = udsim::sha1Of("password of 00000003").substr(0, 12);
    EXPECT_EQ(udsim::basicCredentials("00000003", password), authorization)
        << "the header contains this password";
    EXPECT_EQ(text.find(password), std::string::npos);
}

TEST_F(RecordServer, ALargeUploadIsForwardedWholeAndRecordedInPart)
{
    const std::string large = "/tmp/large.iso";
    std::ofstream(large, std::ios::binary) << std::string(8U << 20, 'i') << "end";
    ProgramProcess recorder(UDSIM, {"record", "--server", "127.0.0.12", "--listen", RECORDER, SESSION_FILE});
    recorder.readUntil("press Ctrl-C to stop\n");
    const Ended sent = probe({RECORDER, "--job", "Large", "--image", large, "--piece", "4000000"});
    EXPECT_EQ(sent.status, 0) << sent.output;
    recorder.end();
    EXPECT_LT(std::filesystem::file_size(SESSION_FILE), 500'000U);
    EXPECT_NE(ReadText(SESSION_FILE).find("Content-Range: bytes 0-3999999/8388611"), std::string::npos);
}

TEST_F(RecordServer, RequestsNotInTheRecordingAreReported)
{
    std::ofstream(SESSION_FILE) << "udsim-recording 1 server\n";
    ProgramProcess player(UDSIM, {"replay", "--listen", REPLAY, SESSION_FILE});
    player.readUntil("press Ctrl-C to stop\n");
    EXPECT_EQ(probe({REPLAY}).status, 1);
    const std::string output = player.end();
    EXPECT_NE(output.find("GET /webapp2/ServerModeGetter: not in the recording\n"), std::string::npos)
        << output;
    EXPECT_NE(output.find("udsim: 0 requests answered, "), std::string::npos) << output;
}

TEST_F(RecordServer, AMissingServerIsReported)
{
    ProgramProcess recorder(UDSIM, {"record", "--server", "127.0.0.77", "--listen", RECORDER, SESSION_FILE});
    recorder.readUntil("press Ctrl-C to stop\n");
    EXPECT_EQ(probe({RECORDER}).status, 1);
    const std::string output = recorder.end();
    EXPECT_NE(output.find("udsim: cannot connect: 127.0.0.77:80: Connection refused\n"), std::string::npos)
        << output;
    EXPECT_NE(ReadText(SESSION_FILE).find(" 1 cannot connect: 127.0.0.77:80: Connection refused\n"),
              std::string::npos);
}

TEST_F(RecordServer, TheRecorderDoesNotConnectToItself)
{
    // A listener on all addresses is not recognized as the server.
    ProgramProcess recorder(
        UDSIM, {"record", "--server", "127.0.0.99:8080", "--listen", "0.0.0.0:8080", SESSION_FILE});
    recorder.readUntil("press Ctrl-C to stop\n");
    EXPECT_EQ(runProgram("/bin/bash", {"-c", "exec 3<>/dev/tcp/127.0.0.99/8080; cat <&3"}).output, "");
    const std::string output = recorder.end();
    const std::string told = "udsim: cannot connect: 127.0.0.99:8080: this is the address of the recorder\n";
    const size_t first = output.find(told);
    EXPECT_NE(first, std::string::npos) << output;
    EXPECT_EQ(output.find(told, first + 1), std::string::npos) << "reported only once: " << output;
}

TEST_F(RecordServer, AnExcessClientIsReported)
{
    TcpListener silent("127.0.0.50", 80);
    ProgramProcess recorder(UDSIM, {"record", "--server", "127.0.0.50", "--listen", RECORDER, SESSION_FILE});
    recorder.readUntil("press Ctrl-C to stop\n");
    ProgramProcess clients(
        "/bin/bash", {"-c", "for i in {1..65}; do exec {one}<>/dev/tcp/127.0.0.99/80; done; kill -STOP $$"});
    recorder.readUntil("udsim: a client was rejected: 64 are connected, which is the maximum\n");
    recorder.end();
    EXPECT_NE(ReadText(SESSION_FILE).find(" 0 a client was rejected: 64 are"), std::string::npos);
}

TEST_F(RecordServer, ItEndsDespiteOpenConnectionsAndSilentServers)
{
    TcpListener silent("127.0.0.50", 80);
    ProgramProcess recorder(UDSIM, {"record", "--server", "127.0.0.50", "--listen", RECORDER, SESSION_FILE});
    recorder.readUntil("press Ctrl-C to stop\n");
    ProgramProcess client(PROBE, {RECORDER});
    TcpPeer peer = silent.Accept();
    EXPECT_NE(peer.ReadHead().find("GET /webapp"), std::string::npos);
    recorder.end();
    EXPECT_NE(ReadText(SESSION_FILE).find(" 1 ask "), std::string::npos) << "the last message is recorded";
}

TEST(Replay, InvalidFiles)
{
    const std::pair<std::string, std::string> table[] = {
        {"", "udsim: /tmp/session.udrec:1: not a udsim recording, or a recording of another version\n"},
        {"udsim-recording 1 server\nhello\n",
         "udsim: /tmp/session.udrec:2: neither a comment nor a message with time and connection\n"},
    };
    for (const auto& [text, expected] : table) {
        std::ofstream(SESSION_FILE) << text;
        const Ended ended = runProgram(UDSIM, {"replay", SESSION_FILE});
        EXPECT_EQ(ended.output, expected);
        EXPECT_EQ(ended.status, 1);
    }
    std::ofstream(SESSION_FILE) << "udsim-recording 1 server\n0.001 1 cl";
    ProgramProcess player(UDSIM, {"replay", "--listen", REPLAY, SESSION_FILE});
    player.readUntil("press Ctrl-C to stop\n");
    EXPECT_EQ(player.end().find("udsim: line 2: the recording is cut off here; this line is ignored\n"), 0U);
}

TEST(Record, OnlyARecordingOfAServerListensAtAnAddress)
{
    std::ofstream(SESSION_FILE) << "udsim-recording 1 service\n";
    const Ended ended = runProgram(UDSIM, {"replay", "--listen", REPLAY, SESSION_FILE});
    EXPECT_EQ(ended.output,
              "udsim: \"--listen\" is only for recordings of a server; this is a recording of a "
              "service\nTry \"udsim --help\".\n");
    EXPECT_EQ(ended.status, 64);
}

TEST(Record, AnExistingFileIsKept)
{
    std::ofstream(SESSION_FILE) << "precious";
    const Ended ended =
        runProgram(UDSIM, {"record", "--server", "127.0.0.11", "--listen", RECORDER, SESSION_FILE});
    EXPECT_EQ(ended.output, "udsim: /tmp/session.udrec: File exists\n");
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ReadText(SESSION_FILE), "precious");
}
