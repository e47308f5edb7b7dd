#include "APPublisherMgr.h"

namespace {

/// Adjusts stackers 2 to 4 to the mode. Returns whether any of them changed.
bool FitStackers(PUBLISHERINFO& info)
{
    const PUBLISHERINFO before = info;
    const bool bBatch = info.uiPublishMode == PUBMGR_PUBLISHMODE_BATCH;
    switch (info.uiPublishMode) {
    case PUBMGR_PUBLISHMODE_NORMAL:
        info.uiStacker2DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
        break;
    case PUBMGR_PUBLISHMODE_BATCH:
    case PUBMGR_PUBLISHMODE_OUTPUT:
        info.uiStacker2DiscType = PUBMGR_STACKERDISCTYPE_INPUT;
        break;
    default:
        ASSERT(false);
    }
    if (bBatch && info.uiStacker3DiscType != PUBMGR_STACKERDISCTYPE_OUTPUT) {
        info.uiStacker3DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
        info.uiStacker4DiscType = PUBMGR_STACKERDISCTYPE_NOTUSE;
    }
    if (!bBatch && info.uiStacker3DiscType != PUBMGR_STACKERDISCTYPE_NOTUSE &&
        info.uiStacker3DiscType != PUBMGR_STACKERDISCTYPE_OUTPUT) {
        info.uiStacker3DiscType = PUBMGR_STACKERDISCTYPE_NOTUSE;
        info.uiStacker4DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
    }
    return info.uiStacker2DiscType != before.uiStacker2DiscType ||
           info.uiStacker3DiscType != before.uiStacker3DiscType ||
           info.uiStacker4DiscType != before.uiStacker4DiscType;
}

} // namespace

UINT CAPPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_AP;
}

bool CAPPublisherMgr::GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo, BOOL)
{
    ASSERT(szPublisherRegistID != nullptr);
    ASSERT(psPublisherInfo != nullptr);
    if (szPublisherRegistID[0] == '\0') {
        return false;
    }
    const CString strRegistID = szPublisherRegistID; // may point into the record
    psPublisherInfo->Clear();
    const SettingRecord record = FileOf(strRegistID.c_str()).Read();
    if (!record.Exists()) {
        return false;
    }
    ReadCommonSettings(record, strRegistID.c_str(), *psPublisherInfo);
    return true;
}

bool CAPPublisherMgr::UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo)
{
    return CBasicPublisherMgr::UpdatePublisherInfo(sPublisherInfo);
}

bool CAPPublisherMgr::UpdatePublishMode(LPCTSTR szPublisherRegistID, const PUBLISHERINFO* psPublisherInfo,
                                        bool bResetDefault, bool* pbSetDefault)
{
    if (szPublisherRegistID == nullptr) {
        return false;
    }
    ASSERT(psPublisherInfo != nullptr);
    if (pbSetDefault != nullptr) {
        *pbSetDefault = false;
    }
    WriteModeKeys(szPublisherRegistID, *psPublisherInfo);
    if (!bResetDefault) {
        return true;
    }

    PUBLISHERINFO cur;
    const bool bRead = GetPublisherInfo(szPublisherRegistID, &cur, FALSE);
    ASSERT(bRead);
    if (FitStackers(cur)) {
        const bool bUpdated = UpdatePublisherInfo(cur);
        ASSERT(bUpdated);
        if (pbSetDefault != nullptr) {
            *pbSetDefault = true;
        }
    }
    return true;
}

bool CAPPublisherMgr::GetPublisherVersionInfo(LPCTSTR szPublisherRegistID,
                                              PUBLISHERVERSIONINFO* psPublisherVersionInfo, long* pResultCode)
{
    ASSERT(psPublisherVersionInfo != nullptr);
    ST_PC_ALD_INFO ald{};
    ST_PC_PRT_INFO printer{};
    if (!QueryRecords(
            szPublisherRegistID,
            {{ARV_PC_GET_ALD_INFO, &ald, sizeof ald}, {ARV_PC_GET_PRT_INFO, &printer, sizeof printer}},
            pResultCode)) {
        return false;
    }
    SetCommonVersions(*psPublisherVersionInfo, szPublisherRegistID, ald, printer);
    return true;
}
