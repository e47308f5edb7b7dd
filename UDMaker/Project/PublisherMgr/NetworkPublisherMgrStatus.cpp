// Device status from the server of a network publisher, and the operations that it does not support.
#include "NetworkPublisherMgr.h"

#include "NW_Com_Lib.h"
#include "OptionalOutput.h"

#include <array>
#include <type_traits>

namespace {

constexpr size_t LONGEST_TEXT = 1024; // bytes of a version, name or serial number, including NUL

/// Reads a text of the device into `strText`, which is unchanged on failure.
bool ReadText(DWORD dwHandle, DWORD dwInfoType, CString& strText)
{
    std::array<char, LONGEST_TEXT> text = {};
    if (::GetDeviceInfo(dwHandle, dwInfoType, text.data(), DWORD{text.size()}) != NCL_SUCCESS) {
        return false;
    }
    strText = text.data();
    return true;
}

/// Copies the record; the counters for Blu-ray only from the extended one.
template <class Wire>
void CopyMaintenance(PUBLISHERMAINTENANCEINFO& info, const Wire& wire)
{
    const auto number = [](int nValue) { return static_cast<UINT>(nValue); };
    info.uiPrintCount = number(wire.nPrintCount);
    PUBMAINTINFODRIVE& drive1 = info.midrvDrive1;
    drive1.uiTrayCount = number(wire.nDrv1TrayOpenCount);
    drive1.uiTrayLife = number(wire.nDrv1TrayOpenLimit);
    drive1.uiWriteCDCount = number(wire.nDrv1CDWriteSeconds);
    drive1.uiWriteCDLife = number(wire.nDrv1CDWriteLimit);
    drive1.uiWriteDVDCount = number(wire.nDrv1DVDWriteSeconds);
    drive1.uiWriteDVDLife = number(wire.nDrv1DVDWriteLimit);
    PUBMAINTINFODRIVE& drive2 = info.midrvDrive2;
    drive2.uiTrayCount = number(wire.nDrv2TrayOpenCount);
    drive2.uiTrayLife = number(wire.nDrv2TrayOpenLimit);
    drive2.uiWriteCDCount = number(wire.nDrv2CDWriteSeconds);
    drive2.uiWriteCDLife = number(wire.nDrv2CDWriteLimit);
    drive2.uiWriteDVDCount = number(wire.nDrv2DVDWriteSeconds);
    drive2.uiWriteDVDLife = number(wire.nDrv2DVDWriteLimit);
    if constexpr (std::is_same_v<Wire, MaintenanceInfoEx>) {
        drive1.uiWriteBDCount = number(wire.nDrv1BDWriteSeconds);
        drive1.uiWriteBDLife = number(wire.nDrv1BDWriteLimit);
        drive2.uiWriteBDCount = number(wire.nDrv2BDWriteSeconds);
        drive2.uiWriteBDLife = number(wire.nDrv2BDWriteLimit);
    }
}

template <class Wire>
bool ReadMaintenance(DWORD dwHandle, DWORD (*pGet)(DWORD, Wire*), PUBLISHERMAINTENANCEINFO& info)
{
    Wire wire = {};
    CString strSerialNo;
    if (pGet(dwHandle, &wire) != NCL_SUCCESS || !ReadText(dwHandle, NCL_DIT_SERIAL_NO_OF_ALD, strSerialNo)) {
        return false;
    }
    CopyMaintenance(info, wire);
    info.uiUsedPlugin = 0;
    info.strSerialNo = strSerialNo;
    return true;
}

} // namespace

bool CNetworkPublisherMgr::Ask(LPCTSTR szPublisherRegistID, long* pResultCode, const Question& question)
{
    const Connection connection(*this, szPublisherRegistID, pResultCode);
    if (!connection.IsOpen()) {
        return false;
    }
    const DWORD dwCode = question(connection.Handle());
    Put(pResultCode, ServiceResult(dwCode));
    return dwCode == NCL_SUCCESS;
}

bool CNetworkPublisherMgr::IsFatalErrorInPublisher(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    ASSERT(szPublisherRegistID != nullptr);
    const Connection connection(*this, szPublisherRegistID, pResultCode);
    if (!connection.IsOpen()) {
        return false;
    }
    DeviceFatalError error = {};
    if (::GetDeviceFatalError(connection.Handle(), &error) != NCL_SUCCESS) {
        Put(pResultCode, ARV_PC_ERROR_OFFLINE);
        return true;
    }
    if (error.dwDevStatus == NCL_FATAL_ERR_NONE) {
        return false;
    }
    Put(pResultCode, error.dwDevStatus);
    return true;
}

