// The effect of time and commands on jobs, stackers and ink. Uses only the machines, no sockets.
#include <gtest/gtest.h>

#include "RoomFixture.h"
#include "World.h"

namespace {

using udsim::Job;
using udsim::Phase;
using udsim::World;

constexpr uint64_t WAITING = 1;
constexpr uint64_t RUNNING = 2;
constexpr uint64_t CANCEL_PENDING = 3;
constexpr uint64_t PAUSE_PENDING = 4;
constexpr uint64_t PAUSED = 5;
constexpr uint64_t STOP_PENDING = 6;
constexpr uint64_t STOPPED = 7;
constexpr uint64_t CANCELLED = 8;
constexpr uint64_t FINISHED = 9;

class SimJobs : public testing::Test
{
protected:
    udsim::Publisher& machine()
    {
        return m_world.publishers().front();
    }
    const Job& job(size_t index)
    {
        return machine().jobs().at(index);
    }
    void tell(const std::string& text)
    {
        std::string error;
        const auto command = udsim::Command::parse(text, error);
        ASSERT_TRUE(command) << error;
        ASSERT_TRUE(m_world.apply("A", *command)) << text;
    }

    World m_world{scenarioOf("[publisher A]\nmodel = RT-300III BD\ndisc-time = 10s\nserial = S\n"
                             "job = First, copies=2\njob = Second, type=print\n")};
};

} // namespace

