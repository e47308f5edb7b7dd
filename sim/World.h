// The room without its doors: machines, events and simulated time. Deterministic; no sockets, no files, no
// clock.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Scenario.h"

namespace udsim {

class World
{
public:
    explicit World(const Scenario& scenario);

    /// Lets time pass in steps of 50 ms; a rest waits for the next call. Events that are due befall their
    /// machines.
    void advance(uint64_t milliseconds);
    /// Befalls the named machine, or the service. False when there is none of that name, or its job list is
    /// full.
    bool apply(const std::string& publisher, const Command& command);

    std::vector<Publisher>& publishers()
    {
        return m_publishers;
    }
    const std::vector<Publisher>& publishers() const
    {
        return m_publishers;
    }
    /// By scenario name, regist id and GUID; null when there is none.
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
    /// One line for each machine whose state has changed since the last call, and for the service.
    std::vector<std::string> takeNotes();

private:
    void fireDueEvents();

    std::vector<Publisher> m_publishers;
    std::vector<Event> m_events; ///< `at` is when it happens next
    uint64_t m_now = 0;
    uint64_t m_rest = 0;
    bool m_serviceOn = true;
    bool m_notedService = true;
    std::vector<std::string> m_noted;
};

} // namespace udsim
