#include "ScriptedLibrary.h"

#include <algorithm>
#include <cstring>

namespace {

ScriptedLibrary& Script()
{
    return ScriptedLibrary::Instance();
}

std::string Text(const char* text)
{
    return text == nullptr ? "null" : text;
}

std::string Text(DWORD number)
{
    return std::to_string(number);
}

std::string Text(int number)
{
    return std::to_string(number);
}

template <class... Arguments>
std::string Call(const char* name, Arguments... arguments)
{
    std::string list;
    ((list += (list.empty() ? "" : ", ") + Text(arguments)), ...);
    return std::string(name) + "(" + list + ")";
}

/// Returns one record of the script, unless the request fails.
template <class Record>
DWORD Give(const char* name, DWORD handle, const Record& record, Record* out)
{
    const DWORD code = Script().Take(Call(name, handle));
    if (code == NCL_SUCCESS) {
        *out = record;
    }
    return code;
}

/// Records a submission of bytes.
DWORD Submit(const std::string& call, const BYTE* data, DWORD size)
{
    const DWORD code = Script().Take(call);
    Script().lastBytes = data == nullptr ? "null" : std::string(reinterpret_cast<const char*>(data), size);
    return code;
}

template <class Job>
DWORD List(const std::string& call, const std::vector<Job>& jobs, Job* out, DWORD length, DWORD* count)
{
    *count = 0;
    const DWORD code = Script().Take(call);
    if (code == NCL_SUCCESS) {
        *count = std::min<DWORD>(length, static_cast<DWORD>(jobs.size()));
        std::copy_n(jobs.begin(), *count, out);
    }
    return code;
}

} // namespace

ScriptedLibrary& ScriptedLibrary::Instance()
{
    static ScriptedLibrary library;
    return library;
}

void ScriptedLibrary::Reset()
{
    *this = ScriptedLibrary();
}

void ScriptedLibrary::Forget()
{
    calls.clear();
    lastBytes.clear();
    m_requests = 0;
}

DWORD ScriptedLibrary::Take(const std::string& call)
{
    calls.push_back(call);
    const size_t number = m_requests++;
    return number == failAt || (failOn && number > failAt) ? failCode : NCL_SUCCESS;
}

// ---------------------------------------------------------------------------------------------------------------------
// The library's functions

DWORD StartConnection(DWORD dwAppVersion, const char* pszServerAddress, DWORD* pdwHandleOut)
{
    *pdwHandleOut = 0;
    const DWORD code = Script().Take(Call("StartConnection", dwAppVersion, pszServerAddress));
    if (code == NCL_SUCCESS) {
        *pdwHandleOut = ScriptedLibrary::handle;
        ++Script().open;
    }
    return code;
}

void EndConnection(DWORD dwHandle)
{
    Script().calls.push_back(Call("EndConnection", dwHandle));
    --Script().open;
}

DWORD GetNPType(DWORD dwHandle, DWORD* dwNPType)
{
    Script().calls.push_back(Call("GetNPType", dwHandle));
    *dwNPType = Script().kind;
    return NCL_SUCCESS;
}

DWORD GetDeviceInfo(DWORD dwHandle, DWORD dwInfoType, char* pszBuf, DWORD dwSize)
{
    const DWORD code = Script().Take(Call("GetDeviceInfo", dwHandle, dwInfoType, dwSize));
    const std::string& text = Script().texts.at(dwInfoType);
    if (code != NCL_SUCCESS) {
        return code;
    }
    if (dwSize < text.size() + 1) {
        return NCL_ERR_PARAMETER;
    }
    std::memcpy(pszBuf, text.c_str(), text.size() + 1);
    return NCL_SUCCESS;
}

DWORD GetDeviceInfoInt(DWORD dwHandle, DWORD dwInfoType, DWORD* pdwValueOut)
{
    const DWORD code = Script().Take(Call("GetDeviceInfoInt", dwHandle, dwInfoType));
    if (code == NCL_SUCCESS) {
        *pdwValueOut = Script().numbers.at(dwInfoType);
    }
    return code;
}

DWORD GetServerMode(DWORD dwHandle, DWORD* pdwModeOut)
{
    return Give("GetServerMode", dwHandle, Script().mode, pdwModeOut);
}

DWORD GetALDStatus(DWORD dwHandle, ALDStatus* pStatusOut)
{
    return Give("GetALDStatus", dwHandle, Script().loader, pStatusOut);
}

DWORD GetStackerStatus(DWORD dwHandle, StackerStatus* pStatusOut)
{
    return Give("GetStackerStatus", dwHandle, Script().stackers, pStatusOut);
}

DWORD GetDrvStatusEx(DWORD dwHandle, DrvStatusEx* pStatusOut)
{
    return Give("GetDrvStatusEx", dwHandle, Script().drives, pStatusOut);
}

DWORD GetPrnStatus(DWORD dwHandle, PrnStatus* pStatusOut)
{
    return Give("GetPrnStatus", dwHandle, Script().printer, pStatusOut);
}

