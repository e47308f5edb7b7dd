// Queries and commands to a local publisher through the control service.
#include "BasicPublisherMgr.h"

#include <cstring>
#include <vector>

namespace {

using Wear = PUBMAINTINFODRIVE;
using WireWear = ST_PC_MAINTENANCE_INFO;

/// A count with its life limit, and the fields of the wire record for drive 1 and drive 2.
struct WearField
{
    UINT Wear::* count;
    UINT Wear::* life;
    unsigned long WireWear::* wireCount[2];
    unsigned long WireWear::* wireLife[2];
};

constexpr WearField WEAR_FIELDS[] = {
    {&Wear::uiTrayCount,
     &Wear::uiTrayLife,
     {&WireWear::ulDrive1TrayNum, &WireWear::ulDrive2TrayNum},
     {&WireWear::ulDrive1TrayNumLife, &WireWear::ulDrive2TrayNumLife}},
    {&Wear::uiWriteCDCount,
     &Wear::uiWriteCDLife,
     {&WireWear::ulDrive1WriteTimeCD, &WireWear::ulDrive2WriteTimeCD},
     {&WireWear::ulDrive1WriteTimeCDLife, &WireWear::ulDrive2WriteTimeCDLife}},
    {&Wear::uiWriteDVDCount,
     &Wear::uiWriteDVDLife,
     {&WireWear::ulDrive1WriteTimeDVD, &WireWear::ulDrive2WriteTimeDVD},
     {&WireWear::ulDrive1WriteTimeDVDLife, &WireWear::ulDrive2WriteTimeDVDLife}},
    {&Wear::uiWriteBDCount,
     &Wear::uiWriteBDLife,
     {&WireWear::ulDrive1WriteTimeBD, &WireWear::ulDrive2WriteTimeBD},
     {&WireWear::ulDrive1WriteTimeBDLife, &WireWear::ulDrive2WriteTimeBDLife}},
    {&Wear::uiDriveWriteTimeTotal,
     &Wear::uiDriveWriteTimeTotalLife,
     {&WireWear::ulDrive1WriteTimeTotal, &WireWear::ulDrive2WriteTimeTotal},
     {&WireWear::ulDrive1WriteTimeTotalLife, &WireWear::ulDrive2WriteTimeTotalLife}},
    {&Wear::uiDriveReadTimeTotal,
     &Wear::uiDriveReadTimeTotalLife,
     {&WireWear::ulDrive1ReadTimeTotal, &WireWear::ulDrive2ReadTimeTotal},
     {&WireWear::ulDrive1ReadTimeTotalLife, &WireWear::ulDrive2ReadTimeTotalLife}},
};

/// `drive` is 0 or 1.
Wear DriveMaintenance(CBasicPublisherMgr& mgr, const WireWear& wire, size_t drive)
{
    Wear wear;
    for (const WearField& field : WEAR_FIELDS) {
        const unsigned long life = wire.*field.wireLife[drive];
        wear.*field.count =
            static_cast<UINT>(mgr.CalcDriveMaintenanceValueCorrection(wire.*field.wireCount[drive], life));
        wear.*field.life = static_cast<UINT>(life);
    }
    return wear;
}

} // namespace

int CBasicPublisherMgr::AskService(ULONG ulControlID, LPCTSTR szPublisherRegistID, LPCTSTR pJobID,
                                   ULONG ulSubParam, ServicePayload& payload, long* pResultCode)
{
    void* pResponse = nullptr;
    ULONG ulLength = 0;
    const int nResult =
        GetServiceResponse(ulControlID, szPublisherRegistID, pJobID, ulSubParam, &pResponse, &ulLength);
    payload.pData.reset(static_cast<char*>(pResponse));
    payload.ulLength = ulLength;
    if (pResultCode != nullptr) {
        *pResultCode = nResult;
    }
    return nResult;
}

bool CBasicPublisherMgr::QueryRecords(LPCTSTR szPublisherRegistID, std::initializer_list<RecordQuery> queries,
                                      long* pResultCode)
{
    ASSERT(szPublisherRegistID != nullptr);
    std::vector<ServiceCommand> commands;
    commands.reserve(queries.size());
    for (const RecordQuery& query : queries) {
        ASSERT(query.pAnswer != nullptr);
        commands.push_back({query.ulControlID, szPublisherRegistID, nullptr, 0});
    }
    std::vector<void*> responses(commands.size());
    std::vector<ULONG> lengths(commands.size());
    // Allocated before there are responses to free.
    std::vector<std::unique_ptr<char[]>> payloads(commands.size());
    const int nResult = GetServiceResponse(commands.data(), static_cast<int>(commands.size()),
                                           responses.data(), lengths.data());
    if (pResultCode != nullptr) {
        *pResultCode = nResult;
    }
    bool bComplete = nResult == 0;
    for (size_t i = 0; i < payloads.size(); ++i) {
        payloads[i].reset(static_cast<char*>(responses[i]));
        bComplete = bComplete && payloads[i] != nullptr && lengths[i] == queries.begin()[i].ulSize;
    }
    if (bComplete) {
        for (size_t i = 0; i < payloads.size(); ++i) {
            std::memcpy(queries.begin()[i].pAnswer, payloads[i].get(), lengths[i]);
        }
    }
    return bComplete;
}

