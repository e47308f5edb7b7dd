// Base types, constants and the Windows-named functions of the platform layer (implemented in WinFunc).
//
// Every name has the signature and the result codes of its Windows namesake; differences are documented at
// the declaration. All text is `char`, and UTF-8 where it comes from the user interface. Unless documented
// otherwise, a function may be called from any thread, reports errors only through its result and never
// throws.
#pragma once

#include <cassert>
#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <pthread.h>

#ifdef NDEBUG
#error "Assertions stay on in every build: a condition that cannot occur stops the process."
#endif

// ---------------------------------------------------------------------------------------------------------------------
// Base types

using BOOL = int;
using INT = int;
using UINT = unsigned int;
using BYTE = unsigned char;
using WORD = uint16_t;
using DWORD = uint32_t;
using ULONG = uint32_t;
using LONG = int32_t;
using LONGLONG = int64_t;
using ULONGLONG = uint64_t;
using INT_PTR = intptr_t;
using UINT_PTR = uintptr_t;
using LONG_PTR = intptr_t;
using ULONG_PTR = uintptr_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;

using LPVOID = void*;
using LPCVOID = const void*;
using LPSTR = char*;
using LPTSTR = char*;
using LPCSTR = const char*;
using LPCTSTR = const char*;
using LPBYTE = BYTE*;
using LPWORD = WORD*;
using LPDWORD = DWORD*;
using PUINT = UINT*;
using PLONG = LONG*;

using HANDLE = void*;
using HKEY = void*;
using HWND = void*;
using HINSTANCE = void*;
using HMODULE = void*;
using HGLOBAL = void*;
using PHKEY = HKEY*;

using LSTATUS = long;
using REGSAM = DWORD;
using LCID = DWORD;

// Macros, because their expansions appear in the texts of failed assertions.
#define FALSE 0
#define TRUE 1
#define ERROR_MORE_DATA (234L)

/// Stops the process if `x` is false. The abort message contains the text "(<x as expanded>) != FALSE".
#define ASSERT(x) assert((x) != FALSE)

inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(intptr_t{-1});

/// Size of the callers' fixed path buffers, in bytes including the NUL (the Windows value).
constexpr int MAX_PATH = 260;

struct GUID
{
    unsigned long Data1; ///< 64 bits wide on this platform
    unsigned short Data2;
    unsigned short Data3;
    unsigned char Data4[8];
};

struct SYSTEMTIME
{
    WORD wYear;
    WORD wMonth;     ///< 1 to 12
    WORD wDayOfWeek; ///< 0 is Sunday
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};
using LPSYSTEMTIME = SYSTEMTIME*;

struct FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};
using LPFILETIME = FILETIME*;

struct TIME_ZONE_INFORMATION
{
    LONG Bias; ///< minutes, UTC minus local time
    SYSTEMTIME StandardDate;
    LONG StandardBias;
};
using LPTIME_ZONE_INFORMATION = TIME_ZONE_INFORMATION*;

union LARGE_INTEGER {
    struct
    {
        DWORD LowPart;
        LONG HighPart;
    } u;
    LONGLONG QuadPart;
};
using PLARGE_INTEGER = LARGE_INTEGER*;

union ULARGE_INTEGER {
    struct
    {
        DWORD LowPart;
        DWORD HighPart;
    } u;
    ULONGLONG QuadPart;
};
using PULARGE_INTEGER = ULARGE_INTEGER*;

/// Accepted and ignored everywhere.
struct SECURITY_ATTRIBUTES
{
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
};
using PSECURITY_ATTRIBUTES = SECURITY_ATTRIBUTES*;
using LPSECURITY_ATTRIBUTES = SECURITY_ATTRIBUTES*;

/// This layer neither reads nor writes the fields, because all input and output is synchronous.
struct OVERLAPPED
{
    ULONG_PTR Internal;
    ULONG_PTR InternalHigh;
    DWORD Offset;
    DWORD OffsetHigh;
    HANDLE hEvent;
};
using LPOVERLAPPED = OVERLAPPED*;

