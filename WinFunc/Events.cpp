#include "WinFunc.h"

#include <new>

#include <unistd.h>

namespace {

constexpr DWORD coarseStep = 10; // milliseconds
constexpr DWORD fineStep = 1;

void SleepMilliseconds(DWORD milliseconds)
{
    usleep(milliseconds * 1000);
}

} // namespace

WinEvent::WinEvent(bool bManualReset, bool bInitialState) : signal(bInitialState), manualReset(bManualReset)
{
}

const char* WinEvent::name()
{
    return "WinEvent";
}

bool WinEvent::Close()
{
    return true;
}

BOOL WinEvent::SetEvent()
{
    signal = true;
    return TRUE;
}

BOOL WinEvent::ResetEvent()
{
    signal = false;
    return TRUE;
}

DWORD WinEvent::WaitForSingleObject(DWORD dwMilliseconds)
{
    if (dwMilliseconds == INFINITE) {
        while (!signal) {
            SleepMilliseconds(coarseStep);
        }
    } else {
        // Counts down, because a sum would overflow for a timeout near the 32-bit maximum.
        DWORD remaining = dwMilliseconds;
        while (remaining > coarseStep && !signal) {
            SleepMilliseconds(coarseStep);
            remaining -= coarseStep;
        }
        while (remaining > 0 && !signal) {
            SleepMilliseconds(fineStep);
            remaining -= fineStep;
        }
    }
    if (!signal) {
        return WAIT_TIMEOUT;
    }
    if (!manualReset) {
        signal = false;
    }
    return WAIT_OBJECT_0;
}

HANDLE CreateEventA(LPSECURITY_ATTRIBUTES, BOOL bManualReset, BOOL bInitialState, LPCSTR)
{
    return ToHandle(new (std::nothrow) WinEvent(bManualReset != FALSE, bInitialState != FALSE));
}

BOOL SetEvent(HANDLE hEvent)
{
    if (!IsObject(hEvent)) {
        if (GetLogLevel() > 1) {
            LogNoObject("BOOL SetEvent(HANDLE)", caller_name(), hEvent);
        }
        return FALSE;
    }
    return ObjectOf<WinEvent>(hEvent).SetEvent();
}

BOOL ResetEvent(HANDLE hEvent)
{
    if (!IsObject(hEvent)) {
        if (GetLogLevel() > 1) {
            LogNoObject("BOOL ResetEvent(HANDLE)", caller_name(), hEvent);
        }
        return FALSE;
    }
    return ObjectOf<WinEvent>(hEvent).ResetEvent();
}
