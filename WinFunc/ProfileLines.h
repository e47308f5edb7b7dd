// Scans the lines of private profile (ini) files. Accepts hand-written files.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

/// Compares without regard to the case of the letters A to Z, in any locale.
inline bool EqualNoCase(std::string_view one, std::string_view two)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(one.begin(), one.end(), two.begin(), two.end(),
                      [&](char a, char b) { return a == b || lower(a) == lower(b); });
}

/// Scans the bytes of a file, in pieces of any size, and reports the keys that have a value.
class ProfileLines
{
public:
    /// Calls `visit(section, key, value)` for each key in file order until it returns true. Returns true in
    /// that case. The texts are valid during the call only.
    template <class Visit>
    bool Take(std::string_view bytes, Visit& visit)
    {
        for (const char byte : bytes) {
            if (byte == '\n') {
                if (EndLine(visit)) {
                    return true;
                }
            } else if (byte >= 0x20 && byte <= 0x7E && m_length < m_line.size()) {
                m_line[m_length++] = byte;
            }
        }
        return false;
    }

    /// Ends the current line. Call it after the last piece too: the last line may have no line feed.
    template <class Visit>
    bool EndLine(Visit& visit)
    {
        std::string_view line(m_line.data(), m_length);
        m_length = 0;
        line = line.substr(0, line.find(';')); // the rest is a comment, in section lines too
        if (line.starts_with('[')) {
            const size_t end = line.find(']');
            if (end != std::string_view::npos) {
                m_section = line.substr(1, end - 1);
                m_isInSection = true;
            }
        }
        const auto isDelimiter = [](char c) { return c == ' ' || c == '='; };
        const auto delimiter =
            static_cast<size_t>(std::find_if(line.begin(), line.end(), isDelimiter) - line.begin());
        if (!m_isInSection || delimiter == line.size()) {
            return false;
        }
        std::string_view value = WithoutLeadingBlanks(line.substr(delimiter + 1));
        if (value.starts_with('=')) {
            value = WithoutLeadingBlanks(value.substr(1));
        }
        value = value.substr(0, value.find_last_not_of(' ') + 1);
        return !value.empty() && visit(std::string_view(m_section), line.substr(0, delimiter), value);
    }

private:
    static std::string_view WithoutLeadingBlanks(std::string_view text)
    {
        return text.substr(std::min(text.find_first_not_of(' '), text.size()));
    }

    std::string m_section;
    bool m_isInSection = false; // keys before the first section line belong to no section
    size_t m_length = 0;
    std::array<char, 1023> m_line; // the rest of a longer line is dropped
};
