#include "ChildProcess.h"
#include "LogAgent.h"
#include "OpenDescriptors.h"
#include "StdoutCapture.h"
#include "WinFunc.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <regex>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/resource.h>
#include <unistd.h>

static_assert(std::is_empty_v<_StackDepth>);
static_assert(sizeof g_szThreadNameTLS == 64);
static_assert(sizeof g_szTimeStringTLS == 64);
static_assert(std::is_same_v<decltype(g_logLebel), int>);

namespace {

std::string AgentHead()
{
    return "MESSAGE=RT300API[" + std::to_string(getpid()) + "]: ";
}

/// The name of a thread for which SetThreadName was not called.
std::string OwnId()
{
    std::string digits;
    for (auto id = static_cast<unsigned int>(gettid()); id != 0; id /= 16) {
        digits.insert(digits.begin(), "0123456789ABCDEF"[id % 16]);
    }
    return digits;
}

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds SHORTEST_WAIT(75); // for a hung agent

/// A call that waited for the agent.
struct Wait
{
    Clock::time_point start;
    Clock::time_point end;
};

/// How often this thread has waited. That it lost the processor does not count.
long Waits()
{
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
}

/// Logs lines until a call waits for the agent. None if no call waits for 30 seconds.
std::optional<Wait> NextWait()
{
    const Clock::time_point limit = Clock::now() + std::chrono::seconds(30);
    while (Clock::now() < limit) {
        const long waits = Waits();
        const Clock::time_point start = Clock::now();
        logViaAgent(4, "%s", "text");
        const Clock::time_point end = Clock::now();
        if (Waits() > waits && end - start >= SHORTEST_WAIT) {
            return Wait{start, end};
        }
        ::poll(nullptr, 0, 5); // the test waits for the program's own pause
    }
    return std::nullopt;
}

/// Checks a syslog datagram: "<priority>", its time and the name of the program, then the text.
void ExpectSyslog(const std::string& datagram, const std::string& priority, const std::string& text)
{
    const std::regex form("(<[0-9]+>)[A-Z][a-z]{2} [ 0-9][0-9] [0-9:]{8} [^:]+: ([^]*)");
    std::smatch match;
    ASSERT_TRUE(std::regex_match(datagram, match, form)) << datagram;
    EXPECT_EQ(match[1], priority);
    EXPECT_EQ(match[2], text);
}

} // namespace

TEST(LogLevel, StartsAtTheDebugLevel)
{
    EXPECT_EQ(g_logLebel, 4);
    EXPECT_EQ(GetLogLevel(), 4);
    SetLogLevel(3);
    EXPECT_EQ(g_logLebel, 3);
    EXPECT_EQ(GetLogLevel(), 3);
    SetLogLevel(4);
}

TEST(AgentLog, DatagramHasTheExactForm)
{
    LogAgent agent;
    logViaAgent(4, "open of %s failed: %d", "a file", -3);
    EXPECT_EQ(agent.Receive(), AgentHead() + "open of a file failed: -3\nPRIORITY=4\n");
    logViaAgent(7, "%s", "trace");
    EXPECT_EQ(agent.Receive(), AgentHead() + "trace\nPRIORITY=7\n");
    logViaAgent(4, "%s", "");
    EXPECT_EQ(agent.Receive(), AgentHead() + "\nPRIORITY=4\n");
    EXPECT_TRUE(agent.TakeAll().empty());
}

TEST(AgentLog, DatagramEndsWithALineFeedAndContainsNoNul)
{
    LogAgent agent;
    logViaAgent(4, "%s", "text");
    const std::string datagram = agent.Receive().value_or("");
    EXPECT_EQ(datagram.substr(datagram.size() - 2), "4\n");
    EXPECT_EQ(datagram.find('\0'), std::string::npos);
}

TEST(AgentLog, LongMessagesAreCutTo511Bytes)
{
    LogAgent agent;
    for (const size_t length : {510U, 511U, 512U, 600U, 100000U}) {
        const std::string text(length, 'x');
        logViaAgent(4, "%s", text.c_str());
        EXPECT_EQ(agent.Receive(),
                  AgentHead() + std::string(std::min<size_t>(length, 511), 'x') + "\nPRIORITY=4\n");
    }
}

TEST(AgentLog, TheLargestDatagramFits)
{
    LogAgent agent;
    logViaAgent(INT32_MIN, "%600s", "");
    EXPECT_EQ(agent.Receive(), AgentHead() + std::string(511, ' ') + "\nPRIORITY=-2147483648\n");
}

TEST(AgentLog, WithoutAnAgentTheLineIsSilentlyDropped)
{
    StdoutCapture capture;
    const size_t before = OpenDescriptors();
    logViaAgent(4, "%s", "nobody listens");
    {
        const LogAgent gone;
    }
    logViaAgent(4, "%s", "nobody listens");
    EXPECT_EQ(OpenDescriptors(), before);
    EXPECT_EQ(capture.Stop(), "");
}

