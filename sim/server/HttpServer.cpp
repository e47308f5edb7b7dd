#include "HttpServer.h"

#include <algorithm>
#include <array>
#include <chrono>

#include <arpa/inet.h>
#include <microhttpd.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include "Descriptor.h"
#include "HttpExchange.h"
#include "ServletNumbers.h"
#include "Sockets.h"

namespace udsim {

namespace {

constexpr size_t HEAD_MEMORY = 64U << 10; ///< per connection, for the request's head and a piece of its body

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

void HttpServer::Stop::operator()(MHD_Daemon* daemon) const
{
    MHD_stop_daemon(daemon);
}

HttpServer::HttpServer(Handler handler) : m_handler(std::move(handler)) {}

HttpServer::~HttpServer()
{
    stop();
}

bool HttpServer::start(const std::vector<std::string>& addresses, std::string& error)
{
    {
        const std::lock_guard lock(m_mutex);
        m_running = std::all_of(addresses.begin(), addresses.end(),
                                [&](const std::string& address) { return listenAt(address, error); });
        if (m_running) {
            return true;
        }
    }
    stop();
    return false;
}

void HttpServer::stop()
{
    std::map<std::string, Daemon> daemons;
    std::vector<std::future<void>> stopping;
    {
        const std::lock_guard lock(m_mutex);
        m_running = false;
        daemons.swap(m_daemons);
        stopping.swap(m_stopping);
        cut({});
    }
    // The destructors end all daemons here, without the lock.
}

bool HttpServer::listenAt(const std::string& address, std::string& error)
{
    Descriptor listener = listenTcp({address, HTTP_PORT}, error);
    if (!listener.isOpen()) {
        return false;
    }
    Daemon daemon(MHD_start_daemon(
        MHD_USE_INTERNAL_POLLING_THREAD | MHD_USE_POLL | MHD_USE_THREAD_PER_CONNECTION | MHD_USE_ITC, 0,
        nullptr, nullptr, &answerExchange, this, MHD_OPTION_LISTEN_SOCKET, listener.release(),
        MHD_OPTION_NOTIFY_CONNECTION, &onConnection, this, MHD_OPTION_URI_LOG_CALLBACK, &beginExchange,
        nullptr, MHD_OPTION_NOTIFY_COMPLETED, &endExchange, nullptr, MHD_OPTION_CONNECTION_MEMORY_LIMIT,
        HEAD_MEMORY, MHD_OPTION_END));
    if (!daemon) {
        error = "the HTTP server cannot be started";
        return false;
    }
    m_daemons[address] = std::move(daemon);
    return true;
}

/// Shuts down the connections to this address, including stalled ones; to all addresses if it is empty.
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
    const auto found = m_daemons.find(address);
    if (!m_running || (found != m_daemons.end()) == listening) {
        return;
    }
    if (listening) {
        std::string error;
        listenAt(address, error);
        return;
    }
    Daemon daemon = std::move(found->second);
    m_daemons.erase(found);
    // The caller of MHD_quiesce_daemon() owns the socket, but the daemon's thread may still wait on it.
    Descriptor listener(MHD_quiesce_daemon(daemon.get()));
    ::shutdown(listener.get(), SHUT_RDWR);
    cut(address);
    std::erase_if(m_stopping, [](const std::future<void>& stopped) {
        return stopped.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    });
    m_stopping.push_back(
        std::async(std::launch::async, [ended = std::move(daemon), last = std::move(listener)]() mutable {
            ended.reset(); // the daemon ends before its listener is closed
        }));
}

size_t HttpServer::connections() const
{
    const std::lock_guard lock(m_mutex);
    return m_connections.size();
}

void HttpServer::connectionOpened(int socket)
{
    const std::string address = localAddressOf(socket);
    const std::lock_guard lock(m_mutex);
    m_connections[socket] = address;
    if (!m_running || !m_daemons.contains(address)) {
        ::shutdown(socket, SHUT_RDWR); // accepted just before listening ended
    }
}

void HttpServer::connectionClosed(int socket)
{
    const std::lock_guard lock(m_mutex);
    m_connections.erase(socket);
}

} // namespace udsim
