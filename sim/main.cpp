// udsim SCENARIO [--speed N] [--requests]: a room of simulated machines until it is told to end.
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "Room.h"

namespace {

constexpr char USAGE[] = R"(usage: udsim SCENARIO [--speed N] [--requests]

Simulates the control service and its log agent, with the publishers of a scenario file, until it is ended
(SIGTERM or Ctrl-C). It prints "udsim: ready" once it can be asked, a line for each notable change, and a
line for each record that the log agent takes.

  --speed N    N simulated seconds pass in a real one (default 1, up to 1000)
  --requests   print every request, too
)";

constexpr int EXIT_USAGE = 64;
constexpr double HIGHEST_SPEED = 1000;

struct Options
{
    std::string scenario;
    double speed = 1;
    bool requests = false;
    bool help = false;
};

bool parseSpeed(const char* text, double& speed)
{
    const char* const end = text + std::strlen(text);
    const auto [stopped, failure] = std::from_chars(text, end, speed);
    return failure == std::errc() && stopped == end && speed > 0 && speed <= HIGHEST_SPEED;
}

bool parseOptions(int argc, char** argv, Options& options)
{
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--help") {
            options.help = true;
        } else if (argument == "--requests") {
            options.requests = true;
        } else if (argument == "--speed") {
            if (++i == argc || !parseSpeed(argv[i], options.speed)) {
                return false;
            }
        } else if (argument.starts_with("-") || !options.scenario.empty()) {
            return false;
        } else {
            options.scenario = argument;
        }
    }
    return options.help || !options.scenario.empty();
}

void print(const std::string& line)
{
    std::fprintf(stdout, "%s\n", line.c_str());
    std::fflush(stdout);
}

/// Blocks the signals that end the program, in every thread to come.
sigset_t holdSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGHUP);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

int run(const Options& options)
{
    std::string error;
    const auto scenario = udsim::Scenario::load(options.scenario, error);
    if (!scenario) {
        std::fprintf(stderr, "udsim: %s\n", error.c_str());
        return EXIT_FAILURE;
    }
    const sigset_t signals = holdSignals();
    udsim::Room room(*scenario, options.speed);
    room.onNote(print);
    room.onRecord([](const udsim::LogRecord& record) {
        print("log " + std::to_string(record.priority) + " " + record.message);
    });
    if (options.requests) {
        room.onRequest([](const udsim::Request& request) {
            print("asked " + std::to_string(request.control) + " " + request.publisher +
                  (request.job.empty() ? "" : " " + request.job));
        });
    }
    if (options.requests) {
        room.onHttpRequest([](const udsim::HttpRequest& request) {
            print("asked " + request.host + " " + request.method + " " + request.target +
                  (request.bodySize > 0 ? " (" + std::to_string(request.bodySize) + " bytes)" : ""));
        });
    }
    if (!room.start(error)) {
        std::fprintf(stderr, "udsim: %s\n", error.c_str());
        return EXIT_FAILURE;
    }
    print("udsim: ready");
    int received = 0;
    sigwait(&signals, &received);
    room.stop();
    print("udsim: ended");
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN); // a lost terminal ends nothing
    Options options;
    if (!parseOptions(argc, argv, options)) {
        std::fputs(USAGE, stderr);
        return EXIT_USAGE;
    }
    if (options.help) {
        std::fputs(USAGE, stdout);
        return EXIT_SUCCESS;
    }
    return run(options);
}
