// Diagnostics of the platform layer and the publisher logic: a log level, a name and a trace depth for each
// thread, and one-line datagrams to the log agent of the control service.
//
// Call sites test the level, so that a suppressed line costs one comparison:
//     if (GetLogLevel() > 1) { logViaAgent(4, "...", ...); }
//     if (GetLogLevel() > 3) { logViaAgent(7, "...", ...); }
#pragma once

#include "Win_def.h"

/// The log level of the process, written once at start-up. Above 1, warnings are logged; above 3, debug
/// traces too.
extern int g_logLebel;
int GetLogLevel();
void SetLogLevel(int level);

/// Sends "MESSAGE=RT300API[pid]: text\nPRIORITY=n\n" to the log agent; the text is truncated to 511 bytes.
/// `priority` is a syslog number: 4 warning, 7 debug. If there is no agent, or its queue stays full, the line
/// is silently dropped. Waits at most 200 ms for a full queue, and after such a timeout not at all for 5 s.
/// Keeps errno.
void logViaAgent(int priority, const char* format, ...) __attribute__((format(printf, 2, 3)));

/// The name of the calling thread: its kernel id in upper-case hexadecimal unless SetThreadName was called.
/// Valid until the thread ends.
const char* GetThreadName();
/// A name of 64 bytes or more clears the name, so that GetThreadName returns the id again.
void SetThreadName(const char* szThreadName);
/// Local time as "hh:mm:ss:mmm", in a buffer of the calling thread.
const char* GetTimeString();

extern constinit thread_local int g_stackDepthTLS;
extern constinit thread_local char g_szThreadNameTLS[64];
extern constinit thread_local char g_szTimeStringTLS[64];
/// Exactly 30 blanks.
extern const char g_stackDepthSpace[31];

/// Indents the trace lines of its scope by one step.
class _StackDepth
{
public:
    _StackDepth()
    {
        ++g_stackDepthTLS;
    }
    ~_StackDepth()
    {
        --g_stackDepthTLS;
    }
    _StackDepth(const _StackDepth&) = delete;
    _StackDepth& operator=(const _StackDepth&) = delete;

    /// Two blanks for each step of depth, 30 at most.
    static const char* getSpace();
};
