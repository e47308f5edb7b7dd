#include "ControlService.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>

#include "Protocol.h"
#include "Sockets.h"

namespace udsim {

namespace {

constexpr std::chrono::milliseconds TICK{50};
constexpr std::chrono::milliseconds ACCEPT_PAUSE{100};
constexpr size_t MOST_CONNECTIONS = 512;
constexpr size_t MOST_INPUT = 16 * REQUEST_SIZE; ///< unanswered bytes of one connection

} // namespace

ControlService::ControlService(Handlers handlers) : m_handlers(std::move(handlers)) {}

ControlService::~ControlService()
{
    stop();
}

bool ControlService::start(bool listening, std::string& error)
{
    const std::lock_guard lock(m_mutex);
    m_wake = Descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    m_agent = bindUnix(SOCK_DGRAM, AGENT_SOCKET, SERVICE_SOCKET_RIGHTS, error);
    if (!m_wake.isOpen() || !m_agent.isOpen() || (listening && !openListener(error))) {
        if (m_agent.isOpen()) {
            ::unlink(AGENT_SOCKET);
        }
        m_agent = {};
        return false;
    }
    m_running = true;
    m_thread = std::thread([this] { run(); });
    return true;
}

bool ControlService::openListener(std::string& error)
{
    m_listener = bindUnix(SOCK_STREAM, SERVICE_SOCKET, SERVICE_SOCKET_RIGHTS, error);
    m_listening = m_listener.isOpen();
    return m_listening;
}

void ControlService::stop()
{
    if (!m_thread.joinable()) {
        return;
    }
    {
        const std::lock_guard lock(m_mutex);
        m_running = false;
    }
    wake();
    m_thread.join();
    const std::lock_guard lock(m_mutex);
    m_connections.clear();
    m_count = 0;
    m_retired.clear();
    m_listener = {};
    m_listening = false;
    m_agent = {};
    m_wake = {};
    ::unlink(SERVICE_SOCKET);
    ::unlink(AGENT_SOCKET);
}

void ControlService::setListening(bool listening)
{
    const std::lock_guard lock(m_mutex);
    if (!m_running || m_listening == listening) {
        return;
    }
    if (listening) {
        std::string error;
        openListener(error);
    } else {
        // The thread may be waiting on the descriptor, so it is only shut down here; the thread closes it.
        ::shutdown(m_listener.get(), SHUT_RDWR);
        m_retired.push_back(std::move(m_listener));
        m_listening = false;
    }
    wake();
}

size_t ControlService::connections() const
{
    const std::lock_guard lock(m_mutex);
    return m_count;
}

void ControlService::wake()
{
    const uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(m_wake.get(), &one, sizeof one);
}

void ControlService::run()
{
    Clock::time_point lastTick = Clock::now();
    m_nextTick = lastTick + TICK;
    std::vector<pollfd> entries;
    while (true) {
        const Clock::time_point now = Clock::now();
        entries = {{m_wake.get(), POLLIN, 0}, {m_agent.get(), POLLIN, 0}};
        {
            const std::lock_guard lock(m_mutex);
            if (!m_running) {
                return;
            }
            m_retired.clear();
            m_count = m_connections.size();
            const bool accepting =
                m_listening && m_connections.size() < MOST_CONNECTIONS && now >= m_acceptFrom;
            entries.push_back({accepting ? m_listener.get() : -1, POLLIN, 0});
        }
        const size_t first = entries.size();
        for (const Connection& connection : m_connections) {
            entries.push_back({connection.socket.get(), eventsOf(connection, now), 0});
        }
        ::poll(entries.data(), entries.size(), pollTimeout(now));

        uint64_t drained = 0;
        [[maybe_unused]] const ssize_t count = ::read(m_wake.get(), &drained, sizeof drained);
        if (m_handlers.tick && Clock::now() >= m_nextTick) {
            const auto passed = std::chrono::floor<std::chrono::milliseconds>(Clock::now() - lastTick);
            lastTick += passed;
            m_nextTick = lastTick + TICK;
            m_handlers.tick(passed);
        }
        if (entries[1].revents != 0) {
            readAgent();
        }
        size_t index = first;
        for (Connection& connection : m_connections) {
            serve(connection, entries[index++].revents, Clock::now());
        }
        m_connections.remove_if([](const Connection& connection) { return connection.dead; });
        if (entries[2].revents != 0) {
            takeConnections();
        }
    }
}

int ControlService::pollTimeout(Clock::time_point now) const
{
    Clock::time_point next = m_handlers.tick ? m_nextTick : Clock::time_point::max();
    for (const Connection& connection : m_connections) {
        if (!connection.output.empty() && connection.due > now) {
            next = std::min(next, connection.due);
        }
    }
    if (m_acceptFrom > now) {
        next = std::min(next, m_acceptFrom);
    }
    if (next == Clock::time_point::max()) {
        return -1;
    }
    return std::max(0, static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(next - now).count()));
}

