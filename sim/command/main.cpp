// udsim: a room of simulated machines, commands for it, and recordings of real ones.
#include <csignal>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <sys/stat.h>

#include "Nearest.h"
#include "Subcommands.h"

int main(int argc, char** argv)
{
    using namespace udsim;
    std::signal(SIGPIPE, SIG_IGN); // a lost terminal ends nothing
    ::umask(022);                  // as a service's: other users read its log and the setting files
    constexpr std::pair<const char*, int (*)(const Arguments&)> SUBCOMMANDS[] = {
        {"tell", tellRoom},        {"forget", forgetScenario}, {"record", recordSession},
        {"replay", replaySession}, {"--check", checkScenario}, {"--help", showHelp},
        {"-h", showHelp},          {"--version", showVersion},
    };
    const Arguments arguments(argv + 1, argv + argc);
    const std::string first = arguments.empty() ? "" : arguments.front();
    std::vector<std::string> known;
    for (const auto& [name, run] : SUBCOMMANDS) {
        if (first == name) {
            const bool asksForHelp = arguments.size() == 2 && arguments.back() == "--help";
            return asksForHelp ? showHelp({}) : run(Arguments(arguments.begin() + 1, arguments.end()));
        }
        known.emplace_back(name);
    }
    std::error_code ignored;
    if (const std::string meant = suggestion(first, known);
        !meant.empty() && !std::filesystem::exists(first, ignored)) {
        return wrongUsage("\"" + first + "\" is neither a scenario nor a command" + meant);
    }
    return runRoom(arguments);
}
