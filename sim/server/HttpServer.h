// The addresses at which publisher servers listen, and every connection to them, each on a thread of its own.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "Descriptor.h"
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
    void acceptConnections();
    bool openListener(const std::string& address, std::string& error);
    void cut(const std::string& address);
    void wake();

    Handler m_handler;
    MHD_Daemon* m_daemon = nullptr;
    std::thread m_thread; ///< takes connections
    Descriptor m_wake;

    mutable std::mutex m_mutex; ///< guards what follows
    std::map<std::string, Descriptor> m_listeners;
    std::vector<Descriptor> m_retired;        ///< listeners that are shut down, for the thread to close
    std::map<int, std::string> m_connections; ///< sockets, and the addresses that they came to
    bool m_running = false;
};

/// The local address of a connection, as "127.0.0.11".
std::string localAddressOf(int socket);

} // namespace udsim
