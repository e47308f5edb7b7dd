// Records how long the user-interface thread of a test program does not process events. Linked into every
// program with windows; prints the longest gap when the application object is destroyed.
//
// A gap may belong to the test, which calls functions that block, as well as to the window. With the
// environment variable ULMAR_GAPS, a second thread interrupts the user-interface thread every 20 ms during a
// gap, and the program prints the call stacks that it found, by which tests/gui/gaps attributes the gap.
#include <QCoreApplication>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <dlfcn.h>
#include <execinfo.h>
#include <poll.h>
#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds interval(20);
constexpr milliseconds shortestGap(60); // of those that are printed with their stacks
constexpr size_t mostSamples = 4000;    // of one gap
constexpr size_t mostGaps = 1000;
constexpr int deepest = 64;
constexpr int wakeUp = SIGUSR2;

struct Sample
{
    Clock::time_point time;
    milliseconds processorTime{0};  ///< of the user-interface thread since its start
    const char* function = nullptr; ///< of the test
    const char* row = nullptr;      ///< of the function's data
    int depth = 0;
    std::array<void*, deepest> frames{};
};

struct Gap
{
    milliseconds length{0};
    milliseconds processorTime{0};
    std::string test;
    std::string stacks; ///< lines
};

/// The samples of the current gap. Used by the user-interface thread and the signal handler on this thread.
std::vector<Sample> samples; // empty: no samples are taken
volatile std::sig_atomic_t sampleCount = 0;

/// Of the calling thread. Safe in a signal handler.
milliseconds processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::duration_cast<milliseconds>(std::chrono::seconds(time.tv_sec) +
                                                    std::chrono::nanoseconds(time.tv_nsec));
}

void takeSample(int /*signal*/)
{
    const int place = sampleCount;
    if (static_cast<size_t>(place) < samples.size()) {
        Sample& sample = samples[static_cast<size_t>(place)];
        sample.time = Clock::now();
        sample.processorTime = processorTime();
        sample.function = QTest::currentTestFunction();
        sample.row = QTest::currentDataTag();
        sample.depth = backtrace(sample.frames.data(), deepest);
        sampleCount = place + 1;
    }
}

/// The frames of our code as offsets in the program, "send" for Qt's delivery of an event, and "loop" for the
/// event loop; innermost first.
std::string stackOf(const Sample& sample)
{
    Dl_info self{};
    dladdr(reinterpret_cast<void*>(&takeSample), &self);
    std::string text;
    for (int i = 0; i < sample.depth; ++i) {
        void* const frame = sample.frames.at(static_cast<size_t>(i));
        Dl_info info{};
        if (dladdr(frame, &info) == 0) {
            continue;
        }
        if (info.dli_fbase == self.dli_fbase) {
            std::array<char, 32> offset{};
            std::snprintf(
                offset.data(), offset.size(), " 0x%zx",
                static_cast<size_t>(static_cast<char*>(frame) - static_cast<char*>(info.dli_fbase)));
            text += offset.data();
        } else if (info.dli_sname && std::strstr(info.dli_sname, "notifyInternal2")) {
            text += " send";
        } else if (info.dli_sname && std::strstr(info.dli_sname, "processEvents")) {
            text += " loop";
        }
    }
    return text;
}

/// Whether no test function and no row of its data began between the samples. Only addresses are compared,
/// because the texts may have been freed.
bool isOfSameRow(const Sample& one, const Sample& other)
{
    return one.function == other.function && one.row == other.row;
}

class Heartbeat
{
public:
    Heartbeat() : m_detailed(std::getenv("ULMAR_GAPS") != nullptr)
    {
        if (m_detailed) {
            samples.resize(mostSamples);
            std::array<void*, 1> first{};
            backtrace(first.data(), 1); // loads the unwinder, which a signal handler must not do
            struct sigaction action{};
            action.sa_handler = takeSample;
            action.sa_flags = SA_RESTART;
            sigaction(wakeUp, &action, nullptr);
            m_sampler = std::thread([this, thread = pthread_self()] { watch(thread); });
        }
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { beat(); });
        m_timer.start(interval);
    }
    Heartbeat(const Heartbeat&) = delete;
    Heartbeat& operator=(const Heartbeat&) = delete;
    ~Heartbeat()
    {
        m_end = true;
        if (m_sampler.joinable()) {
            m_sampler.join();
        }
        print();
    }

