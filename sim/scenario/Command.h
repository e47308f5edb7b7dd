// What can befall a machine: the commands of events and of a test.
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
        clear,   ///< the error is gone
        addJob,  ///< `job`
        pause,   ///< the running job pauses behind its disc
        resume,  ///< a paused job goes on
        refill,  ///< input stackers full, output stackers empty, ink full, and an error about these is gone
        ink,     ///< cartridge `index` at `number` percent
        stacker, ///< stacker `index` holds `number` discs
        service, ///< the service itself listens (`number` 1) or not (0)
        server,  ///< the server of a network publisher listens (`number` 1) or is gone (0)
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
    /// Reads a command's text; nothing, and the reason in `error`, when it is none.
    static std::optional<Command> parse(const std::string& text, std::string& error);
};

/// Reads "Holiday photos, copies=5, type=print"; every part may be missing.
std::optional<JobSetup> parseJob(const std::string& text, std::string& error);

} // namespace udsim
