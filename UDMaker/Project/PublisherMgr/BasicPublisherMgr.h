// Publishers attached to this computer. Settings come from the setting file, device data from the control
// service.
#pragma once

#include "PublisherMgrIF.h"
#include "SettingFile.h"
#include "WireText.h"

#include <initializer_list>
#include <memory>
#include <mutex>

struct PublisherModel;

/// Serves any local model; the model classes override what differs. Caches no publisher data: each call reads
/// the file or queries the service over its own connection. An exchange blocks until the service replies or
/// closes the connection.
class CBasicPublisherMgr : public IPublisherMgr
{
public:
    /// `bPublisherIDMode`: requests carry the regist id. `strPath`: the folder of the setting files.
    CBasicPublisherMgr(bool bPublisherIDMode, CString strPath);
    ~CBasicPublisherMgr() override;
    CBasicPublisherMgr(const CBasicPublisherMgr&) = delete;
    CBasicPublisherMgr& operator=(const CBasicPublisherMgr&) = delete;

    UINT GetPublisherMgrType() override;
    bool UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo) override;
    bool UpdatePublishMode(LPCTSTR szPublisherRegistID, const PUBLISHERINFO* psPublisherInfo,
                           bool bResetDefault, bool* pbSetDefault) override;
    bool GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo,
                          BOOL bConnectionError) override;
    CString GetPublisherGUID(LPCTSTR szPublisherRegistID) override;
    UINT GetCopiesMax(LPCTSTR szPublisherRegistID, bool bInputAuto) override;
    CString GetSupportWriteSpeedString(LPCTSTR szPublisherRegistID, UINT uiDrive) override;

    bool IsPossibleCommunicateService(long* pResultCode) override;
    bool IsPossibleCommunicate(LPCTSTR szPublisherRegistID, long* pResultCode) override;
    int GetJobCount(LPCTSTR szPublisherRegistID, long* pResultCode) override;
    bool IsFatalErrorInPublisher(LPCTSTR szPublisherRegistID, long* pResultCode) override;

    bool SetServiceJobCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) override;
    bool SetServiceJobErrorCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) override;
    bool SetServiceJobStop(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) override;
    bool SetServiceJobContinue(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) override;
    bool SetServiceNotifyChange(LPCTSTR szPublisherRegistID, long* pResultCode) override;

    bool GetPublisherVersionInfo(LPCTSTR szPublisherRegistID, PUBLISHERVERSIONINFO* psPublisherVersionInfo,
                                 long* pResultCode) override;
    bool GetPublisherMaintenanceInfo(LPCTSTR szPublisherRegistID,
                                     PUBLISHERMAINTENANCEINFO* psPublisherMaintenanceInfo,
                                     long* pResultCode) override;

    bool GetServiceJobStatus(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                             long* pResultCode) override;
    bool GetServiceJobStatusUnfinish(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                     long* pResultCode) override;
    bool GetServiceJobStatusFinish(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                   long* pResultCode) override;

    bool GetServiceInkStatus(LPCTSTR szPublisherRegistID, ST_PC_INK_STATUS* pInkStatus,
                             long* pResultCode) override;
    bool GetServiceAldStatus(LPCTSTR szPublisherRegistID, ULONG* pulAldStatus, long* pResultCode) override;
    bool GetServiceDriveStatus(LPCTSTR szPublisherRegistID, ST_PC_DRV_STATUS* pDrv1, ST_PC_DRV_STATUS* pDrv2,
                               long* pResultCode) override;
    bool GetServicePrinterStatus(LPCTSTR szPublisherRegistID, ULONG* pulPrinterStatus,
                                 long* pResultCode) override;
    bool GetServiceStackerStatus(LPCTSTR szPublisherRegistID, ULONG* pulStacker1, ULONG* pulStacker2,
                                 ULONG* pulStacker3, ULONG* pulStacker4, long* pResultCode) override;
    int GetServiceEstimateCirculation(LPCTSTR szPublisherRegistID, long* pResultCode) override;
    bool GetServiceFatalCode(LPCTSTR szPublisherRegistID, ULONG* pulFatalCode, long* pResultCode) override;
    bool GetServiceNotifyStatus(LPCTSTR szPublisherRegistID, NotifyStatusArray* parrNotifyStatus,
                                long* pResultCode) override;
    bool GetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG* pulPublishMode,
                               long* pResultCode) override;
    bool SetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG ulPublishMode, long* pResultCode) override;
    bool GetServiceStackerDiscType(LPCTSTR szPublisherRegistID, ULONG* pulStacker1, ULONG* pulStacker2,
                                   ULONG* pulStacker3, ULONG* pulStacker4, long* pResultCode) override;
    bool GetServiceUSBMode(LPCTSTR szPublisherRegistID, ULONG* pulUSBMode, long* pResultCode) override;
    bool IsRunningCommunicateService() override;
    bool SetServiceUpdateErrorDiscContinueCount(long* pResultCode, LPCTSTR szPublisherRegistID) override;

    // A local publisher reads its jobs from the job folder, so these do nothing.

    bool StartConnection(LPCTSTR szPublisherRegistID, DWORD* pdwHandle, DWORD* pdwResultCode) override;
    bool EndConnection(DWORD dwHandle) override;
    CString GetPublishID(DWORD dwHandle, DWORD* pdwResultCode) override;
    bool SendJobData(DWORD dwHandle, const BYTE* pData, DWORD dwSize, int* pnServerJobID,
                     DWORD* pdwResultCode) override;
    bool SendPRNData(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                     DWORD* pdwResultCode) override;
    bool CommitJob(DWORD dwHandle, int nServerJobID, DWORD* pdwResultCode) override;
    bool SendDiscInfo(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                      DWORD* pdwResultCode) override;
    /// Cancels by job id only.
    bool CancelJob(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, DWORD dwHandle, int nServerJobID,
                   long* pResultCode) override;
    CString GetHostName(LPCTSTR szPublisherRegistID) override;
    CString GetDeviceInfo(LPCTSTR szPublisherRegistID, DWORD dwInfoType, DWORD* pdwResultCode) override;
    int GetCommunicateJobCount(LPCTSTR szPublisherRegistID) override;

    // Capabilities of the model, from its row of the table

    virtual bool IsSupportPublishMode(UINT uiPublishMode);
    virtual bool IsSupportDiscType(UINT uiDiscType);
    virtual bool IsSupportUseDrive();
    virtual bool IsSupportStacker4();

    bool SetServiceJobMove(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode);
    /// ARV_PC_PNUM_PRECISION_*; low if the service does not support the query. 0xFFFFFFFF on failure.
    ULONG GetServiceAbilityPnumPrecision(LPCTSTR szPublisherRegistID, long* pResultCode);
    /// Adjusts the stackers to the mode. Sets `bChanged` on a change and never clears it.
    bool UpdatePublishInfoFromPubMode(PUBLISHERINFO* pstPubInfo, bool& bChanged);
    /// The first 1.25 percent of a part's life do not count.
    unsigned long CalcDriveMaintenanceValueCorrection(unsigned long ulUsedValue, unsigned long ulLifeValue);

    // Exchange with the service

    struct ServiceCommand
    {
        ULONG ulControlID;
        LPCTSTR pPublisherRegistID; ///< may be null
        LPCTSTR pJobID;             ///< may be null
        ULONG ulSubParam;
    };

    /// Runs one command; see below.
    int GetServiceResponse(ULONG ulControlID, LPCTSTR pPublisherRegistID, LPCTSTR pJobID, ULONG ulSubParam,
                           void** ppResponse, ULONG* pResponseLength);
    /// Runs the commands in order, each on its own connection. Returns 0, an ERR_SERVICE_* value, or the
    /// result code of the service. On 0, each `ppResponse[i]` is null for an empty payload, or an array of
    /// char that the caller frees with delete[]. On any other result all are null.
    int GetServiceResponse(ServiceCommand* pCommand, int nCommandCnt, void** ppResponse,
                           ULONG* pResponseLength);
    /// The caller closes the handle. INVALID_HANDLE_VALUE on failure.
    HANDLE OpenServicePipe(int* pResultCode);
    bool WriteServiceCommand(HANDLE hPipe, void* pImg, ULONG ulImgLength, int* pResultCode);
    /// Reads exactly `ulResponseLength` bytes in one read.
    bool ReadServiceResponse(HANDLE hPipe, void* pResponse, ULONG ulResponseLength, int* pResultCode);
    /// Called from another thread: aborts the exchange that started last, which then fails with -1.
    bool CancelCommunicateService();

