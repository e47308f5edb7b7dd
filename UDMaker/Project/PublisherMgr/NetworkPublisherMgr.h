// Publishers that a publisher server on the network stands before: the setting file for their names and their
// address, the server for everything else.
#pragma once

#include "NW_Com_LibConst.h"
#include "PublisherMgrIF.h"
#include "SettingFile.h"

#include <functional>

/// Turns each operation into one short connection: open, ask, close. What the server tells is converted into
/// the values that the control service uses, so that the windows know no difference. Keeps nothing between
/// calls. An operation blocks while the host's name is looked up, then for 5 seconds at most while no
/// connection can be made, and then as long as the server takes, up to 2 minutes of silence for each request.
///
/// Where no connection can be made `*pResultCode` becomes -1.
class CNetworkPublisherMgr : public IPublisherMgr
{
public:
    /// The first argument is ignored. `strPath`: the folder of the setting files.
    CNetworkPublisherMgr(bool bPublisherIDMode, CString strPath);

    UINT GetPublisherMgrType() override;
    /// Name, printer, connection type and address alone. A file that may not be written is a failure, any
    /// other trouble stops the process.
    bool UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo) override;
    /// With `bConnectionError` the values that only the server knows stay 0xFFFFFFFF.
    bool GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo,
                          BOOL bConnectionError) override;
    CString GetPublisherGUID(LPCTSTR szPublisherRegistID) override;
    UINT GetCopiesMax(LPCTSTR szPublisherRegistID, bool bInputAuto) override;
    CString GetSupportWriteSpeedString(LPCTSTR szPublisherRegistID, UINT uiDrive) override;

    bool IsPossibleCommunicateService(long* pResultCode) override;
    /// `*pResultCode` takes the NCL_ code why no connection can be made.
    bool IsPossibleCommunicate(LPCTSTR szPublisherRegistID, long* pResultCode) override;
    int GetJobCount(LPCTSTR szPublisherRegistID, long* pResultCode) override;
    /// `*pResultCode` takes an NCL_FATAL_ERR_ value. A server that cannot be reached has no fatal error.
    bool IsFatalErrorInPublisher(LPCTSTR szPublisherRegistID, long* pResultCode) override;

    /// Cancels the first job of that id that the server lets go.
    bool SetServiceJobCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) override;
    bool SetServiceJobErrorCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) override;
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

    // Outputs may be null. `*pResultCode` takes 0, or an ERR_SERVICE_* value for what the server or the way
    // to it failed in. A state that no table knows stops the process.

    bool GetServiceInkStatus(LPCTSTR szPublisherRegistID, ST_PC_INK_STATUS* pInkStatus,
                             long* pResultCode) override;
    bool GetServiceAldStatus(LPCTSTR szPublisherRegistID, ULONG* pulAldStatus, long* pResultCode) override;
    bool GetServiceDriveStatus(LPCTSTR szPublisherRegistID, ST_PC_DRV_STATUS* pDrv1, ST_PC_DRV_STATUS* pDrv2,
                               long* pResultCode) override;
    bool GetServicePrinterStatus(LPCTSTR szPublisherRegistID, ULONG* pulPrinterStatus,
                                 long* pResultCode) override;
    /// Stacker 4 is told as stacker 3 is: programs count on it.
    bool GetServiceStackerStatus(LPCTSTR szPublisherRegistID, ULONG* pulStacker1, ULONG* pulStacker2,
                                 ULONG* pulStacker3, ULONG* pulStacker4, long* pResultCode) override;
    int GetServiceEstimateCirculation(LPCTSTR szPublisherRegistID, long* pResultCode) override;
    /// `*pResultCode` takes the NCL_ code itself. The mode is written on a failure too, as one that is not
    /// known.
    bool GetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG* pulPublishMode,
                               long* pResultCode) override;

    // What a network publisher lacks: nothing is done, and nothing is written.

    bool UpdatePublishMode(LPCTSTR szPublisherRegistID, const PUBLISHERINFO* psPublisherInfo,
                           bool bResetDefault, bool* pbSetDefault) override;
    bool SetServiceJobStop(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) override;
    bool SetServiceJobContinue(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) override;
    bool GetServiceFatalCode(LPCTSTR szPublisherRegistID, ULONG* pulFatalCode, long* pResultCode) override;
    bool GetServiceNotifyStatus(LPCTSTR szPublisherRegistID, NotifyStatusArray* parrNotifyStatus,
                                long* pResultCode) override;
    bool SetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG ulPublishMode, long* pResultCode) override;
    bool GetServiceStackerDiscType(LPCTSTR szPublisherRegistID, ULONG* pulStacker1, ULONG* pulStacker2,
                                   ULONG* pulStacker3, ULONG* pulStacker4, long* pResultCode) override;
    bool GetServiceUSBMode(LPCTSTR szPublisherRegistID, ULONG* pulUSBMode, long* pResultCode) override;
    bool IsRunningCommunicateService() override;
    bool SetServiceUpdateErrorDiscContinueCount(long* pResultCode, LPCTSTR szPublisherRegistID) override;

    // Job submission, on a handle that the caller holds. Codes are those of the library (NCL_).

    /// `*pdwResultCode` stays as it was when the publisher has no address.
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
    /// By the server's number alone.
    bool CancelJob(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, DWORD dwHandle, int nServerJobID,
                   long* pResultCode) override;
    DWORD SendDiscWriteInfo(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize);
    DWORD SendDiscImage(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                        DWORD dwTotalSizeLow, DWORD dwTotalSizeHigh, const char* pszImageName);

    /// What follows the last backslash of the address.
    CString GetHostName(LPCTSTR szPublisherRegistID) override;
    /// The address as it is stored.
    CString GetHostNameFull(LPCTSTR szPublisherRegistID);
    CString GetDeviceInfo(LPCTSTR szPublisherRegistID, DWORD dwInfoType, DWORD* pdwResultCode) override;
    int GetCommunicateJobCount(LPCTSTR szPublisherRegistID) override;

    /// Whether a server can be served that need not be registered: an NCL_ code.
    DWORD ConnectionTest(LPCTSTR lpszHostName);

    // For other programs of the suite, which bring their own.

    bool GetServiceJobStatusInner(LPCTSTR szPublisherRegistID, DWORD dwType, JobStatusArray* parrJobStatus,
                                  long* pResultCode);
    bool CancelCommunicateService();

    // The library's values as those of publisher management and of the control service.

    /// An enPublishMode; 0xFFFFFFFF for a mode that is not known.
    static UINT ConvertComLibValueToPubMgrValue_PubMode(DWORD dwValue);
    /// `dwComLibValueType` is the NCL_DIT_ number of a value that is a number; 0xFFFFFFFF for any other, and
    /// for a value that the type does not have.
    static UINT ConvertComLibValueToPubMgrValue(DWORD dwComLibValueType, DWORD dwValue);
    /// An ARV_PC_DRV_STATE_* value.
    static ULONG ConvertComLibValueToPubMgrValue_DrvStatus(const DrvStatusBaseEx& drv);
    /// An ARV_PC_PRT_STATE_* value.
    static ULONG ConvertComLibValueToPubMgrValue_PrnStatus(const PrnStatus& dsPrinter);
    /// A percentage, with ARV_PC_INK_NEAR_EMPTY or without, or a value of the ink table.
    static ULONG ConvertComLibValueToPubMgrValue_InkStatus(const InkStatusBase& isInk);
    /// ARV_PC_ALD_STATE_* bits.
    static ULONG ConvertComLibValueToPubMgrValue_AldStatus(const ALDStatus& asAld);
    /// A quantity or an ARV_PC_STK_STATUS_* value, with ARV_PC_STK_STATUS_SUPPLY or without.
    static ULONG ConvertComLibValueToPubMgrValue_StackerStatus(const StackerStatusBase& stk);
    /// Texts that are too long for the record are cut. A job to which its submitter gave no id gets one made
    /// of the publisher's and the server's number, cut to 39 bytes.
    static ST_PC_JOB_STATUS ConvertComLibValueToPubMgrValue_JobStatus(const JobStatus& js,
                                                                      LPCTSTR szPublisherRegistID);
    static ST_PC_JOB_STATUS ConvertComLibValueToPubMgrValue_JobStatus(const JobStatusEx& js,
                                                                      LPCTSTR szPublisherRegistID);
    template <class Status>
    static ST_PC_JOB_STATUS ConvertComLibValueToPubMgrValue_JobStatusT(const Status& js,
                                                                       LPCTSTR szPublisherRegistID);

