#include "ScriptedNetwork.h"

#include "FakeComm.h"
#include "InternetResult.h"
#include "Replay.h"

#include <algorithm>
#include <cassert>
#include <cstdint>

namespace {

ScriptedNetwork::Answer serverAnswer;

class ScriptedComm : public IInternetComm
{
public:
    int Open(int, int) override
    {
        m_request.clear();
        m_reply.clear();
        m_read = 0;
        return 0;
    }
    int Close() override
    {
        return 0;
    }
    int Connect(const char*, WORD, DWORD) override
    {
        return 0;
    }
    int Shutdown(int) override
    {
        return 0;
    }
    int Read(char* pBuf, int nSize) override
    {
        return ReadToCount(pBuf, nSize);
    }
    int ReadToCount(char* pBuf, int nCount) override
    {
        const size_t count = std::min(static_cast<size_t>(nCount), m_reply.size() - m_read);
        m_reply.copy(pBuf, count, m_read);
        m_read += count;
        return count == static_cast<size_t>(nCount) ? nCount : INTERNET_ERR_CLOSED;
    }
    int Write(const char* pData, int nSize) override
    {
        return WriteToCount(pData, nSize);
    }
    int WriteToCount(const char* pData, int nCount) override
    {
        m_request.append(pData, static_cast<size_t>(nCount));
        // 0 while the head is incomplete
        while (const uint64_t size =
                   udsim::sizeOfRequest(udsim::Recording::Of::server, m_request).value_or(0)) {
            if (size > m_request.size()) {
                break;
            }
            m_reply.erase(0, m_read);
            m_read = 0;
            m_reply += serverAnswer(m_request.substr(0, size));
            m_request.erase(0, size);
        }
        return nCount;
    }
    int PollRead(DWORD) override
    {
        return m_read < m_reply.size() ? 0 : INTERNET_ERR_NO_COMM;
    }
    int SetSockOpt(int, int, const char*, int) override
    {
        return 0;
    }
    int SetNoCommTimeout(DWORD) override
    {
        return 0;
    }

private:
    std::string m_request; ///< received, and not complete
    std::string m_reply;   ///< sent, of which the client has read the first `m_read` bytes
    size_t m_read = 0;
};

} // namespace

// The linker option --wrap redirects calls of CInternetCon::Open in other objects to this function.
int OpenScripted(CInternetCon* con, const char* address, WORD port,
                 BOOL ssl) asm("__wrap__ZN12CInternetCon4OpenEPKcti");

int OpenScripted(CInternetCon* con, const char*, WORD, BOOL)
{
    assert(serverAnswer != nullptr);
    con->*& FakeCon::m_pComm = new ScriptedComm; // the connection owns it
    return 0;
}

ScriptedNetwork::ScriptedNetwork(Answer answer)
{
    serverAnswer = std::move(answer);
}

ScriptedNetwork::~ScriptedNetwork()
{
    serverAnswer = nullptr;
}