bool CNetworkPublisherMgr::GetPublisherVersionInfo(LPCTSTR szPublisherRegistID,
                                                   PUBLISHERVERSIONINFO* psPublisherVersionInfo,
                                                   long* pResultCode)
{
    if (psPublisherVersionInfo == nullptr) {
        return false;
    }
    const Connection connection(*this, szPublisherRegistID, pResultCode);
    if (!connection.IsOpen()) {
        return false;
    }
    PUBLISHERVERSIONINFO& info = *psPublisherVersionInfo;
    info.strPublisherRegistID = szPublisherRegistID;
    const struct
    {
        DWORD dwInfoType;
        CString& strField;
    } fields[] = {
        {NCL_DIT_SERIAL_NO_OF_ALD, info.strSerialNo},
        {NCL_DIT_VERSION_OF_ALD, info.strAutoLoaderVersion},
        {NCL_DIT_NAME_OF_PRN, info.strPrinterModelName},
        {NCL_DIT_VERSION_OF_PRN, info.strPrinterVersion},
        {NCL_DIT_NAME_OF_DRV1, info.strDrive1ModelName},
        {NCL_DIT_VERSION_OF_DRV1, info.strDrive1Version},
        {NCL_DIT_NAME_OF_DRV2, info.strDrive2ModelName},
        {NCL_DIT_VERSION_OF_DRV2, info.strDrive2Version},
        {NCL_DIT_VERSION_OF_SERVER_APP, info.strSSSVersion},
        {NCL_DIT_VERSION_OF_WEB_APP, info.strUDNAVersion},
    };
    for (const auto& field : fields) {
        if (!ReadText(connection.Handle(), field.dwInfoType, field.strField)) {
            return false;
        }
    }
    return true;
}

bool CNetworkPublisherMgr::GetPublisherMaintenanceInfo(LPCTSTR szPublisherRegistID,
                                                       PUBLISHERMAINTENANCEINFO* psPublisherMaintenanceInfo,
                                                       long* pResultCode)
{
    if (psPublisherMaintenanceInfo == nullptr) {
        return false;
    }
    const Connection connection(*this, szPublisherRegistID, pResultCode);
    if (!connection.IsOpen()) {
        return false;
    }
    DWORD dwType = NCL_NPTYPE_UNKNOWN;
    ::GetNPType(connection.Handle(), &dwType);
    if (dwType == NCL_NPTYPE_300NII || dwType == NCL_NPTYPE_300NII_BDXL) {
        return ReadMaintenance(connection.Handle(), ::GetMaintenanceInfoEx, *psPublisherMaintenanceInfo);
    }
    return ReadMaintenance(connection.Handle(), ::GetMaintenanceInfo, *psPublisherMaintenanceInfo);
}

bool CNetworkPublisherMgr::GetServiceInkStatus(LPCTSTR szPublisherRegistID, ST_PC_INK_STATUS* pInkStatus,
                                               long* pResultCode)
{
    InkStatus inks = {};
    if (!Ask(szPublisherRegistID, pResultCode,
             [&inks](DWORD dwHandle) { return ::GetInkStatus(dwHandle, &inks); })) {
        return false;
    }
    if (pInkStatus != nullptr) {
        pInkStatus->ulCyan = ConvertComLibValueToPubMgrValue_InkStatus(inks.Cyan);
        pInkStatus->ulMagenta = ConvertComLibValueToPubMgrValue_InkStatus(inks.Magenta);
        pInkStatus->ulYellow = ConvertComLibValueToPubMgrValue_InkStatus(inks.Yellow);
        pInkStatus->ulLightCyan = ConvertComLibValueToPubMgrValue_InkStatus(inks.LightCyan);
        pInkStatus->ulLightMagenta = ConvertComLibValueToPubMgrValue_InkStatus(inks.LightMagenta);
        pInkStatus->ulBlack = ConvertComLibValueToPubMgrValue_InkStatus(inks.Black);
    }
    return true;
}

bool CNetworkPublisherMgr::GetServiceAldStatus(LPCTSTR szPublisherRegistID, ULONG* pulAldStatus,
                                               long* pResultCode)
{
    ALDStatus ald = {};
    if (!Ask(szPublisherRegistID, pResultCode,
             [&ald](DWORD dwHandle) { return ::GetALDStatus(dwHandle, &ald); })) {
        return false;
    }
    Put(pulAldStatus, ConvertComLibValueToPubMgrValue_AldStatus(ald));
    return true;
}

bool CNetworkPublisherMgr::GetServiceDriveStatus(LPCTSTR szPublisherRegistID, ST_PC_DRV_STATUS* pDrv1,
                                                 ST_PC_DRV_STATUS* pDrv2, long* pResultCode)
{
    DrvStatusEx drives = {};
    if (!Ask(szPublisherRegistID, pResultCode,
             [&drives](DWORD dwHandle) { return ::GetDrvStatusEx(dwHandle, &drives); })) {
        return false;
    }
    const auto tell = [](ST_PC_DRV_STATUS* pDrv, const DrvStatusBaseEx& drv) {
        if (pDrv != nullptr) {
            pDrv->ulDrvStatus = ConvertComLibValueToPubMgrValue_DrvStatus(drv);
            pDrv->ulDrvProgressStatus = drv.dwProgress;
        }
    };
    tell(pDrv1, drives.Drv1);
    tell(pDrv2, drives.Drv2);
    return true;
}

