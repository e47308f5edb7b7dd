#include "HttpServer.h"

#include <algorithm>

#include <arpa/inet.h>
#include <microhttpd.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>

#include "HttpExchange.h"
#include "ServletNumbers.h"
#include "Sockets.h"

namespace udsim {

namespace {

constexpr size_t HEAD_MEMORY = 64U << 10; ///< of a connection, for the request's head and a piece of its body

void onConnection(void* server, MHD_Connection* connection, void** /*context*/,
                  MHD_ConnectionNotificationCode code)
{
    const int socket = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD)->connect_fd;
    if (code == MHD_CONNECTION_NOTIFY_STARTED) {
        static_cast<HttpServer*>(server)->connectionOpened(socket);
    } else {
        static_cast<HttpServer*>(server)->connectionClosed(socket);
    }
}

} // namespace

std::string localAddressOf(int socket)
{
    sockaddr_in address{};
    socklen_t size = sizeof address;
    std::array<char, INET_ADDRSTRLEN> text{};
    if (::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size) != 0 ||
        ::inet_ntop(AF_INET, &address.sin_addr, text.data(), text.size()) == nullptr) {
        return {};
    }
    return text.data();
}

HttpServer::HttpServer(Handler handler) : m_handler(std::move(handler)) {}

HttpServer::~HttpServer()
{
    stop();
}

bool HttpServer::start(const std::vector<std::string>& addresses, std::string& error)
{
    m_wake = Descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    m_daemon = MHD_start_daemon(MHD_USE_INTERNAL_POLLING_THREAD | MHD_USE_POLL |
                                    MHD_USE_THREAD_PER_CONNECTION | MHD_USE_NO_LISTEN_SOCKET | MHD_USE_ITC,
                                0, nullptr, nullptr, &answerExchange, this, MHD_OPTION_NOTIFY_CONNECTION,
                                &onConnection, this, MHD_OPTION_URI_LOG_CALLBACK, &beginExchange, nullptr,
                                MHD_OPTION_NOTIFY_COMPLETED, &endExchange, nullptr,
                                MHD_OPTION_CONNECTION_MEMORY_LIMIT, HEAD_MEMORY, MHD_OPTION_END);
    if (m_daemon == nullptr || !m_wake.isOpen()) {
        error = "the HTTP server cannot be started";
        stop();
        return false;
    }
    {
        const std::lock_guard lock(m_mutex);
        m_running = std::all_of(addresses.begin(), addresses.end(),
                                [&](const std::string& address) { return openListener(address, error); });
    }
    if (!m_running) {
        stop();
        return false;
    }
    m_thread = std::thread([this] { acceptConnections(); });
    return true;
}

void HttpServer::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_running = false;
    }
    if (m_thread.joinable()) {
        wake();
        m_thread.join();
    }
    {
        const std::lock_guard lock(m_mutex);
        m_listeners.clear();
        m_retired.clear();
        cut({});
    }
    if (m_daemon != nullptr) {
        MHD_stop_daemon(m_daemon);
        m_daemon = nullptr;
    }
    m_wake = {};
}

bool HttpServer::openListener(const std::string& address, std::string& error)
{
    Descriptor listener = listenTcp({address, HTTP_PORT}, error);
    if (!listener.isOpen()) {
        return false;
    }
    m_listeners[address] = std::move(listener);
    return true;
}

/// The connections of this address end, also those that stall; of all addresses when it is empty.
void HttpServer::cut(const std::string& address)
{
    for (const auto& [socket, to] : m_connections) {
        if (address.empty() || to == address) {
            ::shutdown(socket, SHUT_RDWR);
        }
    }
}

void HttpServer::setListening(const std::string& address, bool listening)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_listeners.find(address);
    if (!m_running || (found != m_listeners.end()) == listening) {
        return;
    }
    if (listening) {
        std::string error;
        openListener(address, error);
    } else {
        // The thread may be waiting on the descriptor: it is shut down here and closed there.
        ::shutdown(found->second.get(), SHUT_RDWR);
        m_retired.push_back(std::move(found->second));
        m_listeners.erase(found);
        cut(address);
    }
    wake();
}

size_t HttpServer::connections() const
{
    const std::lock_guard lock(m_mutex);
    return m_connections.size();
}

void HttpServer::wake()
{
    const uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(m_wake.get(), &one, sizeof one);
}

void HttpServer::connectionOpened(int socket)
{
    const std::string address = localAddressOf(socket);
    const std::lock_guard lock(m_mutex);
    m_connections[socket] = address;
    if (!m_running || !m_listeners.contains(address)) {
        ::shutdown(socket, SHUT_RDWR); // it was on its way when the listening ended
    }
}

void HttpServer::connectionClosed(int socket)
{
    const std::lock_guard lock(m_mutex);
    m_connections.erase(socket);
}

void HttpServer::acceptConnections()
{
    std::vector<pollfd> entries;
    while (true) {
        entries = {{m_wake.get(), POLLIN, 0}};
        {
            const std::lock_guard lock(m_mutex);
            if (!m_running) {
                return;
            }
            m_retired.clear();
            for (const auto& [address, listener] : m_listeners) {
                entries.push_back({listener.get(), POLLIN, 0});
            }
        }
        ::poll(entries.data(), entries.size(), -1);
        uint64_t drained = 0;
        [[maybe_unused]] const ssize_t count = ::read(m_wake.get(), &drained, sizeof drained);
        for (size_t i = 1; i < entries.size(); ++i) {
            sockaddr_in peer{};
            socklen_t size = sizeof peer;
            // Only this thread closes listeners: the descriptor is still the one that was waited for.
            const int socket = (entries[i].revents & POLLIN) == 0
                                   ? -1
                                   : ::accept4(entries[i].fd, reinterpret_cast<sockaddr*>(&peer), &size,
                                               SOCK_CLOEXEC | SOCK_NONBLOCK);
            if (socket >= 0) { // the library closes it, also when it cannot take it
                MHD_add_connection(m_daemon, socket, reinterpret_cast<const sockaddr*>(&peer), size);
            }
        }
    }
}

} // namespace udsim
