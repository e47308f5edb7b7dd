// The console program on a terminal: widths, colours, and the picture of --watch.
#include "StatusRoom.h"
#include "StatusRun.h"

#include "Installation.h"
#include "TcpPeer.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <clocale>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <wchar.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

const StatusRun::Variables xterm = {{"LC_ALL", "C.UTF-8"}, {"TERM", "xterm"}};
const StatusRun::Variables colourless = {{"LC_ALL", "C.UTF-8"}, {"TERM", "xterm"}, {"NO_COLOR", "1"}};

constexpr char enters[] = "\x1b[?1049h\x1b[?25l";
constexpr char leaves[] = "\x1b[?25h\x1b[?1049l";

/// The terminal cells of a line of UTF-8.
int cells(const std::string& line)
{
    std::wstring wide(line.size() + 1, L'\0');
    const size_t count = std::mbstowcs(wide.data(), line.c_str(), wide.size());
    return count == static_cast<size_t>(-1) ? -1 : ::wcswidth(wide.data(), count);
}

int widestLine(const std::string& text)
{
    EXPECT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    std::istringstream lines(text);
    int widest = 0;
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.back() == '\r') { // the terminal adds it
            line.pop_back();
        }
        const int width = cells(line);
        EXPECT_GE(width, 0) << line;
        widest = std::max(widest, width);
    }
    return widest;
}

TEST(StatusTerminal, LinesFitIntoTheTerminal)
{
    const StatusRoom room(
        std::string(twoStudios) +
        "[publisher Wide]\nname = A publisher with quite a long name\nmodel = RT-300III BDXL\n");
    for (const unsigned short columns : std::initializer_list<unsigned short>{200, 80, 60, 40}) {
        const StatusEnd list = StatusRun({}, columns, colourless).end();
        EXPECT_LE(widestLine(list.out), columns) << list.out;
        EXPECT_THAT(list.out,
                    HasSubstr(columns == 200 ? "A publisher with quite a long name" : "\xe2\x80\xa6"));
        const StatusEnd details = StatusRun({"Studio A"}, columns, colourless).end();
        EXPECT_LE(widestLine(details.out), columns) << details.out;
    }
}

TEST(StatusTerminal, TheStatusIsColoured)
{
    const StatusRoom room(twoStudios);
    const StatusEnd end = StatusRun({}, 100, xterm).end();
    EXPECT_THAT(end.out, HasSubstr("\x1b[32mReady"));
    EXPECT_THAT(end.out, HasSubstr("\x1b[33mNot connected"));
    EXPECT_THAT(StatusRun({"Studio A"}, 100, xterm).end().out, HasSubstr("\x1b[32mReady\x1b[0m"));
    EXPECT_THAT(StatusRun({}, 100, colourless).end().out, Not(HasSubstr("\x1b")));
    for (const char* terminal : {"dumb", ""}) {
        EXPECT_THAT(StatusRun({}, 100, {{"TERM", terminal}}).end().out, Not(HasSubstr("\x1b"))) << terminal;
    }
}

TEST(StatusTerminal, AWatchRedrawsInPlaceAndRestoresTheTerminal)
{
    const StatusRoom room(twoStudios);
    StatusRun run({"--watch", "0.1"}, 100, colourless);
    ASSERT_TRUE(run.waitFor("Studio B  RT-30II     -          Not connected"));
    EXPECT_THAT(run.output(), StartsWith(std::string(enters) + "\x1b[H"));
    ASSERT_TRUE(room->tell("Studio B", "online"));
    ASSERT_TRUE(run.waitFor("Studio B  RT-30II     -          Ready"));
    ASSERT_TRUE(run.waitFor("\x1b[J"));
    run.signal(SIGINT);
    const StatusEnd end = run.end();
    EXPECT_EQ(end.code, 0);
    EXPECT_TRUE(end.out.ends_with(leaves));
    EXPECT_EQ(end.err, "");
}

