// udsim forget: what it removes and what it keeps.
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "ProgramProcess.h"
#include "SimPaths.h"
#include "TextFiles.h"

namespace {

namespace fs = std::filesystem;

constexpr char SCENARIO_WITH_SPACE[] = "/tmp/my room.udsim";
constexpr char PUBLISHERS[] = "[publisher Studio A]\nmodel = RT-300III BD\nguid = {G1}\nid = one\n"
                              "[publisher B]\nmodel = RT-30II\nguid = {G2}\nid = two\nregistered = no\n"
                              "[network N]\nmodel = RT-300NII\nid = net\nhost = 127.0.0.11\n";

/// All setting files with their contents.
std::string settings()
{
    std::string all;
    for (const auto& entry : fs::directory_iterator(SETTINGS)) {
        all += entry.path().filename().string() + "\n" + ReadText(entry.path());
    }
    return all;
}

/// Runs the room of the scenario. Returns its output.
std::string runRoom()
{
    ProgramProcess room(UDSIM, {SCENARIO_WITH_SPACE});
    room.readUntil("udsim: ready\n");
    return room.end();
}

class SimForget : public testing::Test
{
protected:
    void SetUp() override
    {
        std::ofstream(SCENARIO_WITH_SPACE) << PUBLISHERS;
        fs::create_directories(SETTINGS);
    }
};

TEST_F(SimForget, RemovesEverythingOfTheScenario)
{
    std::ofstream(REGISTRY).close(); // as the package creates it
    EXPECT_NE(runRoom().find("udsim: the publishers stay registered; remove them with: "
                             "udsim forget '/tmp/my room.udsim'\nudsim: ended\n"),
              std::string::npos);
    EXPECT_TRUE(fs::exists(std::string(SETTINGS) + "/one.ini"));
    EXPECT_FALSE(fs::exists(std::string(SETTINGS) + "/two.ini"));
    EXPECT_TRUE(fs::exists(std::string(SETTINGS) + "/net.ini"));

    const Ended forgotten = runProgram(UDSIM, {"forget", SCENARIO_WITH_SPACE});
    EXPECT_EQ(forgotten.output, "Studio A: removed\nN: removed\n");
    EXPECT_EQ(forgotten.status, 0);
    EXPECT_EQ(settings(), "");
    EXPECT_EQ(ReadText(REGISTRY), "");

    const Ended again = runProgram(UDSIM, {"forget", SCENARIO_WITH_SPACE});
    EXPECT_EQ(again.output, "/tmp/my room.udsim: none of its publishers is registered\n");
    EXPECT_EQ(again.status, 0);
}

TEST_F(SimForget, KeepsEverythingElseByteForByte)
{
    const std::string keys =
        "[HKLM/Software/ARVEN/Ulmar Disc Maker]\n\"CompatiMode\"=dword:00000001\n\n"
        "[HKLM/Software/ARVEN/Ulmar Disc Maker/Local]\n\n"
        "[HKLM/Software/ARVEN/Ulmar Disc Maker/Local/{G11}]\n\"DPType\"=dword:20000009\n\n";
    std::ofstream(REGISTRY) << keys;
    std::ofstream(std::string(SETTINGS) + "/real.ini") << "[Common]\nGUID={G11}\nPublisherName=Real\n";
    const std::string before = settings();
    runRoom();
    std::ofstream(REGISTRY, std::ios::app) << "[HKLM/Software/ARVEN/Later]\n\"A\"=\"b\"\n\n";
    EXPECT_EQ(runProgram(UDSIM, {"forget", SCENARIO_WITH_SPACE}).status, 0);
    EXPECT_EQ(settings(), before);
    EXPECT_EQ(ReadText(REGISTRY), keys + "[HKLM/Software/ARVEN/Later]\n\"A\"=\"b\"\n\n");
}

TEST_F(SimForget, KeepsPublishersOfOtherDevicesAndServers)
{
    std::ofstream(std::string(SETTINGS) + "/one.ini") << "[Common]\nGUID={OTHER}\nPublisherName=Mine\n";
    std::ofstream(std::string(SETTINGS) + "/net.ini")
        << "[Common]\nPublisherConnectionType=1\nPublisherURL=studio.example.org\n";
    const std::string before = settings();
    runRoom();
    EXPECT_EQ(settings(), before);
    EXPECT_EQ(runProgram(UDSIM, {"forget", SCENARIO_WITH_SPACE}).output,
              "/tmp/my room.udsim: none of its publishers is registered\n");
    EXPECT_EQ(settings(), before);
}

TEST_F(SimForget, FindsPublishersWhoseSettingsWereChanged)
{
    runRoom();
    std::ofstream(std::string(SETTINGS) + "/one.ini")
        << "[Common]\nPublishMode=2\nPublisherName=New\nGUID={G1}\n";
    EXPECT_EQ(runProgram(UDSIM, {"forget", SCENARIO_WITH_SPACE}).output, "Studio A: removed\nN: removed\n");
    EXPECT_EQ(settings(), "");
}

TEST_F(SimForget, CreatesNoRegistry)
{
    EXPECT_EQ(runProgram(UDSIM, {"forget", SCENARIO_WITH_SPACE}).status, 0);
    EXPECT_FALSE(fs::exists(REGISTRY));
}

TEST_F(SimForget, IsRefusedWhileARoomRuns)
{
    ProgramProcess room(UDSIM, {SCENARIO_WITH_SPACE});
    room.readUntil("udsim: ready\n");
    const Ended early = runProgram(UDSIM, {"forget", SCENARIO_WITH_SPACE});
    EXPECT_EQ(early.output, "udsim: udsim is running; stop it first\n");
    EXPECT_EQ(early.status, 1);
    EXPECT_TRUE(fs::exists(std::string(SETTINGS) + "/one.ini"));
    room.end();
}

TEST_F(SimForget, WrongArguments)
{
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"forget"},
          std::vector<std::string>{"forget", SCENARIO_WITH_SPACE, SCENARIO_WITH_SPACE}}) {
        const Ended ended = runProgram(UDSIM, arguments);
        EXPECT_EQ(ended.output, "udsim: forget takes one scenario\nTry \"udsim --help\".\n");
        EXPECT_EQ(ended.status, 64);
    }
    const Ended missing = runProgram(UDSIM, {"forget", "/tmp/none.udsim"});
    EXPECT_EQ(missing.output, "udsim: /tmp/none.udsim: No such file or directory\n");
    EXPECT_EQ(missing.status, 1);
}

} // namespace
