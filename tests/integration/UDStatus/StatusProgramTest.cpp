// The console program with well-behaved publishers, and mistakes on its command line.
#include "StatusRoom.h"
#include "StatusRun.h"

#include "InstallPaths.h"
#include "Installation.h"
#include "PublisherFiles.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <thread>

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr char headings[] =
    "Name      Model name  Host Name  Status         Waiting  Transmitting  Available Space\n";

TEST(StatusProgram, PrintsTheListInItsOrder)
{
    const StatusRoom room(std::string(twoStudios) +
                          "[publisher Studio 10]\nmodel = RT-300III BD\n"
                          "[publisher Studio 9]\nmodel = RT-300III BD\nerror = 19\n");
    room->advance(1000); // the first job starts
    const StatusEnd end = runStatus({});
    EXPECT_EQ(end.code, 0);
    EXPECT_EQ(end.err, "");
    EXPECT_EQ(end.out,
              "Name       Model name  Host Name  Status         Waiting  Transmitting  Available Space\n"
              "Studio 9   RT-300III   -          Error                -             -                -\n"
              "Studio 10  RT-300III   -          Ready                0             -                -\n"
              "Studio A   RT-300III   -          Ready                2             -                -\n"
              "Studio B   RT-30II     -          Not connected        -             -                -\n");
}

TEST(StatusProgram, PrintsTheColumnsOfANetworkPublisher)
{
    const StatusRoom room("[network Library]\nmodel = RT-300NII\nknown-kind = 2\ndisc-space = 1536\n");
    const StatusEnd end = runStatus({});
    EXPECT_EQ(end.code, 0);
    EXPECT_EQ(end.out, "Name     Model name  Host Name   Status  Waiting  Transmitting  Available Space\n"
                       "Library  RT-300NII   127.0.0.11  Ready         0             0           1.5 GB\n");
}

TEST(StatusProgram, PrintsDetailsOfExactlyTheNamedPublishers)
{
    const StatusRoom room(twoStudios);
    room->advance(1000);
    const StatusEnd end = runStatus({"Studio A"});
    EXPECT_EQ(end.code, 0);
    EXPECT_THAT(end.out, StartsWith("Studio A\n  Status                      Ready\n"));
    for (const char* line :
         {"  Publish Mode                Standard mode\n", "    Cyan                      100 %\n",
          "  Serial number               SIM0000001\n", "  Disc 1  running    0/1       0"}) {
        EXPECT_THAT(end.out, HasSubstr(line));
    }
    EXPECT_THAT(end.out, Not(HasSubstr("Studio B")));
    EXPECT_THAT(runStatus({"Studio A", "Studio B"}).out, HasSubstr("\n\nStudio B\n"));
}

TEST(StatusProgram, PublishersOfOneNameAreAllShown)
{
    const StatusRoom room(twoStudios);
    WritePublisher("C",
                   "[Common]\nGUID={C}\nPublisherName=Studio A\nPublishMode=0\nPublisherConnectionType=0\n");
    const StatusEnd end = runStatus({"Studio A"});
    EXPECT_THAT(end.out, HasSubstr("Not connected"));
    EXPECT_THAT(end.out, HasSubstr("Ready"));

    const std::string line = runStatus({"--monitor"}).out;
    std::set<std::string> labels;
    size_t count = 0;
    const std::regex label("'([^']+)'=");
    for (std::sregex_iterator i(line.begin(), line.end(), label); i != std::sregex_iterator(); ++i) {
        labels.insert((*i)[1]);
        ++count;
    }
    EXPECT_GT(count, 2U) << line;
    EXPECT_EQ(labels.size(), count) << line;
    EXPECT_THAT(line, HasSubstr("Studio A (C): not connected"));
}

TEST(StatusProgram, ARepeatedNameIsShownOnceAndInTheOrderOfTheList)
{
    const StatusRoom room(twoStudios);
    EXPECT_EQ(runStatus({"--metrics", "Studio B", "Studio A", "Studio B"}).out, runStatus({"--metrics"}).out);
    EXPECT_EQ(runStatus({"Studio B", "Studio A", "Studio B"}).out, runStatus({"Studio A", "Studio B"}).out);
    EXPECT_EQ(runStatus({"Studio A", "nothing", "Studio A"}).code, 2);
}