bool CBasicPublisherMgr::QueryService(ULONG ulControlID, LPCTSTR szPublisherRegistID, void* pAnswer,
                                      ULONG ulSize, long* pResultCode)
{
    return QueryRecords(szPublisherRegistID, {{ulControlID, pAnswer, ulSize}}, pResultCode);
}

bool CBasicPublisherMgr::QueryServiceChecked(ULONG ulControlID, LPCTSTR szPublisherRegistID, void* pAnswer,
                                             ULONG ulSize, long* pResultCode)
{
    ASSERT(szPublisherRegistID != nullptr);
    ASSERT(pAnswer != nullptr);
    ServicePayload payload;
    if (AskService(ulControlID, szPublisherRegistID, nullptr, 0, payload, pResultCode) != 0) {
        return false;
    }
    ASSERT(payload.pData != nullptr);
    ASSERT(payload.ulLength == ulSize);
    std::memcpy(pAnswer, payload.pData.get(), ulSize);
    return true;
}

bool CBasicPublisherMgr::QueryFourValues(ULONG ulControlID, LPCTSTR szPublisherRegistID, ULONG* pulValue1,
                                         ULONG* pulValue2, ULONG* pulValue3, ULONG* pulValue4,
                                         long* pResultCode)
{
    ASSERT(pulValue1 != nullptr);
    ASSERT(pulValue2 != nullptr);
    ASSERT(pulValue3 != nullptr);
    ASSERT(pulValue4 != nullptr);
    ULONG aulValues[4] = {};
    if (!QueryService(ulControlID, szPublisherRegistID, aulValues, sizeof aulValues, pResultCode)) {
        return false;
    }
    *pulValue1 = aulValues[0];
    *pulValue2 = aulValues[1];
    *pulValue3 = aulValues[2];
    *pulValue4 = aulValues[3];
    return true;
}

bool CBasicPublisherMgr::QueryJobs(LPCTSTR szPublisherRegistID, ULONG ulSubParam, bool bMayBeEmpty,
                                   JobStatusArray* parrJobStatus, long* pResultCode)
{
    ASSERT(szPublisherRegistID != nullptr);
    ASSERT(parrJobStatus != nullptr);
    parrJobStatus->RemoveAll();
    ServicePayload payload;
    if (AskService(ARV_PC_GET_JOB_STATUS, szPublisherRegistID, nullptr, ulSubParam, payload, pResultCode) !=
        0) {
        return false;
    }
    if (payload.ulLength == 0) {
        return bMayBeEmpty;
    }
    constexpr ULONG ulRecordSize = sizeof(ST_PC_JOB_STATUS);
    if (payload.ulLength % ulRecordSize != 0) {
        return false;
    }
    parrJobStatus->SetSize(payload.ulLength / ulRecordSize);
    const char* pRecord = payload.pData.get();
    for (ST_PC_JOB_STATUS& job : *parrJobStatus) {
        std::memcpy(&job, pRecord, ulRecordSize);
        pRecord += ulRecordSize;
    }
    return true;
}

bool CBasicPublisherMgr::CommandService(ULONG ulControlID, LPCTSTR szPublisherRegistID, LPCTSTR pJobID,
                                        ULONG ulSubParam, long* pResultCode)
{
    ASSERT(szPublisherRegistID != nullptr);
    ServicePayload payload;
    return AskService(ulControlID, szPublisherRegistID, pJobID, ulSubParam, payload, pResultCode) == 0;
}

bool CBasicPublisherMgr::IsPossibleCommunicateService(long* pResultCode)
{
    ServicePayload payload;
    const int nResult = AskService(ARV_PC_GET_JOB_NUM, nullptr, nullptr, 0, payload, pResultCode);
    return nResult != ERR_SERVICE_NOT_COMMUNICATION && nResult != ERR_SERVICE_TIMEOUT &&
           nResult != ERR_SERVICE_CANCEL;
}

