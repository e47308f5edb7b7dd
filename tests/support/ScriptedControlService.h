// A control service in its own thread, which sends prepared bytes as its answers.
#pragma once

#include "InstallPaths.h"
#include "UnixListener.h"

#include <atomic>
#include <functional>
#include <string>
#include <thread>

class ScriptedControlService
{
public:
    static constexpr size_t REQUEST_SIZE = 408;

    /// Called in the thread of the service with a whole request. The connection is closed when it returns.
    using Talk = std::function<void(UnixPeer& peer, const std::string& request)>;

    explicit ScriptedControlService(Talk talk) : m_talk(std::move(talk)), m_thread([this] { Run(); }) {}
    ScriptedControlService(const ScriptedControlService&) = delete;
    ScriptedControlService& operator=(const ScriptedControlService&) = delete;
    ~ScriptedControlService()
    {
        m_isEnding = true;
        m_thread.join();
    }

private:
    void Run()
    {
        while (!m_isEnding) {
            UnixPeer peer = m_listener.Accept(20);
            if (!peer.IsOpen()) {
                continue;
            }
            const std::string request = peer.ReadExactly(REQUEST_SIZE);
            if (request.size() == REQUEST_SIZE) {
                m_talk(peer, request);
            }
        }
    }

    UnixListener m_listener{SERVICE_SOCKET};
    Talk m_talk;
    std::atomic<bool> m_isEnding = false;
    std::thread m_thread; // last: it uses all of the above
};
