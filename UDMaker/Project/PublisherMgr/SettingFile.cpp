#include "SettingFile.h"

#include "PubMgrConst.h"

#include <unistd.h>

SettingFile::SettingFile(const std::string& strFolder, LPCTSTR szPublisherRegistID)
    : m_strPath(strFolder + "/" + szPublisherRegistID + ARV_PUBLISHER_ID_EXTENSION)
{
}

const std::string& SettingFile::Path() const
{
    return m_strPath;
}

bool SettingFile::Exists() const
{
    return access(m_strPath.c_str(), F_OK) == 0;
}

CString SettingFile::ReadString(LPCTSTR szKey) const
{
    char szValue[256] = {};
    GetPrivateProfileStringA(REG_PUB_SETUP_SECTION_COMMON, szKey, REG_PUB_SETUP_STRING_DEFAULT, szValue,
                             sizeof szValue, m_strPath.c_str());
    return szValue;
}

UINT SettingFile::ReadInt(LPCTSTR szKey, int nDefault) const
{
    return GetPrivateProfileIntA(REG_PUB_SETUP_SECTION_COMMON, szKey, nDefault, m_strPath.c_str());
}

bool SettingFile::WriteInt(LPCTSTR szKey, UINT uiValue) const
{
    const std::string strValue = std::to_string(static_cast<int>(uiValue));
    return WritePrivateProfileStringA(REG_PUB_SETUP_SECTION_COMMON, szKey, strValue.c_str(),
                                      m_strPath.c_str()) != FALSE;
}
