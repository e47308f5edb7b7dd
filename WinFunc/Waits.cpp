#include "WinFunc.h"

namespace {

DWORD WaitForOne(HANDLE handle, DWORD milliseconds)
{
    return ObjectOf<WinWaitableHandle>(handle).WaitForSingleObject(milliseconds);
}

/// The index of the first signalled handle from `from` on, or WAIT_TIMEOUT.
DWORD PollAny(DWORD nCount, const HANDLE* ph, DWORD from)
{
    for (DWORD i = from; i < nCount; ++i) {
        if (WaitForOne(ph[i], 0) == WAIT_OBJECT_0) {
            return i;
        }
    }
    return WAIT_TIMEOUT;
}

/// Waits for the first handle in steps and polls the others after each step.
DWORD WaitForAny(DWORD nCount, const HANDLE* ph, DWORD dwMilliseconds)
{
    if (dwMilliseconds == 0) {
        return PollAny(nCount, ph, 0);
    }
    assert(nCount > 0);
    constexpr DWORD step = 10;
    // 64 bits, because the sum would overflow for a timeout near the 32-bit maximum.
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

/// Waits for each handle with the same timeout and stops at the first result other than WAIT_OBJECT_0.
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

/// Waits for the handles in order, not atomically: an auto-reset event taken early stays consumed if a later
/// wait times out.
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
