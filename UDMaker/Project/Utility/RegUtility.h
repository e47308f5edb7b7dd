// A convenient interface to the registry: an object holds one open key, and one-call operations open a key,
// read or write, and close it.
#pragma once

#include "Win_def_MFC.h"

#include <mutex>

/// Holds one open key and, from OpenReg to CloseReg, the lock of the whole registry: opening any key reads
/// the file again, which would revert values that another thread has set but not yet written. Close a key in
/// the thread that opened it, and after a short time. One thread may have several keys open at once.
///
/// Operations of type `long` return 0 or: -1 no key is open, 2 not found, 5 denied, 6 bad handle, 11 the
/// value is of another type, 12 the file cannot be edited, 87 bad argument, 234 the buffer is too small, 259
/// end of the enumeration. A NULL argument without a code of its own returns 0 and does nothing.
class CRegUtility
{
public:
    CRegUtility() = default;
    virtual ~CRegUtility();
    CRegUtility(const CRegUtility&) = delete;
    CRegUtility& operator=(const CRegUtility&) = delete;

    /// Closes the open key first. Without `bCreate` the key must exist.
    long OpenReg(HKEY hRootKey, LPCTSTR lpszSubKey, BOOL bReadOnly, BOOL bCreate);
    /// Returns 0 if no key is open. Writes the file if a value was set or the key was created.
    long CloseReg();

    long CreateRegKey(LPCTSTR lpszKeyName);
    /// Removes the sub key and everything below it.
    long DeleteRegKey(LPCTSTR lpszKeyName);
    /// The length of the longest sub key name in bytes, including the NUL.
    long GetLongestKeyNameLen(DWORD* pdwLength);
    /// Stops the process: the registry does not count values.
    long GetLongestValueNameLen(DWORD* pdwLength);
    /// `*pdwSize`: in, the size of the buffer in bytes; out, the size that fits every name of this key.
    long EnumRegKey(DWORD dwIndex, LPTSTR lpszBuffer, DWORD* pdwSize);
    /// Stops the process: the registry does not enumerate values.
    long EnumRegValueName(DWORD dwIndex, LPTSTR lpszBuffer, DWORD* pdwSize);

    long GetRegNumValue(LPCTSTR lpszValueName, DWORD* pdwValue);
    /// `*pdwSize`: in, the size of the buffer in bytes; out, the size needed, including the NUL. A NULL
    /// buffer gives 234 and the size.
    long GetRegStrValue(LPCTSTR lpszValueName, LPTSTR lpszBuffer, DWORD* pdwSize);
    long GetRegStrValue(LPCTSTR lpszValueName, CString& strValue);
    /// The registry holds no binary values: returns 2 or 11.
    long GetRegBinValue(LPCTSTR lpszValueName, BYTE* pbyBuffer, DWORD* pdwSize);
    long SetRegNumValue(LPCTSTR lpszValueName, DWORD dwValue);
    /// `lSize` counts the NUL; -1 means length plus 1.
    long SetRegStrValue(LPCTSTR lpszValueName, LPCTSTR lpszValue, long lSize);
    /// Returns 0 and stores nothing.
    long SetRegBinValue(LPCTSTR lpszValueName, const BYTE* pbyData, DWORD dwSize);
    /// An empty name stops the process: the registry does not count values.
    long DeleteRegValue(LPCTSTR lpszValueName);

    /// Returns 0: the registry ignores access masks.
    static REGSAM Make64BitRegDesired(REGSAM samDesired);

    // One-call operations. A NULL argument stops the process unless documented otherwise.

    /// True if the value was read. On failure `*pdwValue` stays unchanged: callers preset the default.
    static bool GetRegDWORDData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, DWORD* pdwValue);
    /// True if the value was read. On failure `*pstrValue` is empty.
    static bool GetRegStrData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, CString* pstrValue);
    /// Creates a missing key. False for a NULL argument, or if the key cannot be opened.
    static bool SetRegDWORDData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, DWORD dwValue);
    /// Creates a missing key. A key that cannot be opened stops the process.
    static bool SetRegStrData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, LPCTSTR lpszValue);
    /// Removes a value. Always true, even if the key or the value is missing.
    static bool DeleteRegEntry(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
    /// Replaces the contents of `*psarrNames` with the names of the sub keys; NULL only counts them. Returns
    /// their number.
    static int EnumRegistryKey(HKEY hRootKey, LPCTSTR lpszSubKey, CStringArray* psarrNames);

    static bool m_bGetLoginUserSID;
    static CString m_strLoginUserSID;

private:
    static long DeleteKey(HKEY hKey, LPCTSTR lpszKeyName);
    long GetRegValue(LPCTSTR lpszValueName, DWORD dwType, BYTE* pbyBuffer, DWORD* pdwSize);
    long SetRegValue(LPCTSTR lpszValueName, DWORD dwType, const void* pData, DWORD dwSize);

    HKEY m_hRootKey = nullptr;
    HKEY m_hCurrentKey = nullptr;
    std::unique_lock<std::recursive_mutex> m_lock; // held while a key is open
};
