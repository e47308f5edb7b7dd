// The socket calls of the system, counted, and made to fail where a test says so. They take the place of the
// C library's in the program that links this.
#pragma once

#include <map>
#include <string>

struct SocketCalls
{
    std::map<std::string, int> count;  ///< by name, of all calls
    std::map<std::string, int> failed; ///< by name: the errno with which each call fails
    int pendingError = 0;              ///< what getsockopt tells of SO_ERROR instead of the truth
    short foundEvents = 0;             ///< what ppoll finds instead of the truth
};

/// Of this thread.
SocketCalls& Calls();
