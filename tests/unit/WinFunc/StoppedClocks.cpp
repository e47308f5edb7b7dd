#include "StoppedClocks.h"

#include <atomic>
#include <cstdint>
#include <ctime>

#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr int64_t RUNNING = -1;
constexpr int64_t SECOND = 1'000'000'000;

std::atomic<int64_t> g_nanoseconds = RUNNING;

} // namespace

StoppedClocks::StoppedClocks(std::chrono::nanoseconds time)
{
    g_nanoseconds = time.count();
}

StoppedClocks::~StoppedClocks()
{
    g_nanoseconds = RUNNING;
}

void StoppedClocks::Advance(std::chrono::nanoseconds time)
{
    g_nanoseconds += time.count();
}

extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    const int64_t stopped = g_nanoseconds;
    if (stopped == RUNNING) {
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    }
    *time = {stopped / SECOND, stopped % SECOND};
    return 0;
}

extern "C" int gettimeofday(timeval* time, void* zone) noexcept
{
    const int64_t stopped = g_nanoseconds;
    if (stopped == RUNNING) {
        return static_cast<int>(syscall(SYS_gettimeofday, time, zone));
    }
    *time = {stopped / SECOND, stopped % SECOND / 1000};
    return 0;
}