private:
    void watch(pthread_t thread)
    {
        while (!m_end) {
            std::this_thread::sleep_for(interval); // house-rule: sleeps: the sampling interval
            if (Clock::now() - m_last.load() > 2 * interval) {
                pthread_kill(thread, wakeUp);
            }
        }
    }

    void beat()
    {
        const Clock::time_point last = m_last;
        const Clock::time_point now = Clock::now();
        const auto length = std::chrono::duration_cast<milliseconds>(now - last);
        m_longest = std::max(m_longest, length);
        if (m_detailed && length >= shortestGap && m_gaps.size() < mostGaps) {
            keep(length, last);
        }
        sampleCount = 0;
        m_last = Clock::now(); // without the time that keep() took
        m_lastProcessorTime = processorTime();
    }

    void keep(milliseconds length, Clock::time_point start)
    {
        const char* test = QTest::currentTestFunction();
        Gap gap{length, processorTime() - m_lastProcessorTime, test ? test : "-", {}};
        std::string before;
        for (int i = 0; i < sampleCount; ++i) {
            const Sample& sample = samples[static_cast<size_t>(i)];
            std::string stack = stackOf(sample);
            const bool sameRow = i == 0 || isOfSameRow(sample, samples[static_cast<size_t>(i) - 1]);
            if (i == 0 || !sameRow || stack != before) {
                const auto time = std::chrono::duration_cast<milliseconds>(sample.time - start);
                const milliseconds used = sample.processorTime - m_lastProcessorTime;
                gap.stacks += "gap stack " + std::to_string(time.count()) + " " +
                              std::to_string(used.count()) + (sameRow ? "" : " next") + stack + "\n";
                before = std::move(stack);
            }
        }
        m_gaps.push_back(std::move(gap));
    }

    void print() const
    {
        for (const Gap& gap : m_gaps) {
            std::printf("gap %d %d %s\n%s", static_cast<int>(gap.length.count()),
                        static_cast<int>(gap.processorTime.count()), gap.test.c_str(), gap.stacks.c_str());
        }
        std::printf("longest gap of the heartbeat: %d ms, including calls of the test\n",
                    static_cast<int>(m_longest.count()));
        std::fflush(stdout);
    }

    const bool m_detailed;
    std::atomic<bool> m_end = false;
    std::atomic<Clock::time_point> m_last = Clock::now();
    milliseconds m_lastProcessorTime = processorTime();
    milliseconds m_longest{0};
    std::vector<Gap> m_gaps;
    QTimer m_timer;
    std::thread m_sampler; ///< last: it uses the other members
};

std::unique_ptr<Heartbeat>& heart()
{
    static std::unique_ptr<Heartbeat> heartbeat;
    return heartbeat;
}

void start()
{
    heart() = std::make_unique<Heartbeat>();
    qAddPostRoutine([] { heart().reset(); });
}

} // namespace

#ifndef ULMAR_SANITIZED // the sanitizers replace it themselves
/// Replaces the function of the C library: a signal does not end the wait, so the sampler does not change the
/// result of a wait in the client.
extern "C" int ppoll(pollfd* entries, nfds_t count, const timespec* limit, const sigset_t* mask)
{
    timespec left = limit ? *limit : timespec{};
    int ready = -1;
    do { // the system call stores the remaining time
        ready = static_cast<int>(
            syscall(SYS_ppoll, entries, count, limit ? &left : nullptr, mask, sizeof(unsigned long)));
    } while (ready < 0 && errno == EINTR);
    return ready;
}
#endif

Q_COREAPP_STARTUP_FUNCTION(start)
