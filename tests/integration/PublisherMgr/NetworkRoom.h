// A room of simulated publisher servers, and the publisher management that queries them.
#pragma once

#include "InstallPaths.h"
#include "LibraryRoom.h"
#include "NetworkPublisherMgr.h"

#include <poll.h>

class NetworkRoom : public LibraryRoom
{
public:
    explicit NetworkRoom(const std::string& text) : LibraryRoom(text) {}

    /// Replaces all faults. The fault affects `times` requests (0: all) after the next `after`.
    void Befall(const std::string& fault, size_t after = 0, size_t times = 0, const std::string& path = "")
    {
        std::string error;
        auto parsed = udsim::HttpFault::parse(fault, error).value_or(udsim::HttpFault{});
        EXPECT_EQ(error, "");
        parsed.path = path;
        parsed.after = after;
        parsed.times = times;
        room.clearFaults();
        room.setFault(parsed);
    }

    /// Waits until the servers have seen the end of every connection.
    bool AllClosed() const
    {
        for (int round = 0; round < 1000 && room.httpConnections() > 0; ++round) {
            ::poll(nullptr, 0, 5);
        }
        return room.httpConnections() == 0;
    }

    CNetworkPublisherMgr mgr{true, PUBLISHER_SETTING_DIR};
};
