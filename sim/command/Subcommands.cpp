#include "Subcommands.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <unistd.h>

#include "Nearest.h"

namespace udsim {

int wrongUsage(const std::string& what)
{
    std::fprintf(stderr, "udsim: %s\nTry \"udsim --help\".\n", what.c_str());
    return EXIT_USAGE;
}

int failure(const std::string& what)
{
    std::fprintf(stderr, "udsim: %s\n", what.c_str());
    return EXIT_FAILED;
}

int failureOfRights(const std::string& what)
{
    const bool denied = what.ends_with(std::strerror(EACCES)) || what.ends_with(std::strerror(EPERM));
    return failure(what + (denied && ::geteuid() != 0 ? "; udsim needs root" : ""));
}

void printLine(const std::string& line)
{
    std::fprintf(stdout, "%s\n", line.c_str());
    std::fflush(stdout);
}

CommandLine::CommandLine(const Arguments& arguments, const std::vector<std::string>& valued,
                         const std::vector<std::string>& flags, bool wordsEnd)
{
    bool options = true;
    for (size_t i = 0; i < arguments.size() && m_mistake.empty(); ++i) {
        if (options && arguments[i] == "--") {
            options = false;
        } else if (options && arguments[i].starts_with("-")) {
            takeOption(arguments, i, valued, flags);
        } else {
            m_words.push_back(arguments[i]);
            options = options && !wordsEnd;
        }
    }
}

void CommandLine::takeOption(const Arguments& arguments, size_t& at, const std::vector<std::string>& valued,
                             const std::vector<std::string>& flags)
{
    const std::string& name = arguments[at];
    const auto isIn = [&name](const std::vector<std::string>& list) {
        return std::find(list.begin(), list.end(), name) != list.end();
    };
    if (isIn(flags)) {
        m_options.emplace_back(name, "");
    } else if (!isIn(valued)) {
        std::vector<std::string> known = valued;
        known.insert(known.end(), flags.begin(), flags.end());
        m_mistake = "unknown option \"" + name + "\"" + suggestion(name, known);
    } else if (at + 1 == arguments.size()) {
        m_mistake = "\"" + name + "\" needs a value";
    } else {
        m_options.emplace_back(name, arguments[++at]);
    }
}

bool CommandLine::has(const std::string& flag) const
{
    return value(flag).has_value();
}

std::optional<std::string> CommandLine::value(const std::string& option) const
{
    std::optional<std::string> last;
    for (const auto& [name, value] : m_options) {
        if (name == option) {
            last = value;
        }
    }
    return last;
}

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

} // namespace udsim
