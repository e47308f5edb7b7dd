#include "WinFunc.h"

namespace {

DWORD WaitForOne(HANDLE handle, DWORD milliseconds)
{
    return ObjectOf<WinWaitableHandle>(handle).WaitForSingleObject(milliseconds);
}

/// The index of the first handle from `from` on that is signalled now, or WAIT_TIMEOUT.
DWORD PollAny(DWORD nCount, const HANDLE* ph, DWORD from)
{
    for (DWORD i = from; i < nCount; ++i) {
        if (WaitForOne(ph[i], 0) == WAIT_OBJECT_0) {
            return i;
        }
    }
    return WAIT_TIMEOUT;
}

/// The first handle carries the timing of the whole wait.
DWORD WaitForAny(DWORD nCount, const HANDLE* ph, DWORD dwMilliseconds)
{
    if (dwMilliseconds == 0) {
        return PollAny(nCount, ph, 0);
    }
    assert(nCount > 0);
    constexpr DWORD step = 10;
    // 64 bits, for a timeout close to the end of the 32.
    for (uint64_t elapsed = 0; dwMilliseconds == INFINITE || elapsed < dwMilliseconds; elapsed += step) {
        const DWORD first = WaitForOne(ph[0], step);
        if (first == WAIT_OBJECT_0) {
            return 0;
        }
        if (first == WAIT_TIMEOUT) {
            const DWORD other = PollAny(nCount, ph, 1);
            if (other != WAIT_TIMEOUT) {
                return other;
            }
        }
    }
    return WAIT_TIMEOUT;
}

/// Each wait with the same timeout; the first result but WAIT_OBJECT_0 ends it.
DWORD WaitForEach(DWORD nCount, const HANDLE* ph, DWORD dwMilliseconds)
{
    for (DWORD i = 0; i < nCount; ++i) {
        const DWORD result = WaitForOne(ph[i], dwMilliseconds);
        if (result != WAIT_OBJECT_0) {
            return result;
        }
    }
    return WAIT_OBJECT_0;
}

/// One after the other and not atomically: an auto-reset event taken early stays consumed when a later one
/// times out.
DWORD WaitForAll(DWORD nCount, const HANDLE* ph, DWORD dwMilliseconds)
{
    if (dwMilliseconds == 0 || dwMilliseconds == INFINITE) {
        return WaitForEach(nCount, ph, dwMilliseconds);
    }
    const DWORD start = GetTickCount();
    DWORD remaining = dwMilliseconds;
    for (DWORD i = 0; i < nCount; ++i) {
        const DWORD result = WaitForOne(ph[i], remaining);
        if (result == WAIT_ABANDONED) {
            return WAIT_ABANDONED + i;
        }
        if (result != WAIT_OBJECT_0) {
            return result;
        }
        const DWORD passed = GetTickCount() - start;
        if (passed >= dwMilliseconds) {
            return WAIT_TIMEOUT;
        }
        remaining = dwMilliseconds - passed;
    }
    return WAIT_OBJECT_0;
}

} // namespace

DWORD WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds)
{
    if (!IsObject(hHandle)) {
        if (GetLogLevel() > 1) {
            LogNoObject("DWORD WaitForSingleObject(HANDLE, DWORD)", caller_name(), hHandle);
        }
        return WAIT_FAILED;
    }
    return WaitForOne(hHandle, dwMilliseconds);
}

DWORD WaitForMultipleObjects(DWORD nCount, const HANDLE* ph, BOOL bWaitAll, DWORD dwMilliseconds)
{
    return bWaitAll != FALSE ? WaitForAll(nCount, ph, dwMilliseconds)
                             : WaitForAny(nCount, ph, dwMilliseconds);
}