TEST(StatusProgram, AnUnknownNameIsAMistake)
{
    const StatusRoom room(twoStudios);
    const StatusEnd end = runStatus({"studio a"});
    EXPECT_EQ(end.code, 2);
    EXPECT_EQ(end.out, "");
    EXPECT_EQ(end.err, "ulmar-disc-status: no publisher is named \"studio a\"; did you mean \"Studio A\" or "
                       "\"Studio B\"?\n");
    EXPECT_EQ(runStatus({"Studio A", "nothing"}).err,
              "ulmar-disc-status: no publisher is named \"nothing\"\n");
    EXPECT_EQ(runStatus({"\xff\x1b[2J"}).err,
              "ulmar-disc-status: no publisher is named \"\xef\xbf\xbd\\x1b[2J\"\n");
    EXPECT_EQ(runStatus({std::string(100'000, 'a')}).code, 2);
}

TEST(StatusProgram, AnUnknownNameMayBeInAnUnreadableSettingFile)
{
    const StatusRoom room(twoStudios);
    std::filesystem::create_symlink("/tmp/gone", PublisherFile("broken"));
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"nothing"}, {"--names", "nothing"}, {"--watch", "--", "nothing"}}) {
        const StatusEnd end = runStatus(arguments);
        EXPECT_EQ(end.code, 2);
        EXPECT_EQ(end.err, "ulmar-disc-status: cannot read the settings of broken\n"
                           "ulmar-disc-status: no publisher is named \"nothing\"\n");
    }
}

TEST(StatusProgram, AnUnknownOptionIsAMistake)
{
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--bogus"},
                                                      {"-x"},
                                                      {"--timeout=0"},
                                                      {"--json", "--metrics"},
                                                      {"--watch=x"}}) {
        const StatusEnd end = runStatus(arguments);
        EXPECT_EQ(end.code, 2);
        EXPECT_EQ(end.out, "");
        EXPECT_THAT(end.err, HasSubstr("; ulmar-disc-status --help lists the options\n"));
    }
    const StatusEnd monitor = runStatus({"--monitor", "--bogus"});
    EXPECT_EQ(monitor.code, 3);
    EXPECT_EQ(monitor.out, "UNKNOWN - unknown option --bogus\n");
}

TEST(StatusProgram, HelpAndVersionNeedNothing)
{
    const StatusEnd help = runStatus({"--help"}, {});
    EXPECT_EQ(help.code, 0);
    EXPECT_THAT(help.out, StartsWith("Usage: ulmar-disc-status "));
    EXPECT_EQ(runStatus({"--version"}, {}).out, "ulmar-disc-status 1.0.0\n");
}

TEST(StatusProgram, LinksNoWidgets)
{
    const Ended libraries = runProgram("/usr/bin/ldd", {STATUS_PROGRAM});
    EXPECT_EQ(libraries.status, 0);
    EXPECT_THAT(libraries.output, testing::ContainsRegex("libQt[56]Core"));
    for (const char* library : {"Gui.so", "Widgets.so", "libX11", "libxcb"}) {
        EXPECT_THAT(libraries.output, Not(HasSubstr(library)));
    }
}

TEST(StatusProgram, NamesAreListedWithoutQueries)
{
    const StatusRoom room(twoStudios);
    EXPECT_EQ(runStatus({"--names"}).out, "Studio A\nStudio B\n");
    EXPECT_TRUE(room->requests().empty());
}

TEST(StatusProgram, AnUnreadableSettingFileIsReportedWithTheNames)
{
    const StatusRoom room(twoStudios);
    std::filesystem::create_symlink("/tmp/gone", PublisherFile("broken"));
    const StatusEnd end = runStatus({"--names"});
    EXPECT_EQ(end.code, 1);
    EXPECT_EQ(end.out, "Studio A\nStudio B\n");
    EXPECT_EQ(end.err, "ulmar-disc-status: cannot read the settings of broken\n");
}

