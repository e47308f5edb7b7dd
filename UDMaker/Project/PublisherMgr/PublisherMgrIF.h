// The records of publisher management and the interface to every kind of publisher.
#pragma once

#include "PubMgrConst.h"
#include "PublisherCtrlConst.h"
#include "Win_def_MFC.h"

/// The settings of a publisher.
struct tagPublisherInfo
{
    CString strGUID;              ///< name of the device key; empty for a network publisher
    CString strPublisherRegistID; ///< base name of the setting file, the key of every operation
    CString strPublisherName;     ///< shown to the user
    UINT uiPublishMode = PUBMGR_DEFAULT_PUBLISHMODE;
    UINT uiStacker1DiscType = PUBMGR_DEFAULT_STACKERTYPE;
    UINT uiStacker2DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
    UINT uiStacker3DiscType = PUBMGR_STACKERDISCTYPE_NOTUSE;
    UINT uiStacker4DiscType = PUBMGR_STACKERDISCTYPE_OUTPUT;
    UINT uiUseDrive = PUBMGR_DEFAULT_USEDRIVE;
    UINT uiRetryCount = PUBMGR_DEFAULT_RETRYCOUNT; ///< the effective count
    CString strPrinterName;
    bool bAddErrorMark = true;                            ///< mark failed discs
    UINT uiPublisherType = PUBMGR_CONNECTTYPE_LOCAL;      ///< enPublisherConnectType, not the model
    CString strHostName;                                  ///< server address of a network publisher
    UINT uiAddErrorMark = 1;                              ///< the mark as a number (network)
    UINT uiPublisherDevType = PUBMGR_PUBLISHERTYPE_BASIC; ///< enPublisherType
    UINT uiRetryCountR = PUBMGR_DEFAULT_RETRYCOUNT;
    UINT uiRetryCountW = PUBMGR_DEFAULT_RETRYCOUNT;
    bool bContinuePublish = true; ///< continue after a read error
    UINT uiNetPublisherType = PUBMGR_NPTYPE_UNKNOWN;

    /// Resets all fields to the values of a new record, except `uiAddErrorMark`, which becomes 0.
    void Clear()
    {
        *this = tagPublisherInfo();
        uiAddErrorMark = 0;
    }
};
using PUBLISHERINFO = tagPublisherInfo;

struct tagPublisherVersionInfo
{
    CString strPublisherRegistID;
    CString strSerialNo;
    CString strAutoLoaderVersion;
    CString strPrinterModelName;
    CString strPrinterVersion;
    CString strDrive1ModelName;
    CString strDrive1Version;
    CString strDrive2ModelName;
    CString strDrive2Version;
    CString strSSSVersion;  ///< network only
    CString strUDNAVersion; ///< network only
};
using PUBLISHERVERSIONINFO = tagPublisherVersionInfo;

/// Counters of one drive, each with its life limit. ARV_PC_MAINTENANCEINFO_UNKNOWN is shown as unknown.
struct tagPublisherMaintenanceInfoDrive
{
    UINT uiTrayCount = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiTrayLife = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiWriteCDCount = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiWriteCDLife = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiWriteDVDCount = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiWriteDVDLife = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiWriteBDCount = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiWriteBDLife = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiDriveWriteTimeTotal = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiDriveWriteTimeTotalLife = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiDriveReadTimeTotal = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiDriveReadTimeTotalLife = ARV_PC_MAINTENANCEINFO_UNKNOWN;
};
using PUBMAINTINFODRIVE = tagPublisherMaintenanceInfoDrive;

