// The room as a whole: its sockets, its log agent, its thread, and many clients at once.
#include <algorithm>
#include <atomic>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "RawClient.h"
#include "RoomFixture.h"

namespace {

using udsim::parseLogEntry;

constexpr char CONTROL[] = "/var/run/arvenUlmarDiscControl.socket";
constexpr char AGENT[] = "/var/run/arvenUlmarDiscControlLog.socket";
constexpr char TWO[] = "[publisher A]\nmodel = RT-300III BD\nid = a\ndisc-time = 1s\njob = X, copies=1000\n"
                       "[publisher B]\nmodel = RT-30\nid = b\n";
constexpr std::chrono::seconds PATIENCE{10};

void sendDatagram(const std::string& text)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::string(AGENT).copy(address.sun_path, sizeof address.sun_path - 1);
    const int fd = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    EXPECT_EQ(::sendto(fd, text.data(), text.size(), 0, reinterpret_cast<const sockaddr*>(&address),
                       sizeof address),
              static_cast<ssize_t>(text.size()));
    ::close(fd);
}

} // namespace

TEST(SimAgent, Entries)
{
    const auto entry = parseLogEntry("MESSAGE=RT300API[42]: hello\nPRIORITY=4\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->message, "RT300API[42]: hello");
    EXPECT_EQ(entry->priority, 4);
    EXPECT_EQ(entry->datagram, "MESSAGE=RT300API[42]: hello\nPRIORITY=4\n");
    EXPECT_EQ(parseLogEntry("MESSAGE=a\nPRIORITY=9\nb\nPRIORITY=7\n")->message, "a\nPRIORITY=9\nb");
    EXPECT_EQ(parseLogEntry("MESSAGE=\nPRIORITY=0")->priority, 0);
    for (const char* const text :
         {"", "MESSAGE=x", "MESSAGE=x\n", "PRIORITY=4\n", "\nPRIORITY=4\n", "PRIORITY=4\nMESSAGE=x\n",
          "MESSAGE=x\nPRIORITY=\n", "MESSAGE=x\nPRIORITY=8\n", "MESSAGE=x\nPRIORITY=-1\n",
          "MESSAGE=x\nPRIORITY=4x\n", "message=x\nPRIORITY=4\n"}) {
        EXPECT_FALSE(parseLogEntry(text)) << text;
    }
}

TEST(SimAgent, CollectsRecords)
{
    const OpenRoom open(TWO);
    sendDatagram("MESSAGE=RT300API[1]: one\nPRIORITY=4\n");
    sendDatagram("rubbish");
    sendDatagram("MESSAGE=RT300API[1]: two\nPRIORITY=7\n");
    ASSERT_TRUE(
        open.room.waitUntil([](const auto&, const auto& entries) { return entries.size() == 2; }, PATIENCE));
    EXPECT_EQ(open.room.logMessages(), (std::vector<std::string>{"RT300API[1]: one", "RT300API[1]: two"}));
    EXPECT_EQ(open.room.logEntries()[1].priority, 7);
}

TEST(SimRoom, StartsAndStopsCleanly)
{
    udsim::Room room(scenarioOf(TWO));
    for (int turn = 0; turn < 3; ++turn) {
        std::string error;
        ASSERT_TRUE(room.start(error)) << error;
        EXPECT_EQ(ask(13, "a").payload, Bytes(4).u32(0, 1).str());
        EXPECT_FALSE(room.start(error)) << "the room is already running";
        EXPECT_NE(error, "");
        room.stop();
        room.stop();
        EXPECT_FALSE(std::filesystem::exists(CONTROL));
        EXPECT_FALSE(std::filesystem::exists(AGENT));
    }
}

TEST(SimRoom, AStoppedRoomStillTakesCommands)
{
    udsim::Room room(scenarioOf(TWO));
    EXPECT_TRUE(room.tell("A", "offline"));
    EXPECT_TRUE(room.tell("", "service off"));
    room.advance(1000);
    std::string error;
    ASSERT_TRUE(room.start(error)) << error;
    EXPECT_FALSE(RawClient().connected());
    EXPECT_TRUE(room.tell("", "service on"));
    EXPECT_EQ(ask(22, "a").payload, Bytes(4).u32(0, 11).str());
}

TEST(SimRoom, InvalidCommandsAreRefused)
{
    udsim::Room room(scenarioOf(TWO));
    std::string error;
    EXPECT_FALSE(room.tell("A", "dance", &error));
    EXPECT_EQ(error, "unknown command \"dance\"");
    EXPECT_FALSE(room.tell("C", "offline", &error));
    EXPECT_EQ(error, "no such publisher \"C\"; the publishers are: \"A\", \"B\"");
    EXPECT_FALSE(room.tell("", "offline"));
    EXPECT_FALSE(room.tell("A", "service off", &error));
    EXPECT_EQ(error, "commands to the service take no publisher");
    EXPECT_FALSE(room.tell("A", "server off", &error));
    EXPECT_EQ(error, "only a network publisher has a server");
    EXPECT_FALSE(room.tell("A", "ofline", &error));
    EXPECT_EQ(error, "unknown command \"ofline\" (did you mean \"offline\"?)");
    EXPECT_FALSE(room.tell("A", "server maybe", &error));
    EXPECT_EQ(error, "\"server\" needs on or off");
    EXPECT_FALSE(room.look("C"));
    EXPECT_EQ(room.addJob("C"), "");
    EXPECT_TRUE(room.jobs("C").empty());
    EXPECT_TRUE(room.tell("A", "pause", &error));
    EXPECT_EQ(error, "");
}

TEST(SimRoom, TwoRoomsAtOnceAreRefused)
{
    const OpenRoom open(TWO);
    udsim::Room second(scenarioOf(TWO));
    std::string error;
    EXPECT_FALSE(second.start(error));
    EXPECT_NE(error.find("another service is running"), std::string::npos) << error;
    EXPECT_EQ(ask(13, "a").result, 0U) << "the first room still replies";
}

TEST(SimRoom, AStaleSocketIsReplaced)
{
    const int dead = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::string(CONTROL).copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(dead, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(dead);
    const OpenRoom open(TWO);
    EXPECT_EQ(ask(13, "a").result, 0U);
}

TEST(SimRoom, EveryUserMayConnect)
{
    const OpenRoom open(TWO);
    for (const char* const path : {CONTROL, AGENT}) {
        struct stat status{};
        ASSERT_EQ(::stat(path, &status), 0);
        EXPECT_EQ(status.st_mode & 0777U, 0666U) << path;
    }
}

TEST(SimRoom, TheServiceCanStopAndRestart)
{
    OpenRoom open(TWO);
    for (int turn = 0; turn < 20; ++turn) {
        ASSERT_TRUE(open.room.tell("", "service off"));
        const RawClient refused;
        EXPECT_EQ(refused.error(), ECONNREFUSED);
        ASSERT_TRUE(open.room.tell("", "service on"));
        EXPECT_EQ(ask(13, "a").result, 0U);
    }
}

TEST(SimRoom, NoDescriptorIsInherited)
{
    OpenRoom open(TWO);
    const RawClient client;
    ASSERT_TRUE(client.send(requestFrame(13, "a")));
    ASSERT_TRUE(client.readReply());
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        const int fd = std::stoi(entry.path().filename());
        std::error_code none;
        const std::string target = std::filesystem::read_symlink(entry.path(), none);
        if (target.starts_with("socket:") || target.find("eventfd") != std::string::npos) {
            EXPECT_NE(::fcntl(fd, F_GETFD) & FD_CLOEXEC, 0) << target;
        }
    }
}

TEST(SimRoom, ADisconnectedClientIsRemoved)
{
    OpenRoom open(TWO);
    std::string error;
    open.room.setFault(*udsim::Fault::parse("stall", error));
    {
        const RawClient silent;
        const RawClient stalled;
        ASSERT_TRUE(stalled.send(requestFrame(13, "a")));
        ASSERT_TRUE(open.room.waitForRequests(13, 1));
    }
    // Another request is served only after a further iteration of the thread's loop.
    open.room.clearFaults();
    ask(13, "a");
    ask(13, "a");
    EXPECT_LE(open.room.connections(), 1U);
}

TEST(SimRoom, StopEndsStalledAndDelayedConnections)
{
    OpenRoom open(TWO);
    std::string error;
    auto stall = *udsim::Fault::parse("stall", error);
    stall.control = 13;
    open.room.setFault(stall);
    open.room.setFault(*udsim::Fault::parse("delay 3600000", error));
    const RawClient silent;
    const RawClient stalled;
    const RawClient delayed;
    ASSERT_TRUE(stalled.send(requestFrame(13, "a")));
    ASSERT_TRUE(delayed.send(requestFrame(22, "a")));
    ASSERT_TRUE(open.room.waitForRequests(13, 1));
    ASSERT_TRUE(open.room.waitForRequests(22, 1));
    open.room.stop();
    EXPECT_EQ(stalled.readOnce(1), "");
    EXPECT_EQ(delayed.readOnce(1), "");
    EXPECT_EQ(silent.readOnce(1), "");
}

TEST(SimRoom, AClientThatDoesNotReadBlocksNoOther)
{
    OpenRoom open(TWO);
    for (int i = 0; i < 32; ++i) {
        ASSERT_NE(open.room.addJob("A"), "");
    }
    const RawClient lazy;
    std::string frames;
    for (int i = 0; i < 16; ++i) {
        frames += requestFrame(4, "a", "", 3); // 16 lists of 35 KB: more than a socket buffer holds
    }
    ASSERT_TRUE(lazy.send(frames));
    EXPECT_EQ(ask(13, "a").result, 0U);
    size_t received = 0;
    while (received < 16 * (24 + 33 * 1088U)) {
        const std::string piece = lazy.readOnce(65536);
        ASSERT_FALSE(piece.empty());
        received += piece.size();
    }
    EXPECT_EQ(received, 16 * (24 + 33 * 1088U));
}

TEST(SimRoom, AClientThatLeavesBeforeItsReplyCausesNoSignal)
{
    OpenRoom open(TWO);
    for (int i = 0; i < 200; ++i) {
        const RawClient hasty;
        hasty.send(requestFrame(4, "a", "", 3));
    }
    EXPECT_EQ(ask(13, "a").result, 0U);
}

TEST(SimRoom, MoreConnectionsThanTheLimit)
{
    // This process holds both ends of every connection. The sandbox has Debian's descriptor limits.
    rlimit descriptors = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &descriptors), 0);
    ASSERT_GE(descriptors.rlim_max, 2048U);
    descriptors.rlim_cur = 2048;
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &descriptors), 0);

    OpenRoom open(TWO);
    std::vector<std::unique_ptr<RawClient>> crowd;
    for (int i = 0; i < 560; ++i) {
        crowd.push_back(std::make_unique<RawClient>());
        ASSERT_TRUE(crowd.back()->connected());
    }
    crowd.erase(crowd.begin(), crowd.begin() + 100);
    EXPECT_EQ(ask(13, "a").result, 0U);
}

