#include "RegUtility.h"

#include "WinFunc.h"

#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr long NO_OPEN_KEY = -1;

} // namespace

bool CRegUtility::m_bGetLoginUserSID = false;
CString CRegUtility::m_strLoginUserSID;

CRegUtility::~CRegUtility()
{
    CloseReg();
}

long CRegUtility::OpenReg(HKEY hRootKey, LPCTSTR lpszSubKey, BOOL bReadOnly, BOOL bCreate)
{
    if (hRootKey == nullptr || lpszSubKey == nullptr) {
        return ERROR_INVALID_PARAMETER;
    }
    CloseReg();

    std::unique_lock lock(RegistryMutex());
    const REGSAM access = Make64BitRegDesired(bReadOnly ? KEY_READ : KEY_ALL_ACCESS_64);
    HKEY key = nullptr;
    const long result =
        bCreate ? RegCreateKeyExA(hRootKey, lpszSubKey, 0, nullptr, 0, access, nullptr, &key, nullptr)
                : RegOpenKeyExA(hRootKey, lpszSubKey, 0, access, &key);
    if (result == ERROR_SUCCESS) {
        m_hRootKey = hRootKey;
        m_hCurrentKey = key;
        m_lock = std::move(lock);
    }
    return result;
}

long CRegUtility::CloseReg()
{
    if (m_hCurrentKey == nullptr) {
        return ERROR_SUCCESS;
    }
    const long result = RegCloseKey(m_hCurrentKey);
    if (result == ERROR_SUCCESS) {
        m_hRootKey = nullptr;
        m_hCurrentKey = nullptr;
        m_lock.unlock();
    }
    return result;
}

REGSAM CRegUtility::Make64BitRegDesired(REGSAM /*samDesired*/)
{
    return 0;
}

// ---------------------------------------------------------------------------------------------------------------------
// Sub keys

long CRegUtility::CreateRegKey(LPCTSTR lpszKeyName)
{
    if (m_hCurrentKey == nullptr) {
        return NO_OPEN_KEY;
    }
    if (lpszKeyName == nullptr) {
        return ERROR_SUCCESS;
    }
    HKEY key = nullptr;
    const long result = RegCreateKeyExA(m_hCurrentKey, lpszKeyName, 0, nullptr, 0,
                                        Make64BitRegDesired(KEY_ALL_ACCESS_64), nullptr, &key, nullptr);
    return result == ERROR_SUCCESS ? RegCloseKey(key) : result;
}

long CRegUtility::DeleteRegKey(LPCTSTR lpszKeyName)
{
    if (m_hCurrentKey == nullptr) {
        return NO_OPEN_KEY;
    }
    return lpszKeyName == nullptr ? ERROR_SUCCESS : DeleteKey(m_hCurrentKey, lpszKeyName);
}

long CRegUtility::DeleteKey(HKEY hKey, LPCTSTR lpszKeyName)
{
    HKEY key = nullptr;
    const long result = RegOpenKeyExA(hKey, lpszKeyName, 0, Make64BitRegDesired(KEY_ALL_ACCESS_64), &key);
    if (result != ERROR_SUCCESS) {
        return result;
    }
    DWORD count = 0;
    DWORD longest = 0;
    RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &count, &longest, nullptr, nullptr, nullptr, nullptr,
                     nullptr, nullptr);

    // Collect all names first: the recursion opens keys below, and opening a key may add to the list.
    std::vector<std::string> names;
    std::vector<char> name(size_t{longest} + 1);
    for (DWORD index = 0; index < count; ++index) {
        auto size = static_cast<DWORD>(name.size());
        // The count includes keys at any depth, but the enumeration lists direct children only, so it may end
        // early.
        if (RegEnumKeyExA(key, index, name.data(), &size, nullptr, nullptr, nullptr, nullptr) ==
            ERROR_SUCCESS) {
            names.emplace_back(name.data());
        }
    }
    for (const std::string& child : names) {
        DeleteKey(key, child.c_str());
    }
    RegCloseKey(key);
    return RegDeleteKeyA(hKey, lpszKeyName);
}

