// The log file of the service: its content and its rotation.
#include <regex>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "Diary.h"
#include "JobFilesFixture.h"
#include "RawClient.h"
#include "RoomFixture.h"
#include "ServiceLog.h"

namespace {

constexpr char LOG[] = "/var/log/arvenUlmarDiscControl.log";
constexpr size_t STAMP = 20; ///< "2026-01-05 09:30:07 "

/// The lines of a log without date and time. Each line must begin with them.
std::vector<std::string> linesOf(const std::string& path)
{
    const std::regex dated("[0-9]{4}-[01][0-9]-[0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-6][0-9] .*");
    std::vector<std::string> lines;
    std::istringstream text(fileText(path));
    for (std::string line; std::getline(text, line);) {
        EXPECT_TRUE(std::regex_match(line, dated)) << line;
        lines.push_back(line.substr(std::min(STAMP, line.size())));
    }
    return lines;
}

using Lines = std::vector<std::string>;

} // namespace

TEST(SimLog, LogsTheEventsOfASession)
{
    {
        OpenRoom open(
            "[publisher A]\nmodel = RT-300III BD\nid = {ARPUB20260105_1}\nname = Studio\n"
            "cleaning-time = 5s\n[publisher B]\nmodel = RT-30\nid = b\nconnected = no\nerror = 9\n");
        ASSERT_TRUE(open.room.tell("A", "offline"));
        ASSERT_TRUE(open.room.tell("A", "online"));
        ASSERT_TRUE(open.room.tell("A", "error 10"));
        ASSERT_TRUE(open.room.tell("A", "error 19"));
        ASSERT_TRUE(open.room.tell("A", "clear"));
        ask(18, ID);
        ask(21, ID, "", 2);
        ask(21, "b", "", 2);
        ask(16, ID);
        const size_t before = open.room.takenFiles().size();
        putFile(JOBS + std::string("a.epj"), HEAD_CLEANING);
        open.room.advance(0);
        ASSERT_TRUE(open.room.waitForTakenFiles(before + 1));
        putFile(JOBS + std::string("b\x1B.epj"), with(NOZZLE_CHECK, "\nMode = 2", "\nMode = 3"));
        open.room.advance(0);
        ASSERT_TRUE(open.room.waitForTakenFiles(before + 2));
        open.room.advance(1000);
        ask(16, ID);
        open.room.advance(4000);
        ask(3, ID, open.room.addJob("A", {.name = "Labels"}));
        ASSERT_TRUE(open.room.tell("", "service off"));
        open.room.advance(1000);
        ASSERT_TRUE(open.room.tell("", "service on"));
    }
    EXPECT_EQ(linesOf(LOG),
              (Lines{
                  "service started",
                  "Studio: connected",
                  "B: not connected",
                  "B: error 9",
                  "Studio: not connected",
                  "Studio: connected",
                  "Studio: error 10",
                  "Studio: error 19",
                  "Studio: error 19 is over",
                  "Studio: publish mode 2 set",
                  "B: publish mode 2 refused with code 11",
                  "Studio: settings read again",
                  "Studio: job LOCALHOST_20260105093007042_UDSetup_0000 \"Head Cleaning\" taken",
                  "job file b?.epj refused: line 10: Mode is \"3\", not \"2\"",
                  "Studio: change notice refused with code 1004",
                  "Studio: job LOCALHOST_20260105093007042_UDSetup_0000 \"Head Cleaning\" finished",
                  "Studio: cancellation of job LOCALHOST_SIM0000001_0001 accepted",
                  "Studio: job LOCALHOST_SIM0000001_0001 \"Labels\" cancelled",
                  "service stopped",
                  "service started",
                  "service stopped",
              }));
}

