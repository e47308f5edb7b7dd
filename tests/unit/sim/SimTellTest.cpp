// Commands for a running room: over the socket, from the program, and from misbehaving peers.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "ProgramProcess.h"
#include "RoomFixture.h"
#include "SimPaths.h"
#include "TellSocket.h"
#include "UnixListener.h"

using udsim::TellRequest;

namespace {

constexpr char PATH[] = "/tmp/control.socket";
constexpr char ROOM[] = "[publisher Studio A]\nmodel = RT-30\n[publisher B]\nmodel = RT-30\njob = X\n"
                        "[network N]\nmodel = RT-300N\n";

/// A room that takes commands.
class TakingCommands
{
public:
    TakingCommands() : open(ROOM), socket(open.room)
    {
        std::string error;
        EXPECT_TRUE(socket.start(PATH, error)) << error;
    }

    OpenRoom open;
    udsim::TellSocket socket;
};

UnixPeer connection()
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::string(PATH).copy(address.sun_path, sizeof address.sun_path - 1);
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    EXPECT_EQ(::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    return UnixPeer(fd);
}

std::string rawAnswer(const std::string& bytes)
{
    UnixPeer peer = connection();
    peer.Write(bytes);
    return peer.ReadExactly(1 << 20);
}

} // namespace

TEST(SimTell, RequestsAreFormattedAndParsed)
{
    const TellRequest tell{false, "Studio A", "add-job X, copies=2"};
    EXPECT_EQ(tell.line(), "tell\tStudio A\tadd-job X, copies=2");
    const auto parsed = TellRequest::parse(tell.line());
    ASSERT_TRUE(parsed);
    EXPECT_FALSE(parsed->list);
    EXPECT_EQ(parsed->publisher, "Studio A");
    EXPECT_EQ(parsed->command, "add-job X, copies=2");
    ASSERT_TRUE(TellRequest::parse("list"));
    EXPECT_TRUE(TellRequest::parse("list")->list);
    for (const char* const line :
         {"", "lists", "tell", "tell\t", "tell\tA", "offline", "\ttell\tA\tonline"}) {
        EXPECT_FALSE(TellRequest::parse(line)) << line;
    }
}

TEST(SimTell, RequestsAreExecuted)
{
    OpenRoom open(ROOM);
    EXPECT_EQ(udsim::carryOut(open.room, {true, {}, {}}).text, "Studio A  ready, 0 waiting\n"
                                                               "B         ready, 1 waiting\n"
                                                               "N         ready, 0 waiting\n");
    EXPECT_TRUE(udsim::carryOut(open.room, {false, "Studio A", "offline"}).done);
    EXPECT_TRUE(udsim::carryOut(open.room, {false, "N", "server off"}).done);
    EXPECT_EQ(udsim::carryOut(open.room, {true, {}, {}}).text, "Studio A  not connected, 0 waiting\n"
                                                               "B         ready, 1 waiting\n"
                                                               "N         no server\n");
    const udsim::TellReply wrong = udsim::carryOut(open.room, {false, "studio a", "offline"});
    EXPECT_FALSE(wrong.done);
    EXPECT_EQ(
        wrong.text,
        "no such publisher \"studio a\" (did you mean \"Studio A\"?); the publishers are: \"Studio A\", "
        "\"B\", \"N\"");
}

TEST(SimTell, EveryCommand)
{
    TakingCommands taking;
    for (const char* const command : {"offline", "online", "error 19", "clear", "add-job Y, copies=3",
                                      "pause", "resume", "ink cyan 40", "stacker 1 7", "refill"}) {
        std::string error;
        const auto answer = udsim::sendTellRequest(PATH, {false, "Studio A", command}, error);
        ASSERT_TRUE(answer) << error;
        EXPECT_TRUE(answer->done) << command << ": " << answer->text;
        EXPECT_EQ(answer->text, "") << command;
    }
    EXPECT_EQ(taking.open.room.jobs("Studio A").size(), 1U);
    EXPECT_EQ(taking.open.room.look("Studio A")->state().stackers[0].discs, 100U)
        << "the last command refills it";
}

