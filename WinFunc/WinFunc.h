// What the platform layer's own files share: the classes behind a HANDLE, and the layer's log lines.
#pragma once

#include "Win_def.h"
#include "Win_def_log.h"

#include <atomic>
#include <mutex>
#include <string>

// ---------------------------------------------------------------------------------------------------------------------
// Handles. A HANDLE points to the IWinHandle part of an object; each call recovers the class with
// dynamic_cast.

class IWinHandle
{
public:
    /// The name of the object's class.
    virtual const char* name();
    virtual ~IWinHandle() = default;
};

class WinClosableHandle : public virtual IWinHandle
{
public:
    const char* name() override;
    /// True on success and when there is nothing left to close.
    virtual bool Close() = 0;
};

class WinWaitableHandle : public virtual WinClosableHandle
{
public:
    const char* name() override;
    /// WAIT_OBJECT_0 or WAIT_TIMEOUT.
    virtual DWORD WaitForSingleObject(DWORD dwMilliseconds) = 0;
};

class WinEvent : public virtual WinWaitableHandle
{
public:
    WinEvent(bool bManualReset, bool bInitialState);
    const char* name() override;
    bool Close() override;
    DWORD WaitForSingleObject(DWORD dwMilliseconds) override;
    BOOL SetEvent();
    BOOL ResetEvent();

    std::atomic<bool> signal; // set and polled by several threads without a lock
    bool manualReset;
};

class WinMutex : public virtual WinWaitableHandle
{
public:
    explicit WinMutex(bool bInitialOwner);
    const char* name() override;
    bool Close() override;
    DWORD WaitForSingleObject(DWORD dwMilliseconds) override;

    std::mutex mtx;
};

/// Owns one descriptor; 0 stands for none.
class WinFileHandle : public virtual WinClosableHandle
{
public:
    explicit WinFileHandle(int descriptor);
    ~WinFileHandle() override;
    WinFileHandle(const WinFileHandle&) = delete;
    WinFileHandle& operator=(const WinFileHandle&) = delete;
    const char* name() override;
    bool Close() override;

    int fd;
};

/// The handle of an object, as the calls take it.
inline HANDLE ToHandle(IWinHandle* object)
{
    return object;
}

/// The function that called the function that calls this, for the log; a diagnostic only. May be empty.
std::string caller_name();

// ---------------------------------------------------------------------------------------------------------------------
// The layer's log lines: the console in colour, and syslog. Call sites test the level:
//     if (GetLogLevel() > 1) { LogWarning(...); }        if (GetLogLevel() > 3) { LogDebug(...); }

void LogWarning(const char* format, ...) __attribute__((format(printf, 1, 2)));
void LogDebug(const char* format, ...) __attribute__((format(printf, 1, 2)));

// ---------------------------------------------------------------------------------------------------------------------
// Registry. The store has no lock: whoever calls it holds this one from the opening of a key until its close,
// for the next opening reads the file anew and would take back a value that was set and not yet written.

std::recursive_mutex& RegistryMutex();

/// The full path of a key: root short name or open key's path, "/", sub key; forward slashes alone.
std::string RegGetFullPath(HKEY hKey, LPCSTR lpSubKey);
/// Merges the file into the map. `flags` are those of open(2). False when the file can neither be read nor
/// created.
bool RegReadIn(int flags);
/// Writes the whole map; true when all of it was written.
bool RegWriteOut();
