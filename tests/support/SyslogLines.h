// Captures what this process writes to syslog. Requires the sandbox, where "/dev/log" is free.
#pragma once

#include "LogAgent.h"

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <syslog.h>

/// Captures lines from construction on. A thread empties the socket continuously, because a full socket
/// blocks the writer.
class SyslogLines
{
public:
    SyslogLines() : m_thread([this] { Collect(); }) {}
    SyslogLines(const SyslogLines&) = delete;
    SyslogLines& operator=(const SyslogLines&) = delete;
    ~SyslogLines()
    {
        syslog(6, "%s", END);
        m_thread.join();
    }

    /// All lines since the last call, in order, each as "<priority>text". The priority is that of syslog: 3
    /// error, 4 warning, 6 information, 7 debug.
    std::vector<std::string> Take()
    {
        syslog(6, "%s", MARK);
        std::unique_lock lock(m_mutex);
        m_arrived.wait_for(lock, std::chrono::milliseconds(LogAgent::patience),
                           [this] { return m_isMarked; });
        m_isMarked = false;
        return std::exchange(m_lines, {});
    }

private:
    static constexpr char MARK[] = "(so far)";
    static constexpr char END[] = "(the end)";

    void Collect()
    {
        while (true) {
            const std::optional<std::string> datagram = m_agent.Receive();
            if (!datagram) {
                continue;
            }
            // "<facility and priority>Mmm dd hh:mm:ss name: text"
            const size_t number = datagram->find('>') + 1;
            const size_t text = datagram->find(": ", number + 15) + 2;
            const std::string line = datagram->substr(text);
            const std::lock_guard lock(m_mutex);
            if (line == END) {
                return;
            }
            if (line == MARK) {
                m_isMarked = true;
                m_arrived.notify_one();
                continue;
            }
            const int priority = std::stoi(datagram->substr(1)) - LOG_USER;
            m_lines.push_back("<" + std::to_string(priority) + ">" + line);
        }
    }

    LogAgent m_agent{"/dev/log"};
    std::mutex m_mutex;
    std::condition_variable m_arrived;
    std::vector<std::string> m_lines;
    bool m_isMarked = false;
    std::thread m_thread; // last: it uses all of the above
};
