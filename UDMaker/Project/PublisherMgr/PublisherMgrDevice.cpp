// The devices that the control service records in the registry, and the options stored there.
#include "PublisherMgr.h"

#include "DeviceKey.h"
#include "RegUtility.h"
#include "Win_def_log.h"

#include <algorithm>
#include <vector>

namespace {

bool IsConnected(const std::string& strGUID)
{
    DWORD dwConnected = 0;
    return CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, DeviceKey(strGUID).c_str(),
                                        REG_PUB_CTRL_VAL_CONNECTED, &dwConnected) &&
           dwConnected == ARV_PC_CONNECTED;
}

bool ReadOption(LPCTSTR szName, UINT* puiValue)
{
    return CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, REG_PUB_KEY_ROOT, szName, puiValue);
}

bool WriteOption(LPCTSTR szName, UINT uiValue)
{
    return CRegUtility::SetRegDWORDData(HKEY_LOCAL_MACHINE, REG_PUB_KEY_ROOT, szName, uiValue);
}

} // namespace

int CPublisherMgr::EnumConnectedPublisher(CStringArray* psarrGUIDList)
{
    return CRegUtility::EnumRegistryKey(HKEY_LOCAL_MACHINE, REG_PUB_DEVICE_KEY_ROOT, psarrGUIDList);
}

bool CPublisherMgr::IsExistConnectedPublisher(LPCTSTR lpszGUID)
{
    if (GetLogLevel() >= 4) {
        logViaAgent(7, "CPublisherMgr::IsExistConnectedPublisher(\"%s\")",
                    lpszGUID != nullptr ? lpszGUID : "(null)");
    }
    if (lpszGUID == nullptr) {
        return IsExistRegistryKey(HKEY_LOCAL_MACHINE, REG_PUB_DEVICE_KEY_ROOT);
    }
    return IsConnected(lpszGUID);
}

bool CPublisherMgr::IsExistRegistryKey(HKEY hRoot, LPCTSTR pszRootKey)
{
    ASSERT(hRoot != nullptr);
    ASSERT(pszRootKey != nullptr);
    CRegUtility key;
    DWORD dwLength = 0;
    if (key.OpenReg(hRoot, pszRootKey, TRUE, FALSE) != ERROR_SUCCESS ||
        key.GetLongestKeyNameLen(&dwLength) != ERROR_SUCCESS) {
        return false;
    }
    DWORD dwSize = dwLength * 2 + 1;
    std::vector<char> buffer(dwSize);
    long lResult = key.EnumRegKey(0, buffer.data(), &dwSize);
    if (lResult == ERROR_MORE_DATA) {
        dwSize = dwSize * 2 + 2;
        buffer.resize(dwSize);
        lResult = key.EnumRegKey(0, buffer.data(), &dwSize);
    }
    return lResult == ERROR_SUCCESS;
}

int CPublisherMgr::IsSuperSpeedUSB(LPCTSTR lpszGUID)
{
    DWORD dwMode = 0;
    if (lpszGUID != nullptr && IsConnected(lpszGUID)) {
        CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, DeviceKey(lpszGUID).c_str(), REG_PUB_CTRL_USB_MODE,
                                     &dwMode);
    }
    return static_cast<int>(dwMode);
}

void CPublisherMgr::ClearUnusedGUID()
{
    CStringArray arrGUIDs;
    CStringArray arrIDs;
    EnumConnectedPublisher(&arrGUIDs);
    EnumRegistedPublisher(&arrIDs);
    std::vector<CString> used;
    for (const CString& strID : arrIDs) {
        used.push_back(GetPublisherGUID(strID.c_str()));
    }
    for (const CString& strGUID : arrGUIDs) {
        const bool bUsed = std::any_of(used.begin(), used.end(), [&strGUID](const CString& strUsed) {
            return strUsed.CompareNoCase(strGUID.c_str()) == 0;
        });
        if (bUsed || IsConnected(strGUID)) {
            continue;
        }
        CRegUtility key;
        if (key.OpenReg(HKEY_LOCAL_MACHINE, REG_PUB_DEVICE_KEY_ROOT, FALSE, FALSE) == ERROR_SUCCESS) {
            key.DeleteRegKey(strGUID.c_str());
        }
    }
}

bool CPublisherMgr::GetThresholdOfC1Error(UINT* puiValue)
{
    return ReadOption(REG_PUB_OPTION_VAL_C1ERROR, puiValue);
}

bool CPublisherMgr::SetThresholdOfC1Error(UINT uiValue)
{
    return WriteOption(REG_PUB_OPTION_VAL_C1ERROR, uiValue);
}

bool CPublisherMgr::GetThresholdOfPIEsum8(UINT* puiValue)
{
    return ReadOption(REG_PUB_OPTION_VAL_PIEsum8, puiValue);
}

bool CPublisherMgr::SetThresholdOfPIEsum8(UINT uiValue)
{
    return WriteOption(REG_PUB_OPTION_VAL_PIEsum8, uiValue);
}

bool CPublisherMgr::GetThresholdOfRSER(UINT* puiValue)
{
    return ReadOption(REG_PUB_OPTION_VAL_RSER, puiValue);
}

bool CPublisherMgr::SetThresholdOfRSER(UINT uiValue)
{
    return WriteOption(REG_PUB_OPTION_VAL_RSER, uiValue);
}

bool CPublisherMgr::GetThresholdOfBurstError(UINT* puiValue)
{
    return ReadOption(REG_PUB_OPTION_VAL_BURSTERROR, puiValue);
}

bool CPublisherMgr::SetThresholdOfBurstError(UINT uiValue)
{
    return WriteOption(REG_PUB_OPTION_VAL_BURSTERROR, uiValue);
}

bool CPublisherMgr::GetMeasurementContinueCount(UINT* puiValue)
{
    return ReadOption(REG_PUB_OPTION_VAL_ERRORRATECONTINUECOUNT, puiValue);
}

bool CPublisherMgr::SetMeasurementContinueCount(UINT uiValue)
{
    return WriteOption(REG_PUB_OPTION_VAL_ERRORRATECONTINUECOUNT, uiValue);
}

bool CPublisherMgr::GetErrorRateLogFolderPath(CString* pstrPath)
{
    ASSERT(pstrPath != nullptr);
    CString strPath;
    if (!CRegUtility::GetRegStrData(HKEY_LOCAL_MACHINE, REG_PUB_KEY_ROOT,
                                    REG_PUB_OPTION_VAL_ERRORRATELOGFOLDER, &strPath)) {
        return false;
    }
    *pstrPath = strPath;
    return true;
}

bool CPublisherMgr::SetErrorRateLogFolderPath(CString strPath)
{
    // Not SetRegStrData, which stops the process if the key cannot be opened.
    CRegUtility key;
    return key.OpenReg(HKEY_LOCAL_MACHINE, REG_PUB_KEY_ROOT, FALSE, TRUE) == ERROR_SUCCESS &&
           key.SetRegStrValue(REG_PUB_OPTION_VAL_ERRORRATELOGFOLDER, strPath.c_str(), -1) == ERROR_SUCCESS;
}
