#include "World.h"

#include <algorithm>

#include "Protocol.h"

namespace udsim {

namespace {

constexpr uint64_t STEP = 50;

/// A machine's state as a person would put it; progress of a disc is no change.
std::string describe(const Publisher& publisher)
{
    std::string text = publisher.state().shownName + ": ";
    if (!publisher.connected()) {
        text += "not connected";
    } else if (publisher.hindrance() != 0) {
        text += "error " + std::to_string(publisher.hindrance());
    } else {
        text += "ready";
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

std::string clockText(uint64_t milliseconds)
{
    const uint64_t seconds = milliseconds / 1000;
    const std::string rest = std::to_string(seconds % 60);
    return std::to_string(seconds / 60) + ":" + (rest.size() < 2 ? "0" : "") + rest;
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
    : m_publishers(scenario.publishers.begin(), scenario.publishers.end()), m_events(scenario.events),
      m_noted(scenario.publishers.size())
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
    if (command.isForService()) {
        m_serviceOn = command.number != 0;
        return publisher.empty();
    }
    Publisher* const target = byName(publisher);
    return target != nullptr && befall(*target, command);
}

Publisher* World::byName(const std::string& name)
{
    return find(
        m_publishers, [](const PublisherSetup& one) -> const std::string& { return one.name; }, name);
}

Publisher* World::byRegistId(const std::string& registId)
{
    return find(
        m_publishers, [](const PublisherSetup& one) -> const std::string& { return one.registId; }, registId);
}

Publisher* World::byGuid(const std::string& guid)
{
    return find(
        m_publishers, [](const PublisherSetup& one) -> const std::string& { return one.guid; }, guid);
}

std::vector<std::string> World::takeNotes()
{
    std::vector<std::string> notes;
    const std::string prefix = clockText(m_now) + " ";
    if (m_notedService != m_serviceOn) {
        m_notedService = m_serviceOn;
        notes.push_back(prefix + (m_serviceOn ? "the service listens again" : "the service is stopped"));
    }
    for (size_t i = 0; i < m_publishers.size(); ++i) {
        std::string text = describe(m_publishers[i]);
        if (text != m_noted[i]) {
            notes.push_back(prefix + text);
            m_noted[i] = std::move(text);
        }
    }
    return notes;
}

} // namespace udsim
