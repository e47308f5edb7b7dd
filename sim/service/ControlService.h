// Serves the two sockets of the control service and all its connections on one thread.
#pragma once

#include <chrono>
#include <functional>
#include <list>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "Descriptor.h"
#include "Fault.h"
#include "Wire.h"

namespace udsim {

class ControlService
{
public:
    struct Handlers
    {
        std::function<Delivery(const Request&)> request;
        std::function<void(std::string_view)> datagram;
        std::function<void(std::chrono::milliseconds)> tick; ///< real time since the last call; may be empty
    };

    /// The handlers are called on the service's thread, one at a time.
    explicit ControlService(Handlers handlers);
    ControlService(const ControlService&) = delete;
    ControlService& operator=(const ControlService&) = delete;
    ~ControlService();

    /// Returns false, with the reason in `error`, if a socket cannot be created or another process listens
    /// there.
    bool start(bool listening, std::string& error);
    /// Ends the thread and closes all sockets and connections, whatever their state. Must not be called by a
    /// handler.
    void stop();
    /// Accepts connections, or refuses them. Takes effect before it returns. Any thread.
    void setListening(bool listening);
    size_t connections() const;

private:
    using Clock = std::chrono::steady_clock;

    struct Connection
    {
        Descriptor socket;
        std::string input;
        std::string output;
        Clock::time_point due{}; ///< `output` is not sent earlier
        bool stalled = false;
        bool closing = false;  ///< closed once `output` is sent
        bool finished = false; ///< the client will send no more data
        bool dead = false;
    };

    void run();
    int pollTimeout(Clock::time_point now) const;
    short eventsOf(const Connection& connection, Clock::time_point now) const;
    void takeConnections();
    void serve(Connection& connection, short events, Clock::time_point now);
    void receive(Connection& connection);
    void takeRequest(Connection& connection, Clock::time_point now);
    void transmit(Connection& connection);
    void readAgent();
    void wake();
    bool openListener(std::string& error);

    Handlers m_handlers;
    Descriptor m_wake;
    Descriptor m_agent;
    std::thread m_thread;

    mutable std::mutex m_mutex; ///< guards the members up to `m_listening`
    Descriptor m_listener;
    std::vector<Descriptor> m_retired; ///< listeners that are shut down; the thread closes them
    size_t m_count = 0;
    bool m_running = false;
    bool m_listening = false;

    // Used only by the thread.
    std::list<Connection> m_connections;
    Clock::time_point m_nextTick;
    Clock::time_point m_acceptFrom; ///< next accept after the process ran out of descriptors
};

} // namespace udsim
