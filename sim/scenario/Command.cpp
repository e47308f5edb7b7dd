#include "Command.h"

#include <algorithm>
#include <array>

#include "Nearest.h"
#include "Protocol.h"
#include "Text.h"

namespace udsim {

namespace {

constexpr uint64_t HIGHEST_ERROR = 9999;
constexpr size_t LONGEST_JOB_NAME = 255;
constexpr std::array<const char*, 6> INKS{"cyan",       "magenta",       "yellow",
                                          "light-cyan", "light-magenta", "black"};

/// Commands that are one word.
constexpr std::array<std::pair<const char*, Command::Kind>, 6> PLAIN{{
    {"online", Command::Kind::online},
    {"offline", Command::Kind::offline},
    {"clear", Command::Kind::clear},
    {"pause", Command::Kind::pause},
    {"resume", Command::Kind::resume},
    {"refill", Command::Kind::refill},
}};

/// Parses "cyan 40", a cartridge and its level in percent. Returns nothing, with the reason in `error`, on a
/// mistake.
std::optional<Command> parseInk(const std::string& argument, std::string& error)
{
    const auto [colour, percent] = splitFirstWord(argument);
    const auto found = std::find(INKS.begin(), INKS.end(), colour);
    const auto number = parseNumber(percent, 100);
    if (found == INKS.end() || !number) {
        error = "\"ink\" needs a colour (cyan, magenta, yellow, light-cyan, light-magenta, black) and a "
                "percentage";
        return std::nullopt;
    }
    return Command{
        Command::Kind::ink, static_cast<size_t>(found - INKS.begin()), static_cast<uint32_t>(*number), {}};
}

std::optional<Command> parseStacker(const std::string& argument, std::string& error)
{
    const auto [which, discs] = splitFirstWord(argument);
    const auto stacker = parseNumber(which, 4);
    const auto number = parseNumber(discs, Publisher::STACKER_CAPACITY);
    if (!stacker || *stacker == 0 || !number) {
        error = "\"stacker\" needs a stacker from 1 to 4 and a number of discs up to 100";
        return std::nullopt;
    }
    return Command{
        Command::Kind::stacker, static_cast<size_t>(*stacker - 1), static_cast<uint32_t>(*number), {}};
}

std::optional<uint64_t> parseJobType(const std::string& word)
{
    if (word == "write") {
        return JOB_TYPE_WRITE;
    }
    if (word == "print") {
        return JOB_TYPE_PRINT;
    }
    if (word == "write+print") {
        return JOB_TYPE_WRITE | JOB_TYPE_PRINT;
    }
    return std::nullopt;
}

} // namespace

std::optional<JobSetup> parseJob(const std::string& text, std::string& error)
{
    JobSetup job;
    for (const std::string& piece : split(text, ',')) {
        const size_t equals = piece.find('=');
        const std::string key = trim(piece.substr(0, equals));
        const std::string value = equals == std::string::npos ? "" : trim(piece.substr(equals + 1));
        if (equals == std::string::npos) {
            job.name = key.empty() ? job.name : key.substr(0, LONGEST_JOB_NAME);
        } else if (const auto copies = parseNumber(value, JobSetup::MOST_COPIES);
                   key == "copies" && copies && *copies > 0) {
            job.copies = static_cast<uint32_t>(*copies);
        } else if (const auto type = parseJobType(value); key == "type" && type) {
            job.type = *type;
        } else {
            error = "\"" + piece +
                    "\" is not a valid part of a job (a name, copies=1 to 1000, type=write, print or "
                    "write+print)";
            return std::nullopt;
        }
    }
    return job;
}

std::vector<std::string> Command::words()
{
    std::vector<std::string> words{"error", "add-job", "ink", "stacker", "service", "server"};
    for (const auto& [name, kind] : PLAIN) {
        words.emplace_back(name);
    }
    return words;
}

std::optional<Command> Command::parse(const std::string& text, std::string& error)
{
    const auto [word, argument] = splitFirstWord(text);
    for (const auto& [name, kind] : PLAIN) {
        if (word == name) {
            if (!argument.empty()) {
                error = "\"" + word + "\" takes no argument";
                return std::nullopt;
            }
            return Command{kind, 0, 0, {}};
        }
    }
    if (word == "error") {
        const auto number = parseNumber(argument, HIGHEST_ERROR);
        if (!number || *number == 0) {
            error = "\"error\" needs a code from 1 to 9999";
            return std::nullopt;
        }
        return Command{Kind::error, 0, static_cast<uint32_t>(*number), {}};
    }
    if (word == "add-job") {
        const auto job = parseJob(argument, error);
        return job ? std::optional<Command>({Kind::addJob, 0, 0, *job}) : std::nullopt;
    }
    if (word == "ink") {
        return parseInk(argument, error);
    }
    if (word == "stacker") {
        return parseStacker(argument, error);
    }
    if (word == "service" && (argument == "on" || argument == "off")) {
        return Command{Kind::service, 0, argument == "on" ? 1U : 0U, {}};
    }
    if (word == "server" && (argument == "on" || argument == "off")) {
        return Command{Kind::server, 0, argument == "on" ? 1U : 0U, {}};
    }
    error = word == "service" || word == "server"
                ? "\"" + word + "\" needs on or off"
                : "unknown command \"" + text + "\"" + suggestion(word, words());
    return std::nullopt;
}

} // namespace udsim
