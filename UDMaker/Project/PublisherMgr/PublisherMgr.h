// The class through which the application accesses publishers.
#pragma once

#include "PublisherMgrIF.h"

#include <string>

struct PublisherModel;

/// Maps a regist id to the implementation that serves the publisher, and manages the setting files. Caches
/// nothing between calls: each call reads the setting file and the registry again, unless the thread holds a
/// ReadPass. Thread-safe. Operations that query a device block until it replies.
class CPublisherMgr
{
public:
    /// The argument is ignored.
    explicit CPublisherMgr(bool bPublisherIDMode);
    ~CPublisherMgr();
    CPublisherMgr(const CPublisherMgr&) = delete;
    CPublisherMgr& operator=(const CPublisherMgr&) = delete;

    // The implementation that serves a publisher. The manager keeps ownership; null if there is none.

    IPublisherMgr* GetPublisherMgrIFFromType(UINT uiPublisherDevType);
    IPublisherMgr* GetPublisherMgrIFFromID(LPCTSTR szPublisherRegistID);
    /// enPublisherConnectType.
    UINT GetConnectType(LPCTSTR szPublisherRegistID);
    /// The model as recorded by the service: a bare family or a full model value. 0 without a setting file,
    /// 0xFFFFFFFF if the device key does not contain it.
    DWORD GetLocalDeviceDPType(LPCTSTR szPublisherRegistID);
    /// enPublisherType.
    UINT GetPublisherDevType(LPCTSTR szPublisherRegistID);
    /// enNetworkPublisherType.
    UINT GetNPType(LPCTSTR lpszPublisherRegistID);

    // The store of setting files

    /// Returns an enCreateSettingFileError; an existing file is an error.
    long CreatePublisherSettingFile(LPCTSTR szPublisherRegistID);
    /// Always true: the installation creates the folder.
    bool CreateSettingFolder();
    bool IsExistSettingFolder();
    CString GetSettingFolderePath();
    /// Writes the record under the regist id in the record; the first argument is ignored.
    bool AddPublisher(LPCTSTR szPublisherRegistID, PUBLISHERINFO sPublisherInfo);
    /// True also if there is no such publisher.
    bool DeletePublisher(LPCTSTR szPublisherRegistID);
    bool UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo);
    /// Sets `uiPublisherDevType` on failure too, unless no implementation serves the publisher.
    bool GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo, BOOL bConnectionError);
    CString GetPublisherName(LPCTSTR szPublisherRegistID);
    /// The output is empty if no publisher has the name. Case-sensitive.
    void GetPublisherRegistIDFromName(LPCTSTR lpszPublisherName, CString* pstrPublisherRegistID);
    /// Appends the regist ids in unspecified order. Returns the number appended.
    int EnumRegistedPublisher(CStringArray* psarrPublisherRegistID);
    /// With `bOnlyCorrect` the name must also be valid: at most 64 bytes, no backslash. A null id means any
    /// publisher and requires `bOnlyCorrect`.
    bool IsExistRegistedPublisher(LPCTSTR szPublisherRegistID, BOOL bOnlyCorrect);
    /// Whether there is a setting file, even an unreadable one. Does not open it.
    bool IsExistSettingFile(LPCTSTR szPublisherRegistID);
    /// Case-sensitive.
    bool IsExistSameNamePublisher(LPCTSTR lpszPublisherName);

    // Devices of this computer

    /// Replaces the content of the array by the GUIDs of all devices that the service has recorded.
    int EnumConnectedPublisher(CStringArray* psarrGUIDList);
    /// Whether the device is connected; with a null GUID, whether any device is recorded.
    bool IsExistConnectedPublisher(LPCTSTR lpszGUID);
    /// Whether the key has a sub key.
    bool IsExistRegistryKey(HKEY hRoot, LPCTSTR pszRootKey);
    /// ARV_PC_USBMODE_* of a connected device; 0 otherwise.
    int IsSuperSpeedUSB(LPCTSTR lpszGUID);
    /// Removes the keys of devices that are disconnected and that no registered publisher uses.
    void ClearUnusedGUID();

    bool IsExistArchiveDiscFunctionPublisher();
    bool IsExistErrorRateFunctionPublisher();
    bool IsExistLocalPublisher();

    // Options of the error-rate measurement. A getter does not change its output if the value is missing.

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

    // Forwarded to the implementation that serves the publisher (see IPublisherMgr). False, -1, 0 or an empty
    // text if there is none.

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
    /// Notifies the service for every registered publisher that measures error rates; the id is ignored.
    /// Returns the result for the last publisher, or false if there is none.
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
