// One publisher's setting file: an ini file with the one section "Common".
#pragma once

#include "Win_def_MFC.h"

#include <string>

/// Names the file; nothing is opened or kept between calls. A key that is missing from a file that opens
/// reads as the empty text.
class SettingFile
{
public:
    SettingFile(const std::string& strFolder, LPCTSTR szPublisherRegistID);

    const std::string& Path() const;
    bool Exists() const;
    /// At most 255 bytes of the value; "NotSet" when the file cannot be opened.
    CString ReadString(LPCTSTR szKey) const;
    UINT ReadInt(LPCTSTR szKey, int nDefault) const;
    bool WriteInt(LPCTSTR szKey, UINT uiValue) const;

private:
    std::string m_strPath;
};
