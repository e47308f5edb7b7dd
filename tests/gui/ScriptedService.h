// A control service that answers by a script, for answers that no simulated machine gives (see LocalRoom):
// lists of jobs in any states, any fatal code beside them, and records of any bytes. Any other request
// succeeds with an empty payload.
#pragma once

#include "InstallPaths.h"
#include "UnixListener.h"

#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// Throws std::runtime_error when it cannot listen on the service's socket.
class ScriptedService
{
public:
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

    void serve(const std::stop_token& stop);
    std::string reply(uint64_t control, const std::string& id);

    UnixListener m_listener{SERVICE_SOCKET};
    std::mutex m_mutex;
    std::map<std::string, Publisher> m_publishers;
    std::map<uint64_t, std::string> m_payloads; ///< by control id
    std::map<std::string, int> m_counts;
    std::jthread m_thread{[this](const std::stop_token& stop) { serve(stop); }}; ///< last: it uses the others
};
