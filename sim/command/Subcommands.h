// The subcommands of udsim: one function each, which takes the arguments that follow the subcommand, prints
// its output and returns the exit status.
#pragma once

#include <csignal>
#include <optional>
#include <string>
#include <vector>

namespace udsim {

using Arguments = std::vector<std::string>;

inline constexpr int EXIT_DONE = 0;
inline constexpr int EXIT_FAILED = 1;
inline constexpr int EXIT_USAGE = 64;
inline constexpr int EXIT_NOBODY = 69;        ///< no running udsim answers
inline constexpr int EXIT_NO_PERMISSION = 77; ///< a running udsim belongs to another user

int runRoom(const Arguments& arguments);
int checkScenario(const Arguments& arguments);
int forgetScenario(const Arguments& arguments);
int tellRoom(const Arguments& arguments);
int recordSession(const Arguments& arguments);
int replaySession(const Arguments& arguments);
int showHelp(const Arguments& arguments);
int showVersion(const Arguments& arguments);

/// Prints a mistake in the command line and a hint on standard error. Returns EXIT_USAGE.
int wrongUsage(const std::string& what);
/// Prints the reason of a failure on standard error. Returns EXIT_FAILED.
int failure(const std::string& what);
/// The same for operations that require root: mentions root if the reason is a missing permission.
int failureOfRights(const std::string& what);
/// Prints a line on standard output and flushes it. Any thread.
void printLine(const std::string& line);

/// A command line: options with a value or without one, and the other words in their order.
class CommandLine
{
public:
    /// `valued` and `flags` are lists of "--name". A value is the next argument, or follows "=" in the same
    /// one. With `wordsEnd`, the first word ends the options, so that later words may begin with "--". One
    /// thread at a time.
    CommandLine(const Arguments& arguments, const std::vector<std::string>& valued,
                const std::vector<std::string>& flags, bool wordsEnd = false);

    /// Describes the first mistake; empty if there is none.
    const std::string& mistake() const
    {
        return m_mistake;
    }
    bool has(const std::string& flag) const;
    std::optional<std::string> value(const std::string& option) const;
    const Arguments& words() const
    {
        return m_words;
    }

private:
    void takeOption(const std::string& text, int code, const std::vector<std::string>& known);

    std::string m_mistake;
    std::vector<std::pair<std::string, std::string>> m_options;
    Arguments m_words;
};

/// Blocks the signals that end the program in this thread and every thread it starts. Returns them for
/// sigwait().
sigset_t holdSignals();

} // namespace udsim
