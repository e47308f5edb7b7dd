#include "ScriptedPlatform.h"

#include <algorithm>
#include <cstring>

ScriptedPlatform g_platform;

namespace {

int pipeObject;
int eventObject;
DWORD lastError = 0;

void NoteMisuse(bool isMisuse)
{
    g_platform.misuses += isMisuse ? 1 : 0;
}

bool HasEvent(LPOVERLAPPED overlapped)
{
    return overlapped != nullptr && overlapped->hEvent == &eventObject;
}

} // namespace

HANDLE CreateFileA(LPCSTR lpFileName, DWORD dwDesiredAccess, DWORD dwShare, PSECURITY_ATTRIBUTES,
                   DWORD dwCreateDisposition, DWORD dwFlagsAndAttributes, HANDLE)
{
    g_platform.openedName = lpFileName;
    g_platform.openedAccess = dwDesiredAccess;
    g_platform.openedShare = dwShare;
    g_platform.openedDisposition = dwCreateDisposition;
    g_platform.openedFlags = dwFlagsAndAttributes;
    const size_t last = g_platform.openErrors.size() - 1;
    lastError = g_platform.openErrors[std::min(static_cast<size_t>(g_platform.opens++), last)];
    return lastError == 0 ? &pipeObject : INVALID_HANDLE_VALUE;
}

BOOL WriteFile(HANDLE, LPCVOID lpBuffer, DWORD NumberOfBytesToWrite, LPDWORD lpNumberOfBytesWrite,
               LPOVERLAPPED lpOverlapped)
{
    NoteMisuse(!HasEvent(lpOverlapped));
    g_platform.written.assign(static_cast<const char*>(lpBuffer), NumberOfBytesToWrite);
    *lpNumberOfBytesWrite = g_platform.write.count;
    lastError = g_platform.write.lastError;
    return g_platform.write.result;
}

BOOL ReadFile(HANDLE, LPVOID lpBuffer, DWORD nNumberOfBytesToRead, LPDWORD lpNumberOfBytesRead,
              LPOVERLAPPED lpOverlapped)
{
    NoteMisuse(!HasEvent(lpOverlapped));
    const ScriptedTransfer& read = g_platform.reads.at(g_platform.readSizes.size());
    g_platform.readSizes.push_back(nNumberOfBytesToRead);
    const size_t count = std::min<size_t>(read.data.size(), nNumberOfBytesToRead);
    std::memcpy(lpBuffer, read.data.data(), count);
    *lpNumberOfBytesRead = static_cast<DWORD>(count);
    lastError = read.lastError;
    return read.result;
}

BOOL GetOverlappedResult(HANDLE hFile, LPOVERLAPPED lpOverlapped, LPDWORD lpNumberOfBytesTransferred,
                         BOOL bWait)
{
    NoteMisuse(hFile != &pipeObject || !HasEvent(lpOverlapped) || bWait);
    ++g_platform.overlappedResults;
    if (g_platform.overlappedResult) {
        *lpNumberOfBytesTransferred = g_platform.overlappedCount;
    }
    return g_platform.overlappedResult;
}

DWORD GetLastError()
{
    return lastError;
}

/// The network client refers to it; with its source the linker would add another Sleep.
DWORD GetTickCount()
{
    return 0;
}

void Sleep(DWORD dwMilliseconds) // house-rule: sleeps: this one only records the time
{
    g_platform.sleeps.push_back(dwMilliseconds);
}

DWORD WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds)
{
    g_platform.waits.push_back(dwMilliseconds);
    NoteMisuse(hHandle != &eventObject);
    return WAIT_TIMEOUT;
}

HANDLE CreateEventA(LPSECURITY_ATTRIBUTES, BOOL bManualReset, BOOL bInitialState, LPCSTR lpName)
{
    const bool isAsAgreed = bManualReset && !bInitialState && lpName == nullptr;
    return isAsAgreed && !g_platform.eventsFail ? &eventObject : nullptr;
}

BOOL CloseHandle(HANDLE hObject)
{
    g_platform.closes += hObject == &pipeObject ? 1 : 0;
    g_platform.eventCloses += hObject == &eventObject ? 1 : 0;
    return TRUE;
}
