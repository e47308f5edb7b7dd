// The servers of network publishers, simulated, and what they were asked.
#pragma once

#include "Room.h"

#include <QStringList>
#include <QtGlobal>

#include <memory>
#include <string>

/// One network publisher in a scenario, with the regist id "N" at 127.0.0.11; keys of its own follow.
inline std::string studio(const std::string& model = "RT-300NII", const std::string& keys = "")
{
    return "[network Studio]\nid = N\nmodel = " + model + "\n" + keys;
}

/// What every connection asks first.
inline const QStringList connecting{
    "GET /webapp2/ServerModeGetter", "GET /webapp2/DevInfoIntGetter?ifversion=02000000&type=8",
    "POST /webapp2/IFVersionChecker", "GET /webapp2/DevInfoGetter?ifversion=02000000&type=5"};

/// What the record of a publisher is read from, on a connection of its own.
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
    /// Stops the test program when the room cannot be made. Time stands still in it, but for advance().
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

    /// What the server at this address was asked since the last forget(), as "GET /webapp2/ServerModeGetter".
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

    /// A fault, as a scenario names it ("http 500"), of requests whose target begins so, from the one behind
    /// `after` that pass. Without a publisher it befalls all of them.
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
