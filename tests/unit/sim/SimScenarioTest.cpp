// Scenarios: their meaning and their error messages.
#include <fstream>

#include <gtest/gtest.h>

#include "RoomFixture.h"
#include "Text.h"

using udsim::Command;
using udsim::Fault;
using udsim::Scenario;

TEST(SimScenario, AnEmptyTextIsAScenario)
{
    EXPECT_TRUE(scenarioOf("").publishers.empty());
    EXPECT_TRUE(scenarioOf("# words\n\n; more words\r\n   \t\n").publishers.empty());
}

TEST(SimScenario, EveryModel)
{
    struct Row
    {
        const char* name;
        uint32_t type;
        unsigned drives;
        unsigned stackers;
        const char* modes;
        bool bluRay;
        bool bluRayXl;
    };
    const Row table[] = {
        {"RT-300", 1, 2, 4, "012", false, false},
        {"RT-300AP", 2, 0, 4, "0126", false, false},
        {"RT-30", 3, 1, 3, "02", false, false},
        {"RT-30BD", 4, 1, 3, "026", true, false},
        {"RT-5300EX", 0x10000005, 2, 4, "0126", false, false},
        {"RT-7030BD", 6, 1, 3, "0256", true, false},
        {"RT-300II DVD", 0x10000007, 2, 4, "0126", false, false},
        {"RT-300II BD", 0x20000007, 2, 4, "0126", true, false},
        {"RT-30II", 8, 1, 3, "026", true, false},
        {"RT-30II BDXL", 0x30000008, 1, 3, "026", true, true},
        {"RT-300III DVD", 0x10000009, 2, 4, "0126", false, false},
        {"RT-300III BD", 0x20000009, 2, 4, "0126", true, false},
        {"RT-300III BDXL", 0x30000009, 2, 4, "0126", true, true},
    };
    EXPECT_EQ(udsim::models().size(), std::size(table));
    for (const Row& row : table) {
        const Scenario scenario = scenarioOf("[publisher X]\nmodel = " + std::string(row.name) + "\n");
        ASSERT_EQ(scenario.publishers.size(), 1U) << row.name;
        const udsim::Model& model = *scenario.publishers[0].model;
        EXPECT_EQ(model.deviceType, row.type) << row.name;
        EXPECT_EQ(model.drives, row.drives) << row.name;
        EXPECT_EQ(model.stackers, row.stackers) << row.name;
        for (uint64_t mode = 0; mode <= 12; ++mode) {
            const bool expected =
                mode <= 9 && std::string(row.modes).find(static_cast<char>('0' + mode)) != std::string::npos;
            EXPECT_EQ(model.supportsMode(mode), expected) << row.name << " in mode " << mode;
        }
        const std::string speeds = model.writeSpeeds();
        EXPECT_EQ(speeds.empty(), row.drives == 0) << row.name;
        EXPECT_EQ(speeds.find("BD-R:") != std::string::npos, row.bluRay) << row.name;
        EXPECT_EQ(speeds.find("BD-R QL:") != std::string::npos, row.bluRayXl) << row.name;
    }
}

TEST(SimScenario, StackersOfEachMode)
{
    struct Row
    {
        const char* model;
        const char* mode;
        std::array<uint32_t, 4> media;
    };
    const Row table[] = {
        {"RT-300III BD", "0", {1, 0, 32, 0}}, {"RT-300III BD", "1", {1, 1, 0, 32}},
        {"RT-300III BD", "2", {1, 1, 32, 0}}, {"RT-300III BD", "6", {16, 0, 32, 0}},
        {"RT-7030BD", "0", {1, 0, 0, 32}},    {"RT-7030BD", "2", {1, 1, 0, 32}},
        {"RT-7030BD", "5", {16, 0, 0, 32}},   {"RT-7030BD", "6", {16, 0, 0, 32}},
    };
    for (const Row& row : table) {
        const Scenario scenario =
            scenarioOf("[publisher X]\nmode = " + std::string(row.mode) + "\nmodel = " + row.model + "\n");
        for (size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(scenario.publishers.at(0).stackers[i].media, row.media[i])
                << row.model << " in mode " << row.mode << ", stacker " << i + 1;
        }
    }
}

