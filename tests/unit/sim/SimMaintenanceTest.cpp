// Head cleanings and nozzle checks from the job file to the end, and changes of the settings.
#include <gtest/gtest.h>

#include "JobFilesFixture.h"
#include "RawClient.h"
#include "RoomFixture.h"
#include "SimPaths.h"

namespace {

const std::string SETTING = std::string(SETTINGS) + "/" + ID + ".ini";
constexpr char IDLE[] = "[publisher A]\nmodel = RT-300III BD\nid = {ARPUB20260105_1}\nname = Studio\n"
                        "disc-time = 10s\ncleaning-time = 5s\nink.black = 20\n";

/// Has the room take the job file without advancing its clock.
void take(OpenRoom& open, const std::string& text)
{
    const size_t before = open.room.takenFiles().size();
    putFile(JOBS + std::string("job.epj"), text);
    open.room.advance(0);
    ASSERT_TRUE(open.room.waitForTakenFiles(before + 1));
    ASSERT_EQ(open.room.takenFiles().back().refusal, "");
}

uint64_t number(uint64_t control)
{
    return numberAt(ask(control, ID).payload, 0, 4);
}

udsim::Publisher machine(const OpenRoom& open)
{
    return *open.room.look("A");
}

/// The expected payload of the first job.
Bytes jobBytes(const std::string& id, const std::string& name, uint64_t status)
{
    return Bytes(1088).text(0, id).text(256, name).u64(512, status).text(584, "udsim").u64(1080, 32);
}

} // namespace

TEST(SimMaintenance, RunsAHeadCleaning)
{
    OpenRoom open(IDLE);
    take(open, HEAD_CLEANING);
    EXPECT_EQ(ask(4, ID, "", 1).payload,
              jobBytes(CLEANING_ID, "Head Cleaning", 1).u64(544, 5).u64(552, 5).u64(720, 0x80000003).str());
    EXPECT_EQ(number(8), 1U) << "idle";
    open.room.advance(2000);
    EXPECT_EQ(ask(4, ID, "", 1).payload,
              jobBytes(CLEANING_ID, "Head Cleaning", 2).u64(544, 5).u64(552, 3).u64(720, 0x80000003).str());
    EXPECT_EQ(number(8), 0x10U) << "cleaning";
    EXPECT_EQ(number(5), 0U) << "the loader is idle";
    EXPECT_EQ(number(24), 8U) << "only the printer is busy";
    EXPECT_EQ(machine(open).phase(), udsim::Phase::cleaning);
    EXPECT_EQ(machine(open).progressPercent(), 40U);
    open.room.advance(2950);
    EXPECT_EQ(open.room.jobs("A").at(0).status, 2U);
    open.room.advance(50);
    EXPECT_EQ(ask(4, ID, "", 2).payload,
              jobBytes(CLEANING_ID, "Head Cleaning", 9).u64(544, 5).u64(720, 0x80000003).str());
    EXPECT_EQ(number(8), 1U);
    EXPECT_EQ(machine(open).state().ink, (std::array<uint32_t, 6>{97, 97, 97, 97, 97, 17}));
    EXPECT_EQ(machine(open).state().stackers[0].discs, 100U);
    EXPECT_EQ(machine(open).printedDiscs(), 0U);
}

TEST(SimMaintenance, RunsANozzleCheck)
{
    OpenRoom open(IDLE);
    take(open, NOZZLE_CHECK);
    const auto expected = [](uint64_t status) {
        return jobBytes(NOZZLE_ID, "Nozzle Check", status)
            .u64(544, 10)
            .u64(568, 1)
            .u64(720, 4)
            .u64(728, 1)  // from stacker 1
            .u64(736, 8); // to stacker 4
    };
    EXPECT_EQ(ask(4, ID, "", 1).payload, expected(1).u64(552, 10).str());
    open.room.advance(1000);
    EXPECT_EQ(number(24), 16U + 1U) << "a disc is conveyed";
    EXPECT_EQ(machine(open).state().stackers[0].discs, 99U);
    open.room.advance(4000);
    EXPECT_EQ(ask(4, ID, "", 1).payload, expected(2).u64(552, 5).str());
    EXPECT_EQ(number(8), 4U) << "printing";
    open.room.advance(5000);
    EXPECT_EQ(ask(4, ID, "", 2).payload, expected(9).u64(528, 1).str());
    EXPECT_EQ(machine(open).printedDiscs(), 1U);
    EXPECT_EQ(machine(open).state().stackers[3].discs, 1U);
}