using CRITICAL_SECTION = pthread_mutex_t;
using LPCRITICAL_SECTION = CRITICAL_SECTION*;

struct tagMSG
{
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};
using MSG = tagMSG;

constexpr UINT WM_QUIT = 18;

// ---------------------------------------------------------------------------------------------------------------------
// Result codes

constexpr long ERROR_SUCCESS = 0;
constexpr long ERROR_FILE_NOT_FOUND = 2;
constexpr long ERROR_PATH_NOT_FOUND = 3;
constexpr long ERROR_ACCESS_DENIED = 5;
constexpr long ERROR_INVALID_HANDLE = 6;
constexpr long ERROR_NOT_ENOUGH_MEMORY = 8;
constexpr long ERROR_BAD_FORMAT = 11;
constexpr long ERROR_INVALID_ACCESS = 12;
constexpr long ERROR_CRC = 23;
constexpr long ERROR_FILE_EXISTS = 80;
constexpr long ERROR_INVALID_PARAMETER = 87;
constexpr long ERROR_BROKEN_PIPE = 109;
constexpr long ERROR_DISK_FULL = 112;
constexpr long ERROR_BUSY_DRIVE = 142;
constexpr long ERROR_PIPE_BUSY = 231;
constexpr long ERROR_NO_MORE_ITEMS = 259;
constexpr long ERROR_DIRECTORY = 267;
constexpr long ERROR_IO_PENDING = 997;
constexpr long ERROR_FILE_READ_ONLY = 6009;

constexpr DWORD WAIT_OBJECT_0 = 0;
constexpr DWORD WAIT_ABANDONED = 0x80;
constexpr DWORD WAIT_TIMEOUT = 0x102;
constexpr DWORD WAIT_FAILED = 0xFFFFFFFF;
constexpr DWORD INFINITE = 0xFFFFFFFF;

// ---------------------------------------------------------------------------------------------------------------------
// String functions with a size. Results are errno numbers: 0, 22 (EINVAL), 34 (ERANGE), 12 (ENOMEM).

int strcpy_s(char* dest, size_t dest_size, const char* src);
/// Writes exactly `count` bytes: pads a shorter source with NULs, and writes no NUL after a source of `count`
/// bytes or more. `dest` must have room for `count` bytes.
int strncpy_s(char* dest, size_t dest_size, const char* src, size_t count);
int strcat_s(char* dest, size_t dest_size, const char* src);
/// Unlike above, a NULL source leaves `dest` unchanged.
int strncat_s(char* dest, size_t dest_size, const char* src, size_t count);
/// Converts A to Z to lower case, up to the first NUL.
int _strlwr_s(char* str, size_t size);
/// Converts all `sizeInBytes` bytes to upper case, including those after a NUL.
int _strupr_s(char* str, size_t sizeInBytes);
/// Returns 0 if the texts are equal apart from the case of letters. The class of each byte of `string1`
/// decides the comparison: digits and white space compare exactly, letters without regard to case, and all
/// others (its NUL included) match anything.
int _strnicmp(const char* string1, const char* string2, size_t count);
/// The first byte of `str` that is not in `charset`, or NULL if there is none.
char* _strspnp(const char* str, const char* charset);
/// Calls strtok and ignores the context, so only one thread may use it at a time.
char* strtok_s(char* str, const char* delimiters, char** context);
/// Calls memcpy and ignores the size.
int memcpy_s(void* dest, size_t dest_size, const void* src, size_t count);

// Formatting. Only _vsnprintf_s has a bound; for the other functions the caller must size the destination.

namespace WinFunc {
/// Formats without a bound; `SizeOfBuffer` is ignored. The macro below makes it callable by its plain name.
int snprintf(char* Buffer, size_t SizeOfBuffer, const char* String, ...)
    __attribute__((format(printf, 3, 4)));
} // namespace WinFunc
// snprintf is the layer's function in every file that includes this header. It is a macro because the C
// library's declaration cannot be overloaded, and because a symbol of that name in the program would be used
// by every shared library of the process.
#define snprintf WinFunc::snprintf