TEST(StatusTerminal, ALineThatFillsTheTerminalKeepsItsLastCharacter)
{
    const StatusRoom room(std::string(twoStudios) +
                          "[publisher Wide]\nname = A publisher with quite a long name\nmodel = RT-30II\n");
    StatusRun run({"--watch", "60"}, 40, colourless);
    ASSERT_TRUE(run.waitFor("Avail\xe2\x80\xa6")); // the end of the first line
    ASSERT_TRUE(run.waitFor("\x1b[J"));
    run.signal(SIGINT);
    const std::string out = run.end().out;
    // After the last cell of a line the cursor stays on it: clearing the rest of the line would clear that
    // cell, too.
    size_t cleared = 0;
    for (size_t at = 0; (at = out.find("\x1b[K", at)) != std::string::npos; ++at) {
        const std::string before = out.substr(0, at);
        EXPECT_TRUE(before.ends_with("\n") || before.ends_with("\x1b[H")) << before;
        ++cleared;
    }
    EXPECT_GT(cleared, 0U);
}

TEST(StatusTerminal, APictureTallerThanTheTerminalIsCut)
{
    Installation installation;
    for (int i = 1; i <= 26; ++i) { // the terminal has 24 lines
        installation.addLocal("P" + std::to_string(i), "Studio " + std::to_string(i), 0x20000009, false);
    }
    StatusRun run({"--watch", "0.1"}, 100, colourless);
    for (int picture = 0; picture < 28; ++picture) { // the last ones show all results
        ASSERT_TRUE(run.waitFor("\x1b[J"));
    }
    run.signal(SIGINT);
    const std::string out = run.end().out;
    std::ptrdiff_t tallest = 0;
    size_t start = out.find("\x1b[H");
    for (size_t end = 0; (end = out.find("\x1b[J", start)) != std::string::npos; start = end + 1) {
        const std::string picture = out.substr(start, end - start);
        tallest = std::max(tallest, std::count(picture.begin(), picture.end(), '\n'));
    }
    EXPECT_EQ(tallest, 23); // the cursor is on the last line
}

TEST(StatusTerminal, OtherSignalsRestoreTheTerminalToo)
{
    const StatusRoom room(twoStudios);
    for (const int number : {SIGTERM, SIGHUP, SIGQUIT}) {
        StatusRun run({"--watch"}, 100, colourless);
        ASSERT_TRUE(run.waitFor("\x1b[J"));
        run.signal(number);
        const StatusEnd end = run.end();
        EXPECT_EQ(end.code, 128 + number);
        EXPECT_TRUE(end.out.ends_with(leaves));
    }
}

/// `nohup` starts programs with an ignored SIGHUP.
TEST(StatusTerminal, AnIgnoredSignalDoesNotEndAWatch)
{
    const StatusRoom room(twoStudios);
    ProgramProcess process("/bin/sh", {"-c", "trap '' HUP; exec " STATUS_PROGRAM " --watch 0.1"});
    process.readUntil("Studio B");
    process.signal(SIGHUP);
    process.signal(SIGTERM);
    EXPECT_EQ(process.wait(), 128 + SIGTERM);
}

TEST(StatusTerminal, AWatchEndsWhileNobodyReads)
{
    constexpr int room = 4096; // bytes in the pipe, less than a picture has
    Installation installation;
    for (char id = 'A'; id < 'Z'; ++id) {
        installation.addLocal(std::string(1, id), std::string(250, id));
    }
    int ends[2] = {-1, -1};
    ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
    ASSERT_EQ(::fcntl(ends[1], F_SETPIPE_SZ, room), room);
    ProgramProcess process(STATUS_PROGRAM, {"--watch", "60"}, ends[1], ends[0]);
    pollfd begun{ends[0], POLLIN, 0};
    ASSERT_EQ(::poll(&begun, 1, ProgramProcess::PATIENCE), 1);
    process.signal(SIGWINCH); // waits until the output is read
    process.signal(SIGTERM);
    EXPECT_EQ(process.wait(), 128 + SIGTERM);
}

TEST(StatusTerminal, AWatchEndsOnATerminalThatIsNotRead)
{
    Installation installation;
    for (char id = 'A'; id < 'Z'; ++id) {
        installation.addLocal(std::string(1, id), std::string(250, id));
    }
    for (const char* terminal : {"xterm", "dumb"}) {
        StatusRun run({"--watch", "0.1"}, 1000, {{"LC_ALL", "C.UTF-8"}, {"TERM", terminal}});
        run.waitUntilFull();
        run.signal(SIGTERM);
        EXPECT_EQ(run.codeWithoutReading(), 128 + SIGTERM) << terminal;
    }
}

