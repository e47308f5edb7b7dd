// The two sockets of the control service, and every connection to it, on one thread.
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
        std::function<void(std::chrono::milliseconds)> tick; ///< real time since the last one; may be empty
    };

    /// The handlers are called on the service's thread, one at a time.
    explicit ControlService(Handlers handlers);
    ControlService(const ControlService&) = delete;
    ControlService& operator=(const ControlService&) = delete;
    ~ControlService();

    /// False, with the reason in `error`, when a socket cannot be made or another process listens there.
    bool start(bool listening, std::string& error);
    /// Ends the thread and closes everything, in whatever state connections are. Not to be called on a
    /// handler.
    void stop();
    /// Connections are refused from the return of this call on, or taken again. Any thread.
    void setListening(bool listening);
    size_t connections() const;

private:
    using Clock = std::chrono::steady_clock;

    struct Connection
    {
        Descriptor socket;
        std::string input;
        std::string output;
        Clock::time_point due{}; ///< when `output` may go
        bool stalled = false;
        bool closing = false;  ///< ends when `output` is gone
        bool finished = false; ///< the client sends no more
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

    mutable std::mutex m_mutex; ///< guards what follows
    Descriptor m_listener;
    std::vector<Descriptor> m_retired; ///< listeners that are shut down, for the thread to close
    size_t m_count = 0;
    bool m_running = false;
    bool m_listening = false;

    // The thread's own.
    std::list<Connection> m_connections;
    Clock::time_point m_nextTick;
    Clock::time_point m_acceptFrom; ///< no sooner, after the process ran out of descriptors
};

} // namespace udsim
