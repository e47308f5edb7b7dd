// Whoever connects to a listening socket, each served on a thread of its own.
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
    /// More at a time are turned away: their connection ends at once.
    static constexpr size_t MOST = 64;

    /// Called for each connection, with its socket, which does not block, and its number, from 1. The
    /// connection ends when it returns. A read that fails or ends means that it has to return soon.
    using Talk = std::function<void(int socket, unsigned number)>;

    /// `turnedAway`, if there is one, is called for each that is.
    explicit Conversations(Talk talk, std::function<void()> turnedAway = {});
    Conversations(const Conversations&) = delete;
    Conversations& operator=(const Conversations&) = delete;
    ~Conversations(); ///< stops

    /// False, with the reason, when it cannot be started. `listener` does not block.
    bool start(Descriptor listener, std::string& error);
    /// Takes no more, cuts those there are, and waits until the last one has returned. Safe to call twice;
    /// not to be called by a talk.
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

    std::mutex m_mutex; ///< guards what follows
    std::list<One> m_list;
    bool m_running = false;
};

/// Reads once what has come, waiting up to `milliseconds` (-1: for ever) for it, and appends it. False when
/// the other side sends no more, the connection failed, or nothing came in time.
bool receiveMore(int socket, int milliseconds, std::string& bytes);

} // namespace udsim
