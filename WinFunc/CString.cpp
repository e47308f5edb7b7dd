#include "Win_def_MFC.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

CString::CString(const std::string& text) : std::string(text) {}

CString::CString(std::string&& text) noexcept : std::string(std::move(text)) {}

CString::CString(LPCTSTR text) : std::string(text != nullptr ? text : "") {}

LPTSTR CString::GetBuffer(int size)
{
    buf.assign(c_str(), c_str() + length() + 1);
    if (size >= 1 && static_cast<size_t>(size) > buf.size()) {
        buf.resize(static_cast<size_t>(size));
    }
    return buf.data();
}

void CString::ReleaseBuffer()
{
    if (!buf.empty()) {
        assign(buf.begin(), std::find(buf.begin(), buf.end(), '\0'));
        buf.clear();
    }
}

void CString::Format(LPCTSTR format, ...)
{
    char text[1024] = {};
    va_list args;
    va_start(args, format);
    vsprintf_s(text, sizeof text, format, args);
    va_end(args);
    assign(text, strnlen(text, sizeof text));
}

CString CString::Left(int nCount) const
{
    return CString(substr(0, static_cast<size_t>(nCount)).c_str());
}

CString CString::Right(int nCount) const
{
    ASSERT(nCount >= 0);
    const auto count = static_cast<size_t>(nCount);
    return count >= length() ? *this : CString(substr(length() - count));
}

int CString::ReverseFind(char ch) const
{
    return static_cast<int>(rfind(ch));
}

int CString::Find(char ch, int start) const
{
    return static_cast<int>(find(ch, static_cast<size_t>(start)));
}

void CString::TrimRight(char ch)
{
    erase(find_last_not_of(ch) + 1);
}

int CString::Compare(LPCTSTR other) const
{
    return strcmp(c_str(), other);
}

int CString::CompareNoCase(LPCTSTR other) const
{
    return strcmp(c_str(), other);
}

int CString::GetLength() const
{
    return static_cast<int>(length());
}

BOOL AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, char chSep)
{
    if (lpszFullString == nullptr || iSubString < 0) {
        return FALSE;
    }
    std::string_view rest = lpszFullString;
    for (int skipped = 0; skipped < iSubString; ++skipped) {
        const size_t separator = rest.find(chSep);
        if (separator == std::string_view::npos) {
            return FALSE;
        }
        rest.remove_prefix(separator + 1);
    }
    rString.assign(rest.substr(0, rest.find(chSep)));
    return TRUE;
}

void CException::Delete() {}

BOOL CException::GetErrorMessage(LPTSTR, UINT, PUINT)
{
    return FALSE;
}
