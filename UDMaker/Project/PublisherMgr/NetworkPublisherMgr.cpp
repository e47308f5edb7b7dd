// The setting file of a network publisher, connections to its server, and the settings on the server.
#include "NetworkPublisherMgr.h"

#include "NW_Com_Lib.h"
#include "OptionalOutput.h"

#include <array>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr DWORD APP_VERSION = 1; // version of the application, passed to the library
constexpr UINT NOT_KNOWN = 0xFFFFFFFF;
constexpr UINT COPIES_MAX = 1000;
constexpr UINT COPIES_MAX_SECURE = 50; // in the two modes that require an operator at the device

} // namespace

long CNetworkPublisherMgr::ServiceResult(DWORD dwCode)
{
    switch (dwCode) {
    case NCL_SUCCESS:
        return ARV_PC_SUCCESS;
    case NCL_ERR_NETWORK_TIMEOUT:
        return ERR_SERVICE_TIMEOUT;
    case NCL_ERR_CANCEL_SENDING:
        return ERR_SERVICE_CANCEL;
    default:
        return ERR_SERVICE_NOT_COMMUNICATION;
    }
}

CNetworkPublisherMgr::CNetworkPublisherMgr(bool, CString strPath) : m_strSettingFolder(std::move(strPath)) {}

UINT CNetworkPublisherMgr::GetPublisherMgrType()
{
    return PUBMGR_PUBLISHERTYPE_NETWORK;
}

SettingFile CNetworkPublisherMgr::FileOf(LPCTSTR szPublisherRegistID) const
{
    return SettingFile(m_strSettingFolder, szPublisherRegistID);
}

// ---------------------------------------------------------------------------------------------------------------------
// Connections

CNetworkPublisherMgr::Connection::Connection(CNetworkPublisherMgr& mgr, LPCTSTR szPublisherRegistID,
                                             long* pResultCode)
    : m_mgr(mgr), m_bOpen(mgr.StartConnection(szPublisherRegistID, &m_dwHandle, nullptr))
{
    if (!m_bOpen) {
        Put(pResultCode, ERR_SERVICE_NOT_COMMUNICATION);
    }
}

CNetworkPublisherMgr::Connection::~Connection()
{
    if (m_bOpen) {
        m_mgr.EndConnection(m_dwHandle);
    }
}

bool CNetworkPublisherMgr::Connection::IsOpen() const
{
    return m_bOpen;
}

DWORD CNetworkPublisherMgr::Connection::Handle() const
{
    return m_dwHandle;
}

bool CNetworkPublisherMgr::StartConnection(LPCTSTR szPublisherRegistID, DWORD* pdwHandle,
                                           DWORD* pdwResultCode)
{
    const CString strHostName = GetHostName(szPublisherRegistID);
    if (strHostName.empty()) {
        return false;
    }
    const DWORD dwCode = ::StartConnection(APP_VERSION, strHostName.c_str(), pdwHandle);
    Put(pdwResultCode, dwCode);
    return dwCode == NCL_SUCCESS;
}

bool CNetworkPublisherMgr::EndConnection(DWORD dwHandle)
{
    ::EndConnection(dwHandle);
    return true;
}

DWORD CNetworkPublisherMgr::ConnectionTest(LPCTSTR lpszHostName)
{
    if (lpszHostName == nullptr) {
        return NCL_ERR_SERVER_OTHER;
    }
    DWORD dwHandle = 0;
    const DWORD dwCode = ::StartConnection(APP_VERSION, lpszHostName, &dwHandle);
    if (dwCode == NCL_SUCCESS) {
        EndConnection(dwHandle);
    }
    return dwCode;
}

CString CNetworkPublisherMgr::GetHostNameFull(LPCTSTR szPublisherRegistID)
{
    ASSERT(szPublisherRegistID != nullptr);
    const SettingRecord record = FileOf(szPublisherRegistID).Read();
    return record.Exists() ? record.String(REG_PUB_SETUP_VAL_HOST) : CString();
}

CString CNetworkPublisherMgr::GetHostName(LPCTSTR szPublisherRegistID)
{
    const CString strAddress = GetHostNameFull(szPublisherRegistID);
    return strAddress.substr(strAddress.rfind('\\') + 1); // the whole address if it has no backslash
}

bool CNetworkPublisherMgr::IsPossibleCommunicateService(long*)
{
    return false;
}

bool CNetworkPublisherMgr::IsRunningCommunicateService()
{
    return false;
}