bool CBasicPublisherMgr::IsPossibleCommunicate(LPCTSTR, long*)
{
    return true;
}

int CBasicPublisherMgr::GetJobCount(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    ULONG ulCount = 0;
    return QueryService(ARV_PC_GET_JOB_NUM, szPublisherRegistID, &ulCount, sizeof ulCount, pResultCode)
               ? static_cast<int>(ulCount)
               : -1;
}

int CBasicPublisherMgr::GetServiceEstimateCirculation(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    ULONG ulCount = 0;
    return QueryService(ARV_PC_GET_ESTIMATE_CIRCULATION, szPublisherRegistID, &ulCount, sizeof ulCount,
                        pResultCode)
               ? static_cast<int>(ulCount)
               : -1;
}

ULONG CBasicPublisherMgr::GetServiceAbilityPnumPrecision(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    long lResult = 0;
    ULONG ulPrecision = static_cast<ULONG>(-1);
    if (!QueryService(ARV_PC_GET_ABILITY_PNUM_PRECISION, szPublisherRegistID, &ulPrecision,
                      sizeof ulPrecision, &lResult) &&
        lResult == ARV_PC_ERROR_FAILURE) { // an older service without this control
        lResult = 0;
        ulPrecision = ARV_PC_PNUM_PRECISION_LOW;
    }
    if (pResultCode != nullptr) {
        *pResultCode = lResult;
    }
    return ulPrecision;
}

bool CBasicPublisherMgr::IsFatalErrorInPublisher(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    ULONG ulFatalCode = 0;
    if (!GetServiceFatalCode(szPublisherRegistID, &ulFatalCode, pResultCode)) {
        ulFatalCode = ARV_PC_ERROR_OFFLINE;
    }
    if (ulFatalCode == 0) {
        return false;
    }
    if (pResultCode != nullptr) {
        *pResultCode = ulFatalCode;
    }
    return true;
}

bool CBasicPublisherMgr::SetServiceJobCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode)
{
    ASSERT(pJobID != nullptr);
    return CommandService(ARV_PC_JOB_CANCEL, szPublisherRegistID, pJobID, 0, pResultCode);
}

bool CBasicPublisherMgr::SetServiceJobErrorCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID,
                                                  long* pResultCode)
{
    ASSERT(pJobID != nullptr);
    return CommandService(ARV_PC_DELETE_DISC_IMAGE, szPublisherRegistID, pJobID, 0, pResultCode);
}

bool CBasicPublisherMgr::SetServiceJobStop(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode)
{
    ASSERT(pJobID != nullptr);
    return CommandService(ARV_PC_JOB_STOP, szPublisherRegistID, pJobID, 0, pResultCode);
}

bool CBasicPublisherMgr::SetServiceJobContinue(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode)
{
    ASSERT(pJobID != nullptr);
    return CommandService(ARV_PC_JOB_CONTINUE, szPublisherRegistID, pJobID, 0, pResultCode);
}

bool CBasicPublisherMgr::SetServiceJobMove(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode)
{
    ASSERT(pJobID != nullptr);
    return CommandService(ARV_PC_JOB_MOVE, szPublisherRegistID, pJobID, ARV_PC_JOBMOVE_PRIORITY_HIGH,
                          pResultCode);
}

bool CBasicPublisherMgr::SetServiceNotifyChange(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    return CommandService(ARV_PC_NOTIFY_CHANGE, szPublisherRegistID, nullptr, 0, pResultCode);
}

bool CBasicPublisherMgr::SetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG ulPublishMode,
                                               long* pResultCode)
{
    return CommandService(ARV_PC_SET_PUBLISH_MODE, szPublisherRegistID, nullptr, ulPublishMode, pResultCode);
}

bool CBasicPublisherMgr::SetServiceUpdateErrorDiscContinueCount(long* pResultCode,
                                                                LPCTSTR szPublisherRegistID)
{
    return CommandService(ARV_PC_NOTIFY_CHANGE_ERRORRATE_TIMES, szPublisherRegistID, nullptr, 0, pResultCode);
}

bool CBasicPublisherMgr::CancelJob(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, DWORD, int, long* pResultCode)
{
    return SetServiceJobCancel(szPublisherRegistID, pJobID, pResultCode);
}

bool CBasicPublisherMgr::GetServiceJobStatus(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                             long* pResultCode)
{
    return QueryJobs(szPublisherRegistID, ARV_PC_GET_PROCESSING_JOB | ARV_PC_GET_COMPLETE_JOB, false,
                     parrJobStatus, pResultCode);
}

