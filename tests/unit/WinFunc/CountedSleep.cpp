#include "CountedSleep.h"

#include <chrono>
#include <thread>

CountedSleep& CountedSleep::The()
{
    static CountedSleep counted;
    return counted;
}

void CountedSleep::Start(std::function<void(uint64_t)> before)
{
    const std::lock_guard lock(m_mutex);
    m_runs.clear();
    m_before = std::move(before);
    m_count = 0;
    m_timePasses = false;
}

void CountedSleep::LetTimePass()
{
    m_timePasses = true;
}

CountedSleep::Runs CountedSleep::Counted()
{
    const std::lock_guard lock(m_mutex);
    return m_runs;
}

int CountedSleep::Asked(useconds_t microseconds)
{
    const uint64_t number = ++m_count;
    {
        const std::lock_guard lock(m_mutex);
        if (m_runs.empty() || m_runs.back().first != microseconds) {
            m_runs.emplace_back(microseconds, 0);
        }
        ++m_runs.back().second;
        if (m_before) {
            m_before(number);
        }
    }
    if (m_timePasses) {
        // house-rule: sleeps: the code under test requested this sleep
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
    }
    return 0;
}

// house-rule: sleeps: the definition that replaces the C library's
extern "C" int usleep(useconds_t microseconds)
{
    return CountedSleep::The().Asked(microseconds);
}