TEST(SimRoom, TheClockRunsAtTheGivenSpeed)
{
    OpenRoom open(TWO, 1000);
    bool done = false;
    const auto end = std::chrono::steady_clock::now() + PATIENCE;
    while (!done && std::chrono::steady_clock::now() < end) {
        done = numberAt(ask(4, "a", "", 1).payload, 528, 8) > 0; // completed discs
    }
    EXPECT_TRUE(done);
}

TEST(SimRoom, CallbacksReceiveNotesAndRequests)
{
    udsim::Room room(scenarioOf(TWO));
    std::vector<std::string> notes;
    std::atomic<uint64_t> asked = 0;
    room.onNote([&](const std::string& line) { notes.push_back(line); });
    room.onRequest([&](const udsim::Request& request) { asked = request.control; });
    std::string error;
    ASSERT_TRUE(room.start(error)) << error;
    ASSERT_TRUE(room.tell("B", "offline"));
    EXPECT_EQ(notes, (std::vector<std::string>{"0:00 A: ready, 1 waiting", "0:00 B: ready, 0 waiting",
                                               "0:00 B: not connected, 0 waiting"}));
    ask(18, "a");
    EXPECT_EQ(asked, 18U);
}

TEST(SimRoom, ManyClientsCommandsAndFaultsAtOnce)
{
    OpenRoom open(TWO, 100);
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int client = 0; client < 4; ++client) {
        threads.emplace_back([&] {
            for (int i = 0; i < 150; ++i) {
                const uint64_t control = static_cast<uint64_t>(4 + i % 11);
                const RawReply reply = ask(control, i % 2 == 0 ? "a" : "b", "", 3);
                wrong += reply.control == control ? 0 : 1;
            }
        });
    }
    threads.emplace_back([&] {
        for (int i = 0; i < 100; ++i) {
            open.room.tell("B", i % 2 == 0 ? "offline" : "online");
            open.room.addJob("B");
            open.room.advance(10);
            sendDatagram("MESSAGE=x\nPRIORITY=4\n");
        }
    });
    threads.emplace_back([&] {
        for (int i = 0; i < 100; ++i) {
            std::string error;
            open.room.setFault(*udsim::Fault::parse("result 1001", error));
            open.room.look("A");
            open.room.requests();
            open.room.logMessages();
            open.room.clearFaults();
        }
    });
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(open.room.requests().size(), 600U);
}