struct tagPublisherMaintenanceInfo
{
    UINT uiPrintCount = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiCompleteDiscNum = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiMainteBoxCount = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    UINT uiMainteBoxLife = ARV_PC_MAINTENANCEINFO_UNKNOWN;
    PUBMAINTINFODRIVE midrvDrive1;
    PUBMAINTINFODRIVE midrvDrive2;
    UINT uiUsedPlugin = ARV_PC_MAINTENANCEINFO_UNKNOWN; ///< ARV_PC_PLUGIN_USED_* bits
    CString strSerialNo;
    unsigned long ulDRV1Life = ARV_PC_MAINTENANCEINFO_UNKNOWN; ///< ARV_PC_DRV_LIFE* value
    unsigned long ulDRV2Life = ARV_PC_MAINTENANCEINFO_UNKNOWN;
};
using PUBLISHERMAINTENANCEINFO = tagPublisherMaintenanceInfo;

using JobStatusArray = CArray<ST_PC_JOB_STATUS, const ST_PC_JOB_STATUS&>;
using NotifyStatusArray = CArray<unsigned int, unsigned int const&>;

/// One kind of publisher. The regist id identifies a publisher. `pResultCode` may be null; it receives 0, an
/// ERR_SERVICE_* value for a failure of the client, or the positive code of the service or server. Any other
/// null argument stops the process unless an implementation documents otherwise. Thread-safe. Operations that
/// query a device block until it replies.
class IPublisherMgr
{
public:
    virtual ~IPublisherMgr() = default;

