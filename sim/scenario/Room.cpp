#include "Room.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <set>

#include "ControlService.h"
#include "Diary.h"
#include "HttpServer.h"
#include "InstallationFiles.h"
#include "JobFile.h"
#include "JobInbox.h"
#include "Protocol.h"
#include "ServiceReplies.h"

namespace udsim {

namespace {

constexpr size_t MOST_KEPT = 10'000;
constexpr std::chrono::milliseconds LOOK{100}; ///< real time between two scans of the job folder

/// Appends an item and keeps only the latest ones.
template <class Item>
void keep(std::deque<Item>& latest, Item item)
{
    if (latest.size() == MOST_KEPT) {
        latest.pop_front();
    }
    latest.push_back(std::move(item));
}

/// Returns the fault for one request and removes it from the list after its last one.
template <class AnyFault>
AnyFault takeOnce(std::vector<AnyFault>& faults, typename std::vector<AnyFault>::iterator found)
{
    AnyFault fault = *found;
    if (found->times == 1) {
        faults.erase(found);
    } else if (found->times > 1) {
        --found->times;
    }
    return fault;
}

} // namespace

struct Room::State
{
    State(const Scenario& scenario, double timesFaster);

    Delivery takeRequest(const Request& request);
    HttpDelivery takeHttpRequest(const HttpRequest& request);
    void takeDatagram(std::string_view datagram);
    void tick(std::chrono::milliseconds realTime);
    /// Carries out `change` under the lock, and then updates files, sockets, log and notes accordingly.
    template <class Change>
    void alter(Change&& change);

    Publisher* publisherOf(const Request& request);
    std::optional<Fault> faultFor(const Request& request, const Publisher* publisher);
    std::optional<HttpFault> faultFor(const HttpRequest& request, const std::string& publisher);
    void rereadSetting(const std::string& registId, Publisher& publisher);
    bool listens() const;
    void settle(std::vector<std::string>& notes);
    void lookForJobs();
    /// Adds the job to its machine. Returns the reason if that is not possible.
    std::string takeJob(const FoundFile& found, TakenFile& taken);

    const double speed;
    std::function<void(const std::string&)> noteOutput;
    std::function<void(const Request&)> requestOutput;
    std::function<void(const LogEntry&)> logEntryOutput;
    std::function<void(const HttpRequest&)> httpRequestOutput;

    std::mutex lifeMutex; ///< start and stop, one at a time
    mutable std::mutex mutex;
    mutable std::condition_variable changed;
    World world;
    std::vector<Fault> faults;
    std::vector<bool> connected; ///< as written to the registry file
    std::vector<HttpFault> networkFaults;
    std::deque<Request> requests;
    std::deque<HttpRequest> httpRequests;
    std::deque<LogEntry> logEntries;
    std::deque<TakenFile> takenFiles;
    JobInbox jobInbox{JOB_FOLDER};
    std::set<std::string> jobIds; ///< of all accepted job files
    std::chrono::milliseconds sinceLook{0};
    Diary diary;
    bool serving = false; ///< the service runs according to the log
    uint64_t uniqueNumber = 0;
    double timeLeft = 0; ///< fraction of a simulated millisecond
    bool open = false;   ///< between start and stop

