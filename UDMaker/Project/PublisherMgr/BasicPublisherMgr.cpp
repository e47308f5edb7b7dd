#include "BasicPublisherMgr.h"

#include "DeviceKey.h"
#include "ModelTable.h"
#include "RegUtility.h"
#include "Win_def_log.h"

#include <utility>

namespace {

/// The retry count that the service applies in the record's mode.
UINT RetryCountInForce(const PUBLISHERINFO& sPublisherInfo)
{
    if (sPublisherInfo.uiPublishMode != PUBMGR_PUBLISHMODE_READ) {
        return sPublisherInfo.uiRetryCountW;
    }
    return sPublisherInfo.bContinuePublish ? UINT{PUBMGR_DEFAULT_RETRYCOUNT_READ}
                                           : sPublisherInfo.uiRetryCountR;
}

template <class T>
void Assign(T& field, std::type_identity_t<T> value, bool& bChanged)
{
    if (field != value) {
        field = value;
        bChanged = true;
    }
}

} // namespace

CBasicPublisherMgr::CBasicPublisherMgr(bool bPublisherIDMode, CString strPath)
    : m_bConnectPublisherIDMode(bPublisherIDMode), m_strSettingFolder(std::move(strPath))
{
    m_olAnsync.hEvent = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    ASSERT(m_olAnsync.hEvent != nullptr);
}

CBasicPublisherMgr::~CBasicPublisherMgr()
{
    if (m_hPipeConnection != nullptr) {
        CloseHandle(m_hPipeConnection);
    }
    CloseHandle(m_olAnsync.hEvent);
}

UINT CBasicPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_BASIC;
}

SettingFile CBasicPublisherMgr::FileOf(LPCTSTR szPublisherRegistID) const
{
    return SettingFile(m_strSettingFolder, szPublisherRegistID);
}

bool CBasicPublisherMgr::GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo, BOOL)
{
    ASSERT(szPublisherRegistID != nullptr);
    ASSERT(psPublisherInfo != nullptr);
    if (szPublisherRegistID[0] == '\0') {
        return false;
    }
    const CString strRegistID = szPublisherRegistID; // may point into the record
    psPublisherInfo->Clear();
    const SettingFile file = FileOf(strRegistID.c_str());
    const SettingRecord record = file.Read();
    if (!record.Exists()) {
        if (GetLogLevel() >= 2) {
            logViaAgent(4, "CBasicPublisherMgr::GetPublisherInfo, \"%s\" is not found", file.Path().c_str());
        }
        return false;
    }
    PUBLISHERINFO& info = *psPublisherInfo;
    ReadCommonSettings(record, strRegistID.c_str(), info);
    info.uiUseDrive = record.Int(REG_PUB_SETUP_VAL_USEDRIVE, REG_PUB_SETUP_INT_DEFAULT);
    info.uiRetryCount = record.Int(REG_PUB_SETUP_VAL_RETRYCOUNT, REG_PUB_SETUP_INT_DEFAULT);
    info.uiRetryCountR = record.Int(REG_PUB_SETUP_VAL_RETRYCOUNT_R, PUBMGR_DEFAULT_RETRYCOUNT);
    info.uiRetryCountW = record.Int(REG_PUB_SETUP_VAL_RETRYCOUNT_W, PUBMGR_DEFAULT_RETRYCOUNT);
    info.bContinuePublish = record.Int(REG_PUB_SETUP_VAL_READBACKCONTINUE, 1) != 0;
    info.bAddErrorMark = record.Int(REG_PUB_SETUP_VAL_ERRORMARK, REG_PUB_SETUP_INT_DEFAULT) != 0;
    return true;
}

