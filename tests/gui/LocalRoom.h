// The simulated control service with the devices of local publishers, and the requests that it received.
#pragma once

#include "Room.h"

#include <QtGlobal>

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

/// Simulated time does not advance. The test creates the setting files itself (see Installation).
class LocalRoom
{
public:
    /// Creates one device for each regist id, with the GUID "{id}" and the id as its name in the scenario.
    /// Aborts the test program if the service does not start.
    explicit LocalRoom(const std::vector<std::string>& ids)
    {
        std::string text;
        for (const std::string& id : ids) {
            text += "[publisher " + id + "]\nid = " + id + "\nguid = {" + id +
                    "}\nmodel = RT-300III BD\nregistered = no\n";
        }
        std::string error;
        const auto scenario = udsim::Scenario::parse(text, error);
        if (scenario) {
            m_room = std::make_unique<udsim::Room>(*scenario);
            m_room->onRequest([this](const udsim::Request& request) { take(request); });
        }
        if (!m_room || !m_room->start(error)) {
            qFatal("%s", error.c_str());
        }
    }
    LocalRoom(const LocalRoom&) = delete;
    LocalRoom& operator=(const LocalRoom&) = delete;
    ~LocalRoom()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_held.clear();
        }
        m_changed.notify_all();
        m_room->stop();
    }

    udsim::Room* operator->() const
    {
        return m_room.get();
    }

    /// The service reads the next such request (see count), but does not answer it before release(). All
    /// later requests wait as well, because the service has one thread. Earlier ones do not: a poll that has
    /// begun would otherwise be held in place of the request that the test is about.
    void hold(const std::string& request)
    {
        const std::lock_guard lock(m_mutex);
        m_held.insert(request);
    }
    /// Answers the waiting request and all later ones.
    void release(const std::string& request)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_held.erase(request);
        }
        m_changed.notify_all();
    }

    /// The number of requests so far. `request` is the control id and the publisher, as in "22 a". A request
    /// that waits for release() counts.
    int count(const std::string& request)
    {
        const std::lock_guard lock(m_mutex);
        return m_counts[request];
    }
    bool waitFor(const std::string& request, int count)
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::seconds(15), [&] { return m_counts[request] >= count; });
    }

private:
    /// Called on the service's thread before the reply.
    void take(const udsim::Request& request)
    {
        std::unique_lock lock(m_mutex);
        const std::string name = std::to_string(request.control) + " " + request.publisher;
        ++m_counts[name];
        m_changed.notify_all();
        m_changed.wait(lock, [&] { return !m_held.contains(name); });
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::string, int> m_counts;
    std::set<std::string> m_held;
    std::unique_ptr<udsim::Room> m_room; ///< last: its thread uses the other members
};
