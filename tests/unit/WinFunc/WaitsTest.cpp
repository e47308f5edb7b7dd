// Waits for one of several objects, or for all of them.
#include "CountedSleep.h"
#include "StoppedClocks.h"
#include "WinFunc.h"

#include <chrono>
#include <deque>
#include <vector>

#include <gmock/gmock.h>

namespace {

using Runs = CountedSleep::Runs;
using testing::ElementsAre;
using namespace std::chrono_literals;

constexpr DWORD failed = 0xFFFFFFFF;

/// Returns scripted results and then repeats the last one. Records the timeouts of its calls.
class Scripted : public virtual WinWaitableHandle
{
public:
    explicit Scripted(std::deque<DWORD> answers) : m_answers(std::move(answers)) {}
    bool Close() override
    {
        return true;
    }
    DWORD WaitForSingleObject(DWORD dwMilliseconds) override
    {
        timeouts.push_back(dwMilliseconds);
        StoppedClocks::Advance(takes);
        const DWORD answer = m_answers.front();
        if (m_answers.size() > 1) {
            m_answers.pop_front();
        }
        return answer;
    }

    std::vector<DWORD> timeouts;
    std::chrono::milliseconds takes{0}; ///< for each call

private:
    std::deque<DWORD> m_answers;
};

DWORD WaitAny(const std::vector<HANDLE>& handles, DWORD timeout)
{
    return WaitForMultipleObjects(static_cast<DWORD>(handles.size()), handles.data(), FALSE, timeout);
}

DWORD WaitAll(const std::vector<HANDLE>& handles, DWORD timeout)
{
    return WaitForMultipleObjects(static_cast<DWORD>(handles.size()), handles.data(), TRUE, timeout);
}

class WaitsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        CountedSleep::The().Start();
    }

    StoppedClocks m_clocks{std::chrono::hours(1)};
};

using WaitAnyTest = WaitsTest;
using WaitAllTest = WaitsTest;

TEST_F(WaitAnyTest, TheFirstOfTwoSetEventsWins)
{
    WinEvent one(false, true);
    WinEvent two(false, true);
    EXPECT_EQ(WaitAny({ToHandle(&one), ToHandle(&two)}, 0), 0u);
    EXPECT_FALSE(one.signal);
    EXPECT_TRUE(two.signal) << "only the reported event is consumed";
    one.SetEvent();
    EXPECT_EQ(WaitAny({ToHandle(&one), ToHandle(&two)}, INFINITE), 0u);
    EXPECT_TRUE(two.signal);
}

TEST_F(WaitAnyTest, AnEmptyListTimesOut)
{
    EXPECT_EQ(WaitForMultipleObjects(0, nullptr, FALSE, 0), 258u);
}

TEST_F(WaitAnyTest, AZeroTimeoutPollsEachOnceInOrder)
{
    Scripted a({258});
    Scripted b({0x80});
    Scripted c({0});
    Scripted d({0});
    EXPECT_EQ(WaitAny({ToHandle(&a), ToHandle(&b), ToHandle(&c), ToHandle(&d)}, 0), 2u);
    EXPECT_THAT(a.timeouts, ElementsAre(0u));
    EXPECT_THAT(b.timeouts, ElementsAre(0u));
    EXPECT_THAT(c.timeouts, ElementsAre(0u));
    EXPECT_THAT(d.timeouts, ElementsAre());
    Scripted never({258});
    EXPECT_EQ(WaitAny({ToHandle(&a), ToHandle(&never)}, 0), 258u);
    EXPECT_EQ(CountedSleep::The().Count(), 0u);
}

TEST_F(WaitAnyTest, TheTimeoutIsSpentOnTheFirstHandleInStepsOf10)
{
    struct Case
    {
        DWORD timeout;
        size_t rounds;
    };
    for (const Case& c : {Case{1, 1}, Case{10, 1}, Case{11, 2}, Case{25, 3}, Case{1000, 100}}) {
        Scripted first({258});
        Scripted second({258});
        Scripted third({258});
        EXPECT_EQ(WaitAny({ToHandle(&first), ToHandle(&second), ToHandle(&third)}, c.timeout), 258u);
        EXPECT_EQ(first.timeouts, std::vector<DWORD>(c.rounds, 10)) << c.timeout;
        EXPECT_EQ(second.timeouts, std::vector<DWORD>(c.rounds, 0)) << c.timeout;
        EXPECT_EQ(third.timeouts, std::vector<DWORD>(c.rounds, 0)) << c.timeout;
    }
}

TEST_F(WaitAnyTest, TheLongestTimeoutsDoNotExpireAtOnce)
{
    for (const DWORD timeout : {DWORD{0x80000000}, DWORD{0xFFFFFFFE}, INFINITE}) {
        Scripted first({258, 258, 0});
        EXPECT_EQ(WaitAny({ToHandle(&first)}, timeout), 0u);
        EXPECT_THAT(first.timeouts, ElementsAre(10u, 10u, 10u));
    }
}

