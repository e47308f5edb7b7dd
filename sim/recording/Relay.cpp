#include "Relay.h"

#include <array>
#include <cerrno>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

#include "Protocol.h"
#include "Wire.h"

namespace udsim {

namespace {

constexpr size_t FORWARDED_PIECE = 65'536;
constexpr size_t MOST_WAITING = 256U << 10; ///< bytes of one direction that the receiver has not read yet
constexpr size_t MOST_HELD = 1U << 20;      ///< bytes of an incomplete reply
constexpr int LONGEST_HOLD = 500;           ///< milliseconds for the next piece of a reply
constexpr int LONGEST_SILENCE = 60'000; ///< milliseconds after the client's end of data; it may still read

/// One direction.
struct Stream
{
    int from;
    int to;
    Message::Kind kind;
    std::string waiting = {};
    bool ended = false;  ///< the sender has ended
    bool passed = false; ///< the end was forwarded to the receiver
};

/// Returns whether a reply of the service is complete: header and payload are forwarded in one piece, because
/// the client reads each with a single call.
bool isWholeReply(const std::string& bytes)
{
    return bytes.size() >= HEADER_SIZE && bytes.size() - HEADER_SIZE >= readU64(bytes, PAYLOAD_LENGTH_AT);
}

/// Returns false if the connection has failed.
bool receive(Stream& stream, Transcript& transcript)
{
    std::array<char, FORWARDED_PIECE> piece{};
    const ssize_t count = ::recv(stream.from, piece.data(), piece.size(), 0);
    if (count < 0) {
        return errno == EAGAIN || errno == EINTR;
    }
    const std::string_view bytes(piece.data(), static_cast<size_t>(count));
    stream.waiting += bytes;
    stream.ended = count == 0;
    if (count > 0) {
        transcript.add(stream.kind, bytes);
    }
    return true;
}

bool transmit(Stream& stream)
{
    const ssize_t count = ::send(stream.to, stream.waiting.data(), stream.waiting.size(), MSG_NOSIGNAL);
    if (count < 0) {
        return errno == EAGAIN || errno == EINTR;
    }
    stream.waiting.erase(0, static_cast<size_t>(count));
    return true;
}

/// Forwards in both directions until one side ends.
class Forwarding
{
public:
    Forwarding(int client, int other, bool holdsReplies, Transcript& transcript)
        : m_there{client, other, Message::Kind::ask}, m_back{other, client, Message::Kind::answer},
          m_holdsReplies(holdsReplies), m_transcript(transcript)
    {
    }

    void run()
    {
        while (step()) {
        }
    }

private:
    bool isHeld() const
    {
        return m_holdsReplies && !m_back.waiting.empty() && !m_back.ended && !m_released &&
               m_back.waiting.size() < MOST_HELD && !isWholeReply(m_back.waiting);
    }

    /// Returns false at the end.
    bool step()
    {
        const bool held = isHeld();
        const auto reads = [](const Stream& stream, size_t most) {
            return stream.ended || stream.waiting.size() >= most ? 0 : POLLIN;
        };
        const size_t mostBack = held ? MOST_HELD : MOST_WAITING;
        std::array<pollfd, 2> entries{
            {{m_there.from,
              static_cast<short>(reads(m_there, MOST_WAITING) |
                                 (m_back.waiting.empty() || held ? 0 : POLLOUT)),
              0},
             {m_there.to,
              static_cast<short>(reads(m_back, mostBack) | (m_there.waiting.empty() ? 0 : POLLOUT)), 0}}};
        if (m_back.ended && m_there.waiting.empty()) {
            entries[1].fd = -1; // poll() would report its end repeatedly
        }
        const int timeout = held ? LONGEST_HOLD : m_there.ended ? LONGEST_SILENCE : -1;
        const int ready = ::poll(entries.data(), entries.size(), timeout);
        if (ready < 0) {
            return errno == EINTR;
        }
        if (ready == 0) {
            m_released = held; // forwards the incomplete reply
            return held;
        }
        return serve(entries[0].revents, entries[1].revents);
    }

    bool serve(short client, short other)
    {
        if ((client & (POLLERR | POLLNVAL)) != 0 || ((client & POLLHUP) != 0 && (client & POLLIN) == 0)) {
            return false; // the client has disconnected
        }
        if ((client & POLLIN) != 0 && !receive(m_there, m_transcript)) {
            return false;
        }
        if ((other & (POLLIN | POLLHUP | POLLERR)) != 0 && !m_back.ended && !receive(m_back, m_transcript)) {
            m_back.ended = true;
        }
        if ((other & POLLOUT) != 0 && !m_there.waiting.empty() && !transmit(m_there)) {
            m_there.waiting.clear();
            m_there.ended = true;
        }
        if ((client & POLLOUT) != 0 && !m_back.waiting.empty() && !isHeld() && !transmit(m_back)) {
            return false;
        }
        if (m_back.waiting.empty()) {
            m_released = false;
        }
        if (m_there.ended && m_there.waiting.empty() && !m_there.passed) {
            m_there.passed = true;
            ::shutdown(m_there.to, SHUT_WR);
        }
        if (m_back.ended && m_back.waiting.empty()) {
            if (!m_there.ended) { // else the client ended the connection first
                m_transcript.closed();
            }
            return false;
        }
        return true;
    }

    Stream m_there;
    Stream m_back;
    const bool m_holdsReplies;
    bool m_released = false;
    Transcript& m_transcript;
};

} // namespace

Relay::Relay(Recorder& recorder, Connect connect, std::function<void(const std::string&)> note)
    : m_recorder(recorder), m_connect(std::move(connect)), m_note(std::move(note)),
      m_conversations([this](int client, unsigned number) { carry(client, number); },
                      [this] {
                          const std::string text =
                              "a client was rejected: " + std::to_string(Conversations::MOST) +
                              " are connected, which is the maximum";
                          m_recorder.remark(0, text);
                          m_note(text);
                      })
{
}

bool Relay::start(Descriptor listener, std::string& error)
{
    return m_conversations.start(std::move(listener), error);
}

void Relay::stop()
{
    m_conversations.stop();
}

void Relay::carry(int client, unsigned number)
{
    std::string error;
    const Descriptor other = m_connect(client, error);
    if (!other.isOpen()) {
        m_recorder.remark(number, "cannot connect: " + error);
        m_note("cannot connect: " + error);
        return;
    }
    for (const int socket : {client, other.get()}) {
        const int on = 1;
        ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on,
                     sizeof on); // fails harmlessly on a Unix-domain socket
    }
    Transcript transcript(m_recorder, number);
    Forwarding(client, other.get(), m_recorder.of() == Recording::Of::service, transcript).run();
}

} // namespace udsim
