#include "World.h"

#include <algorithm>

#include "Nearest.h"
#include "Protocol.h"

namespace udsim {

namespace {

constexpr uint64_t STEP = 50;

/// Describes a machine's state in words. The progress of a disc is not included.
std::string describe(const Publisher& publisher)
{
    std::string text;
    if (!publisher.connected()) {
        text = "not connected";
    } else if (publisher.hindrance() != 0) {
        text = "error " + std::to_string(publisher.hindrance());
    } else {
        text = "ready";
    }
    size_t waiting = 0;
    for (const Job& job : publisher.jobs()) {
        if (job.status == job_status::RUNNING) {
            text += ", running \"" + job.name + "\"";
        }
        waiting += job.status == job_status::WAITING ? 1 : 0;
    }
    return text + ", " + std::to_string(waiting) + " waiting";
}

bool befall(Publisher& publisher, const Command& command)
{
    switch (command.kind) {
    case Command::Kind::online:
        publisher.setConnected(true);
        return true;
    case Command::Kind::offline:
        publisher.setConnected(false);
        return true;
    case Command::Kind::error:
        publisher.setError(command.number);
        return true;
    case Command::Kind::clear:
        publisher.setError(0);
        return true;
    case Command::Kind::addJob:
        return !publisher.addJob(command.job).empty();
    case Command::Kind::pause:
        publisher.pause();
        return true;
    case Command::Kind::resume:
        publisher.resume();
        return true;
    case Command::Kind::refill:
        publisher.refill();
        return true;
    case Command::Kind::ink:
        publisher.setInk(command.index, command.number);
        return true;
    case Command::Kind::stacker:
        publisher.setStacker(command.index, command.number);
        return true;
    case Command::Kind::service:
    case Command::Kind::server:
        break;
    }
    return false;
}

template <class Property>
Publisher* find(std::vector<Publisher>& publishers, Property&& property, const std::string& value)
{
    const auto found = std::find_if(publishers.begin(), publishers.end(),
                                    [&](const Publisher& one) { return property(one.state()) == value; });
    return found == publishers.end() ? nullptr : &*found;
}

} // namespace

World::World(const Scenario& scenario)
    : m_publishers(scenario.publishers.begin(), scenario.publishers.end()),
      m_servers(scenario.servers.begin(), scenario.servers.end()), m_events(scenario.events),
      m_noted(scenario.publishers.size() + scenario.servers.size())
{
}

void World::advance(uint64_t milliseconds)
{
    fireDueEvents();
    for (m_rest += milliseconds; m_rest >= STEP; m_rest -= STEP) {
        m_now += STEP;
        fireDueEvents();
        for (Publisher& publisher : m_publishers) {
            publisher.step(STEP);
        }
        for (PublisherServer& server : m_servers) {
            server.step(STEP);
        }
    }
}

void World::fireDueEvents()
{
    for (Event& event : m_events) {
        while (event.at <= m_now) {
            apply(event.publisher, event.command);
            event.at = event.every == 0 ? UINT64_MAX : event.at + event.every;
        }
    }
}

bool World::apply(const std::string& publisher, const Command& command)
{
    if (!refusalOf(publisher, command).empty()) {
        return false;
    }
    if (command.isForService()) {
        m_serviceOn = command.number != 0;
        return true;
    }
    if (command.kind == Command::Kind::server) {
        serverByName(publisher)->setListening(command.number != 0);
        return true;
    }
    return befall(*byName(publisher), command);
}

Publisher* World::byName(const std::string& name)
{
    PublisherServer* const server = serverByName(name);
    return server != nullptr
               ? &server->machine()
               : find(
                     m_publishers, [](const PublisherSetup& one) -> const std::string& { return one.name; },
                     name);
}

PublisherServer* World::serverByName(const std::string& name)
{
    const auto found = std::find_if(m_servers.begin(), m_servers.end(), [&](const PublisherServer& one) {
        return one.setup().machine.name == name;
    });
    return found == m_servers.end() ? nullptr : &*found;
}

PublisherServer* World::serverByHost(const std::string& host)
{
    const auto found = std::find_if(m_servers.begin(), m_servers.end(),
                                    [&](const PublisherServer& one) { return one.setup().host == host; });
    return found == m_servers.end() ? nullptr : &*found;
}

Publisher* World::byRegistId(const std::string& registId)
{
    return find(
        m_publishers, [](const PublisherSetup& one) -> const std::string& { return one.registId; }, registId);
}

Publisher* World::byGuid(const std::string& guid)
{
    return find(m_publishers, [](const PublisherSetup& one) -> const std::string& { return one.guid; }, guid);
}

std::string World::clock() const
{
    const uint64_t seconds = m_now / 1000;
    const std::string rest = std::to_string(seconds % 60);
    return std::to_string(seconds / 60) + ":" + (rest.size() < 2 ? "0" : "") + rest;
}

std::vector<MachineState> World::states() const
{
    std::vector<MachineState> states;
    states.reserve(m_publishers.size() + m_servers.size());
    for (const Publisher& publisher : m_publishers) {
        states.push_back({publisher.state().name, publisher.state().shownName, describe(publisher)});
    }
    for (const PublisherServer& server : m_servers) {
        const Publisher& machine = server.machine();
        states.push_back({machine.state().name, machine.state().shownName,
                          server.listening() ? describe(machine) : "no server"});
    }
    return states;
}

std::vector<JobProgress> World::progress() const
{
    std::vector<JobProgress> jobs;
    const auto add = [&jobs](const Publisher& machine) {
        if (auto progress = progressOf(machine)) {
            jobs.push_back(std::move(*progress));
        }
    };
    std::for_each(m_publishers.begin(), m_publishers.end(), add);
    for (const PublisherServer& server : m_servers) {
        add(server.machine());
    }
    return jobs;
}

std::string World::refusalOf(const std::string& publisher, const Command& command) const
{
    if (command.isForService()) {
        return publisher.empty() ? "" : "commands to the service take no publisher";
    }
    std::vector<std::string> names;
    for (const MachineState& state : states()) {
        names.push_back(state.name);
    }
    const auto found = std::find(names.begin(), names.end(), publisher);
    if (found == names.end()) {
        return "no such publisher \"" + publisher + "\"" + suggestion(publisher, names) +
               "; the publishers are: " + quotedList(names);
    }
    const bool hasServer = static_cast<size_t>(found - names.begin()) >= m_publishers.size();
    return command.kind == Command::Kind::server && !hasServer ? "only a network publisher has a server" : "";
}

std::vector<std::string> World::takeNotes()
{
    std::vector<std::string> notes;
    const std::string prefix = clock() + " ";
    if (m_notedService != m_serviceOn) {
        m_notedService = m_serviceOn;
        notes.push_back(prefix + (m_serviceOn ? "the service listens again" : "the service is stopped"));
    }
    for (PublisherServer& server : m_servers) {
        const std::string who = prefix + server.machine().state().shownName + ": ";
        for (const std::string& note : server.takeNotes()) {
            notes.push_back(who + note);
        }
    }
    const std::vector<MachineState> now = states();
    for (size_t i = 0; i < now.size(); ++i) {
        if (std::string text = now[i].shownName + ": " + now[i].state; text != m_noted[i]) {
            notes.push_back(prefix + text);
            m_noted[i] = std::move(text);
        }
    }
    return notes;
}

} // namespace udsim
