#include "Socket.h"

#include "InternetResult.h"
#include "LogManager.h"
#include "SystemCalls.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int SEND_BUFFER_SIZE = 32768;
constexpr int LARGEST_WRITE = SEND_BUFFER_SIZE - 1;
constexpr DWORD UNLIMITED = 0xFFFFFFFF;

// The events that put a descriptor in the three sets of select.
constexpr short IN_READ_SET = POLLIN | POLLRDNORM | POLLRDBAND | POLLHUP | POLLERR;
constexpr short IN_WRITE_SET = POLLOUT | POLLWRNORM | POLLWRBAND | POLLERR;
constexpr short IN_EXCEPT_SET = POLLPRI;

/// select on one descriptor for the events in `sets`: returns the result of select, and in `found` the events
/// that occurred. Uses ppoll, because select accepts no descriptor above 1023, which a program with many open
/// files has.
int Select(SOCKET descriptor, short sets, DWORD milliseconds, short* found)
{
    pollfd entry{descriptor, sets, 0};
    const timespec limit{milliseconds / 1000, static_cast<long>(milliseconds % 1000) * 1000000};
    const int ready = ppoll(&entry, 1, &limit, nullptr);
    *found = static_cast<short>(entry.revents & sets);
    if (ready > 0 && (entry.revents & POLLNVAL) != 0) {
        errno = EBADF;
        return -1;
    }
    if (ready > 0 && *found == 0) {
        // A lost connection: ppoll always reports it, but the exception set does not include it, so select
        // would wait for the timeout.
        return ppoll(nullptr, 0, &limit, nullptr);
    }
    return ready;
}

/// Finds the first IPv4 address of a name. False, with errno set by the system, if there is none.
bool FindHost(const char* name, in_addr* address)
{
    const int before = errno;
    std::vector<char> buffer(1024);
    hostent entry{};
    hostent* found = nullptr;
    int reason = 0;
    // The reentrant call, because several connections look up names at the same time.
    while (gethostbyname_r(name, &entry, buffer.data(), buffer.size(), &found, &reason) == ERANGE) {
        buffer.resize(buffer.size() * 2);
    }
    if (found == nullptr || found->h_addrtype != AF_INET || found->h_addr_list[0] == nullptr) {
        return false;
    }
    memcpy(address, found->h_addr_list[0], sizeof *address);
    errno = before; // a first buffer that was too small has changed it
    return true;
}

/// A failure only delays small writes.
void SendAtOnce(SOCKET descriptor)
{
    const ErrnoKeeper keeper;
    const int on = 1;
    setsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

} // namespace

CSocket::~CSocket()
{
    CSocket::Close();
}

int CSocket::Open(int nSocketFamily, int nSocketType)
{
    CLogManager log;
    if (m_Sock != -1) {
        log.LOG_WARN("CSocket::Open ALREADY OPEN");
        return INTERNET_ERR_ALREADY_OPEN;
    }
    m_Sock = AboveStandardStreams(socket(nSocketFamily, nSocketType | SOCK_CLOEXEC, 0));
    if (m_Sock < 0) {
        log.LOG_WARN("CSocket::Open socket() error = %d", errno);
        m_Sock = -1;
        return INTERNET_ERR_SOCKET;
    }
    return 0;
}

int CSocket::Close()
{
    if (m_Sock == -1) {
        return 0;
    }
    if (close(m_Sock) < 0) {
        CLogManager log;
        log.LOG_WARN("CSocket::Close closesocket() error = %d", errno);
    }
    m_Sock = -1;
    m_nAhead = 0;
    return 0;
}

