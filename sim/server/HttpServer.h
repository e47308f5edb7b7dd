// The addresses at which publisher servers listen, each with a daemon of the HTTP library, and every
// connection to them, each on a thread of its own.
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
    /// A body beyond it is answered with 413.
    static constexpr size_t LARGEST_BODY = 64U << 20;

    using Handler = std::function<HttpDelivery(const HttpRequest&)>;

    /// The handler is called with each request that arrived whole, on several threads at once.
    explicit HttpServer(Handler handler);
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;
    ~HttpServer();

    /// Listens on port 80 of these IPv4 addresses. False, with the reason in `error`, when one of them cannot
    /// be had.
    bool start(const std::vector<std::string>& addresses, std::string& error);
    /// Cuts all connections and ends all threads. Not to be called on a handler.
    void stop();
    /// From the return of this call on connections to this address are refused, and those there are get cut;
    /// or they are taken again. Nothing before start() and behind stop(). Any thread.
    void setListening(const std::string& address, bool listening);
    /// How many are open.
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
    /// Its end closes its connections and joins their threads.
    using Daemon = std::unique_ptr<MHD_Daemon, Stop>;

    bool listenAt(const std::string& address, std::string& error);
    void cut(const std::string& address);

    Handler m_handler;

    mutable std::mutex m_mutex; ///< guards what follows; not held while a daemon ends, whose threads take it
    std::map<std::string, Daemon> m_daemons;   ///< by the address that each listens at
    std::vector<std::future<void>> m_stopping; ///< daemons that listen no more
    std::map<int, std::string> m_connections;  ///< sockets, and the addresses that they came to
    bool m_running = false;
};

/// The local address of a connection, as "127.0.0.11".
std::string localAddressOf(int socket);

} // namespace udsim