bool CNetworkPublisherMgr::GetServicePrinterStatus(LPCTSTR szPublisherRegistID, ULONG* pulPrinterStatus,
                                                   long* pResultCode)
{
    PrnStatus printer = {};
    if (!Ask(szPublisherRegistID, pResultCode,
             [&printer](DWORD dwHandle) { return ::GetPrnStatus(dwHandle, &printer); })) {
        return false;
    }
    if (pulPrinterStatus != nullptr) { // without an output, an unknown state must not stop the process
        *pulPrinterStatus = ConvertComLibValueToPubMgrValue_PrnStatus(printer);
    }
    return true;
}

bool CNetworkPublisherMgr::GetServiceStackerStatus(LPCTSTR szPublisherRegistID, ULONG* pulStacker1,
                                                   ULONG* pulStacker2, ULONG* pulStacker3, ULONG* pulStacker4,
                                                   long* pResultCode)
{
    StackerStatus stackers = {};
    if (!Ask(szPublisherRegistID, pResultCode,
             [&stackers](DWORD dwHandle) { return ::GetStackerStatus(dwHandle, &stackers); })) {
        return false;
    }
    Put(pulStacker1, ConvertComLibValueToPubMgrValue_StackerStatus(stackers.Stacker1));
    Put(pulStacker2, ConvertComLibValueToPubMgrValue_StackerStatus(stackers.Stacker2));
    Put(pulStacker3, ConvertComLibValueToPubMgrValue_StackerStatus(stackers.Stacker3));
    Put(pulStacker4, ConvertComLibValueToPubMgrValue_StackerStatus(stackers.Stacker3)); // see the header
    return true;
}

int CNetworkPublisherMgr::GetServiceEstimateCirculation(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    DWORD dwNumber = 0;
    if (!Ask(szPublisherRegistID, pResultCode,
             [&dwNumber](DWORD dwHandle) { return ::GetPrnPossibilityNumber(dwHandle, &dwNumber); }) ||
        dwNumber == ARV_PC_CIRCULATION_UNKNOWN) {
        return -1;
    }
    return static_cast<int>(dwNumber);
}

bool CNetworkPublisherMgr::GetServicePublishMode(LPCTSTR szPublisherRegistID, ULONG* pulPublishMode,
                                                 long* pResultCode)
{
    ASSERT(szPublisherRegistID != nullptr);
    ASSERT(pulPublishMode != nullptr);
    const Connection connection(*this, szPublisherRegistID, pResultCode);
    if (!connection.IsOpen()) {
        return false;
    }
    DWORD dwMode = PUBMGR_PUBLISHMODE_ERROR; // not a mode of the library
    const DWORD dwCode = ::GetServerMode(connection.Handle(), &dwMode);
    Put(pResultCode, dwCode);
    *pulPublishMode = ConvertComLibValueToPubMgrValue_PubMode(dwMode);
    return dwCode == NCL_SUCCESS;
}

bool CNetworkPublisherMgr::UpdatePublishMode(LPCTSTR, const PUBLISHERINFO*, bool, bool*)
{
    return false;
}

bool CNetworkPublisherMgr::SetServiceJobStop(LPCTSTR, LPCTSTR, long*)
{
    return false;
}

bool CNetworkPublisherMgr::SetServiceJobContinue(LPCTSTR, LPCTSTR, long*)
{
    return false;
}

bool CNetworkPublisherMgr::GetServiceFatalCode(LPCTSTR, ULONG*, long*)
{
    return false;
}

bool CNetworkPublisherMgr::GetServiceNotifyStatus(LPCTSTR, NotifyStatusArray*, long*)
{
    return false;
}

bool CNetworkPublisherMgr::SetServicePublishMode(LPCTSTR, ULONG, long*)
{
    return false;
}

bool CNetworkPublisherMgr::GetServiceStackerDiscType(LPCTSTR, ULONG*, ULONG*, ULONG*, ULONG*, long*)
{
    return false;
}

bool CNetworkPublisherMgr::GetServiceUSBMode(LPCTSTR, ULONG*, long*)
{
    return false;
}

bool CNetworkPublisherMgr::SetServiceJobErrorCancel(LPCTSTR, LPCTSTR, long*)
{
    return true;
}

bool CNetworkPublisherMgr::SetServiceNotifyChange(LPCTSTR, long*)
{
    return true;
}

bool CNetworkPublisherMgr::SetServiceUpdateErrorDiscContinueCount(long*, LPCTSTR)
{
    return true;
}
