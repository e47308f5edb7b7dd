#include "Http.h"

#include "InternetResult.h"

#include <cstdlib>
#include <cstring>
#include <iterator>

namespace {

const char* const methodTexts[] = {"GET",     "HEAD",  "POST", "PUT",    "DELETE",   "OPTIONS",   "TRACE",
                                   "CONNECT", "PATCH", "LINK", "UPLINK", "PROPFIND", "PROPPATCH", "MKCOL",
                                   "COPY",    "MOVE",  "LOCK", "UNLOCK", "Error"};
static_assert(std::size(methodTexts) == CHttp::EMPTY + 1);

const char* const versionTexts[] = {"HTTP/1.0", "HTTP/1.1"};

/// By CHttp::STATUS; 0 for a status that no reply can have.
const int statusCodes[] = {0,   100, 101, 200, 201, 202, 203, 204, 205, 206, 300, 301, 302, 303,
                           304, 305, 400, 401, 0,   403, 404, 405, 406, 407, 408, 409, 410, 411,
                           412, 413, 414, 415, 500, 501, 502, 503, 504, 505, 506, 507, 510};
static_assert(std::size(statusCodes) == CHttp::STATUS_NO_EXTENDED + 1);

/// By the absolute value of a Base64 result.
const int base64Errors[] = {0, -26, -2, -26, -26, -26, -21, -22, -23, -24, -26};

/// The entry of an unchecked index; `other` if the index is beyond the table.
template <class Entry, size_t size>
Entry At(const Entry (&table)[size], unsigned int index, Entry other)
{
    return index < size ? table[index] : other;
}

} // namespace

const char* CHttp::GetMethodStringPtr(METHOD eMethod)
{
    return At(methodTexts, eMethod, methodTexts[EMPTY]);
}

const char* CHttp::GetVersionStringPtr(VERSION eVersion)
{
    return At(versionTexts, eVersion, versionTexts[VERSION_1_1]);
}

int CHttp::GetStatusCode(STATUS eStatus)
{
    return At(statusCodes, eStatus, 0);
}

CHttp::STATUS CHttp::GetStatusCode(char* pszData)
{
    for (size_t status = STATUS_CONTINUE; status < std::size(statusCodes); ++status) {
        const int code = statusCodes[status];
        if (code != 0 && strstr(pszData, std::to_string(code).c_str()) != nullptr) {
            return static_cast<STATUS>(status);
        }
    }
    return STATUS_EMPTY;
}

int CHttp::ConvertBase64Error(int nValue)
{
    return At(base64Errors, static_cast<unsigned int>(abs(nValue)), INTERNET_ERR_SELECT);
}
