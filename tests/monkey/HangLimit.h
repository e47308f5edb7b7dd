// Ends a program that hangs.
#pragma once

#include <csignal>
#include <cstdlib>

#include <unistd.h>

/// Ends the process with SIGABRT unless the next call follows within 300 seconds. With `handle_abort=1` a
/// sanitizer then prints the stack of the thread that the signal meets, usually the main thread.
inline void limitHang()
{
    constexpr unsigned seconds = 300;
    std::signal(SIGALRM, [](int) { std::abort(); });
    alarm(seconds);
}