TEST(SimLog, DescribesEveryCommandThatChangesState)
{
    const std::pair<udsim::Request, std::string> table[] = {
        {{1, "p", "J", 0}, "stop of job J accepted"},
        {{2, "p", "J", 0}, "continuation of job J accepted"},
        {{3, "p", "J", 0}, "cancellation of job J accepted"},
        {{16, "p", "", 0}, "settings read again"},
        {{21, "p", "", 1}, "publish mode 1 set"},
        {{23, "p", "J", 0}, "cancellation of failed job J accepted"},
        {{29, "p", "J", 1}, "priority of job J accepted"},
    };
    for (const auto& [request, line] : table) {
        EXPECT_EQ(udsim::describe(request, 0), line);
        EXPECT_TRUE(udsim::describe(request, 25).ends_with(" refused with code 25"));
    }
    for (const uint64_t asks : {4U, 5U, 6U, 7U, 8U, 9U, 13U, 17U, 18U, 22U, 24U, 31U, 0U, 33U}) {
        EXPECT_EQ(udsim::describe({asks, "p", "", 0}, 0), "");
    }
}

TEST(SimLog, ASecondRoomAppends)
{
    for (int turn = 0; turn < 2; ++turn) {
        const OpenRoom open("");
    }
    EXPECT_EQ(linesOf(LOG),
              (Lines{"service started", "service stopped", "service started", "service stopped"}));
}

TEST(SimLog, IsReadableByEveryone)
{
    ::umask(022); // as udsim sets it
    const OpenRoom open("");
    struct stat status{};
    ASSERT_EQ(::stat(LOG, &status), 0);
    EXPECT_EQ(status.st_mode, S_IFREG | 0644U);
}

TEST(SimLog, OldFilesAreRotated)
{
    const std::string path = "/tmp/service.log";
    const udsim::ServiceLog log(path, 3 * (STAMP + 8), 2); // three lines of seven letters
    std::string error;
    for (int line = 1; line <= 13; ++line) {
        const std::string number = std::to_string(line);
        ASSERT_TRUE(log.write("line " + std::string(2 - number.size(), '0') + number, error)) << error;
        EXPECT_LE(std::filesystem::file_size(path), 3 * (STAMP + 8));
    }
    EXPECT_EQ(linesOf(path), (Lines{"line 13"}));
    EXPECT_EQ(linesOf(path + ".1"), (Lines{"line 10", "line 11", "line 12"}));
    EXPECT_EQ(linesOf(path + ".2"), (Lines{"line 07", "line 08", "line 09"}));
    EXPECT_FALSE(std::filesystem::exists(path + ".3"));
}

TEST(SimLog, ALineLongerThanTheLimitIsWritten)
{
    const udsim::ServiceLog log("/tmp/service.log", 10, 1);
    std::string error;
    ASSERT_TRUE(log.write("first", error));
    ASSERT_TRUE(log.write("second", error));
    EXPECT_EQ(linesOf("/tmp/service.log"), Lines{"second"});
    EXPECT_EQ(linesOf("/tmp/service.log.1"), Lines{"first"});
}

TEST(SimLog, TheServiceRotatesItsLog)
{
    putFile(LOG, std::string(262'144, 'x'));
    const OpenRoom open("");
    EXPECT_EQ(linesOf(LOG), Lines{"service started"});
    EXPECT_EQ(std::filesystem::file_size(LOG + std::string(".1")), 262'144U);
}

TEST(SimLog, AnUnwritableLogIsReportedOnce)
{
    std::filesystem::create_directory(LOG);
    udsim::Room room(scenarioOf("[publisher A]\nmodel = RT-30\nid = a\n"));
    std::vector<std::string> notes;
    room.onNote([&](const std::string& line) { notes.push_back(line); });
    std::string error;
    ASSERT_TRUE(room.start(error)) << error;
    ASSERT_TRUE(room.tell("A", "error 9"));
    room.stop();
    EXPECT_EQ(notes, (Lines{"0:00 /var/log/arvenUlmarDiscControl.log: Is a directory",
                            "0:00 A: ready, 0 waiting", "0:00 A: error 9, 0 waiting"}));
}
