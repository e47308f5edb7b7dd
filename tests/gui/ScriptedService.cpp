#include "ScriptedService.h"

#include "InstallPaths.h"

#include <cerrno>
#include <cstring>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr size_t requestSize = 408;
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

ScriptedService::ScriptedService()
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, SERVICE_SOCKET, sizeof SERVICE_SOCKET);
    m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (m_listener < 0 || ::pipe2(m_stopPipe, O_CLOEXEC) != 0 ||
        ::bind(m_listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(m_listener, 128) != 0) {
        throw std::runtime_error(std::string("ScriptedService: ") + std::strerror(errno));
    }
    m_thread = std::thread([this] { serve(); });
}

ScriptedService::~ScriptedService()
{
    ::close(m_stopPipe[1]);
    m_thread.join();
    ::close(m_stopPipe[0]);
    ::close(m_listener);
    ::unlink(SERVICE_SOCKET);
}

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

void ScriptedService::serve()
{
    while (true) {
        pollfd entries[2] = {{m_listener, POLLIN, 0}, {m_stopPipe[0], POLLIN, 0}};
        if (::poll(entries, 2, -1) < 0 && errno == EINTR) {
            continue;
        }
        if (entries[1].revents != 0) {
            return;
        }
        const int descriptor = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (descriptor >= 0) {
            handle(descriptor);
        }
    }
}

void ScriptedService::handle(int descriptor)
{
    char request[requestSize];
    if (::recv(descriptor, request, sizeof request, MSG_WAITALL) != static_cast<ssize_t>(sizeof request)) {
        ::close(descriptor);
        return;
    }
    uint64_t control = 0;
    std::memcpy(&control, request, sizeof control);
    const std::string id(request + idOffset, ::strnlen(request + idOffset, idSize));

    const std::lock_guard lock(m_mutex);
    ++m_counts[std::to_string(control) + " " + id];
    const std::string bytes = reply(control, id);
    ::send(descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    ::close(descriptor);
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
