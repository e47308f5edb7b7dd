#include "NW_Com_Lib_internal.h"

#include <climits>
#include <clocale>
#include <cuchar>

namespace {

bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Joins surrogate pairs; passes a lone surrogate unchanged.
template <class Visit>
void ForEachCharacter(const char16_t* utf16buf, size_t utf16len, Visit visit)
{
    for (size_t index = 0; index < utf16len; ++index) {
        char32_t character = utf16buf[index];
        if (IsHighSurrogate(utf16buf[index]) && index + 1 < utf16len && IsLowSurrogate(utf16buf[index + 1])) {
            character = (character - 0xD7C0) * 1024 + (utf16buf[index + 1] - 0xDC00);
            ++index;
        }
        visit(character);
    }
}

/// Converts to the current locale of the process, which may lack some characters.
std::string ToMultiByte(const char16_t* utf16buf, size_t utf16len)
{
    std::string text;
    mbstate_t state = {};
    ForEachCharacter(utf16buf, utf16len, [&](char32_t character) {
        char bytes[MB_LEN_MAX];
        const size_t count = std::c32rtomb(bytes, character, &state);
        if (count <= sizeof bytes) { // the error values are larger
            text.append(bytes, count);
        }
    });
    return text;
}

} // namespace

bool SetTextLocale()
{
    return setlocale(LC_ALL, "en_US.utf8") != nullptr;
}

std::string toUTF8(const char16_t* utf16buf, size_t utf16len)
{
    if (!SetTextLocale()) {
        return ToMultiByte(utf16buf, utf16len);
    }
    std::string text(utf16len * 3, '\0'); // a surrogate pair results in four bytes
    char* end = text.data();
    const auto put = [&end](char32_t value) { *end++ = static_cast<char>(value); };
    ForEachCharacter(utf16buf, utf16len, [&](char32_t character) {
        if (character < 0x80) {
            put(character);
        } else if (character < 0x800) {
            put(0xC0 | character >> 6);
            put(0x80 | (character & 0x3F));
        } else if (character >= 0x10000) {
            put(0xF0 | character >> 18);
            put(0x80 | (character >> 12 & 0x3F));
            put(0x80 | (character >> 6 & 0x3F));
            put(0x80 | (character & 0x3F));
        } else if (character < 0xD800 || character > 0xDFFF) { // a lone surrogate is not a character
            put(0xE0 | character >> 12);
            put(0x80 | (character >> 6 & 0x3F));
            put(0x80 | (character & 0x3F));
        }
    });
    text.resize(static_cast<size_t>(end - text.data()));
    return text;
}
