#include "ScriptedService.h"

#include <cstring>

namespace {

constexpr size_t idOffset = 8;
constexpr size_t idSize = 129;
constexpr size_t jobSize = 1088;
constexpr size_t jobStatusOffset = 512;
constexpr uint64_t getJobStatus = 4;
constexpr uint64_t getFatalCode = 22;

void append(std::string& bytes, const void* value, size_t size)
{
    bytes.append(static_cast<const char*>(value), size);
}

std::string frame(uint64_t control, uint64_t result, const std::string& payload)
{
    const uint64_t length = payload.size();
    std::string bytes;
    append(bytes, &control, sizeof control);
    append(bytes, &result, sizeof result);
    append(bytes, &length, sizeof length);
    return bytes + payload;
}

} // namespace

void ScriptedService::setFatalCode(const std::string& id, uint32_t code)
{
    const std::lock_guard lock(m_mutex);
    m_publishers[id].fatalCode = code;
}

void ScriptedService::setJobs(const std::string& id, const std::vector<uint64_t>& jobStates)
{
    const std::lock_guard lock(m_mutex);
    m_publishers[id].jobStates = jobStates;
}

void ScriptedService::setJobsResult(const std::string& id, uint64_t result)
{
    const std::lock_guard lock(m_mutex);
    m_publishers[id].jobsResult = result;
}

void ScriptedService::setPayload(uint64_t control, const std::string& payload)
{
    const std::lock_guard lock(m_mutex);
    m_payloads[control] = payload;
}

int ScriptedService::count(const std::string& request)
{
    const std::lock_guard lock(m_mutex);
    return m_counts[request];
}

void ScriptedService::serve(UnixPeer& peer, const std::string& request)
{
    uint64_t control = 0;
    std::memcpy(&control, request.data(), sizeof control);
    const std::string id(&request[idOffset], ::strnlen(&request[idOffset], idSize));
    const std::lock_guard lock(m_mutex);
    ++m_counts[std::to_string(control) + " " + id];
    peer.Write(reply(control, id));
}

std::string ScriptedService::reply(uint64_t control, const std::string& id)
{
    const auto scripted = m_payloads.find(control);
    if (scripted != m_payloads.end()) {
        return frame(control, 0, scripted->second);
    }
    const Publisher& publisher = m_publishers[id];
    std::string payload;
    if (control == getFatalCode) {
        append(payload, &publisher.fatalCode, sizeof publisher.fatalCode);
    } else if (control == getJobStatus) {
        if (publisher.jobsResult != 0) {
            return frame(control, publisher.jobsResult, "");
        }
        for (const uint64_t state : publisher.jobStates) {
            std::string job(jobSize, '\0');
            std::memcpy(job.data() + jobStatusOffset, &state, sizeof state);
            payload += job;
        }
    }
    return frame(control, 0, payload);
}