TEST(StatusTerminal, AWatchEndsOnAStoppedTerminal)
{
    const Installation installation; // without publishers there is only one picture
    for (const int number : {SIGTERM, SIGINT}) {
        StatusRun run({"--watch", "60"}, 100, colourless);
        ASSERT_TRUE(run.waitFor("\x1b[J"));
        run.stopOutput();
        run.signal(number);
        EXPECT_EQ(run.codeWithoutReading(), number == SIGINT ? 0 : 128 + number);
    }
}

TEST(StatusTerminal, AWatchRestoresATerminalThatIsReadAgain)
{
    const StatusRoom room(twoStudios);
    StatusRun run({"--watch", "0.1"}, 100, colourless);
    ASSERT_TRUE(run.waitFor("\x1b[J"));
    run.stopOutput();
    run.signal(SIGTERM);
    run.signal(SIGTERM);
    run.startOutput();
    const StatusEnd end = run.end();
    EXPECT_EQ(end.code, 128 + SIGTERM);
    EXPECT_TRUE(end.out.ends_with(leaves));
}

TEST(StatusTerminal, ASuspendedWatchOfAStoppedTerminalRestoresItToo)
{
    const StatusRoom room(twoStudios);
    StatusRun run({"--watch", "0.1"}, 100, colourless);
    ASSERT_TRUE(run.waitFor("\x1b[J"));
    run.stopOutput();
    run.signal(SIGTSTP);
    run.startOutput();
    ASSERT_TRUE(run.waitFor(leaves));
    int status = 0;
    ASSERT_EQ(::waitpid(run.process(), &status, WUNTRACED), run.process());
    EXPECT_TRUE(WIFSTOPPED(status));
    run.signal(SIGCONT);
    ASSERT_TRUE(run.waitFor(std::string(enters) + "\x1b[H"));
    run.signal(SIGINT);
    EXPECT_EQ(run.end().code, 0);
}

TEST(StatusTerminal, AWatchEndsWhileAPublisherHangs)
{
    Installation installation;
    const TcpListener silent("127.0.0.31", 80);
    Installation::addNetwork("X", "Silent", "127.0.0.31");
    StatusRun run({"--watch", "--timeout", "60"}, 100, colourless);
    ASSERT_TRUE(run.waitFor(enters));
    run.signal(SIGINT);
    const StatusEnd end = run.end();
    EXPECT_EQ(end.code, 0);
    EXPECT_LT(end.time, std::chrono::seconds(30));
    EXPECT_TRUE(end.out.ends_with(leaves));
}

TEST(StatusTerminal, ANewSizeIsDrawnAtOnce)
{
    const StatusRoom room(twoStudios);
    StatusRun run({"--watch", "60"}, 100, colourless);
    ASSERT_TRUE(run.waitFor("\x1b[J"));
    run.resize(40);
    ASSERT_TRUE(run.waitFor("\xe2\x80\xa6"));
    run.signal(SIGINT);
    EXPECT_EQ(run.end().code, 0);
}

TEST(StatusTerminal, ASuspendedWatchRestoresTheTerminal)
{
    const StatusRoom room(twoStudios);
    StatusRun run({"--watch", "60"}, 100, colourless);
    ASSERT_TRUE(run.waitFor("\x1b[J"));
    run.signal(SIGTSTP);
    ASSERT_TRUE(run.waitFor(leaves));
    int status = 0;
    ASSERT_EQ(::waitpid(run.process(), &status, WUNTRACED), run.process());
    EXPECT_TRUE(WIFSTOPPED(status));
    run.signal(SIGCONT);
    ASSERT_TRUE(run.waitFor(enters));
    ASSERT_TRUE(run.waitFor("\x1b[J"));
    run.signal(SIGINT);
    EXPECT_EQ(run.end().code, 0);
}

/// As with `ssh -t HOST`: nobody could continue it.
TEST(StatusTerminal, AWatchWithoutAShellIsNotSuspended)
{
    const Installation installation;
    ProgramProcess process("/usr/bin/setsid", {STATUS_PROGRAM, "--watch", "0.1"});
    const std::string picture = "No publishers are registered.\n";
    process.readUntil(picture);
    process.signal(SIGTSTP);
    std::string pictures = picture;
    for (int more = 0; more < 8; ++more) { // not all of them are printed before the signal
        pictures += "\n" + picture;
    }
    ASSERT_THAT(process.readUntil(pictures), HasSubstr(pictures));
    process.signal(SIGTERM);
    EXPECT_EQ(process.wait(), 128 + SIGTERM);
}