int swprintf_s(char* Buffer, size_t SizeOfBuffer, const char* String, ...)
    __attribute__((format(printf, 3, 4)));
int vsprintf_s(char* Buffer, size_t SizeOfBuffer, const char* Format, va_list ArgList)
    __attribute__((format(printf, 3, 0)));
int wsprintf(char* Buffer, const char* Format, ...) __attribute__((format(printf, 2, 3)));
/// Calls vsnprintf with `_MaxCount`; `_SizeInBytes` is ignored.
int _vsnprintf_s(char* _DstBuf, size_t _SizeInBytes, size_t _MaxCount, const char* _Format, va_list _ArgList)
    __attribute__((format(printf, 4, 0)));
/// The length of the formatted text, without its NUL.
int _vscprintf(const char* Format, va_list ArgList) __attribute__((format(printf, 1, 0)));

// Number conversions. _itoa_s, _ltoa_s and _ultoa_s support radix 10 only and always return 22 (EINVAL), even
// after success.

int _itoa_s(int value, char* buffer, size_t size, int radix);
int _ltoa_s(long value, char* buffer, size_t size, int radix);
int _ultoa_s(unsigned long value, char* buffer, size_t size, int radix);
/// Returns 0 for radix 16, 10 and 8. Any other radix writes nothing and returns 22.
int _ltow_s(long Value, char* Buffer, size_t SizeOfBuffer, int Radix);
LONGLONG _atoi64(const char* str);
int _wtoi(const char* str);
long _wtol(const char* str);
int _totupper(int c);

/// The COM string class of the shared declarations. It stores nothing.
class _bstr_t
{
public:
    _bstr_t() = default;
    _bstr_t(const char*) {}
};
using bstr_t = _bstr_t;

/// Splits at "/" and "."; a backslash is an ordinary byte. An output that does not fit is zeroed without an
/// error; an output given as NULL with size 0 is skipped. Returns 0, or 22 for bad arguments.
int _splitpath_s(const char* path, char* drive, size_t driveNumberOfElements, char* dir,
                 size_t dirNumberOfElements, char* fname, size_t nameNumberOfElements, char* ext,
                 size_t extNumberOfElements);

/// Writes one character type word per byte, for `dwInfoType` 1 and 4. Returns FALSE at the first byte outside
/// the tables; the words before it have been written.
BOOL GetStringTypeA(LCID Locale, DWORD dwInfoType, LPCSTR lpSrcStr, int cchSrc, LPWORD lpCharType);

/// Calls malloc; the flags are ignored. The caller frees the memory with GlobalFree.
HGLOBAL GlobalAlloc(UINT uFlags, size_t dwBytes);
/// Always returns NULL.
HGLOBAL GlobalFree(HGLOBAL hMem);

// ---------------------------------------------------------------------------------------------------------------------
// Time

void GetSystemTime(LPSYSTEMTIME lpSystemTime);
void GetLocalTime(LPSYSTEMTIME lpSystemTime);
/// Milliseconds of the monotonic clock, truncated to 32 bits.
DWORD GetTickCount();
/// Sleeps for milliseconds; 0 yields the processor. A signal may end the sleep early, by less than a second.
void Sleep(DWORD dwMilliseconds);
/// Returns -1, 0 or 1.
LONG CompareFileTime(const FILETIME* lpFileTime1, const FILETIME* lpFileTime2);
/// These three return TRUE and leave their outputs unchanged.
BOOL FileTimeToSystemTime(const FILETIME* lpFileTime, LPSYSTEMTIME lpSystemTime);
BOOL SystemTimeToFileTime(const SYSTEMTIME* lpSystemTime, LPFILETIME lpFileTime);
BOOL GetFileTime(HANDLE hFile, LPFILETIME lpCreationTime, LPFILETIME lpLastAccessTime,
                 LPFILETIME lpLastWriteTime);
