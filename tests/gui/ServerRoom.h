// Simulated servers of network publishers, and the requests that they receive.
#pragma once

#include "Room.h"

#include <QStringList>
#include <QtGlobal>

#include <memory>
#include <string>

/// Returns the scenario of one network publisher with the regist id "N" at 127.0.0.11, with additional keys.
inline std::string studio(const std::string& model = "RT-300NII", const std::string& keys = "")
{
    return "[network Studio]\nid = N\nmodel = " + model + "\n" + keys;
}

/// The first requests of every connection.
inline const QStringList connecting{
    "GET /webapp2/ServerModeGetter", "GET /webapp2/DevInfoIntGetter?ifversion=02000000&type=8",
    "POST /webapp2/IFVersionChecker", "GET /webapp2/DevInfoGetter?ifversion=02000000&type=5"};

/// The requests that read the record of a publisher, on a connection of their own.
inline const QStringList readingTheRecord =
    connecting + QStringList{"GET /webapp2/ServerModeGetter",
                             "GET /webapp2/DevInfoIntGetter?ifversion=02000000&type=4",
                             "GET /webapp2/DevInfoIntGetter?ifversion=02000000&type=5",
                             "GET /webapp2/DevInfoIntGetter?ifversion=02000000&type=6",
                             "GET /webapp2/DevInfoIntGetter?ifversion=02000000&type=0",
                             "GET /webapp2/DevInfoIntGetter?ifversion=02000000&type=2",
                             "GET /webapp2/DevInfoIntGetter?ifversion=02000000&type=3"};

class ServerRoom
{
public:
    /// Stops the test program if the room cannot be started. Time in the room advances only by advance().
    explicit ServerRoom(const std::string& text)
    {
        std::string error;
        const auto scenario = udsim::Scenario::parse(text, error);
        if (scenario) {
            m_room = std::make_unique<udsim::Room>(*scenario);
        }
        if (!m_room || !m_room->start(error)) {
            qFatal("%s", error.c_str());
        }
    }
    ~ServerRoom()
    {
        m_room->stop();
    }
    ServerRoom(const ServerRoom&) = delete;
    ServerRoom& operator=(const ServerRoom&) = delete;

    udsim::Room* operator->() const
    {
        return m_room.get();
    }

    /// Returns the requests to the server at this address since the last forget(), such as
    /// "GET /webapp2/ServerModeGetter".
    QStringList asked(const std::string& host = "127.0.0.11") const
    {
        QStringList list;
        const auto requests = m_room->httpRequests();
        for (size_t i = m_forgotten; i < requests.size(); ++i) {
            if (requests[i].host == host) {
                list << QString::fromStdString(requests[i].method + " " + requests[i].target);
            }
        }
        return list;
    }
    void forget()
    {
        m_forgotten = m_room->httpRequests().size();
    }

    /// Sets a fault, named as in a scenario ("http 500"), for requests whose target begins with `path`. The
    /// first `after` requests succeed. Without a publisher the fault applies to all publishers.
    void spoil(const std::string& path, const std::string& fault, quint64 after = 0,
               const std::string& publisher = "")
    {
        std::string error;
        auto parsed = udsim::HttpFault::parse(fault, error);
        if (!parsed) {
            qFatal("%s", error.c_str());
        }
        parsed->path = path;
        parsed->after = after;
        parsed->publisher = publisher;
        m_room->setFault(*parsed);
    }

private:
    std::unique_ptr<udsim::Room> m_room;
    size_t m_forgotten = 0;
};
