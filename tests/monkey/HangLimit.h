// Ends a program that hangs.
#pragma once

#include <csignal>
#include <ctime>

#include <unistd.h>

/// Ends the process unless the next call follows within 300 seconds: by SIGABRT, for which a sanitizer with
/// `handle_abort=1` prints the stack of the thread that receives it, usually the main thread; and by SIGALRM
/// if it still runs 30 seconds later. Not thread-safe.
inline void limitHang()
{
    constexpr unsigned seconds = 300;
    constexpr unsigned forTheStack = 30;
    static const timer_t timer = [] {
        sigevent event{};
        event.sigev_notify = SIGEV_SIGNAL;
        event.sigev_signo = SIGABRT;
        timer_t made{};
        timer_create(CLOCK_MONOTONIC, &event, &made);
        return made;
    }();
    const itimerspec time{{0, 0}, {seconds, 0}};
    timer_settime(timer, 0, &time, nullptr);
    alarm(seconds + forTheStack);
}
