// The store of publisher setting files.
#include "PublisherMgr.h"

#include "ModelTable.h"
#include "ReadPass.h"
#include "SettingFile.h"
#include "Win_def_log.h"

#include <dirent.h>
#include <memory>
#include <optional>
#include <unistd.h>

std::string CPublisherMgr::SettingFilePath(LPCTSTR szPublisherRegistID) const
{
    return SettingFile(m_strSettingFolder, szPublisherRegistID).Path();
}

long CPublisherMgr::CreatePublisherSettingFile(LPCTSTR szPublisherRegistID)
{
    if (szPublisherRegistID == nullptr) {
        return PUBMGR_NUM_ERROR_OTHER;
    }
    if (!CreateSettingFolder()) {
        return PUBMGR_NUM_ERROR_CREATEFOLDER;
    }
    const HANDLE hFile = CreateFileA(SettingFilePath(szPublisherRegistID).c_str(), GENERIC_WRITE,
                                     FILE_SHARE_READ, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile == INVALID_HANDLE_VALUE) {
        return PUBMGR_NUM_ERROR_CREATEFILE;
    }
    CloseHandle(hFile);
    return PUBMGR_NUM_ERROR_SUCCESS;
}

bool CPublisherMgr::CreateSettingFolder()
{
    return true;
}

bool CPublisherMgr::IsExistSettingFolder()
{
    return access(m_strSettingFolder.c_str(), F_OK) == 0;
}

CString CPublisherMgr::GetSettingFolderePath()
{
    return m_strSettingFolder;
}

bool CPublisherMgr::AddPublisher(LPCTSTR, PUBLISHERINFO sPublisherInfo)
{
    if (!CreateSettingFolder()) {
        return false;
    }
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromType(sPublisherInfo.uiPublisherDevType);
    return pPubMgr != nullptr && pPubMgr->UpdatePublisherInfo(sPublisherInfo);
}

bool CPublisherMgr::DeletePublisher(LPCTSTR szPublisherRegistID)
{
    ASSERT(szPublisherRegistID != nullptr);
    return DeleteFileA(SettingFilePath(szPublisherRegistID).c_str()) ||
           GetLastError() == ERROR_FILE_NOT_FOUND;
}

bool CPublisherMgr::UpdatePublisherInfo(PUBLISHERINFO sPublisherInfo)
{
    IPublisherMgr* pPubMgr = GetPublisherMgrIFFromID(sPublisherInfo.strPublisherRegistID.c_str());
    return pPubMgr != nullptr && pPubMgr->UpdatePublisherInfo(sPublisherInfo);
}

bool CPublisherMgr::GetPublisherInfo(LPCTSTR szPublisherRegistID, PUBLISHERINFO* psPublisherInfo,
                                     BOOL bConnectionError)
{
    // The list calls this for every publisher at each timer tick, so model and record share one read.
    std::optional<ReadPass> pass(std::in_place);
    const bool bNamed = szPublisherRegistID != nullptr && szPublisherRegistID[0] != '\0';
    const UINT uiDevType =
        bNamed ? GetPublisherDevType(szPublisherRegistID) : UINT{PUBMGR_PUBLISHERTYPE_BASIC};
    IPublisherMgr* pPubMgr = bNamed ? GetPublisherMgrIFFromType(uiDevType) : nullptr;
    if (pPubMgr == nullptr) {
        if (GetLogLevel() >= 2) {
            logViaAgent(4, "CPublisherMgr::GetPublisherInfo, no pPubMgr");
        }
        return false;
    }
    const bool bRead = pPubMgr->GetPublisherInfo(szPublisherRegistID, psPublisherInfo, bConnectionError);
    // After a failure the file may have been deleted since the lookup, so look up the model again.
    pass.reset();
    psPublisherInfo->uiPublisherDevType = bRead ? uiDevType : GetPublisherDevType(szPublisherRegistID);
    return bRead;
}

CString CPublisherMgr::GetPublisherName(LPCTSTR szPublisherRegistID)
{
    ASSERT(szPublisherRegistID != nullptr);
    const SettingRecord record = SettingFile(m_strSettingFolder, szPublisherRegistID).Read();
    return record.Exists() ? record.String(REG_PUB_SETUP_VAL_PUBLISH_NAME) : CString();
}

