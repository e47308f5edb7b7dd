// The program udsim, run as a process, and the demo scenario.
#include <algorithm>
#include <csignal>
#include <fstream>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "HttpClient.h"
#include "ProgramProcess.h"
#include "RawClient.h"
#include "SimPaths.h"
#include "World.h"

namespace {

class Udsim : public ProgramProcess
{
public:
    explicit Udsim(std::vector<std::string> arguments) : ProgramProcess(UDSIM, std::move(arguments)) {}
};

void putScenario(const std::string& text)
{
    std::ofstream(SCENARIO) << text;
}

} // namespace

TEST(SimProgram, Help)
{
    Udsim udsim({"--help"});
    EXPECT_EQ(udsim.readToTheEnd().find("usage: udsim SCENARIO [--speed N] [--requests] [--control PATH]\n"),
              0U);
    EXPECT_EQ(udsim.wait(), 0);
    const std::string help = runProgram(UDSIM, {"--help"}).output;
    for (const std::vector<std::string>& arguments : std::initializer_list<std::vector<std::string>>{
             {"-h"}, {"tell", "--help"}, {"record", "--help"}, {"replay", "--help"}, {"--check", "--help"}}) {
        const Ended ended = runProgram(UDSIM, arguments);
        EXPECT_EQ(ended.output, help);
        EXPECT_EQ(ended.status, 0) << arguments.front();
    }
}

TEST(SimProgram, Version)
{
    Udsim udsim({"--version"});
    EXPECT_EQ(udsim.readToTheEnd(), "udsim " PRODUCT_VERSION "\n");
    EXPECT_EQ(udsim.wait(), 0);
}

TEST(SimProgram, WrongArguments)
{
    putScenario("");
    const std::pair<std::vector<std::string>, std::string> table[] = {
        {{}, "a scenario is required"},
        {{SCENARIO, SCENARIO}, "only one scenario can be run"},
        {{"--fast"}, "unknown option \"--fast\""},
        {{SCENARIO, "--spede", "2"}, "unknown option \"--spede\" (did you mean \"--speed\"?)"},
        {{SCENARIO, "--speed"}, "\"--speed\" needs a value"},
        {{SCENARIO, "--speed", "0"}, "\"--speed\" needs a number above 0 and up to 1000"},
        {{SCENARIO, "--speed", "-1"}, "\"--speed\" needs a number above 0 and up to 1000"},
        {{SCENARIO, "--speed", "1001"}, "\"--speed\" needs a number above 0 and up to 1000"},
        {{SCENARIO, "--speed", "2x"}, "\"--speed\" needs a number above 0 and up to 1000"},
        {{SCENARIO, "--speed", "nan"}, "\"--speed\" needs a number above 0 and up to 1000"},
        {{SCENARIO, "--speed=0"}, "\"--speed\" needs a number above 0 and up to 1000"},
        {{SCENARIO, "--speed="}, "\"--speed\" needs a number above 0 and up to 1000"},
        {{SCENARIO, "--spede=2"}, "unknown option \"--spede\" (did you mean \"--speed\"?)"},
        {{SCENARIO, "--spee", "2"}, "unknown option \"--spee\" (did you mean \"--speed\"?)"},
        {{SCENARIO, "--spee"}, "unknown option \"--spee\" (did you mean \"--speed\"?)"},
        {{SCENARIO, "--requests=1"}, "\"--requests\" takes no value"},
        {{SCENARIO, "-xy"}, "unknown option \"-xy\""},
        {{"--check"}, "--check takes one scenario"},
        {{"--check", SCENARIO, SCENARIO}, "--check takes one scenario"},
        {{"--help", "me"}, "--help takes no other argument"},
        {{"--version", "1"}, "--version takes no other argument"},
        {{"tell"}, "tell needs a publisher and a command, such as: udsim tell \"Studio A\" offline"},
        {{"tell", "A"}, "tell needs a publisher and a command, such as: udsim tell \"Studio A\" offline"},
        {{"tell", "--list", "A"}, "\"--list\" takes no publisher and no command"},
        {{"tell", "--lst"}, "unknown option \"--lst\" (did you mean \"--list\"?)"},
        {{"tell", "A\tB", "online"}, "a publisher or command must not contain tabs or line breaks"},
        {{"tell", "A", "add-job X\nY"}, "a publisher or command must not contain tabs or line breaks"},
        {{"tel", "A", "offline"}, "\"tel\" is neither a scenario nor a command (did you mean \"tell\"?)"},
        {{"recrod", "--service", "x"},
         "\"recrod\" is neither a scenario nor a command (did you mean \"record\"?)"},
        {{"help"}, "\"help\" is neither a scenario nor a command (did you mean \"--help\"?)"},
        {{"--hlep"}, "\"--hlep\" is neither a scenario nor a command (did you mean \"--help\"?)"},
        {{"record", "--server", "127.0.0.1", "x"},
         "the server has the address 127.0.0.1; \"--listen\" needs a different one"},
        {{"record", "--server", "h:8080", "--listen", "h:8080", "x"},
         "the server has the address h:8080; \"--listen\" needs a different one"},
        {{"record"}, "record needs either --service or --server HOST"},
        {{"record", "x"}, "record needs either --service or --server HOST"},
        {{"record", "--service", "--server", "h", "x"}, "record needs either --service or --server HOST"},
        {{"record", "--service"}, "record needs one output file"},
        {{"record", "--service", "--listen", "127.0.0.1", "x"}, "\"--listen\" requires --server"},
        {{"record", "--server", "h:0", "x"}, "\"h:0\" is not a valid HOST[:PORT]"},
        {{"record", "--server", "h", "--listen", ":80", "x"}, "\":80\" is not a valid ADDRESS[:PORT]"},
        {{"replay"}, "replay needs one recording"},
        {{"replay", "--fast", "x"}, "unknown option \"--fast\""},
        {{"replay", "--listen", "a:b", "x"}, "\"a:b\" is not a valid ADDRESS[:PORT]"},
        {{"replay", "--listen=a:b", "x"}, "\"a:b\" is not a valid ADDRESS[:PORT]"},
    };
    for (const auto& [arguments, expected] : table) {
        const Ended ended = runProgram(UDSIM, arguments);
        EXPECT_EQ(ended.output, "udsim: " + expected + "\nTry \"udsim --help\".\n");
        EXPECT_EQ(ended.status, 64) << expected;
    }
}