TEST_F(WaitAnyTest, AnEventAsTheFirstHandleSleepsTenFineStepsPerRound)
{
    WinEvent first(false, false);
    EXPECT_EQ(WaitAny({ToHandle(&first)}, 25), 258u);
    EXPECT_EQ(CountedSleep::The().Counted(), (Runs{{1000, 30}}));
}

TEST_F(WaitAnyTest, TheFirstHandleIsCheckedFirstThenTheLowestIndexWins)
{
    Scripted first({258, 0});
    Scripted second({258});
    EXPECT_EQ(WaitAny({ToHandle(&first), ToHandle(&second)}, INFINITE), 0u);
    EXPECT_THAT(second.timeouts, ElementsAre(0u));

    Scripted idle({258});
    Scripted late({258, 258, 0});
    Scripted later({258, 258, 0});
    EXPECT_EQ(WaitAny({ToHandle(&idle), ToHandle(&late), ToHandle(&later)}, INFINITE), 1u);
    EXPECT_THAT(later.timeouts, ElementsAre(0u, 0u));
}

TEST_F(WaitAnyTest, TheOthersArePolledOnlyAfterATimeoutOfTheFirst)
{
    for (const DWORD result : {WAIT_ABANDONED, failed}) {
        Scripted first({result, result, 258});
        Scripted second({0});
        EXPECT_EQ(WaitAny({ToHandle(&first), ToHandle(&second)}, 1000), 1u);
        EXPECT_EQ(first.timeouts.size(), 3u);
        EXPECT_EQ(second.timeouts.size(), 1u);
    }
    Scripted first({WAIT_ABANDONED});
    Scripted second({0});
    EXPECT_EQ(WaitAny({ToHandle(&first), ToHandle(&second)}, 30), 258u)
        << "each round counts towards the timeout";
    EXPECT_EQ(first.timeouts.size(), 3u);
}

TEST_F(WaitAnyTest, AMutexIsTakenOnlyAsTheFirstHandle)
{
    WinEvent idle(false, false);
    WinMutex mutex(false);
    EXPECT_EQ(WaitAny({ToHandle(&idle), ToHandle(&mutex)}, 50), 258u);
    EXPECT_EQ(WaitAny({ToHandle(&mutex), ToHandle(&idle)}, 0), 258u);
    EXPECT_EQ(WaitAny({ToHandle(&mutex), ToHandle(&idle)}, 50), 0u);
}

TEST_F(WaitAnyTest, AWaitThatTimesOutConsumesNothing)
{
    WinEvent first(false, false);
    WinEvent second(false, false);
    CountedSleep::The().Start([&](uint64_t number) {
        if (number == 30) { // in the last sleep of the last round: the next poll sees the event
            second.SetEvent();
        }
    });
    EXPECT_EQ(WaitAny({ToHandle(&first), ToHandle(&second)}, 30), 1u);
    EXPECT_FALSE(second.signal);
    CountedSleep::The().Start();
    EXPECT_EQ(WaitAny({ToHandle(&first), ToHandle(&second)}, 30), 258u);
    second.SetEvent();
    EXPECT_EQ(WaitAny({ToHandle(&first), ToHandle(&second)}, 0), 1u);
}

TEST_F(WaitAnyTest, TheNumberOfHandlesHasNoUpperLimit)
{
    constexpr size_t count = 5000;
    std::deque<WinEvent> events;
    std::vector<HANDLE> handles;
    for (size_t i = 0; i < count; ++i) {
        handles.push_back(ToHandle(&events.emplace_back(false, false)));
    }
    events.back().SetEvent();
    EXPECT_EQ(WaitAny(handles, 10), count - 1);
    EXPECT_EQ(WaitAny(handles, 0), 258u);
}

TEST_F(WaitAllTest, AnEmptyListIsSignalled)
{
    for (const DWORD timeout : {DWORD{0}, DWORD{25}, INFINITE}) {
        EXPECT_EQ(WaitForMultipleObjects(0, nullptr, TRUE, timeout), 0u);
    }
}

TEST_F(WaitAllTest, ZeroAndInfiniteArePassedToEachHandle)
{
    for (const DWORD timeout : {DWORD{0}, INFINITE}) {
        Scripted a({0});
        Scripted b({0});
        EXPECT_EQ(WaitAll({ToHandle(&a), ToHandle(&b)}, timeout), 0u);
        EXPECT_THAT(a.timeouts, ElementsAre(timeout));
        EXPECT_THAT(b.timeouts, ElementsAre(timeout));
        for (const DWORD result : {DWORD{258}, DWORD{0x80}, failed, DWORD{7}}) {
            Scripted good({0});
            Scripted bad({result});
            Scripted unasked({0});
            EXPECT_EQ(WaitAll({ToHandle(&good), ToHandle(&bad), ToHandle(&unasked)}, timeout), result);
            EXPECT_THAT(unasked.timeouts, ElementsAre());
        }
    }
}