TEST_F(SimJobs, FromWaitingToFinished)
{
    EXPECT_EQ(job(0).status, WAITING);
    m_world.advance(50);
    EXPECT_EQ(job(0).status, RUNNING);
    EXPECT_EQ(job(1).status, WAITING);
    m_world.advance(9950);
    EXPECT_EQ(job(0).completed, 1U);
    EXPECT_EQ(job(0).status, RUNNING);
    m_world.advance(10'000);
    EXPECT_EQ(job(0).completed, 2U);
    EXPECT_EQ(job(0).status, FINISHED);
    m_world.advance(50);
    EXPECT_EQ(job(1).status, RUNNING);
    m_world.advance(9950);
    EXPECT_EQ(job(1).status, FINISHED);
    EXPECT_EQ(machine().unfinishedJobs(), 0U);
    EXPECT_FALSE(machine().isWorking());
}

TEST_F(SimJobs, TheStepSizeDoesNotChangeTheState)
{
    World other = m_world;
    m_world.advance(15'025);
    for (int i = 0; i < 601; ++i) {
        other.advance(25);
    }
    EXPECT_EQ(other.now(), m_world.now());
    EXPECT_EQ(other.publishers()[0].jobs()[0].discTime, job(0).discTime);
    EXPECT_EQ(other.publishers()[0].jobs()[0].completed, 1U);
}

TEST_F(SimJobs, PhasesOfADisc)
{
    EXPECT_EQ(machine().phase(), Phase::idle);
    const std::pair<uint64_t, Phase> both[] = {{500, Phase::conveying}, {1000, Phase::writing},
                                               {6450, Phase::writing},  {6500, Phase::verifying},
                                               {8000, Phase::printing}, {9950, Phase::printing}};
    for (const auto& [time, phase] : both) {
        m_world.advance(time - m_world.now());
        EXPECT_EQ(machine().phase(), phase) << "at " << time;
    }
    m_world.advance(20'500 - m_world.now());
    EXPECT_EQ(machine().phase(), Phase::conveying) << "of the second job, which only prints";
    m_world.advance(2000);
    EXPECT_EQ(machine().phase(), Phase::printing);
    m_world.advance(60'000);
    EXPECT_EQ(machine().phase(), Phase::idle);
}

TEST_F(SimJobs, WriteOnlyJobsAreNotPrinted)
{
    World world(scenarioOf("[publisher A]\nmodel = RT-30\ndisc-time = 10s\njob = W, type=write\n"));
    world.advance(8000);
    EXPECT_EQ(world.publishers()[0].phase(), Phase::verifying);
    world.advance(2000);
    EXPECT_EQ(world.publishers()[0].printedDiscs(), 0U);
    EXPECT_EQ(world.publishers()[0].publishedDiscs(), 1U);
}

TEST_F(SimJobs, AMachineWithoutDrivesOnlyPrints)
{
    World world(scenarioOf("[publisher A]\nmodel = RT-300AP\njob = X\n"));
    EXPECT_EQ(world.publishers()[0].jobs()[0].type, 2U);
}

TEST_F(SimJobs, PrintsUseUpDiscsAndInk)
{
    tell("stacker 1 10");
    m_world.advance(30'050);
    EXPECT_EQ(machine().state().stackers[0].discs, 7U);
    EXPECT_EQ(machine().state().stackers[1].discs, 3U) << "the output stacker of the standard mode";
    EXPECT_EQ(machine().printedDiscs(), 3U);
    uint32_t ink = 0;
    for (const uint32_t percent : machine().state().ink) {
        ink += percent;
    }
    EXPECT_EQ(ink, 599U) << "one percent of one cartridge every second print";
}

TEST_F(SimJobs, AnEmptyStackerStopsTheMachineUntilItIsRefilled)
{
    tell("stacker 1 1");
    m_world.advance(15'000);
    EXPECT_EQ(machine().hindrance(), 7U);
    EXPECT_EQ(job(0).status, PAUSED);
    EXPECT_EQ(job(0).factor, 7U);
    EXPECT_EQ(job(0).completed, 1U);
    tell("refill");
    EXPECT_EQ(machine().state().stackers[0].discs, 100U);
    EXPECT_EQ(machine().state().stackers[1].discs, 0U);
    m_world.advance(10'000);
    EXPECT_EQ(job(0).status, FINISHED);
    EXPECT_EQ(job(0).factor, 0U);
}

TEST_F(SimJobs, AFullOutputStopsTheMachine)
{
    tell("stacker 2 100");
    tell("stacker 4 100");
    m_world.advance(1000);
    EXPECT_EQ(machine().hindrance(), 8U);
    EXPECT_EQ(job(0).status, PAUSED);
    tell("stacker 4 99");
    tell("clear");
    m_world.advance(10'000);
    EXPECT_EQ(machine().state().stackers[3].discs, 100U);
}

TEST_F(SimJobs, MissingInkStopsPrintJobs)
{
    tell("ink yellow 0");
    m_world.advance(1000);
    EXPECT_EQ(machine().hindrance(), 19U);
    EXPECT_EQ(job(0).factor, 19U);
    tell("ink yellow 50");
    m_world.advance(1000);
    EXPECT_EQ(machine().hindrance(), 19U) << "the error remains until it is cleared";
    tell("clear");
    m_world.advance(1000);
    EXPECT_EQ(job(0).status, RUNNING);
}

TEST_F(SimJobs, AnErrorPausesAndTheDiscIsResumed)
{
    m_world.advance(4000);
    tell("error 9");
    m_world.advance(50);
    EXPECT_EQ(job(0).status, PAUSED);
    EXPECT_EQ(job(0).factor, 9U);
    const uint64_t spent = job(0).discTime;
    m_world.advance(60'000);
    EXPECT_EQ(job(0).discTime, spent);
    EXPECT_EQ(job(1).status, WAITING);
    EXPECT_EQ(machine().phase(), Phase::idle);
    tell("clear");
    m_world.advance(10'000 - spent);
    EXPECT_EQ(job(0).completed, 1U);
    EXPECT_EQ(machine().state().stackers[0].discs, 99U) << "one disc, not two";
}

TEST_F(SimJobs, OfflinePausesWithItsOwnCode)
{
    m_world.advance(1000);
    tell("offline");
    m_world.advance(50);
    EXPECT_EQ(machine().hindrance(), 11U);
    EXPECT_EQ(job(0).status, PAUSED);
    EXPECT_EQ(job(0).factor, 11U);
    tell("online");
    m_world.advance(50);
    EXPECT_EQ(job(0).status, RUNNING);
}

TEST_F(SimJobs, PauseAndResumeOnDemand)
{
    m_world.advance(1000);
    tell("pause");
    EXPECT_EQ(job(0).status, PAUSE_PENDING);
    m_world.advance(9000);
    EXPECT_EQ(job(0).status, PAUSED);
    EXPECT_EQ(job(0).factor, 0U);
    EXPECT_EQ(job(0).completed, 1U);
    m_world.advance(60'000);
    EXPECT_EQ(job(0).completed, 1U);
    EXPECT_EQ(job(1).status, WAITING);
    tell("resume");
    m_world.advance(10'000);
    EXPECT_EQ(job(0).status, FINISHED);
}

TEST_F(SimJobs, StopTakesEffectAfterTheDisc)
{
    m_world.advance(1000);
    EXPECT_EQ(machine().stopJob(job(0).id), 0U);
    EXPECT_EQ(job(0).status, STOP_PENDING);
    m_world.advance(9000);
    EXPECT_EQ(job(0).status, STOPPED);
    EXPECT_EQ(job(0).completed, 1U);
    m_world.advance(50);
    EXPECT_EQ(job(1).status, RUNNING) << "a stopped job does not block others";
    EXPECT_EQ(machine().continueJob(job(0).id), 0U);
    EXPECT_EQ(job(0).status, WAITING);
    m_world.advance(30'000);
    EXPECT_EQ(job(0).status, FINISHED);
}

TEST_F(SimJobs, CancelTakesEffectAfterTheDisc)
{
    m_world.advance(1000);
    EXPECT_EQ(machine().cancelJob(job(0).id), 0U);
    EXPECT_EQ(job(0).status, CANCEL_PENDING);
    m_world.advance(9000);
    EXPECT_EQ(job(0).status, CANCELLED);
    EXPECT_EQ(job(0).completed, 1U);
}

TEST_F(SimJobs, PendingCommandsTakeEffectDuringAnError)
{
    m_world.advance(1000);
    EXPECT_EQ(machine().cancelJob(job(0).id), 0U);
    tell("error 9");
    m_world.advance(50);
    EXPECT_EQ(job(0).status, CANCELLED);
    EXPECT_EQ(job(0).factor, 0U);
}

TEST_F(SimJobs, OldJobsAreRemoved)
{
    for (int i = 0; i < 60; ++i) {
        ASSERT_NE(machine().addJob({.name = "Job " + std::to_string(i)}), "");
        ASSERT_EQ(machine().cancelJob(machine().jobs().back().id), 0U);
    }
    EXPECT_EQ(machine().jobs().size(), 22U) << "the two initial jobs and the last twenty that ended";
    EXPECT_EQ(machine().jobs().back().name, "Job 59");
    EXPECT_EQ(machine().jobs().back().id, "LOCALHOST_S_0062");
}

TEST_F(SimJobs, EventsHappenAtTheirTime)
{
    World world(scenarioOf("[publisher A]\nmodel = RT-30\n"
                           "[event]\nat = 0s\npublisher = A\ndo = error 5\n"
                           "[event]\nat = 2s\npublisher = A\ndo = clear\n"
                           "[event]\nat = 3s\nevery = 1s\npublisher = A\ndo = add-job\n"
                           "[event]\nat = 4s\ndo = service off\n"
                           "[event]\nat = 5s\ndo = service on\n"));
    EXPECT_EQ(world.publishers()[0].hindrance(), 0U);
    world.advance(0);
    EXPECT_EQ(world.publishers()[0].hindrance(), 5U);
    world.advance(1950);
    EXPECT_EQ(world.publishers()[0].hindrance(), 5U);
    world.advance(50);
    EXPECT_EQ(world.publishers()[0].hindrance(), 0U);
    world.advance(2500);
    EXPECT_EQ(world.publishers()[0].jobs().size(), 2U) << "at 3 s and 4 s";
    EXPECT_FALSE(world.serviceOn());
    world.advance(500);
    EXPECT_TRUE(world.serviceOn());
}

TEST_F(SimJobs, NotesReportChanges)
{
    m_world.advance(0);
    EXPECT_EQ(m_world.takeNotes(), (std::vector<std::string>{"0:00 A: ready, 2 waiting"}));
    EXPECT_TRUE(m_world.takeNotes().empty());
    m_world.advance(1000);
    EXPECT_EQ(m_world.takeNotes(), (std::vector<std::string>{"0:01 A: ready, running \"First\", 1 waiting"}));
    m_world.advance(1000);
    EXPECT_TRUE(m_world.takeNotes().empty());
    tell("error 19");
    m_world.advance(60'000);
    EXPECT_EQ(m_world.takeNotes(), (std::vector<std::string>{"1:02 A: error 19, 1 waiting"}));
    tell("offline");
    EXPECT_EQ(m_world.takeNotes(), (std::vector<std::string>{"1:02 A: not connected, 1 waiting"}));
    std::string error;
    ASSERT_TRUE(m_world.apply("", *udsim::Command::parse("service off", error)));
    EXPECT_EQ(m_world.takeNotes(), (std::vector<std::string>{"1:02 the service is stopped"}));
}