void CPublisherMgr::GetPublisherRegistIDFromName(LPCTSTR lpszPublisherName, CString* pstrPublisherRegistID)
{
    ASSERT(lpszPublisherName != nullptr);
    ASSERT(pstrPublisherRegistID != nullptr);
    pstrPublisherRegistID->clear();
    CStringArray arrIDs;
    EnumRegistedPublisher(&arrIDs);
    for (const CString& strID : arrIDs) {
        if (GetPublisherName(strID.c_str()).CompareNoCase(lpszPublisherName) == 0) {
            *pstrPublisherRegistID = strID;
            return;
        }
    }
}

int CPublisherMgr::EnumRegistedPublisher(CStringArray* psarrPublisherRegistID)
{
    ASSERT(psarrPublisherRegistID != nullptr);
    if (GetLogLevel() >= 4) {
        logViaAgent(7, "CPublisherMgr::EnumRegistedPublisher, opendir(\"%s\")", m_strSettingFolder.c_str());
    }
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(m_strSettingFolder.c_str()), closedir);
    if (folder == nullptr) {
        return 0;
    }
    int nCount = 0;
    while (const dirent* pEntry = readdir(folder.get())) {
        const std::string strName = pEntry->d_name;
        const size_t nExtension = strName.find(ARV_PUBLISHER_ID_EXTENSION);
        if (nExtension != std::string::npos) {
            psarrPublisherRegistID->Add(CString(strName.substr(0, nExtension)));
            ++nCount;
        }
    }
    return nCount;
}

bool CPublisherMgr::IsCorrectName(LPCTSTR szPublisherRegistID)
{
    const CString strName = GetPublisherName(szPublisherRegistID);
    return strName.size() <= 64 && strName.find('\\') == std::string::npos;
}

bool CPublisherMgr::IsExistRegistedPublisher(LPCTSTR szPublisherRegistID, BOOL bOnlyCorrect)
{
    if (szPublisherRegistID == nullptr) {
        ASSERT(bOnlyCorrect);
        CStringArray arrIDs;
        EnumRegistedPublisher(&arrIDs);
        for (const CString& strID : arrIDs) {
            if (!strID.empty() && IsCorrectName(strID.c_str())) {
                return true;
            }
        }
        return false;
    }
    const HANDLE hFile = CreateFileA(SettingFilePath(szPublisherRegistID).c_str(), GENERIC_READ,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                     FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile == INVALID_HANDLE_VALUE) {
        return false;
    }
    CloseHandle(hFile);
    return !bOnlyCorrect || IsCorrectName(szPublisherRegistID);
}

bool CPublisherMgr::IsExistSettingFile(LPCTSTR szPublisherRegistID)
{
    ASSERT(szPublisherRegistID != nullptr);
    return access(SettingFilePath(szPublisherRegistID).c_str(), F_OK) == 0;
}

bool CPublisherMgr::IsExistSameNamePublisher(LPCTSTR lpszPublisherName)
{
    ASSERT(lpszPublisherName != nullptr);
    CStringArray arrIDs;
    EnumRegistedPublisher(&arrIDs);
    for (const CString& strID : arrIDs) {
        if (GetPublisherName(strID.c_str()).CompareNoCase(lpszPublisherName) == 0) {
            return true;
        }
    }
    return false;
}

bool CPublisherMgr::IsExistLocalPublisher()
{
    CStringArray arrIDs;
    EnumRegistedPublisher(&arrIDs);
    for (const CString& strID : arrIDs) {
        if (GetConnectType(strID.c_str()) == PUBMGR_CONNECTTYPE_LOCAL) {
            return true;
        }
    }
    return false;
}

bool CPublisherMgr::IsExistModel(bool (*pMatches)(const PublisherModel& model))
{
    CStringArray arrIDs;
    EnumRegistedPublisher(&arrIDs);
    for (const CString& strID : arrIDs) {
        const PublisherModel* pModel = FindModelOfDevice(GetLocalDeviceDPType(strID.c_str()));
        if (pModel != nullptr && pMatches(*pModel)) {
            return true;
        }
    }
    return false;
}

bool CPublisherMgr::IsExistArchiveDiscFunctionPublisher()
{
    return IsExistModel([](const PublisherModel& model) { return model.bArchiveDiscs; });
}

bool CPublisherMgr::IsExistErrorRateFunctionPublisher()
{
    return IsExistModel([](const PublisherModel& model) { return model.MeasuresErrorRates(); });
}
