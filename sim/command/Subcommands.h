// What the program udsim can be told to do: one function a subcommand, with the arguments behind it. Each
// prints for a person and yields the exit status.
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

/// Says on the error channel what is wrong with the command line, and how it is to be.
int wrongUsage(const std::string& what);
/// Says on the error channel what went wrong; EXIT_FAILED.
int failure(const std::string& what);
/// The same for what only root may do: names root if the reason is a missing permission.
int failureOfRights(const std::string& what);
/// A line on the output, at once, also when several threads print.
void printLine(const std::string& line);

/// A command line: options with a value or without one, and the other words in their order.
class CommandLine
{
public:
    /// Both are lists of "--name". A value follows its option, or "=" in the same word. Options end with the
    /// first word when `wordsEnd`, so that what follows may look like one. One thread at a time.
    CommandLine(const Arguments& arguments, const std::vector<std::string>& valued,
                const std::vector<std::string>& flags, bool wordsEnd = false);

    /// What is wrong with it; empty when nothing is.
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

/// Blocks the signals that end the program, in every thread to come, and yields them for sigwait().
sigset_t holdSignals();

} // namespace udsim