TEST(SimScenario, EveryKeyOfAPublisher)
{
    const Scenario scenario = scenarioOf("  [publisher Studio A]  \r\n"
                                         "model=RT-300III BDXL\n"
                                         "name = Shown name\n"
                                         "guid = {G}\n"
                                         "id = my id\n"
                                         "serial = S1\n"
                                         "registered = no\n"
                                         "connected = no\n"
                                         "error = 19\n"
                                         "mode = 1\n"
                                         "usb = 0\n"
                                         "maintenance-box = 12\n"
                                         "print-count = 345\n"
                                         "disc-time = 2m\n"
                                         "cleaning-time = 90s\n"
                                         "ink.light-magenta = 7\n"
                                         "stacker2 = 8\n"
                                         "stacker2.media = BD-R QL\n"
                                         "jobs = 2\n"
                                         "job = Two words, copies=5, type=write\n"
                                         "job =\n");
    const udsim::PublisherSetup& setup = scenario.publishers.at(0);
    EXPECT_EQ(setup.name, "Studio A");
    EXPECT_EQ(setup.shownName, "Shown name");
    EXPECT_EQ(setup.guid, "{G}");
    EXPECT_EQ(setup.registId, "my id");
    EXPECT_EQ(setup.serial, "S1");
    EXPECT_FALSE(setup.registered);
    EXPECT_FALSE(setup.connected);
    EXPECT_EQ(setup.error, 19U);
    EXPECT_EQ(setup.mode, 1U);
    EXPECT_EQ(setup.usbMode, 0U);
    EXPECT_EQ(setup.maintenanceBox, 12U);
    EXPECT_EQ(setup.printCount, 345U);
    EXPECT_EQ(setup.discTime, 120'000U);
    EXPECT_EQ(setup.cleaningTime, 90'000U);
    EXPECT_EQ(setup.ink[4], 7U);
    EXPECT_EQ(setup.ink[0], 100U);
    EXPECT_EQ(setup.stackers[1].discs, 8U);
    EXPECT_EQ(setup.stackers[1].media, 11U);
    ASSERT_EQ(setup.jobs.size(), 4U);
    EXPECT_EQ(setup.jobs[1].name, "Disc 2");
    EXPECT_EQ(setup.jobs[2].name, "Two words");
    EXPECT_EQ(setup.jobs[2].copies, 5U);
    EXPECT_EQ(setup.jobs[2].type, 1U);
    EXPECT_EQ(setup.jobs[3].name, "Disc");
}

TEST(SimScenario, DefaultsDifferBetweenMachines)
{
    const Scenario scenario = scenarioOf("[publisher A]\nmodel = RT-30\n[publisher B]\nmodel = RT-30\n");
    EXPECT_EQ(scenario.publishers[0].guid, "{5D2C0A10-7B3E-4C11-9A60-000000000001}");
    EXPECT_EQ(scenario.publishers[1].guid, "{5D2C0A10-7B3E-4C11-9A60-000000000002}");
    EXPECT_EQ(scenario.publishers[1].registId, "{ARPUB20260105_2}");
    EXPECT_EQ(scenario.publishers[1].serial, "SIM0000002");
    EXPECT_EQ(scenario.publishers[1].shownName, "B");
    EXPECT_TRUE(scenario.publishers[1].registered);
    EXPECT_TRUE(scenario.publishers[1].connected);
}

TEST(SimScenario, EventsAndFaultsMayPrecedeTheirPublisher)
{
    const Scenario scenario = scenarioOf("[event]\nat = 0s\npublisher = A\ndo = error 19\n"
                                         "[event]\nevery = 30s\npublisher = A\ndo = add-job X, copies=2\n"
                                         "[event]\nat = 5s\nevery = 250ms\ndo = service off\n"
                                         "[fault]\ncontrol = 22\npublisher = A\ntimes = 3\ndo = result 1001\n"
                                         "[publisher A]\nmodel = RT-30\n");
    ASSERT_EQ(scenario.events.size(), 3U);
    EXPECT_EQ(scenario.events[0].at, 0U);
    EXPECT_EQ(scenario.events[0].every, 0U);
    EXPECT_EQ(scenario.events[0].command.kind, Command::Kind::error);
    EXPECT_EQ(scenario.events[0].command.number, 19U);
    EXPECT_EQ(scenario.events[1].at, 30'000U);
    EXPECT_EQ(scenario.events[1].every, 30'000U);
    EXPECT_EQ(scenario.events[1].command.job.copies, 2U);
    EXPECT_EQ(scenario.events[2].at, 5000U);
    EXPECT_EQ(scenario.events[2].every, 250U);
    EXPECT_EQ(scenario.events[2].command.kind, Command::Kind::service);
    ASSERT_EQ(scenario.faults.size(), 1U);
    EXPECT_EQ(scenario.faults[0].kind, Fault::Kind::result);
    EXPECT_EQ(scenario.faults[0].number, 1001U);
    EXPECT_EQ(scenario.faults[0].control, 22U);
    EXPECT_EQ(scenario.faults[0].times, 3U);
    EXPECT_EQ(scenario.faults[0].publisher, "A");
}

TEST(SimScenario, EveryCommand)
{
    using CommandKind = Command::Kind;
    struct Row
    {
        const char* text;
        CommandKind kind;
        size_t index;
        uint32_t number;
    };
    const Row table[] = {
        {"online", CommandKind::online, 0, 0},
        {"offline", CommandKind::offline, 0, 0},
        {"error 1", CommandKind::error, 0, 1},
        {"error 9999", CommandKind::error, 0, 9999},
        {"clear", CommandKind::clear, 0, 0},
        {"add-job", CommandKind::addJob, 0, 0},
        {"pause", CommandKind::pause, 0, 0},
        {"resume", CommandKind::resume, 0, 0},
        {"refill", CommandKind::refill, 0, 0},
        {"ink cyan 0", CommandKind::ink, 0, 0},
        {"ink magenta 1", CommandKind::ink, 1, 1},
        {"ink yellow 2", CommandKind::ink, 2, 2},
        {"ink light-cyan 3", CommandKind::ink, 3, 3},
        {"ink light-magenta 4", CommandKind::ink, 4, 4},
        {"ink black 100", CommandKind::ink, 5, 100},
        {"stacker 1 0", CommandKind::stacker, 0, 0},
        {"stacker 4 100", CommandKind::stacker, 3, 100},
        {"service on", CommandKind::service, 0, 1},
        {"service off", CommandKind::service, 0, 0},
    };
    for (const Row& row : table) {
        std::string error;
        const auto command = Command::parse(row.text, error);
        ASSERT_TRUE(command) << row.text << ": " << error;
        EXPECT_EQ(command->kind, row.kind) << row.text;
        EXPECT_EQ(command->index, row.index) << row.text;
        EXPECT_EQ(command->number, row.number) << row.text;
    }
    for (const char* const text : {"",
                                   "onlin",
                                   "online now",
                                   "error",
                                   "error 0",
                                   "error 10000",
                                   "error x",
                                   "ink",
                                   "ink red 5",
                                   "ink cyan",
                                   "ink cyan 101",
                                   "stacker",
                                   "stacker 0 5",
                                   "stacker 5 5",
                                   "stacker 1 101",
                                   "service",
                                   "service maybe",
                                   "add-job X, copies=0",
                                   "add-job X, copies=1001",
                                   "add-job X, type=burn",
                                   "add-job X, colour=red"}) {
        std::string error;
        EXPECT_FALSE(Command::parse(text, error)) << text;
        EXPECT_NE(error, "") << text;
    }
}

TEST(SimScenario, MistakesAreReportedWithTheirLine)
{
    const std::string machine = "[publisher A]\nmodel = RT-30\n"; // two lines
    const std::pair<std::string, std::string> table[] = {
        {"[publisher A", "line 1: a section header without \"]\""},
        {"\n[printer A]",
         "line 2: unknown section \"printer\" (publisher NAME, network NAME, event, fault or network-fault)"},
        {"[publisher]", "line 1: a publisher needs a name: [publisher NAME]"},
        {"[event now]", "line 1: the section \"event\" takes no name"},
        {"model = RT-30", "line 1: a key before the first section"},
        {machine + "connected", "line 3: neither a section nor \"key = value\""},
        {machine + "model = RT-30", "line 3: duplicate key \"model\""},
        {"[publisher A]\n", "line 1: the publisher \"A\" needs a model"},
        {"[publisher A]\nmodel = RT-31\n", "line 2: unknown model \"RT-31\" (did you mean \"RT-30\"?)"},
        {machine + "colour = red", "line 3: unknown key \"colour\" of a publisher"},
        {machine + "connected = maybe", "line 3: \"connected\" needs yes or no"},
        {machine + "registered = 1", "line 3: \"registered\" needs yes or no"},
        {machine + "mode = 1", "line 3: the model does not support publish mode \"1\""},
        {machine + "mode = x", "line 3: the model does not support publish mode \"x\""},
        {machine + "error = ten", "line 3: \"error\" needs a number up to 9999"},
        {machine + "usb = 17", "line 3: \"usb\" needs a number up to 16"},
        {machine + "disc-time = 0s", "line 3: \"disc-time\" needs a time such as 250ms, 8s or 2m"},
        {machine + "cleaning-time = 0s", "line 3: \"cleaning-time\" needs a time such as 250ms, 8s or 2m"},
        {machine + "disc-time = 8", "line 3: \"disc-time\" needs a time such as 250ms, 8s or 2m"},
        {machine + "ink.red = 8", "line 3: \"ink\" needs a colour (cyan, magenta, yellow, light-cyan, "
                                  "light-magenta, black) and a percentage"},
        {machine + "stacker5 = 8",
         "line 3: \"stacker\" needs a stacker from 1 to 4 and a number of discs up to 100"},
        {machine + "stacker1.media = vinyl", "line 3: \"vinyl\" is not a disc type"},
        {machine + "jobs = 34", "line 3: \"jobs\" needs a number up to 33"},
        {machine + "jobs = 33\njob = X", "line 1: more than 33 jobs"},
        {machine + "job = X, copies=0",
         "line 3: \"copies=0\" is not a valid part of a job (a name, copies=1 to 1000, "
         "type=write, print or write+print)"},
        {machine + "name = a;b",
         "line 3: \"name\" needs a text of up to 64 bytes without any of \\ / \" [ ] ; ="},
        {machine + "id = ../x",
         "line 3: \"id\" needs a text of up to 128 bytes without any of \\ / \" [ ] ; ="},
        {"[publisher a\\b]\nmodel = RT-30", "line 1: a name has up to 64 bytes and none of \\ / \" [ ] ; ="},
        {machine + machine, "line 3: another publisher has this name, guid or id"},
        {machine + "[event]\nat = 3s", "line 3: an event needs \"do\", and \"at\" or \"every\""},
        {machine + "[event]\npublisher = A\ndo = online",
         "line 3: an event needs \"do\", and \"at\" or \"every\""},
        {machine + "[event]\nat = soon", "line 4: \"at\" needs a time such as 250ms, 8s or 2m"},
        {machine + "[event]\nevery = 0s", "line 4: \"every\" needs a time such as 250ms, 8s or 2m"},
        {machine + "[event]\npublisher = B", "line 4: unknown publisher \"B\""},
        {machine + "[event]\ndo = explode", "line 4: unknown command \"explode\""},
        {machine + "[event]\nwhen = 3s", "line 4: unknown key \"when\" of an event"},
        {machine + "[event]\nat = 1s\ndo = online",
         "line 3: an event needs a publisher unless it applies to the service"},
        {machine + "[event]\nat = 1s\npublisher = A\ndo = service on",
         "line 3: an event needs a publisher unless it applies to the service"},
        {"[fault]\ncontrol = 22", "line 1: a fault needs \"do\""},
        {machine + "disk-time = 8s",
         "line 3: unknown key \"disk-time\" of a publisher (did you mean \"disc-time\"?)"},
        {machine + "stacker1.meda = CD-R",
         "line 3: unknown key \"stacker1.meda\" of a publisher (did you mean \"stacker1.media\"?)"},
        {machine + "box = 8",
         "line 3: unknown key \"box\" of a publisher (did you mean \"maintenance-box\"?)"},
        {"[publisher Studio A]\nmodel = RT-30\n[event]\npublisher = Stdio A",
         "line 4: unknown publisher \"Stdio A\" (did you mean \"Studio A\"?)"},
        {machine + "[event]\ndo = Offline",
         "line 4: unknown command \"Offline\" (did you mean \"offline\"?)"},
        {machine + "[event]\ndo = service", "line 4: \"service\" needs on or off"},
        {machine + "[event]\nevry = 3s",
         "line 4: unknown key \"evry\" of an event (did you mean \"every\"?)"},
        {"[fault]\ndo = stall\ncontorl = 3",
         "line 3: unknown key \"contorl\" of a fault (did you mean \"control\"?)"},
        {"[fault]\ndo = short", "line 2: unknown fault \"short\" (did you mean \"short-header\"?)"},
        {"[fault]\ndo = sing", "line 2: unknown fault \"sing\""},
        {"[fault]\ndo = result", "line 2: the fault \"result\" needs a number up to 3600000"},
        {"[fault]\ndo = stall 5", "line 2: the fault \"stall\" takes no argument"},
        {"[fault]\ndo = stall\ncontrol = all",
         "line 3: \"control\" needs a number up to 18446744073709551615"},
        {"[fault]\ndo = stall\npublisher = B", "line 3: unknown publisher \"B\""},
        {"[fault]\ndo = stall\nwhen = now", "line 3: unknown key \"when\" of a fault"},
        {"[fault]\ndo = refuse\ncontrol = 22",
         "line 3: \"refuse\" applies to every connection and takes no control, publisher or times"},
    };
    for (const auto& [text, expected] : table) {
        std::string error;
        EXPECT_FALSE(Scenario::parse(text, error)) << text;
        EXPECT_EQ(error, expected) << text;
    }
}

TEST(SimScenario, EverySuggestedKeyExists)
{
    // A key with one extra letter makes the parser suggest the key. The key itself must be known.
    const std::pair<std::string, std::string> sections[] = {
        {"[publisher A]\nmodel = RT-30\n", "name guid id serial registered connected mode error disc-time "
                                           "cleaning-time jobs job stacker1 stacker4.media ink.cyan "
                                           "ink.light-magenta ink.black maintenance-box print-count usb"},
        {"[network A]\nmodel = RT-300N\n",
         "host listening server-mode server-version web-version interface-version disc-space third-stacker "
         "drives-used retries error-mark known-kind name connected disc-time stacker2.media ink.yellow"},
        {"[event]\n", "do at every publisher"},
        {"[fault]\ndo = stall\n", "control publisher times"},
        {"[network-fault]\ndo = stall\n", "method path publisher times after"},
    };
    for (const auto& [start, keys] : sections) {
        for (const std::string& key : udsim::split(keys, ' ')) {
            std::string error;
            Scenario::parse(start + key + " = \x01", error);
            EXPECT_EQ(error.find("unknown key"), std::string::npos) << key << ": " << error;
            // Shorter keys tolerate no typo or are close to another key. Supplies have their own messages.
            if (key.size() >= 6 && !key.starts_with("stacker") && !key.starts_with("ink.")) {
                EXPECT_FALSE(Scenario::parse(start + key + "x = 1", error));
                EXPECT_NE(error.find("unknown key \"" + key + "x\""), std::string::npos) << error;
                EXPECT_NE(error.find("(did you mean \"" + key + "\"?)"), std::string::npos) << error;
            }
        }
    }
}

TEST(SimScenario, Files)
{
    std::string error;
    EXPECT_FALSE(Scenario::load("/tmp/none.udsim", error));
    EXPECT_EQ(error, "/tmp/none.udsim: No such file or directory");
    EXPECT_FALSE(Scenario::load("/tmp", error));
    EXPECT_EQ(error, "/tmp: Is a directory");
    std::ofstream("/tmp/bad.udsim") << "\n[publisher A]\nmodle = RT-30\n";
    EXPECT_FALSE(Scenario::load("/tmp/bad.udsim", error));
    EXPECT_EQ(error, "/tmp/bad.udsim:3: unknown key \"modle\" (did you mean \"model\"?)");
    std::ofstream("/tmp/one.udsim") << "[publisher A]\nmodel = RT-30";
    EXPECT_TRUE(Scenario::load("/tmp/one.udsim", error)) << error;
    std::ofstream("/tmp/empty.udsim").flush();
    EXPECT_TRUE(Scenario::load("/tmp/empty.udsim", error)) << error;
}

TEST(SimScenario, NumbersAndTimes)
{
    EXPECT_EQ(udsim::parseNumber("0", 9), 0U);
    EXPECT_EQ(udsim::parseNumber("0x1F", 99), 31U);
    EXPECT_EQ(udsim::parseNumber("18446744073709551615", UINT64_MAX), UINT64_MAX);
    for (const char* const text :
         {"", "-1", "+1", " 1", "1 ", "1.5", "10", "0x", "18446744073709551616", "eight"}) {
        EXPECT_FALSE(udsim::parseNumber(text, 9)) << text;
    }
    EXPECT_EQ(udsim::parseDuration("250ms"), 250U);
    EXPECT_EQ(udsim::parseDuration("8s"), 8000U);
    EXPECT_EQ(udsim::parseDuration("1440m"), 86'400'000U);
    for (const char* const text : {"", "s", "8", "8h", "8 s", "-8s", "1441m", "99999999999999999999s"}) {
        EXPECT_FALSE(udsim::parseDuration(text)) << text;
    }
}
