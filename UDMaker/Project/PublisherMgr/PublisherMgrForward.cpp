// Facade operations that are forwarded to one implementation.
#include "PublisherMgr.h"

#include "ModelTable.h"
#include "Win_def_log.h"

bool CPublisherMgr::UpdatePublishMode(LPCTSTR szPublisherRegistID, const PUBLISHERINFO* psPublisherInfo,
                                      bool bResetDefault, bool* pbSetDefault)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->UpdatePublishMode(szPublisherRegistID, psPublisherInfo, bResetDefault, pbSetDefault);
}

CString CPublisherMgr::GetPublisherGUID(LPCTSTR szPublisherRegistID)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr ? pPubMgr->GetPublisherGUID(szPublisherRegistID) : CString();
}

UINT CPublisherMgr::GetCopiesMax(LPCTSTR szPublisherRegistID, bool bInputAuto)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr ? pPubMgr->GetCopiesMax(szPublisherRegistID, bInputAuto) : 0;
}

CString CPublisherMgr::GetSupportWriteSpeedString(LPCTSTR szPublisherRegistID, UINT uiDrive)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr ? pPubMgr->GetSupportWriteSpeedString(szPublisherRegistID, uiDrive) : CString();
}

bool CPublisherMgr::IsPossibleCommunicateService(long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromType(PUBMGR_PUBLISHERTYPE_BASIC);
    return pPubMgr != nullptr && pPubMgr->IsPossibleCommunicateService(pResultCode);
}

bool CPublisherMgr::IsPossibleCommunicate(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr && pPubMgr->IsPossibleCommunicate(szPublisherRegistID, pResultCode);
}

int CPublisherMgr::GetJobCount(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr ? pPubMgr->GetJobCount(szPublisherRegistID, pResultCode) : -1;
}

bool CPublisherMgr::IsFatalErrorInPublisher(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr && pPubMgr->IsFatalErrorInPublisher(szPublisherRegistID, pResultCode);
}

bool CPublisherMgr::SetServiceJobCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    if (pPubMgr == nullptr) {
        if (GetLogLevel() >= 2) {
            logViaAgent(4, "CPublisherMgr::SetServiceJobCancel, Publisher not found");
        }
        return false;
    }
    return pPubMgr->SetServiceJobCancel(szPublisherRegistID, pJobID, pResultCode);
}

bool CPublisherMgr::SetServiceJobErrorCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr && pPubMgr->SetServiceJobErrorCancel(szPublisherRegistID, pJobID, pResultCode);
}

bool CPublisherMgr::SetServiceJobStop(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr && pPubMgr->SetServiceJobStop(szPublisherRegistID, pJobID, pResultCode);
}

bool CPublisherMgr::SetServiceJobContinue(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr && pPubMgr->SetServiceJobContinue(szPublisherRegistID, pJobID, pResultCode);
}

bool CPublisherMgr::SetServiceNotifyChange(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr && pPubMgr->SetServiceNotifyChange(szPublisherRegistID, pResultCode);
}

bool CPublisherMgr::GetPublisherVersionInfo(LPCTSTR szPublisherRegistID,
                                            PUBLISHERVERSIONINFO* psPublisherVersionInfo, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->GetPublisherVersionInfo(szPublisherRegistID, psPublisherVersionInfo, pResultCode);
}

bool CPublisherMgr::GetPublisherMaintenanceInfo(LPCTSTR szPublisherRegistID,
                                                PUBLISHERMAINTENANCEINFO* psPublisherMaintenanceInfo,
                                                long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->GetPublisherMaintenanceInfo(szPublisherRegistID, psPublisherMaintenanceInfo, pResultCode);
}

bool CPublisherMgr::GetServiceJobStatus(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                        long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->GetServiceJobStatus(szPublisherRegistID, parrJobStatus, pResultCode);
}

bool CPublisherMgr::GetServiceJobStatusUnfinish(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                                long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->GetServiceJobStatusUnfinish(szPublisherRegistID, parrJobStatus, pResultCode);
}

bool CPublisherMgr::GetServiceJobStatusFinish(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                              long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->GetServiceJobStatusFinish(szPublisherRegistID, parrJobStatus, pResultCode);
}

bool CPublisherMgr::GetServiceInkStatus(LPCTSTR szPublisherRegistID, ST_PC_INK_STATUS* pInkStatus,
                                        long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr && pPubMgr->GetServiceInkStatus(szPublisherRegistID, pInkStatus, pResultCode);
}

bool CPublisherMgr::GetServiceAldStatus(LPCTSTR szPublisherRegistID, ULONG* pulAldStatus, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr && pPubMgr->GetServiceAldStatus(szPublisherRegistID, pulAldStatus, pResultCode);
}

bool CPublisherMgr::GetServiceDriveStatus(LPCTSTR szPublisherRegistID, ST_PC_DRV_STATUS* pDrv1,
                                          ST_PC_DRV_STATUS* pDrv2, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->GetServiceDriveStatus(szPublisherRegistID, pDrv1, pDrv2, pResultCode);
}

bool CPublisherMgr::GetServicePrinterStatus(LPCTSTR szPublisherRegistID, ULONG* pulPrinterStatus,
                                            long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->GetServicePrinterStatus(szPublisherRegistID, pulPrinterStatus, pResultCode);
}

bool CPublisherMgr::GetServiceStackerStatus(LPCTSTR szPublisherRegistID, ULONG* pulStacker1,
                                            ULONG* pulStacker2, ULONG* pulStacker3, ULONG* pulStacker4,
                                            long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->GetServiceStackerStatus(szPublisherRegistID, pulStacker1, pulStacker2, pulStacker3,
                                            pulStacker4, pResultCode);
}

