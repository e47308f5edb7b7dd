// The keys of a private profile (ini) file as one reading found them.
#pragma once

#include "Win_def.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Keys and values that were read with one open and one lock, so that no writer comes between two keys. Finds
/// what GetPrivateProfileStringA finds in the same text. Immutable: any thread may ask.
class ProfileText
{
public:
    /// Null, with errno, when the file cannot be opened.
    static std::shared_ptr<const ProfileText> Read(const char* path);

    /// The first value of the key that is not empty, at most `maxLength` bytes of it; empty when there is
    /// none.
    std::string Value(LPCSTR section, LPCSTR key, size_t maxLength) const;
    /// As GetPrivateProfileIntA.
    UINT Number(LPCSTR section, LPCSTR key, INT nDefault) const;

private:
    /// Places in `m_text`.
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
    std::string m_largePath; // of a file that is too large to be kept: each key is looked up in the file
};