long CRegUtility::GetLongestKeyNameLen(DWORD* pdwLength)
{
    if (pdwLength == nullptr) {
        return ERROR_INVALID_PARAMETER;
    }
    if (m_hCurrentKey == nullptr) {
        return NO_OPEN_KEY;
    }
    DWORD longest = 0;
    const long result = RegQueryInfoKeyA(m_hCurrentKey, nullptr, nullptr, nullptr, nullptr, &longest, nullptr,
                                         nullptr, nullptr, nullptr, nullptr, nullptr);
    *pdwLength = longest + 1;
    return result;
}

long CRegUtility::EnumRegKey(DWORD dwIndex, LPTSTR lpszBuffer, DWORD* pdwSize)
{
    if (GetLogLevel() > 3) {
        logViaAgent(7, "CRegUtility::EnumRegKey(%u,,)", dwIndex);
    }
    if (m_hCurrentKey == nullptr) {
        return NO_OPEN_KEY;
    }
    if (pdwSize == nullptr) {
        return ERROR_SUCCESS;
    }
    DWORD count = 0;
    long lResult = GetLongestKeyNameLen(&count);
    if (lResult != ERROR_SUCCESS) {
        return lResult;
    }
    std::vector<char> name(count);
    lResult = RegEnumKeyExA(m_hCurrentKey, dwIndex, name.data(), &count, nullptr, nullptr, nullptr, nullptr);
    ASSERT(lResult != ERROR_MORE_DATA);
    if (lResult != ERROR_SUCCESS) {
        return lResult;
    }
    // The enumeration does not change the count, so this is the size for the longest name, not for this one.
    const DWORD needed = count + 1;
    if (*pdwSize < needed) {
        lResult = ERROR_MORE_DATA;
    } else {
        strcpy_s(lpszBuffer, *pdwSize, name.data());
    }
    *pdwSize = needed;
    return lResult;
}

// ---------------------------------------------------------------------------------------------------------------------
// Values

long CRegUtility::GetLongestValueNameLen(DWORD* pdwLength)
{
    if (pdwLength == nullptr) {
        return ERROR_INVALID_PARAMETER;
    }
    if (m_hCurrentKey == nullptr) {
        return NO_OPEN_KEY;
    }
    return RegQueryInfoKeyA(m_hCurrentKey, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                            pdwLength, nullptr, nullptr, nullptr);
}

long CRegUtility::EnumRegValueName(DWORD dwIndex, LPTSTR lpszBuffer, DWORD* pdwSize)
{
    if (m_hCurrentKey == nullptr) {
        return NO_OPEN_KEY;
    }
    return RegEnumValueA(m_hCurrentKey, dwIndex, lpszBuffer, pdwSize, nullptr, nullptr, nullptr, nullptr);
}

long CRegUtility::GetRegNumValue(LPCTSTR lpszValueName, DWORD* pdwValue)
{
    if (m_hCurrentKey == nullptr) {
        return NO_OPEN_KEY;
    }
    if (lpszValueName == nullptr || pdwValue == nullptr) {
        return ERROR_SUCCESS;
    }
    BYTE data[10] = {};
    DWORD size = sizeof data;
    DWORD type = 0;
    const long result = RegQueryValueExA(m_hCurrentKey, lpszValueName, nullptr, &type, data, &size);
    if (result != ERROR_SUCCESS) {
        return result;
    }
    if (type != REG_DWORD) {
        return ERROR_BAD_FORMAT;
    }
    std::memcpy(pdwValue, data, sizeof *pdwValue);
    return ERROR_SUCCESS;
}

