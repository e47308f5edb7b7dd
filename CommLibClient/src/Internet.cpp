#include "Internet.h"

#include "InternetResult.h"

#include <new>

#include <sys/socket.h>

CInternetCon::~CInternetCon()
{
    Close();
}

int CInternetCon::Open(const char* pszServerAddress, WORD wPort, BOOL)
{
    assert(pszServerAddress != nullptr);
    if (m_pComm != nullptr) {
        return INTERNET_ERR_ALREADY_OPEN;
    }
    m_strServerAddress = pszServerAddress;
    m_wPort = wPort;
    m_pComm = new (std::nothrow) CSocket;
    return m_pComm != nullptr ? 0 : INTERNET_ERR_MEMORY;
}

int CInternetCon::Close()
{
    if (m_pComm == nullptr) {
        return INTERNET_ERR_NOT_OPEN;
    }
    m_pComm->Close();
    delete m_pComm;
    m_pComm = nullptr;
    return 0;
}

int CInternetCon::SetTimeout(DWORD dwMilliSec)
{
    if (m_pComm == nullptr) {
        return INTERNET_ERR_NOT_OPEN;
    }
    m_dwConTimeoutMilliSec = dwMilliSec;
    return 0;
}

int CInternetCon::SetNoCommTimeout(DWORD dwMilliSec)
{
    if (m_pComm == nullptr) {
        return INTERNET_ERR_NOT_OPEN;
    }
    m_pComm->SetNoCommTimeout(dwMilliSec);
    return 0;
}

int CInternetCon::Connect()
{
    if (m_pComm == nullptr) {
        return INTERNET_ERR_NOT_OPEN;
    }
    if (m_bConActive) {
        return 0;
    }
    Shutdown();
    int result = m_pComm->Open(AF_INET, SOCK_STREAM);
    if (result < 0) {
        return result;
    }
    // The option requires an int, so the system rejects one byte. A client does not need the option.
    const char on = 1;
    m_pComm->SetSockOpt(SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    result = m_pComm->Connect(m_strServerAddress.c_str(), m_wPort, m_dwConTimeoutMilliSec);
    if (result < 0) {
        return result;
    }
    m_bConActive = TRUE;
    return 0;
}

int CInternetCon::Shutdown()
{
    if (m_pComm == nullptr) {
        return INTERNET_ERR_NOT_OPEN;
    }
    m_pComm->Close();
    m_bConActive = FALSE;
    return 0;
}

int CInternetCon::ReadToCount(char* pBuf, int nCount)
{
    if (m_pComm == nullptr) {
        return INTERNET_ERR_NOT_OPEN;
    }
    const int result = m_pComm->ReadToCount(pBuf, nCount);
    if (result == INTERNET_ERR_CLOSED) {
        m_bConActive = FALSE;
    }
    return result < 0 ? result : 0;
}

int CInternetCon::WriteToCount(const char* pData, int nCount)
{
    return m_pComm != nullptr ? m_pComm->WriteToCount(pData, nCount) : INTERNET_ERR_NOT_OPEN;
}

void CInternetCon::SetMoreFollows(bool bMore)
{
    if (m_pComm != nullptr) {
        m_pComm->SetMoreFollows(bMore);
    }
}

void CInternetCon::LimitReads(DWORD dwMilliSec)
{
    if (m_pComm != nullptr) {
        m_pComm->LimitReads(dwMilliSec);
    }
}

int CInternetCon::PollRead(DWORD dwTimeoutMilliSec)
{
    return m_pComm != nullptr ? m_pComm->PollRead(dwTimeoutMilliSec) : INTERNET_ERR_NOT_OPEN;
}
