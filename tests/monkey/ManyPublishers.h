// Twenty local and twenty network publishers of a simulated room, which other programs register, unregister,
// switch off and disturb.
#pragma once

#include "Plan.h"
#include "Room.h"

#include <QString>

#include <atomic>
#include <memory>
#include <set>
#include <string>

class ManyPublishers
{
public:
    /// Starts the room and registers all publishers. Stops the program if the room does not start.
    ManyPublishers();
    ManyPublishers(const ManyPublishers&) = delete;
    ManyPublishers& operator=(const ManyPublishers&) = delete;
    ~ManyPublishers();

    /// Registers a publisher unless it is registered. Its machine is switched on, because the property dialog
    /// stops the program if the device key is missing, and the list deletes unused keys of absent devices.
    /// Readers never see a part of the setting file.
    void comes(unsigned publisher);
    static void goes(unsigned publisher);
    /// Unregisters all publishers that were added with the dialog.
    static void strangersGo();
    /// A command for the machine, its server or the service. `number` selects it.
    void device(unsigned publisher, unsigned number);
    /// The next three requests to the publisher fail or are late, or all earlier faults end.
    void fault(unsigned publisher, unsigned number);
    void advance(unsigned seconds);

    /// The number of requests to the service and to the servers.
    int requests() const
    {
        return m_requests;
    }

    /// Processes events until there have been that many requests, at most for that time.
    void serveUntil(int requests, int milliseconds) const;

    /// The regist ids: the names of the setting files.
    static std::set<QString> registered();
    static std::string host(unsigned publisher);

private:
    std::atomic<int> m_requests = 0;
    std::unique_ptr<udsim::Room> m_room; ///< last: its threads use the counter
};
