#include "SettingFile.h"

#include "PubMgrConst.h"
#include "ReadPass.h"
#include "SystemCalls.h"

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
    return m_strBlock.c_str(); // c_str() adds the final NUL
}

bool SettingRecord::Exists() const
{
    return m_bExists;
}

CString SettingRecord::String(LPCTSTR szKey) const
{
    return m_text != nullptr ? m_text->Value(REG_PUB_SETUP_SECTION_COMMON, szKey, 255)
                             : std::string(REG_PUB_SETUP_STRING_DEFAULT);
}

UINT SettingRecord::Int(LPCTSTR szKey, int nDefault) const
{
    return m_text != nullptr ? m_text->Number(REG_PUB_SETUP_SECTION_COMMON, szKey, nDefault)
                             : static_cast<UINT>(nDefault);
}

UINT SettingRecord::ConnectType() const
{
    const UINT uiType = Int(REG_PUB_SETUP_VAL_TYPE, REG_PUB_SETUP_INT_DEFAULT);
    return uiType == static_cast<UINT>(REG_PUB_SETUP_INT_DEFAULT) ? UINT{PUBMGR_CONNECTTYPE_LOCAL} : uiType;
}

UINT SettingRecord::NPType() const
{
    const std::string strType =
        m_text != nullptr ? m_text->Value(REG_PUB_SETUP_SECTION_COMMON, REG_PUB_SETUP_VAL_NPTYPE, 31)
                          : std::string();
    const ErrnoKeeper keeper; // ERANGE in errno would make the next server reply fail
    const auto uiType = static_cast<UINT>(std::atoi(strType.c_str()));
    return uiType > PUBMGR_NPTYPE_300NII_BDXL ? UINT{PUBMGR_NPTYPE_UNKNOWN} : uiType;
}

SettingFile::SettingFile(const std::string& strFolder, LPCTSTR szPublisherRegistID)
    : m_strPath(strFolder + "/" + szPublisherRegistID + ARV_PUBLISHER_ID_EXTENSION)
{
}

const std::string& SettingFile::Path() const
{
    return m_strPath;
}

SettingRecord SettingFile::Read() const
{
    SettingRecord record;
    record.m_text = ReadPass::Profile(m_strPath);
    record.m_bExists = record.m_text != nullptr || access(m_strPath.c_str(), F_OK) == 0;
    return record;
}

bool SettingFile::WriteInt(LPCTSTR szKey, UINT uiValue) const
{
    const std::string strValue = std::to_string(static_cast<int>(uiValue));
    return WritePrivateProfileStringA(REG_PUB_SETUP_SECTION_COMMON, szKey, strValue.c_str(),
                                      m_strPath.c_str()) != FALSE;
}

bool SettingFile::Write(const SettingLines& lines) const
{
    return WritePrivateProfileSectionA(REG_PUB_SETUP_SECTION_COMMON, lines.Block(), m_strPath.c_str()) !=
           FALSE;
}
