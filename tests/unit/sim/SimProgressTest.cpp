// Progress lines of jobs, and the bytes written to the terminal.
#include <gtest/gtest.h>

#include "Progress.h"
#include "RoomFixture.h"
#include "Screen.h"
#include "World.h"

using udsim::JobProgress;
using udsim::progressLines;
using Lines = std::vector<std::string>;

namespace {

JobProgress progressIn(const std::string& text, uint64_t milliseconds, const char* command = nullptr)
{
    udsim::World world(
        scenarioOf("[publisher A]\nname = Shown\nmodel = RT-300III BD\ndisc-time = 10s\n" + text));
    world.advance(milliseconds);
    if (command != nullptr) {
        std::string error;
        world.apply("A", *udsim::Command::parse(command, error));
        world.advance(50);
    }
    const auto jobs = world.progress();
    return jobs.empty() ? JobProgress{} : jobs.front();
}

} // namespace

TEST(SimProgress, OfAJob)
{
    const JobProgress idle = progressIn("", 1000);
    EXPECT_EQ(idle.publisher, "");
    const JobProgress first = progressIn("job = Concert, copies=4\n", 5000);
    EXPECT_EQ(first.publisher, "Shown");
    EXPECT_EQ(first.job, "Concert");
    EXPECT_EQ(first.disc, 1U);
    EXPECT_EQ(first.discs, 4U);
    EXPECT_EQ(first.percent, 12U);
    EXPECT_EQ(first.state, "writing");
    const JobProgress last = progressIn("job = Concert, copies=4\n", 39'000);
    EXPECT_EQ(last.disc, 4U);
    EXPECT_EQ(last.percent, 97U);
    EXPECT_EQ(last.state, "printing");
}

TEST(SimProgress, States)
{
    const std::tuple<uint64_t, const char*, const char*> table[] = {
        {500, nullptr, "conveying"},        {3000, nullptr, "writing"},     {7000, nullptr, "verifying"},
        {9000, nullptr, "printing"},        {3000, "error 19", "error 19"}, {3000, "pause", "pausing"},
        {3000, "offline", "not connected"},
    };
    for (const auto& [time, command, state] : table) {
        EXPECT_EQ(progressIn("job = X\n", time, command).state, state) << time;
    }
}

TEST(SimProgress, StatesThatTheServiceRequests)
{
    using Request = uint64_t (udsim::Publisher::*)(const std::string&);
    const std::pair<Request, const char*> table[] = {{&udsim::Publisher::stopJob, "stopping"},
                                                     {&udsim::Publisher::cancelJob, "cancelling"}};
    for (const auto& [request, state] : table) {
        udsim::World world(scenarioOf("[publisher A]\nmodel = RT-300III BD\ndisc-time = 10s\njob = X\n"));
        world.advance(3000);
        udsim::Publisher& machine = world.publishers().front();
        EXPECT_EQ((machine.*request)(machine.jobs().front().id), 0U);
        ASSERT_EQ(world.progress().size(), 1U);
        EXPECT_EQ(world.progress().front().state, state);
    }
}

TEST(SimProgress, OfANetworkPublisher)
{
    udsim::World world(scenarioOf("[network N]\nmodel = RT-300N\ndisc-time = 10s\njob = X, copies=2\n"));
    world.advance(1000);
    ASSERT_EQ(world.progress().size(), 1U);
    EXPECT_EQ(world.progress()[0].publisher, "N");
}

TEST(SimProgress, LinesOf80Columns)
{
    const std::vector<JobProgress> jobs{{"Studio A", "Annual report", 2, 3, 50, "writing"},
                                        {"B", "Labels", 10, 12, 0, "error 19"},
                                        {"Clinic", "", 0, 0, 100, "cleaning"}};
    EXPECT_EQ(progressLines(jobs, 80, 24),
              (Lines{"Studio A  Annual report  disc 2 of 3    [########--------]   50%  writing",
                     "B         Labels         disc 10 of 12  [----------------]    0%  error 19",
                     "Clinic                                  [################]  100%  cleaning"}));
}

TEST(SimProgress, LinesFitEveryWidth)
{
    const std::vector<JobProgress> jobs{{"Studio with a very long name indeed",
                                         "Größe \xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E and more and more words",
                                         2, 3, 50, "not connected"},
                                        {"B\x1b[2J\n", "broken \xFF\xC3", 1, 1, 7, "writing"}};
    for (size_t width = 0; width <= 200; ++width) {
        for (const std::string& line : progressLines(jobs, width, 24)) {
            EXPECT_LT(udsim::columnsOf(line), std::max<size_t>(width, 1)) << width << ": " << line;
            EXPECT_EQ(line.find_first_of("\x1b\n\r"), std::string::npos) << line;
        }
    }
    EXPECT_EQ(progressLines(jobs, 200, 24)[0].find("Studio with a v...  Größe "), 0U);
}

TEST(SimProgress, ASmallTerminalShowsFewerJobs)
{
    const std::vector<JobProgress> jobs(5, JobProgress{"A", "X", 1, 1, 7, "writing"});
    EXPECT_EQ(progressLines(jobs, 80, 5).size(), 5U);
    const Lines three = progressLines(jobs, 80, 3);
    ASSERT_EQ(three.size(), 3U);
    EXPECT_EQ(three[2], "and 3 more");
    EXPECT_EQ(progressLines(jobs, 80, 1), Lines{"and 5 more"});
    EXPECT_TRUE(progressLines(jobs, 80, 0).empty());
}

TEST(SimProgress, TextsAreMeasuredInColumns)
{
    EXPECT_EQ(udsim::fit("abc", 5), "abc  ");
    EXPECT_EQ(udsim::fit("abcdef", 5), "ab...");
    EXPECT_EQ(udsim::fit("abcdef", 3), "abc");
    EXPECT_EQ(udsim::fit("abcdef", 0), "");
    EXPECT_EQ(udsim::columnsOf("\xE6\x97\xA5\xE6\x9C\xAC"), 4U);           // two wide characters
    EXPECT_EQ(udsim::fit("\xE6\x97\xA5\xE6\x9C\xAC", 3), "\xE6\x97\xA5 "); // a wide character is not split
    EXPECT_EQ(udsim::columnsOf("u\xCC\x88"), 1U);                          // a letter and a combining mark
    EXPECT_EQ(udsim::fit("a\tb\x7F", 4), "a?b?");
    EXPECT_EQ(udsim::fit("\xFF", 1), "\xEF\xBF\xBD");
}

TEST(SimScreen, Frames)
{
    udsim::Screen screen;
    EXPECT_EQ(screen.frame({}, {}), "");
    EXPECT_EQ(screen.frame({"one", "two"}, {}), "\r\x1b[Jone\ntwo\n");
    EXPECT_EQ(screen.frame({}, {"A", "B"}), "\rA\x1b[K\nB\x1b[K\n");
    EXPECT_EQ(screen.frame({}, {"A", "B"}), "") << "nothing has changed";
    EXPECT_EQ(screen.frame({}, {"A", "C"}), "\r\x1b[2AA\x1b[K\nC\x1b[K\n");
    EXPECT_EQ(screen.frame({"three"}, {"A", "C"}), "\r\x1b[2A\x1b[Jthree\nA\x1b[K\nC\x1b[K\n");
    EXPECT_EQ(screen.frame({}, {"C"}), "\r\x1b[2AC\x1b[K\n\x1b[J");
    EXPECT_EQ(screen.frame({}, {}), "\r\x1b[1A\x1b[J");
    EXPECT_EQ(screen.frame({}, {}), "");
}
