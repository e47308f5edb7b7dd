#include "Subcommands.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <getopt.h>
#include <unistd.h>

#include "Nearest.h"

namespace udsim {

namespace {

// Return values of getopt_long(); it also returns ':' for an option without its value, '?' for any other
// mistake.
constexpr int END = -1;
constexpr int WORD = 1;
constexpr int OPTION = 2;

} // namespace

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
    return failure(what + (denied && ::geteuid() != 0 ? "; udsim requires root" : ""));
}

void printLine(const std::string& line)
{
    std::fprintf(stdout, "%s\n", line.c_str());
    std::fflush(stdout);
}

CommandLine::CommandLine(const Arguments& arguments, const std::vector<std::string>& valued,
                         const std::vector<std::string>& flags, bool wordsEnd)
{
    std::vector<std::string> known = valued;
    known.insert(known.end(), flags.begin(), flags.end());
    std::vector<option> options;
    for (const std::string& name : known) {
        const bool takesValue = options.size() < valued.size();
        options.push_back({name.c_str() + 2, takesValue ? required_argument : no_argument, nullptr, OPTION});
    }
    options.push_back({});
    std::string program = "udsim";
    std::vector<char*> words{program.data()};
    for (const std::string& argument : arguments) {
        words.push_back(
            const_cast<char*>(argument.c_str())); // getopt_long() neither changes nor reorders them
    }
    words.push_back(nullptr);
    const auto count = static_cast<int>(words.size() - 1);
    // A word is returned in its place ("-"), or ends the options ("+").
    const char* const mode = wordsEnd ? "+:" : "-:";
    optind = 0; // glibc: starts a new command line
    int at = 1;
    for (int code = 0; m_mistake.empty(); at = optind) {
        code = ::getopt_long(count, words.data(), mode, options.data(), nullptr);
        if (code == END) {
            break;
        }
        if (code == WORD) {
            m_words.emplace_back(optarg);
        } else {
            takeOption(words[static_cast<size_t>(at)], code, known);
        }
    }
    m_words.insert(m_words.end(), words.begin() + optind, words.end() - 1);
}

/// `text` is the argument with the option, `code` the return value of getopt_long() for it.
void CommandLine::takeOption(const std::string& text, int code, const std::vector<std::string>& known)
{
    const std::string name = text.substr(0, text.find('='));
    if (std::find(known.begin(), known.end(), name) == known.end()) { // rejects abbreviations, too
        m_mistake = "unknown option \"" + name + "\"" + suggestion(name, known);
    } else if (code == OPTION) {
        m_options.emplace_back(name, optarg == nullptr ? "" : optarg);
    } else {
        m_mistake = "\"" + name + (code == ':' ? "\" needs a value" : "\" takes no value");
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