TEST(SimProgram, AnInvalidScenarioIsReported)
{
    putScenario("[publisher A]\nmodel = RT-1\n");
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{SCENARIO}, std::vector<std::string>{"--check", SCENARIO}}) {
        const Ended ended = runProgram(UDSIM, arguments);
        EXPECT_EQ(ended.output, "udsim: /tmp/room.udsim:2: unknown model \"RT-1\"\n");
        EXPECT_EQ(ended.status, 1);
    }
    const Ended without = runProgram(UDSIM, {"/tmp/none.udsim"});
    EXPECT_EQ(without.output, "udsim: /tmp/none.udsim: No such file or directory\n");
    EXPECT_EQ(without.status, 1);
}

TEST(SimProgram, ChecksAScenarioAndRunsNothing)
{
    putScenario(
        "[publisher A]\nmodel = RT-30\n[network B]\nmodel = RT-300N\n"
        "[event]\nat = 1s\npublisher = A\ndo = offline\n[fault]\ndo = stall\n[network-fault]\ndo = stall\n");
    const Ended ended = runProgram(UDSIM, {"--check", SCENARIO});
    EXPECT_EQ(ended.output, "/tmp/room.udsim: 1 local and 1 network publishers, 1 events, 2 faults\n");
    EXPECT_EQ(ended.status, 0);
    EXPECT_FALSE(std::ifstream(REGISTRY).is_open());
}

TEST(SimProgram, ChecksEveryScenarioOfTheProject)
{
    for (const char* const name : {"demo.udsim", "first.udsim", "network.udsim"}) {
        const Ended ended = runProgram(UDSIM, {"--check", std::string(SCENARIOS) + "/" + name});
        EXPECT_EQ(ended.status, 0) << ended.output;
    }
}

TEST(SimProgram, RunsUntilASignal)
{
    putScenario("[publisher A]\nmodel = RT-30\nid = a\n[event]\nat = 100s\npublisher = A\ndo = error 9\n");
    for (const int signal : {SIGTERM, SIGINT}) {
        Udsim udsim({SCENARIO, "--speed", "1000", "--requests"});
        udsim.readUntil("udsim: ready\n");
        EXPECT_EQ(ask(13, "a").result, 0U);
        udsim.readUntil("asked 13 a\n");
        udsim.readUntil("A: error 9, 0 waiting\n");
        udsim.signal(signal);
        EXPECT_NE(udsim.readToTheEnd().find("udsim: ended\n"), std::string::npos);
        EXPECT_EQ(udsim.wait(), 0);
        EXPECT_FALSE(RawClient().connected());
    }
}

TEST(SimProgram, AnOptionAndItsValueInOneWord)
{
    putScenario("[publisher A]\nmodel = RT-30\n[event]\nat = 100s\npublisher = A\ndo = error 9\n");
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{SCENARIO, "--speed=1000", "--control=/tmp/here.socket"},
          std::vector<std::string>{"--speed=1000", "--control=/tmp/here.socket", "--", SCENARIO}}) {
        Udsim udsim(arguments);
        udsim.readUntil("udsim: ready\n");
        udsim.readUntil("A: error 9, 0 waiting\n");
        const Ended list = runProgram(UDSIM, {"tell", "--control=/tmp/here.socket", "--list"});
        EXPECT_EQ(list.output, "A  error 9, 0 waiting\n");
        udsim.signal(SIGTERM);
        EXPECT_EQ(udsim.wait(), 0);
    }
}

