#include "Watch.h"

#include "Console.h"
#include "SystemCalls.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <utility>

#include <poll.h> // house-rule: sockets: waits for signals
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

constexpr char enterScreen[] = "\x1b[?1049h\x1b[?25l"; // another screen, without a cursor
constexpr char leaveScreen[] = "\x1b[?25h\x1b[?1049l";
constexpr char toTheTop[] = "\x1b[H";
constexpr char clearLine[] = "\x1b[K"; // before its text, whose last cell it would clear otherwise
constexpr char clearRest[] = "\x1b[J";

constexpr int mostWait = 1000; // ms for standard output to be read, after a signal

/// Without those that the caller ignores, as `nohup` does: a blocked signal is queued even if it is ignored.
sigset_t handledSignals()
{
    sigset_t set;
    ::sigemptyset(&set);
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP, SIGWINCH}) {
        struct sigaction action = {};
        if (::sigaction(number, nullptr, &action) != 0 || action.sa_handler != SIG_IGN) {
            ::sigaddset(&set, number);
        }
    }
    return set;
}

} // namespace

Watch::Watch(std::function<QStringList()> lines) : m_lines(std::move(lines)), m_isTerminal(takesSequences())
{
    const sigset_t set = handledSignals();
    ::sigprocmask(SIG_BLOCK, &set, nullptr);
    m_signals = ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
    enter();
}

Watch::~Watch()
{
    leave();
    ::close(m_signals);
    const sigset_t set = handledSignals();
    ::sigprocmask(SIG_UNBLOCK, &set, nullptr);
}

void Watch::enter()
{
    if (m_isTerminal) {
        ::print(enterScreen);
    }
}

void Watch::leave()
{
    if (m_isTerminal) {
        ::print(leaveScreen);
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

/// Writes pieces that a writable pipe takes at once, so that a signal can end the program while standard
/// output is not read.
bool Watch::print(const QByteArray& picture)
{
    constexpr int piece = 512; // POSIX: at most what a pipe takes as a whole
    for (int done = 0; done < picture.size(); done += piece) {
        pollfd entries[] = {{STDOUT_FILENO, POLLOUT, 0}, {m_signals, POLLIN, 0}};
        while (entries[0].revents == 0) {
            Uninterrupted([&] { return ::poll(entries, 2, -1); });
            if (entries[0].revents == 0) {
                handleWhileBlocked(nextSignal());
            }
        }
        if (!::print(picture.mid(done, piece))) {
            m_failed = true;
            return false;
        }
    }
    return !std::exchange(m_isOutdated, false) || redraw();
}

bool Watch::redraw()
{
    return !m_isTerminal || draw();
}

bool Watch::handle(int number)
{
    pollfd entry{STDOUT_FILENO, POLLOUT, 0};
    if (Uninterrupted([&] { return ::poll(&entry, 1, mostWait); }) == 0) {
        handleWhileBlocked(number);
        return true;
    }
    switch (number) {
    case SIGWINCH:
        return redraw();
    case SIGTSTP:
        leave();
        ::raise(SIGSTOP); // SIGTSTP itself is blocked
        enter();
        return redraw();
    default:
        m_ended = number;
        return false;
    }
}

/// The screen is not restored, because that would wait until standard output is read.
void Watch::handleWhileBlocked(int number)
{
    switch (number) {
    case 0:
        break;
    case SIGWINCH:
        m_isOutdated = true;
        break;
    case SIGTSTP:
        ::raise(SIGSTOP);
        break;
    default:
        const sigset_t set = handledSignals();
        ::sigprocmask(SIG_UNBLOCK, &set, nullptr);
        ::raise(number); // ends the process
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
    constexpr int signalBase = 128;
    if (m_failed) {
        return EXIT_FAILURE;
    }
    return m_ended == SIGINT ? 0 : signalBase + m_ended;
}
