// The output of udsim on a terminal and elsewhere.
#include <chrono>
#include <fstream>

#include <gtest/gtest.h>
#include <pty.h>
#include <sys/ioctl.h>

#include "ProgramProcess.h"
#include "SimPaths.h"

namespace {

void putTerminalScenario()
{
    std::ofstream(SCENARIO) << "[publisher A]\nmodel = RT-30\ndisc-time = 400s\njob = Concert, copies=2\n";
}

/// A room on a terminal with the given number of columns.
class OnTerminal
{
public:
    OnTerminal(unsigned short columns, const char* kind)
    {
        putTerminalScenario();
        ::setenv("TERM", kind, 1);
        winsize size{24, columns, 0, 0};
        int ends[2] = {-1, -1};
        EXPECT_EQ(::openpty(&ends[0], &ends[1], nullptr, nullptr, &size), 0);
        ::fcntl(ends[0], F_SETFD, FD_CLOEXEC);
        ::fcntl(ends[1], F_SETFD, FD_CLOEXEC);
        process.emplace(UDSIM, std::vector<std::string>{SCENARIO, "--speed", "100"}, ends[1], ends[0]);
    }

    std::optional<ProgramProcess> process;
};

size_t count(const std::string& text, const std::string& what)
{
    size_t found = 0;
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) {
        ++found;
    }
    return found;
}

} // namespace

TEST(SimTerminal, JobsAreRedrawnInPlace)
{
    OnTerminal terminal(80, "xterm");
    const auto begun = std::chrono::steady_clock::now();
    terminal.process->readUntil("disc 2 of 2");
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begun;
    terminal.process->signal(SIGTERM);
    const std::string output = terminal.process->readUntil("udsim: ended");
    EXPECT_NE(output.find("udsim: ready\r\n"), std::string::npos);
    EXPECT_NE(output.find("A  Concert  disc 1 of 2  ["), std::string::npos) << output;
    EXPECT_NE(output.find("\x1b[1A"), std::string::npos) << "the cursor moves up to the line";
    const size_t frames = count(output, "Concert  disc");
    EXPECT_GE(frames, 3U);
    EXPECT_LE(static_cast<double>(frames), took.count() * 4 + 3) << "at most four frames per second";
    EXPECT_EQ(terminal.process->wait(), 0);
}

TEST(SimTerminal, LinesFitTheTerminal)
{
    OnTerminal terminal(24, "xterm");
    const std::string output = terminal.process->readUntil("A  Concert");
    const size_t line = output.find("A  Concert");
    ASSERT_NE(line, std::string::npos);
    EXPECT_LT(terminal.process->readUntil("\x1b[K").find("\x1b[K", line) - line, 24U);
}

TEST(SimTerminal, ADumbTerminalGetsPlainLines)
{
    OnTerminal terminal(80, "dumb");
    terminal.process->readUntil("udsim: ready");
    terminal.process->readUntil("running \"Concert\"");
    EXPECT_EQ(terminal.process->readUntil("\n").find('\x1b'), std::string::npos);
}

TEST(SimTerminal, OtherOutputHasNoEscapeSequences)
{
    putTerminalScenario();
    ::setenv("TERM", "xterm", 1);
    ProgramProcess process(UDSIM, {SCENARIO, "--speed", "1000"});
    process.readUntil("running \"Concert\"");
    process.signal(SIGTERM);
    const std::string output = process.readToTheEnd();
    EXPECT_NE(output.find("udsim: ended\n"), std::string::npos);
    EXPECT_EQ(output.find('\x1b'), std::string::npos);
    EXPECT_EQ(output.find("disc 1 of 2"), std::string::npos);
}