TEST(SimTell, AFullJobListRefusesAJob)
{
    TakingCommands taking;
    std::string error;
    for (size_t i = 0; i < udsim::Publisher::MAX_JOBS; ++i) {
        EXPECT_TRUE(udsim::sendTellRequest(PATH, {false, "Studio A", "add-job"}, error)->done) << i;
    }
    const auto refused = udsim::sendTellRequest(PATH, {false, "Studio A", "add-job"}, error);
    ASSERT_TRUE(refused);
    EXPECT_FALSE(refused->done);
    EXPECT_EQ(refused->text, "the publisher's job list is full");
}

TEST(SimTell, InvalidRequestsAreRefused)
{
    TakingCommands taking;
    EXPECT_EQ(rawAnswer("sing\n"), "refused\nnot understood");
    EXPECT_EQ(rawAnswer("\n"), "refused\nnot understood");
    EXPECT_EQ(rawAnswer(std::string("list\0\n", 6)), "refused\nnot understood");
    EXPECT_EQ(rawAnswer("list\nlist\n").find("done\nStudio A"), 0U) << "one command per connection";
    EXPECT_EQ(rawAnswer(std::string(5000, 'x')), "") << "a line above the length limit";
}

TEST(SimTell, SilentPeersAreDisconnected)
{
    TakingCommands taking;
    std::vector<UnixPeer> silent;
    for (size_t i = 0; i < udsim::Conversations::MOST; ++i) {
        silent.push_back(connection());
    }
    EXPECT_EQ(rawAnswer("list\n"), "") << "a connection above the limit is closed at once";
    EXPECT_TRUE(silent.front().WaitForClose()) << "closed after five seconds";
    silent.clear();
    // The room takes commands again after the other peers have disconnected.
    std::string answer;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (answer.empty() && std::chrono::steady_clock::now() < end) {
        answer = rawAnswer("list\n");
    }
    EXPECT_EQ(answer.find("done\n"), 0U);
}

TEST(SimTell, StopsWithOpenConnections)
{
    auto taking = std::make_unique<TakingCommands>();
    UnixPeer silent = connection();
    UnixPeer half = connection();
    half.Write("tell\tStudio A");
    taking.reset();
    EXPECT_TRUE(silent.WaitForClose());
    EXPECT_TRUE(half.WaitForClose());
    EXPECT_FALSE(std::filesystem::exists(PATH));
}

TEST(SimTell, TheSocketIsPrivateAndExclusive)
{
    TakingCommands taking;
    struct stat found{};
    ASSERT_EQ(::stat(PATH, &found), 0);
    EXPECT_EQ(found.st_mode & 0777U, 0600U);
    udsim::TellSocket second(taking.open.room);
    std::string error;
    EXPECT_FALSE(second.start(PATH, error));
    EXPECT_EQ(error, "/tmp/control.socket: another udsim uses this socket");
    EXPECT_EQ(rawAnswer("list\n").find("done\n"), 0U);
}

TEST(SimTell, InvalidPathsAreReported)
{
    OpenRoom open(ROOM);
    std::ofstream("/tmp/precious") << "text";
    const std::pair<std::string, std::string> table[] = {
        {"/tmp/precious", "/tmp/precious: exists and is not a socket"},
        {"/tmp/none/x", "/tmp/none/x: No such file or directory"},
        {"", "\"\": a socket path must have 1 to 107 bytes"},
        {"/tmp/" + std::string(103, 'x'),
         "\"/tmp/" + std::string(103, 'x') + "\": a socket path must have 1 to 107 bytes"},
    };
    for (const auto& [path, expected] : table) {
        udsim::TellSocket socket(open.room);
        std::string error;
        EXPECT_FALSE(socket.start(path, error));
        EXPECT_EQ(error, expected);
    }
    EXPECT_EQ(std::filesystem::file_size("/tmp/precious"), 4U);
    { // a stale socket is replaced
        UnixListener left("/tmp/left");
        left.StopListening();
        udsim::TellSocket socket(open.room);
        std::string error;
        EXPECT_TRUE(socket.start("/tmp/left", error)) << error;
    }
}

