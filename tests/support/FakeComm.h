// A transport without a network: it provides prepared connections and records what the client does.
#pragma once

#include "Http.h"

#include <algorithm>
#include <string>
#include <vector>

/// One connection, from one opening of the socket to the next.
struct FakeConnection
{
    std::string reply = {}; ///< what the peer sends
    int readEnd = -11;      ///< result of a read beyond the end of the reply
    int connectResult = 0;  ///< negative: the connect fails with it
    int goodWrites = 1000;  ///< how many writes succeed
    int writeEnd = -10;     ///< result of the next one
    int openResult = 0;     ///< negative: there is no socket
};

class FakeComm : public IInternetComm
{
public:
    explicit FakeComm(std::vector<FakeConnection> connections) : m_connections(std::move(connections)) {}

    std::vector<std::string> writes;  ///< each write's bytes
    std::vector<bool> moreFollows;    ///< for each write, whether it may wait for the next one
    std::vector<std::string> calls;   ///< the operations that touch a network, in order
    std::vector<std::string> options; ///< level, name and value of each socket option
    std::string address;              ///< of the last connect
    int port = 0;
    DWORD connectTimeout = 0;
    DWORD noCommTimeout = 0;
    int family = 0; ///< of the last socket
    int type = 0;

    /// The part of the current reply that the client has not read.
    std::string Unread() const
    {
        return m_present.reply.substr(m_read);
    }

    int Open(int nSocketFamily, int nSocketType) override
    {
        calls.emplace_back("Open");
        family = nSocketFamily;
        type = nSocketType;
        m_present = m_opened < m_connections.size() ? m_connections[m_opened] : FakeConnection{"", -11, -14};
        ++m_opened;
        m_read = 0;
        return m_present.openResult;
    }
    int Close() override
    {
        calls.emplace_back("Close");
        return 0;
    }
    int Connect(const char* pszServerAddress, WORD wPort, DWORD dwMilliSec) override
    {
        calls.emplace_back("Connect");
        address = pszServerAddress;
        port = wPort;
        connectTimeout = dwMilliSec;
        return m_present.connectResult;
    }
    int Shutdown(int) override
    {
        calls.emplace_back("Shutdown");
        return 0;
    }
    int Read(char* pBuf, int nSize) override
    {
        return ReadToCount(pBuf, nSize);
    }
    int ReadToCount(char* pBuf, int nCount) override
    {
        if (nCount <= 0) {
            return 0; // like a socket, which reads only while it has fewer bytes
        }
        const size_t count = std::min(static_cast<size_t>(nCount), m_present.reply.size() - m_read);
        m_present.reply.copy(pBuf, count, m_read);
        m_read += count;
        return count == static_cast<size_t>(nCount) ? nCount : m_present.readEnd;
    }
    int Write(const char* pData, int nSize) override
    {
        return WriteToCount(pData, nSize);
    }
    int WriteToCount(const char* pData, int nCount) override
    {
        if (m_present.goodWrites-- <= 0) {
            return m_present.writeEnd;
        }
        writes.emplace_back(pData, static_cast<size_t>(nCount));
        moreFollows.push_back(m_bMoreFollows);
        return nCount;
    }
    int PollRead(DWORD) override
    {
        return m_read < m_present.reply.size() ? 0 : -6;
    }
    int SetSockOpt(int nLevel, int nOptName, const char* pOptVal, int nOptLen) override
    {
        std::string option = std::to_string(nLevel) + " " + std::to_string(nOptName);
        for (int index = 0; index < nOptLen; ++index) {
            option += " " + std::to_string(pOptVal[index]);
        }
        options.push_back(option);
        return -15;
    }
    int SetNoCommTimeout(DWORD dwMilliSec) override
    {
        noCommTimeout = dwMilliSec;
        return 0;
    }

private:
    std::vector<FakeConnection> m_connections;
    FakeConnection m_present;
    size_t m_opened = 0;
    size_t m_read = 0;
};

/// A connection object that uses a transport of the test, and owns it.
class FakeCon : public CInternetCon
{
public:
    explicit FakeCon(IInternetComm* comm)
    {
        m_pComm = comm;
    }
    using CInternetCon::m_bConActive;
    using CInternetCon::m_dwConTimeoutMilliSec;
    using CInternetCon::m_pComm;
};

/// An HTTP client that uses a transport of the test, and owns it.
class FakeHttp : public CHttp
{
public:
    explicit FakeHttp(IInternetComm* comm)
    {
        m_Con.*& FakeCon::m_pComm = comm;
    }
    bool IsConnected() const
    {
        return m_Con.*&FakeCon::m_bConActive != FALSE;
    }
};
