// Reads private profile (ini) files: one key at a time, or all keys of a file at once.
#include "LockedFile.h"
#include "ProfileLines.h"
#include "ProfileText.h"
#include "SystemCalls.h"
#include "WinFunc.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string_view>

namespace {

/// Bytes. A larger file is not a setting file and is not kept. ProfileText keeps a small multiple of the size
/// of a file.
constexpr off_t KEPT_SIZE_MAX = 1 << 20;

/// Calls `visit(section, key, value)` for each key in the next `left` bytes of the file until it returns
/// true. False after a read error.
template <class Visit>
bool ForEachKey(const LockedFile& file, off_t left, Visit visit)
{
    ProfileLines lines;
    std::array<char, 4096> buffer;
    while (left > 0) {
        const size_t wanted = static_cast<size_t>(std::min<off_t>(left, off_t{sizeof buffer}));
        const ssize_t count = file.Read(buffer.data(), wanted);
        if (count <= 0) {
            lines.EndLine(visit);
            return count == 0;
        }
        if (lines.Take({buffer.data(), static_cast<size_t>(count)}, visit)) {
            return true;
        }
        left -= count;
    }
    lines.EndLine(visit);
    return true;
}

bool IsKey(std::string_view section, std::string_view key, std::string_view wantedSection,
           std::string_view wantedKey)
{
    return EqualNoCase(key, wantedKey) && EqualNoCase(section, wantedSection);
}

/// Keeps errno: a number out of range is not an error of the caller.
UINT ToNumber(const char* text)
{
    const ErrnoKeeper keeper;
    return static_cast<UINT>(std::atoi(text));
}

} // namespace

DWORD GetPrivateProfileStringA(LPCSTR lpAppName, LPCSTR lpKeyName, LPCSTR lpDefault, LPSTR lpReturnedString,
                               DWORD nSize, LPCSTR lpFileName)
{
    // NOLINTBEGIN(modernize-use-nullptr): the texts of these assertions are fixed
    assert(lpAppName != NULL);
    assert(lpKeyName != NULL);
    // NOLINTEND(modernize-use-nullptr)
    if (lpReturnedString == nullptr || nSize == 0) {
        return 0; // no room even for the empty text
    }

    lpReturnedString[0] = '\0';
    const LockedFile file(lpFileName, O_RDONLY);
    if (!file.IsOpen()) {
        strcpy_s(lpReturnedString, nSize, lpDefault);
        return static_cast<DWORD>(std::strlen(lpReturnedString));
    }
    DWORD length = 0;
    ForEachKey(file, file.Size(),
               [&](std::string_view section, std::string_view key, std::string_view value) {
                   if (!IsKey(section, key, lpAppName, lpKeyName)) {
                       return false;
                   }
                   value = value.substr(0, nSize - 1);
                   std::copy(value.begin(), value.end(), lpReturnedString);
                   length = static_cast<DWORD>(value.size());
                   return true;
               });
    lpReturnedString[length] = '\0';
    return length;
}

UINT GetPrivateProfileIntA(LPCSTR lpAppName, LPCSTR lpKeyName, INT nDefault, LPCSTR lpFileName)
{
    std::array<char, 1024> text = {};
    if (GetPrivateProfileStringA(lpAppName, lpKeyName, "", text.data(), DWORD{text.size()}, lpFileName) ==
        0) {
        return static_cast<UINT>(nDefault);
    }
    return ToNumber(text.data());
}

std::shared_ptr<const ProfileText> ProfileText::Read(const char* path)
{
    const LockedFile file(path, O_RDONLY);
    if (!file.IsOpen()) {
        return nullptr;
    }
    auto profile = std::make_shared<ProfileText>();
    const off_t size = file.Size();
    if (size < 0) {
        profile->m_isComplete = false;
        return profile;
    }
    if (size > KEPT_SIZE_MAX) {
        profile->m_largePath = path;
        return profile;
    }
    // A setting file has about 20 keys.
    profile->m_text.reserve(static_cast<size_t>(size));
    profile->m_entries.reserve(std::min<size_t>(24, static_cast<size_t>(size)));
    Piece lastSection{0, 0}; // the empty name
    profile->m_isComplete =
        ForEachKey(file, size, [&](std::string_view section, std::string_view key, std::string_view value) {
            if (profile->At(lastSection) != section) {
                lastSection = profile->Keep(section);
            }
            profile->m_entries.push_back({lastSection, profile->Keep(key), profile->Keep(value)});
            return false;
        });
    return profile;
}

ProfileText::Piece ProfileText::Keep(std::string_view text)
{
    const Piece piece{static_cast<uint32_t>(m_text.size()), static_cast<uint32_t>(text.size())};
    m_text += text;
    return piece;
}

std::string_view ProfileText::At(Piece piece) const
{
    return std::string_view(m_text).substr(piece.start, piece.size);
}

std::string ProfileText::Value(LPCSTR section, LPCSTR key, size_t maxLength) const
{
    if (!m_largePath.empty()) {
        std::string text(maxLength + 1, '\0');
        text.resize(GetPrivateProfileStringA(section, key, "", text.data(), static_cast<DWORD>(text.size()),
                                             m_largePath.c_str()));
        return text;
    }
    const std::string_view wantedSection = section;
    const std::string_view wantedKey = key;
    for (const Entry& entry : m_entries) {
        if (IsKey(At(entry.section), At(entry.key), wantedSection, wantedKey)) {
            return std::string(At(entry.value).substr(0, maxLength));
        }
    }
    return "";
}

UINT ProfileText::Number(LPCSTR section, LPCSTR key, INT nDefault) const
{
    const std::string text = Value(section, key, 1023);
    return text.empty() ? static_cast<UINT>(nDefault) : ToNumber(text.c_str());
}
