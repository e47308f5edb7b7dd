// Network publishers, each reached through its own server. Name and address come from the setting file,
// everything else from the server.
#pragma once

#include "NW_Com_LibConst.h"
#include "PublisherMgrIF.h"
#include "SettingFile.h"

#include <functional>

/// Runs each operation on a short connection: open, query, close. Converts the replies into the values of the
/// control service, so that callers need not distinguish the two. Caches nothing between calls. An operation
/// blocks for the host name lookup, then at most 5 seconds for the connection, and then until the server
/// replies, sends nothing for 2 minutes or takes 10 minutes for the reply, for each request.
///
/// If the connection fails, `*pResultCode` becomes -1.
class CNetworkPublisherMgr : public IPublisherMgr
{
public:
    /// The first argument is ignored. `strPath`: the folder of the setting files.
    CNetworkPublisherMgr(bool bPublisherIDMode, CString strPath);

    UINT GetPublisherMgrType() override;
    /// Writes only name, printer, connection type and address. Returns false if access to the file is denied;
    /// any other error stops the process.
    bool UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo) override;
    /// With `bConnectionError`, the values from the server stay 0xFFFFFFFF.
    bool GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo,
                          BOOL bConnectionError) override;
    CString GetPublisherGUID(LPCTSTR szPublisherRegistID) override;
    UINT GetCopiesMax(LPCTSTR szPublisherRegistID, bool bInputAuto) override;
    CString GetSupportWriteSpeedString(LPCTSTR szPublisherRegistID, UINT uiDrive) override;

    bool IsPossibleCommunicateService(long* pResultCode) override;
    /// `*pResultCode` receives the NCL_ code of the connection attempt.
    bool IsPossibleCommunicate(LPCTSTR szPublisherRegistID, long* pResultCode) override;
    int GetJobCount(LPCTSTR szPublisherRegistID, long* pResultCode) override;
    /// `*pResultCode` receives an NCL_FATAL_ERR_ value, or ARV_PC_ERROR_OFFLINE if the query fails. False if
    /// no connection can be made.
    bool IsFatalErrorInPublisher(LPCTSTR szPublisherRegistID, long* pResultCode) override;

    /// Cancels the first job with that id for which the server accepts the request.
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

    // Outputs may be null. `*pResultCode` receives 0, or an ERR_SERVICE_* value for a failure of the server
    // or the connection. An unknown drive or printer state stops the process.

    bool GetServiceInkStatus(LPCTSTR szPublisherRegistID, ST_PC_INK_STATUS* pInkStatus,
                             long* pResultCode) override;
    bool GetServiceAldStatus(LPCTSTR szPublisherRegistID, ULONG* pulAldStatus, long* pResultCode) override;
    bool GetServiceDriveStatus(LPCTSTR szPublisherRegistID, ST_PC_DRV_STATUS* pDrv1, ST_PC_DRV_STATUS* pDrv2,
                               long* pResultCode) override;
    bool GetServicePrinterStatus(LPCTSTR szPublisherRegistID, ULONG* pulPrinterStatus,
                                 long* pResultCode) override;
    /// Stacker 4 gets the value of stacker 3: programs of the suite rely on it.
    bool GetServiceStackerStatus(LPCTSTR szPublisherRegistID, ULONG* pulStacker1, ULONG* pulStacker2,
                                 ULONG* pulStacker3, ULONG* pulStacker4, long* pResultCode) override;
    int GetServiceEstimateCirculation(LPCTSTR szPublisherRegistID, long* pResultCode) override;
    /// `*pResultCode` receives the NCL_ code itself. If the query fails, the mode is set to the value for
    /// an unknown mode.
    bool GetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG* pulPublishMode,
                               long* pResultCode) override;

    // Not supported by network publishers: does nothing and writes no output.

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

    // Job submission on a handle owned by the caller. The result codes are those of the library (NCL_).

    /// `*pdwResultCode` is unchanged if the publisher has no address.
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
    /// Cancels by the server's job number only.
    bool CancelJob(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, DWORD dwHandle, int nServerJobID,
                   long* pResultCode) override;
    DWORD SendDiscWriteInfo(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize);
    DWORD SendDiscImage(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                        DWORD dwTotalSizeLow, DWORD dwTotalSizeHigh, const char* pszImageName);

    /// The part of the address after the last backslash.
    CString GetHostName(LPCTSTR szPublisherRegistID) override;
    /// The address as stored.
    CString GetHostNameFull(LPCTSTR szPublisherRegistID);
    CString GetDeviceInfo(LPCTSTR szPublisherRegistID, DWORD dwInfoType, DWORD* pdwResultCode) override;
    int GetCommunicateJobCount(LPCTSTR szPublisherRegistID) override;

    /// Tests the connection to a server, which need not be registered. Returns an NCL_ code.
    DWORD ConnectionTest(LPCTSTR lpszHostName);

    // Declared for other programs of the suite, which define these themselves.

    bool GetServiceJobStatusInner(LPCTSTR szPublisherRegistID, DWORD dwType, JobStatusArray* parrJobStatus,
                                  long* pResultCode);
    bool CancelCommunicateService();

    // Conversion of the library's values to those of publisher management and of the control service.

    /// An enPublishMode; 0xFFFFFFFF for an unknown mode.
    static UINT ConvertComLibValueToPubMgrValue_PubMode(DWORD dwValue);
    /// `dwComLibValueType` is the NCL_DIT_ number of a numeric value. Returns 0xFFFFFFFF for any other type
    /// and for a value that is not defined for the type.
    static UINT ConvertComLibValueToPubMgrValue(DWORD dwComLibValueType, DWORD dwValue);
    /// An ARV_PC_DRV_STATE_* value.
    static ULONG ConvertComLibValueToPubMgrValue_DrvStatus(const DrvStatusBaseEx& drv);
    /// An ARV_PC_PRT_STATE_* value.
    static ULONG ConvertComLibValueToPubMgrValue_PrnStatus(const PrnStatus& dsPrinter);
    /// A percentage, optionally with ARV_PC_INK_NEAR_EMPTY, or a special ink value.
    static ULONG ConvertComLibValueToPubMgrValue_InkStatus(const InkStatusBase& isInk);
    /// ARV_PC_ALD_STATE_* bits.
    static ULONG ConvertComLibValueToPubMgrValue_AldStatus(const ALDStatus& asAld);
    /// A quantity or an ARV_PC_STK_STATUS_* value, optionally with ARV_PC_STK_STATUS_SUPPLY.
    static ULONG ConvertComLibValueToPubMgrValue_StackerStatus(const StackerStatusBase& stk);
    /// Truncates texts that are too long for the record. A job without an id gets one made of the publisher's
    /// regist id and the server's job number, truncated to 39 bytes.
    static ST_PC_JOB_STATUS ConvertComLibValueToPubMgrValue_JobStatus(const JobStatus& js,
                                                                      LPCTSTR szPublisherRegistID);
    static ST_PC_JOB_STATUS ConvertComLibValueToPubMgrValue_JobStatus(const JobStatusEx& js,
                                                                      LPCTSTR szPublisherRegistID);
    template <class Status>
    static ST_PC_JOB_STATUS ConvertComLibValueToPubMgrValue_JobStatusT(const Status& js,
                                                                       LPCTSTR szPublisherRegistID);

private:
    /// A connection for one operation. The destructor ends it.
    class Connection
    {
    public:
        /// `*pResultCode` becomes -1 if the connection fails; `pResultCode` may be null.
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

    /// Converts a code of the library (NCL_) to 0 or an ERR_SERVICE_* value.
    static long ServiceResult(DWORD dwCode);

    SettingFile FileOf(LPCTSTR szPublisherRegistID) const;
    bool ReadSettingsOfServer(PUBLISHERINFO& info);
    /// Runs one query on its own connection. `*pResultCode` receives the result of ServiceResult.
    bool Ask(LPCTSTR szPublisherRegistID, long* pResultCode, const Question& question);
    /// Lists the unfinished jobs, the finished jobs, or both. Returns true if at least one query succeeds.
    /// Only then the array is replaced.
    bool ListJobs(LPCTSTR szPublisherRegistID, bool bUnfinished, bool bFinished,
                  JobStatusArray* parrJobStatus, long* pResultCode);
    /// The number of jobs of an NCL_JNT_ kind, or -1.
    int CountJobs(LPCTSTR szPublisherRegistID, DWORD dwType, long* pResultCode);

    CString m_strSettingFolder;
};
