// Records the client of the control service with a service, and repeats the session with the recording in
// place of the service.
#include "InstallPaths.h"
#include "ProgramProcess.h"
#include "PublisherMgr.h"
#include "RawClient.h"
#include "Room.h"
#include "SessionFile.h"
#include "TextFiles.h"
#include "UnixListener.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <optional>
#include <sstream>
#include <string>

namespace {

constexpr char ROOM[] =
    "[publisher A]\nmodel = RT-300III BD\nid = A\nink.cyan = 41\njob = One, copies=2\njob = Two\n"
    "[publisher B]\nmodel = RT-30II\nid = B\nconnected = no\n"
    "[fault]\ncontrol = 9\npublisher = A\ndo = close\n";

udsim::Scenario scenario()
{
    std::string error;
    const auto parsed = udsim::Scenario::parse(ROOM, error);
    EXPECT_TRUE(parsed) << error;
    return parsed.value_or(udsim::Scenario{});
}

/// The results of the client for two publishers, as one text.
std::string WholeSession()
{
    CPublisherMgr mgr(true);
    std::ostringstream text;
    for (const char* const id : {"A", "B"}) {
        long code = 77;
        ULONG value = 0;
        text << id << " count " << mgr.GetJobCount(id, &code) << ' ' << code << '\n';
        ST_PC_INK_STATUS ink{};
        const bool inkKnown = mgr.GetServiceInkStatus(id, &ink, &code);
        text << "ink " << inkKnown << ' ' << ink.ulCyan << ' ' << ink.ulBlack << ' ' << code << '\n';
        const bool fatalKnown = mgr.GetServiceFatalCode(id, &value, &code);
        text << "fatal " << fatalKnown << ' ' << value << ' ' << code << '\n';
        const bool modeKnown = mgr.GetServicePublishMode(id, &value, &code);
        text << "mode " << modeKnown << ' ' << value << ' ' << code << '\n';
        ULONG discs[4] = {9, 9, 9, 9};
        const bool discsKnown =
            mgr.GetServiceStackerStatus(id, &discs[0], &discs[1], &discs[2], &discs[3], &code);
        text << "stackers " << discsKnown << ' ' << discs[0] << ' ' << code << '\n';
        JobStatusArray jobs;
        const bool jobsKnown = mgr.GetServiceJobStatus(id, &jobs, &code);
        text << "jobs " << jobsKnown << ' ' << jobs.GetSize() << ' ' << code << '\n';
        for (const auto& job : jobs) {
            text << "  " << job.acJobName << ' ' << job.ulPublicationNumber << '\n';
        }
        const bool stopped = mgr.SetServiceJobStop(id, "no such job", &code);
        text << "stop " << stopped << ' ' << code << '\n';
    }
    return text.str();
}

TEST(RecordService, TheClientGetsTheSameAnswers)
{
    std::optional<udsim::Room> room(std::in_place, scenario());
    std::string error;
    ASSERT_TRUE(room->start(error)) << error;
    const std::string direct = WholeSession();
    ProgramProcess recorder(UDSIM, {"record", "--service", SESSION_FILE});
    recorder.readUntil("udsim: recording the service in /tmp/session.udrec; press Ctrl-C to stop\n");
    const std::string live = WholeSession();
    EXPECT_EQ(live, direct) << "the recorder changes nothing";
    EXPECT_NE(live.find("A count 2 0\nink 1 41 100 0\nfatal 1 0 0\n"), std::string::npos) << live;
    EXPECT_NE(live.find("stackers 0 9 -1\n"), std::string::npos)
        << "the service ends this connection: " << live;
    EXPECT_NE(live.find("jobs 1 2 0\n  One 2\n  Two 1\n"), std::string::npos) << live;
    EXPECT_NE(live.find("stop 0 22\n"), std::string::npos) << live;
    recorder.end();
    EXPECT_EQ(WholeSession(), direct) << "the service's socket is restored";
    room.reset();
    const std::string text = ReadText(SESSION_FILE);
    EXPECT_NE(text.find("\n# asks control 13 of \"A\"\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\n# result 22, 0 bytes of payload\n"), std::string::npos) << text;

    ProgramProcess player(UDSIM, {"replay", SESSION_FILE});
    player.readUntil("udsim: replaying at /var/run/arvenUlmarDiscControl.socket; press Ctrl-C to stop\n");
    EXPECT_EQ(WholeSession(), direct);
    EXPECT_EQ(WholeSession(), direct) << "the last answers are repeated";
    long code = 0;
    EXPECT_FALSE(CPublisherMgr(true).SetServiceNotifyChange("A", &code));
    EXPECT_EQ(code, -1);
    const std::string output = player.end();
    EXPECT_NE(output.find("control 13 of \"A\": answered\n"), std::string::npos) << output;
    EXPECT_NE(output.find("control 13 of \"A\": last answer repeated\n"), std::string::npos) << output;
    EXPECT_NE(output.find("control 9 of \"A\": no answer was recorded\n"), std::string::npos) << output;
    EXPECT_NE(output.find("control 16 of \"A\": not in the recording\n"), std::string::npos) << output;
    EXPECT_NE(output.find(" 1 not in the recording; of its 14 answers, 0 were not used\n"), std::string::npos)
        << output;
    EXPECT_FALSE(std::filesystem::exists(SERVICE_SOCKET));
}

TEST(RecordService, WithoutAService)
{
    const Ended ended = runProgram(UDSIM, {"record", "--service", SESSION_FILE});
    EXPECT_EQ(ended.output, "udsim: no service listens at /var/run/arvenUlmarDiscControl.socket\n");
    EXPECT_EQ(ended.status, 1);
    EXPECT_FALSE(std::filesystem::exists(SESSION_FILE));
}

TEST(RecordService, AnInvalidFileNameLeavesTheServiceInPlace)
{
    udsim::Room room(scenario());
    std::string error;
    ASSERT_TRUE(room.start(error)) << error;
    EXPECT_EQ(runProgram(UDSIM, {"record", "--service", "/tmp/none/x"}).output,
              "udsim: /tmp/none/x: No such file or directory\n");
    EXPECT_TRUE(CPublisherMgr(true).IsPossibleCommunicateService(nullptr));
}

TEST(RecordService, TheNextRecorderRepairsAKilledOne)
{
    udsim::Room room(scenario());
    std::string error;
    ASSERT_TRUE(room.start(error)) << error;
    {
        ProgramProcess killed(UDSIM, {"record", "--service", SESSION_FILE});
        killed.readUntil("press Ctrl-C to stop\n");
        killed.signal(SIGKILL);
        EXPECT_EQ(killed.wait(), 1000 + SIGKILL);
    }
    CPublisherMgr mgr(true);
    EXPECT_FALSE(mgr.IsPossibleCommunicateService(nullptr));
    ProgramProcess next(UDSIM, {"record", "--service", "/tmp/next.udrec"});
    next.readUntil("press Ctrl-C to stop\n");
    EXPECT_TRUE(mgr.IsPossibleCommunicateService(nullptr));
    next.end();
    EXPECT_TRUE(mgr.IsPossibleCommunicateService(nullptr));
}

TEST(RecordService, AReplyInPiecesIsForwardedAsOne)
{
    std::optional<UnixListener> service(std::in_place, SERVICE_SOCKET);
    ProgramProcess recorder(UDSIM, {"record", "--service", SESSION_FILE});
    recorder.readUntil("press Ctrl-C to stop\n");
    const RawClient client;
    const std::string frame = requestFrame(13, "A");
    EXPECT_TRUE(client.send(frame));
    UnixPeer peer;
    std::string request;
    for (int tries = 0; request.empty() && tries < 5; ++tries) {
        peer = service->Accept(); // the first one only checked for a listener
        request = peer.ReadExactly(408);
    }
    EXPECT_EQ(request, frame);
    const std::string reply = Bytes(28).u64(0, 13).u64(16, 4).u32(24, 7).str();
    for (const size_t place : {0, 12}) {
        EXPECT_TRUE(peer.Write(reply.substr(place, 12)));
        EXPECT_FALSE(client.isReadable(50)) << "half a reply is not forwarded";
    }
    EXPECT_TRUE(peer.Write(reply.substr(24)));
    EXPECT_EQ(client.readOnce(4096), reply);
    // A reply that stays incomplete is forwarded unchanged.
    EXPECT_TRUE(client.send(frame));
    EXPECT_EQ(peer.ReadExactly(408), frame);
    EXPECT_TRUE(peer.Write(reply.substr(0, 24)));
    EXPECT_EQ(client.readOnce(4096), reply.substr(0, 24));
    peer.Close();
    service.reset();
    recorder.end();
    EXPECT_FALSE(std::filesystem::exists(SERVICE_SOCKET)) << "the socket of an ended service is not restored";
}

TEST(RecordService, ARestartedServiceKeepsItsPlace)
{
    std::optional<UnixListener> service(std::in_place, SERVICE_SOCKET);
    ProgramProcess recorder(UDSIM, {"record", "--service", SESSION_FILE});
    recorder.readUntil("press Ctrl-C to stop\n");
    service.reset(); // removes the socket in its place, as a starting service does
    UnixListener again(SERVICE_SOCKET);
    recorder.end();
    const RawClient client;
    EXPECT_TRUE(client.send("x"));
    EXPECT_EQ(again.Accept().ReadExactly(1), "x") << "it still receives connections";
    EXPECT_FALSE(std::filesystem::exists(std::string(SERVICE_SOCKET) + ".recorded"));
}

TEST(RecordService, ABusyServiceIsFound)
{
    const UnixListener service(SERVICE_SOCKET, 0);
    const RawClient first; // not accepted, so that the next one would wait
    ProgramProcess recorder(UDSIM, {"record", "--service", SESSION_FILE});
    recorder.readUntil("press Ctrl-C to stop\n");
    recorder.end();
    EXPECT_TRUE(std::filesystem::exists(SERVICE_SOCKET));
}

} // namespace