protected:
    struct ServicePayload
    {
        std::unique_ptr<char[]> pData; ///< null if empty
        ULONG ulLength = 0;
    };

    /// Runs one exchange. Also stores the result in `*pResultCode`, which may be null.
    int AskService(ULONG ulControlID, LPCTSTR szPublisherRegistID, LPCTSTR pJobID, ULONG ulSubParam,
                   ServicePayload& payload, long* pResultCode);
    struct RecordQuery
    {
        ULONG ulControlID;
        void* pAnswer;
        ULONG ulSize; ///< required size of the reply, in bytes
    };

    /// Runs all queries. Fills either all answers or none.
    bool QueryRecords(LPCTSTR szPublisherRegistID, std::initializer_list<RecordQuery> queries,
                      long* pResultCode);
    /// Runs one query. Fails unless the payload has exactly `ulSize` bytes.
    bool QueryService(ULONG ulControlID, LPCTSTR szPublisherRegistID, void* pAnswer, ULONG ulSize,
                      long* pResultCode);
    /// As QueryService, but a successful reply of another size stops the process.
    bool QueryServiceChecked(ULONG ulControlID, LPCTSTR szPublisherRegistID, void* pAnswer, ULONG ulSize,
                             long* pResultCode);

    /// Fills in the versions of auto loader and printer, for models with and without drives.
    static void SetCommonVersions(PUBLISHERVERSIONINFO& sVersionInfo, LPCTSTR szPublisherRegistID,
                                  const ST_PC_ALD_INFO& ald, const ST_PC_PRT_INFO& printer);

    SettingFile FileOf(LPCTSTR szPublisherRegistID) const;
    /// The settings that models with and without drives share.
    static void ReadCommonSettings(const SettingRecord& record, LPCTSTR szPublisherRegistID,
                                   PUBLISHERINFO& info);
    /// Writes only the mode and the output stackers; the rest of the file stays.
    void WriteModeKeys(LPCTSTR szPublisherRegistID, const PUBLISHERINFO& sPublisherInfo) const;