DWORD GetInkStatus(DWORD dwHandle, InkStatus* pStatusOut)
{
    return Give("GetInkStatus", dwHandle, Script().ink, pStatusOut);
}

DWORD GetDeviceFatalError(DWORD dwHandle, DeviceFatalError* pStatusOut)
{
    return Give("GetDeviceFatalError", dwHandle, DeviceFatalError{Script().fatalError}, pStatusOut);
}

DWORD GetMaintenanceInfo(DWORD dwHandle, MaintenanceInfo* pStatusOut)
{
    return Give("GetMaintenanceInfo", dwHandle, Script().figures, pStatusOut);
}

DWORD GetMaintenanceInfoEx(DWORD dwHandle, MaintenanceInfoEx* pStatusOut)
{
    return Give("GetMaintenanceInfoEx", dwHandle, Script().figuresEx, pStatusOut);
}

DWORD GetJobNumber(DWORD dwHandle, DWORD dwType, DWORD* pdwJobNum)
{
    const DWORD code = Script().Take(Call("GetJobNumber", dwHandle, dwType));
    if (code == NCL_SUCCESS) {
        *pdwJobNum = Script().jobNumbers.at(dwType);
    }
    return code;
}

DWORD GetPublishID(DWORD dwHandle, char* pszPublishIDOut, DWORD dwSize, DWORD* pdwNeedSize)
{
    const DWORD code = Script().Take(Call("GetPublishID", dwHandle, dwSize));
    if (pszPublishIDOut == nullptr) {
        return NCL_ERR_PARAMETER;
    }
    *pdwNeedSize = 0;
    if (code != NCL_SUCCESS) {
        return code;
    }
    const std::string& id = Script().publishId;
    if (dwSize < id.size() + 1) {
        *pdwNeedSize = static_cast<DWORD>(id.size() + 1);
        return NCL_ERR_BUF_SIZE;
    }
    std::memcpy(pszPublishIDOut, id.c_str(), id.size() + 1);
    return NCL_SUCCESS;
}

DWORD GetPrnPossibilityNumber(DWORD dwHandle, DWORD* pdwNum)
{
    return Give("GetPrnPossibilityNumber", dwHandle, Script().printable, pdwNum);
}

DWORD GetJobStatus(DWORD dwHandle, DWORD dwType, JobStatus* pJobStatusArrayOut, DWORD dwLength,
                   DWORD* pdwGetLengthOut)
{
    return List(Call("GetJobStatus", dwHandle, dwType, dwLength), Script().finished, pJobStatusArrayOut,
                dwLength, pdwGetLengthOut);
}

DWORD GetJobStatusEx(DWORD dwHandle, DWORD dwType, JobStatusEx* pJobStatusArrayOut, DWORD dwLength,
                     DWORD* pdwGetLengthOut)
{
    return List(Call("GetJobStatusEx", dwHandle, dwType, dwLength), Script().unfinished, pJobStatusArrayOut,
                dwLength, pdwGetLengthOut);
}

DWORD CommitJob(DWORD dwHandle, int nServerJobID)
{
    return Script().Take(Call("CommitJob", dwHandle, nServerJobID));
}

DWORD CancelJob(DWORD dwHandle, int nServerJobID)
{
    return Script().Take(Call("CancelJob", dwHandle, nServerJobID));
}

DWORD SendJobData(DWORD dwHandle, const BYTE* pJobData, DWORD dwSendSize, int* pnServerJobIDOut)
{
    const DWORD code = Submit(Call("SendJobData", dwHandle, dwSendSize), pJobData, dwSendSize);
    if (code == NCL_SUCCESS) {
        *pnServerJobIDOut = Script().serverJobId;
    }
    return code;
}

DWORD SendDiscInfo(DWORD dwHandle, int nServerJobID, const BYTE* pDiscInfo, DWORD dwSendSize)
{
    return Submit(Call("SendDiscInfo", dwHandle, nServerJobID, dwSendSize), pDiscInfo, dwSendSize);
}

DWORD SendDiscWriteInfo(DWORD dwHandle, int nServerJobID, const BYTE* pDiscWriteInfo, DWORD dwSendSize)
{
    return Submit(Call("SendDiscWriteInfo", dwHandle, nServerJobID, dwSendSize), pDiscWriteInfo, dwSendSize);
}

DWORD SendDiscImage(DWORD dwHandle, int nServerJobID, const BYTE* pDiscImage, DWORD dwSendSize,
                    DWORD dwTotalDiscSizeLow, DWORD dwTotalDiscSizeHigh, const char* pszImageName)
{
    return Submit(Call("SendDiscImage", dwHandle, nServerJobID, dwSendSize, dwTotalDiscSizeLow,
                       dwTotalDiscSizeHigh, pszImageName),
                  pDiscImage, dwSendSize);
}

DWORD SendPrnData(DWORD dwHandle, int nServerJobID, const BYTE* pPrnData, DWORD dwSendSize)
{
    return Submit(Call("SendPrnData", dwHandle, nServerJobID, dwSendSize), pPrnData, dwSendSize);
}