bool CNetworkPublisherMgr::IsPossibleCommunicate(LPCTSTR szPublisherRegistID, long* pResultCode)
{
    if (szPublisherRegistID == nullptr) {
        return false;
    }
    DWORD dwHandle = 0;
    DWORD dwCode = NCL_SUCCESS; // unchanged if there is no address
    const bool bConnected = StartConnection(szPublisherRegistID, &dwHandle, &dwCode);
    Put(pResultCode, dwCode);
    if (bConnected) {
        EndConnection(dwHandle);
    }
    return bConnected;
}

// ---------------------------------------------------------------------------------------------------------------------
// Settings

CString CNetworkPublisherMgr::GetPublisherGUID(LPCTSTR)
{
    return "";
}

bool CNetworkPublisherMgr::GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo,
                                            BOOL bConnectionError)
{
    ASSERT(szPublisherRegistID != nullptr);
    ASSERT(psPublisherInfo != nullptr);
    if (szPublisherRegistID[0] == '\0') {
        return false;
    }
    const CString strRegistID = szPublisherRegistID; // may point into the record
    PUBLISHERINFO& info = *psPublisherInfo;
    info.Clear();
    info.uiPublisherType = PUBMGR_CONNECTTYPE_NETWORK;
    info.strPublisherRegistID = strRegistID;
    const SettingRecord record = FileOf(strRegistID.c_str()).Read();
    if (!record.Exists()) {
        return false;
    }
    info.strHostName = record.String(REG_PUB_SETUP_VAL_HOST);
    info.strPublisherName = record.String(REG_PUB_SETUP_VAL_PUBLISH_NAME);
    info.strPrinterName = record.String(REG_PUB_SETUP_VAL_PRINTER_NAME);
    info.uiNetPublisherType = record.NPType();
    info.uiPublishMode = NOT_KNOWN;
    info.uiStacker1DiscType = NOT_KNOWN;
    info.uiStacker2DiscType = NOT_KNOWN;
    info.uiStacker3DiscType = NOT_KNOWN;
    info.uiStacker4DiscType = NOT_KNOWN;
    info.uiUseDrive = NOT_KNOWN;
    info.uiRetryCount = NOT_KNOWN;
    info.uiAddErrorMark = NOT_KNOWN;
    return bConnectionError || ReadSettingsOfServer(info);
}

/// Values read before a failure stay in the record.
bool CNetworkPublisherMgr::ReadSettingsOfServer(PUBLISHERINFO& info)
{
    const Connection connection(*this, info.strPublisherRegistID.c_str());
    if (!connection.IsOpen()) {
        return false;
    }
    DWORD dwMode = 0;
    if (::GetServerMode(connection.Handle(), &dwMode) != NCL_SUCCESS) {
        return false;
    }
    info.uiPublishMode = ConvertComLibValueToPubMgrValue_PubMode(dwMode);

    DWORD dwValue = 0;
    const auto ask = [&](DWORD dwInfoType) {
        return ::GetDeviceInfoInt(connection.Handle(), dwInfoType, &dwValue);
    };
    const auto converted = [&](DWORD dwInfoType) {
        return ConvertComLibValueToPubMgrValue(dwInfoType, dwValue);
    };
    if (ask(NCL_DIT_STACKER1_DISC_TYPE) != NCL_SUCCESS) {
        return false;
    }
    info.uiStacker1DiscType = converted(NCL_DIT_STACKER1_DISC_TYPE);
    if (ask(NCL_DIT_STACKER2_DISC_TYPE) != NCL_SUCCESS) {
        return false;
    }
    info.uiStacker2DiscType = converted(NCL_DIT_STACKER2_DISC_TYPE);

    const DWORD dwCode = ask(NCL_DIT_STACKER3_DISC_TYPE);
    if (dwCode == NCL_ERR_SERVER_OTHER) { // older servers lack this setting: derive it from the mode
        const bool bBatch = info.uiPublishMode == PUBMGR_PUBLISHMODE_BATCH;
        dwValue = bBatch ? NCL_STACKER_DISCHARGE : NCL_STACKER_DONTUSE;
    } else if (dwCode != NCL_SUCCESS) {
        return false;
    }
    info.uiStacker3DiscType = converted(NCL_DIT_STACKER3_DISC_TYPE);
    info.uiStacker4DiscType = info.uiStacker3DiscType == PUBMGR_STACKERDISCTYPE_NOTUSE
                                  ? PUBMGR_STACKERDISCTYPE_OUTPUT
                                  : PUBMGR_STACKERDISCTYPE_NOTUSE;

    if (ask(NCL_DIT_DRV_USED) != NCL_SUCCESS) {
        return false;
    }
    info.uiUseDrive = converted(NCL_DIT_DRV_USED);
    if (ask(NCL_DIT_WRITE_ERR_RETRY_COUNT) != NCL_SUCCESS) {
        return false;
    }
    info.uiRetryCount = dwValue;
    if (ask(NCL_DIT_PRINT_ERR_DISC_MARK) != NCL_SUCCESS) {
        return false;
    }
    info.uiAddErrorMark = converted(NCL_DIT_PRINT_ERR_DISC_MARK);
    info.bAddErrorMark = dwValue != 0;
    return true;
}