int CPublisherMgr::GetServiceEstimateCirculation(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr ? pPubMgr->GetServiceEstimateCirculation(szPublisherRegistID, pResultCode) : -1;
}

bool CPublisherMgr::GetServiceFatalCode(LPCTSTR szPublisherRegistID, ULONG* pulFatalCode, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr && pPubMgr->GetServiceFatalCode(szPublisherRegistID, pulFatalCode, pResultCode);
}

bool CPublisherMgr::GetServiceNotifyStatus(LPCTSTR szPublisherRegistID, NotifyStatusArray* parrNotifyStatus,
                                           long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->GetServiceNotifyStatus(szPublisherRegistID, parrNotifyStatus, pResultCode);
}

bool CPublisherMgr::GetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG* pulPublishMode,
                                          long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->GetServicePublishMode(szPublisherRegistID, pulPublishMode, pResultCode);
}

bool CPublisherMgr::SetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG ulPublishMode, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->SetServicePublishMode(szPublisherRegistID, ulPublishMode, pResultCode);
}

bool CPublisherMgr::GetServiceStackerDiscType(LPCTSTR szPublisherRegistID, ULONG* pulStacker1,
                                              ULONG* pulStacker2, ULONG* pulStacker3, ULONG* pulStacker4,
                                              long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->GetServiceStackerDiscType(szPublisherRegistID, pulStacker1, pulStacker2, pulStacker3,
                                              pulStacker4, pResultCode);
}

bool CPublisherMgr::GetServiceUSBMode(LPCTSTR szPublisherRegistID, ULONG* pulUSBMode, long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr && pPubMgr->GetServiceUSBMode(szPublisherRegistID, pulUSBMode, pResultCode);
}

bool CPublisherMgr::IsRunningCommunicateService()
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromType(PUBMGR_PUBLISHERTYPE_BASIC);
    return pPubMgr != nullptr && pPubMgr->IsRunningCommunicateService();
}

bool CPublisherMgr::SetServiceUpdateErrorDiscContinueCount(long* pResultCode, LPCTSTR)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromType(PUBMGR_PUBLISHERTYPE_BASIC);
    if (pPubMgr == nullptr) {
        return false;
    }
    CStringArray arrIDs;
    EnumRegistedPublisher(&arrIDs);
    bool bResult = false;
    for (const CString& strID : arrIDs) {
        const PublisherModel* pModel = FindModelOfDevice(GetLocalDeviceDPType(strID.c_str()));
        if (pModel != nullptr && pModel->MeasuresErrorRates()) {
            bResult = pPubMgr->SetServiceUpdateErrorDiscContinueCount(pResultCode, strID.c_str());
        }
    }
    return bResult;
}

bool CPublisherMgr::StartConnection(LPCTSTR szPublisherRegistID, DWORD* pdwHandle, DWORD* pdwResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromType(PUBMGR_PUBLISHERTYPE_NETWORK);
    return pPubMgr != nullptr && pPubMgr->StartConnection(szPublisherRegistID, pdwHandle, pdwResultCode);
}

bool CPublisherMgr::EndConnection(DWORD dwHandle)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromType(PUBMGR_PUBLISHERTYPE_NETWORK);
    return pPubMgr != nullptr && pPubMgr->EndConnection(dwHandle);
}

CString CPublisherMgr::GetPublishID(DWORD dwHandle, DWORD* pdwResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromType(PUBMGR_PUBLISHERTYPE_NETWORK);
    return pPubMgr != nullptr ? pPubMgr->GetPublishID(dwHandle, pdwResultCode) : CString();
}

bool CPublisherMgr::SendJobData(DWORD dwHandle, const BYTE* pData, DWORD dwSize, int* pnServerJobID,
                                DWORD* pdwResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromType(PUBMGR_PUBLISHERTYPE_NETWORK);
    return pPubMgr != nullptr && pPubMgr->SendJobData(dwHandle, pData, dwSize, pnServerJobID, pdwResultCode);
}

bool CPublisherMgr::SendPRNData(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                                DWORD* pdwResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromType(PUBMGR_PUBLISHERTYPE_NETWORK);
    return pPubMgr != nullptr && pPubMgr->SendPRNData(dwHandle, nServerJobID, pData, dwSize, pdwResultCode);
}

bool CPublisherMgr::CommitJob(DWORD dwHandle, int nServerJobID, DWORD* pdwResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromType(PUBMGR_PUBLISHERTYPE_NETWORK);
    return pPubMgr != nullptr && pPubMgr->CommitJob(dwHandle, nServerJobID, pdwResultCode);
}

bool CPublisherMgr::SendDiscInfo(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                                 DWORD* pdwResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromType(PUBMGR_PUBLISHERTYPE_NETWORK);
    return pPubMgr != nullptr && pPubMgr->SendDiscInfo(dwHandle, nServerJobID, pData, dwSize, pdwResultCode);
}

bool CPublisherMgr::CancelJob(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, DWORD dwHandle, int nServerJobID,
                              long* pResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr &&
           pPubMgr->CancelJob(szPublisherRegistID, pJobID, dwHandle, nServerJobID, pResultCode);
}

CString CPublisherMgr::GetDeviceInfo(LPCTSTR szPublisherRegistID, DWORD dwInfoType, DWORD* pdwResultCode)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr ? pPubMgr->GetDeviceInfo(szPublisherRegistID, dwInfoType, pdwResultCode)
                              : CString();
}

int CPublisherMgr::GetCommunicateJobCount(LPCTSTR szPublisherRegistID)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(szPublisherRegistID);
    return pPubMgr != nullptr ? pPubMgr->GetCommunicateJobCount(szPublisherRegistID) : -1;
}
