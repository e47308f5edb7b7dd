#include "TellSocket.h"

#include <algorithm>
#include <chrono>

#include <sys/socket.h>

#include "Sockets.h"

namespace udsim {

namespace {

using Clock = std::chrono::steady_clock;

constexpr unsigned ROOM_SOCKET_RIGHTS = 0600; ///< only the user who runs the room
constexpr size_t LONGEST_LINE = 4096;
constexpr size_t LONGEST_REPLY = 1U << 20;
constexpr std::chrono::seconds LINE_TIME{5};
constexpr std::chrono::seconds REPLY_TIME{10};
constexpr char LIST[] = "list";
constexpr char TELL[] = "tell\t";
constexpr char DONE[] = "done\n";
constexpr char REFUSED[] = "refused\n";

/// Reads until `isWhole` returns true, the end of the data, the timeout, or the maximum size. Returns whether
/// the bytes are complete.
template <class IsWhole>
bool receiveWhole(int socket, std::chrono::milliseconds time, size_t longest, std::string& bytes,
                  IsWhole&& isWhole)
{
    const Clock::time_point end = Clock::now() + time;
    while (!isWhole(bytes) && bytes.size() <= longest) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        if (left <= 0 || !receiveMore(socket, static_cast<int>(left), bytes)) {
            break;
        }
    }
    return isWhole(bytes);
}

} // namespace

std::string TellRequest::line() const
{
    return list ? LIST : TELL + publisher + "\t" + command;
}

std::optional<TellRequest> TellRequest::parse(const std::string& line)
{
    if (line == LIST) {
        return TellRequest{true, {}, {}};
    }
    const size_t name = sizeof TELL - 1;
    const size_t tab = line.starts_with(TELL) ? line.find('\t', name) : std::string::npos;
    if (tab == std::string::npos) {
        return std::nullopt;
    }
    return TellRequest{false, line.substr(name, tab - name), line.substr(tab + 1)};
}

TellReply carryOut(Room& room, const TellRequest& request)
{
    if (!request.list) {
        TellReply reply;
        reply.done = room.tell(request.publisher, request.command, &reply.text);
        return reply;
    }
    const std::vector<MachineState> states = room.states();
    size_t widest = 0;
    for (const MachineState& one : states) {
        widest = std::max(widest, columnsOf(one.name));
    }
    TellReply reply{true, {}};
    for (const MachineState& one : states) {
        reply.text += fit(one.name, widest) + "  " + one.state + "\n";
    }
    return reply;
}

TellSocket::TellSocket(Room& room)
    : m_room(room), m_conversations([this](int socket, unsigned) { serve(socket); })
{
}

TellSocket::~TellSocket()
{
    stop();
}

bool TellSocket::start(const std::string& path, std::string& error)
{
    if (isServed(SOCK_STREAM, path)) {
        error = path + ": another udsim uses this socket";
        return false;
    }
    Descriptor listener = bindUnix(SOCK_STREAM, path, ROOM_SOCKET_RIGHTS, error);
    if (!listener.isOpen()) {
        return false;
    }
    m_path = path;
    return m_conversations.start(std::move(listener), error);
}

void TellSocket::stop()
{
    m_conversations.stop();
    if (!m_path.empty()) {
        ::unlink(m_path.c_str());
        m_path.clear();
    }
}

void TellSocket::serve(int socket)
{
    std::string line;
    const auto hasEnd = [](const std::string& bytes) { return bytes.find('\n') != std::string::npos; };
    if (!receiveWhole(socket, LINE_TIME, LONGEST_LINE, line, hasEnd)) {
        return;
    }
    const auto request = TellRequest::parse(line.substr(0, line.find('\n')));
    const TellReply reply = request ? carryOut(m_room, *request) : TellReply{false, "not understood"};
    sendAll(socket, (reply.done ? DONE : REFUSED) + reply.text);
}

std::optional<TellReply> sendTellRequest(const std::string& path, const TellRequest& request,
                                         std::string& error)
{
    const Descriptor socket = connectUnix(path, error);
    if (!socket.isOpen()) {
        error =
            "not running: no udsim accepts commands at " + error + " (use --control for a different socket)";
        return std::nullopt;
    }
    sendAll(socket.get(), request.line() + "\n");
    std::string reply;
    receiveWhole(socket.get(), REPLY_TIME, LONGEST_REPLY, reply, [](const std::string&) { return false; });
    for (const auto& [word, done] : {std::pair(DONE, true), std::pair(REFUSED, false)}) {
        if (reply.starts_with(word)) {
            return TellReply{done, reply.substr(std::char_traits<char>::length(word))};
        }
    }
    error = "the udsim at " + path + " does not reply";
    return std::nullopt;
}

} // namespace udsim
