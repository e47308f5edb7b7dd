// The control service, played by a thread that answers by a script. It knows the questions of the list
// window, the fatal error code of a publisher and its unfinished jobs, and the one before its properties
// open: its publish mode. Wear and versions are all zero, and anything else succeeds with an empty payload,
// unless the script says more.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

class ScriptedService
{
public:
    /// Listens on the service's socket; throws std::runtime_error when it cannot.
    ScriptedService();
    ScriptedService(const ScriptedService&) = delete;
    ScriptedService& operator=(const ScriptedService&) = delete;
    /// Closes every connection, the stalled ones too.
    ~ScriptedService();

    void setFatalCode(const std::string& id, uint32_t code);
    void setJobs(const std::string& id, const std::vector<uint64_t>& jobStates);
    /// The job list is answered with this result code.
    void setJobsResult(const std::string& id, uint64_t result);
    /// Until it is set, the service has no publish mode to give.
    void setPublishMode(const std::string& id, uint32_t mode);
    /// Every request with this control id is answered with success and this payload.
    void setPayload(uint64_t control, const std::string& payload);

    /// From here on a request for this publisher is read and not answered.
    void stall(const std::string& id);
    /// Answers the stalled requests, and those to come.
    void release(const std::string& id);

    /// Requests so far, as "control id".
    int count(const std::string& request);
    bool waitFor(const std::string& request, int count);

private:
    struct Publisher
    {
        uint32_t fatalCode = 0;
        std::vector<uint64_t> jobStates;
        uint64_t jobsResult = 0;
        std::optional<uint32_t> publishMode;
        bool stalled = false;
    };
    struct Stalled
    {
        int descriptor;
        std::string id;
        uint64_t control;
    };

    void serve();
    void handle(int descriptor);
    std::string reply(uint64_t control, const std::string& id);

    int m_listener = -1;
    int m_stopPipe[2] = {-1, -1};
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::string, Publisher> m_publishers;
    std::map<uint64_t, std::string> m_payloads; ///< by control id
    std::map<std::string, int> m_counts;
    std::vector<Stalled> m_stalled;
    std::thread m_thread;
};