/// Queries type and size first, then the data. With result 0 or 234, `*pdwSize` is set to the size needed.
long CRegUtility::GetRegValue(LPCTSTR lpszValueName, DWORD dwType, BYTE* pbyBuffer, DWORD* pdwSize)
{
    if (m_hCurrentKey == nullptr) {
        return NO_OPEN_KEY;
    }
    if (lpszValueName == nullptr || pdwSize == nullptr) {
        return ERROR_SUCCESS;
    }
    DWORD type = 0;
    DWORD needed = 0;
    long result = RegQueryValueExA(m_hCurrentKey, lpszValueName, nullptr, &type, nullptr, &needed);
    if (result != ERROR_SUCCESS) {
        return result;
    }
    if (type != dwType) {
        return ERROR_BAD_FORMAT;
    }
    if (pbyBuffer == nullptr || *pdwSize < needed) {
        *pdwSize = needed;
        return ERROR_MORE_DATA;
    }
    result = RegQueryValueExA(m_hCurrentKey, lpszValueName, nullptr, &type, pbyBuffer, &needed);
    *pdwSize = needed;
    return result;
}

long CRegUtility::GetRegStrValue(LPCTSTR lpszValueName, LPTSTR lpszBuffer, DWORD* pdwSize)
{
    return GetRegValue(lpszValueName, REG_SZ, reinterpret_cast<BYTE*>(lpszBuffer), pdwSize);
}

long CRegUtility::GetRegStrValue(LPCTSTR lpszValueName, CString& strValue)
{
    DWORD size = 0;
    long result = GetRegStrValue(lpszValueName, nullptr, &size);
    if (result == ERROR_MORE_DATA) {
        result = GetRegStrValue(lpszValueName, strValue.GetBuffer(static_cast<int>(size)), &size);
        strValue.ReleaseBuffer();
    }
    return result;
}

long CRegUtility::GetRegBinValue(LPCTSTR lpszValueName, BYTE* pbyBuffer, DWORD* pdwSize)
{
    return GetRegValue(lpszValueName, REG_BINARY, pbyBuffer, pdwSize);
}

long CRegUtility::SetRegValue(LPCTSTR lpszValueName, DWORD dwType, const void* pData, DWORD dwSize)
{
    if (m_hCurrentKey == nullptr) {
        return NO_OPEN_KEY;
    }
    if (lpszValueName == nullptr || pData == nullptr) {
        return ERROR_SUCCESS;
    }
    return RegSetValueExA(m_hCurrentKey, lpszValueName, 0, dwType, static_cast<const BYTE*>(pData), dwSize);
}

long CRegUtility::SetRegNumValue(LPCTSTR lpszValueName, DWORD dwValue)
{
    return SetRegValue(lpszValueName, REG_DWORD, &dwValue, sizeof dwValue);
}

long CRegUtility::SetRegStrValue(LPCTSTR lpszValueName, LPCTSTR lpszValue, long lSize)
{
    if (lSize == -1 && lpszValue != nullptr) {
        lSize = static_cast<long>(std::strlen(lpszValue)) + 1;
    }
    return SetRegValue(lpszValueName, REG_SZ, lpszValue, static_cast<DWORD>(lSize));
}

long CRegUtility::SetRegBinValue(LPCTSTR lpszValueName, const BYTE* pbyData, DWORD dwSize)
{
    return SetRegValue(lpszValueName, REG_BINARY, pbyData, dwSize);
}

long CRegUtility::DeleteRegValue(LPCTSTR lpszValueName)
{
    if (m_hCurrentKey == nullptr) {
        return NO_OPEN_KEY;
    }
    if (lpszValueName == nullptr) {
        return ERROR_SUCCESS;
    }
    if (lpszValueName[0] == '\0') { // means all values, which the registry cannot count
        DWORD values = 0;
        return RegQueryInfoKeyA(m_hCurrentKey, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &values,
                                nullptr, nullptr, nullptr, nullptr);
    }
    return RegDeleteValueA(m_hCurrentKey, lpszValueName);
}

// ---------------------------------------------------------------------------------------------------------------------
// One-call operations