bool CBasicPublisherMgr::GetServiceJobStatusUnfinish(LPCTSTR szPublisherRegistID,
                                                     JobStatusArray* parrJobStatus, long* pResultCode)
{
    return QueryJobs(szPublisherRegistID, ARV_PC_GET_PROCESSING_JOB, true, parrJobStatus, pResultCode);
}

bool CBasicPublisherMgr::GetServiceJobStatusFinish(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                                   long* pResultCode)
{
    return QueryJobs(szPublisherRegistID, ARV_PC_GET_COMPLETE_JOB, true, parrJobStatus, pResultCode);
}

bool CBasicPublisherMgr::GetServiceInkStatus(LPCTSTR szPublisherRegistID, ST_PC_INK_STATUS* pInkStatus,
                                             long* pResultCode)
{
    return QueryService(ARV_PC_GET_INK_STATUS, szPublisherRegistID, pInkStatus, sizeof *pInkStatus,
                        pResultCode);
}

bool CBasicPublisherMgr::GetServiceAldStatus(LPCTSTR szPublisherRegistID, ULONG* pulAldStatus,
                                             long* pResultCode)
{
    return QueryService(ARV_PC_GET_ALD_STATUS, szPublisherRegistID, pulAldStatus, sizeof *pulAldStatus,
                        pResultCode);
}

bool CBasicPublisherMgr::GetServiceDriveStatus(LPCTSTR szPublisherRegistID, ST_PC_DRV_STATUS* pDrv1,
                                               ST_PC_DRV_STATUS* pDrv2, long* pResultCode)
{
    ASSERT(pDrv1 != nullptr);
    ASSERT(pDrv2 != nullptr);
    ST_PC_DRV_STATUS aDrives[2] = {};
    if (!QueryService(ARV_PC_GET_DRV_STATUS, szPublisherRegistID, aDrives, sizeof aDrives, pResultCode)) {
        return false;
    }
    *pDrv1 = aDrives[0];
    *pDrv2 = aDrives[1];
    return true;
}

bool CBasicPublisherMgr::GetServicePrinterStatus(LPCTSTR szPublisherRegistID, ULONG* pulPrinterStatus,
                                                 long* pResultCode)
{
    return QueryService(ARV_PC_GET_PRT_STATUS, szPublisherRegistID, pulPrinterStatus,
                        sizeof *pulPrinterStatus, pResultCode);
}

bool CBasicPublisherMgr::GetServiceStackerStatus(LPCTSTR szPublisherRegistID, ULONG* pulStacker1,
                                                 ULONG* pulStacker2, ULONG* pulStacker3, ULONG* pulStacker4,
                                                 long* pResultCode)
{
    return QueryFourValues(ARV_PC_GET_STK_STATUS, szPublisherRegistID, pulStacker1, pulStacker2, pulStacker3,
                           pulStacker4, pResultCode);
}

bool CBasicPublisherMgr::GetServiceStackerDiscType(LPCTSTR szPublisherRegistID, ULONG* pulStacker1,
                                                   ULONG* pulStacker2, ULONG* pulStacker3, ULONG* pulStacker4,
                                                   long* pResultCode)
{
    return QueryFourValues(ARV_PC_GET_STACKER_DISC_TYPE, szPublisherRegistID, pulStacker1, pulStacker2,
                           pulStacker3, pulStacker4, pResultCode);
}

bool CBasicPublisherMgr::GetServiceFatalCode(LPCTSTR szPublisherRegistID, ULONG* pulFatalCode,
                                             long* pResultCode)
{
    return QueryService(ARV_PC_GET_FATAL_ERR_CODE, szPublisherRegistID, pulFatalCode, sizeof *pulFatalCode,
                        pResultCode);
}

bool CBasicPublisherMgr::GetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG* pulPublishMode,
                                               long* pResultCode)
{
    return QueryService(ARV_PC_GET_PUBLISH_MODE, szPublisherRegistID, pulPublishMode, sizeof *pulPublishMode,
                        pResultCode);
}

bool CBasicPublisherMgr::GetServiceUSBMode(LPCTSTR szPublisherRegistID, ULONG* pulUSBMode, long* pResultCode)
{
    return QueryServiceChecked(ARV_PC_GET_USB_MODE, szPublisherRegistID, pulUSBMode, sizeof *pulUSBMode,
                               pResultCode);
}

