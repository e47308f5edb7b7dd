// Time stamps of maintenance jobs. They always increase, even if the clock does not.
#include "FerroJob.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace {

timeb moment(time_t second, unsigned short millisecond)
{
    timeb time{};
    time.time = second;
    time.millitm = millisecond;
    return time;
}

TEST(JobStamp, IsNowOrAMillisecondAfterTheLast)
{
    struct StampCase
    {
        const char* name;
        timeb now, last, stamp;
    };
    const StampCase stamps[] = {
        {"the first", moment(1000, 0), moment(0, 0), moment(1000, 0)},
        {"a millisecond later", moment(1000, 501), moment(1000, 500), moment(1000, 501)},
        {"much later in the second", moment(1000, 999), moment(1000, 0), moment(1000, 999)},
        {"the next second, fewer milliseconds", moment(1001, 0), moment(1000, 999), moment(1001, 0)},
        {"the same millisecond", moment(1000, 500), moment(1000, 500), moment(1000, 501)},
        {"the same millisecond, the first of a second", moment(1000, 0), moment(1000, 0), moment(1000, 1)},
        {"an earlier millisecond", moment(1000, 499), moment(1000, 500), moment(1000, 501)},
        {"the last before the carry", moment(1000, 998), moment(1000, 998), moment(1000, 999)},
        {"999 again", moment(1000, 999), moment(1000, 999), moment(1001, 0)},
        {"before 999", moment(1000, 5), moment(1000, 999), moment(1001, 0)},
        {"an earlier second, more milliseconds", moment(999, 999), moment(1000, 500), moment(1000, 501)},
        {"a clock set back by a year", moment(1000, 7), moment(31537000, 999), moment(31537001, 0)},
        {"the end of 32 bits", moment(2147483647, 999), moment(2147483647, 999), moment(2147483648, 0)},
    };
    for (const StampCase& row : stamps) {
        SCOPED_TRACE(row.name);
        const timeb stamp = risingStamp(row.now, row.last);
        EXPECT_EQ(stamp.time, row.stamp.time);
        EXPECT_EQ(stamp.millitm, row.stamp.millitm);
    }
}

TEST(JobStamp, StartsAtTheCurrentTime)
{
    timespec before{};
    timespec after{};
    timeb time{};
    tm date{};
    clock_gettime(CLOCK_REALTIME, &before);
    CFerroJob().getCurrentTimeForFileName(time, date);
    clock_gettime(CLOCK_REALTIME, &after);
    const long long stamp = time.time * 1000LL + time.millitm;
    EXPECT_GE(stamp, before.tv_sec * 1000LL + before.tv_nsec / 1000000);
    EXPECT_LE(stamp, after.tv_sec * 1000LL + after.tv_nsec / 1000000);
}

TEST(JobStamp, IncreasesWithEachCallOfAnyObjectAndCarriesIntoTheSecond)
{
    timeb last{};
    tm date{};
    CFerroJob().getCurrentTimeForFileName(last, date);
    for (int i = 0; i < 2500; ++i) { // faster than the clock: some carry into the next second
        timeb time{};
        CFerroJob().getCurrentTimeForFileName(time, date);
        ASSERT_LT(time.millitm, 1000);
        ASSERT_GT(time.time * 1000LL + time.millitm, last.time * 1000LL + last.millitm);
        ASSERT_EQ(date.tm_sec, time.time % 60);
        last = time;
    }
}

TEST(JobStamp, DateIsLocal)
{
    setenv("TZ", "XYZ-5:45", 1);
    tzset();
    timeb time{};
    tm date{};
    CFerroJob().getCurrentTimeForFileName(time, date);
    const time_t shifted = time.time + (5 * 60 + 45) * 60;
    tm expected{};
    gmtime_r(&shifted, &expected);
    EXPECT_EQ(date.tm_year, expected.tm_year);
    EXPECT_EQ(date.tm_mon, expected.tm_mon);
    EXPECT_EQ(date.tm_mday, expected.tm_mday);
    EXPECT_EQ(date.tm_hour, expected.tm_hour);
    EXPECT_EQ(date.tm_min, expected.tm_min);
    EXPECT_EQ(date.tm_sec, expected.tm_sec);
}

} // namespace