void CBasicPublisherMgr::ReadCommonSettings(const SettingRecord& record, LPCTSTR szPublisherRegistID,
                                            PUBLISHERINFO& info)
{
    info.uiPublisherType = PUBMGR_CONNECTTYPE_LOCAL;
    info.strPublisherRegistID = szPublisherRegistID;
    info.strGUID = record.String(REG_PUB_SETUP_VAL_GUID);
    info.strPublisherName = record.String(REG_PUB_SETUP_VAL_PUBLISH_NAME);
    info.uiPublishMode = record.Int(REG_PUB_SETUP_VAL_PUBLISH_MODE, REG_PUB_SETUP_INT_DEFAULT);
    info.uiStacker1DiscType = record.Int(REG_PUB_SETUP_VAL_STK1, REG_PUB_SETUP_INT_DEFAULT);
    info.uiStacker2DiscType = record.Int(REG_PUB_SETUP_VAL_STK2, REG_PUB_SETUP_INT_DEFAULT);
    info.uiStacker3DiscType = record.Int(REG_PUB_SETUP_VAL_STK3, REG_PUB_SETUP_INT_DEFAULT);
    info.uiStacker4DiscType = record.Int(REG_PUB_SETUP_VAL_STK4, REG_PUB_SETUP_INT_DEFAULT);
    info.strPrinterName = record.String(REG_PUB_SETUP_VAL_PRINTER_NAME);
}

bool CBasicPublisherMgr::UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo)
{
    ASSERT(!sPublisherInfo.strPublisherRegistID.empty());
    SettingLines lines;
    lines.Add(REG_PUB_SETUP_VAL_GUID, sPublisherInfo.strGUID);
    lines.Add(REG_PUB_SETUP_VAL_PUBLISH_NAME, sPublisherInfo.strPublisherName);
    lines.Add(REG_PUB_SETUP_VAL_PUBLISH_MODE, sPublisherInfo.uiPublishMode);
    lines.Add(REG_PUB_SETUP_VAL_STK1, sPublisherInfo.uiStacker1DiscType);
    lines.Add(REG_PUB_SETUP_VAL_STK2, sPublisherInfo.uiStacker2DiscType);
    lines.Add(REG_PUB_SETUP_VAL_STK3, sPublisherInfo.uiStacker3DiscType);
    lines.Add(REG_PUB_SETUP_VAL_STK4, sPublisherInfo.uiStacker4DiscType);
    lines.Add(REG_PUB_SETUP_VAL_PRINTER_NAME, sPublisherInfo.strPrinterName);
    lines.Add(REG_PUB_SETUP_VAL_TYPE, sPublisherInfo.uiPublisherType);
    const PublisherModel* pModel = FindModel(sPublisherInfo.uiPublisherDevType);
    if (pModel != nullptr && pModel->bDriveSettings) {
        lines.Add(REG_PUB_SETUP_VAL_USEDRIVE, sPublisherInfo.uiUseDrive);
        lines.Add(REG_PUB_SETUP_VAL_RETRYCOUNT, RetryCountInForce(sPublisherInfo));
        lines.Add(REG_PUB_SETUP_VAL_RETRYCOUNT_W, sPublisherInfo.uiRetryCountW);
        lines.Add(REG_PUB_SETUP_VAL_RETRYCOUNT_R, sPublisherInfo.uiRetryCountR);
        lines.Add(REG_PUB_SETUP_VAL_READBACKCONTINUE, UINT{sPublisherInfo.bContinuePublish});
        lines.Add(REG_PUB_SETUP_VAL_ERRORMARK, UINT{sPublisherInfo.bAddErrorMark});
    }

    const SettingFile file = FileOf(sPublisherInfo.strPublisherRegistID.c_str());
    if (!file.Write(lines)) {
        if (GetLogLevel() >= 2) {
            logViaAgent(4,
                        "CBasicPublisherMgr::UpdatePublisherInfo, WritePrivateProfileSection failed, \"%s\"",
                        file.Path().c_str());
        }
        return false;
    }
    return true;
}

void CBasicPublisherMgr::WriteModeKeys(LPCTSTR szPublisherRegistID, const PUBLISHERINFO& sPublisherInfo) const
{
    const SettingFile file = FileOf(szPublisherRegistID);
    const bool bWritten = file.WriteInt(REG_PUB_SETUP_VAL_PUBLISH_MODE, sPublisherInfo.uiPublishMode) &&
                          file.WriteInt(REG_PUB_SETUP_VAL_STK3, sPublisherInfo.uiStacker3DiscType) &&
                          file.WriteInt(REG_PUB_SETUP_VAL_STK4, sPublisherInfo.uiStacker4DiscType);
    ASSERT(bWritten);
}

