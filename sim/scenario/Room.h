// A room of simulated machines: the control service and its log agent on their sockets, the device keys and
// the setting files in their folder. One object serves the demo, and every test that needs a device.
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Fault.h"
#include "HttpFault.h"
#include "LogEntry.h"
#include "Publisher.h"
#include "PublisherServer.h"
#include "Scenario.h"
#include "Wire.h"
#include "World.h"

namespace udsim {

/// What became of a job file.
struct TakenFile
{
    std::string file;    ///< its name in the job folder
    std::string job;     ///< the id under which a machine's list has it; empty when it was refused
    std::string refusal; ///< why; empty when it was not
};

/// Every member may be called from any thread. The room writes to the fixed locations of the installation, so
/// there is one at a time on a machine (a test has a sandbox of its own).
class Room
{
public:
    /// `speed` is how many simulated seconds pass in a real one; 0: time stands still but for advance(). Job
    /// files are looked for ten times in a real second whatever the speed, and at every advance().
    explicit Room(const Scenario& scenario, double speed = 0);
    Room(const Room&) = delete;
    Room& operator=(const Room&) = delete;
    ~Room(); ///< stops the room

    /// Makes the folders, the print data, the device keys and the setting files, and listens on both sockets
    /// and at the addresses of the network publishers.
    /// False, with the reason in `error`, when something of it cannot be made or another service listens
    /// already; nothing keeps running then.
    bool start(std::string& error);
    /// Closes the sockets, also those of stalled connections, and joins the thread. The files stay. Safe to
    /// call twice.
    void stop();

    /// Lets simulated time pass at once. Equal sums of time lead to equal states.
    void advance(uint64_t milliseconds);
    /// Carries out a command of the scenario's language ("offline", "error 19", "add-job copies=2" ...). An
    /// empty publisher addresses the service itself ("service off", "service on"). False: not understood or
    /// not to be done, see `error`.
    bool tell(const std::string& publisher, const std::string& command, std::string* error = nullptr);
    /// The new job's id; empty when the publisher does not exist or its list is full.
    std::string addJob(const std::string& publisher, const JobSetup& setup = {});
    /// Adds a fault, of the service or of the publisher servers. The first one that fits a request is the one
    /// that is carried out.
    void setFault(const Fault& fault);
    void setFault(const HttpFault& fault);
    /// From here on every request is answered properly; connections that stall already go on stalling.
    void clearFaults();

    /// A copy of one publisher's state, by its scenario name; nothing when there is none.
    std::optional<Publisher> look(const std::string& publisher) const;
    /// Its jobs, in order; none when there is no such publisher.
    std::vector<Job> jobs(const std::string& publisher) const;
    /// How every machine stands.
    std::vector<MachineState> states() const;
    /// The jobs under way, one a machine at most.
    std::vector<JobProgress> progress() const;
    /// Every request that arrived whole, in order (the last 10,000).
    std::vector<Request> requests() const;
    /// Every entry that the log agent took, in order (the last 10,000).
    std::vector<LogEntry> logEntries() const;
    /// The message texts of logEntries().
    std::vector<std::string> logMessages() const;
    /// Every job file that was taken out of the job folder, in order (the last 10,000).
    std::vector<TakenFile> takenFiles() const;
    /// How many connections are open at this moment.
    size_t connections() const;
    /// A copy of a network publisher's state, the uploaded files included; nothing when there is none.
    std::optional<PublisherServer> lookAtServer(const std::string& publisher) const;
    /// Every request to a publisher server that arrived whole, in order (the last 10,000).
    std::vector<HttpRequest> httpRequests() const;
    /// How many connections to publisher servers are open at this moment.
    size_t httpConnections() const;

    /// Waits until `condition`, called under the room's lock after every event, holds; false when it does not
    /// within the time. The condition must not call the room.
    bool
    waitUntil(const std::function<bool(const std::deque<Request>&, const std::deque<LogEntry>&)>& condition,
              std::chrono::milliseconds bound) const;
    /// Waits until `count` requests of one control have arrived since the start.
    bool waitForRequests(uint64_t control, size_t count,
                         std::chrono::milliseconds bound = std::chrono::seconds(10)) const;
    /// Waits until `count` requests have arrived whose targets begin so.
    bool waitForHttpRequests(const std::string& target, size_t count,
                             std::chrono::milliseconds bound = std::chrono::seconds(10)) const;
    /// Waits until `count` job files have been taken since the start.
    bool waitForTakenFiles(size_t count, std::chrono::milliseconds bound = std::chrono::seconds(10)) const;

    /// Called with one line for each notable change, on the thread that caused it, without the room's lock.
    /// To be set before start().
    void onNote(std::function<void(const std::string&)> output);
    /// Called with each request that arrived whole. To be set before start().
    void onRequest(std::function<void(const Request&)> output);
    /// The same with requests to publisher servers, on several threads at once.
    void onHttpRequest(std::function<void(const HttpRequest&)> output);
    /// Called with each entry that the log agent took. To be set before start().
    void onLogEntry(std::function<void(const LogEntry&)> output);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace udsim