bool CNetworkPublisherMgr::UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo)
{
    ASSERT(!sPublisherInfo.strPublisherRegistID.empty());
    SettingLines lines;
    lines.Add(REG_PUB_SETUP_VAL_PUBLISH_NAME, sPublisherInfo.strPublisherName);
    lines.Add(REG_PUB_SETUP_VAL_PRINTER_NAME, sPublisherInfo.strPrinterName);
    lines.Add(REG_PUB_SETUP_VAL_TYPE, sPublisherInfo.uiPublisherType);
    lines.Add(REG_PUB_SETUP_VAL_HOST, sPublisherInfo.strHostName);

    const SettingFile file = FileOf(sPublisherInfo.strPublisherRegistID.c_str());
    if (!file.Write(lines)) {
        ASSERT(GetLastError() == ERROR_ACCESS_DENIED);
        return false;
    }
    // The services of the suite read the file too. A failure to change the mode is not a failure of the
    // write. AT_SYMLINK_NOFOLLOW: if a symbolic link has replaced the file, its target is not changed.
    [[maybe_unused]] const int result =
        fchmodat(AT_FDCWD, file.Path().c_str(), S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH, AT_SYMLINK_NOFOLLOW);
    return true;
}

UINT CNetworkPublisherMgr::GetCopiesMax(LPCTSTR szPublisherRegistID, bool)
{
    ASSERT(szPublisherRegistID != nullptr);
    const Connection connection(*this, szPublisherRegistID);
    DWORD dwMode = 0;
    if (!connection.IsOpen() || ::GetServerMode(connection.Handle(), &dwMode) != NCL_SUCCESS) {
        return 0;
    }
    switch (ConvertComLibValueToPubMgrValue_PubMode(dwMode)) {
    case PUBMGR_PUBLISHMODE_SECURITY:
    case PUBMGR_PUBLISHMODE_EJECTCONTROL:
        return COPIES_MAX_SECURE;
    default:
        return COPIES_MAX;
    }
}

CString CNetworkPublisherMgr::GetSupportWriteSpeedString(LPCTSTR szPublisherRegistID, UINT uiDrive)
{
    ASSERT(szPublisherRegistID != nullptr);
    if (uiDrive != PUBMGR_USEDRIVE_DRIVE1 && uiDrive != PUBMGR_USEDRIVE_DRIVE2) {
        return "";
    }
    const Connection connection(*this, szPublisherRegistID);
    if (!connection.IsOpen()) {
        return "";
    }
    std::array<char, 1024> speeds = {};
    const DWORD dwInfoType =
        uiDrive == PUBMGR_USEDRIVE_DRIVE1 ? NCL_DIT_WRITE_SPEED_OF_DRV1 : NCL_DIT_WRITE_SPEED_OF_DRV2;
    if (::GetDeviceInfo(connection.Handle(), dwInfoType, speeds.data(), DWORD{speeds.size()}) !=
        NCL_SUCCESS) {
        return "";
    }
    return speeds.data();
}

CString CNetworkPublisherMgr::GetDeviceInfo(LPCTSTR szPublisherRegistID, DWORD dwInfoType,
                                            DWORD* pdwResultCode)
{
    const Connection connection(*this, szPublisherRegistID);
    if (!connection.IsOpen()) {
        Put(pdwResultCode, NCL_ERR_COMMUNICATION);
        return "";
    }
    std::array<char, 4096> text = {};
    Put(pdwResultCode, ::GetDeviceInfo(connection.Handle(), dwInfoType, text.data(), DWORD{text.size()}));
    return text.data(); // empty after a failure
}
