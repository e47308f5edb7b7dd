// The exchange with the control service. On this platform all transfers complete inside their call. The
// branches for pending transfers and a busy pipe are part of the contract with the layer below and stay.
#include "BasicPublisherMgr.h"

#include "WinFunc.h"
#include "Win_def_log.h"

#include <cstring>
#include <new>

namespace {

constexpr int RETRY_OPEN_CNT = 40;
constexpr DWORD RETRY_OPEN_WAIT = 50;             // milliseconds
constexpr DWORD TIMEOUT_WRITECOMMAND = 1000;      // milliseconds
constexpr DWORD TIMEOUT_READCOMMAND = 1000;       // milliseconds
constexpr unsigned long longestRead = 0x7FFFFFFF; // maximum bytes of one ReadFile

void FreeResponses(void** ppResponse, ULONG* pResponseLength, int nCount)
{
    for (int i = 0; i < nCount; ++i) {
        delete[] static_cast<char*>(ppResponse[i]);
        ppResponse[i] = nullptr;
        pResponseLength[i] = 0;
    }
}

} // namespace

HANDLE CBasicPublisherMgr::OpenServicePipe(int* pResultCode)
{
    ASSERT(pResultCode != nullptr);
    *pResultCode = 0;
    int nRetryCnt = 0;
    while (true) {
        const HANDLE hPipe =
            CreateFileA(ARV_PC_PIPE_NAME, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                        FILE_FLAG_OVERLAPPED | FILE_ATTRIBUTE_NORMAL, nullptr);
        if (hPipe != INVALID_HANDLE_VALUE) {
            return hPipe;
        }
        const DWORD dwError = GetLastError();
        if (GetLogLevel() >= 2) {
            logViaAgent(4, "CBasicPublisherMgr::OpenServicePipe, failed to connect pipe");
        }
        if (dwError != ERROR_PIPE_BUSY) {
            *pResultCode = ERR_SERVICE_NOT_COMMUNICATION;
            return INVALID_HANDLE_VALUE;
        }
        if (++nRetryCnt > RETRY_OPEN_CNT) {
            *pResultCode = ERR_SERVICE_TIMEOUT;
            return INVALID_HANDLE_VALUE;
        }
        Sleep(RETRY_OPEN_WAIT);
    }
}

bool CBasicPublisherMgr::WriteServiceCommand(HANDLE hPipe, void* pImg, ULONG ulImgLength, int* pResultCode)
{
    ASSERT(hPipe != nullptr);
    ASSERT(pImg != nullptr);
    ASSERT(ulImgLength != 0);
    ASSERT(pResultCode != nullptr);
    *pResultCode = 0;
    DWORD dwWritten = 0;
    if (!WriteFile(hPipe, pImg, ulImgLength, &dwWritten, &m_olAnsync)) {
        if (GetLastError() != ERROR_IO_PENDING) {
            *pResultCode = ERR_SERVICE_NOT_COMMUNICATION;
            if (GetLogLevel() >= 2) {
                logViaAgent(4, "CBasicPublisherMgr::WriteServiceCommand, 1");
            }
            return false;
        }
        WaitForSingleObject(m_olAnsync.hEvent, TIMEOUT_WRITECOMMAND);
        if (!GetOverlappedResult(hPipe, &m_olAnsync, &dwWritten, FALSE)) {
            *pResultCode = ERR_SERVICE_TIMEOUT;
            if (GetLogLevel() >= 2) {
                logViaAgent(4, "CBasicPublisherMgr::WriteServiceCommand, 2");
            }
            return false;
        }
    }
    if (dwWritten != ulImgLength) {
        *pResultCode = ERR_SERVICE_NOT_COMMUNICATION;
        if (GetLogLevel() >= 2) {
            logViaAgent(4, "CBasicPublisherMgr::WriteServiceCommand, 3");
        }
        return false;
    }
    return true;
}

bool CBasicPublisherMgr::ReadServiceResponse(HANDLE hPipe, void* pResponse, ULONG ulResponseLength,
                                             int* pResultCode)
{
    ASSERT(hPipe != nullptr);
    ASSERT(pResponse != nullptr);
    ASSERT(ulResponseLength != 0);
    ASSERT(pResultCode != nullptr);
    *pResultCode = 0;
    DWORD dwRead = 0;
    if (!ReadFile(hPipe, pResponse, ulResponseLength, &dwRead, &m_olAnsync)) {
        if (GetLastError() != ERROR_IO_PENDING) {
            *pResultCode = ERR_SERVICE_NOT_COMMUNICATION;
            return false;
        }
        WaitForSingleObject(m_olAnsync.hEvent, TIMEOUT_READCOMMAND);
        if (!GetOverlappedResult(hPipe, &m_olAnsync, &dwRead, FALSE)) {
            *pResultCode = ERR_SERVICE_TIMEOUT;
            return false;
        }
    }
    if (dwRead != ulResponseLength) {
        *pResultCode = ERR_SERVICE_NOT_COMMUNICATION;
        return false;
    }
    return true;
}

