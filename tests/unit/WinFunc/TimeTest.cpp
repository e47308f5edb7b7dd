#include "StoppedClocks.h"
#include "Win_def.h"
#include "Win_def_log.h"

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <regex>
#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/time.h>

namespace {

void UseTimeZone(const char* zone)
{
    setenv("TZ", zone, 1);
}

int64_t NowInMilliseconds()
{
    timeval now{};
    gettimeofday(&now, nullptr);
    return now.tv_sec * 1000 + now.tv_usec / 1000;
}

/// The fields as milliseconds since 1970, read as UTC.
int64_t InMilliseconds(const SYSTEMTIME& time)
{
    tm fields{};
    fields.tm_year = time.wYear - 1900;
    fields.tm_mon = time.wMonth - 1;
    fields.tm_mday = time.wDay;
    fields.tm_hour = time.wHour;
    fields.tm_min = time.wMinute;
    fields.tm_sec = time.wSecond;
    return timegm(&fields) * 1000 + time.wMilliseconds;
}

int DayOfWeek(int64_t milliseconds)
{
    return static_cast<int>((milliseconds / 86400000 + 4) % 7); // 1970 began on a Thursday
}

int64_t MonotonicMilliseconds()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

} // namespace

TEST(Time, SystemTimeIsUtcInAnyZone)
{
    for (const char* zone : {"UTC0", "XYZ-14", "XYZ+12"}) {
        UseTimeZone(zone);
        SYSTEMTIME time;
        memset(&time, 0xFF, sizeof time);
        const int64_t before = NowInMilliseconds();
        GetSystemTime(&time);
        const int64_t after = NowInMilliseconds();
        EXPECT_GE(InMilliseconds(time), before) << zone;
        EXPECT_LE(InMilliseconds(time), after) << zone;
        EXPECT_EQ(time.wDayOfWeek, DayOfWeek(InMilliseconds(time)));
        EXPECT_LT(time.wMilliseconds, 1000);
    }
}

TEST(Time, LocalTimeFollowsTheZone)
{
    struct Row
    {
        const char* zone;
        int64_t offset; ///< minutes east of UTC
    };
    const Row rows[] = {{"UTC0", 0}, {"XYZ-9", 540}, {"XYZ-5:30", 330}, {"XYZ+12", -720}};
    for (const Row& row : rows) {
        UseTimeZone(row.zone);
        SYSTEMTIME time;
        memset(&time, 0xFF, sizeof time);
        const int64_t before = NowInMilliseconds() + row.offset * 60000;
        GetLocalTime(&time);
        const int64_t after = NowInMilliseconds() + row.offset * 60000;
        EXPECT_GE(InMilliseconds(time), before) << row.zone;
        EXPECT_LE(InMilliseconds(time), after) << row.zone;
        EXPECT_EQ(time.wDayOfWeek, DayOfWeek(InMilliseconds(time))) << row.zone;
    }
}

TEST(Time, TimeStringIsLocalTimeInTheThreadsBuffer)
{
    UseTimeZone("XYZ-5:30");
    const int64_t before = NowInMilliseconds();
    const char* const text = GetTimeString();
    const int64_t after = NowInMilliseconds();
    EXPECT_EQ(text, g_szTimeStringTLS);

    // "hh:mm:ss:mmm" as milliseconds of the day
    std::cmatch match;
    ASSERT_TRUE(std::regex_match(text, match, std::regex("(\\d\\d):(\\d\\d):(\\d\\d):(\\d{3})"))) << text;
    const int64_t shown =
        ((std::stoll(match[1]) * 60 + std::stoll(match[2])) * 60 + std::stoll(match[3])) * 1000 +
        std::stoll(match[4]);
    constexpr int64_t day = 86400000;
    constexpr int64_t offset = 330 * 60000;
    const int64_t sinceBefore = (shown - (before + offset) % day + day) % day;
    EXPECT_LE(sinceBefore, after - before) << text;

    const char* other = nullptr;
    std::thread([&] { other = GetTimeString(); }).join();
    EXPECT_NE(other, text);
}

TEST(Time, TickCountIsTheMonotonicClockIn32Bits)
{
    const int64_t before = MonotonicMilliseconds();
    const DWORD ticks = GetTickCount();
    const int64_t after = MonotonicMilliseconds();
    EXPECT_LE(ticks - static_cast<DWORD>(before), static_cast<DWORD>(after - before));
}