int CSocket::Connect(const char* pszServerAddress, WORD wPort, DWORD dwMilliSec)
{
    assert(pszServerAddress != nullptr);
    if (m_Sock == -1) {
        return INTERNET_ERR_NOT_OPEN;
    }
    CLogManager log;
    if (setsockopt(m_Sock, SOL_SOCKET, SO_SNDBUF, &SEND_BUFFER_SIZE, sizeof SEND_BUFFER_SIZE) < 0) {
        log.LOG_WARN("CSocket::Connect setsockopt() error = %d", errno);
        return INTERNET_ERR_CONNECT;
    }
    const int flags = fcntl(m_Sock, F_GETFL);
    if (flags < 0 || fcntl(m_Sock, F_SETFL, flags | O_NONBLOCK) < 0) {
        return INTERNET_ERR_ARGUMENT;
    }

    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(wPort);
    address.sin_addr.s_addr = inet_addr(pszServerAddress);
    if (address.sin_addr.s_addr == INADDR_NONE && !FindHost(pszServerAddress, &address.sin_addr)) {
        log.LOG_WARN("CSocket::Connect gethostbyname() error = %d", errno);
        return INTERNET_ERR_CONNECT;
    }

    if (connect(m_Sock, reinterpret_cast<const sockaddr*>(&address), sizeof address) < 0) {
        const int error = errno;
        if (error == EINPROGRESS) {
            errno = 0;
        } else if (error != EAGAIN) {
            fcntl(m_Sock, F_SETFL, flags);
            log.LOG_WARN("CSocket::Connect connect() error = %d", error);
            return INTERNET_ERR_CONNECT;
        }
    }
    fcntl(m_Sock, F_SETFL, flags);

    short found = 0;
    const int ready = Select(m_Sock, IN_READ_SET | IN_WRITE_SET | IN_EXCEPT_SET, dwMilliSec, &found);
    if (ready == 0) {
        return INTERNET_ERR_NO_COMM;
    }
    // A failed select leaves its sets unchanged, so SO_ERROR decides whether there is a connection.
    if (ready > 0 && (found & (IN_READ_SET | IN_WRITE_SET)) == 0) {
        return INTERNET_ERR_CONNECT;
    }
    int error = 0;
    socklen_t size = sizeof error;
    if (getsockopt(m_Sock, SOL_SOCKET, SO_ERROR, &error, &size) < 0 || error != 0) {
        return INTERNET_ERR_CONNECT;
    }
    SendAtOnce(m_Sock);
    return 0;
}

int CSocket::Shutdown(int nHow)
{
    if (m_Sock == -1) {
        return INTERNET_ERR_NOT_OPEN;
    }
    if (shutdown(m_Sock, nHow) < 0) {
        CLogManager log;
        log.LOG_WARN("CSocket::Shutdown shutdown() error = %d", errno);
        return INTERNET_ERR_CLOSED;
    }
    return 0;
}

int CSocket::Read(char* pBuf, int nSize)
{
    assert(pBuf != nullptr);
    if (m_Sock == -1) {
        return INTERNET_ERR_NOT_OPEN;
    }
    if (m_nAhead == 0) {
        if (nSize <= 0 || nSize >= static_cast<int>(m_ahead.size())) {
            return Receive(pBuf, nSize);
        }
        const int count = Receive(m_ahead.data(), static_cast<int>(m_ahead.size()));
        if (count < 0) {
            return count;
        }
        m_nAheadBegin = 0;
        m_nAhead = count;
    }
    const int count = std::min(nSize, m_nAhead);
    std::copy_n(m_ahead.data() + m_nAheadBegin, count, pBuf);
    m_nAheadBegin += count;
    m_nAhead -= count;
    return count;
}

/// Calls recv once. Returns its count, or the result for its failure.
int CSocket::Receive(char* pBuf, int nSize)
{
    const ssize_t count = recv(m_Sock, pBuf, static_cast<size_t>(nSize), 0);
    if (count > 0) {
        return static_cast<int>(count);
    }
    CLogManager log;
    if (count == 0) {
        log.LOG_WARN("CSocket::Read recv() shutdown");
        return INTERNET_ERR_CLOSED;
    }
    if (errno == EAGAIN) {
        // The line and the result are those of a failed connect. Readers of the log expect this line.
        log.LOG_WARN("CSocket::Connect connect() error = %d", errno);
        return INTERNET_ERR_CONNECT;
    }
    log.LOG_WARN("CSocket::Read recv() error = %d", errno);
    return INTERNET_ERR_RECV;
}

int CSocket::ReadToCount(char* pBuf, int nCount)
{
    assert(pBuf != nullptr);
    if (m_Sock == -1) {
        return INTERNET_ERR_NOT_OPEN;
    }
    int total = 0;
    while (total < nCount) {
        // Bytes that have arrived are always delivered, and cost no look at the clock.
        const DWORD left = m_nAhead > 0 ? UNLIMITED : ReadTimeLeft();
        if (left == 0) {
            CLogManager log;
            log.LOG_WARN("CSocket::ReadToCount time limit");
            return INTERNET_ERR_NO_COMM;
        }
        const int ready = PollRead(std::min(left, m_dwNoCommTimeoutMilliSec));
        if (ready < 0) {
            return ready;
        }
        const int count = Read(pBuf + total, nCount - total);
        if (count < 0) {
            return count;
        }
        total += count;
    }
    return total;
}

