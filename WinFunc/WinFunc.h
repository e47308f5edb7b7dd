// Shared by the platform layer's own sources: the classes behind a HANDLE, folder removal, the layer's log
// lines and the registry store.
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
    /// True on success, or if there is nothing left to close.
    virtual bool Close() = 0;
};

class WinWaitableHandle : public virtual WinClosableHandle
{
public:
    const char* name() override;
    /// Returns WAIT_OBJECT_0 or WAIT_TIMEOUT. The timeout is measured by adding up nominal sleep times, not
    /// by a clock.
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

/// A mutex that is taken stays taken until the object is destroyed: no call releases it. Not recursive.
class WinMutex : public virtual WinWaitableHandle
{
public:
    explicit WinMutex(bool bInitialOwner);
    const char* name() override;
    bool Close() override;
    DWORD WaitForSingleObject(DWORD dwMilliseconds) override;

    std::mutex mtx;
};

/// Owns one descriptor, of a file or of a connected socket; 0 means none.
class WinFileHandle : public virtual WinClosableHandle
{
public:
    explicit WinFileHandle(int descriptor);
    ~WinFileHandle() override;
    WinFileHandle(const WinFileHandle&) = delete;
    WinFileHandle& operator=(const WinFileHandle&) = delete;
    const char* name() override;
    bool Close() override;
    /// Shuts a socket down in both directions and keeps the descriptor open: a blocked read in another thread
    /// returns 0 bytes, and later writes fail. Safe while another thread calls ReadFile or WriteFile, but not
    /// CloseHandle. No effect on a file.
    void Shutdown();

    int fd;
};

/// The handle of an object: the address of its IWinHandle part.
inline HANDLE ToHandle(IWinHandle* object)
{
    return object;
}

/// NULL and INVALID_HANDLE_VALUE are never objects.
inline bool IsObject(HANDLE handle)
{
    return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

/// The object behind a handle. An invalid handle or an object of another class stops the process.
template <class T>
T& ObjectOf(HANDLE handle)
{
    assert(IsObject(handle));
    T* object = dynamic_cast<T*>(static_cast<IWinHandle*>(handle));
    assert(object != nullptr);
    return *object;
}

/// The name of the caller's caller, for log lines only. May be empty.
std::string caller_name();
/// Logs a warning about a handle that is no object. `wrapper` is the full signature of the called function,
/// `caller` the name of the calling one.
void LogNoObject(const char* wrapper, const std::string& caller, HANDLE handle);
/// The function name in a line of `backtrace_symbols`, without return type and parameters.
std::string FunctionOfSymbol(const std::string& symbol);

// ---------------------------------------------------------------------------------------------------------------------
// Removal of a folder with its contents. A symbolic link, even one to a folder, is removed and never
// followed, so that nothing outside the folder is touched. A link whose target cannot be examined is not
// removed and counts as a failure.

/// Empties the folder and removes it.
bool rmdir_path(const std::string& path);
/// Removes all entries of the folder. Stops at the first one that cannot be removed.
bool dir_clear(const std::string& path);
/// Removes one entry; a folder is removed with its contents.
bool recursive_dir_clear(const std::string& path);
/// 0: a folder, not removed; 1: anything else, removed; -1: failed.
int is_file_delete(const std::string& path);

// ---------------------------------------------------------------------------------------------------------------------
// The layer's log lines go to the console, in colour, and to syslog. Call sites test the level:
//     if (GetLogLevel() > 1) { LogWarning(...); }        if (GetLogLevel() > 3) { LogDebug(...); }

void LogWarning(const char* format, ...) __attribute__((format(printf, 1, 2)));
void LogDebug(const char* format, ...) __attribute__((format(printf, 1, 2)));

// ---------------------------------------------------------------------------------------------------------------------
// Registry. The store does not lock. The caller holds this mutex from opening a key until closing it: opening
// another key reads the file again and would revert a value that was set but not yet written.

std::recursive_mutex& RegistryMutex();

/// The object behind an HKEY other than a root. Owned by the caller until RegCloseKey.
struct CRegistryKey
{
    std::string key;        ///< full path: root short name, "/", sub key path; forward slashes only
    bool bWritable = false; ///< the file could be opened for writing when the key was opened
    bool bDirty = false;    ///< the file is written when the key is closed
};

/// The values of one key. A name may be in both maps; a query then returns the string.
struct CRegistryValueStore
{
    std::map<std::string, std::string, std::less<>> stringValues;
    std::map<std::string, uint32_t, std::less<>> dwordValues;
};

using RegistryMap = std::map<std::string, CRegistryValueStore, std::less<>>;

/// All keys by full path, in byte order. Loads add keys; keys are never removed. Never destroyed, so that
/// threads still running at exit can read it safely. Apart from loads, only RegSetValueExA changes values.
extern RegistryMap& g_Registry;

/// The full path of a key: root short name or path of the open key, "/", sub key; forward slashes only.
std::string RegGetFullPath(HKEY hKey, LPCSTR lpSubKey);
/// Merges the file into the map: its values replace those of equal names, and everything else in the map
/// stays. `flags` are those of open(2). False if the file can neither be read nor created.
bool RegReadIn(int flags);
/// Writes the whole map. False if not all of it was written.
bool RegWriteOut();