short ControlService::eventsOf(const Connection& connection, Clock::time_point now) const
{
    if (!connection.output.empty()) {
        return connection.due <= now ? POLLOUT : 0;
    }
    if (connection.finished) {
        return 0;
    }
    return connection.stalled ? POLLRDHUP : POLLIN;
}

void ControlService::takeConnections()
{
    const std::lock_guard lock(m_mutex);
    while (m_listening && m_connections.size() < MOST_CONNECTIONS) {
        Descriptor socket(::accept4(m_listener.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
        if (!socket.isOpen()) {
            if (errno == EMFILE || errno == ENFILE || errno == ENOMEM || errno == ENOBUFS) {
                m_acceptFrom = Clock::now() + ACCEPT_PAUSE;
            }
            return;
        }
        m_connections.emplace_back().socket = std::move(socket);
        m_count = m_connections.size();
    }
}

void ControlService::serve(Connection& connection, short events, Clock::time_point now)
{
    if ((events & (POLLERR | POLLNVAL)) != 0 || ((events & POLLHUP) != 0 && (events & POLLIN) == 0)) {
        connection.dead = true;
        return;
    }
    if ((events & POLLRDHUP) != 0 && connection.stalled) {
        connection.finished = true;
    }
    if ((events & POLLIN) != 0) {
        receive(connection);
    }
    // The input may already contain several requests.
    while (!connection.dead && !connection.stalled) {
        if (connection.output.empty() && !connection.closing && connection.input.size() >= REQUEST_SIZE) {
            takeRequest(connection, now);
            continue;
        }
        if (!connection.output.empty() && connection.due <= now) {
            transmit(connection);
            if (connection.output.empty()) {
                continue;
            }
        }
        break;
    }
    if (connection.output.empty() && !connection.stalled && (connection.closing || connection.finished)) {
        connection.dead = true;
    }
}

void ControlService::receive(Connection& connection)
{
    std::array<char, MOST_INPUT> piece{};
    const ssize_t count =
        ::recv(connection.socket.get(), piece.data(), piece.size() - connection.input.size(), 0);
    if (count > 0) {
        connection.input.append(piece.data(), static_cast<size_t>(count));
    } else if (count == 0) {
        connection.finished = true;
    } else if (errno != EAGAIN && errno != EINTR) {
        connection.dead = true;
    }
}

void ControlService::takeRequest(Connection& connection, Clock::time_point now)
{
    const Request request = decodeRequest(std::string_view(connection.input).substr(0, REQUEST_SIZE));
    connection.input.erase(0, REQUEST_SIZE);
    Delivery delivery = m_handlers.request(request);
    connection.output = std::move(delivery.bytes);
    connection.due = now + delivery.delay;
    connection.stalled = delivery.stall;
    connection.closing = delivery.close;
}

void ControlService::transmit(Connection& connection)
{
    const ssize_t count =
        ::send(connection.socket.get(), connection.output.data(), connection.output.size(), MSG_NOSIGNAL);
    if (count >= 0) {
        connection.output.erase(0, static_cast<size_t>(count));
    } else if (errno != EAGAIN && errno != EINTR) {
        connection.dead = true;
    }
}

void ControlService::readAgent()
{
    std::array<char, 65536> datagram{};
    for (int turn = 0; turn < 64; ++turn) {
        const ssize_t count = ::recv(m_agent.get(), datagram.data(), datagram.size(), 0);
        if (count < 0) {
            return;
        }
        m_handlers.datagram(std::string_view(datagram.data(), static_cast<size_t>(count)));
    }
}

} // namespace udsim