/// Sets `Bias` to the difference of the hours of UTC and local time, in minutes and without regard to the
/// date. Always returns 0.
DWORD GetTimeZoneInformation(LPTIME_ZONE_INFORMATION lpTimeZoneInformation);

// Stubs with a fixed result. They write nothing.

LONG CoCreateGuid(GUID* pguid);
BOOL VerQueryValue(LPCVOID pBlock, LPCTSTR lpSubBlock, LPVOID* lplpBuffer, PUINT puLen);
DWORD GetFileVersionInfoSize(LPCTSTR lptstrFilename, LPDWORD lpdwHandle);
BOOL GetFileVersionInfo(LPCTSTR lptstrFilename, DWORD dwHandle, DWORD dwLen, LPVOID lpData);

// ---------------------------------------------------------------------------------------------------------------------
// Registry, stored in the suite's shared text file. One thread at a time; CRegUtility holds the lock.

inline const HKEY HKEY_CLASSES_ROOT = reinterpret_cast<HKEY>(uintptr_t{0x80000000});
inline const HKEY HKEY_CURRENT_USER = reinterpret_cast<HKEY>(uintptr_t{0x80000001});
inline const HKEY HKEY_LOCAL_MACHINE = reinterpret_cast<HKEY>(uintptr_t{0x80000002});
inline const HKEY HKEY_USERS = reinterpret_cast<HKEY>(uintptr_t{0x80000003});
inline const HKEY HKEY_CURRENT_CONFIG = reinterpret_cast<HKEY>(uintptr_t{0x80000005});
inline const HKEY HKEY_DYN_DATA = reinterpret_cast<HKEY>(uintptr_t{0x80000006});

constexpr DWORD REG_SZ = 1;
constexpr DWORD REG_BINARY = 3;
constexpr DWORD REG_DWORD = 4;
constexpr REGSAM KEY_READ = 0x20019;
constexpr REGSAM KEY_ALL_ACCESS_64 = 0x1F003F;

LSTATUS RegCreateKeyExA(HKEY hKey, LPCSTR lpSubKey, DWORD Reserved, LPSTR lpClass, DWORD dwOptions,
                        REGSAM samDesired, const LPSECURITY_ATTRIBUTES lpSecurityAttributes, PHKEY phkResult,
                        LPDWORD lpdwDisposition);
LSTATUS RegOpenKeyExA(HKEY hKey, LPCSTR lpSubKey, DWORD ulOptions, REGSAM samDesired, PHKEY phkResult);
/// Frees the key, and writes the file if the key is writable and dirty. Never pass a root.
LSTATUS RegCloseKey(HKEY hKey);
LSTATUS RegSetValueExA(HKEY hKey, LPCSTR lpValueName, DWORD Reserved, DWORD dwType, const BYTE* lpData,
                       DWORD cbData);
/// If the buffer is too small, returns 0 and the size needed, never 234. To ask for the size, set `*lpcbData`
/// to 0.
LSTATUS RegQueryValueExA(HKEY hKey, LPCSTR lpValueName, LPDWORD lpReserved, LPDWORD lpType, LPBYTE lpData,
                         LPDWORD lpcbData);
LSTATUS RegEnumKeyExA(HKEY hKey, DWORD dwIndex, LPSTR lpName, LPDWORD lpcchName, LPDWORD lpReserved,
                      LPSTR lpClass, LPDWORD lpcchClass, LPFILETIME lpftLastWriteTime);
LSTATUS RegQueryInfoKeyA(HKEY hKey, LPSTR lpClass, LPDWORD lpcchClass, LPDWORD lpReserved, LPDWORD lpcSubKeys,
                         LPDWORD lpcbMaxSubKeyLen, LPDWORD lpcbMaxClassLen, LPDWORD lpcValues,
                         LPDWORD lpcbMaxValueNameLen, LPDWORD lpcbMaxValueLen, LPDWORD lpcbSecurityDescriptor,
                         LPFILETIME lpftLastWriteTime);
