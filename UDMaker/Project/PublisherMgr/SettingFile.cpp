#include "SettingFile.h"

#include "PubMgrConst.h"

#include <cstdlib>
#include <string_view>

#include <unistd.h>

void SettingLines::Add(LPCTSTR szKey, const std::string& strValue)
{
    const std::string strLine = strValue.substr(0, strValue.find_first_of(std::string_view("\r\n\0", 3)));
    m_strBlock +=
        std::string(szKey) + "=" + (strLine.empty() ? REG_PUB_SETUP_STRING_DEFAULT : strLine) + '\0';
}

void SettingLines::Add(LPCTSTR szKey, UINT uiValue)
{
    Add(szKey, std::to_string(static_cast<int>(uiValue)));
}

const char* SettingLines::Block() const
{
    return m_strBlock.c_str(); // its end is the other NUL
}

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

UINT SettingFile::ReadNPType() const
{
    char szType[32] = {};
    GetPrivateProfileStringA(REG_PUB_SETUP_SECTION_COMMON, REG_PUB_SETUP_VAL_NPTYPE, "", szType,
                             sizeof szType, m_strPath.c_str());
    const auto uiType = static_cast<UINT>(std::atoi(szType));
    return uiType > PUBMGR_NPTYPE_300NII_BDXL ? UINT{PUBMGR_NPTYPE_UNKNOWN} : uiType;
}

bool SettingFile::Write(const SettingLines& lines) const
{
    return WritePrivateProfileSectionA(REG_PUB_SETUP_SECTION_COMMON, lines.Block(), m_strPath.c_str()) !=
           FALSE;
}
