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
with their progress. It requires root. The package installs scenarios in /usr/share/udsim.

  --speed N       simulate N seconds in each real second (default 1, up to 1000)
  --requests      print every request, too
  --control PATH  the socket for commands (default /var/run/udsim.socket)
  --check         check the scenario, print its contents or its errors, and exit

forget removes the publishers of a scenario, which stay registered when udsim ends. It requires root.

tell sends a command to a running udsim:
  --list          print the state of each publisher
  COMMAND         online, offline, error N, clear, add-job NAME, copies=N, pause, resume, refill,
                  ink COLOUR PERCENT, stacker N DISCS, server on|off

record writes a session with a real service or server to FILE, without passwords. replay answers from such a
file:
  --service       record the control service of this computer (requires root)
  --server HOST   record this publisher server, as a proxy for its clients
  --listen        the address at which clients connect (default 127.0.0.1:80)

Examples:
  sudo udsim /usr/share/udsim/first.udsim --speed 5
  sudo udsim tell Reception offline
  sudo udsim tell Reception add-job "Annual report, copies=2"
  sudo udsim forget /usr/share/udsim/first.udsim
  sudo udsim record --server 192.168.1.20 --listen 127.0.0.1 trouble.udrec

Exit status: 0 success, 1 failure, 64 wrong usage, 69 no udsim is running, 77 no permission to
send it commands. The manual page, udsim(1), describes scenarios, commands and the format of recordings.
)";

} // namespace

int showHelp(const Arguments& arguments)
{
    if (!arguments.empty()) {
        return wrongUsage("--help takes no other argument");
    }
    std::fputs(HELP, stdout);
    return EXIT_DONE;
}

int showVersion(const Arguments& arguments)
{
    if (!arguments.empty()) {
        return wrongUsage("--version takes no other argument");
    }
    std::puts("udsim " UDSIM_VERSION);
    return EXIT_DONE;
}

} // namespace udsim