/// Always stops the process: the store does not enumerate values.
LSTATUS RegEnumValueA(HKEY hKey, DWORD dwIndex, LPSTR lpValueName, LPDWORD lpcchValueName, LPDWORD lpReserved,
                      LPDWORD lpType, LPBYTE lpData, LPDWORD lpcbData);
/// Does not convert backslashes in `lpSubKey`: pass single names.
LSTATUS RegDeleteKeyA(HKEY hKey, LPCSTR lpSubKey);
LSTATUS RegDeleteValueA(HKEY hKey, LPCSTR lpValueName);

// ---------------------------------------------------------------------------------------------------------------------
// Private profile files (ini files)

/// Copies the value of a key and returns its length. `lpDefault` is used only if the file cannot be opened; a
/// missing key gives the empty text. A value that does not fit in `nSize` bytes is truncated.
DWORD GetPrivateProfileStringA(LPCSTR lpAppName, LPCSTR lpKeyName, LPCSTR lpDefault, LPSTR lpReturnedString,
                               DWORD nSize, LPCSTR lpFileName);
UINT GetPrivateProfileIntA(LPCSTR lpAppName, LPCSTR lpKeyName, INT nDefault, LPCSTR lpFileName);
BOOL WritePrivateProfileStringA(LPCSTR lpAppName, LPCSTR lpKeyName, LPCSTR lpString, LPCSTR lpFileName);
/// `lpKeyValuePairs`: NUL-terminated texts "key=value", followed by an empty text.
BOOL WritePrivateProfileSectionA(LPCSTR lpAppName, LPCSTR lpKeyValuePairs, LPCSTR lpFileName);

// ---------------------------------------------------------------------------------------------------------------------
// Handles, events, mutexes and waits. The owner of a handle calls CloseHandle once.

HANDLE CreateEventA(LPSECURITY_ATTRIBUTES lpEventAttributes, BOOL bManualReset, BOOL bInitialState,
                    LPCSTR lpName);
BOOL SetEvent(HANDLE hEvent);
BOOL ResetEvent(HANDLE hEvent);
HANDLE CreateMutexA(LPSECURITY_ATTRIBUTES lpMutexAttributes, BOOL bInitialOwner, LPCSTR lpName);
/// Always returns NULL.
HANDLE OpenMutexA(DWORD dwDesiredAccess, BOOL bInheritHandle, LPCSTR lpName);
DWORD WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds);
DWORD WaitForMultipleObjects(DWORD nCount, const HANDLE* ph, BOOL bWaitAll, DWORD dwMilliseconds);
/// Destroys the object, whatever the result.
BOOL CloseHandle(HANDLE hObject);

/// Recursive.
void InitializeCriticalSection(LPCRITICAL_SECTION lpCriticalSection);
void EnterCriticalSection(LPCRITICAL_SECTION lpCriticalSection);
BOOL TryEnterCriticalSection(LPCRITICAL_SECTION lpCriticalSection);
void LeaveCriticalSection(LPCRITICAL_SECTION lpCriticalSection);
void DeleteCriticalSection(LPCRITICAL_SECTION lpCriticalSection);

// ---------------------------------------------------------------------------------------------------------------------
// Files and service pipes

constexpr DWORD GENERIC_READ = 0x80000000;
constexpr DWORD GENERIC_WRITE = 0x40000000;
constexpr DWORD FILE_SHARE_READ = 1;
constexpr DWORD FILE_SHARE_WRITE = 2;
constexpr DWORD CREATE_NEW = 1;
constexpr DWORD CREATE_ALWAYS = 2;
constexpr DWORD OPEN_EXISTING = 3;
constexpr DWORD OPEN_ALWAYS = 4;       ///< not supported: gives an invalid handle
constexpr DWORD TRUNCATE_EXISTING = 5; ///< not supported: gives an invalid handle
constexpr DWORD FILE_BEGIN = 0;
constexpr DWORD FILE_CURRENT = 1;
constexpr DWORD FILE_END = 2;
constexpr DWORD FILE_ATTRIBUTE_READONLY = 0x1;
constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x10;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;
constexpr DWORD FILE_FLAG_OVERLAPPED = 0x40000000;
constexpr DWORD INVALID_FILE_SIZE = 0xFFFFFFFF;
constexpr DWORD INVALID_SET_FILE_POINTER = 0xFFFFFFFF;
constexpr DWORD INVALID_FILE_ATTRIBUTES = 0xFFFFFFFF;

