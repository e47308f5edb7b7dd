#include "Room.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>

#include "Answers.h"
#include "Installation.h"
#include "Protocol.h"
#include "Server.h"
#include "World.h"

namespace udsim {

namespace {

constexpr size_t MOST_KEPT = 10'000;

template <class List, class Item>
void keep(List& list, Item&& item)
{
    if (list.size() == MOST_KEPT) {
        list.erase(list.begin());
    }
    list.push_back(std::forward<Item>(item));
}

} // namespace

struct Room::State
{
    State(const Scenario& scenario, double timesFaster);

    Delivery takeRequest(const Request& request);
    void takeDatagram(std::string_view datagram);
    void tick(std::chrono::milliseconds realTime);
    /// Carries out `change` under the lock, and then everything that follows from it outside the machines
    /// themselves.
    template <class Change>
    void alter(Change&& change);

    Publisher* publisherOf(const Request& request);
    const Fault* faultFor(const Request& request, const Publisher* publisher);
    void rereadSetting(const std::string& registId, Publisher& publisher);
    bool listens() const;
    void settle(std::vector<std::string>& notes);

    const double speed;
    std::function<void(const std::string&)> noteOutput;
    std::function<void(const Request&)> requestOutput;
    std::function<void(const LogRecord&)> recordOutput;

    std::mutex lifeMutex; ///< start and stop, one at a time
    mutable std::mutex mutex;
    mutable std::condition_variable changed;
    World world;
    std::vector<Fault> faults;
    Fault current;               ///< the one that the request at hand meets
    std::vector<bool> connected; ///< as the registry file says
    std::vector<Request> requests;
    std::vector<LogRecord> records;
    uint64_t uniqueNumber = 0;
    double timeLeft = 0; ///< simulated milliseconds that make no whole one yet
    bool open = false;   ///< between start and stop

    Server server; ///< last: its thread uses all of the above
};

Room::State::State(const Scenario& scenario, double timesFaster)
    : speed(timesFaster), world(scenario), faults(scenario.faults),
      server({[this](const Request& request) { return takeRequest(request); },
              [this](std::string_view datagram) { takeDatagram(datagram); },
              timesFaster > 0 ? [this](std::chrono::milliseconds passed) { tick(passed); }
                              : std::function<void(std::chrono::milliseconds)>()})
{
}

template <class Change>
void Room::State::alter(Change&& change)
{
    std::vector<std::string> notes;
    {
        const std::lock_guard lock(mutex);
        change();
        settle(notes);
    }
    changed.notify_all();
    if (noteOutput) {
        std::for_each(notes.begin(), notes.end(), noteOutput);
    }
}

void Room::State::settle(std::vector<std::string>& notes)
{
    if (noteOutput) {
        notes = world.takeNotes();
    }
    if (!open) {
        return;
    }
    std::vector<bool> now;
    for (const Publisher& publisher : world.publishers()) {
        now.push_back(publisher.connected());
    }
    if (now != connected) {
        std::string error;
        if (writeDeviceKeys(world.publishers(), error)) {
            connected = std::move(now);
        } else {
            notes.push_back(error);
        }
    }
    server.setListening(listens());
}

bool Room::State::listens() const
{
    return world.serviceOn() && std::none_of(faults.begin(), faults.end(), [](const Fault& fault) {
               return fault.kind == Fault::Kind::refuse;
           });
}

void Room::State::tick(std::chrono::milliseconds realTime)
{
    alter([&] {
        timeLeft += static_cast<double>(realTime.count()) * speed;
        const auto whole = static_cast<uint64_t>(timeLeft);
        timeLeft -= static_cast<double>(whole);
        world.advance(whole);
    });
}

Delivery Room::State::takeRequest(const Request& request)
{
    Delivery delivery;
    alter([&] {
        keep(requests, request);
        Publisher* const publisher = publisherOf(request);
        const Reply reply = answer(request, publisher, world.publishers(), ++uniqueNumber);
        if (request.control == control::NOTIFY_CHANGE && reply.result == result::SUCCESS) {
            rereadSetting(request.publisher, *publisher);
        }
        delivery = deliver(reply, faultFor(request, publisher));
    });
    if (requestOutput) {
        requestOutput(request);
    }
    return delivery;
}

/// The setting file says which device an id stands for. An id without one is looked up in the scenario.
Publisher* Room::State::publisherOf(const Request& request)
{
    if (const auto setting = readSetting(request.publisher)) {
        return world.byGuid(setting->guid);
    }
    return request.publisher.empty() ? nullptr : world.byRegistId(request.publisher);
}

const Fault* Room::State::faultFor(const Request& request, const Publisher* publisher)
{
    const auto found = std::find_if(faults.begin(), faults.end(), [&](const Fault& fault) {
        return fault.kind != Fault::Kind::refuse &&
               (fault.control == 0 || fault.control == request.control) &&
               (fault.publisher.empty() ||
                (publisher != nullptr && publisher->state().name == fault.publisher));
    });
    if (found == faults.end()) {
        return nullptr;
    }
    current = *found;
    if (found->times > 0 && --found->times == 0) {
        faults.erase(found);
    }
    return &current;
}

void Room::State::rereadSetting(const std::string& registId, Publisher& publisher)
{
    if (const auto setting = readSetting(registId)) {
        publisher.applySettings(setting->shownName, setting->media);
    }
}

void Room::State::takeDatagram(std::string_view datagram)
{
    const auto record = parseLogRecord(datagram);
    if (!record) {
        return;
    }
    alter([&] { keep(records, *record); });
    if (recordOutput) {
        recordOutput(*record);
    }
}

Room::Room(const Scenario& scenario, double speed) : m_state(std::make_unique<State>(scenario, speed)) {}

Room::~Room()
{
    stop();
}

bool Room::start(std::string& error)
{
    State& state = *m_state;
    const std::lock_guard life(state.lifeMutex);
    bool listens = false;
    {
        const std::lock_guard lock(state.mutex);
        if (state.open) {
            error = "the room is open already";
            return false;
        }
        if (!makeFolders(error) || !writeDeviceKeys(state.world.publishers(), error)) {
            return false;
        }
        for (const Publisher& publisher : state.world.publishers()) {
            if (publisher.state().registered && !makeSetting(publisher.state(), error)) {
                return false;
            }
            state.connected.push_back(publisher.connected());
        }
        listens = state.listens();
    }
    if (!state.server.start(listens, error)) {
        return false;
    }
    state.alter([&] { state.open = true; });
    return true;
}

void Room::stop()
{
    const std::lock_guard life(m_state->lifeMutex);
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->open = false;
        m_state->connected.clear();
    }
    m_state->server.stop();
}

