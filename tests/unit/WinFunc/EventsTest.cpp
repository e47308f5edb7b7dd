// Events: their flag, their sleep steps, and the waits that they release.
#include "CountedSleep.h"
#include "WinFunc.h"

#include <thread>
#include <vector>

#include <gmock/gmock.h>

namespace {

using Runs = CountedSleep::Runs;

class EventsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        CountedSleep::The().Start();
    }

    /// An event that is closed at the end of the test.
    HANDLE Event(BOOL manualReset, BOOL initialState)
    {
        m_events.push_back(CreateEventA(nullptr, manualReset, initialState, nullptr));
        return m_events.back();
    }

    void TearDown() override
    {
        for (HANDLE event : m_events) {
            EXPECT_EQ(CloseHandle(event), TRUE);
        }
    }

private:
    std::vector<HANDLE> m_events;
};

TEST_F(EventsTest, SleepStepsAreCoarseFirstAndFineAtTheEnd)
{
    struct Steps
    {
        DWORD timeout;
        Runs sleeps;
    };
    const Steps cases[] = {
        {0, {}},
        {1, {{1000, 1}}},
        {9, {{1000, 9}}},
        {10, {{1000, 10}}},
        {11, {{10000, 1}, {1000, 1}}},
        {20, {{10000, 1}, {1000, 10}}},
        {25, {{10000, 2}, {1000, 5}}},
        {30, {{10000, 2}, {1000, 10}}},
        {5000, {{10000, 499}, {1000, 10}}},
    };
    for (const Steps& steps : cases) {
        CountedSleep::The().Start();
        EXPECT_EQ(WaitForSingleObject(Event(FALSE, FALSE), steps.timeout), 258u) << steps.timeout;
        EXPECT_EQ(CountedSleep::The().Counted(), steps.sleeps) << steps.timeout;
    }
}

TEST_F(EventsTest, CreationSetsStateAndKindFromItsArguments)
{
    for (const BOOL manualReset : {FALSE, TRUE, 5}) {
        for (const BOOL initialState : {FALSE, TRUE, 5}) {
            const HANDLE handle = CreateEventA(nullptr, manualReset, initialState, "any name");
            const auto* event = dynamic_cast<WinEvent*>(static_cast<IWinHandle*>(handle));
            ASSERT_NE(event, nullptr);
            EXPECT_EQ(event->manualReset, manualReset != 0);
            EXPECT_EQ(event->signal, initialState != 0);
            EXPECT_EQ(CloseHandle(handle), TRUE);
        }
    }
}

TEST_F(EventsTest, EventsOfTheSameNameAreNotShared)
{
    const HANDLE one = CreateEventA(nullptr, TRUE, FALSE, "Global\\same");
    const HANDLE other = CreateEventA(nullptr, TRUE, FALSE, "Global\\same");
    EXPECT_NE(one, other);
    EXPECT_EQ(SetEvent(one), TRUE);
    EXPECT_EQ(WaitForSingleObject(other, 0), 258u);
    EXPECT_EQ(CloseHandle(one), TRUE);
    EXPECT_EQ(CloseHandle(other), TRUE);
}

TEST_F(EventsTest, AnAutoResetEventReleasesOnceForEachSet)
{
    const HANDLE event = Event(FALSE, TRUE);
    EXPECT_EQ(WaitForSingleObject(event, 0), 0u);
    EXPECT_EQ(WaitForSingleObject(event, 0), 258u);
    EXPECT_EQ(SetEvent(event), TRUE);
    EXPECT_EQ(SetEvent(event), TRUE);
    EXPECT_EQ(WaitForSingleObject(event, 7), 0u);
    EXPECT_EQ(WaitForSingleObject(event, 0), 258u);
    EXPECT_EQ(CountedSleep::The().Count(), 0u) << "a wait for a signalled event does not sleep";
}

