// Which implementation serves a publisher.
#include "PublisherMgr.h"

#include "300IIBDPublisherMgr.h"
#include "300IIDVDPublisherMgr.h"
#include "300IIIBDPublisherMgr.h"
#include "300IIIBDXLPublisherMgr.h"
#include "300IIIDVDPublisherMgr.h"
#include "300MODPublisherMgr.h"
#include "30BDAPublisherMgr.h"
#include "30BDPublisherMgr.h"
#include "30IIBDXLPublisherMgr.h"
#include "30IIPublisherMgr.h"
#include "APPublisherMgr.h"
#include "BasicPublisherMgr.h"
#include "DeviceKey.h"
#include "InstallPaths.h"
#include "NetworkPublisherMgr.h"
#include "ReadPass.h"
#include "RegUtility.h"
#include "SDPublisherMgr.h"
#include "SettingFile.h"
#include "Win_def_log.h"

CPublisherMgr::CPublisherMgr(bool) : m_strSettingFolder(PUBLISHER_SETTING_DIR)
{
    constexpr bool bPublisherIDMode = true;
    m_arrPublisherMgr.Add(new CBasicPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new CNetworkPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new CAPPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new CSDPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new C30BDPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new C300MODPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new C30BDAPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new C300IIDVDPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new C300IIBDPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new C30IIPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new C300IIIDVDPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new C300IIIBDPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new C300IIIBDXLPublisherMgr(bPublisherIDMode, m_strSettingFolder));
    m_arrPublisherMgr.Add(new C30IIBDXLPublisherMgr(bPublisherIDMode, m_strSettingFolder));
}

CPublisherMgr::~CPublisherMgr()
{
    for (IPublisherMgr* pPubMgr : m_arrPublisherMgr) {
        delete pPubMgr;
    }
}

IPublisherMgr* CPublisherMgr::GetPublisherMgrIFFromType(UINT uiPublisherDevType)
{
    for (IPublisherMgr* pPubMgr : m_arrPublisherMgr) {
        if (pPubMgr->GetPublisherMgrType() == uiPublisherDevType) {
            return pPubMgr;
        }
    }
    return nullptr;
}

IPublisherMgr* CPublisherMgr::GetPublisherMgrIFFromID(LPCTSTR szPublisherRegistID)
{
    if (szPublisherRegistID == nullptr || szPublisherRegistID[0] == '\0') {
        return nullptr;
    }
    return GetPublisherMgrIFFromType(GetPublisherDevType(szPublisherRegistID));
}

UINT CPublisherMgr::GetConnectType(LPCTSTR szPublisherRegistID)
{
    if (szPublisherRegistID == nullptr || szPublisherRegistID[0] == '\0') {
        return PUBMGR_CONNECTTYPE_LOCAL;
    }
    const SettingFile file(m_strSettingFolder, szPublisherRegistID);
    const SettingRecord record = file.Read();
    if (!record.Exists()) {
        if (GetLogLevel() >= 2) {
            logViaAgent(4, "CPublisherMgr::GetConnectType, \"%s\" is not found", file.Path().c_str());
        }
        return PUBMGR_CONNECTTYPE_LOCAL;
    }
    return record.ConnectType();
}

DWORD CPublisherMgr::GetLocalDeviceDPType(LPCTSTR szPublisherRegistID)
{
    constexpr DWORD dwUnknown = 0xFFFFFFFF;
    if (szPublisherRegistID == nullptr) {
        return dwUnknown;
    }
    const SettingRecord record = SettingFile(m_strSettingFolder, szPublisherRegistID).Read();
    if (!record.Exists()) {
        return 0;
    }
    DWORD dwDPType = dwUnknown;
    CRegUtility::GetRegDWORDData(HKEY_LOCAL_MACHINE, DeviceKey(record.String(REG_PUB_SETUP_VAL_GUID)).c_str(),
                                 REG_PUB_CTRL_DEVICETYPE, &dwDPType);
    return dwDPType;
}

UINT CPublisherMgr::GetPublisherDevType(LPCTSTR szPublisherRegistID)
{
    const ReadPass pass;
    const UINT uiConnectType = GetConnectType(szPublisherRegistID);
    if (uiConnectType == PUBMGR_CONNECTTYPE_NETWORK) {
        return PUBMGR_PUBLISHERTYPE_NETWORK;
    }
    if (uiConnectType != PUBMGR_CONNECTTYPE_LOCAL) {
        return PUBMGR_PUBLISHERTYPE_BASIC;
    }
    const DWORD dwDPType = GetLocalDeviceDPType(szPublisherRegistID);
    switch (dwDPType) {
    case REG_PUB_DEVICE_DPTYPE_AP:
        return PUBMGR_PUBLISHERTYPE_AP;
    case REG_PUB_DEVICE_DPTYPE_SD:
        return PUBMGR_PUBLISHERTYPE_SD;
    case REG_PUB_DEVICE_DPTYPE_30BD:
        return PUBMGR_PUBLISHERTYPE_30BD;
    case REG_PUB_DEVICE_DPTYPE_300MOD:
        return PUBMGR_PUBLISHERTYPE_300MOD;
    case REG_PUB_DEVICE_DPTYPE_30BDA:
        return PUBMGR_PUBLISHERTYPE_30BDA;
    case REG_PUB_DEVICE_DPTYPE_300II: // without a drive class the family stands for its Blu-ray model
        return PUBMGR_PUBLISHERTYPE_300II_BD;
    case REG_PUB_DEVICE_DPTYPE_30II:
        return PUBMGR_PUBLISHERTYPE_30II;
    case REG_PUB_DEVICE_DPTYPE_300III:
        return PUBMGR_PUBLISHERTYPE_300III_BD;
    case PUBMGR_PUBLISHERTYPE_300MOD:
    case PUBMGR_PUBLISHERTYPE_300II_DVD:
    case PUBMGR_PUBLISHERTYPE_300II_BD:
    case PUBMGR_PUBLISHERTYPE_300III_DVD:
    case PUBMGR_PUBLISHERTYPE_300III_BD:
    case PUBMGR_PUBLISHERTYPE_30II_BDXL:
    case PUBMGR_PUBLISHERTYPE_300III_BDXL:
        return dwDPType;
    default:
        return PUBMGR_PUBLISHERTYPE_BASIC;
    }
}

UINT CPublisherMgr::GetNPType(LPCTSTR lpszPublisherRegistID)
{
    ASSERT(lpszPublisherRegistID != nullptr);
    return SettingFile(m_strSettingFolder, lpszPublisherRegistID).Read().NPType();
}