bool CBasicPublisherMgr::GetServiceNotifyStatus(LPCTSTR szPublisherRegistID,
                                                NotifyStatusArray* parrNotifyStatus, long* pResultCode)
{
    ASSERT(szPublisherRegistID != nullptr);
    ASSERT(parrNotifyStatus != nullptr);
    ServicePayload payload;
    if (AskService(ARV_PC_GET_NOTIFY_STATUS, szPublisherRegistID, nullptr, 0, payload, pResultCode) != 0 ||
        payload.pData == nullptr) {
        return false;
    }
    parrNotifyStatus->RemoveAll();
    for (ULONG ulOffset = 0; payload.ulLength - ulOffset >= sizeof(ULONG); ulOffset += sizeof(ULONG)) {
        ULONG ulValue = 0;
        std::memcpy(&ulValue, payload.pData.get() + ulOffset, sizeof ulValue);
        parrNotifyStatus->Add(ulValue);
    }
    return true;
}

bool CBasicPublisherMgr::GetPublisherVersionInfo(LPCTSTR szPublisherRegistID,
                                                 PUBLISHERVERSIONINFO* psPublisherVersionInfo,
                                                 long* pResultCode)
{
    ASSERT(psPublisherVersionInfo != nullptr);
    ST_PC_ALD_INFO ald{};
    ST_PC_PRT_INFO printer{};
    ST_PC_DRV_INFO aDrives[2] = {};
    if (!QueryRecords(szPublisherRegistID,
                      {{ARV_PC_GET_ALD_INFO, &ald, sizeof ald},
                       {ARV_PC_GET_PRT_INFO, &printer, sizeof printer},
                       {ARV_PC_GET_DRV_INFO, aDrives, sizeof aDrives}},
                      pResultCode)) {
        return false;
    }
    SetCommonVersions(*psPublisherVersionInfo, szPublisherRegistID, ald, printer);
    psPublisherVersionInfo->strDrive1ModelName = WireText(aDrives[0].acProductInfo);
    psPublisherVersionInfo->strDrive1Version = WireText(aDrives[0].acFirmwareVersion);
    psPublisherVersionInfo->strDrive2ModelName = WireText(aDrives[1].acProductInfo);
    psPublisherVersionInfo->strDrive2Version = WireText(aDrives[1].acFirmwareVersion);
    return true;
}

void CBasicPublisherMgr::SetCommonVersions(PUBLISHERVERSIONINFO& sVersionInfo, LPCTSTR szPublisherRegistID,
                                           const ST_PC_ALD_INFO& ald, const ST_PC_PRT_INFO& printer)
{
    sVersionInfo.strPublisherRegistID = szPublisherRegistID;
    sVersionInfo.strSerialNo = WireText(ald.acSerialNumber);
    sVersionInfo.strAutoLoaderVersion = WireText(ald.acFirmwareVersion);
    sVersionInfo.strPrinterModelName = WireText(printer.acDeviceName);
    sVersionInfo.strPrinterVersion = WireText(printer.acFirmwareVersion);
}

bool CBasicPublisherMgr::GetPublisherMaintenanceInfo(LPCTSTR szPublisherRegistID,
                                                     PUBLISHERMAINTENANCEINFO* psPublisherMaintenanceInfo,
                                                     long* pResultCode)
{
    ASSERT(psPublisherMaintenanceInfo != nullptr);
    ST_PC_MAINTENANCE_INFO wire{};
    if (!QueryServiceChecked(ARV_PC_GET_MAINTENANCEINFO, szPublisherRegistID, &wire, sizeof wire,
                             pResultCode)) {
        return false;
    }
    PUBLISHERMAINTENANCEINFO& info = *psPublisherMaintenanceInfo;
    info.uiCompleteDiscNum = static_cast<UINT>(wire.ulCompleteDiscNum);
    info.uiPrintCount = static_cast<UINT>(wire.ulPrintCount);
    info.uiMainteBoxCount = static_cast<UINT>(wire.ulMaintenanceBox);
    info.uiMainteBoxLife = static_cast<UINT>(wire.ulMaintenanceBoxLife);
    info.midrvDrive1 = DriveMaintenance(*this, wire, 0);
    info.midrvDrive2 = DriveMaintenance(*this, wire, 1);
    info.uiUsedPlugin = static_cast<UINT>(wire.ulPlugInUsed);
    info.strSerialNo = WireText(wire.acUlmarUnitSN);
    info.ulDRV1Life = wire.ulDRV1Life;
    info.ulDRV2Life = wire.ulDRV2Life;
    return true;
}

unsigned long CBasicPublisherMgr::CalcDriveMaintenanceValueCorrection(unsigned long ulUsedValue,
                                                                      unsigned long ulLifeValue)
{
    const auto ulOffset = static_cast<unsigned long>(static_cast<double>(ulLifeValue) * 0.0125);
    return ulUsedValue > ulOffset ? ulUsedValue - ulOffset : 0;
}
