// The stream socket of the network client, and its interface.
//
// Every operation returns an internet result (InternetResult.h). A null buffer, address or text is a
// programming error and stops the process. Two threads must not use an object at the same time.
#pragma once

#include "Win_def.h"

#include <array>

using SOCKET = int;

/// A transport that can be opened, connected, read and written.
class IInternetComm
{
public:
    virtual ~IInternetComm() = default;
    virtual int Open(int nSocketFamily, int nSocketType) = 0;
    virtual int Close() = 0;
    /// Waits at most `dwMilliSec` for the peer.
    virtual int Connect(const char* pszServerAddress, WORD wPort, DWORD dwMilliSec) = 0;
    virtual int Shutdown(int nHow) = 0;
    /// Reads once. Returns the count, which may be less than `nSize`.
    virtual int Read(char* pBuf, int nSize) = 0;
    /// Reads `nCount` bytes. The silence limit applies to each wait, not to the whole. See also LimitReads.
    virtual int ReadToCount(char* pBuf, int nCount) = 0;
    /// Writes once. Returns the count, which may be less than `nSize`.
    virtual int Write(const char* pData, int nSize) = 0;
    virtual int WriteToCount(const char* pData, int nCount) = 0;
    /// 0 as soon as there is something to read.
    virtual int PollRead(DWORD dwTimeoutMilliSec) = 0;
    virtual int SetSockOpt(int nLevel, int nOptName, const char* pOptVal, int nOptLen) = 0;
    /// The longest silence allowed before each read.
    virtual int SetNoCommTimeout(DWORD dwMilliSec) = 0;

    /// While set, the caller follows each write immediately with another. The transport may hold back the
    /// first, so that both share a packet.
    void SetMoreFollows(bool bMore)
    {
        m_bMoreFollows = bMore;
    }

    /// The longest time for all ReadToCount from now on together; 0: no limit. Without it, a peer that sends
    /// a byte before each end of the silence limit holds the caller as long as it likes.
    void LimitReads(DWORD dwMilliSec)
    {
        m_dwReadLimit = dwMilliSec;
        m_dwReadStart = GetTickCount();
    }

protected:
    bool m_bMoreFollows = false;
    DWORD m_dwReadLimit = 0;
    DWORD m_dwReadStart = 0;
};

/// A socket of the system, IPv4 only. Small reads are served from a buffer of the bytes that have arrived, so
/// that a reply head costs few system calls although it is read byte by byte. Failures are logged as
/// warnings with errno, except a connect that fails while waiting for the connection.
class CSocket : public IInternetComm
{
public:
    enum SelectType
    {
        SELECT_READ = 0,
        SELECT_WRITE = 1,
        SELECT_EXCEPT = 2
    };

    CSocket() = default;
    CSocket(const CSocket&) = delete;
    CSocket& operator=(const CSocket&) = delete;
    ~CSocket() override;

    /// The descriptor is closed on exec, and is not one of the standard streams.
    int Open(int nSocketFamily, int nSocketType) override;
    int Close() override;
    /// Connects by name or dotted address. Afterwards the socket is blocking again, and sends each write at
    /// once unless more follows: a body never waits for the acknowledgement of its head.
    int Connect(const char* pszServerAddress, WORD wPort, DWORD dwMilliSec) override;
    int Shutdown(int nHow) override;
    int Read(char* pBuf, int nSize) override;
    int ReadToCount(char* pBuf, int nCount) override;
    /// Writing to a lost peer is an ordinary error: WinFunc ignores SIGPIPE.
    int Write(const char* pData, int nSize) override;
    /// Writes in pieces below the size of the send buffer. Returns the total, or the first failure.
    int WriteToCount(const char* pData, int nCount) override;
    int PollRead(DWORD dwTimeoutMilliSec) override;
    int SetSockOpt(int nLevel, int nOptName, const char* pOptVal, int nOptLen) override;
    int SetNoCommTimeout(DWORD dwMilliSec) override;

    /// Waits like select. The number of the descriptor has no limit.
    int Poll(SelectType eType, DWORD dwTimeoutMilliSec);
    int GetFD() const;
    /// Writes all `nCount` bytes.
    int WriteToCountBase(const char* pData, int nCount);

protected:
    SOCKET m_Sock = -1; ///< -1 while closed
    DWORD m_dwNoCommTimeoutMilliSec = 30000;

private:
    int Receive(char* pBuf, int nSize);
    DWORD ReadTimeLeft() const;
    bool IsPeerSilent() const;

    std::array<char, 4096> m_ahead; ///< received and not yet read: `m_nAhead` bytes from `m_nAheadBegin` on
    int m_nAheadBegin = 0;
    int m_nAhead = 0;
};
