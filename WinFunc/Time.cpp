#include "Win_def.h"
#include "Win_def_log.h"

#include <ctime>
#include <mutex>

#include <sched.h>
#include <sys/time.h>
#include <unistd.h>

constinit thread_local char g_szTimeStringTLS[64] = {};

namespace {

timeval Now()
{
    timeval now{};
    gettimeofday(&now, nullptr);
    return now;
}

tm Utc(time_t seconds)
{
    tm fields{};
    gmtime_r(&seconds, &fields);
    return fields;
}

/// Like localtime, which reads the time zone on each call, but returns a separate result to each caller.
tm Local(time_t seconds)
{
    // The thread sanitizer cannot see the C library's own lock around the time zone data.
    static std::mutex zone;
    const std::lock_guard lock(zone);
    tzset();
    tm fields{};
    localtime_r(&seconds, &fields);
    return fields;
}

WORD MillisecondsOf(const timeval& time)
{
    return static_cast<WORD>(time.tv_usec / 1000);
}

SYSTEMTIME ToSystemTime(const tm& fields, WORD milliseconds)
{
    SYSTEMTIME result{};
    result.wYear = static_cast<WORD>(fields.tm_year + 1900);
    result.wMonth = static_cast<WORD>(fields.tm_mon + 1);
    result.wDayOfWeek = static_cast<WORD>(fields.tm_wday);
    result.wDay = static_cast<WORD>(fields.tm_mday);
    result.wHour = static_cast<WORD>(fields.tm_hour);
    result.wMinute = static_cast<WORD>(fields.tm_min);
    result.wSecond = static_cast<WORD>(fields.tm_sec);
    result.wMilliseconds = milliseconds;
    return result;
}

} // namespace

void GetSystemTime(LPSYSTEMTIME lpSystemTime)
{
    const timeval now = Now();
    *lpSystemTime = ToSystemTime(Utc(now.tv_sec), MillisecondsOf(now));
}

void GetLocalTime(LPSYSTEMTIME lpSystemTime)
{
    const timeval now = Now();
    *lpSystemTime = ToSystemTime(Local(now.tv_sec), MillisecondsOf(now));
}

DWORD GetTickCount()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<DWORD>(now.tv_sec * 1000 + now.tv_nsec / 1000000);
}

void Sleep(DWORD dwMilliseconds)
{
    if (dwMilliseconds == 0) {
        sched_yield();
        return;
    }
    unsigned int seconds = dwMilliseconds / 1000;
    while (seconds > 0) {
        seconds = sleep(seconds); // the time left when a signal arrived
    }
    usleep(dwMilliseconds % 1000 * 1000);
}

LONG CompareFileTime(const FILETIME* lpFileTime1, const FILETIME* lpFileTime2)
{
    if (lpFileTime1->dwHighDateTime != lpFileTime2->dwHighDateTime) {
        return lpFileTime1->dwHighDateTime < lpFileTime2->dwHighDateTime ? -1 : 1;
    }
    if (lpFileTime1->dwLowDateTime != lpFileTime2->dwLowDateTime) {
        return lpFileTime1->dwLowDateTime < lpFileTime2->dwLowDateTime ? -1 : 1;
    }
    return 0;
}

BOOL FileTimeToSystemTime(const FILETIME*, LPSYSTEMTIME)
{
    return TRUE;
}

BOOL SystemTimeToFileTime(const SYSTEMTIME*, LPFILETIME)
{
    return TRUE;
}

BOOL GetFileTime(HANDLE, LPFILETIME, LPFILETIME, LPFILETIME)
{
    return TRUE;
}

DWORD GetTimeZoneInformation(LPTIME_ZONE_INFORMATION lpTimeZoneInformation)
{
    const time_t now = Now().tv_sec;
    *lpTimeZoneInformation = {};
    lpTimeZoneInformation->Bias = Utc(now).tm_hour * 60 - Local(now).tm_hour * 60;
    return 0;
}

const char* GetTimeString()
{
    SYSTEMTIME now{};
    GetLocalTime(&now);
    snprintf(g_szTimeStringTLS, sizeof g_szTimeStringTLS, "%02d:%02d:%02d:%03d", now.wHour, now.wMinute,
             now.wSecond, now.wMilliseconds);
    return g_szTimeStringTLS;
}