std::string childrenOf(pid_t process)
{
    const std::string id = std::to_string(process);
    std::ifstream file("/proc/" + id + "/task/" + id + "/children");
    std::string children;
    std::getline(file, children);
    return children;
}

/// Bit 0 is signal 1.
unsigned long ignoredSignals(const std::string& process)
{
    std::ifstream file("/proc/" + std::to_string(std::stoi(process)) + "/status");
    std::string word;
    while (file >> word && word != "SigIgn:") {
    }
    file >> word;
    return std::stoul(word, nullptr, 16);
}

TEST(StatusTerminal, APictureWaitsForNoPublisherThatHangs)
{
    const StatusRoom room("[publisher Studio A]\nmodel = RT-300III BD\n");
    TcpListener silent("127.0.0.31", 80);
    Installation::addNetwork("X", "Silent", "127.0.0.31");
    StatusRun run({"--watch", "--timeout", "86400"}, 100, colourless);
    ASSERT_TRUE(run.waitFor("Studio A  RT-300III   -          Ready"));
    const std::string query = childrenOf(run.process());
    EXPECT_NE(query, "");
    run.resize(40);
    ASSERT_TRUE(run.waitFor("\xe2\x80\xa6"));
    run.signal(SIGTSTP);
    ASSERT_TRUE(run.waitFor(leaves));
    int status = 0;
    ASSERT_EQ(::waitpid(run.process(), &status, WUNTRACED), run.process());
    run.signal(SIGCONT);
    ASSERT_TRUE(run.waitFor("Studio A"));
    EXPECT_EQ(childrenOf(run.process()), query);
    // Ctrl-C is sent to all processes of the terminal, and must not look like a failed query.
    const TcpPeer connection = silent.Accept(); // the query has begun
    ASSERT_TRUE(connection.IsOpen());
    EXPECT_NE(ignoredSignals(query) & (1U << (SIGINT - 1)), 0U);
    run.signal(SIGINT);
    const StatusEnd end = run.end();
    EXPECT_EQ(end.code, 0);
    EXPECT_EQ(end.err, ""); // the silent one still has time
}

TEST(StatusTerminal, AWatchEndsWithTheReasonsOfFailures)
{
    const StatusRoom room(twoStudios);
    const TcpListener silent("127.0.0.31", 80);
    Installation::addNetwork("X", "Silent", "127.0.0.31");
    std::filesystem::create_symlink("/tmp/gone", Installation::settingFile("broken"));
    StatusRun run({"--watch", "60", "--timeout", "0.5"}, 100, colourless);
    ASSERT_TRUE(run.waitFor("No answer"));
    run.signal(SIGINT);
    EXPECT_THAT(run.end().err, AllOf(HasSubstr("cannot read the settings of broken\n"),
                                     HasSubstr("Silent: no answer within the time limit\n")));
}

TEST(StatusTerminal, SettingsThatVanishEndAWatch)
{
    const StatusRoom room(twoStudios);
    StatusRun run({"--watch", "0.1"}, 100, colourless);
    ASSERT_TRUE(run.waitFor("\x1b[J"));
    std::filesystem::remove_all(PUBLISHER_SETTING_DIR);
    const StatusEnd end = run.end();
    EXPECT_EQ(end.code, 1);
    EXPECT_TRUE(end.out.ends_with(leaves));
    EXPECT_THAT(end.err, HasSubstr("cannot read the folder"));
}

TEST(StatusTerminal, AWatchIntoAPipePrintsPlainPictures)
{
    const StatusRoom room(twoStudios);
    StatusRun run({"--watch", "0.1"});
    ASSERT_TRUE(run.waitFor("\n\nName "));
    EXPECT_THAT(run.output(), Not(HasSubstr("\x1b")));
    run.closeOutput();
    const StatusEnd end = run.end();
    EXPECT_EQ(end.code, 1);
    EXPECT_EQ(end.err, "");
}

} // namespace
