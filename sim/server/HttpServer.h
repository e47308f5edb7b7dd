// The HTTP side of the publisher servers: one daemon of the HTTP library per listening address, and one
// thread per connection.
#pragma once

#include <cstddef>
#include <functional>
#include <future>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "HttpFault.h"

struct MHD_Daemon;

namespace udsim {

class HttpServer
{
public:
    /// Maximum size of a body; a larger one gets status 413.
    static constexpr size_t LARGEST_BODY = 64U << 20;

    using Handler = std::function<HttpDelivery(const HttpRequest&)>;

    /// The handler is called with each completely received request, on several threads at once.
    explicit HttpServer(Handler handler);
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;
    ~HttpServer();

    /// Listens on port 80 of these IPv4 addresses. Returns false, with the reason in `error`, if one of them
    /// is not available.
    bool start(const std::vector<std::string>& addresses, std::string& error);
    /// Closes all connections and ends all threads. Must not be called by a handler.
    void stop();
    /// Accepts connections to this address, or refuses them and closes the open ones. Takes effect before it
    /// returns. Does nothing before start() and after stop(). Any thread.
    void setListening(const std::string& address, bool listening);
    /// Returns the number of open connections.
    size_t connections() const;

    /// For the library's callbacks.
    HttpDelivery take(const HttpRequest& request) const
    {
        return m_handler(request);
    }
    void connectionOpened(int socket);
    void connectionClosed(int socket);

private:
    struct Stop
    {
        void operator()(MHD_Daemon* daemon) const;
    };
    /// The deleter closes the daemon's connections and joins their threads.
    using Daemon = std::unique_ptr<MHD_Daemon, Stop>;

    bool listenAt(const std::string& address, std::string& error);
    void cut(const std::string& address);

    Handler m_handler;

    mutable std::mutex
        m_mutex; ///< guards the members below; not held while a daemon ends: its threads lock it
    std::map<std::string, Daemon> m_daemons;   ///< by listening address
    std::vector<std::future<void>> m_stopping; ///< daemons that no longer listen
    std::map<int, std::string> m_connections;  ///< local addresses by socket
    bool m_running = false;
};

/// Returns the local address of a connection, such as "127.0.0.11".
std::string localAddressOf(int socket);

} // namespace udsim
