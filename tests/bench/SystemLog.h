// The system log of a benchmark in the sandbox, where "/dev/log" is free.
#pragma once

#include "LogAgent.h"

#include <thread>

/// Reads the system log, as on every Debian machine: without a reader, each line costs three failing calls.
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
