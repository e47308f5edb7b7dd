// What stands between a client and the other side of a recording: bytes go through as they are, both ways at
// once.
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
    /// Connects to the other side for a client; not open, with the reason, when that fails.
    using Connect = std::function<Descriptor(int client, std::string& error)>;

    /// `note` is told what a person should know, on several threads at once.
    Relay(Recorder& recorder, Connect connect, std::function<void(const std::string&)> note);

    /// Takes clients; see Conversations::start.
    bool start(Descriptor listener, std::string& error);
    /// Cuts all connections, and writes down what they carried.
    void stop();

private:
    void carry(int client, unsigned number);

    Recorder& m_recorder;
    Connect m_connect;
    std::function<void(const std::string&)> m_note;
    Conversations m_conversations;
};

} // namespace udsim
