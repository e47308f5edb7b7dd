// One publisher's setting file: an ini file with the one section "Common".
#pragma once

#include "Win_def_MFC.h"

#include <string>

/// The lines of a file that is written anew.
class SettingLines
{
public:
    /// Of a text the first line: what stands behind a line end would read as a key of its own. "NotSet"
    /// stands for an empty one.
    void Add(LPCTSTR szKey, const std::string& strValue);
    void Add(LPCTSTR szKey, UINT uiValue);
    /// "key=value" texts, each with a NUL, and another NUL.
    const char* Block() const;

private:
    std::string m_strBlock;
};

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
    /// The kind of a network publisher as it was last met, an enNetworkPublisherType.
    UINT ReadNPType() const;
    bool WriteInt(LPCTSTR szKey, UINT uiValue) const;
    /// Puts the lines in the place of all that were there. GetLastError tells why it failed.
    bool Write(const SettingLines& lines) const;

private:
    std::string m_strPath;
};