bool CRegUtility::GetRegDWORDData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, DWORD* pdwValue)
{
    if (hRootKey == nullptr || lpszSubKey == nullptr || lpszValueName == nullptr || pdwValue == nullptr) {
        ASSERT(0);
    }
    CRegUtility reg;
    return reg.OpenReg(hRootKey, lpszSubKey, TRUE, FALSE) == ERROR_SUCCESS &&
           reg.GetRegNumValue(lpszValueName, pdwValue) == ERROR_SUCCESS;
}

bool CRegUtility::GetRegStrData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, CString* pstrValue)
{
    if (hRootKey == nullptr || lpszSubKey == nullptr || lpszValueName == nullptr || pstrValue == nullptr) {
        ASSERT(0);
    }
    pstrValue->clear();
    CRegUtility reg;
    return reg.OpenReg(hRootKey, lpszSubKey, TRUE, FALSE) == ERROR_SUCCESS &&
           reg.GetRegStrValue(lpszValueName, *pstrValue) == ERROR_SUCCESS;
}

bool CRegUtility::SetRegDWORDData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, DWORD dwValue)
{
    if (hRootKey == nullptr || lpszSubKey == nullptr || lpszValueName == nullptr) {
        return false;
    }
    CRegUtility reg;
    if (reg.OpenReg(hRootKey, lpszSubKey, FALSE, TRUE) != ERROR_SUCCESS) {
        return false;
    }
    if (reg.SetRegNumValue(lpszValueName, dwValue) != ERROR_SUCCESS) {
        ASSERT(0);
    }
    return true;
}

bool CRegUtility::SetRegStrData(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName, LPCTSTR lpszValue)
{
    if (hRootKey == nullptr || lpszSubKey == nullptr || lpszValueName == nullptr || lpszValue == nullptr) {
        ASSERT(0);
    }
    CRegUtility reg;
    if (reg.OpenReg(hRootKey, lpszSubKey, FALSE, TRUE) != ERROR_SUCCESS ||
        reg.SetRegStrValue(lpszValueName, lpszValue, -1) != ERROR_SUCCESS) {
        ASSERT(0);
    }
    return true;
}

bool CRegUtility::DeleteRegEntry(HKEY hRootKey, LPCTSTR lpszSubKey, LPCTSTR lpszValueName)
{
    CRegUtility reg;
    if (reg.OpenReg(hRootKey, lpszSubKey, FALSE, FALSE) == ERROR_SUCCESS) {
        const long lResult = reg.DeleteRegValue(lpszValueName);
        ASSERT(lResult == ERROR_SUCCESS || lResult == ERROR_FILE_NOT_FOUND);
    }
    return true;
}

int CRegUtility::EnumRegistryKey(HKEY hRootKey, LPCTSTR lpszSubKey, CStringArray* psarrNames)
{
    ASSERT(hRootKey != nullptr);
    ASSERT(lpszSubKey != nullptr);
    if (psarrNames != nullptr) {
        psarrNames->RemoveAll();
    }
    CRegUtility reg;
    DWORD longest = 0;
    if (reg.OpenReg(hRootKey, lpszSubKey, TRUE, FALSE) != ERROR_SUCCESS ||
        reg.GetLongestKeyNameLen(&longest) != ERROR_SUCCESS) {
        return 0;
    }
    std::vector<char> name(size_t{longest} + 1);
    int count = 0;
    while (true) {
        auto size = static_cast<DWORD>(name.size());
        long lResult = reg.EnumRegKey(static_cast<DWORD>(count), name.data(), &size);
        if (lResult == ERROR_MORE_DATA) {
            name.resize(size_t{size} * 2 + 2);
            size = static_cast<DWORD>(name.size());
            lResult = reg.EnumRegKey(static_cast<DWORD>(count), name.data(), &size);
        }
        if (lResult == ERROR_NO_MORE_ITEMS) {
            return count;
        }
        ASSERT(lResult == ERROR_SUCCESS);
        if (psarrNames != nullptr) {
            psarrNames->Add(name.data());
        }
        ++count;
    }
}