TEST(AgentLog, ReachesAnAgentThatStartsLaterOrRestarts)
{
    logViaAgent(4, "%s", "lost");
    for (const char* text : {"first agent", "second agent"}) {
        LogAgent agent;
        logViaAgent(4, "%s", text);
        EXPECT_EQ(agent.Receive(), AgentHead() + text + "\nPRIORITY=4\n");
    }
}

TEST(AgentLog, KeepsErrnoAndLeaksNoDescriptor)
{
    const size_t without = OpenDescriptors();
    errno = EBUSY;
    logViaAgent(4, "%s", "lost");
    EXPECT_EQ(errno, EBUSY);
    EXPECT_EQ(OpenDescriptors(), without);

    const LogAgent agent;
    const size_t with = OpenDescriptors();
    errno = EBUSY;
    logViaAgent(4, "%s", "sent");
    EXPECT_EQ(errno, EBUSY);
    EXPECT_EQ(OpenDescriptors(), with);
}

TEST(AgentLog, IsSentWithoutStandardInput)
{
    LogAgent agent;
    const size_t before = OpenDescriptors();
    ASSERT_EQ(close(STDIN_FILENO), 0);
    logViaAgent(4, "%s", "text");
    EXPECT_EQ(agent.Receive(), AgentHead() + "text\nPRIORITY=4\n");
    EXPECT_EQ(OpenDescriptors(), before - 1);
}

TEST(AgentLog, ASlowAgentLosesLinesAndDoesNotBlockCallers)
{
    LogAgent agent;
    constexpr size_t sent = 5000; // more than any queue of the kernel holds
    for (size_t line = 0; line < sent; ++line) {
        logViaAgent(4, "line %zu", line);
    }
    const std::vector<std::string> received = agent.TakeAll();
    EXPECT_GE(received.size(), 1U);
    EXPECT_LT(received.size(), sent);
    for (size_t line = 0; line < received.size(); ++line) {
        EXPECT_EQ(received[line], AgentHead() + "line " + std::to_string(line) + "\nPRIORITY=4\n");
    }
}

TEST(AgentLog, EveryLineReachesARunningAgent)
{
    constexpr size_t lines = 2000;
    LogAgent agent;
    std::vector<std::string> received;
    std::thread reader([&] {
        while (received.size() < lines) {
            const std::optional<std::string> datagram = agent.Receive();
            if (!datagram) {
                return;
            }
            received.push_back(*datagram);
        }
    });
    for (size_t line = 0; line < lines; ++line) {
        logViaAgent(4, "line %zu", line);
    }
    reader.join();
    ASSERT_EQ(received.size(), lines);
    for (size_t line = 0; line < lines; ++line) {
        EXPECT_EQ(received[line], AgentHead() + "line " + std::to_string(line) + "\nPRIORITY=4\n");
    }
}

TEST(AgentLog, WaitsForAHungAgentOncePerPause)
{
    const LogAgent agent; // reads nothing
    const std::optional<Wait> first = NextWait();
    const std::optional<Wait> second = NextWait();
    ASSERT_TRUE(first && second);
    EXPECT_GE(second->start - first->end, std::chrono::milliseconds(4900));
}

TEST(AgentLog, AHungAgentDoesNotDelayTheWindowFor100Milliseconds)
{
    const LogAgent agent; // reads nothing
    bool isBrief = false;
    for (int attempt = 0; attempt < 20 && !isBrief; ++attempt) { // a busy machine makes some of them longer
        isBrief = WaitFor(StartChild([] {
            const std::optional<Wait> wait = NextWait();
            return wait && wait->end - wait->start < std::chrono::milliseconds(100);
        }));
    }
    EXPECT_TRUE(isBrief);
}

TEST(AgentLog, AnEarlierEagainStartsNoPause)
{
    const LogAgent agent; // reads nothing
    errno = EAGAIN;
    logViaAgent(4, "%s", "queued");
    const Clock::time_point start = Clock::now();
    for (size_t line = 0; line < 100; ++line) { // one of them waits until its timeout
        logViaAgent(4, "%s", "lost or queued");
    }
    EXPECT_GE(Clock::now() - start, SHORTEST_WAIT);
}

TEST(AgentLog, AnAgentThatReadsAgainGetsTheNextLine)
{
    LogAgent agent;
    for (size_t line = 0; line < 100; ++line) { // one of them waits until its timeout
        logViaAgent(4, "%s", "lost or queued");
    }
    agent.TakeAll();
    logViaAgent(4, "%s", "next");
    EXPECT_EQ(agent.Receive(), AgentHead() + "next\nPRIORITY=4\n");
}