TEST(SimProgram, FilesAreReadableByOthersUnderAnyUmask)
{
    putScenario("[publisher A]\nmodel = RT-30\nid = a\n");
    ::umask(077);
    Udsim udsim({SCENARIO});
    udsim.readUntil("udsim: ready\n");
    const std::string conf = "/opt/arven/Ulmar Disc Maker/conf";
    for (const std::string& path : {std::string("/var/log/arvenUlmarDiscControl.log"), conf + "/registry.txt",
                                    conf + "/RegPublisher/a.ini", conf + "/RegPublisher", conf}) {
        struct stat status{};
        ASSERT_EQ(::stat(path.c_str(), &status), 0) << path;
        EXPECT_EQ(status.st_mode & 0777U, S_ISDIR(status.st_mode) ? 0755U : 0644U) << path;
    }
}

TEST(SimProgram, PrintsTheRecordsOfTheAgent)
{
    putScenario("");
    Udsim udsim({SCENARIO});
    udsim.readUntil("udsim: ready\n");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::string("/var/run/arvenUlmarDiscControlLog.socket")
        .copy(address.sun_path, sizeof address.sun_path - 1);
    const int fd = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const std::string text = "MESSAGE=RT300API[7]: word\nPRIORITY=4\n";
    EXPECT_EQ(::sendto(fd, text.data(), text.size(), 0, reinterpret_cast<const sockaddr*>(&address),
                       sizeof address),
              static_cast<ssize_t>(text.size()));
    ::close(fd);
    udsim.readUntil("log 4 RT300API[7]: word\n");
    udsim.end();
}

TEST(SimProgram, PrintsTheRequestsToItsServers)
{
    putScenario("[network N]\nmodel = RT-300N\nhost = 127.0.0.11\n");
    Udsim udsim({SCENARIO, "--requests"});
    udsim.readUntil("udsim: ready\n");
    HttpClient().ask("GET /webapp2/ServerModeGetter HTTP/1.1\r\nHost:localhost\r\n\r\n");
    udsim.readUntil("asked 127.0.0.11 GET /webapp2/ServerModeGetter\n");
    udsim.end();
}

TEST(SimProgram, ASecondInstanceIsRefused)
{
    putScenario("");
    Udsim first({SCENARIO});
    first.readUntil("udsim: ready\n");
    Udsim second({SCENARIO});
    EXPECT_NE(second.readToTheEnd().find("another service is running\n"), std::string::npos);
    EXPECT_EQ(second.wait(), 1);
    EXPECT_EQ(ask(13).result, 0U);
}

TEST(SimDemo, ChangesAtLeastSixTimesAMinute)
{
    std::string error;
    const auto scenario = udsim::Scenario::load(DEMO_SCENARIO, error);
    ASSERT_TRUE(scenario) << error;
    udsim::World world(*scenario);
    world.advance(0);
    world.takeNotes();
    for (int minute = 1; minute <= 30; ++minute) {
        size_t changes = 0;
        for (int second = 0; second < 60; ++second) {
            world.advance(1000);
            changes += world.takeNotes().size();
        }
        EXPECT_GE(changes, 6U) << "in minute " << minute;
    }
}

TEST(SimDemo, AMachineOfEachFamilyIsIdle)
{
    std::string error;
    const auto scenario = udsim::Scenario::load(DEMO_SCENARIO, error);
    ASSERT_TRUE(scenario) << error;
    EXPECT_EQ(std::count_if(scenario->publishers.begin(), scenario->publishers.end(),
                            [](const udsim::PublisherSetup& setup) { return setup.registered; }),
              8);
    udsim::World world(*scenario);
    world.advance(16'000);
    for (int second = 16; second < 1800; ++second) {
        for (const auto& [name, model] :
             {std::pair("Studio 10", "RT-300III DVD"), std::pair("Archive", "RT-30II BDXL"),
              std::pair("Library", "RT-300NII BD-XL")}) {
            const udsim::Publisher& machine = *world.byName(name);
            ASSERT_STREQ(machine.model().name, model);
            ASSERT_EQ(machine.hindrance(), 0U) << name << " at " << second;
            ASSERT_EQ(machine.unfinishedJobs(), 0U) << name << " at " << second;
        }
        world.advance(1000);
    }
}

TEST(SimDemo, UsesTheModelsOfThePropertyDialog)
{
    std::string error;
    const auto scenario = udsim::Scenario::load(DEMO_SCENARIO, error);
    ASSERT_TRUE(scenario) << error;
    const std::set<std::string> known = {"RT-300III DVD", "RT-300III BD", "RT-300III BDXL", "RT-30II",
                                         "RT-30II BDXL"};
    std::set<std::string> shown;
    for (const udsim::PublisherSetup& setup : scenario->publishers) {
        shown.insert(setup.model->name);
    }
    EXPECT_EQ(shown, known) << "the property dialog aborts the program for any other model";
}
