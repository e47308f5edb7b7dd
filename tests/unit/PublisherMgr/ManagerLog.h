// The log of the publisher manager.
#pragma once

#include <string>
#include <unistd.h>

/// A message as the log agent receives it.
inline std::string LogLine(int priority, const std::string& text)
{
    return "MESSAGE=RT300API[" + std::to_string(getpid()) + "]: " + text +
           "\nPRIORITY=" + std::to_string(priority) + "\n";
}
