// The program udsim, from outside, and the scenario of the demo.
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "RawClient.h"
#include "World.h"

namespace {

constexpr char SCENARIO[] = "/tmp/room.udsim";

/// udsim with these arguments; what it prints on both channels comes through a pipe.
class Udsim
{
public:
    explicit Udsim(std::vector<std::string> arguments)
    {
        int ends[2] = {-1, -1};
        EXPECT_EQ(::pipe2(ends, O_CLOEXEC), 0);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
        arguments.insert(arguments.begin(), "udsim");
        std::vector<char*> argv;
        for (std::string& argument : arguments) {
            argv.push_back(argument.data());
        }
        argv.push_back(nullptr);
        EXPECT_EQ(::posix_spawn(&m_pid, UDSIM, &actions, nullptr, argv.data(), environ), 0);
        posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
        m_output = ends[0];
    }
    Udsim(const Udsim&) = delete;
    Udsim& operator=(const Udsim&) = delete;
    ~Udsim()
    {
        if (m_pid > 0) {
            ::kill(m_pid, SIGKILL);
            ::waitpid(m_pid, nullptr, 0);
        }
        ::close(m_output);
    }

    /// Reads until the text has come; everything up to then. The end of the output, too, ends it.
    std::string readUntil(const std::string& text)
    {
        while (text.empty() || m_read.find(text) == std::string::npos) {
            pollfd entry{m_output, POLLIN, 0};
            char piece[4096];
            if (::poll(&entry, 1, RawClient::PATIENCE) <= 0) {
                ADD_FAILURE() << "waited in vain for \"" << text << "\" behind: " << m_read;
                break;
            }
            const ssize_t count = ::read(m_output, piece, sizeof piece);
            if (count <= 0) {
                break;
            }
            m_read.append(piece, static_cast<size_t>(count));
        }
        return m_read;
    }
    std::string readToTheEnd()
    {
        return readUntil("");
    }
    void signal(int number) const
    {
        ::kill(m_pid, number);
    }
    /// The exit code, or 1000 and the signal that ended it.
    int wait()
    {
        int status = 0;
        ::waitpid(std::exchange(m_pid, -1), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
    }

private:
    pid_t m_pid = -1;
    int m_output = -1;
    std::string m_read;
};

void putScenario(const std::string& text)
{
    std::ofstream(SCENARIO) << text;
}

} // namespace

TEST(SimProgram, Help)
{
    Udsim udsim({"--help"});
    EXPECT_EQ(udsim.readToTheEnd().find("usage: udsim SCENARIO [--speed N] [--requests]\n"), 0U);
    EXPECT_EQ(udsim.wait(), 0);
}

TEST(SimProgram, WrongArguments)
{
    putScenario("");
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {},
             {SCENARIO, SCENARIO},
             {"--fast"},
             {SCENARIO, "--speed"},
             {SCENARIO, "--speed", "0"},
             {SCENARIO, "--speed", "-1"},
             {SCENARIO, "--speed", "1001"},
             {SCENARIO, "--speed", "2x"},
             {SCENARIO, "--speed", "nan"},
         }) {
        Udsim udsim(arguments);
        EXPECT_EQ(udsim.readToTheEnd().find("usage: udsim "), 0U);
        EXPECT_EQ(udsim.wait(), 64);
    }
}

TEST(SimProgram, ABadScenario)
{
    putScenario("[publisher A]\nmodel = RT-1\n");
    Udsim udsim({SCENARIO});
    EXPECT_EQ(udsim.readToTheEnd(), "udsim: /tmp/room.udsim: line 2: unknown model \"RT-1\"\n");
    EXPECT_EQ(udsim.wait(), 1);
    Udsim without({"/tmp/none.udsim"});
    EXPECT_EQ(without.readToTheEnd(), "udsim: /tmp/none.udsim: No such file or directory\n");
    EXPECT_EQ(without.wait(), 1);
}

TEST(SimProgram, RunsUntilItIsEnded)
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

TEST(SimProgram, PrintsWhatTheAgentTakes)
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
}

TEST(SimProgram, ASecondOneIsRefused)
{
    putScenario("");
    Udsim first({SCENARIO});
    first.readUntil("udsim: ready\n");
    Udsim second({SCENARIO});
    EXPECT_NE(second.readToTheEnd().find("another service is running\n"), std::string::npos);
    EXPECT_EQ(second.wait(), 1);
    EXPECT_EQ(ask(13).result, 0U);
}

TEST(SimDemo, TheScenarioStaysLively)
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
             {std::pair("Studio 10", "RT-300III DVD"), std::pair("Archive", "RT-30II BDXL")}) {
            const udsim::Publisher& machine = *world.byName(name);
            ASSERT_STREQ(machine.model().name, model);
            ASSERT_EQ(machine.hindrance(), 0U) << name << " at " << second;
            ASSERT_EQ(machine.unfinishedJobs(), 0U) << name << " at " << second;
        }
        world.advance(1000);
    }
}

TEST(SimDemo, EveryMachineHasProperties)
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
    EXPECT_EQ(shown, known) << "the property dialog asserts that it knows the model";
}
