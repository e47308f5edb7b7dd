// A connection that remembers its peer and stays open from one request to the next.
#pragma once

#include "Socket.h"

#include <string>

/// Open once, then any number of Connect, reads, writes and Shutdown, then Close. All results are internet
/// results; everything but Open gives -3 before it. One thread at a time.
class CInternetCon
{
public:
    CInternetCon() = default;
    CInternetCon(const CInternetCon&) = delete;
    CInternetCon& operator=(const CInternetCon&) = delete;
    virtual ~CInternetCon();

    /// Makes the transport and touches no network. `bSSL` is not looked at: there is no secured transport.
    int Open(const char* pszServerAddress, WORD wPort, BOOL bSSL);
    int Close();
    /// Milliseconds for a connect.
    int SetTimeout(DWORD dwMilliSec);
    /// Milliseconds of silence before each read.
    int SetNoCommTimeout(DWORD dwMilliSec);
    /// Does nothing while the connection counts as alive: that the peer has gone shows in the next read or
    /// write.
    int Connect();
    /// Closes the socket; the next Connect opens another.
    int Shutdown();
    /// 0 when all is read. Of a peer that closed, the connection knows afterwards that it is no more.
    int ReadToCount(char* pBuf, int nCount);
    int WriteToCount(const char* pData, int nCount);
    /// See IInternetComm; before Open it does nothing.
    void SetMoreFollows(bool bMore);
    int PollRead(DWORD dwTimeoutMilliSec);

protected:
    BOOL m_bConActive = FALSE; ///< connected, and free for the next request
    WORD m_wPort = 0;
    DWORD m_dwConTimeoutMilliSec = 5000;
    std::string m_strServerAddress;   ///< name or dotted address
    IInternetComm* m_pComm = nullptr; ///< owned; null until Open
};
