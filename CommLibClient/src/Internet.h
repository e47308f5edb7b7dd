// A connection to one server that stays open between requests.
#pragma once

#include "Socket.h"

#include <string>

/// Open once, then any number of Connect, reads, writes and Shutdown, then Close. All results are internet
/// results; before Open, every other function returns -3. One thread at a time.
class CInternetCon
{
public:
    CInternetCon() = default;
    CInternetCon(const CInternetCon&) = delete;
    CInternetCon& operator=(const CInternetCon&) = delete;
    virtual ~CInternetCon();

    /// Creates the transport without network traffic. `bSSL` is ignored: there is no secure transport.
    int Open(const char* pszServerAddress, WORD wPort, BOOL bSSL);
    int Close();
    /// Milliseconds allowed for a connect.
    int SetTimeout(DWORD dwMilliSec);
    /// Milliseconds of silence allowed before each read.
    int SetNoCommTimeout(DWORD dwMilliSec);
    /// Does nothing while the connection counts as open: the next read or write reports a lost peer.
    int Connect();
    /// Closes the socket; the next Connect opens another.
    int Shutdown();
    /// 0 if all bytes were read. If the peer has closed the connection, it no longer counts as open.
    int ReadToCount(char* pBuf, int nCount);
    int WriteToCount(const char* pData, int nCount);
    // See IInternetComm; before Open they do nothing.

    void SetMoreFollows(bool bMore);
    void LimitReads(DWORD dwMilliSec);

    int PollRead(DWORD dwTimeoutMilliSec);

protected:
    BOOL m_bConActive = FALSE; ///< connected, and free for the next request
    WORD m_wPort = 0;
    DWORD m_dwConTimeoutMilliSec = 5000;
    std::string m_strServerAddress;   ///< name or dotted address
    IInternetComm* m_pComm = nullptr; ///< owned; null until Open
};
