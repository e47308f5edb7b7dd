// The commands for a machine, used by events, `udsim tell` and tests.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Publisher.h"

namespace udsim {

struct Command
{
    enum class Kind
    {
        online,
        offline,
        error,   ///< the device stops with error `number`
        clear,   ///< the error is cleared
        addJob,  ///< `job`
        pause,   ///< the running job pauses after its disc
        resume,  ///< a paused job continues
        refill,  ///< fills input stackers and ink, empties output stackers, and clears an error about these
        ink,     ///< cartridge `index` contains `number` percent
        stacker, ///< stacker `index` holds `number` discs
        service, ///< the service itself listens (`number` 1) or not (0)
        server,  ///< the server of a network publisher listens (`number` 1) or not (0)
    };

    Kind kind = Kind::clear;
    size_t index = 0;
    uint32_t number = 0;
    JobSetup job;

    bool isForService() const
    {
        return kind == Kind::service;
    }

    /// The first words of all commands.
    static std::vector<std::string> words();
    /// Parses a command. Returns nothing, with the reason in `error`, on a mistake.
    static std::optional<Command> parse(const std::string& text, std::string& error);
};

/// Parses "Holiday photos, copies=5, type=print"; every part is optional.
std::optional<JobSetup> parseJob(const std::string& text, std::string& error);

} // namespace udsim
