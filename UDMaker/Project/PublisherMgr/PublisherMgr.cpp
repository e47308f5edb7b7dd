// Selects the implementation that serves a publisher.
#include "PublisherMgr.h"

#include "DeviceKey.h"
#include "InstallPaths.h"
#include "ModelTable.h"
#include "ReadPass.h"
#include "RegUtility.h"
#include "SettingFile.h"
#include "Win_def_log.h"

#include <algorithm>
#include <memory>
#include <vector>

CPublisherMgr::CPublisherMgr(bool) : m_strSettingFolder(PUBLISHER_SETTING_DIR)
{
    constexpr bool bPublisherIDMode = true;
    // Without memory for one of them, the destructor does not run: the others are owned here until all exist.
    std::vector<std::unique_ptr<IPublisherMgr>> managers;
    for (const PublisherModel& model : PublisherModels()) {
        managers.push_back(model.pCreate(bPublisherIDMode, m_strSettingFolder));
    }
    m_arrPublisherMgr.resize(managers.size());
    std::transform(managers.begin(), managers.end(), m_arrPublisherMgr.begin(),
                   [](std::unique_ptr<IPublisherMgr>& mgr) { return mgr.release(); });
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
    const PublisherModel* pModel = FindModelOfDevice(GetLocalDeviceDPType(szPublisherRegistID));
    return pModel != nullptr ? pModel->uiType : UINT{PUBMGR_PUBLISHERTYPE_BASIC};
}

UINT CPublisherMgr::GetNPType(LPCTSTR lpszPublisherRegistID)
{
    ASSERT(lpszPublisherRegistID != nullptr);
    return SettingFile(m_strSettingFolder, lpszPublisherRegistID).Read().NPType();
}