/// Opens a file, or the control service's socket if the name starts with "\\.\pipe\".
HANDLE CreateFileA(LPCSTR lpFileName, DWORD dwDesiredAccess, DWORD dwShare,
                   PSECURITY_ATTRIBUTES lpSecurityAttributes, DWORD dwCreateDisposition,
                   DWORD dwFlagsAndAttributes, HANDLE hTemplateFile);
/// Makes one read call, which blocks until data arrives or the peer closes. At the end of a file and after a
/// close by the peer, returns TRUE with 0 bytes.
BOOL ReadFile(HANDLE hFile, LPVOID lpBuffer, DWORD nNumberOfBytesToRead, LPDWORD lpNumberOfBytesRead,
              LPOVERLAPPED lpOverlapped);
/// Makes one write call. Compare the returned count with the requested one.
BOOL WriteFile(HANDLE hFile, LPCVOID lpBuffer, DWORD NumberOfBytesToWrite, LPDWORD lpNumberOfBytesWrite,
               LPOVERLAPPED lpOverlapped);
/// Always returns FALSE: no operation is ever pending.
BOOL GetOverlappedResult(HANDLE hFile, LPOVERLAPPED lpOverlapped, LPDWORD lpNumberOfBytesTransferred,
                         BOOL bWait);
DWORD GetFileSize(HANDLE hFile, LPDWORD lpFileSizeHigh);
BOOL GetFileSizeEx(HANDLE hFile, PLARGE_INTEGER lpFileSize);
DWORD SetFilePointer(HANDLE hFile, LONG lDistanceToMove, PLONG lpDistanceToMoveHigh, DWORD dwMoveMethod);
BOOL SetFilePointerEx(HANDLE hFile, LARGE_INTEGER liDistanceToMove, PLARGE_INTEGER lpNewFilePointer,
                      DWORD dwMoveMethod);

/// The thread's errno as a Windows error code. Success does not clear it.
DWORD GetLastError();
/// Stores the number in errno without conversion.
void SetLastError(DWORD dwErrCode);

BOOL DeleteFileA(LPCSTR lpFileName);
/// Creates one level with mode 0775; the second argument is ignored.
BOOL CreateDirectoryA(LPCSTR lpDirectoryName, LPSECURITY_ATTRIBUTES Mode);
/// Removes the folder and everything in it.
BOOL RemoveDirectoryA(LPCSTR lpPathName);
BOOL PathIsDirectoryA(LPCSTR pszPath);
DWORD GetFileAttributesA(LPCSTR lpFileName);
/// Always TRUE. `pszPath` must have room for the result.
BOOL PathAppendA(LPSTR pszPath, LPCSTR pszMore);
DWORD GetModuleFileNameA(HMODULE hModule, LPSTR lpFilename, DWORD nSize);
/// Returns 0, 22 for a NULL argument, or 5 if the file cannot be opened.
int fopen_s(FILE** pFile, const char* filename, const char* mode);
/// Reports the bytes of the file system that holds the parent of the folder.
BOOL GetDiskFreeSpaceEx(LPCSTR lpDirectoryName, PULARGE_INTEGER lpFreeBytesAvailableToCaller,
                        PULARGE_INTEGER lpTotalNumberOfBytes, PULARGE_INTEGER lpTotalNumberOfFreeBytes);
BOOL GetDiskFreeSpace(LPCSTR RootPathName, LPDWORD SectorsPerCluster, LPDWORD BytesPerSector,
                      LPDWORD FreeClusters, LPDWORD Clusters);