TEST_F(EventsTest, AManualResetEventStaysSetThroughAnyNumberOfWaits)
{
    const HANDLE event = Event(TRUE, FALSE);
    EXPECT_EQ(WaitForSingleObject(event, 0), 258u);
    EXPECT_EQ(SetEvent(event), TRUE);
    for (const DWORD timeout : {DWORD{0}, DWORD{1}, DWORD{25}, INFINITE}) {
        for (int i = 0; i < 100; ++i) {
            ASSERT_EQ(WaitForSingleObject(event, timeout), 0u);
        }
    }
    EXPECT_EQ(ResetEvent(event), TRUE);
    EXPECT_EQ(WaitForSingleObject(event, 0), 258u);
}

TEST_F(EventsTest, ResetClearsTheSignal)
{
    const HANDLE event = Event(FALSE, TRUE);
    EXPECT_EQ(ResetEvent(event), TRUE);
    EXPECT_EQ(WaitForSingleObject(event, 0), 258u);
    EXPECT_EQ(ResetEvent(event), TRUE) << "resetting an event that is not set succeeds";
}

TEST_F(EventsTest, ASignalIsSeenAtTheNextPoll)
{
    const HANDLE event = Event(FALSE, FALSE);
    struct Case
    {
        DWORD timeout;
        uint64_t setInSleep;
        Runs sleeps;
    };
    const Case cases[] = {
        {1000, 3, {{10000, 3}}},          // during the coarse steps
        {25, 4, {{10000, 2}, {1000, 2}}}, // during the fine steps
        {25, 7, {{10000, 2}, {1000, 5}}}, // in the last step
        {0x80000000, 3, {{10000, 3}}},    // not negative
        {0xFFFFFFFE, 3, {{10000, 3}}},    // the longest finite timeout
        {INFINITE, 1000, {{10000, 1000}}},
    };
    for (const Case& c : cases) {
        CountedSleep::The().Start([&](uint64_t number) {
            if (number == c.setInSleep) {
                SetEvent(event);
            }
        });
        EXPECT_EQ(WaitForSingleObject(event, c.timeout), 0u) << c.timeout;
        EXPECT_EQ(CountedSleep::The().Counted(), c.sleeps) << c.timeout;
        EXPECT_EQ(WaitForSingleObject(event, 0), 258u) << "consumed";
    }
}

TEST_F(EventsTest, ASignalThatIsResetWithinOneStepIsMissed)
{
    const HANDLE event = Event(TRUE, FALSE);
    CountedSleep::The().Start([&](uint64_t) {
        SetEvent(event);
        ResetEvent(event);
    });
    EXPECT_EQ(WaitForSingleObject(event, 25), 258u);
}

TEST_F(EventsTest, AnotherThreadIsReleased)
{
    const HANDLE event = Event(FALSE, FALSE);
    CountedSleep::The().LetTimePass();
    DWORD result = WAIT_FAILED;
    std::thread waiter([&] { result = WaitForSingleObject(event, INFINITE); });
    while (CountedSleep::The().Count() < 2) {
        std::this_thread::yield();
    }
    EXPECT_EQ(SetEvent(event), TRUE);
    waiter.join();
    EXPECT_EQ(result, 0u);
}

TEST_F(EventsTest, ManyThreadsWaitSetAndResetAtOnce)
{
    const HANDLE event = Event(FALSE, FALSE);
    CountedSleep::The().LetTimePass();
    constexpr int releases = 20;
    std::atomic<int> released = 0;
    std::vector<std::thread> waiters;
    for (int i = 0; i < 4; ++i) {
        waiters.emplace_back([&] {
            while (released < releases) {
                if (WaitForSingleObject(event, 2) == 0) {
                    ++released;
                }
            }
        });
    }
    while (released < releases) {
        SetEvent(event);
        std::this_thread::yield();
    }
    for (std::thread& waiter : waiters) {
        waiter.join();
    }
    EXPECT_EQ(ResetEvent(event), TRUE);
    EXPECT_EQ(WaitForSingleObject(event, 0), 258u);
}

} // namespace
