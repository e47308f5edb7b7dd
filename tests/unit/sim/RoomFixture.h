// A room that runs for the duration of a test.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "Room.h"

inline constexpr char ID[] = "{ARPUB20260105_1}"; ///< of the first publisher of a scenario

inline udsim::Scenario scenarioOf(const std::string& text)
{
    std::string error;
    const auto scenario = udsim::Scenario::parse(text, error);
    EXPECT_TRUE(scenario) << error;
    return scenario.value_or(udsim::Scenario{});
}

class OpenRoom
{
public:
    explicit OpenRoom(const std::string& text, double speed = 0) : room(scenarioOf(text), speed)
    {
        std::string error;
        EXPECT_TRUE(room.start(error)) << error;
    }

    udsim::Room room;
};
