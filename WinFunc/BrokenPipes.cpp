#include <csignal>

/// A service that goes away in mid-request, or a console that does, would end the process by SIGPIPE. The
/// signal is set aside before main and before any object of the program is made: a later moment would leave a
/// window in which it kills. A child process inherits this; QProcess gives its children the default back.
///
/// No code calls this by name. The library's build puts it into every program, also into one that prints and
/// opens no handle.
extern "C" [[gnu::constructor(101)]] void IgnoreBrokenPipes()
{
    struct sigaction action = {};
    action.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &action, nullptr);
}
