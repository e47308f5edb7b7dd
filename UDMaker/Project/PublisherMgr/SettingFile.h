// One publisher's setting file: an ini file with the one section "Common".
#pragma once

#include "ProfileText.h"
#include "Win_def_MFC.h"

#include <memory>
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

/// What a setting file held when it was read.
class SettingRecord
{
public:
    /// Whether there is such a file. One that cannot be opened exists too.
    bool Exists() const;
    /// At most 255 bytes of the value. Empty for a key that is missing; "NotSet" when the file could not be
    /// opened.
    CString String(LPCTSTR szKey) const;
    UINT Int(LPCTSTR szKey, int nDefault) const;
    /// An enPublisherConnectType, or another number as it stands in the file.
    UINT ConnectType() const;
    /// The kind of a network publisher as it was last met, an enNetworkPublisherType.
    UINT NPType() const;

private:
    friend class SettingFile;

    bool m_bExists = false;
    std::shared_ptr<const ProfileText> m_text; // null: it could not be opened
};

/// Names the file; nothing is opened or kept between calls.
class SettingFile
{
public:
    SettingFile(const std::string& strFolder, LPCTSTR szPublisherRegistID);

    const std::string& Path() const;
    /// All keys with one open and one lock, or as this thread's ReadPass has read them.
    SettingRecord Read() const;
    bool WriteInt(LPCTSTR szKey, UINT uiValue) const;
    /// Puts the lines in the place of all that were there. GetLastError tells why it failed.
    bool Write(const SettingLines& lines) const;

private:
    std::string m_strPath;
};
