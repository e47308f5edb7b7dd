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

} // namespace

std::string toUTF8(const char16_t* utf16buf, size_t utf16len)
{
    setlocale(LC_ALL, "en_US.utf8");
    std::string text;
    mbstate_t state = {};
    for (size_t index = 0; index < utf16len; ++index) {
        char32_t character = utf16buf[index];
        if (IsHighSurrogate(utf16buf[index]) && index + 1 < utf16len && IsLowSurrogate(utf16buf[index + 1])) {
            character = (character - 0xD7C0) * 1024 + (utf16buf[index + 1] - 0xDC00);
            ++index;
        }
        char bytes[MB_LEN_MAX];
        const size_t count = std::c32rtomb(bytes, character, &state);
        if (count <= sizeof bytes) { // the error values are beyond
            text.append(bytes, count);
        }
    }
    return text;
}
