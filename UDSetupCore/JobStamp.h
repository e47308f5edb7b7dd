// The moment at which a maintenance job was made, which tells the jobs of this program apart.
#pragma once

#include <ctime>

#include <sys/timeb.h> // for the record alone: the call that goes with it is deprecated

/// What the texts of a job say about its time.
struct JobStamp
{
    timeb time; ///< since the epoch
    tm date;    ///< the same in local time, to the second
};

/// `now`, or a millisecond after `last` when the clock has not gone on since, or went back.
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
