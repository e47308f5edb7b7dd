// Feeds any bytes to the client as the reply of a publisher server, which then closes the connection.
#include "FailingMemory.h"
#include "FakeComm.h"

#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const FailingMemory memory(16U << 20); // an input may announce any length
    const std::string reply(reinterpret_cast<const char*>(data), size);
    auto* comm = new FakeComm({{.reply = reply}});
    FakeHttp http(comm);
    ST_HTTP_RESPONSE response;
    assert(http.SendHeader(CHttp::METHOD_GET, "/", CHttp::VERSION_1_1, "h", nullptr, nullptr, nullptr) == 0);
    errno = 0;
    const int result = http.RecvResponse(&response);
    const std::string unread = comm->Unread();
    assert(response.m_strCookie.size() < 1024);
    if (result != 0) {
        assert(result == -2 || result == -5 || result == -11 || result == -25);
        assert(response.m_pContent == nullptr);
        assert(!http.IsConnected());
        return 0;
    }
    assert(response.m_eStatus != CHttp::STATUS_EMPTY && response.m_eStatus != CHttp::STATUS_CONTINUE);
    assert(http.IsConnected() == (response.m_bConActive != FALSE));
    assert((response.m_pContent == nullptr) == (response.m_dwContentLength == 0));
    const size_t end = size - unread.size();
    assert(response.m_dwContentLength <= end);
    if (!response.m_bChunked && response.m_pContent != nullptr) {
        const size_t start = end - response.m_dwContentLength;
        assert(std::memcmp(response.m_pContent, reply.data() + start, response.m_dwContentLength) == 0);
    }
    return 0;
}