TEST(AgentLog, LinesOfManyThreadsArriveIntact)
{
    LogAgent agent;
    std::thread threads[4];
    for (std::thread& thread : threads) {
        thread = std::thread([] { logViaAgent(7, "%s", std::string(400, 'y').c_str()); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(agent.TakeAll(),
              std::vector<std::string>(4, AgentHead() + std::string(400, 'y') + "\nPRIORITY=7\n"));
}

TEST(ConsoleLog, WarningHasTheExactForm)
{
    LogAgent syslog("/dev/log");
    SetThreadName("main");
    const _StackDepth depth;
    StdoutCapture capture;
    LogWarning("cannot open %s: %d", "a file", 5);
    EXPECT_EQ(capture.Stop(), "\x1b[35m[main]\x1b[0m  \x1b[33mcannot open a file: 5\x1b[0m\n");
    ExpectSyslog(syslog.Receive().value_or(""), "<12>", "cannot open a file: 5");
    EXPECT_TRUE(syslog.TakeAll().empty());
}

TEST(ConsoleLog, DebugHasTheExactForm)
{
    LogAgent syslog("/dev/log");
    SetThreadName("main");
    StdoutCapture capture;
    LogDebug("opened %s: %d", "a file", 5);
    EXPECT_EQ(capture.Stop(), "\x1b[35m[main]\x1b[0mopened a file: 5\n");
    ExpectSyslog(syslog.Receive().value_or(""), "<15>", "opened a file: 5");
    EXPECT_TRUE(syslog.TakeAll().empty());
}

TEST(ConsoleLog, LongTextsAreNotCut)
{
    SetThreadName("main");
    const std::string text(5000, 'x');
    StdoutCapture capture;
    LogWarning("%s", text.c_str());
    LogDebug("%s", text.c_str());
    EXPECT_EQ(capture.Stop(),
              "\x1b[35m[main]\x1b[0m\x1b[33m" + text + "\x1b[0m\n" + "\x1b[35m[main]\x1b[0m" + text + "\n");
}

TEST(ConsoleLog, KeepsErrno)
{
    StdoutCapture capture;
    errno = EBUSY;
    LogWarning("%s", "text");
    EXPECT_EQ(errno, EBUSY);
    LogDebug("%s", "text");
    EXPECT_EQ(errno, EBUSY);
}

TEST(StackDepth, IndentsByTwoBlanksPerStep)
{
    EXPECT_EQ(std::string(g_stackDepthSpace), std::string(30, ' '));
    EXPECT_STREQ(_StackDepth::getSpace(), "");
    {
        const _StackDepth one;
        EXPECT_EQ(g_stackDepthTLS, 1);
        {
            const _StackDepth two;
            const _StackDepth three;
            EXPECT_STREQ(_StackDepth::getSpace(), "      ");
        }
        EXPECT_STREQ(_StackDepth::getSpace(), "  ");
    }
    EXPECT_EQ(g_stackDepthTLS, 0);
}

TEST(StackDepth, ClampsTheDepth)
{
    for (int depth = -3; depth <= 20; ++depth) {
        g_stackDepthTLS = depth;
        const auto blanks = static_cast<size_t>(2 * std::clamp(depth, 0, 15));
        EXPECT_EQ(std::string(_StackDepth::getSpace()), std::string(blanks, ' ')) << depth;
        EXPECT_EQ(_StackDepth::getSpace(), g_stackDepthSpace + 30 - blanks) << depth;
    }
    g_stackDepthTLS = 0;
}

TEST(StackDepth, EachThreadHasItsOwn)
{
    const _StackDepth one;
    int depth = -1;
    std::thread([&] { depth = g_stackDepthTLS; }).join();
    EXPECT_EQ(depth, 0);
    EXPECT_EQ(g_stackDepthTLS, 1);
}

TEST(ThreadName, IsTheIdInUpperCaseHexadecimalUntilNamed)
{
    size_t withLetters = 0;
    for (int threads = 0; threads < 32; ++threads) { // ids are consecutive: some contain letters
        std::string shown;
        std::string again;
        std::string expected;
        std::thread([&] {
            shown = GetThreadName();
            again = GetThreadName();
            expected = OwnId();
        }).join();
        EXPECT_EQ(shown, expected);
        EXPECT_EQ(again, shown);
        EXPECT_TRUE(std::regex_match(shown, std::regex("[1-9A-F][0-9A-F]*"))) << shown;
        withLetters += shown.find_first_of("ABCDEF") != std::string::npos ? 1 : 0;
    }
    EXPECT_GT(withLetters, 0U);
}

TEST(ThreadName, AcceptsNamesOfUpTo63Bytes)
{
    struct Row
    {
        const char* what;
        std::string name;
        bool taken;
    };
    const Row rows[] = {{"short", "poll", true},
                        {"63 bytes", std::string(63, 'n'), true},
                        {"64 bytes", std::string(64, 'n'), false},
                        {"1000 bytes", std::string(1000, 'n'), false},
                        {"empty", "", false}};
    for (const Row& row : rows) {
        SetThreadName("before");
        SetThreadName(row.name.c_str());
        EXPECT_EQ(GetThreadName(), row.taken ? row.name : OwnId()) << row.what;
    }
    SetThreadName("before");
    SetThreadName(nullptr);
    EXPECT_EQ(GetThreadName(), OwnId());
}

TEST(ThreadName, EachThreadHasItsOwn)
{
    SetThreadName("main");
    std::string other;
    std::thread([&] {
        SetThreadName("other");
        other = GetThreadName();
    }).join();
    EXPECT_EQ(other, "other");
    EXPECT_STREQ(GetThreadName(), "main");
}