TEST(SimTell, SendsCommandsToARunningRoom)
{
    std::ofstream(SCENARIO) << ROOM;
    ProgramProcess room(UDSIM, {SCENARIO});
    room.readUntil("udsim: ready\n");
    struct Row
    {
        std::vector<std::string> words;
        int status;
        std::string output;
        const char* note; ///< printed by the room
    };
    const Row table[] = {
        {{"Studio A", "offline"}, 0, "", "Studio A: not connected, 0 waiting\n"},
        {{"Studio A", "online"}, 0, "", "0:00 Studio A: ready, 0 waiting\n"},
        {{"Studio A", "error", "19"}, 0, "", "Studio A: error 19, 0 waiting\n"},
        {{"Studio A", "add-job", "Two words,", "copies=2"}, 0, "", "Studio A: error 19, 1 waiting\n"},
        {{"--", "B", "error 7"}, 0, "", "B: error 7"},
        {{"N", "server", "off"}, 0, "", "N: no server\n"},
        {{"N", "server", "on"}, 0, "", "N: ready, 0 waiting\n"},
        {{"service", "off"}, 0, "", "the service is stopped\n"},
        {{"service", "on"}, 0, "", "the service listens again\n"},
        {{"Stdio A", "offline"},
         1,
         "udsim: no such publisher \"Stdio A\" (did you mean \"Studio A\"?); the publishers are: \"Studio "
         "A\", \"B\", "
         "\"N\"\n",
         ""},
        {{"B", "dance"}, 1, "udsim: unknown command \"dance\"\n", ""},
        {{"B", "error"}, 1, "udsim: \"error\" needs a code from 1 to 9999\n", ""},
        {{"B", "server", "off"}, 1, "udsim: only a network publisher has a server\n", ""},
    };
    for (const Row& row : table) {
        std::vector<std::string> arguments{"tell"};
        arguments.insert(arguments.end(), row.words.begin(), row.words.end());
        const Ended told = runProgram(UDSIM, arguments);
        EXPECT_EQ(told.output, row.output) << row.words[1];
        EXPECT_EQ(told.status, row.status) << row.words[1];
        if (*row.note != '\0') {
            room.readUntil(row.note);
        }
    }
    const Ended list = runProgram(UDSIM, {"tell", "--list"});
    EXPECT_EQ(list.status, 0);
    EXPECT_EQ(list.output.find("Studio A  error 19, 1 waiting\nB         error 7"), 0U) << list.output;
    room.signal(SIGTERM);
    EXPECT_NE(room.readToTheEnd().find("udsim: ended\n"), std::string::npos);
    EXPECT_EQ(room.wait(), 0);
    EXPECT_FALSE(std::filesystem::exists("/var/run/udsim.socket"));
}

TEST(SimTell, TheControlOptionNamesTheSocket)
{
    std::ofstream(SCENARIO) << ROOM;
    ProgramProcess room(UDSIM, {"--control", PATH, SCENARIO});
    room.readUntil("udsim: ready\n");
    EXPECT_EQ(runProgram(UDSIM, {"tell", "--control", PATH, "B", "offline"}).status, 0);
    const Ended nobody = runProgram(UDSIM, {"tell", "B", "offline"});
    EXPECT_EQ(nobody.status, 69);
    EXPECT_EQ(
        nobody.output,
        "udsim: not running: no udsim accepts commands at /var/run/udsim.socket: No such file or directory "
        "(use --control for a different socket)\n");
}

TEST(SimTell, AnInvalidReplyIsReported)
{
    UnixListener other(PATH);
    ProgramProcess told(UDSIM, {"tell", "--control", PATH, "B", "offline"});
    UnixPeer peer = other.Accept();
    EXPECT_EQ(peer.ReadExactly(15), "tell\tB\toffline\n");
    peer.Write("what?");
    peer.Close();
    EXPECT_EQ(told.readToTheEnd(), "udsim: the udsim at /tmp/control.socket does not reply\n");
    EXPECT_EQ(told.wait(), 69);
}
