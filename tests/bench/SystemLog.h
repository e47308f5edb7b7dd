// The system log of a benchmark, in the sandbox, whose "/dev/log" is free.
#pragma once

#include "LogAgent.h"

#include <thread>

/// Empties the system log, which every Debian machine has: without one, each line costs three calls in vain.
class SystemLog
{
public:
    SystemLog()
        : m_thread([this](const std::stop_token& stop) {
              while (!stop.stop_requested()) {
                  m_log.Receive(100);
              }
          })
    {
    }

private:
    LogAgent m_log{"/dev/log"};
    std::jthread m_thread; // last: it uses the above
};
