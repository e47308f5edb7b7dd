// A room of simulated machines: the control service and its log agent on their sockets, the publisher
// servers, the device keys and the setting files. The demo and every test that needs a device use one object
// of this class.
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

/// The outcome of a job file.
struct TakenFile
{
    std::string file;    ///< its name in the job folder
    std::string job;     ///< its id in the machine's job list; empty if it was refused
    std::string refusal; ///< the reason; empty if it was accepted
};

/// Every member may be called from any thread. The room writes to the fixed locations of the installation, so
/// only one can run at a time on a computer (each test has its own sandbox).
class Room
{
public:
    /// `speed` is the number of simulated seconds per real second; 0: only advance() advances the time. The
    /// job folder is scanned ten times per real second, at any speed, and by every advance().
    explicit Room(const Scenario& scenario, double speed = 0);
    Room(const Room&) = delete;
    Room& operator=(const Room&) = delete;
    ~Room(); ///< stops the room

    /// Creates the folders, the print data, the device keys and the setting files, and listens on both
    /// sockets and at the addresses of the network publishers. Returns false, with the reason in `error`, if
    /// one of these steps fails or another service is listening; nothing keeps running then.
    bool start(std::string& error);
    /// Closes all sockets, including those of stalled connections, and joins the threads. The files stay.
    /// Safe to call twice.
    void stop();

    /// Advances the simulated time at once. Equal sums of time lead to equal states.
    void advance(uint64_t milliseconds);
    /// Carries out a command of the scenario language ("offline", "error 19", "add-job copies=2" ...). An
    /// empty publisher addresses the service itself ("service off", "service on"). Returns false, with the
    /// reason in `error`, if the command is invalid or refused.
    bool tell(const std::string& publisher, const std::string& command, std::string* error = nullptr);
    /// Returns the new job's id; empty if the publisher does not exist or its list is full.
    std::string addJob(const std::string& publisher, const JobSetup& setup = {});
    /// Adds a fault of the service or of the publisher servers. Each request gets the first fault that
    /// matches it.
    void setFault(const Fault& fault);
    void setFault(const HttpFault& fault);
    /// Removes all faults. Connections that already stall keep stalling.
    void clearFaults();

    /// Returns a copy of a publisher's state, by its scenario name; nothing if it does not exist.
    std::optional<Publisher> look(const std::string& publisher) const;
    /// Returns its jobs, in order; none if the publisher does not exist.
    std::vector<Job> jobs(const std::string& publisher) const;
    /// Returns the state of every machine.
    std::vector<MachineState> states() const;
    /// Returns the active jobs, at most one per machine.
    std::vector<JobProgress> progress() const;
    /// Returns every request that was received completely, in order (the last 10,000).
    std::vector<Request> requests() const;
    /// Returns every entry that the log agent received, in order (the last 10,000).
    std::vector<LogEntry> logEntries() const;
    /// Returns the message texts of logEntries().
    std::vector<std::string> logMessages() const;
    /// Returns every job file that was taken from the job folder, in order (the last 10,000).
    std::vector<TakenFile> takenFiles() const;
    /// Returns the number of open connections to the service.
    size_t connections() const;
    /// Returns a copy of a network publisher's state, including uploaded files; nothing if it does not exist.
    std::optional<PublisherServer> lookAtServer(const std::string& publisher) const;
    /// Returns every request to a publisher server that was received completely, in order (the last 10,000).
    std::vector<HttpRequest> httpRequests() const;
    /// Returns the number of open connections to publisher servers.
    size_t httpConnections() const;

    /// Waits until `condition` returns true; returns false on timeout. The condition is called under the
    /// room's lock after every event and must not call the room.
    bool
    waitUntil(const std::function<bool(const std::deque<Request>&, const std::deque<LogEntry>&)>& condition,
              std::chrono::milliseconds bound) const;
    /// Waits until `count` requests of one control have arrived since the start.
    bool waitForRequests(uint64_t control, size_t count,
                         std::chrono::milliseconds bound = std::chrono::seconds(10)) const;
    /// Waits until `count` requests have arrived whose targets begin with `target`.
    bool waitForHttpRequests(const std::string& target, size_t count,
                             std::chrono::milliseconds bound = std::chrono::seconds(10)) const;
    /// Waits until `count` job files have been taken since the start.
    bool waitForTakenFiles(size_t count, std::chrono::milliseconds bound = std::chrono::seconds(10)) const;

    /// Sets a function that is called with one line for each notable change, on the thread that caused it,
    /// without the room's lock. Must be called before start(), like the functions below.
    void onNote(std::function<void(const std::string&)> output);
    /// Sets a function that is called with each request that was received completely.
    void onRequest(std::function<void(const Request&)> output);
    /// The same for requests to publisher servers. The function is called on several threads at once.
    void onHttpRequest(std::function<void(const HttpRequest&)> output);
    /// Sets a function that is called with each entry that the log agent received.
    void onLogEntry(std::function<void(const LogEntry&)> output);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace udsim