TEST(StatusProgram, ACopyOfASettingFileIsNoPublisher)
{
    const StatusRoom room(twoStudios);
    const std::string list = runStatus({}).out;
    const std::string metrics = runStatus({"--metrics"}).out;
    for (const std::filesystem::directory_entry& file :
         std::filesystem::directory_iterator(PUBLISHER_SETTING_DIR)) {
        std::filesystem::copy_file(file.path(), file.path().string() + "~");
        break;
    }
    EXPECT_EQ(runStatus({}).out, list);
    EXPECT_EQ(runStatus({"--metrics"}).out, metrics);
}

TEST(StatusProgram, FilesOfAnEditorAreNoPublishers)
{
    const StatusRoom room(twoStudios);
    for (const char* name : {".A.ini.swp", "#A.ini#", "Removed.ini~"}) {
        std::ofstream(std::string(PUBLISHER_SETTING_DIR) + "/" + name) << "x";
    }
    const StatusEnd end = runStatus({"--names"});
    EXPECT_EQ(end.code, 0);
    EXPECT_EQ(end.out, "Studio A\nStudio B\n");
    EXPECT_EQ(end.err, "");
}

/// The natural order has no place for the superscript: it is below "1", which is below "A", which is below
/// it.
TEST(StatusProgram, NamesWithoutAnOrderAreAllListed)
{
    constexpr int publishers = 60;
    const std::array<const char*, 3> names = {"\xc2\xb2", "1", "A"};
    for (int i = 0; i < publishers; ++i) {
        WritePublisher(std::to_string(i), "[Common]\nPublisherConnectionType=0\nPublisherName=" +
                                              std::string(names[i % 3]) + "\n");
    }
    const std::string listed = runStatus({"--names"}).out;
    EXPECT_EQ(std::count(listed.begin(), listed.end(), '\n'), publishers);
}

TEST(StatusProgram, NoPublishersAreNoError)
{
    MakePublisherFolder();
    EXPECT_EQ(runStatus({}).out, "No publishers are registered.\n");
    EXPECT_EQ(runStatus({}).code, 0);
    const StatusEnd monitor = runStatus({"--monitor"});
    EXPECT_EQ(monitor.code, 3);
    EXPECT_EQ(monitor.out, "UNKNOWN - no publishers are registered\n");
    EXPECT_EQ(runStatus({"--metrics"}).out, "# EOF\n");
}

TEST(StatusProgram, AMissingSettingFolderIsReported)
{
    const StatusEnd end = runStatus({});
    EXPECT_EQ(end.code, 1);
    const std::string reason =
        "cannot read the folder " + std::string(PUBLISHER_SETTING_DIR) + ": No such file or directory\n";
    EXPECT_EQ(end.err, "ulmar-disc-status: " + reason);
    const StatusEnd monitor = runStatus({"--monitor"}, {{"LC_ALL", "en_US.utf8"}, {"LANGUAGE", "de"}});
    EXPECT_EQ(monitor.code, 3);
    EXPECT_EQ(monitor.out, "UNKNOWN - " + reason); // English, although the messages of the system are German
}

TEST(StatusProgram, WithoutAServiceLocalPublishersAreNotConnected)
{
    {
        const StatusRoom room(twoStudios); // leaves the registrations
    }
    const StatusEnd end = runStatus({});
    EXPECT_EQ(end.code, 1);
    EXPECT_EQ(end.out,
              std::string(headings) +
                  "Studio A  RT-300III   -          Not connected        -             -                -\n"
                  "Studio B  RT-30II     -          Not connected        -             -                -\n");
    EXPECT_EQ(end.err, "ulmar-disc-status: the control service does not answer\n");
    EXPECT_EQ(runStatus({"--monitor", "Studio A"}).out, "CRITICAL - Studio A: not connected\n");
}

TEST(StatusProgram, AServerThatCannotBeReachedIsNoAnswer)
{
    const StatusRoom room("[network Library]\nmodel = RT-300NII\nlistening = no\n");
    const StatusEnd end = runStatus({});
    EXPECT_EQ(end.code, 1);
    EXPECT_THAT(end.out, HasSubstr("Not connected"));
    EXPECT_EQ(end.err, "ulmar-disc-status: Library: the server cannot be reached or is in a secure mode\n");
}

