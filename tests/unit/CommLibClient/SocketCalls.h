// Socket calls that are counted and that fail on request. They replace those of the C library in a program
// that links this file.
#pragma once

#include <map>
#include <string>

struct SocketCalls
{
    std::map<std::string, int> count;  ///< by name, of all calls
    std::map<std::string, int> failed; ///< by name: the errno with which each call fails
    int pendingError = 0;              ///< the SO_ERROR that getsockopt returns, unless 0
    short foundEvents = 0;             ///< the events that ppoll returns, unless 0
};

/// The calls of this thread.
SocketCalls& Calls();
