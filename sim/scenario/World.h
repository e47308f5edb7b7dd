// The machines, events and simulated time of a room. Deterministic; no sockets, no files, no clock.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Progress.h"
#include "Scenario.h"

namespace udsim {

/// The state of a machine, in words.
struct MachineState
{
    std::string name;      ///< in the scenario
    std::string shownName; ///< as users see it
    std::string state;     ///< "ready, 2 waiting"
};

class World
{
public:
    explicit World(const Scenario& scenario);

    /// Advances the time in steps of 50 ms, keeping the remainder for the next call, and carries out the
    /// events that are due.
    void advance(uint64_t milliseconds);
    /// Applies the command to the named machine, or to the service. Returns false if it is refused or the job
    /// list is full.
    bool apply(const std::string& publisher, const Command& command);
    /// Returns why the command does not apply to this publisher: the name is unknown, or it has no server.
    /// Empty if it applies.
    std::string refusalOf(const std::string& publisher, const Command& command) const;
    /// Returns the states of all machines: the publishers, and then the servers.
    std::vector<MachineState> states() const;
    /// Returns the active jobs, at most one per machine.
    std::vector<JobProgress> progress() const;

    std::vector<Publisher>& publishers()
    {
        return m_publishers;
    }
    const std::vector<Publisher>& publishers() const
    {
        return m_publishers;
    }
    std::vector<PublisherServer>& servers()
    {
        return m_servers;
    }
    const std::vector<PublisherServer>& servers() const
    {
        return m_servers;
    }
    /// Returns the network publisher of this scenario name, or at this address; null if there is none.
    PublisherServer* serverByName(const std::string& name);
    PublisherServer* serverByHost(const std::string& host);
    /// Returns the publisher of this scenario name, regist id or GUID; null if there is none. byName() also
    /// finds the machine of a network publisher.
    Publisher* byName(const std::string& name);
    Publisher* byRegistId(const std::string& registId);
    Publisher* byGuid(const std::string& guid);

    bool serviceOn() const
    {
        return m_serviceOn;
    }
    uint64_t now() const
    {
        return m_now;
    }
    /// Returns the simulated time in the format of notes, minutes and seconds: "1:05".
    std::string clock() const;
    /// Returns one line for each machine, and for the service, whose state has changed since the last call.
    std::vector<std::string> takeNotes();

private:
    void fireDueEvents();

    std::vector<Publisher> m_publishers;
    std::vector<PublisherServer> m_servers;
    std::vector<Event> m_events; ///< `at` is the time of the next occurrence
    uint64_t m_now = 0;
    uint64_t m_rest = 0;
    bool m_serviceOn = true;
    bool m_notedService = true;
    std::vector<std::string> m_noted; ///< of the publishers, and then of the servers
};

} // namespace udsim
