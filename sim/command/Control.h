// The socket by which a running udsim takes commands: `udsim tell` at one end, the room at the other. A
// connection carries one line there and one answer back.
#pragma once

#include <optional>
#include <string>

#include "Conversations.h"
#include "Room.h"

namespace udsim {

inline constexpr char DEFAULT_CONTROL[] = "/var/run/udsim.socket";

/// What somebody asks of a running udsim.
struct Order
{
    bool list = false;     ///< the publishers with their states; or else
    std::string publisher; ///< the machine that `command` is for; empty: the service
    std::string command;

    /// The line of the wire, without its end.
    std::string line() const;
    static std::optional<Order> parse(const std::string& line);
};

struct Answer
{
    bool done = false;
    std::string text; ///< lines for the person who asked; on failure the reason
};

/// Carries it out in the room.
Answer carryOut(Room& room, const Order& order);

/// Takes orders for a room at a path, until it is destroyed or stopped. A peer that sends nothing, or no end
/// of a line, is turned away after five seconds or four kilobytes.
class ControlServer
{
public:
    explicit ControlServer(Room& room);
    ControlServer(const ControlServer&) = delete;
    ControlServer& operator=(const ControlServer&) = delete;
    ~ControlServer();

    /// False, with the reason, when the socket cannot be made, or another udsim takes orders there.
    bool start(const std::string& path, std::string& error);
    void stop();

private:
    void serve(int socket);

    Room& m_room;
    std::string m_path;
    Conversations m_conversations;
};

/// Sends an order to the udsim at the path. Nothing, with the reason, when none answers within ten seconds.
std::optional<Answer> sendOrder(const std::string& path, const Order& order, std::string& error);

} // namespace udsim
