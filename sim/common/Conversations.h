// Accepts connections on a listening socket and serves each on its own thread.
#pragma once

#include <functional>
#include <list>
#include <mutex>
#include <string>
#include <thread>

#include "Descriptor.h"

namespace udsim {

class Conversations
{
public:
    /// Maximum number of open connections; further ones are closed at once.
    static constexpr size_t MOST = 64;

    /// Called on the connection's thread with its non-blocking socket and its number, counted from 1. The
    /// connection is closed when it returns. It must return soon after a read fails or reaches the end.
    using Talk = std::function<void(int socket, unsigned number)>;

    /// `turnedAway`, if set, is called for each connection above the maximum.
    explicit Conversations(Talk talk, std::function<void()> turnedAway = {});
    Conversations(const Conversations&) = delete;
    Conversations& operator=(const Conversations&) = delete;
    ~Conversations(); ///< stops

    /// `listener` must be non-blocking. Returns false, with the reason in `error`, on failure.
    bool start(Descriptor listener, std::string& error);
    /// Stops accepting, shuts down all connections and joins their threads. Safe to call twice; must not be
    /// called by a talk.
    void stop();

private:
    struct One
    {
        std::thread thread;
        Descriptor socket;
        bool ended = false;
    };

    void run();
    void take();
    bool serve(Descriptor socket);

    Talk m_talk;
    std::function<void()> m_turnedAway;
    Descriptor m_wake;
    Descriptor m_listener;
    std::thread m_thread;
    unsigned m_count = 0;

    std::mutex m_mutex; ///< guards the members below
    std::list<One> m_list;
    bool m_running = false;
};

/// Reads once, waiting up to `milliseconds` (-1: no limit) for data, and appends the data to `bytes`. Returns
/// false on end of data, on failure and on timeout.
bool receiveMore(int socket, int milliseconds, std::string& bytes);

} // namespace udsim