bool CBasicPublisherMgr::UpdatePublishMode(LPCTSTR szPublisherRegistID, const PUBLISHERINFO* psPublisherInfo,
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
    bool bSetDefault = false;
    const bool bFitted = UpdatePublishInfoFromPubMode(&cur, bSetDefault);
    ASSERT(bFitted);

    bool bChanged = bSetDefault;
    if (IsSupportUseDrive()) {
        Assign(cur.uiUseDrive, psPublisherInfo->uiUseDrive, bChanged);
    }
    Assign(cur.uiRetryCount, psPublisherInfo->uiRetryCount, bChanged);
    Assign(cur.bContinuePublish, psPublisherInfo->bContinuePublish, bChanged);
    Assign(cur.uiRetryCountW, psPublisherInfo->uiRetryCountW, bChanged);
    Assign(cur.uiRetryCountR, psPublisherInfo->uiRetryCountR, bChanged);
    Assign(cur.bAddErrorMark, psPublisherInfo->bAddErrorMark, bChanged);
    if (bChanged) {
        const bool bUpdated = UpdatePublisherInfo(cur);
        ASSERT(bUpdated);
        ASSERT(pbSetDefault != nullptr);
        *pbSetDefault = bSetDefault;
    }
    return true;
}

bool CBasicPublisherMgr::UpdatePublishInfoFromPubMode(PUBLISHERINFO* pstPubInfo, bool& bChanged)
{
    if (pstPubInfo == nullptr) {
        return false;
    }
    PUBLISHERINFO& info = *pstPubInfo;
    ASSERT(IsSupportPublishMode(info.uiPublishMode));
    const auto supported = [this](UINT uiDiscType) {
        return IsSupportDiscType(uiDiscType) ? uiDiscType : UINT{PUBMGR_STACKERDISCTYPE_CDR};
    };

    switch (info.uiPublishMode) {
    case PUBMGR_PUBLISHMODE_NORMAL:
        Assign(info.uiStacker1DiscType, supported(info.uiStacker1DiscType), bChanged);
        Assign(info.uiStacker2DiscType, PUBMGR_STACKERDISCTYPE_OUTPUT, bChanged);
        break;
    case PUBMGR_PUBLISHMODE_BATCH:
        Assign(info.uiStacker1DiscType, supported(info.uiStacker1DiscType), bChanged);
        Assign(info.uiStacker2DiscType, info.uiStacker1DiscType, bChanged);
        Assign(info.bAddErrorMark, true, bChanged);
        break;
    case PUBMGR_PUBLISHMODE_OUTPUT:
        Assign(info.uiStacker1DiscType, supported(info.uiStacker1DiscType), bChanged);
        Assign(info.uiStacker2DiscType, supported(info.uiStacker2DiscType), bChanged);
        break;
    case PUBMGR_PUBLISHMODE_ERRORRATE:
    case PUBMGR_PUBLISHMODE_READ:
        Assign(info.uiStacker1DiscType, PUBMGR_STACKERDISCTYPE_INPUT, bChanged);
        Assign(info.uiStacker2DiscType, PUBMGR_STACKERDISCTYPE_OUTPUT, bChanged);
        break;
    default:
        return false;
    }

    if (info.uiPublishMode == PUBMGR_PUBLISHMODE_BATCH || !IsSupportStacker4()) {
        Assign(info.uiStacker3DiscType, PUBMGR_STACKERDISCTYPE_OUTPUT, bChanged);
        Assign(info.uiStacker4DiscType, PUBMGR_STACKERDISCTYPE_NOTUSE, bChanged);
        return true;
    }
    const auto receives = [](UINT uiDiscType) {
        return uiDiscType == PUBMGR_STACKERDISCTYPE_NOTUSE || uiDiscType == PUBMGR_STACKERDISCTYPE_OUTPUT;
    };
    if (!receives(info.uiStacker3DiscType) || !receives(info.uiStacker4DiscType)) {
        Assign(info.uiStacker3DiscType, PUBMGR_STACKERDISCTYPE_NOTUSE, bChanged);
        Assign(info.uiStacker4DiscType, PUBMGR_STACKERDISCTYPE_OUTPUT, bChanged);
    }
    return true;
}

