// A scenario: which machines stand in the room, what happens to them when, and what goes wrong on the wire.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Command.h"
#include "Fault.h"
#include "HttpFault.h"
#include "Publisher.h"
#include "PublisherServer.h"

namespace udsim {

struct Event
{
    uint64_t at = 0;    ///< milliseconds of simulated time
    uint64_t every = 0; ///< milliseconds between repetitions; 0: once
    std::string publisher;
    Command command;
};

struct Scenario
{
    std::vector<PublisherSetup> publishers;
    std::vector<Event> events;
    std::vector<Fault> faults;
    std::vector<ServerSetup> servers;
    std::vector<HttpFault> networkFaults;

    /// Reads a scenario. Nothing on a mistake, which `error` names with its line: "line 7: ...".
    static std::optional<Scenario> parse(const std::string& text, std::string& error);
    /// The same of a file, whose name stands ahead of the line.
    static std::optional<Scenario> load(const std::string& path, std::string& error);
};

} // namespace udsim
