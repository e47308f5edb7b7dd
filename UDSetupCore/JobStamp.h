// The creation time of a maintenance job. It distinguishes the jobs of this program.
#pragma once

#include <ctime>

#include <sys/timeb.h> // only for the struct; ftime() is deprecated

/// The time of a job, as its texts need it.
struct JobStamp
{
    timeb time; ///< since the epoch
    tm date;    ///< the same time as a local date, to the second
};

/// `now`, or `last` plus one millisecond if the clock has not advanced since or was set back.
inline timeb risingStamp(const timeb& now, const timeb& last)
{
    constexpr int millisecondsPerSecond = 1000;
    if (now.time > last.time || (now.time == last.time && now.millitm > last.millitm)) {
        return now;
    }
    timeb next = last;
    ++next.millitm;
    if (next.millitm >= millisecondsPerSecond) {
        next.millitm -= millisecondsPerSecond;
        ++next.time;
    }
    return next;
}
