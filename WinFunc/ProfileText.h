// A snapshot of the keys of a private profile (ini) file.
#pragma once

#include "Win_def.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Keys and values read with one open and one lock, so that no writer can change the file between two keys.
/// Returns what GetPrivateProfileStringA returns for the same text. Immutable: any thread may use it.
class ProfileText
{
public:
    /// Null, with errno, if the file cannot be opened.
    static std::shared_ptr<const ProfileText> Read(const char* path);

    /// False after a read error: the text then lacks keys of the file.
    bool IsComplete() const
    {
        return m_isComplete;
    }
    /// The first non-empty value of the key, cut to `maxLength` bytes; empty if there is none.
    std::string Value(LPCSTR section, LPCSTR key, size_t maxLength) const;
    /// Like GetPrivateProfileIntA.
    UINT Number(LPCSTR section, LPCSTR key, INT nDefault) const;

private:
    /// A range of `m_text`, in bytes.
    struct Piece
    {
        uint32_t start;
        uint32_t size;
    };
    struct Entry
    {
        Piece section;
        Piece key;
        Piece value;
    };

    Piece Keep(std::string_view text);
    std::string_view At(Piece piece) const;

    std::string m_text;
    std::vector<Entry> m_entries;
    bool m_isComplete = true;
    std::string m_largePath; // set if the file is too large to keep: each lookup reads the file
};