void Room::advance(uint64_t milliseconds)
{
    m_state->alter([&] { m_state->world.advance(milliseconds); });
}

bool Room::tell(const std::string& publisher, const std::string& command, std::string* error)
{
    std::string reason;
    const auto parsed = Command::parse(command, reason);
    bool done = false;
    if (parsed) {
        m_state->alter([&] { done = m_state->world.apply(publisher, *parsed); });
        reason = done ? "" : "no such publisher, or its job list is full";
    }
    if (error != nullptr) {
        *error = reason;
    }
    return done;
}

std::string Room::addJob(const std::string& publisher, const JobSetup& setup)
{
    std::string id;
    m_state->alter([&] {
        if (Publisher* const target = m_state->world.byName(publisher)) {
            id = target->addJob(setup);
        }
    });
    return id;
}

void Room::setFault(const Fault& fault)
{
    m_state->alter([&] { m_state->faults.push_back(fault); });
}

void Room::clearFaults()
{
    m_state->alter([&] { m_state->faults.clear(); });
}

std::optional<Publisher> Room::look(const std::string& publisher) const
{
    const std::lock_guard lock(m_state->mutex);
    const Publisher* const found = m_state->world.byName(publisher);
    return found == nullptr ? std::nullopt : std::optional(*found);
}

std::vector<Job> Room::jobs(const std::string& publisher) const
{
    const auto found = look(publisher);
    return found ? found->jobs() : std::vector<Job>();
}

std::vector<Request> Room::requests() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->requests;
}

std::vector<LogRecord> Room::agentRecords() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->records;
}

std::vector<std::string> Room::agentLines() const
{
    std::vector<std::string> lines;
    for (const LogRecord& record : agentRecords()) {
        lines.push_back(record.message);
    }
    return lines;
}

size_t Room::connections() const
{
    return m_state->server.connections();
}

bool Room::waitUntil(
    const std::function<bool(const std::vector<Request>&, const std::vector<LogRecord>&)>& condition,
    std::chrono::milliseconds bound) const
{
    std::unique_lock lock(m_state->mutex);
    return m_state->changed.wait_for(lock, bound,
                                     [&] { return condition(m_state->requests, m_state->records); });
}

bool Room::waitForRequests(uint64_t control, size_t count, std::chrono::milliseconds bound) const
{
    return waitUntil(
        [&](const std::vector<Request>& requests, const std::vector<LogRecord>&) {
            return static_cast<size_t>(
                       std::count_if(requests.begin(), requests.end(),
                                     [&](const Request& one) { return one.control == control; })) >= count;
        },
        bound);
}

void Room::onNote(std::function<void(const std::string&)> output)
{
    m_state->noteOutput = std::move(output);
}

void Room::onRequest(std::function<void(const Request&)> output)
{
    m_state->requestOutput = std::move(output);
}

void Room::onRecord(std::function<void(const LogRecord&)> output)
{
    m_state->recordOutput = std::move(output);
}

} // namespace udsim
