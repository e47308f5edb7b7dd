#include "Win_def.h"

#include <deque>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/syscall.h>
#include <unistd.h>

// The C library calls that Sleep makes. No time passes: this program's definitions replace the C library's.

namespace {

using Calls = std::vector<std::string>;

Calls calls;
bool noting = false;               ///< only while Sleep runs: sanitizers yield too, with the allocator locked
std::deque<unsigned int> leftOver; ///< what the next calls of sleep return, as after a signal

Calls CallsOf(DWORD milliseconds)
{
    calls.clear();
    noting = true;
    Sleep(milliseconds); // house-rule: sleeps: the subject of the test
    noting = false;
    return calls;
}

} // namespace

// house-rule: sleeps: the definition that replaces the C library's
extern "C" unsigned int sleep(unsigned int seconds)
{
    calls.push_back("sleep " + std::to_string(seconds));
    if (leftOver.empty()) {
        return 0;
    }
    const unsigned int left = leftOver.front();
    leftOver.pop_front();
    return left;
}

// house-rule: sleeps: the definition that replaces the C library's
extern "C" int usleep(useconds_t microseconds)
{
    calls.push_back("usleep " + std::to_string(microseconds));
    return 0;
}

extern "C" int sched_yield() noexcept
{
    if (!noting) {
        return static_cast<int>(syscall(SYS_sched_yield));
    }
    calls.emplace_back("sched_yield");
    return 0;
}

TEST(Sleep, ZeroYieldsTheProcessor)
{
    EXPECT_EQ(CallsOf(0), Calls{"sched_yield"});
}

TEST(Sleep, SleepsWholeSecondsThenTheRest)
{
    EXPECT_EQ(CallsOf(3250), (Calls{"sleep 3", "usleep 250000"}));
    EXPECT_EQ(CallsOf(1001), (Calls{"sleep 1", "usleep 1000"}));
    EXPECT_EQ(CallsOf(999).back(), "usleep 999000");
    EXPECT_EQ(CallsOf(2000).front(), "sleep 2");
    EXPECT_EQ(CallsOf(INFINITE), (Calls{"sleep 4294967", "usleep 295000"}));
}

TEST(Sleep, ContinuesWithTheTimeThatASignalLeft)
{
    leftOver = {4, 1};
    EXPECT_EQ(CallsOf(5500), (Calls{"sleep 5", "sleep 4", "sleep 1", "usleep 500000"}));
}
