// Measures ulmar-disc-status with ten local publishers, from the start of the program to its end, compared
// with the bare requests to the control service that it needs. The difference is the program's own time.
#include "Stopwatch.h"

#include "InstallPaths.h"
#include "Room.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int publishers = 10;
constexpr int repetitions = 101;
constexpr double goal = 30; // milliseconds beyond the time of the service

constexpr uint64_t getJobStatus = 4;
constexpr uint64_t processingJobs = 1;
constexpr uint64_t getFatalCode = 22;
constexpr size_t requestSize = 408;
constexpr size_t idAt = 8;
constexpr size_t parameterAt = 400;
constexpr size_t headerSize = 24;
constexpr size_t lengthAt = 16;

std::string idOf(int number)
{
    return "ID" + std::to_string(number);
}

/// One exchange with the control service. Returns false on failure.
bool exchange(uint64_t control, const std::string& id, uint64_t parameter)
{
    std::string request(requestSize, '\0');
    std::memcpy(request.data(), &control, sizeof control);
    std::memcpy(&request[idAt], id.data(), id.size());
    std::memcpy(&request[parameterAt], &parameter, sizeof parameter);

    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, SERVICE_SOCKET, sizeof SERVICE_SOCKET);
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    char header[headerSize] = {};
    bool done = ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
                ::write(fd, request.data(), request.size()) == static_cast<ssize_t>(request.size()) &&
                ::recv(fd, header, sizeof header, MSG_WAITALL) == static_cast<ssize_t>(sizeof header);
    uint64_t length = 0;
    std::memcpy(&length, header + lengthAt, sizeof length);
    std::string payload(done ? length : 0, '\0');
    done = done && (payload.empty() || ::recv(fd, payload.data(), payload.size(), MSG_WAITALL) ==
                                           static_cast<ssize_t>(payload.size()));
    ::close(fd);
    return done;
}

void requireSuccess(bool success, const char* what)
{
    if (!success) {
        std::fprintf(stderr, "StatusListBench: %s failed\n", what);
        std::exit(1);
    }
}

void runProgram()
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    char program[] = STATUS_PROGRAM;
    char* argv[] = {program, nullptr};
    pid_t pid = -1;
    requireSuccess(::posix_spawn(&pid, program, &actions, nullptr, argv, environ) == 0,
                   "the start of the program");
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    ::waitpid(pid, &status, 0);
    requireSuccess(WIFEXITED(status) && WEXITSTATUS(status) == 0, "the program");
}

void askBare()
{
    for (int i = 0; i < publishers; ++i) {
        requireSuccess(exchange(getFatalCode, idOf(i), 0) && exchange(getJobStatus, idOf(i), processingJobs),
                       "a request");
    }
}

} // namespace

int main()
{
    std::string text;
    for (int i = 0; i < publishers; ++i) {
        text += "[publisher Studio " + std::to_string(i) +
                "]\nmodel = RT-300III BD\njobs = 3\nid = " + idOf(i) + "\n";
    }
    std::string error;
    const auto scenario = udsim::Scenario::parse(text, error);
    requireSuccess(scenario.has_value(), "the scenario");
    udsim::Room room(*scenario);
    requireSuccess(room.start(error), "the service");

    const std::vector<double> medians = Compare(
        "ulmar-disc-status, ten local publishers",
        {{"the program", runProgram, {}}, {"the bare requests to the service", askBare, {}}}, repetitions);
    constexpr double microsecondsPerMillisecond = 1000;
    PrintGoal("ten local publishers listed, beyond the service",
              (medians[0] - medians[1]) / microsecondsPerMillisecond, goal, "ms");
    return 0;
}
