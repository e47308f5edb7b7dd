// Forwards bytes unchanged between clients and the other side of a recording, in both directions at once.
#pragma once

#include <functional>
#include <string>

#include "Conversations.h"
#include "Descriptor.h"
#include "Transcript.h"

namespace udsim {

class Relay
{
public:
    /// Connects to the other side for a client; not open, with the reason in `error`, on failure.
    using Connect = std::function<Descriptor(int client, std::string& error)>;

    /// `note` is called with messages for the user, on several threads at once.
    Relay(Recorder& recorder, Connect connect, std::function<void(const std::string&)> note);

    /// Accepts clients; see Conversations::start.
    bool start(Descriptor listener, std::string& error);
    /// Closes all connections and writes their last messages to the recording.
    void stop();

private:
    void carry(int client, unsigned number);

    Recorder& m_recorder;
    Connect m_connect;
    std::function<void(const std::string&)> m_note;
    Conversations m_conversations;
};

} // namespace udsim
