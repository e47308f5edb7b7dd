// The setting file of one publisher: an ini file with a single section, "Common".
#pragma once

#include "ProfileText.h"
#include "Win_def_MFC.h"

#include <memory>
#include <string>

/// The lines that replace the section of a setting file.
class SettingLines
{
public:
    /// Adds only the first line of a text, because text after a line end would be read as another key. An
    /// empty text becomes "NotSet".
    void Add(LPCTSTR szKey, const std::string& strValue);
    void Add(LPCTSTR szKey, UINT uiValue);
    /// "key=value" texts, each terminated by NUL, followed by another NUL.
    const char* Block() const;

private:
    std::string m_strBlock;
};

/// The content of a setting file at the time of the read.
class SettingRecord
{
public:
    /// Whether the file exists. True also for a file that cannot be opened.
    bool Exists() const;
    /// At most 255 bytes of the value. Empty if the key is missing; "NotSet" if the file could not be opened.
    CString String(LPCTSTR szKey) const;
    UINT Int(LPCTSTR szKey, int nDefault) const;
    /// An enPublisherConnectType, or any other number found in the file.
    UINT ConnectType() const;
    /// The kind of network publisher last reported by the server, an enNetworkPublisherType.
    UINT NPType() const;

private:
    friend class SettingFile;

    bool m_bExists = false;
    std::shared_ptr<const ProfileText> m_text; // null if the file could not be opened
};

/// Holds the name of the file. Opens and caches nothing between calls.
class SettingFile
{
public:
    SettingFile(const std::string& strFolder, LPCTSTR szPublisherRegistID);

    const std::string& Path() const;
    /// Reads all keys with one open and one lock, or returns what this thread's ReadPass has read.
    SettingRecord Read() const;
    bool WriteInt(LPCTSTR szKey, UINT uiValue) const;
    /// Replaces all lines of the section. On failure GetLastError returns the reason.
    bool Write(const SettingLines& lines) const;

private:
    std::string m_strPath;
};
