// Runs the probe program with the publisher servers of the example scenario.
#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "LibraryRoom.h"

namespace {

/// Runs the probe. Returns its exit code, and what it printed in `output`.
int probe(std::vector<std::string> arguments, std::string& output)
{
    arguments.insert(arguments.begin(), PROBE);
    std::vector<char*> list;
    for (std::string& argument : arguments) {
        list.push_back(argument.data());
    }
    list.push_back(nullptr);
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        return -1;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::execv(list[0], list.data());
        ::_exit(127);
    }
    ::close(ends[1]);
    std::array<char, 4096> piece{};
    output.clear();
    for (ssize_t count = 1; (count = ::read(ends[0], piece.data(), piece.size())) > 0;) {
        output.append(piece.data(), static_cast<size_t>(count));
    }
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

TEST(NetworkProbe, EveryServerOfTheExample)
{
    std::string error;
    const auto scenario = udsim::Scenario::load(NETWORK_SCENARIO, error);
    ASSERT_TRUE(scenario) << error;
    udsim::Room room(*scenario);
    ASSERT_TRUE(room.start(error)) << error;
    const std::pair<const char*, const char*> table[] = {{"127.0.0.11", "GetNPType = 1\n"},
                                                         {"127.0.0.12", "GetNPType = 2\n"},
                                                         {"127.0.0.13", "GetNPType = 3\n"}};
    for (const auto& [host, kind] : table) {
        std::string output;
        EXPECT_EQ(probe({host}, output), 0) << output;
        EXPECT_NE(output.find(kind), std::string::npos) << output;
        EXPECT_EQ(probe({host, "--job", "Probe", "--copies", "2", "--image", PROBE, "--print",
                         NETWORK_SCENARIO, "--piece", "100000"},
                        output),
                  0)
            << output;
        EXPECT_NE(output.find("CommitJob: Success\n"), std::string::npos) << output;
        EXPECT_EQ(probe({host, "--special", "cleaning", NETWORK_SCENARIO}, output), 0) << output;
    }
    std::string output;
    EXPECT_EQ(probe({"127.0.0.14"}, output), 1) << "an old server";
    EXPECT_NE(output.find("Version Discrepancy (8001)"), std::string::npos) << output;
    EXPECT_EQ(probe({"127.0.0.12", "--do", "stop", "00000002"}, output), 0) << output;
    EXPECT_EQ(probe({"127.0.0.12", "--do", "stop", "000000ff"}, output), 1) << output;
    EXPECT_EQ(probe({"127.0.0.12", "--nonsense"}, output), 64);
}