private:
    /// A connection for one operation, which ends with the object.
    class Connection
    {
    public:
        /// `*pResultCode` becomes -1 when none can be made; it may be null.
        Connection(CNetworkPublisherMgr& mgr, LPCTSTR szPublisherRegistID, long* pResultCode = nullptr);
        Connection(const Connection&) = delete;
        Connection& operator=(const Connection&) = delete;
        ~Connection();

        bool IsOpen() const;
        DWORD Handle() const;

    private:
        CNetworkPublisherMgr& m_mgr;
        DWORD m_dwHandle = 0;
        bool m_bOpen;
    };

    using Question = std::function<DWORD(DWORD dwHandle)>;

    /// A code of the library (NCL_) as 0 or an ERR_SERVICE_* value.
    static long ServiceResult(DWORD dwCode);

    SettingFile FileOf(LPCTSTR szPublisherRegistID) const;
    bool ReadSettingsOfServer(PUBLISHERINFO& info);
    /// One question on a connection of its own; its code goes to `*pResultCode` as an ERR_SERVICE_* value.
    bool Ask(LPCTSTR szPublisherRegistID, long* pResultCode, const Question& question);
    /// Lists the jobs that are not finished, those that are, or both; true if either list could be had. Only
    /// then the array is filled anew.
    bool ListJobs(LPCTSTR szPublisherRegistID, bool bUnfinished, bool bFinished,
                  JobStatusArray* parrJobStatus, long* pResultCode);
    /// The number of jobs of an NCL_JNT_ kind, or -1.
    int CountJobs(LPCTSTR szPublisherRegistID, DWORD dwType, long* pResultCode);

    CString m_strSettingFolder;
};
