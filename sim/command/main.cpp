// udsim: simulates publishers, sends commands to a running udsim, records and replays sessions.
#include <csignal>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <sys/stat.h>

#include "Nearest.h"
#include "Subcommands.h"

namespace udsim {
namespace {

int run(const Arguments& arguments)
{
    constexpr std::pair<const char*, int (*)(const Arguments&)> SUBCOMMANDS[] = {
        {"tell", tellRoom},        {"forget", forgetScenario}, {"record", recordSession},
        {"replay", replaySession}, {"--check", checkScenario}, {"--help", showHelp},
        {"-h", showHelp},          {"--version", showVersion},
    };
    const std::string first = arguments.empty() ? "" : arguments.front();
    std::vector<std::string> known;
    for (const auto& [name, subcommand] : SUBCOMMANDS) {
        if (first == name) {
            const bool asksForHelp = arguments.size() == 2 && arguments.back() == "--help";
            return asksForHelp ? showHelp({}) : subcommand(Arguments(arguments.begin() + 1, arguments.end()));
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

} // namespace
} // namespace udsim

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN); // a closed terminal does not end udsim
    ::umask(022);                  // like a service: other users read its log and the setting files
    return udsim::run(udsim::Arguments(argv + 1, argv + argc));
}
