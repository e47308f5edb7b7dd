// The stream socket under the network client, and the interface behind which it stands.
//
// Every operation reports by an internet result (InternetResult.h). A null buffer, address or text is a
// programming error and stops the process. No object here may be used by two threads at once.
#pragma once

#include "Win_def.h"

#include <array>

using SOCKET = int;

/// A transport: something that is opened, connected, read and written.
class IInternetComm
{
public:
    virtual ~IInternetComm() = default;
    virtual int Open(int nSocketFamily, int nSocketType) = 0;
    virtual int Close() = 0;
    /// Waits at most `dwMilliSec` for the peer.
    virtual int Connect(const char* pszServerAddress, WORD wPort, DWORD dwMilliSec) = 0;
    virtual int Shutdown(int nHow) = 0;
    /// One read: the count, which may be less than `nSize`.
    virtual int Read(char* pBuf, int nSize) = 0;
    /// Reads until `nCount` bytes are there. The silence limit holds for each wait, not for the whole.
    virtual int ReadToCount(char* pBuf, int nCount) = 0;
    /// One write: the count, which may be less than `nSize`.
    virtual int Write(const char* pData, int nSize) = 0;
    virtual int WriteToCount(const char* pData, int nCount) = 0;
    /// 0 as soon as there is something to read.
    virtual int PollRead(DWORD dwTimeoutMilliSec) = 0;
    virtual int SetSockOpt(int nLevel, int nOptName, const char* pOptVal, int nOptLen) = 0;
    /// The longest silence allowed before each read.
    virtual int SetNoCommTimeout(DWORD dwMilliSec) = 0;

    /// A promise of the caller: while set, each write is followed by another one at once. The transport may
    /// hold back the first, so that both share a packet.
    void SetMoreFollows(bool bMore)
    {
        m_bMoreFollows = bMore;
    }

protected:
    bool m_bMoreFollows = false;
};

/// A socket of the system, IPv4 only. Small reads are served from a buffer that takes in whatever has
/// arrived, so that a reply head costs few system calls although it is read byte by byte. What goes wrong
/// goes to the log as a warning, with the number of the system's error; a wait for a connection that was in
/// vain does not.
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

    /// The descriptor is closed on exec, and is none of the standard streams.
    int Open(int nSocketFamily, int nSocketType) override;
    int Close() override;
    /// By name or dotted address. The socket blocks again afterwards, and sends each write at once unless
    /// more follows: a body never waits for the peer's acknowledgement of its head.
    int Connect(const char* pszServerAddress, WORD wPort, DWORD dwMilliSec) override;
    int Shutdown(int nHow) override;
    int Read(char* pBuf, int nSize) override;
    int ReadToCount(char* pBuf, int nCount) override;
    /// A write to a peer that is gone is an error like another: WinFunc sets SIGPIPE aside.
    int Write(const char* pData, int nSize) override;
    /// In pieces below the size of the send buffer; the total, or the first failure.
    int WriteToCount(const char* pData, int nCount) override;
    int PollRead(DWORD dwTimeoutMilliSec) override;
    int SetSockOpt(int nLevel, int nOptName, const char* pOptVal, int nOptLen) override;
    int SetNoCommTimeout(DWORD dwMilliSec) override;

    /// The outcomes of select for this one descriptor, of any number.
    int Poll(SelectType eType, DWORD dwTimeoutMilliSec);
    int GetFD() const;
    /// Writes until all of `nCount` bytes are gone.
    int WriteToCountBase(const char* pData, int nCount);

protected:
    SOCKET m_Sock = -1; ///< -1 while closed
    DWORD m_dwNoCommTimeoutMilliSec = 30000;

private:
    int Receive(char* pBuf, int nSize);
    bool IsPeerSilent() const;

    std::array<char, 4096> m_ahead; ///< received and not yet read: `m_nAhead` bytes from `m_nAheadBegin` on
    int m_nAheadBegin = 0;
    int m_nAhead = 0;
};
