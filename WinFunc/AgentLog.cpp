#include "InstallPaths.h"
#include "SystemCalls.h"
#include "WinFunc.h"

#include <atomic>
#include <chrono>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

int g_logLebel = 4;

namespace {

/// The longest wait for space in the agent's queue, which holds about ten lines. The user-interface thread
/// logs too, and should answer within 100 ms.
constexpr timeval AGENT_PATIENCE{0, 80000};
/// The pause after such a timeout, in which no call waits, so that a hung agent does not slow the program
/// down.
constexpr std::chrono::seconds AGENT_PAUSE{5};

/// The end of this pause, in ticks of the steady clock.
std::atomic<std::chrono::steady_clock::rep> agentPauseEnd =
    std::chrono::steady_clock::time_point::min().time_since_epoch().count();

/// Opens a socket for each line: a restart of the service would make a permanent one stale.
void SendToAgent(const char* datagram)
{
    using std::chrono::steady_clock;
    const int fd = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (fd < 0) {
        return;
    }
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    static_assert(sizeof LOG_AGENT_SOCKET <= sizeof address.sun_path);
    memcpy(address.sun_path, LOG_AGENT_SOCKET, sizeof LOG_AGENT_SOCKET);
    const auto* peer = reinterpret_cast<const sockaddr*>(&address);
    if (connect(fd, peer, sizeof address) == 0) {
        const bool waits =
            steady_clock::now().time_since_epoch().count() >= agentPauseEnd &&
            setsockopt(fd, SOL_SOCKET, SO_SNDTIMEO, &AGENT_PATIENCE, sizeof AGENT_PATIENCE) == 0;
        const int flags = MSG_NOSIGNAL | (waits ? 0 : MSG_DONTWAIT);
        const ssize_t sent = Uninterrupted(
            [&] { return sendto(fd, datagram, strlen(datagram), flags, peer, sizeof address); });
        if (sent < 0 && errno == EAGAIN && waits) {
            agentPauseEnd = (steady_clock::now() + AGENT_PAUSE).time_since_epoch().count();
        }
    }
    close(fd);
}

void LogLine(int priority, const char* before, const char* behind, const char* format, va_list args)
    __attribute__((format(printf, 4, 0)));

/// Writes one line to the console and to syslog. The console line starts with the thread name in magenta and
/// the indentation of its trace depth; `before` and `behind` set and reset the colour of the text.
void LogLine(int priority, const char* before, const char* behind, const char* format, va_list args)
{
    const ErrnoKeeper keeper;
    va_list again;
    va_copy(again, args);
    printf("\x1b[35m[%s]\x1b[0m%s%s", GetThreadName(), _StackDepth::getSpace(), before);
    vprintf(format, args);
    puts(behind);
    vsyslog(priority, format, again);
    va_end(again);
}

} // namespace

int GetLogLevel()
{
    return g_logLebel;
}

void SetLogLevel(int level)
{
    g_logLebel = level;
}

void logViaAgent(int priority, const char* format, ...)
{
    const ErrnoKeeper keeper; // callers may log before they check the errno of a failed call
    char message[512] = {};
    va_list args;
    va_start(args, format);
    vsnprintf(message, sizeof message, format, args);
    va_end(args);

    char datagram[1024] = {};
    snprintf(datagram, sizeof datagram, "MESSAGE=RT300API[%d]: %s\nPRIORITY=%d\n", getpid(), message,
             priority);
    SendToAgent(datagram);
}

void LogWarning(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    LogLine(LOG_WARNING, "\x1b[33m", "\x1b[0m", format, args);
    va_end(args);
}

void LogDebug(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    LogLine(LOG_DEBUG, "", "", format, args);
    va_end(args);
}
