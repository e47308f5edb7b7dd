// The socket of `udsim tell`, at which a running udsim takes commands. A connection carries one request line
// and one reply.
#pragma once

#include <optional>
#include <string>

#include "Conversations.h"
#include "Room.h"

namespace udsim {

inline constexpr char DEFAULT_TELL_SOCKET[] = "/var/run/udsim.socket";

/// A command for a running udsim, or the question how its publishers stand.
struct TellRequest
{
    bool list = false;     ///< the publishers with their states; or else
    std::string publisher; ///< the machine that `command` is for; empty: the service
    std::string command;

    /// As a line, without its line feed.
    std::string line() const;
    static std::optional<TellRequest> parse(const std::string& line);
};

struct TellReply
{
    bool done = false;
    std::string text; ///< lines to print; on failure the reason
};

/// Carries out a request in the room.
TellReply carryOut(Room& room, const TellRequest& request);

/// Serves requests for a room at a path, until it is destroyed or stopped. A connection is closed after five
/// seconds or four kilobytes without the end of a line.
class TellSocket
{
public:
    explicit TellSocket(Room& room);
    TellSocket(const TellSocket&) = delete;
    TellSocket& operator=(const TellSocket&) = delete;
    ~TellSocket();

    /// False, with the reason, when the socket cannot be made, or another udsim listens there.
    bool start(const std::string& path, std::string& error);
    void stop();

private:
    void serve(int socket);

    Room& m_room;
    std::string m_path;
    Conversations m_conversations;
};

/// Sends a request to the udsim at the path. Nothing, with the reason, when none replies within ten seconds.
std::optional<TellReply> sendTellRequest(const std::string& path, const TellRequest& request,
                                         std::string& error);

} // namespace udsim
