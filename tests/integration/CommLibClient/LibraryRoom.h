// A room of simulated publisher servers, and a connection of the network library to one of them.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "NW_Com_Lib.h"
#include "Room.h"

class LibraryRoom
{
public:
    explicit LibraryRoom(const std::string& text) : room(scenarioOf(text))
    {
        std::string error;
        EXPECT_TRUE(room.start(error)) << error;
    }

    udsim::Room room;

private:
    static udsim::Scenario scenarioOf(const std::string& text)
    {
        std::string error;
        const auto scenario = udsim::Scenario::parse(text, error);
        EXPECT_TRUE(scenario) << error;
        return scenario.value_or(udsim::Scenario{});
    }
};

/// Open while the object exists, unless `result` is an error.
class LibraryConnection
{
public:
    explicit LibraryConnection(const char* host = "127.0.0.11") : result(StartConnection(1, host, &handle)) {}
    LibraryConnection(const LibraryConnection&) = delete;
    LibraryConnection& operator=(const LibraryConnection&) = delete;
    ~LibraryConnection()
    {
        if (handle != 0) {
            EndConnection(handle);
        }
    }

    DWORD handle = 0;
    const DWORD result;
};
