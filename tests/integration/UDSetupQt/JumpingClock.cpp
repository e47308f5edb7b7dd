// A library that is preloaded into the program: it adds an offset to the wall clock and to the time since
// boot. The monotonic clock is left alone: it neither jumps nor counts suspended time. A test sets the
// offsets, in seconds, in the file that JUMPING_CLOCK names (see JumpingClock.h).
//
// The kernel keeps its own clocks. A wait until a wall clock time that the program computes is therefore too
// long by the offset, as if the clock were set back during the wait, or ends at once, as if it were set
// forward.
#include "JumpingClock.h"

#include <cstdlib>
#include <ctime>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

const ClockOffsets* offsets = nullptr;

[[gnu::constructor]] void mapOffsets()
{
    const char* name = std::getenv("JUMPING_CLOCK");
    const int file = name == nullptr ? -1 : open(name, O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return;
    }
    void* const memory = mmap(nullptr, sizeof(ClockOffsets), PROT_READ, MAP_SHARED, file, 0);
    close(file);
    offsets = memory == MAP_FAILED ? nullptr : static_cast<const ClockOffsets*>(memory);
}

time_t offsetOf(clockid_t clock)
{
    if (offsets == nullptr) {
        return 0;
    }
    switch (clock) {
    case CLOCK_REALTIME:
    case CLOCK_REALTIME_COARSE:
        return offsets->wall;
    case CLOCK_BOOTTIME:
        return offsets->boot;
    default:
        return 0;
    }
}

} // namespace

extern "C" {

int clock_gettime(clockid_t clock, timespec* now) noexcept
{
    const auto result = static_cast<int>(syscall(SYS_clock_gettime, clock, now));
    if (result == 0) {
        now->tv_sec += offsetOf(clock);
    }
    return result;
}

int gettimeofday(timeval* __restrict seconds, void* __restrict /*zone*/) noexcept
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    seconds->tv_sec = now.tv_sec;
    seconds->tv_usec = now.tv_nsec / 1000;
    return 0;
}

time_t time(time_t* seconds) noexcept
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    if (seconds != nullptr) {
        *seconds = now.tv_sec;
    }
    return now.tv_sec;
}
}