#ifndef ULMAR_SANITIZED // a sanitizer needs descriptors for its own checks
TEST(StatusProgram, AQueryThatCannotBeStartedIsReported)
{
    const StatusRoom room("[network Library]\nmodel = RT-300NII\n[network Studio]\nmodel = RT-300NII\n");
    const auto run = [](int descriptors, const char* option) {
        return runProgram("/bin/sh", {"-c", "exec 3>&- 4>&- 5>&-; ulimit -n " + std::to_string(descriptors) +
                                                "; exec " STATUS_PROGRAM " " + option});
    };
    int descriptors = 4; // the standard streams, and one to read with; the libraries may keep some
    while (descriptors < 20 && run(descriptors, "--names").status != 0) {
        ++descriptors;
    }
    const Ended list = run(descriptors, "--timeout=60"); // a pipe needs two
    EXPECT_EQ(list.status, 1);
    for (const std::string name : {"Library", "Studio"}) {
        EXPECT_THAT(list.output, testing::ContainsRegex(name + " .* No answer "));
        EXPECT_THAT(list.output, HasSubstr("ulmar-disc-status: " + name +
                                           ": no process could be started for the query\n"));
    }
    const Ended monitor = run(descriptors, "--monitor");
    EXPECT_EQ(monitor.status, 3);
    EXPECT_EQ(monitor.output, "UNKNOWN - Library: no answer; Studio: no answer\n");
}
#endif

TEST(StatusProgram, AServerInASecureModeIsReported)
{
    const StatusRoom room("[network Library]\nmodel = RT-300NII\nserver-mode = 0\n");
    const StatusEnd end = runStatus({});
    EXPECT_EQ(end.code, 1);
    EXPECT_EQ(end.err, "ulmar-disc-status: Library: the server cannot be reached or is in a secure mode\n");
}

TEST(StatusProgram, ALocaleWithoutUtf8IsNotReported)
{
    const StatusRoom room(twoStudios);
    const StatusEnd end = runStatus({}, {{"LC_ALL", "C"}});
    EXPECT_EQ(end.code, 0);
    EXPECT_EQ(end.err, "");
}

TEST(StatusProgram, TheOutputIsUtf8InEveryLocale)
{
    const StatusRoom room("[publisher Studio A]\nmodel = RT-30\njob = \xc3\x9c\xe6\x97\xa5\n");
    for (const char* locale : {"C", "C.UTF-8", "none"}) {
        EXPECT_THAT(runStatus({"Studio A"}, {{"LC_ALL", locale}}).out, HasSubstr("\n  \xc3\x9c\xe6\x97\xa5 "))
            << locale;
    }
}

TEST(StatusProgram, AClosedPipeEndsItQuietly)
{
    const StatusRoom room(twoStudios);
    StatusRun run({"--json"});
    run.closeOutput();
    const StatusEnd end = run.end();
    EXPECT_EQ(end.code, 1);
    EXPECT_EQ(end.err, "");
    StatusRun monitor({"--monitor"});
    monitor.closeOutput();
    EXPECT_EQ(monitor.end().code, 3);
}

