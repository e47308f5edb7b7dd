// A scenario: the machines of a room, the events and their times, and the faults of connections.
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

    /// Parses a scenario. Returns nothing on a mistake, with the mistake and its line in `error`: "line 7:
    /// ...".
    static std::optional<Scenario> parse(const std::string& text, std::string& error);
    /// The same for a file; its path precedes the line in `error`.
    static std::optional<Scenario> load(const std::string& path, std::string& error);
};

} // namespace udsim
