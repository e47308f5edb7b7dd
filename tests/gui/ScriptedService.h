// A control service that answers by a script, for answers that no simulated machine gives (see LocalRoom):
// lists of jobs in any states, any fatal code beside them, and records of any bytes. Any other request
// succeeds with an empty payload.
#pragma once

#include <cstdint>
#include <map>
#include <mutex>
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
    ~ScriptedService();

    void setFatalCode(const std::string& id, uint32_t code);
    void setJobs(const std::string& id, const std::vector<uint64_t>& jobStates);
    /// The job list is answered with this result code.
    void setJobsResult(const std::string& id, uint64_t result);
    /// Every request with this control id is answered with success and this payload.
    void setPayload(uint64_t control, const std::string& payload);

    /// Requests so far, as "control id".
    int count(const std::string& request);

private:
    struct Publisher
    {
        uint32_t fatalCode = 0;
        std::vector<uint64_t> jobStates;
        uint64_t jobsResult = 0;
    };

    void serve();
    void handle(int descriptor);
    std::string reply(uint64_t control, const std::string& id);

    int m_listener = -1;
    int m_stopPipe[2] = {-1, -1};
    std::mutex m_mutex;
    std::map<std::string, Publisher> m_publishers;
    std::map<uint64_t, std::string> m_payloads; ///< by control id
    std::map<std::string, int> m_counts;
    std::thread m_thread;
};