    /// enPublisherType of the publishers served.
    virtual UINT GetPublisherMgrType() = 0;
    /// Writes the whole record to the setting file named by its regist id.
    virtual bool UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo) = 0;
    virtual bool UpdatePublishMode(LPCTSTR szPublisherRegistID, const PUBLISHERINFO* psPublisherInfo,
                                   bool bResetDefault, bool* pbSetDefault) = 0;
    /// `bConnectionError`: the caller knows that the device is unreachable, so no connection is attempted.
    virtual bool GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo,
                                  BOOL bConnectionError) = 0;
    virtual CString GetPublisherGUID(LPCTSTR szPublisherRegistID) = 0;
    virtual UINT GetCopiesMax(LPCTSTR szPublisherRegistID, bool bInputAuto) = 0;
    /// `uiDrive` is 1 or 2.
    virtual CString GetSupportWriteSpeedString(LPCTSTR szPublisherRegistID, UINT uiDrive) = 0;

    virtual bool IsPossibleCommunicateService(long* pResultCode) = 0;
    virtual bool IsPossibleCommunicate(LPCTSTR szPublisherRegistID, long* pResultCode) = 0;
    /// The number of jobs, or -1.
    virtual int GetJobCount(LPCTSTR szPublisherRegistID, long* pResultCode) = 0;
    /// `*pResultCode` receives the fatal code, or ARV_PC_ERROR_OFFLINE if the query fails.
    virtual bool IsFatalErrorInPublisher(LPCTSTR szPublisherRegistID, long* pResultCode) = 0;

    virtual bool SetServiceJobCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) = 0;
    virtual bool SetServiceJobErrorCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) = 0;
    virtual bool SetServiceJobStop(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) = 0;
    virtual bool SetServiceJobContinue(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) = 0;
    virtual bool SetServiceNotifyChange(LPCTSTR szPublisherRegistID, long* pResultCode) = 0;

    virtual bool GetPublisherVersionInfo(LPCTSTR szPublisherRegistID,
                                         PUBLISHERVERSIONINFO* psPublisherVersionInfo, long* pResultCode) = 0;
    virtual bool GetPublisherMaintenanceInfo(LPCTSTR szPublisherRegistID,
                                             PUBLISHERMAINTENANCEINFO* psPublisherMaintenanceInfo,
                                             long* pResultCode) = 0;

    virtual bool GetServiceJobStatus(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                     long* pResultCode) = 0;
    virtual bool GetServiceJobStatusUnfinish(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                             long* pResultCode) = 0;
    virtual bool GetServiceJobStatusFinish(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                           long* pResultCode) = 0;

    virtual bool GetServiceInkStatus(LPCTSTR szPublisherRegistID, ST_PC_INK_STATUS* pInkStatus,
                                     long* pResultCode) = 0;
    /// ARV_PC_ALD_STATE_* bits.
    virtual bool GetServiceAldStatus(LPCTSTR szPublisherRegistID, ULONG* pulAldStatus, long* pResultCode) = 0;
    virtual bool GetServiceDriveStatus(LPCTSTR szPublisherRegistID, ST_PC_DRV_STATUS* pDrv1,
                                       ST_PC_DRV_STATUS* pDrv2, long* pResultCode) = 0;
    /// ARV_PC_PRT_STATE_* bits.
    virtual bool GetServicePrinterStatus(LPCTSTR szPublisherRegistID, ULONG* pulPrinterStatus,
                                         long* pResultCode) = 0;
    virtual bool GetServiceStackerStatus(LPCTSTR szPublisherRegistID, ULONG* pulStacker1, ULONG* pulStacker2,
                                         ULONG* pulStacker3, ULONG* pulStacker4, long* pResultCode) = 0;
    /// The number of prints that the remaining ink allows, or -1.
    virtual int GetServiceEstimateCirculation(LPCTSTR szPublisherRegistID, long* pResultCode) = 0;
    virtual bool GetServiceFatalCode(LPCTSTR szPublisherRegistID, ULONG* pulFatalCode, long* pResultCode) = 0;
    virtual bool GetServiceNotifyStatus(LPCTSTR szPublisherRegistID, NotifyStatusArray* parrNotifyStatus,
                                        long* pResultCode) = 0;
    virtual bool GetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG* pulPublishMode,
                                       long* pResultCode) = 0;
    virtual bool SetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG ulPublishMode,
                                       long* pResultCode) = 0;
    virtual bool GetServiceStackerDiscType(LPCTSTR szPublisherRegistID, ULONG* pulStacker1,
                                           ULONG* pulStacker2, ULONG* pulStacker3, ULONG* pulStacker4,
                                           long* pResultCode) = 0;
    virtual bool GetServiceUSBMode(LPCTSTR szPublisherRegistID, ULONG* pulUSBMode, long* pResultCode) = 0;
    /// Whether an exchange with the service is in progress.
    virtual bool IsRunningCommunicateService() = 0;
    /// The order of the arguments differs from the other operations.
    virtual bool SetServiceUpdateErrorDiscContinueCount(long* pResultCode, LPCTSTR szPublisherRegistID) = 0;

    // Job submission. The caller ends each connection that it starts.

    virtual bool StartConnection(LPCTSTR szPublisherRegistID, DWORD* pdwHandle, DWORD* pdwResultCode) = 0;
    virtual bool EndConnection(DWORD dwHandle) = 0;
    virtual CString GetPublishID(DWORD dwHandle, DWORD* pdwResultCode) = 0;
    virtual bool SendJobData(DWORD dwHandle, const BYTE* pData, DWORD dwSize, int* pnServerJobID,
                             DWORD* pdwResultCode) = 0;
    virtual bool SendPRNData(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                             DWORD* pdwResultCode) = 0;
    virtual bool CommitJob(DWORD dwHandle, int nServerJobID, DWORD* pdwResultCode) = 0;
    virtual bool SendDiscInfo(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                              DWORD* pdwResultCode) = 0;
    virtual bool CancelJob(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, DWORD dwHandle, int nServerJobID,
                           long* pResultCode) = 0;

    virtual CString GetHostName(LPCTSTR szPublisherRegistID) = 0;
    /// `dwInfoType` is an NCL_DIT_* text type.
    virtual CString GetDeviceInfo(LPCTSTR szPublisherRegistID, DWORD dwInfoType, DWORD* pdwResultCode) = 0;
    /// The number of jobs being transmitted, or -1.
    virtual int GetCommunicateJobCount(LPCTSTR szPublisherRegistID) = 0;
};