CString CBasicPublisherMgr::GetPublisherGUID(LPCTSTR szPublisherRegistID)
{
    ASSERT(szPublisherRegistID != nullptr);
    const SettingFile file = FileOf(szPublisherRegistID);
    const SettingRecord record = file.Read();
    if (!record.Exists()) {
        if (GetLogLevel() >= 2) {
            logViaAgent(4, "CBasicPublisherMgr::GetPublisherGUID, \"%s\" is not found", file.Path().c_str());
        }
        return "";
    }
    return record.String(REG_PUB_SETUP_VAL_GUID);
}

UINT CBasicPublisherMgr::GetCopiesMax(LPCTSTR szPublisherRegistID, bool)
{
    ASSERT(szPublisherRegistID != nullptr);
    PUBLISHERINFO info;
    GetPublisherInfo(szPublisherRegistID, &info, FALSE);
    ASSERT(IsSupportPublishMode(info.uiPublishMode));
    switch (info.uiPublishMode) {
    case PUBMGR_PUBLISHMODE_NORMAL:
    case PUBMGR_PUBLISHMODE_BATCH:
    case PUBMGR_PUBLISHMODE_OUTPUT:
        return 1000;
    case PUBMGR_PUBLISHMODE_ERRORRATE:
    case PUBMGR_PUBLISHMODE_READ:
        return 50;
    default:
        ASSERT(false);
        return 0;
    }
}

CString CBasicPublisherMgr::GetSupportWriteSpeedString(LPCTSTR szPublisherRegistID, UINT uiDrive)
{
    ASSERT(szPublisherRegistID != nullptr);
    PUBLISHERINFO info;
    CString strSpeeds;
    if ((uiDrive == PUBMGR_USEDRIVE_DRIVE1 || uiDrive == PUBMGR_USEDRIVE_DRIVE2) &&
        GetPublisherInfo(szPublisherRegistID, &info, FALSE)) {
        CRegUtility::GetRegStrData(HKEY_LOCAL_MACHINE, DeviceKey(info.strGUID).c_str(),
                                   uiDrive == PUBMGR_USEDRIVE_DRIVE1 ? REG_PRN_REG_VAL_DRV1_SUPPORT_WR_SPEED
                                                                     : REG_PRN_REG_VAL_DRV2_SUPPORT_WR_SPEED,
                                   &strSpeeds);
    }
    return strSpeeds;
}

const PublisherModel& CBasicPublisherMgr::Model()
{
    const PublisherModel* pModel = FindModel(GetPublisherMgrType());
    ASSERT(pModel != nullptr);
    return *pModel;
}

bool CBasicPublisherMgr::IsSupportPublishMode(UINT uiPublishMode)
{
    return Model().publishModes.Contains(uiPublishMode);
}

bool CBasicPublisherMgr::IsSupportDiscType(UINT uiDiscType)
{
    return Model().discTypes.Contains(uiDiscType);
}

bool CBasicPublisherMgr::IsSupportUseDrive()
{
    return Model().HasDriveChoice();
}

bool CBasicPublisherMgr::IsSupportStacker4()
{
    return Model().bStacker4;
}

bool CBasicPublisherMgr::StartConnection(LPCTSTR, DWORD*, DWORD*)
{
    return true;
}

bool CBasicPublisherMgr::EndConnection(DWORD)
{
    return true;
}

CString CBasicPublisherMgr::GetPublishID(DWORD, DWORD*)
{
    return "";
}

bool CBasicPublisherMgr::SendJobData(DWORD, const BYTE*, DWORD, int*, DWORD*)
{
    return true;
}

bool CBasicPublisherMgr::SendPRNData(DWORD, int, const BYTE*, DWORD, DWORD*)
{
    return true;
}

bool CBasicPublisherMgr::CommitJob(DWORD, int, DWORD*)
{
    return true;
}

bool CBasicPublisherMgr::SendDiscInfo(DWORD, int, const BYTE*, DWORD, DWORD*)
{
    return true;
}

CString CBasicPublisherMgr::GetHostName(LPCTSTR)
{
    return "";
}

CString CBasicPublisherMgr::GetDeviceInfo(LPCTSTR, DWORD, DWORD*)
{
    return "";
}

int CBasicPublisherMgr::GetCommunicateJobCount(LPCTSTR)
{
    return -1;
}