TEST(Time, PartsOfAMillisecondAreCutOff)
{
    using namespace std::chrono_literals;
    SYSTEMTIME utc{};
    const StoppedClocks clocks(5s + 999'999'999ns);
    EXPECT_EQ(GetTickCount(), 5999u);
    GetSystemTime(&utc);
    EXPECT_EQ(utc.wSecond, 5);
    EXPECT_EQ(utc.wMilliseconds, 999);
    StoppedClocks::Advance(1ns);
    EXPECT_EQ(GetTickCount(), 6000u);
    StoppedClocks::Advance(4'294'961'296ms);
    EXPECT_EQ(GetTickCount(), 0u) << "after 2^32 milliseconds";
}

TEST(Time, SleepLastsAsLongAsRequested)
{
    for (const DWORD asked : {0U, 1U, 50U, 1020U}) {
        const int64_t before = MonotonicMilliseconds();
        Sleep(asked); // house-rule: sleeps: the subject of the test
        const int64_t lasted = MonotonicMilliseconds() - before;
        EXPECT_GE(lasted + 1, asked);
        EXPECT_LT(lasted, asked + 20000) << asked;
    }
}

TEST(Time, SleepContinuesAfterASignal)
{
    struct sigaction action{};
    action.sa_handler = [](int) {};
    ASSERT_EQ(sigaction(SIGALRM, &action, nullptr), 0);
    itimerval timer{};
    timer.it_value.tv_usec = 50000;
    ASSERT_EQ(setitimer(ITIMER_REAL, &timer, nullptr), 0);
    const int64_t before = MonotonicMilliseconds();
    Sleep(2000);                                       // house-rule: sleeps: the subject of the test
    EXPECT_GE(MonotonicMilliseconds() - before, 1000); // it loses less than a second
}

TEST(Time, CompareFileTimeTable)
{
    struct Row
    {
        FILETIME left;
        FILETIME right;
        LONG result;
    };
    const Row rows[] = {
        {{0, 0}, {0, 0}, 0},           {{5, 7}, {5, 7}, 0},          {{4, 7}, {5, 7}, -1},
        {{5, 7}, {4, 7}, 1},           {{9, 6}, {0, 7}, -1},         {{0, 7}, {9, 6}, 1},
        {{0xFFFFFFFF, 0}, {0, 1}, -1}, {{0, 0xFFFFFFFF}, {0, 0}, 1}, {{0xFFFFFFFF, 0}, {0, 0}, 1},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(CompareFileTime(&row.left, &row.right), row.result)
            << row.left.dwHighDateTime << ":" << row.left.dwLowDateTime;
    }
}

TEST(Time, FileTimeConversionsDoNotChangeTheirOutputs)
{
    FILETIME fileTime{11, 22};
    SYSTEMTIME systemTime{1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(FileTimeToSystemTime(&fileTime, &systemTime), TRUE);
    EXPECT_EQ(systemTime.wYear, 1);
    EXPECT_EQ(systemTime.wMilliseconds, 8);
    EXPECT_EQ(SystemTimeToFileTime(&systemTime, &fileTime), TRUE);
    EXPECT_EQ(fileTime.dwLowDateTime, 11U);
    EXPECT_EQ(fileTime.dwHighDateTime, 22U);
    EXPECT_EQ(GetFileTime(nullptr, &fileTime, nullptr, &fileTime), TRUE);
    EXPECT_EQ(fileTime.dwLowDateTime, 11U);
    EXPECT_EQ(fileTime.dwHighDateTime, 22U);
}

TEST(Time, TimeZoneBiasIsTheDifferenceOfTheHoursOfTheDay)
{
    struct Row
    {
        const char* zone;
        int64_t offset; ///< minutes east of UTC
    };
    const Row rows[] = {{"UTC0", 0},       {"XYZ-1", 60},      {"XYZ-9", 540},  {"XYZ-14", 840},
                        {"XYZ-5:30", 330}, {"XYZ+3:30", -210}, {"XYZ+5", -300}, {"XYZ+12", -720}};
    for (const Row& row : rows) {
        UseTimeZone(row.zone);
        TIME_ZONE_INFORMATION information;
        int64_t minute = 0;
        do { // repeat if the minute changed meanwhile
            minute = NowInMilliseconds() / 60000;
            memset(&information, 0xFF, sizeof information);
            EXPECT_EQ(GetTimeZoneInformation(&information), 0U);
        } while (NowInMilliseconds() / 60000 != minute);

        const int64_t utcHour = minute / 60 % 24;
        const int64_t localHour = (minute + row.offset) / 60 % 24;
        EXPECT_EQ(information.Bias, (utcHour - localHour) * 60) << row.zone;
        EXPECT_EQ(information.StandardBias, 0);
        EXPECT_EQ(information.StandardDate.wYear, 0);
        EXPECT_EQ(information.StandardDate.wMilliseconds, 0);
    }
}

TEST(Time, ManyThreadsMayReadTheClocks)
{
    unsetenv("TZ"); // the C library then reads the system's time zone on each call
    std::thread threads[4];
    for (std::thread& thread : threads) {
        thread = std::thread([] {
            for (int round = 0; round < 200; ++round) {
                SYSTEMTIME time{};
                GetSystemTime(&time);
                EXPECT_GE(time.wYear, 2020);
                GetLocalTime(&time);
                EXPECT_GE(time.wYear, 2020);
                EXPECT_EQ(strlen(GetTimeString()), 12U);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}
