// The socket at which a running udsim accepts commands of `udsim tell`. A connection carries one request line
// and one reply.
#pragma once

#include <optional>
#include <string>

#include "Conversations.h"
#include "Room.h"

namespace udsim {

inline constexpr char DEFAULT_TELL_SOCKET[] = "/var/run/udsim.socket";

/// A command for a running udsim, or a query for the state of its publishers.
struct TellRequest
{
    bool list = false;     ///< queries the states; the other members are unused
    std::string publisher; ///< the machine that `command` is for; empty: the service
    std::string command;

    /// Returns the request as a line, without the line feed.
    std::string line() const;
    static std::optional<TellRequest> parse(const std::string& line);
};

struct TellReply
{
    bool done = false;
    std::string text; ///< lines to print; the reason on failure
};

/// Carries out a request in the room.
TellReply carryOut(Room& room, const TellRequest& request);

/// Serves requests for a room at a path until it is stopped or destroyed. A connection is closed after five
/// seconds or four kilobytes without the end of a line.
class TellSocket
{
public:
    explicit TellSocket(Room& room);
    TellSocket(const TellSocket&) = delete;
    TellSocket& operator=(const TellSocket&) = delete;
    ~TellSocket();

    /// Returns false, with the reason in `error`, if the socket cannot be created or another udsim listens
    /// there.
    bool start(const std::string& path, std::string& error);
    void stop();

private:
    void serve(int socket);

    Room& m_room;
    std::string m_path;
    Conversations m_conversations;
};

/// Sends a request to the udsim at the path. Returns nothing, with the reason in `error`, if there is no
/// reply within ten seconds.
std::optional<TellReply> sendTellRequest(const std::string& path, const TellRequest& request,
                                         std::string& error);

} // namespace udsim