private:
    /// The row of GetPublisherMgrType().
    const PublisherModel& Model();

    bool QueryFourValues(ULONG ulControlID, LPCTSTR szPublisherRegistID, ULONG* pulValue1, ULONG* pulValue2,
                         ULONG* pulValue3, ULONG* pulValue4, long* pResultCode);
    bool QueryJobs(LPCTSTR szPublisherRegistID, ULONG ulSubParam, bool bMayBeEmpty,
                   JobStatusArray* parrJobStatus, long* pResultCode);
    bool CommandService(ULONG ulControlID, LPCTSTR szPublisherRegistID, LPCTSTR pJobID, ULONG ulSubParam,
                        long* pResultCode);

    bool Exchange(HANDLE hPipe, const ServiceCommand& command, void** ppResponse, ULONG* pResponseLength,
                  int* pResultCode);
    void PublishPipe(HANDLE hPipe);
    void ClosePipe(HANDLE hPipe);

    HANDLE m_hPipeConnection = nullptr; // of the exchange that started last, while it runs
    OVERLAPPED m_olAnsync{};            // passed to the transfers, which complete inside the call
    bool m_bConnectPublisherIDMode;
    CString m_strSettingFolder;
    std::mutex m_mtxPipeConnection; // guards m_hPipeConnection: a handle in it is not yet closed
};
