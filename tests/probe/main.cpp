// network_probe HOST [...]: calls the network library with a publisher server.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

#include "Answers.h"
#include "Submission.h"

namespace {

constexpr char USAGE[] =
    R"(usage: network_probe HOST                         prints all information from the server
       network_probe HOST --job NAME [--copies N] [--image FILE]... [--print FILE]... [--piece BYTES] [--drop]
                                                  sends a job and commits it, or cancels it (--drop)
       network_probe HOST --special cleaning|nozzle-check FILE
                                                  sends a maintenance job with this print data
       network_probe HOST --do cancel|stop|restart|front JOB
       network_probe HOST --do bridge-cancel|bridge-front ID
                                                  sends a job command, by job number or submitter's id

Exits with 1 if a required operation fails.
)";
constexpr int EXIT_USAGE = 64;

struct Options
{
    std::string host;
    std::optional<probe::NewJob> job;
    std::string special;
    std::string print;
    std::string command;
    std::string target;
};

/// Parses one option and its arguments, which begin at `rest`. Returns their number, 0 for an unknown option.
int takeOption(int count, char** rest, Options& options)
{
    const std::string name = rest[0];
    const std::string value = count > 1 ? rest[1] : "";
    if (name == "--job" && count > 1) {
        options.job.emplace().name = value;
        return 2;
    }
    if (options.job && name == "--drop") {
        options.job->commit = false;
        return 1;
    }
    if (options.job && count > 1) {
        if (name == "--copies") {
            options.job->copies = static_cast<unsigned>(std::strtoul(value.c_str(), nullptr, 10));
            return 2;
        }
        if (name == "--piece") {
            options.job->piece = std::strtoul(value.c_str(), nullptr, 10);
            return options.job->piece == 0 ? 0 : 2;
        }
        if (name == "--image" || name == "--print") {
            (name == "--image" ? options.job->images : options.job->prints).push_back(value);
            return 2;
        }
    }
    if (name == "--special" && count > 2 && (value == "cleaning" || value == "nozzle-check")) {
        options.special = value;
        options.print = rest[2];
        return 3;
    }
    if (name == "--do" && count > 2) {
        options.command = value;
        options.target = rest[2];
        return 3;
    }
    return 0;
}

bool parseOptions(int argc, char** argv, Options& options)
{
    if (argc < 2 || std::strncmp(argv[1], "-", 1) == 0) {
        return false;
    }
    options.host = argv[1];
    for (int i = 2; i < argc;) {
        const int taken = takeOption(argc - i, argv + i, options);
        if (taken == 0) {
            return false;
        }
        i += taken;
    }
    return true;
}

bool carryOut(DWORD handle, const Options& options)
{
    if (options.job) {
        return probe::submit(handle, *options.job);
    }
    if (!options.special.empty()) {
        return probe::submitSpecial(handle, options.special, options.print);
    }
    if (!options.command.empty()) {
        return probe::command(handle, options.command, options.target);
    }
    int failed = 0;
    probe::printEverything(handle, failed);
    return failed == 0;
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    if (!parseOptions(argc, argv, options)) {
        std::fputs(USAGE, stderr);
        return EXIT_USAGE;
    }
    DWORD handle = 0;
    if (!probe::report("StartConnection", StartConnection(1, options.host.c_str(), &handle))) {
        return EXIT_FAILURE;
    }
    const bool done = carryOut(handle, options);
    EndConnection(handle);
    return done ? EXIT_SUCCESS : EXIT_FAILURE;
}
