// Feeds any bytes to the client as a chunked body. An accepted body consists of bytes that were sent, in
// their order, and is the same when it is sent as one chunk.
#include "FailingMemory.h"
#include "FakeComm.h"

#include <charconv>

namespace {

struct Body
{
    int result = 0;
    std::string content;
};

Body Receive(const std::string& chunks)
{
    FakeHttp http(
        new FakeComm({{.reply = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + chunks}}));
    ST_HTTP_RESPONSE response;
    assert(http.SendHeader(CHttp::METHOD_GET, "/", CHttp::VERSION_1_1, "h", nullptr, nullptr, nullptr) == 0);
    Body body;
    body.result = http.RecvResponse(&response);
    assert(response.m_bChunked);
    if (body.result == 0 && response.m_pContent != nullptr) {
        body.content.assign(response.m_pContent, response.m_dwContentLength);
    }
    assert(body.result == 0 || response.m_pContent == nullptr);
    return body;
}

bool IsMadeOf(const std::string& content, const std::string& bytes)
{
    size_t place = 0;
    for (const char byte : content) {
        place = bytes.find(byte, place);
        if (place == std::string::npos) {
            return false;
        }
        ++place;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const FailingMemory memory(16U << 20); // an input may announce any size
    const std::string chunks(reinterpret_cast<const char*>(data), size);
    const Body body = Receive(chunks);
    if (body.result != 0) {
        assert(body.result == -2 || body.result == -5 || body.result == -11 || body.result == -25);
        return 0;
    }
    assert(IsMadeOf(body.content, chunks));
    if (!body.content.empty()) {
        char digits[16];
        char* const end = std::to_chars(digits, std::end(digits), body.content.size(), 16).ptr;
        const Body again = Receive(std::string(&digits[0], end) + "\r\n" + body.content + "\r\n0\r\n\r\n");
        assert(again.result == 0 && again.content == body.content);
    }
    return 0;
}
