// What the platform layer's own files share: the classes behind a HANDLE, and the layer's log lines.
#pragma once

#include "Win_def.h"
#include "Win_def_log.h"

#include <atomic>
#include <functional>
#include <map>
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
    /// WAIT_OBJECT_0 or WAIT_TIMEOUT. Time is counted in nominal sleep, not by a clock.
    virtual DWORD WaitForSingleObject(DWORD dwMilliseconds) = 0;
};

/// Waiters poll the flag. One SetEvent may release two waiters of an auto-reset event.
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

/// Once taken it stays taken until the object goes: no call releases it. Not recursive.
class WinMutex : public virtual WinWaitableHandle
{
public:
    explicit WinMutex(bool bInitialOwner);
    const char* name() override;
    bool Close() override;
    DWORD WaitForSingleObject(DWORD dwMilliseconds) override;

    std::mutex mtx;
};

/// Owns one descriptor, of a file or of a connected socket; 0 stands for none.
class WinFileHandle : public virtual WinClosableHandle
{
public:
    explicit WinFileHandle(int descriptor);
    ~WinFileHandle() override;
    WinFileHandle(const WinFileHandle&) = delete;
    WinFileHandle& operator=(const WinFileHandle&) = delete;
    const char* name() override;
    bool Close() override;
    /// Ends a socket's traffic in both directions and keeps the descriptor: a read that blocks in another
    /// thread returns with 0 bytes, a later write fails. Safe beside ReadFile and WriteFile of another
    /// thread, but not beside CloseHandle. Nothing happens to a file.
    void Shutdown();

    int fd;
};

/// The handle of an object, as the calls take it.
inline HANDLE ToHandle(IWinHandle* object)
{
    return object;
}

/// NULL and INVALID_HANDLE_VALUE are never objects.
inline bool IsObject(HANDLE handle)
{
    return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

/// The object behind a handle; one of another class, or none at all, stops the process.
template <class T>
T& ObjectOf(HANDLE handle)
{
    assert(IsObject(handle));
    T* object = dynamic_cast<T*>(static_cast<IWinHandle*>(handle));
    assert(object != nullptr);
    return *object;
}

/// The function that called the function that calls this, for the log; a diagnostic only. May be empty.
std::string caller_name();
/// The warning about a handle that is no object: `wrapper` is the call's full signature, `caller` who made
/// it.
void LogNoObject(const char* wrapper, const std::string& caller, HANDLE handle);
/// The function in a line of `backtrace_symbols`, without return type and parameters.
std::string FunctionOfSymbol(const std::string& symbol);

// ---------------------------------------------------------------------------------------------------------------------
// Removal of a folder with its contents. A symbolic link is removed as a link and never followed, also a link
// to a folder: nothing outside the folder is touched. A link whose target cannot be examined is a failure and
// stays.

/// Empties the folder and removes it.
bool rmdir_path(const std::string& path);
/// Removes all entries of the folder and stops at the first that cannot be removed.
bool dir_clear(const std::string& path);
/// Removes one entry, with all below it when it is a folder.
bool recursive_dir_clear(const std::string& path);
/// 0: a folder, left as it is; 1: anything else, removed; -1: failed.
int is_file_delete(const std::string& path);

// ---------------------------------------------------------------------------------------------------------------------
// The layer's log lines: the console in colour, and syslog. Call sites test the level:
//     if (GetLogLevel() > 1) { LogWarning(...); }        if (GetLogLevel() > 3) { LogDebug(...); }

void LogWarning(const char* format, ...) __attribute__((format(printf, 1, 2)));
void LogDebug(const char* format, ...) __attribute__((format(printf, 1, 2)));

// ---------------------------------------------------------------------------------------------------------------------
// Registry. The store has no lock: whoever calls it holds this one from the opening of a key until its close,
// for the next opening reads the file anew and would take back a value that was set and not yet written.

std::recursive_mutex& RegistryMutex();

/// What an HKEY other than a root points to. Owned by the caller until RegCloseKey.
struct CRegistryKey
{
    std::string key;        ///< full path: root short name, "/", sub key path; forward slashes alone
    bool bWritable = false; ///< the file could be opened for writing when the key was opened
    bool bDirty = false;    ///< the file is written when the key is closed
};

/// The values of one key. A name may stand in both maps; a query sees the string then.
struct CRegistryValueStore
{
    std::map<std::string, std::string, std::less<>> stringValues;
    std::map<std::string, uint32_t, std::less<>> dwordValues;
};

using RegistryMap = std::map<std::string, CRegistryValueStore, std::less<>>;

/// All keys by full path, in byte order. Grows with each load and is never pruned, nor destroyed at the end
/// of the process: a thread that is still at work then reads it safely. Values change through RegSetValueExA
/// alone.
extern RegistryMap& g_Registry;

/// The full path of a key: root short name or open key's path, "/", sub key; forward slashes alone.
std::string RegGetFullPath(HKEY hKey, LPCSTR lpSubKey);
/// Merges the file into the map: equal names take the file's values, what the map holds beyond the file
/// stays. `flags` are those of open(2). False when the file can neither be read nor created.
bool RegReadIn(int flags);
/// Writes the whole map; true when all of it was written.
bool RegWriteOut();
