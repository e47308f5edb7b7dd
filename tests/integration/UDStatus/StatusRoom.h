// The simulated machines for tests of the console program.
#pragma once

#include "Room.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

/// Time in the room advances only by advance().
class StatusRoom
{
public:
    explicit StatusRoom(const std::string& text)
    {
        std::string error;
        const auto scenario = udsim::Scenario::parse(text, error);
        EXPECT_TRUE(scenario) << error;
        if (scenario) {
            m_room = std::make_unique<udsim::Room>(*scenario);
            EXPECT_TRUE(m_room->start(error)) << error;
        }
    }
    udsim::Room* operator->() const
    {
        return m_room.get();
    }

private:
    std::unique_ptr<udsim::Room> m_room;
};

inline constexpr char twoStudios[] = "[publisher Studio A]\nmodel = RT-300III BD\nid = A\njobs = 3\n"
                                     "[publisher Studio B]\nmodel = RT-30II\nid = B\nconnected = no\n";
