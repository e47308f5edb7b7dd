// Reading private profile (ini) files: a line scanner that forgives what people write by hand.
#include "LockedFile.h"
#include "WinFunc.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string_view>

namespace {

/// Upper and lower case of the letters A to Z are equal, in whatever locale the process runs.
bool EqualNoCase(std::string_view one, std::string_view two)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(one.begin(), one.end(), two.begin(), two.end(),
                      [&](char a, char b) { return lower(a) == lower(b); });
}

std::string_view WithoutLeading(std::string_view text, std::string_view unwanted)
{
    return text.substr(std::min(text.find_first_not_of(unwanted), text.size()));
}

/// Takes a file byte by byte and finds the first value of one key that is not empty.
class ValueFinder
{
public:
    ValueFinder(std::string_view section, std::string_view key) : m_section(section), m_key(key) {}

    /// True when the value is found, with the line feed that ends its line.
    bool Take(char byte)
    {
        if (byte == '\n') {
            return EndLine();
        }
        const bool printable = byte >= 0x20 && byte <= 0x7E;
        if (printable && m_length < m_line.size()) {
            m_line[m_length++] = byte;
        }
        return false;
    }
    /// For the last line too, which may have no line feed.
    bool EndLine()
    {
        const std::string_view line(m_line.data(), m_length);
        m_length = 0;
        return ReadLine(line.substr(0, line.find(';'))); // what follows is a comment, in section lines too
    }
    /// The value found, good until the next call; empty before.
    std::string_view Value() const
    {
        return m_value;
    }

private:
    bool ReadLine(std::string_view line)
    {
        if (line.starts_with('[')) {
            const size_t end = line.find(']');
            if (end != std::string_view::npos) {
                m_inSection = EqualNoCase(line.substr(1, end - 1), m_section);
            }
        }
        if (!m_inSection) {
            return false;
        }
        const size_t delimiter = line.find_first_of(" =");
        if (delimiter == std::string_view::npos || !EqualNoCase(line.substr(0, delimiter), m_key)) {
            return false;
        }
        std::string_view value = WithoutLeading(line.substr(delimiter + 1), " ");
        if (value.starts_with('=')) {
            value.remove_prefix(1);
        }
        value = WithoutLeading(value, " ");
        m_value = value.substr(0, value.find_last_not_of(' ') + 1);
        return !m_value.empty();
    }

    std::string_view m_section;
    std::string_view m_key;
    bool m_inSection = false;
    std::string_view m_value;
    size_t m_length = 0;
    std::array<char, 1023> m_line; // what a line holds beyond this is dropped
};

void FindValue(const LockedFile& file, ValueFinder& finder)
{
    std::array<char, 4096> buffer;
    off_t left = file.Size();
    while (left > 0) {
        const size_t wanted = static_cast<size_t>(std::min<off_t>(left, off_t{sizeof buffer}));
        const ssize_t count = file.Read(buffer.data(), wanted);
        if (count <= 0) {
            break;
        }
        for (const char byte : std::string_view(buffer.data(), static_cast<size_t>(count))) {
            if (finder.Take(byte)) {
                return;
            }
        }
        left -= count;
    }
    finder.EndLine();
}

} // namespace

DWORD GetPrivateProfileStringA(LPCSTR lpAppName, LPCSTR lpKeyName, LPCSTR lpDefault, LPSTR lpReturnedString,
                               DWORD nSize, LPCSTR lpFileName)
{
    // NOLINTBEGIN(modernize-use-nullptr): callers know the texts of these assertions
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
    ValueFinder finder(lpAppName, lpKeyName);
    FindValue(file, finder);
    const std::string_view value = finder.Value().substr(0, nSize - 1);
    std::copy(value.begin(), value.end(), lpReturnedString);
    lpReturnedString[value.size()] = '\0';
    return static_cast<DWORD>(value.size());
}

UINT GetPrivateProfileIntA(LPCSTR lpAppName, LPCSTR lpKeyName, INT nDefault, LPCSTR lpFileName)
{
    std::array<char, 1024> text = {};
    if (GetPrivateProfileStringA(lpAppName, lpKeyName, "", text.data(), DWORD{text.size()}, lpFileName) ==
        0) {
        return static_cast<UINT>(nDefault);
    }
    return static_cast<UINT>(std::atoi(text.data()));
}