TEST(StatusProgram, AFullDiskIsReported)
{
    const StatusRoom room(twoStudios);
    const Ended end = runProgram("/bin/sh", {"-c", STATUS_PROGRAM " >/dev/full"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.output, "ulmar-disc-status: cannot write: No space left on device\n");
}

TEST(StatusProgram, ANonBlockingOutputLosesNothing)
{
    constexpr int capacity = 4096;
    Installation installation;
    for (char id = 'A'; id < 'Z'; ++id) {
        installation.addLocal(std::string(1, id), std::string(250, id));
    }
    int ends[2] = {-1, -1};
    ASSERT_EQ(::pipe2(ends, O_CLOEXEC | O_NONBLOCK), 0);
    ASSERT_EQ(::fcntl(ends[1], F_SETPIPE_SZ, capacity), capacity);
    ::fcntl(ends[0], F_SETFL, 0);
    ProgramProcess process(STATUS_PROGRAM, {"--names"}, ends[1], ends[0]);
    const auto limit = std::chrono::steady_clock::now() + std::chrono::milliseconds(ProgramProcess::PATIENCE);
    for (int waiting = 0; waiting < capacity; std::this_thread::yield()) { // nothing is read until it is full
        ASSERT_EQ(::ioctl(ends[0], FIONREAD, &waiting), 0);
        ASSERT_LT(std::chrono::steady_clock::now(), limit);
    }
    process.readUntil(std::string(250, 'Y'));
    EXPECT_EQ(process.wait(), 0);
}

TEST(StatusProgram, ClosedStandardStreamsAreReplaced)
{
    const StatusRoom room(twoStudios);
    // Without standard output the first file that is opened would get its number.
    for (const char* arguments : {" --json >&-", " <&- >&- 2>&-", " --json 2>&-", " <&-"}) {
        const Ended end = runProgram("/bin/sh", {"-c", std::string(STATUS_PROGRAM) + arguments});
        EXPECT_EQ(end.status, 0) << arguments << end.output;
        EXPECT_THAT(end.output, Not(HasSubstr("cannot write"))) << arguments;
    }
    const Ended version = runProgram("/bin/sh", {"-c", STATUS_PROGRAM " --version >&-"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output, "");
}

TEST(StatusProgram, NothingIsColouredInAPipe)
{
    const StatusRoom room(twoStudios);
    EXPECT_THAT(runStatus({}, {{"LC_ALL", "C.UTF-8"}, {"TERM", "xterm-256color"}}).out,
                Not(HasSubstr("\x1b")));
}

TEST(StatusProgram, AThresholdDecidesTheExitCode)
{
    const StatusRoom room("[publisher Studio A]\nmodel = RT-300III BD\nink.yellow = 12\nstacker1 = 7\n");
    EXPECT_EQ(runStatus({"--monitor"}).code, 0);
    EXPECT_EQ(runStatus({"--monitor", "--ink-warning", "20:"}).code, 1);
    EXPECT_EQ(runStatus({"--monitor", "--ink-critical", "20:"}).code, 2);
    EXPECT_EQ(runStatus({"--monitor", "--discs-critical", "5:", "--discs-warning", "10:"}).code, 1);
    EXPECT_THAT(runStatus({"--monitor", "--ink-warning", "20:"}).out,
                StartsWith("WARNING - Studio A: ink yellow 12% | 'Studio A ink cyan'=100%;20:;;0;100 "));
}

TEST(StatusProgram, OnlyAnErrorAndAReadyPublisherHaveACode)
{
    const StatusRoom room(std::string(twoStudios) + "[publisher Broken]\nmodel = RT-30II\nerror = 9\n");
    const std::string member = "\n            \"errorCode\": "; // of the publisher, not of a job
    EXPECT_THAT(runStatus({"--json", "Broken"}).out, HasSubstr(member + "9,"));
    EXPECT_THAT(runStatus({"--json", "Studio A"}).out, HasSubstr(member + "0,"));
    EXPECT_THAT(runStatus({"--json", "Studio B"}).out, HasSubstr(member + "null,")); // not connected
}

TEST(StatusProgram, NothingIsTranslatedForPrograms)
{
    const StatusRoom room(twoStudios);
    std::filesystem::create_directories(TRANSLATION_DIR);
    std::filesystem::copy_file(GERMAN_CATALOGUE, std::string(TRANSLATION_DIR) + "PubSetupQt_de_DE.qm");
    const StatusRun::Variables german = {{"LC_ALL", "de_DE.UTF-8"}, {"LANGUAGE", "de"}};
    EXPECT_THAT(runStatus({}, german).out, HasSubstr("Bereit"));
    EXPECT_THAT(runStatus({"--json"}, german).out, HasSubstr("\"status\": \"ready\""));
    EXPECT_THAT(runStatus({"--monitor"}, german).out, StartsWith("CRITICAL - Studio B: not connected"));
    EXPECT_THAT(runStatus({"--metrics"}, german).out, HasSubstr("status=\"ready\""));
}

} // namespace
