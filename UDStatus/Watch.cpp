#include "Watch.h"

#include "Console.h"
#include "SystemCalls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <iterator>
#include <utility>

#include <fcntl.h>
#include <poll.h> // house-rule: sockets: waits for signals
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

constexpr char enterScreen[] = "\x1b[?1049h\x1b[?25l"; // another screen, without a cursor
constexpr char leaveScreen[] = "\x1b[?25h\x1b[?1049l";
constexpr char toTheTop[] = "\x1b[H";
constexpr char clearLine[] = "\x1b[K"; // before its text, whose last cell it would clear otherwise
constexpr char clearRest[] = "\x1b[J";

constexpr int pauseTime = 50;  // ms until standard output is tried again
constexpr int mostPauses = 20; // of a watch that is to end

constexpr int endingSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

/// Stops the process. Does nothing if no shell could continue it.
void suspend()
{
    sigset_t set;
    ::sigemptyset(&set);
    ::sigaddset(&set, SIGTSTP);
    ::raise(SIGTSTP);
    ::sigprocmask(SIG_UNBLOCK, &set, nullptr); // here
    ::sigprocmask(SIG_BLOCK, &set, nullptr);
}

/// A signal that is still to be handled and ends the watch; 0 if there is none.
int pendingEnd()
{
    sigset_t set;
    ::sigpending(&set);
    for (const int number : endingSignals) {
        if (::sigismember(&set, number) == 1) {
            return number;
        }
    }
    return 0;
}

/// Without those that the caller ignores, as `nohup` does: a blocked signal is queued even if it is ignored.
sigset_t handledSignals()
{
    sigset_t set;
    ::sigemptyset(&set);
    const auto add = [&set](int number) {
        struct sigaction action = {};
        if (::sigaction(number, nullptr, &action) != 0 || action.sa_handler != SIG_IGN) {
            ::sigaddset(&set, number);
        }
    };
    std::for_each(std::begin(endingSignals), std::end(endingSignals), add);
    add(SIGTSTP);
    add(SIGWINCH);
    return set;
}

/// Standard output. A write to a terminal can wait although the terminal is writable, so a terminal is opened
/// again without waiting; this changes nothing for other programs.
int openOutput()
{
    const int descriptor = ::isatty(STDOUT_FILENO) != 0
                               ? ::open("/proc/self/fd/1", O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)
                               : -1;
    return descriptor >= 0 ? descriptor : STDOUT_FILENO;
}

int codeOf(int signal)
{
    constexpr int base = 128;
    return signal == SIGINT ? 0 : base + signal;
}

/// Writes what standard output takes at once. Returns the number of bytes; -1 with errno on failure.
ssize_t writeSome(int descriptor, const char* data, int size)
{
    constexpr int piece = 512; // POSIX: at most what a writable pipe takes as a whole
    pollfd entry{descriptor, POLLOUT, 0};
    if (Uninterrupted([&] { return ::poll(&entry, 1, 0); }) == 0) {
        errno = EAGAIN;
        return -1;
    }
    return Uninterrupted(
        [&] { return ::write(descriptor, data, static_cast<size_t>(std::min(size, piece))); });
}

} // namespace

Watch::Watch(std::function<QStringList()> lines)
    : m_lines(std::move(lines)), m_isTerminal(takesSequences()), m_output(openOutput())
{
    const sigset_t set = handledSignals();
    ::sigprocmask(SIG_BLOCK, &set, nullptr);
    m_signals = ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
    enter();
}

Watch::~Watch()
{
    leave();
    while (m_ended != 0 && nextSignal() != 0) { // has nothing more to end
    }
    ::close(m_signals);
    if (m_output != STDOUT_FILENO) {
        ::close(m_output);
    }
    const sigset_t set = handledSignals();
    ::sigprocmask(SIG_UNBLOCK, &set, nullptr);
}

void Watch::enter()
{
    if (m_isTerminal) {
        print(enterScreen);
    }
}

void Watch::leave()
{
    if (m_isTerminal) {
        print(leaveScreen);
    }
}

bool Watch::draw()
{
    const QStringList lines = m_lines();
    if (lines.isEmpty()) {
        return true;
    }
    QByteArray picture;
    if (!m_isTerminal) {
        picture = m_isFirst ? "" : "\n";
        m_isFirst = false;
        picture += lines.join(QLatin1Char('\n')).toUtf8() + '\n';
    } else {
        const int height = std::min(static_cast<int>(lines.size()), terminalHeight() - 1);
        picture = toTheTop;
        for (int i = 0; i < height; ++i) {
            picture += clearLine + lines[i].toUtf8() + "\r\n";
        }
        picture += clearRest;
    }
    return print(picture);
}

bool Watch::print(const QByteArray& data)
{
    int pauses = 0;
    for (int done = 0; !m_failed && done < data.size();) {
        const ssize_t count = writeSome(m_output, data.constData() + done, data.size() - done);
        if (count >= 0) {
            done += static_cast<int>(count);
            pauses = 0;
        } else if (errno != EAGAIN) {
            complainAboutOutput();
            m_failed = true;
        } else {
            const int end = m_ended != 0 ? m_ended : pendingEnd();
            if (end != 0 && ++pauses > mostPauses) {
                ::_exit(codeOf(end));
            }
            ::poll(nullptr, 0, pauseTime);
        }
    }
    return !m_failed;
}

bool Watch::redraw()
{
    return !m_isTerminal || draw();
}

bool Watch::handle(int number)
{
    switch (number) {
    case SIGWINCH:
        return redraw();
    case SIGTSTP:
        leave();
        suspend();
        enter();
        return redraw();
    default:
        m_ended = number;
        return false;
    }
}

int Watch::nextSignal() const
{
    signalfd_siginfo signal{};
    const ssize_t size = ::read(m_signals, &signal, sizeof signal);
    return size == static_cast<ssize_t>(sizeof signal) ? static_cast<int>(signal.ssi_signo) : 0;
}

bool Watch::handleSignals()
{
    while (const int number = nextSignal()) {
        if (!handle(number)) {
            return false;
        }
    }
    return true;
}

bool Watch::wait(std::chrono::milliseconds time)
{
    using std::chrono::steady_clock;
    const steady_clock::time_point end = steady_clock::now() + time;
    for (steady_clock::time_point now = steady_clock::now(); now < end; now = steady_clock::now()) {
        pollfd entry{m_signals, POLLIN, 0};
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - now).count();
        Uninterrupted([&] { return ::poll(&entry, 1, static_cast<int>(left)); });
        if (!handleSignals()) {
            return false;
        }
    }
    return true;
}

int Watch::exitCode() const
{
    return m_failed ? EXIT_FAILURE : codeOf(m_ended);
}
