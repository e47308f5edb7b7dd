// udsim --help and udsim --version.
#include <cstdio>

#include "Subcommands.h"

namespace udsim {

namespace {

constexpr char HELP[] = R"(usage: udsim SCENARIO [--speed N] [--requests] [--control PATH]
       udsim --check SCENARIO
       udsim forget SCENARIO
       udsim tell [--control PATH] PUBLISHER COMMAND...
       udsim tell [--control PATH] service on|off
       udsim tell [--control PATH] --list
       udsim record --service FILE
       udsim record --server HOST[:PORT] [--listen ADDRESS[:PORT]] FILE
       udsim replay [--listen ADDRESS[:PORT]] FILE
       udsim --help | --version

Simulates the control service, its log agent, publisher servers and the publishers of a scenario file until
SIGTERM or Ctrl-C, and prints a line for each notable change. On a terminal the running jobs are shown below,
with their progress. It needs root. The package brings scenarios in /usr/share/udsim.

  --speed N       N simulated seconds pass in a real one (default 1, up to 1000)
  --requests      print every request, too
  --control PATH  the socket for commands (default /var/run/udsim.socket)
  --check         read the scenario, say what is wrong with it, and run nothing

forget removes the publishers that a scenario registered, which stay when udsim ends. It needs root.

tell gives a command to a running udsim:
  --list          the publishers, and how each stands
  COMMAND         online, offline, error N, clear, add-job NAME, copies=N, pause, resume, refill,
                  ink COLOUR PERCENT, stacker N DISCS, server on|off

record keeps a session with a real service or server in FILE; passwords are blanked in it. replay answers
from such a file:
  --service       stand in the place of the control service of this computer (as root)
  --server HOST   stand between clients and this publisher server
  --listen        where clients find it (default 127.0.0.1:80)

Examples:
  sudo udsim /usr/share/udsim/first.udsim --speed 5
  sudo udsim tell Reception offline
  sudo udsim tell Reception add-job "Annual report, copies=2"
  sudo udsim forget /usr/share/udsim/first.udsim
  sudo udsim record --server 192.168.1.20 --listen 127.0.0.1 trouble.udrec

Exit status: 0 done, 1 it could not be done, 64 wrong usage, 69 no udsim is running, 77 no permission to
command it. The manual page, udsim(1), describes scenarios, commands and the format of recordings.
)";

} // namespace

int showHelp(const Arguments& arguments)
{
    if (!arguments.empty()) {
        return wrongUsage("--help stands alone");
    }
    std::fputs(HELP, stdout);
    return EXIT_DONE;
}

int showVersion(const Arguments& arguments)
{
    if (!arguments.empty()) {
        return wrongUsage("--version stands alone");
    }
    std::puts("udsim " UDSIM_VERSION);
    return EXIT_DONE;
}

} // namespace udsim
