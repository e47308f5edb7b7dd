// The one class that the application uses for publishers.
#pragma once

#include "PublisherMgrIF.h"

#include <string>

struct PublisherModel;

/// Finds out from a regist id which implementation serves a publisher, and keeps the store of setting files.
/// Nothing of a publisher is kept between calls: each reads the setting file and the registry again, unless
/// the thread holds a ReadPass. Safe for several threads at once. The operations that ask a device block
/// until it answers.
class CPublisherMgr
{
public:
    /// The argument is ignored.
    explicit CPublisherMgr(bool bPublisherIDMode);
    ~CPublisherMgr();
    CPublisherMgr(const CPublisherMgr&) = delete;
    CPublisherMgr& operator=(const CPublisherMgr&) = delete;

    // Which implementation serves a publisher. The object stays the manager's; null when there is none.

    IPublisherMgr* GetPublisherMgrIFFromType(UINT uiPublisherDevType);
    IPublisherMgr* GetPublisherMgrIFFromID(LPCTSTR szPublisherRegistID);
    /// enPublisherConnectType.
    UINT GetConnectType(LPCTSTR szPublisherRegistID);
    /// The model as the service recorded it, a bare family or a full model value; 0 without a setting file,
    /// 0xFFFFFFFF when the device key does not tell.
    DWORD GetLocalDeviceDPType(LPCTSTR szPublisherRegistID);
    /// enPublisherType.
    UINT GetPublisherDevType(LPCTSTR szPublisherRegistID);
    /// enNetworkPublisherType.
    UINT GetNPType(LPCTSTR lpszPublisherRegistID);

    // The store of setting files