TEST_F(WaitAllTest, AFiniteTimeoutIsSharedByTheHandles)
{
    Scripted first({0});
    Scripted second({0});
    Scripted third({0});
    first.takes = 30ms;
    second.takes = 1ms;
    EXPECT_EQ(WaitAll({ToHandle(&first), ToHandle(&second), ToHandle(&third)}, 60000), 0u);
    EXPECT_THAT(first.timeouts, ElementsAre(60000u));
    EXPECT_THAT(second.timeouts, ElementsAre(59970u));
    EXPECT_THAT(third.timeouts, ElementsAre(59969u));
}

TEST_F(WaitAllTest, AnExpiredTimeoutOverridesASignalledHandle)
{
    Scripted slow({0});
    Scripted unasked({0});
    slow.takes = 5ms;
    EXPECT_EQ(WaitAll({ToHandle(&slow), ToHandle(&unasked)}, 5), 258u);
    EXPECT_THAT(unasked.timeouts, ElementsAre());
    EXPECT_EQ(WaitAll({ToHandle(&slow)}, 6), 0u);
    EXPECT_EQ(WaitAll({ToHandle(&slow)}, 5), 258u) << "an expired timeout also overrides the last handle";
}

TEST_F(WaitAllTest, AFiniteTimeoutMapsAnAbandonedObjectToItsIndex)
{
    Scripted good({0});
    Scripted abandoned({0x80});
    EXPECT_EQ(WaitAll({ToHandle(&abandoned), ToHandle(&good)}, 60000), 0x80u);
    EXPECT_EQ(WaitAll({ToHandle(&good), ToHandle(&good), ToHandle(&abandoned)}, 60000), 0x82u);
    for (const DWORD result : {DWORD{258}, failed, DWORD{7}}) {
        Scripted bad({result});
        EXPECT_EQ(WaitAll({ToHandle(&good), ToHandle(&bad), ToHandle(&abandoned)}, 60000), result);
    }
}

TEST_F(WaitAllTest, AnEventTakenEarlyStaysConsumedWhenALaterOneTimesOut)
{
    for (const DWORD timeout : {DWORD{0}, DWORD{25}}) {
        WinEvent taken(false, true);
        WinEvent kept(true, true);
        WinEvent never(false, false);
        EXPECT_EQ(WaitAll({ToHandle(&taken), ToHandle(&kept), ToHandle(&never)}, timeout), 258u);
        EXPECT_FALSE(taken.signal);
        EXPECT_TRUE(kept.signal);
    }
}

TEST_F(WaitAllTest, AMutexIsTakenWithAnyTimeoutExceptZero)
{
    WinEvent set(true, true);
    WinMutex mutex(false);
    EXPECT_EQ(WaitAll({ToHandle(&set), ToHandle(&mutex)}, 0), 258u);
    EXPECT_EQ(WaitAll({ToHandle(&set), ToHandle(&mutex)}, 60000), 0u);
    EXPECT_FALSE(mutex.mtx.try_lock());
}

TEST_F(WaitsTest, AnyNonzeroValueMeansAll)
{
    WinEvent set(true, true);
    WinEvent unset(true, false);
    const HANDLE handles[] = {ToHandle(&set), ToHandle(&unset)};
    EXPECT_EQ(WaitForMultipleObjects(2, handles, 5, 0), 258u);
    EXPECT_EQ(WaitForMultipleObjects(2, handles, FALSE, 0), 0u);
}

TEST_F(WaitsTest, AnInvalidHandleStopsTheProcess)
{
    WinEvent unset(true, false);
    for (const HANDLE none : {HANDLE{nullptr}, INVALID_HANDLE_VALUE}) {
        EXPECT_DEATH(WaitAny({ToHandle(&unset), none}, 0), "Assertion .IsObject\\(handle\\). failed");
        EXPECT_DEATH(WaitAny({none}, 10), "Assertion .IsObject\\(handle\\). failed");
        EXPECT_DEATH(WaitAll({none}, INFINITE), "Assertion .IsObject\\(handle\\). failed");
    }
}

TEST_F(WaitsTest, AnObjectThatCannotBeWaitedForStopsTheProcess)
{
    WinFileHandle file(0);
    EXPECT_DEATH(WaitForSingleObject(ToHandle(&file), 0), "Assertion .object != nullptr. failed");
    EXPECT_DEATH(WaitAny({ToHandle(&file)}, 0), "Assertion .object != nullptr. failed");
}

TEST_F(WaitsTest, AnEmptyListWithATimeoutStopsTheProcess)
{
    EXPECT_DEATH(WaitForMultipleObjects(0, nullptr, FALSE, 10), "Assertion .nCount > 0. failed");
}

} // namespace
