#include <csignal>

/// Ignores SIGPIPE, which would end the process when the control service or a console closes its end. The
/// signal is ignored before main and before any object of the program is constructed, so that it cannot kill
/// the process at any later moment. Child processes inherit this; QProcess restores the default in its
/// children.
///
/// No code calls this function. The library's link options add it to every program, including one that only
/// prints and opens no handle.
extern "C" [[gnu::constructor(101)]] void IgnoreBrokenPipes()
{
    struct sigaction action = {};
    action.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &action, nullptr);
}