TEST(SimMaintenance, DestinationOfANozzleCheck)
{
    struct Row
    {
        const char* settings;
        int eject;
        uint64_t destinations;
        size_t stacker; ///< final stacker of the disc, counted from 0
    };
    const Row table[] = {
        {"model = RT-300III BD\nstacker2 = 100\n", 2, 8, 3},
        {"model = RT-300III BD\nmode = 1\n", 0, 2 + 4, 2},
        {"model = RT-300III BD\nmode = 2\n", 2, 8, 3},
        {"model = RT-300III BD\nmode = 2\nstacker3.media = output\nstacker4.media = not used\n", 3, 4, 2},
        {"model = RT-300III BD\nstacker3.media = output\nstacker4.media = not used\n", 2, 8, 1},
        {"model = RT-30II\n", 2, 8, 1},
        {"model = RT-30II\nmode = 2\n", 3, 4, 2},
    };
    for (const Row& row : table) {
        std::filesystem::remove(SETTING);
        OpenRoom open(std::string("[publisher A]\nid = {ARPUB20260105_1}\n") + row.settings);
        take(open, with(NOZZLE_CHECK, "Eject = 2", "Eject = " + std::to_string(row.eject)));
        EXPECT_EQ(numberAt(ask(4, ID, "", 1).payload, 736, 8), row.destinations) << row.settings;
        const uint32_t before = machine(open).state().stackers.at(row.stacker).discs;
        open.room.advance(60'000);
        EXPECT_EQ(open.room.jobs("A").at(0).status, 9U) << row.settings;
        EXPECT_EQ(machine(open).state().stackers.at(row.stacker).discs, before + 1) << row.settings;
    }
}

TEST(SimMaintenance, ANozzleCheckRequiresADiscInStacker1)
{
    OpenRoom open(std::string(IDLE) + "mode = 1\nstacker1 = 0\nstacker2 = 50\n");
    take(open, with(NOZZLE_CHECK, "Eject = 2", "Eject = 0"));
    open.room.advance(1000);
    EXPECT_EQ(open.room.jobs("A").at(0).factor, 7U);
    ASSERT_TRUE(open.room.tell("A", "stacker 1 1"));
    ASSERT_TRUE(open.room.tell("A", "clear"));
    open.room.advance(10'050);
    EXPECT_EQ(open.room.jobs("A").at(0).status, 9U);
    EXPECT_EQ(machine(open).state().stackers[1].discs, 50U);
}

TEST(SimMaintenance, ACleaningRequiresInk)
{
    OpenRoom open(std::string(IDLE) + "ink.cyan = 0\n");
    take(open, HEAD_CLEANING);
    open.room.advance(60'000);
    EXPECT_EQ(open.room.jobs("A").at(0).status, 5U);
    EXPECT_EQ(open.room.jobs("A").at(0).factor, 19U);
    ASSERT_TRUE(open.room.tell("A", "refill"));
    open.room.advance(5050);
    EXPECT_EQ(open.room.jobs("A").at(0).status, 9U);
}

TEST(SimMaintenance, ACleaningUsesAtMostTheInkLeft)
{
    OpenRoom open(std::string(IDLE) + "ink.cyan = 1\n");
    take(open, HEAD_CLEANING);
    open.room.advance(5000);
    EXPECT_EQ(machine(open).state().ink[0], 0U);
}

TEST(SimMaintenance, JobsWaitWhileTheMachineIsOffline)
{
    OpenRoom open(std::string(IDLE) + "connected = no\n");
    take(open, HEAD_CLEANING);
    open.room.advance(60'000);
    EXPECT_EQ(open.room.jobs("A").at(0).status, 1U);
    ASSERT_TRUE(open.room.tell("A", "online"));
    open.room.advance(1000);
    EXPECT_EQ(open.room.jobs("A").at(0).status, 2U);
    ASSERT_TRUE(open.room.tell("A", "offline"));
    open.room.advance(50);
    EXPECT_EQ(open.room.jobs("A").at(0).status, 5U);
    EXPECT_EQ(open.room.jobs("A").at(0).factor, 11U);
}

TEST(SimMaintenance, JobsRunInOrder)
{
    OpenRoom open(std::string(IDLE) + "job = First, type=print\n");
    take(open, HEAD_CLEANING);
    take(open, NOZZLE_CHECK);
    EXPECT_EQ(number(13), 3U);
    open.room.advance(10'000);
    open.room.advance(50);
    EXPECT_EQ(open.room.jobs("A").at(1).status, 2U);
    EXPECT_EQ(ask(3, ID, NOZZLE_ID).result, 0U);
    open.room.advance(10'000);
    EXPECT_EQ(open.room.jobs("A").at(1).status, 9U);
    EXPECT_EQ(open.room.jobs("A").at(2).status, 8U);
}

TEST(SimMaintenance, SettingsCannotChangeDuringACleaning)
{
    OpenRoom open(IDLE);
    take(open, HEAD_CLEANING);
    open.room.advance(1000);
    EXPECT_EQ(ask(16, ID).result, 1004U);
    EXPECT_EQ(ask(21, ID, "", 2).result, 1004U);
    open.room.advance(4000);
    EXPECT_EQ(ask(16, ID).result, 0U);
    EXPECT_EQ(ask(21, ID, "", 2).result, 0U);
}

TEST(SimMaintenance, TheModeAndItsSettingsAreApplied)
{
    struct Row
    {
        uint64_t mode;
        std::array<uint32_t, 4> media;
    };
    const Row table[] = {{0, {8, 0, 0, 32}}, {0, {1, 0, 32, 0}},   {1, {6, 6, 0, 32}},
                         {2, {8, 1, 0, 32}}, {2, {10, 11, 32, 0}}, {0, {7, 0, 32, 0}}};
    OpenRoom open(IDLE);
    const std::string before = fileText(SETTING);
    for (const Row& row : table) {
        EXPECT_EQ(ask(21, ID, "", row.mode).result, 0U);
        std::string text = with(before, "PublishMode=0", "PublishMode=" + std::to_string(row.mode));
        text =
            with(text, "Stacker1=1\nStacker2=0\nStacker3=32\nStacker4=0\n",
                 "Stacker1=" + std::to_string(row.media[0]) + "\nStacker2=" + std::to_string(row.media[1]) +
                     "\nStacker3=" + std::to_string(row.media[2]) +
                     "\nStacker4=" + std::to_string(row.media[3]) + "\n");
        putFile(SETTING, with(text, "RetryTimes=3", "RetryTimes=9"));
        EXPECT_EQ(ask(16, ID).result, 0U);
        EXPECT_EQ(number(18), row.mode);
        Bytes media(16);
        for (size_t i = 0; i < 4; ++i) {
            media.u32(4 * i, row.media.at(i));
        }
        EXPECT_EQ(ask(17, ID).payload, media.str()) << "mode " << row.mode;
    }
}

TEST(SimMaintenance, NotesReportSettingChanges)
{
    udsim::Room room(scenarioOf(IDLE));
    std::vector<std::string> notes;
    room.onNote([&](const std::string& line) { notes.push_back(line); });
    std::string error;
    ASSERT_TRUE(room.start(error)) << error;
    const auto last = [&notes] { return std::exchange(notes, {}); };
    EXPECT_EQ(last(), std::vector<std::string>{"0:00 Studio: ready, 0 waiting"});
    ask(21, ID, "", 2);
    ask(21, ID, "", 7);
    ask(16, ID);
    ask(18, ID);
    ask(16, "nobody\n");
    room.stop(); // joins the thread that adds the notes
    EXPECT_EQ(last(), (std::vector<std::string>{
                          "0:00 Studio: publish mode 2 set",
                          "0:00 Studio: publish mode 7 refused with code 37",
                          "0:00 Studio: settings read again",
                          "0:00 \"nobody?\": change notice refused with code 21",
                      }));
}
