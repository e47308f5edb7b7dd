// A control service with scripted replies, for replies that no simulated machine gives (see LocalRoom): job
// lists with any states together with any fatal code, and payloads of any bytes. Any other request succeeds
// with an empty payload.
#pragma once

#include "ScriptedControlService.h"

#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <vector>

/// Throws std::runtime_error if it cannot listen on the service's socket.
class ScriptedService
{
public:
    void setFatalCode(const std::string& id, uint32_t code);
    void setJobs(const std::string& id, const std::vector<uint64_t>& jobStates);
    /// Sets the result code of the reply to a job list request.
    void setJobsResult(const std::string& id, uint64_t result);
    /// Sets the payload of the replies to this control id, for every publisher. These replies report success.
    void setPayload(uint64_t control, const std::string& payload);

    /// Returns the number of these requests so far; `request` is "CONTROL ID", such as "22 X".
    int count(const std::string& request);

private:
    struct Publisher
    {
        uint32_t fatalCode = 0;
        std::vector<uint64_t> jobStates;
        uint64_t jobsResult = 0;
    };

    void serve(UnixPeer& peer, const std::string& request);
    std::string reply(uint64_t control, const std::string& id);

    std::mutex m_mutex;
    std::map<std::string, Publisher> m_publishers;
    std::map<uint64_t, std::string> m_payloads; ///< by control id
    std::map<std::string, int> m_counts;
    ScriptedControlService m_service{[this](UnixPeer& peer, const std::string& request) {
        serve(peer, request);
    }}; ///< last: it uses the others
};
