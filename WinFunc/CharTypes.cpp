#include "Win_def.h"

#include <cstring>
#include <optional>
#include <string_view>

namespace {

constexpr LCID LOCALE_USER_DEFAULT = 1024;
constexpr DWORD CT_CTYPE1 = 1;
constexpr DWORD CT_CTYPE3 = 4;

bool IsBetween(char ch, char first, char last)
{
    return ch >= first && ch <= last;
}

bool IsDigit(char ch)
{
    return IsBetween(ch, '0', '9');
}

bool IsLetter(char ch)
{
    return IsBetween(ch, 'A', 'Z') || IsBetween(ch, 'a', 'z');
}

bool IsOneOf(char ch, std::string_view set)
{
    return set.find(ch) != std::string_view::npos;
}

/// The class of the character: blank, digit, letter with its case and hexadecimal use, or punctuation.
std::optional<WORD> Ctype1(char ch)
{
    if (ch == ' ') {
        return 584;
    }
    if (IsDigit(ch)) {
        return 644;
    }
    if (IsLetter(ch)) {
        const bool upper = IsBetween(ch, 'A', 'Z');
        const bool hexadecimal = IsBetween(ch, 'A', 'F') || IsBetween(ch, 'a', 'f');
        return upper ? (hexadecimal ? 897 : 769) : (hexadecimal ? 898 : 770);
    }
    if (IsBetween(ch, '!', '~')) {
        return 528;
    }
    return std::nullopt;
}

/// The text-processing class of the character: symbol, letter, half width and so on.
std::optional<WORD> Ctype3(char ch)
{
    if (IsOneOf(ch, " !#%&()*+,.:;<>?[]{|}")) {
        return 72;
    }
    if (IsOneOf(ch, "\"$/=@\\_~")) {
        return 1096;
    }
    if (IsOneOf(ch, "'-")) {
        return 1088;
    }
    if (IsDigit(ch)) {
        return 64;
    }
    if (IsLetter(ch)) {
        return 32832;
    }
    if (IsOneOf(ch, "^`")) {
        return 1098;
    }
    return std::nullopt;
}

} // namespace

BOOL GetStringTypeA(LCID Locale, DWORD dwInfoType, LPCSTR lpSrcStr, int cchSrc, LPWORD lpCharType)
{
    if (Locale != LOCALE_USER_DEFAULT || cchSrc == 0 ||
        (dwInfoType != CT_CTYPE1 && dwInfoType != CT_CTYPE3)) {
        return FALSE;
    }
    // A negative length means that the text ends at its NUL.
    const size_t length = strnlen(lpSrcStr, static_cast<size_t>(cchSrc));
    for (size_t i = 0; i < length; ++i) {
        const std::optional<WORD> type = dwInfoType == CT_CTYPE1 ? Ctype1(lpSrcStr[i]) : Ctype3(lpSrcStr[i]);
        if (!type.has_value()) {
            return FALSE;
        }
        lpCharType[i] = *type;
    }
    return TRUE;
}
