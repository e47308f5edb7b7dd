// The simulated control service with the devices of local publishers, and what it was asked.
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

/// Simulated time stands still. Setting files are the test's own (see Installation).
class LocalRoom
{
public:
    /// One device with the GUID "{id}" and the scenario name "id" for each regist id. Stops the test program
    /// when the service cannot be started.
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

    /// From here on the first request for this publisher is read and waits for release(), and all requests
    /// behind it wait as well.
    void hold(const std::string& id)
    {
        const std::lock_guard lock(m_mutex);
        m_held.insert(id);
    }
    /// Answers what waits, and what follows.
    void release(const std::string& id)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_held.erase(id);
        }
        m_changed.notify_all();
    }

    /// Requests so far, as "control id". One that waits for release() counts.
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
    /// On the service's thread, before it answers.
    void take(const udsim::Request& request)
    {
        std::unique_lock lock(m_mutex);
        ++m_counts[std::to_string(request.control) + " " + request.publisher];
        m_changed.notify_all();
        m_changed.wait(lock, [&] { return !m_held.contains(request.publisher); });
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::string, int> m_counts;
    std::set<std::string> m_held;
    std::unique_ptr<udsim::Room> m_room; ///< last: its thread uses the others
};
