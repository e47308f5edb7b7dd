// udsim SCENARIO: runs the room until a signal ends it.
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <ctime>
#include <mutex>
#include <utility>

#include <unistd.h>

#include "Room.h"
#include "Screen.h"
#include "Subcommands.h"
#include "TellSocket.h"

namespace udsim {

namespace {

constexpr double HIGHEST_SPEED = 1000;
constexpr timespec REDRAW{0, 250'000'000};

bool parseSpeed(const std::string& text, double& speed)
{
    const char* const end = text.data() + text.size();
    const auto [stopped, failure] = std::from_chars(text.data(), end, speed);
    return failure == std::errc() && stopped == end && speed > 0 && speed <= HIGHEST_SPEED;
}

/// Prints the room's lines. On a terminal they wait for the next redraw of the jobs below them.
class Display
{
public:
    void print(const std::string& line)
    {
        if (!m_live) {
            printLine(line);
            return;
        }
        const std::lock_guard lock(m_mutex);
        m_lines.push_back(line);
    }

    /// On a terminal: prints the waiting lines, and the jobs.
    void redraw(const std::vector<JobProgress>& jobs)
    {
        std::vector<std::string> lines;
        {
            const std::lock_guard lock(m_mutex);
            lines.swap(m_lines);
        }
        const TerminalSize size = sizeOf(STDOUT_FILENO);
        for (std::string& line : lines) {
            line = fit(line, columnsOf(line)); // names come from clients: removes control characters
        }
        const std::string bytes = m_screen.frame(lines, progressLines(jobs, size.columns, size.rows - 1));
        std::fwrite(bytes.data(), 1, bytes.size(), stdout);
        std::fflush(stdout);
    }

    bool isLive() const
    {
        return m_live;
    }

private:
    const bool m_live = isLiveTerminal(STDOUT_FILENO);
    Screen m_screen;
    std::mutex m_mutex; ///< guards the members below
    std::vector<std::string> m_lines;
};

void showRequests(Room& room, Display& display)
{
    room.onRequest([&display](const Request& request) {
        display.print("asked " + std::to_string(request.control) + " " + request.publisher +
                      (request.job.empty() ? "" : " " + request.job));
    });
    room.onHttpRequest([&display](const HttpRequest& request) {
        display.print("asked " + request.host + " " + request.method + " " + request.target +
                      (request.bodySize > 0 ? " (" + std::to_string(request.bodySize) + " bytes)" : ""));
    });
}

void waitForTheEnd(const sigset_t& signals, const Room& room, Display& display)
{
    if (!display.isLive()) {
        int received = 0;
        sigwait(&signals, &received);
        return;
    }
    do {
        display.redraw(room.progress());
    } while (sigtimedwait(&signals, nullptr, &REDRAW) < 0);
}

bool registersAny(const Scenario& scenario)
{
    return std::any_of(scenario.publishers.begin(), scenario.publishers.end(),
                       [](const PublisherSetup& setup) { return setup.registered; }) ||
           std::any_of(scenario.servers.begin(), scenario.servers.end(),
                       [](const ServerSetup& setup) { return setup.machine.registered; });
}

/// Quotes a word for the shell if necessary.
std::string quotedForShell(const std::string& word)
{
    constexpr char PLAIN[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789/._-+:@%,=";
    if (word.find_first_not_of(PLAIN) == std::string::npos) {
        return word;
    }
    std::string quoted = "'";
    for (const char c : word) {
        quoted += c == '\'' ? "'\\''" : std::string(1, c);
    }
    return quoted + "'";
}

} // namespace

int runRoom(const Arguments& arguments)
{
    const CommandLine line(arguments, {"--speed", "--control"}, {"--requests"});
    double speed = 1;
    if (!line.mistake().empty()) {
        return wrongUsage(line.mistake());
    }
    if (line.words().size() != 1) {
        return wrongUsage(line.words().empty() ? "a scenario is required" : "only one scenario can be run");
    }
    if (const auto wanted = line.value("--speed"); wanted && !parseSpeed(*wanted, speed)) {
        return wrongUsage("\"--speed\" needs a number above 0 and up to 1000");
    }
    std::string error;
    const auto scenario = Scenario::load(line.words().front(), error);
    if (!scenario) {
        return failure(error);
    }
    const sigset_t signals = holdSignals();
    Display display;
    Room room(*scenario, speed);
    TellSocket tellSocket(room);
    room.onNote([&display](const std::string& note) { display.print(note); });
    room.onLogEntry([&display](const LogEntry& entry) {
        display.print("log " + std::to_string(entry.priority) + " " + entry.message);
    });
    if (line.has("--requests")) {
        showRequests(room, display);
    }
    if (!room.start(error) ||
        !tellSocket.start(line.value("--control").value_or(DEFAULT_TELL_SOCKET), error)) {
        return failureOfRights(error);
    }
    display.print("udsim: ready");
    waitForTheEnd(signals, room, display);
    tellSocket.stop();
    room.stop();
    if (registersAny(*scenario)) {
        display.print("udsim: the publishers stay registered; remove them with: udsim forget " +
                      quotedForShell(line.words().front()));
    }
    display.print("udsim: ended");
    if (display.isLive()) {
        display.redraw({});
    }
    return EXIT_DONE;
}

int checkScenario(const Arguments& arguments)
{
    if (arguments.size() != 1) {
        return wrongUsage("--check takes one scenario");
    }
    std::string error;
    const auto scenario = Scenario::load(arguments.front(), error);
    if (!scenario) {
        return failure(error);
    }
    printLine(arguments.front() + ": " + std::to_string(scenario->publishers.size()) + " local and " +
              std::to_string(scenario->servers.size()) + " network publishers, " +
              std::to_string(scenario->events.size()) + " events, " +
              std::to_string(scenario->faults.size() + scenario->networkFaults.size()) + " faults");
    return EXIT_DONE;
}

} // namespace udsim