int CBasicPublisherMgr::GetServiceResponse(ULONG ulControlID, LPCTSTR pPublisherRegistID, LPCTSTR pJobID,
                                           ULONG ulSubParam, void** ppResponse, ULONG* pResponseLength)
{
    ServiceCommand command{ulControlID, pPublisherRegistID, pJobID, ulSubParam};
    return GetServiceResponse(&command, 1, ppResponse, pResponseLength);
}

int CBasicPublisherMgr::GetServiceResponse(ServiceCommand* pCommand, int nCommandCnt, void** ppResponse,
                                           ULONG* pResponseLength)
{
    ASSERT(pCommand != nullptr);
    ASSERT(ppResponse != nullptr);
    ASSERT(pResponseLength != nullptr);
    for (int i = 0; i < nCommandCnt; ++i) {
        ppResponse[i] = nullptr;
        pResponseLength[i] = 0;
    }

    int nResult = 0;
    for (int i = 0; i < nCommandCnt; ++i) {
        const HANDLE hPipe = OpenServicePipe(&nResult);
        if (hPipe == INVALID_HANDLE_VALUE) {
            if (GetLogLevel() >= 2) {
                logViaAgent(4, "CBasicPublisherMgr::GetServiceResponse, failed to open pipe");
            }
            break;
        }
        PublishPipe(hPipe);
        const bool bAnswered = Exchange(hPipe, pCommand[i], &ppResponse[i], &pResponseLength[i], &nResult);
        ClosePipe(hPipe);
        if (!bAnswered) {
            break;
        }
    }
    if (nResult != 0) {
        FreeResponses(ppResponse, pResponseLength, nCommandCnt);
    }
    return nResult;
}

/// Runs one command on an open connection. The caller frees the payload, even after a failure.
bool CBasicPublisherMgr::Exchange(HANDLE hPipe, const ServiceCommand& command, void** ppResponse,
                                  ULONG* pResponseLength, int* pResultCode)
{
    ST_PC_SERVICE_CONTROL request;
    std::memset(&request, 0, sizeof request); // the padding is sent too
    request.ulControlID = command.ulControlID;
    if (command.pPublisherRegistID != nullptr && m_bConnectPublisherIDMode) {
        strncpy_s(request.acPublisherName, sizeof request.acPublisherName, command.pPublisherRegistID,
                  sizeof request.acPublisherName - 1);
    }
    if (command.pJobID != nullptr) {
        strncpy_s(request.acJobID, sizeof request.acJobID, command.pJobID, sizeof request.acJobID - 1);
    }
    request.ulSubParam = command.ulSubParam;

    ST_PC_RESPONSE_HEADER header{};
    if (!WriteServiceCommand(hPipe, &request, sizeof request, pResultCode) ||
        !ReadServiceResponse(hPipe, &header, sizeof header, pResultCode)) {
        return false;
    }
    if (header.ulResponseID != command.ulControlID) {
        *pResultCode = ERR_SERVICE_NOT_COMMUNICATION;
        return false;
    }
    if (header.ulResultCode != ARV_PC_SUCCESS) {
        *pResultCode = static_cast<int>(header.ulResultCode);
        return false;
    }
    if (header.ulDataLength == 0) {
        return true;
    }

    // The length is untrusted: reject a length above the limit of one read before allocating.
    char* pPayload =
        header.ulDataLength <= longestRead ? new (std::nothrow) char[header.ulDataLength] : nullptr;
    if (pPayload == nullptr) {
        *pResultCode = ERR_SERVICE_NOT_COMMUNICATION;
        return false;
    }
    *ppResponse = pPayload;
    *pResponseLength = static_cast<ULONG>(header.ulDataLength);
    if (!ReadServiceResponse(hPipe, pPayload, *pResponseLength, pResultCode)) {
        *pResultCode = ERR_SERVICE_NOT_COMMUNICATION;
        return false;
    }
    return true;
}

void CBasicPublisherMgr::PublishPipe(HANDLE hPipe)
{
    const std::lock_guard lock(m_mtxPipeConnection);
    m_hPipeConnection = hPipe;
}

void CBasicPublisherMgr::ClosePipe(HANDLE hPipe)
{
    {
        const std::lock_guard lock(m_mtxPipeConnection);
        if (m_hPipeConnection == hPipe) {
            m_hPipeConnection = nullptr;
        }
    }
    CloseHandle(hPipe);
}

bool CBasicPublisherMgr::CancelCommunicateService()
{
    const std::lock_guard lock(m_mtxPipeConnection);
    if (m_hPipeConnection != nullptr) {
        // The exchange still uses the descriptor and closes it. Shutting down the stream wakes its thread.
        auto* pPipe = dynamic_cast<WinFileHandle*>(static_cast<IWinHandle*>(m_hPipeConnection));
        ASSERT(pPipe != nullptr);
        pPipe->Shutdown();
        m_hPipeConnection = nullptr;
    }
    return true;
}

bool CBasicPublisherMgr::IsRunningCommunicateService()
{
    const std::lock_guard lock(m_mtxPipeConnection);
    return m_hPipeConnection != nullptr;
}