/// What is left of the limit of all reads, in milliseconds.
DWORD CSocket::ReadTimeLeft() const
{
    if (m_dwReadLimit == 0) {
        return UNLIMITED;
    }
    const DWORD passed = GetTickCount() - m_dwReadStart;
    return passed < m_dwReadLimit ? m_dwReadLimit - passed : 0;
}

int CSocket::Write(const char* pData, int nSize)
{
    assert(pData != nullptr);
    if (m_Sock == -1) {
        return INTERNET_ERR_NOT_OPEN;
    }
    const int flags = m_bMoreFollows && IsPeerSilent() ? MSG_MORE : 0;
    const ssize_t count = send(m_Sock, pData, static_cast<size_t>(nSize), flags);
    if (count >= 0) {
        return static_cast<int>(count);
    }
    CLogManager log;
    if (errno == EAGAIN) {
        log.LOG_WARN("CSocket::Write send() timeout");
        return INTERNET_ERR_SEND_TIMEOUT;
    }
    log.LOG_WARN("CSocket::Write send() error = %d", errno);
    return INTERNET_ERR_SEND;
}

/// Whether the connection is open and no data is pending. A write to a peer that has closed the connection
/// must be sent at once: the peer answers with a reset, which the next write reports.
bool CSocket::IsPeerSilent() const
{
    pollfd entry{m_Sock, POLLIN, 0};
    return poll(&entry, 1, 0) == 0;
}

int CSocket::WriteToCount(const char* pData, int nCount)
{
    assert(pData != nullptr);
    if (m_Sock == -1) {
        return INTERNET_ERR_NOT_OPEN;
    }
    int total = 0;
    while (total < nCount) {
        const int left = nCount - total;
        const int count = WriteToCountBase(pData + total, left > LARGEST_WRITE ? LARGEST_WRITE : left);
        if (count < 0) {
            return count;
        }
        total += count;
    }
    return total;
}

int CSocket::WriteToCountBase(const char* pData, int nCount)
{
    int total = 0;
    while (total < nCount) {
        const int count = Write(pData + total, nCount - total);
        if (count < 0) {
            return count;
        }
        total += count;
    }
    return total;
}

int CSocket::PollRead(DWORD dwTimeoutMilliSec)
{
    if (m_Sock == -1) {
        return INTERNET_ERR_NOT_OPEN;
    }
    return Poll(SELECT_READ, dwTimeoutMilliSec);
}

int CSocket::Poll(SelectType eType, DWORD dwTimeoutMilliSec)
{
    if (m_Sock == -1) {
        return INTERNET_ERR_NOT_OPEN;
    }
    if (eType == SELECT_READ && m_nAhead > 0) {
        return 0;
    }
    short set = IN_EXCEPT_SET;
    if (eType == SELECT_READ) {
        set = IN_READ_SET;
    } else if (eType == SELECT_WRITE) {
        set = IN_WRITE_SET;
    }
    short found = 0;
    const int ready = Select(m_Sock, set, dwTimeoutMilliSec, &found);
    if (ready > 0) {
        return 0;
    }
    CLogManager log;
    if (ready < 0) {
        log.LOG_WARN("CSocket::Poll select() error = %d", errno);
        return INTERNET_ERR_SELECT;
    }
    log.LOG_WARN("CSocket::Poll select() timeout");
    return INTERNET_ERR_NO_COMM;
}

int CSocket::SetSockOpt(int nLevel, int nOptName, const char* pOptVal, int nOptLen)
{
    if (m_Sock == -1) {
        return INTERNET_ERR_NOT_OPEN;
    }
    if (setsockopt(m_Sock, nLevel, nOptName, pOptVal, static_cast<socklen_t>(nOptLen)) < 0) {
        return INTERNET_ERR_OPTION;
    }
    return 0;
}

int CSocket::SetNoCommTimeout(DWORD dwMilliSec)
{
    m_dwNoCommTimeoutMilliSec = dwMilliSec;
    return 0;
}

int CSocket::GetFD() const
{
    return m_Sock;
}