    /// enCreateSettingFileError; a file that exists already is an error.
    long CreatePublisherSettingFile(LPCTSTR szPublisherRegistID);
    /// True: the installation makes the folder.
    bool CreateSettingFolder();
    bool IsExistSettingFolder();
    CString GetSettingFolderePath();
    /// Writes the record as the publisher that its own regist id names; the first argument is not used.
    bool AddPublisher(LPCTSTR szPublisherRegistID, PUBLISHERINFO sPublisherInfo);
    /// True also when there is no such publisher.
    bool DeletePublisher(LPCTSTR szPublisherRegistID);
    bool UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo);
    /// Fills `uiPublisherDevType` whatever the result.
    bool GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo, BOOL bConnectionError);
    CString GetPublisherName(LPCTSTR szPublisherRegistID);
    /// Leaves the output empty when no publisher bears the name. Case matters.
    void GetPublisherRegistIDFromName(LPCTSTR lpszPublisherName, CString* pstrPublisherRegistID);
    /// Appends the regist ids in no order; the number of them.
    int EnumRegistedPublisher(CStringArray* psarrPublisherRegistID);
    /// With `bOnlyCorrect` the name must be correct too: at most 64 bytes, no backslash. A null id asks for
    /// any publisher, and only for correct ones.
    bool IsExistRegistedPublisher(LPCTSTR szPublisherRegistID, BOOL bOnlyCorrect);
    /// Whether there is a setting file, also one that cannot be read. Nothing is opened.
    bool IsExistSettingFile(LPCTSTR szPublisherRegistID);
    /// Case matters.
    bool IsExistSameNamePublisher(LPCTSTR lpszPublisherName);

    // Devices of this computer

    /// The GUIDs of all devices that the service has recorded, replacing what the array held.
    int EnumConnectedPublisher(CStringArray* psarrGUIDList);
    /// Whether the device is present; with a null GUID whether any device was ever recorded.
    bool IsExistConnectedPublisher(LPCTSTR lpszGUID);
    /// Whether the key has a sub key.
    bool IsExistRegistryKey(HKEY hRoot, LPCTSTR pszRootKey);
    /// ARV_PC_USBMODE_* of a device that is present; 0 otherwise.
    int IsSuperSpeedUSB(LPCTSTR lpszGUID);
    /// Forgets the devices that are absent and that no registered publisher uses.
    void ClearUnusedGUID();

    bool IsExistArchiveDiscFunctionPublisher();
    bool IsExistErrorRateFunctionPublisher();
    bool IsExistLocalPublisher();

    // Options of the error-rate measurement. A getter leaves its output alone when there is no such value.

    bool GetThresholdOfC1Error(UINT* puiValue);
    bool SetThresholdOfC1Error(UINT uiValue);
    bool GetThresholdOfPIEsum8(UINT* puiValue);
    bool SetThresholdOfPIEsum8(UINT uiValue);
    bool GetThresholdOfRSER(UINT* puiValue);
    bool SetThresholdOfRSER(UINT uiValue);
    bool GetThresholdOfBurstError(UINT* puiValue);
    bool SetThresholdOfBurstError(UINT uiValue);
    bool GetMeasurementContinueCount(UINT* puiValue);
    bool SetMeasurementContinueCount(UINT uiValue);
    bool GetErrorRateLogFolderPath(CString* pstrPath);
    bool SetErrorRateLogFolderPath(CString strPath);

    // Forwards to the implementation that serves the publisher (see IPublisherMgr); false, -1, 0 or an empty
    // text when there is none.

    bool UpdatePublishMode(LPCTSTR szPublisherRegistID, const PUBLISHERINFO* psPublisherInfo,
                           bool bResetDefault, bool* pbSetDefault);
    CString GetPublisherGUID(LPCTSTR szPublisherRegistID);
    UINT GetCopiesMax(LPCTSTR szPublisherRegistID, bool bInputAuto);
    CString GetSupportWriteSpeedString(LPCTSTR szPublisherRegistID, UINT uiDrive);
    bool IsPossibleCommunicateService(long* pResultCode);
    bool IsPossibleCommunicate(LPCTSTR szPublisherRegistID, long* pResultCode);
    int GetJobCount(LPCTSTR szPublisherRegistID, long* pResultCode);
    bool IsFatalErrorInPublisher(LPCTSTR szPublisherRegistID, long* pResultCode);
    bool SetServiceJobCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode);
    bool SetServiceJobErrorCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode);
    bool SetServiceJobStop(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode);
    bool SetServiceJobContinue(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode);
    bool SetServiceNotifyChange(LPCTSTR szPublisherRegistID, long* pResultCode);
    bool GetPublisherVersionInfo(LPCTSTR szPublisherRegistID, PUBLISHERVERSIONINFO* psPublisherVersionInfo,
                                 long* pResultCode);
    bool GetPublisherMaintenanceInfo(LPCTSTR szPublisherRegistID,
                                     PUBLISHERMAINTENANCEINFO* psPublisherMaintenanceInfo, long* pResultCode);
    bool GetServiceJobStatus(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus, long* pResultCode);
    bool GetServiceJobStatusUnfinish(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                     long* pResultCode);
    bool GetServiceJobStatusFinish(LPCTSTR szPublisherRegistID, JobStatusArray* parrJobStatus,
                                   long* pResultCode);
    bool GetServiceInkStatus(LPCTSTR szPublisherRegistID, ST_PC_INK_STATUS* pInkStatus, long* pResultCode);
    bool GetServiceAldStatus(LPCTSTR szPublisherRegistID, ULONG* pulAldStatus, long* pResultCode);
    bool GetServiceDriveStatus(LPCTSTR szPublisherRegistID, ST_PC_DRV_STATUS* pDrv1, ST_PC_DRV_STATUS* pDrv2,
                               long* pResultCode);
    bool GetServicePrinterStatus(LPCTSTR szPublisherRegistID, ULONG* pulPrinterStatus, long* pResultCode);
    bool GetServiceStackerStatus(LPCTSTR szPublisherRegistID, ULONG* pulStacker1, ULONG* pulStacker2,
                                 ULONG* pulStacker3, ULONG* pulStacker4, long* pResultCode);
    int GetServiceEstimateCirculation(LPCTSTR szPublisherRegistID, long* pResultCode);
    bool GetServiceFatalCode(LPCTSTR szPublisherRegistID, ULONG* pulFatalCode, long* pResultCode);
    bool GetServiceNotifyStatus(LPCTSTR szPublisherRegistID, NotifyStatusArray* parrNotifyStatus,
                                long* pResultCode);
    bool GetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG* pulPublishMode, long* pResultCode);
    bool SetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG ulPublishMode, long* pResultCode);
    bool GetServiceStackerDiscType(LPCTSTR szPublisherRegistID, ULONG* pulStacker1, ULONG* pulStacker2,
                                   ULONG* pulStacker3, ULONG* pulStacker4, long* pResultCode);
    bool GetServiceUSBMode(LPCTSTR szPublisherRegistID, ULONG* pulUSBMode, long* pResultCode);
    bool IsRunningCommunicateService();
    /// Tells the service for every registered publisher that measures error rates; the id is ignored. The
    /// result of the last one, false when there is none.
    bool SetServiceUpdateErrorDiscContinueCount(long* pResultCode, LPCTSTR lpszPublisherID);
    bool StartConnection(LPCTSTR szPublisherRegistID, DWORD* pdwHandle, DWORD* pdwResultCode);
    bool EndConnection(DWORD dwHandle);
    CString GetPublishID(DWORD dwHandle, DWORD* pdwResultCode);
    bool SendJobData(DWORD dwHandle, const BYTE* pData, DWORD dwSize, int* pnServerJobID,
                     DWORD* pdwResultCode);
    bool SendPRNData(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize, DWORD* pdwResultCode);
    bool CommitJob(DWORD dwHandle, int nServerJobID, DWORD* pdwResultCode);
    bool SendDiscInfo(DWORD dwHandle, int nServerJobID, const BYTE* pData, DWORD dwSize,
                      DWORD* pdwResultCode);
    bool CancelJob(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, DWORD dwHandle, int nServerJobID,
                   long* pResultCode);
    CString GetDeviceInfo(LPCTSTR szPublisherRegistID, DWORD dwInfoType, DWORD* pdwResultCode);
    int GetCommunicateJobCount(LPCTSTR szPublisherRegistID);

private:
    std::string SettingFilePath(LPCTSTR szPublisherRegistID) const;
    bool IsCorrectName(LPCTSTR szPublisherRegistID);
    /// Whether the device key of a registered publisher, of either connection type, records such a model.
    bool IsExistModel(bool (*pMatches)(const PublisherModel& model));

    CString m_strSettingFolder;
    CArray<IPublisherMgr*, IPublisherMgr*> m_arrPublisherMgr; // owned; never changes after construction
};