    HttpServer httpServer; ///< this and the next member are the last, because their threads use all others
    ControlService controlService;
};

Room::State::State(const Scenario& scenario, double timesFaster)
    : speed(timesFaster), world(scenario), faults(scenario.faults), networkFaults(scenario.networkFaults),
      httpServer([this](const HttpRequest& request) { return takeHttpRequest(request); }),
      controlService({[this](const Request& request) { return takeRequest(request); },
                      [this](std::string_view datagram) { takeDatagram(datagram); },
                      [this](std::chrono::milliseconds passed) { tick(passed); }})
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
    if (open) {
        diary.follow(world.publishers());
        if (serving != world.serviceOn()) {
            serving = world.serviceOn();
            diary.log(serving ? "service started" : "service stopped");
        }
    }
    for (const std::string& text : diary.takeNotes()) {
        notes.push_back(world.clock() + " " + text);
    }
    if (noteOutput) {
        const std::vector<std::string> states = world.takeNotes();
        notes.insert(notes.end(), states.begin(), states.end());
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
    controlService.setListening(listens());
    for (const PublisherServer& one : world.servers()) {
        httpServer.setListening(one.setup().host, one.listening());
    }
}

bool Room::State::listens() const
{
    return world.serviceOn() && std::none_of(faults.begin(), faults.end(), [](const Fault& fault) {
               return fault.kind == Fault::Kind::refuse;
           });
}

void Room::State::tick(std::chrono::milliseconds realTime)
{
    sinceLook += realTime;
    const bool look = sinceLook >= LOOK;
    if (!look && speed == 0) {
        return;
    }
    alter([&] {
        if (look) {
            sinceLook = {};
            lookForJobs();
        }
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
        const Reply reply = replyTo(request, publisher, world.publishers(), ++uniqueNumber);
        if (request.control == control::NOTIFY_CHANGE && reply.result == result::SUCCESS) {
            rereadSetting(request.publisher, *publisher);
        }
        if (const std::string text = describe(request, reply.result); !text.empty()) {
            diary.say((publisher == nullptr ? "\"" + printable(request.publisher) + "\""
                                            : publisher->state().shownName) +
                      ": " + printable(text));
        }
        const auto fault = faultFor(request, publisher);
        delivery = deliver(reply, fault ? &*fault : nullptr);
    });
    if (requestOutput) {
        requestOutput(request);
    }
    return delivery;
}

HttpDelivery Room::State::takeHttpRequest(const HttpRequest& request)
{
    HttpRequest kept = request;
    kept.bodySize = request.body.size();
    kept.bodySha1 = sha1Of(request.body);
    kept.body.resize(std::min(kept.body.size(), HttpRequest::MOST_BODY_KEPT));
    HttpDelivery delivery;
    alter([&] {
        keep(httpRequests, kept);
        PublisherServer* const publisher = world.serverByHost(request.host);
        const auto fault =
            publisher == nullptr ? std::nullopt : faultFor(request, publisher->setup().machine.name);
        const auto refusal = fault ? fault->refusal() : std::nullopt;
        const HttpReply reply = refusal                ? *refusal
                                : publisher != nullptr ? publisher->answer(request)
                                                       : HttpReply{404, {}};
        delivery = deliver(reply, fault ? &*fault : nullptr);
    });
    if (httpRequestOutput) {
        httpRequestOutput(kept);
    }
    return delivery;
}

std::optional<HttpFault> Room::State::faultFor(const HttpRequest& request, const std::string& publisher)
{
    for (auto fault = networkFaults.begin(); fault != networkFaults.end(); ++fault) {
        if (!fault->fits(request, publisher)) {
            continue;
        }
        if (fault->after == 0) {
            return takeOnce(networkFaults, fault);
        }
        --fault->after;
    }
    return std::nullopt;
}

/// The setting file maps an id to a device. An id without a setting file is looked up in the scenario.
Publisher* Room::State::publisherOf(const Request& request)
{
    if (const auto setting = readSetting(request.publisher)) {
        return world.byGuid(setting->guid);
    }
    return request.publisher.empty() ? nullptr : world.byRegistId(request.publisher);
}

std::optional<Fault> Room::State::faultFor(const Request& request, const Publisher* publisher)
{
    const auto found = std::find_if(faults.begin(), faults.end(), [&](const Fault& fault) {
        return fault.kind != Fault::Kind::refuse &&
               (fault.control == 0 || fault.control == request.control) &&
               (fault.publisher.empty() ||
                (publisher != nullptr && publisher->state().name == fault.publisher));
    });
    return found == faults.end() ? std::nullopt : std::optional(takeOnce(faults, found));
}

void Room::State::rereadSetting(const std::string& registId, Publisher& publisher)
{
    if (const auto setting = readSetting(registId)) {
        publisher.applySettings(setting->shownName, setting->media);
    }
}

void Room::State::lookForJobs()
{
    if (!open || !world.serviceOn()) {
        return;
    }
    for (const FoundFile& found : jobInbox.take(JobInbox::Clock::now())) {
        TakenFile taken{found.name, {}, found.refusal};
        if (taken.refusal.empty()) {
            taken.refusal = takeJob(found, taken);
        }
        if (!taken.refusal.empty()) {
            diary.say("job file " + printable(found.name) + " refused: " + taken.refusal);
        }
        keep(takenFiles, std::move(taken));
    }
}

std::string Room::State::takeJob(const FoundFile& found, TakenFile& taken)
{
    std::string error;
    const auto job = parseJobFile(found.text, error);
    if (!job) {
        return error;
    }
    const auto setting = readSetting(job->publisher);
    Publisher* const publisher = setting ? world.byGuid(setting->guid) : nullptr;
    if (!setting || publisher == nullptr) {
        return "no publisher \"" + printable(job->publisher) + "\" is registered";
    }
    if (std::string refusal = refusalOf(*job, *setting, publisher->model()); !refusal.empty()) {
        return refusal;
    }
    if (jobIds.contains(job->id)) {
        return "a job of this ID came before";
    }
    const JobSetup setup = setupOf(*job);
    taken.job = publisher->addJob(setup);
    if (taken.job.empty()) {
        return "the publisher's job list is full";
    }
    jobIds.insert(job->id);
    diary.say(publisher->state().shownName + ": job " + taken.job + " \"" + setup.name + "\" taken");
    return {};
}

void Room::State::takeDatagram(std::string_view datagram)
{
    const auto entry = parseLogEntry(datagram);
    if (!entry) {
        return;
    }
    alter([&] { keep(logEntries, *entry); });
    if (logEntryOutput) {
        logEntryOutput(*entry);
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
    bool hasServers = false;
    std::vector<std::string> hosts;
    {
        const std::lock_guard lock(state.mutex);
        if (state.open) {
            error = "the room is already running";
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
        for (const PublisherServer& one : state.world.servers()) {
            if (one.machine().state().registered && !makeNetworkSetting(one.setup(), error)) {
                return false;
            }
            if (one.listening()) {
                hosts.push_back(one.setup().host);
            }
        }
        hasServers = !state.world.servers().empty();
        listens = state.listens();
    }
    if (!state.controlService.start(listens, error)) {
        return false;
    }
    if (hasServers && !state.httpServer.start(hosts, error)) {
        state.controlService.stop();
        return false;
    }
    state.alter([&] {
        state.open = true;
        state.serving = state.world.serviceOn();
        state.diary.log(state.serving ? "service started" : "service does not run yet");
    });
    return true;
}

void Room::stop()
{
    const std::lock_guard life(m_state->lifeMutex);
    {
        const std::lock_guard lock(m_state->mutex);
        if (m_state->open && m_state->serving) {
            m_state->diary.log("service stopped");
        }
        m_state->open = false;
        m_state->connected.clear();
        m_state->diary.forget();
    }
    m_state->controlService.stop();
    m_state->httpServer.stop();
}

void Room::advance(uint64_t milliseconds)
{
    m_state->alter([&] {
        m_state->lookForJobs();
        m_state->world.advance(milliseconds);
    });
}

bool Room::tell(const std::string& publisher, const std::string& command, std::string* error)
{
    std::string reason;
    const auto parsed = Command::parse(command, reason);
    bool done = false;
    if (parsed) {
        m_state->alter([&] {
            reason = m_state->world.refusalOf(publisher, *parsed);
            done = m_state->world.apply(publisher, *parsed);
        });
        reason = done || !reason.empty() ? reason : "the publisher's job list is full";
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

void Room::setFault(const HttpFault& fault)
{
    m_state->alter([&] { m_state->networkFaults.push_back(fault); });
}

void Room::clearFaults()
{
    m_state->alter([&] {
        m_state->faults.clear();
        m_state->networkFaults.clear();
    });
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

std::vector<MachineState> Room::states() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->world.states();
}

std::vector<JobProgress> Room::progress() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->world.progress();
}

std::vector<Request> Room::requests() const
{
    const std::lock_guard lock(m_state->mutex);
    return {m_state->requests.begin(), m_state->requests.end()};
}

std::vector<LogEntry> Room::logEntries() const
{
    const std::lock_guard lock(m_state->mutex);
    return {m_state->logEntries.begin(), m_state->logEntries.end()};
}

std::vector<std::string> Room::logMessages() const
{
    std::vector<std::string> lines;
    for (const LogEntry& entry : logEntries()) {
        lines.push_back(entry.message);
    }
    return lines;
}

std::vector<TakenFile> Room::takenFiles() const
{
    const std::lock_guard lock(m_state->mutex);
    return {m_state->takenFiles.begin(), m_state->takenFiles.end()};
}

size_t Room::connections() const
{
    return m_state->controlService.connections();
}

std::optional<PublisherServer> Room::lookAtServer(const std::string& publisher) const
{
    const std::lock_guard lock(m_state->mutex);
    const PublisherServer* const found = m_state->world.serverByName(publisher);
    return found == nullptr ? std::nullopt : std::optional(*found);
}

std::vector<HttpRequest> Room::httpRequests() const
{
    const std::lock_guard lock(m_state->mutex);
    return {m_state->httpRequests.begin(), m_state->httpRequests.end()};
}

size_t Room::httpConnections() const
{
    return m_state->httpServer.connections();
}

bool Room::waitForHttpRequests(const std::string& target, size_t count, std::chrono::milliseconds bound) const
{
    std::unique_lock lock(m_state->mutex);
    return m_state->changed.wait_for(lock, bound, [&] {
        return static_cast<size_t>(std::count_if(
                   m_state->httpRequests.begin(), m_state->httpRequests.end(),
                   [&](const HttpRequest& one) { return one.target.starts_with(target); })) >= count;
    });
}

bool Room::waitUntil(
    const std::function<bool(const std::deque<Request>&, const std::deque<LogEntry>&)>& condition,
    std::chrono::milliseconds bound) const
{
    std::unique_lock lock(m_state->mutex);
    return m_state->changed.wait_for(lock, bound,
                                     [&] { return condition(m_state->requests, m_state->logEntries); });
}

bool Room::waitForRequests(uint64_t control, size_t count, std::chrono::milliseconds bound) const
{
    return waitUntil(
        [&](const std::deque<Request>& requests, const std::deque<LogEntry>&) {
            return static_cast<size_t>(
                       std::count_if(requests.begin(), requests.end(),
                                     [&](const Request& one) { return one.control == control; })) >= count;
        },
        bound);
}

bool Room::waitForTakenFiles(size_t count, std::chrono::milliseconds bound) const
{
    std::unique_lock lock(m_state->mutex);
    return m_state->changed.wait_for(lock, bound, [&] { return m_state->takenFiles.size() >= count; });
}

void Room::onNote(std::function<void(const std::string&)> output)
{
    m_state->noteOutput = std::move(output);
}

void Room::onRequest(std::function<void(const Request&)> output)
{
    m_state->requestOutput = std::move(output);
}

void Room::onHttpRequest(std::function<void(const HttpRequest&)> output)
{
    m_state->httpRequestOutput = std::move(output);
}

void Room::onLogEntry(std::function<void(const LogEntry&)> output)
{
    m_state->logEntryOutput = std::move(output);
}

} // namespace udsim
