// The room without its doors: machines, events and simulated time. Deterministic; no sockets, no files, no
// clock.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Progress.h"
#include "Scenario.h"

namespace udsim {

/// How a machine stands, as a person would put it.
struct MachineState
{
    std::string name;      ///< as the scenario calls it
    std::string shownName; ///< as users see it
    std::string state;     ///< "ready, 2 waiting"
};

class World
{
public:
    explicit World(const Scenario& scenario);

    /// Lets time pass in steps of 50 ms; a rest waits for the next call. Events that are due befall their
    /// machines.
    void advance(uint64_t milliseconds);
    /// Befalls the named machine, or the service. False when it is refused, or the job list is full.
    bool apply(const std::string& publisher, const Command& command);
    /// Why the command does not go with this publisher: there is none of that name, or it has no server.
    /// Empty when it does.
    std::string refusalOf(const std::string& publisher, const Command& command) const;
    /// Of every machine: the publishers, and then the servers.
    std::vector<MachineState> states() const;
    /// The jobs under way, one a machine at most.
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
    /// The network publisher of this scenario name, or at this address; null when there is none.
    PublisherServer* serverByName(const std::string& name);
    PublisherServer* serverByHost(const std::string& host);
    /// By scenario name, regist id and GUID; null when there is none. By its name also the machine of a
    /// network publisher.
    Publisher* byName(const std::string& name);
    Publisher* byRegistId(const std::string& registId);
    Publisher* byGuid(const std::string& guid);

    /// The service listens.
    bool serviceOn() const
    {
        return m_serviceOn;
    }
    uint64_t now() const
    {
        return m_now;
    }
    /// Simulated time as notes give it, in minutes and seconds: "1:05".
    std::string clock() const;
    /// One line for each machine whose state has changed since the last call, and for the service.
    std::vector<std::string> takeNotes();

private:
    void fireDueEvents();

    std::vector<Publisher> m_publishers;
    std::vector<PublisherServer> m_servers;
    std::vector<Event> m_events; ///< `at` is when it happens next
    uint64_t m_now = 0;
    uint64_t m_rest = 0;
    bool m_serviceOn = true;
    bool m_notedService = true;
    std::vector<std::string> m_noted; ///< of the publishers, and then of the servers
};

} // namespace udsim
