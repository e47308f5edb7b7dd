// The convenient face of the registry: one object holds one open key, and one-call operations open, read or
// write, and close.
#pragma once

#include "Win_def_MFC.h"

#include <mutex>

/// Holds one open key, and with it the lock of the whole registry from OpenReg to CloseReg: opening any key
/// reads the file anew, and would take back values that another thread has set and not yet written. So a key
/// is closed by the thread that opened it, and stays open for a moment only; several keys may be open at once
/// in one thread.
///
/// Operations that yield `long` give 0, or: -1 no key is open, 2 not found, 5 denied, 6 bad handle, 11 the
/// value is of another type, 12 the file cannot be edited, 87 bad argument, 234 the buffer is too small, 259
/// end of the enumeration. A NULL argument without a code of its own gives 0 and does nothing.
class CRegUtility
{
public:
    CRegUtility() = default;
    virtual ~CRegUtility();
    CRegUtility(const CRegUtility&) = delete;
    CRegUtility& operator=(const CRegUtility&) = delete;

    /// Closes the open key first. Without `bCreate` the key must exist.
    long OpenReg(HKEY hRootKey, LPCTSTR lpszSubKey, BOOL bReadOnly, BOOL bCreate);
    /// 0 with no open key. Writes the file when a value was set or the key was created.
    long CloseReg();

    long CreateRegKey(LPCTSTR lpszKeyName);
    /// Removes the sub key with all below it.
    long DeleteRegKey(LPCTSTR lpszKeyName);
    /// The longest name of a sub key in bytes, with room for its NUL.
    long GetLongestKeyNameLen(DWORD* pdwLength);
    /// Stops the process: the registry does not count values.
    long GetLongestValueNameLen(DWORD* pdwLength);
    /// `*pdwSize`: bytes of the buffer, then the bytes that fit every name of this key.
    long EnumRegKey(DWORD dwIndex, LPTSTR lpszBuffer, DWORD* pdwSize);
    /// Stops the process: the registry does not enumerate values.
    long EnumRegValueName(DWORD dwIndex, LPTSTR lpszBuffer, DWORD* pdwSize);

    long GetRegNumValue(LPCTSTR lpszValueName, DWORD* pdwValue);
    /// `*pdwSize`: bytes of the buffer, then the bytes needed with the NUL. A NULL buffer gives 234 and the
    /// size.
    long GetRegStrValue(LPCTSTR lpszValueName, LPTSTR lpszBuffer, DWORD* pdwSize);
    long GetRegStrValue(LPCTSTR lpszValueName, CString& strValue);
    /// The registry holds no binary values: 2 or 11.
    long GetRegBinValue(LPCTSTR lpszValueName, BYTE* pbyBuffer, DWORD* pdwSize);
    long SetRegNumValue(LPCTSTR lpszValueName, DWORD dwValue);
    /// `lSize` counts the NUL; -1 means length plus 1.
    long SetRegStrValue(LPCTSTR lpszValueName, LPCTSTR lpszValue, long lSize);
    /// 0, and nothing is stored.
    long SetRegBinValue(LPCTSTR lpszValueName, const BYTE* pbyData, DWORD dwSize);
    /// Of an empty name stops the process: the registry does not count values.
    long DeleteRegValue(LPCTSTR lpszValueName);

    /// 0: the registry ignores access masks.
    static REGSAM Make64BitRegDesired(REGSAM samDesired);

    // One-call operations. A NULL argument stops the process unless told otherwise.

    /// True when the value was read. `*pdwValue` stays untouched on failure: callers preset the default.
    static bool GetRegDWORDData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, DWORD* pdwValue);
    /// True when the value was read. `*pstrValue` is empty on failure.
    static bool GetRegStrData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, CString* pstrValue);
    /// Makes the key when it is not there. False for a NULL argument and when the key cannot be opened.
    static bool SetRegDWORDData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, DWORD dwValue);
    /// Makes the key when it is not there. A key that cannot be opened stops the process.
    static bool SetRegStrData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, LPCTSTR lpszValue);
    /// Removes a value. True, also when key or value is not there.
    static bool DeleteRegEntry(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
    /// The names of the sub keys, into an array that is emptied first; NULL to count them only. Their number.
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
