// Tests how the client parses replies.
#include "Http.h"

#include "FailingMemory.h"
#include "FakeComm.h"
#include "HeapGrowth.h"
#include "SyslogLines.h"

#include <cerrno>
#include <type_traits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

static_assert(!std::is_copy_constructible_v<ST_HTTP_RESPONSE>); // it owns its body

namespace {

/// One reply to a connected client.
struct Reply
{
    explicit Reply(const std::string& bytes, int readEnd = -11)
        : comm(new FakeComm({{.reply = bytes, .readEnd = readEnd}})), http(comm)
    {
        EXPECT_EQ(http.SendHeader(CHttp::METHOD_GET, "/", CHttp::VERSION_1_1, "h", nullptr, nullptr, nullptr),
                  0);
        errno = 0;
        result = http.RecvResponse(&response);
    }

    std::string Content() const
    {
        return response.m_pContent != nullptr ? std::string(response.m_pContent, response.m_dwContentLength)
                                              : std::string();
    }

    FakeComm* comm; ///< owned by http
    FakeHttp http;
    ST_HTTP_RESPONSE response;
    int result = 0;
};

std::string Chunked(const std::string& body)
{
    return "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + body;
}

/// A header line of `size` bytes, including its end.
std::string Line(size_t size)
{
    return "X:" + std::string(size - 4, 'x') + "\r\n";
}

} // namespace

TEST(HttpReply, IsReadByItsContentLength)
{
    const Reply cut("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nabc");
    EXPECT_EQ(cut.result, -11);
    const Reply whole(std::string("HTTP/1.1 200 OK\r\nContent-Length: 4\r\nSet-Cookie: a=1; Path=/\r\n\r\n") +
                      std::string("\x00\x00\x01\x02", 4) + "next");
    EXPECT_EQ(whole.result, 0);
    EXPECT_EQ(whole.response.m_eVersion, CHttp::VERSION_1_1);
    EXPECT_EQ(whole.response.m_eStatus, CHttp::STATUS_OK);
    EXPECT_EQ(whole.Content(), std::string("\x00\x00\x01\x02", 4));
    EXPECT_EQ(whole.response.m_strCookie, " a=1; Path=/");
    EXPECT_TRUE(whole.response.m_bConActive);
    EXPECT_FALSE(whole.response.m_bChunked);
    EXPECT_EQ(whole.comm->Unread(), "next");
    EXPECT_TRUE(whole.http.IsConnected());
}

TEST(HttpReply, StartsWithAnEmptyRecord)
{
    ST_HTTP_RESPONSE response;
    EXPECT_EQ(response.m_eStatus, CHttp::STATUS_OK);
    EXPECT_EQ(response.m_pContent, nullptr);
    EXPECT_EQ(response.m_dwContentLength, 0U);
    EXPECT_EQ(response.m_bConActive, TRUE);
    EXPECT_EQ(response.m_strCookie, "");
    EXPECT_EQ(response.m_bChunked, FALSE);
    EXPECT_EQ(response.m_eMethod, CHttp::EMPTY);

    response.m_eVersion = CHttp::VERSION_1_1;
    response.m_pContent = new char[3];
    response.m_dwContentLength = 3;
    response.m_bConActive = FALSE;
    response.m_strCookie = "a";
    response.m_bChunked = TRUE;
    response.m_eMethod = CHttp::METHOD_PUT;
    response.Init();
    EXPECT_EQ(response.m_eVersion, CHttp::VERSION_1_1);
    EXPECT_EQ(response.m_eStatus, CHttp::STATUS_EMPTY);
    EXPECT_EQ(response.m_pContent, nullptr);
    EXPECT_EQ(response.m_dwContentLength, 0U);
    EXPECT_EQ(response.m_bConActive, TRUE);
    EXPECT_EQ(response.m_strCookie, "");
    EXPECT_EQ(response.m_bChunked, FALSE);
    EXPECT_EQ(response.m_eMethod, CHttp::EMPTY);
}

TEST(HttpReply, FreesItsBody)
{
    const size_t growth = HeapGrowth([] {
        ST_HTTP_RESPONSE response;
        response.m_pContent = new char[100];
        response.Init();
        response.m_pContent = new char[100];
    });
    EXPECT_LT(growth, 1000U);
}

TEST(HttpReply, RequiresAKnownStatusLine)
{
    const struct
    {
        std::string line;
        int result;
        CHttp::STATUS status;
    } rows[] = {
        {"HTTP/1.1 200 OK", 0, CHttp::STATUS_OK},
        {"HTTP/1.0 200 OK", 0, CHttp::STATUS_OK},
        {"HTTP/1.1 201", 0, CHttp::STATUS_CREATED},
        {"HTTP/1.1200", 0, CHttp::STATUS_OK},
        {"HTTP/1.1 1204", 0, CHttp::STATUS_NO_CONTENT},
        {"HTTP/1.1 402 Payment Required", -25, CHttp::STATUS_EMPTY},
        {"HTTP/1.1 402 Payment of 200", 0, CHttp::STATUS_OK},
        {"HTTP/1.1 999 Unknown", -25, CHttp::STATUS_EMPTY},
        {"HTTP/1.1 508 Loop", -25, CHttp::STATUS_EMPTY},
        {"HTTP/1.1 OK", -25, CHttp::STATUS_EMPTY},
        {"HTTP/1.1 ", -25, CHttp::STATUS_EMPTY},
        {"HTTP/1.1", -25, CHttp::STATUS_EMPTY},
        {"HTTP/1.", -25, CHttp::STATUS_EMPTY},
        {"HTTP/1.2 200 OK", -25, CHttp::STATUS_EMPTY},
        {"HTTP/2 200", -25, CHttp::STATUS_EMPTY},
        {"http/1.1 200 OK", -25, CHttp::STATUS_EMPTY},
        {" HTTP/1.1 200 OK", -25, CHttp::STATUS_EMPTY},
        {"", -25, CHttp::STATUS_EMPTY},
        // The first code of the list that occurs anywhere in the line counts.
        {"HTTP/1.1 500 at 404", 0, CHttp::STATUS_NOT_FOUND},
        {"HTTP/1.1 404 of 1200 files", 0, CHttp::STATUS_OK},
        {"HTTP/1.1 507 Insufficient Storage", 0, CHttp::STATUS_INSUFFICIENT_STORAGE},
        {"HTTP/1.1 510 Not Extended", 0, CHttp::STATUS_NO_EXTENDED},
    };
    for (const auto& row : rows) {
        const Reply reply(row.line + "\r\n\r\n");
        EXPECT_EQ(reply.result, row.result) << row.line;
        EXPECT_EQ(reply.response.m_eStatus, row.status) << row.line;
        EXPECT_EQ(reply.http.IsConnected(), row.result == 0);
    }
    EXPECT_EQ(Reply("HTTP/1.0 200 OK\r\n\r\n").response.m_eVersion, CHttp::VERSION_1_0);
}

TEST(HttpReply, MayFollowInterimReplies)
{
    const Reply reply("HTTP/1.1 100 Continue\r\nSet-Cookie:early\r\nContent-Length: 3\r\n\r\n"
                      "HTTP/1.1 100\r\n\r\n"
                      "HTTP/1.0 200 OK\r\nConnection: close\r\n\r\nabc");
    EXPECT_EQ(reply.result, 0);
    EXPECT_EQ(reply.response.m_eStatus, CHttp::STATUS_OK);
    EXPECT_EQ(reply.response.m_eVersion, CHttp::VERSION_1_0);
    EXPECT_EQ(reply.response.m_strCookie, "early"); // the headers of all replies count
    EXPECT_EQ(reply.Content(), "abc");
    EXPECT_FALSE(reply.http.IsConnected());
}

TEST(HttpReply, IsInterimIf100OccursInItsReason)
{
    const Reply reply("HTTP/1.1 404 Error 100\r\n\r\nHTTP/1.1 200 OK\r\n\r\n");
    EXPECT_EQ(reply.result, 0);
    EXPECT_EQ(reply.response.m_eStatus, CHttp::STATUS_OK);
}

TEST(HttpReply, ToleratesThousandsOfInterimReplies)
{
    std::string bytes;
    for (int count = 0; count < 10000; ++count) {
        bytes += "HTTP/1.1 100 Continue\r\n\r\n";
    }
    const Reply reply(bytes, -6);
    EXPECT_EQ(reply.result, -6);
    EXPECT_EQ(reply.response.m_eStatus, CHttp::STATUS_CONTINUE);
}

TEST(HttpReply, HasLinesOfAtMost1024Bytes)
{
    for (const size_t size : {1023U, 1024U, 1025U, 1026U, 5000U}) {
        const int expected = size <= 1024 ? 0 : -5;
        EXPECT_EQ(Reply("HTTP/1.1 200 OK\r\n" + Line(size) + "\r\n").result, expected) << size;
        const std::string start = "HTTP/1.1 200 ";
        EXPECT_EQ(Reply(start + std::string(size - start.size() - 2, 'x') + "\r\n\r\n").result, expected);
        const Reply cookie("HTTP/1.1 200 OK\r\nSet-Cookie:" + std::string(size - 13, 'c') + "\r\n\r\n");
        EXPECT_EQ(cookie.result, expected);
        EXPECT_EQ(cookie.response.m_strCookie, expected == 0 ? std::string(size - 13, 'c') : "");
    }
}

TEST(HttpReply, DropsAnyByteBeforeALineFeed)
{
    const Reply reply("HTTP/1.1 200 OKx\nContent-Length: 23\nX\n\n");
    EXPECT_EQ(reply.result, -11); // 2 bytes are expected
    EXPECT_EQ(reply.response.m_dwContentLength, 2U);
    const Reply bare("HTTP/1.1 200 OK\r\nContent-Length: 1\r\n\nx");
    EXPECT_EQ(bare.result, 0); // a line feed alone also ends the head
    EXPECT_EQ(bare.Content(), "x");
    const Reply oneByte("HTTP/1.1 200 OK\r\nContent-Length: 1\r\nx\nx");
    EXPECT_EQ(oneByte.result, 0);
}

TEST(HttpReply, ParsesItsContentLength)
{
    const struct
    {
        const char* value;
        int result;
        DWORD length;
    } rows[] = {
        {"3", 0, 3},
        {" 3", 0, 3},
        {"\t 3", 0, 3},
        {" +3", 0, 3},
        {" 003", 0, 3},
        {"", 0, 0},
        {" 0", 0, 0},
        {" 3 ", -25, 0},
        {" 3,3", -25, 0},
        {" 3x", -25, 0},
        {" 0x3", -25, 0},
        {" x", -25, 0},
        {" ", -25, 0}, // strtoul skips the blank only before a number
        {" -1", -25, 0},
        {" -18446744073709551613", 0, 3}, // a negative number wraps around 64 bits
        {" 4294967296", -25, 0},
        {" 4294967299", -25, 0},
        {" 18446744073709551615", -25, 0},
        {" 18446744073709551616", -25, 0},
        {" 99999999999999999999999999999999", -25, 0},
    };
    for (const auto& row : rows) {
        const Reply reply(std::string("HTTP/1.1 200 OK\r\nContent-Length:") + row.value + "\r\n\r\nabc");
        EXPECT_EQ(reply.result, row.result) << row.value;
        EXPECT_EQ(reply.response.m_dwContentLength, row.length) << row.value;
        EXPECT_EQ(reply.Content(), row.length == 3 ? "abc" : "");
    }
}

TEST(HttpReply, FailsOnAnEarlierErange)
{
    auto* comm = new FakeComm({{.reply = "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nabc"}});
    FakeHttp http(comm);
    ASSERT_EQ(http.SendHeader(CHttp::METHOD_GET, "/", CHttp::VERSION_1_1, "h", nullptr, nullptr, nullptr), 0);
    ST_HTTP_RESPONSE response;
    errno = ERANGE;
    EXPECT_EQ(http.RecvResponse(&response), -25);
    EXPECT_EQ(response.m_dwContentLength, 0U);
    EXPECT_FALSE(http.IsConnected());
    // This applies only to a Content-Length: a reply without one, or in chunks, is read.
    for (const std::string& good : {std::string("HTTP/1.1 200 OK\r\n\r\n"), Chunked("1\r\na\r\n0\r\n\r\n")}) {
        FakeHttp other(new FakeComm({{.reply = good}}));
        ASSERT_EQ(
            other.SendHeader(CHttp::METHOD_GET, "/", CHttp::VERSION_1_1, "h", nullptr, nullptr, nullptr), 0);
        errno = ERANGE;
        EXPECT_EQ(other.RecvResponse(&response), 0);
    }
    errno = 0;
}

TEST(HttpReply, UsesTheLaterOfTwoLengths)
{
    EXPECT_EQ(Reply("HTTP/1.1 200 OK\r\nContent-Length: 9\r\nContent-Length: 2\r\n\r\nabc").Content(), "ab");
    EXPECT_EQ(Reply("HTTP/1.1 200 OK\r\nContent-Length: 1\r\nContent-Length: 3\r\n\r\nabc").Content(), "abc");
    EXPECT_EQ(Reply("HTTP/1.1 200 OK\r\nContent-Length: x\r\nContent-Length: 3\r\n\r\nabc").result, -25);
    const Reply bad("HTTP/1.1 200 OK\r\nContent-Length: 3\r\nContent-Length: x\r\n\r\nabc");
    EXPECT_EQ(bad.result, -25);
    EXPECT_EQ(bad.response.m_dwContentLength, 0U);
}

TEST(HttpReply, MatchesHeaderNamesExactly)
{
    const Reply reply("HTTP/1.1 200 OK\r\n"
                      "content-length: 3\r\n"
                      " Content-Length: 3\r\n"
                      "Content-Length : 3\r\n"
                      "transfer-encoding: chunked\r\n"
                      "Transfer-Encoding: Chunked\r\n"
                      "connection: close\r\n"
                      "set-cookie: a\r\n"
                      "Date: today\r\n"
                      "no colon\r\n"
                      "\r\nabc");
    EXPECT_EQ(reply.result, 0);
    EXPECT_EQ(reply.response.m_pContent, nullptr);
    EXPECT_EQ(reply.response.m_dwContentLength, 0U);
    EXPECT_FALSE(reply.response.m_bChunked);
    EXPECT_TRUE(reply.response.m_bConActive);
    EXPECT_EQ(reply.response.m_strCookie, "");
    EXPECT_EQ(reply.comm->Unread(), "abc"); // the body is never read up to the close
}

TEST(HttpReply, DeterminesWhetherTheConnectionStaysOpen)
{
    const struct
    {
        const char* lines;
        bool stays;
    } rows[] = {
        {"", true},
        {"Connection: keep-alive\r\n", true},
        {"Connection:keep-alive\r\n", true},
        {"Connection: keep-alive, close\r\n", false},
        {"Connection: close, keep-alive\r\n", false},
        {"Connection: close\r\n", false},
        {"Connection: Keep-Alive\r\n", false},
        {"Connection: upgrade\r\n", false},
        {"Connection:\r\n", false},
        {"Connection: close\r\nConnection: keep-alive\r\n", true},
        {"Connection: keep-alive\r\nConnection: close\r\n", false},
    };
    for (const char* version : {"HTTP/1.0", "HTTP/1.1"}) {
        for (const auto& row : rows) {
            const Reply reply(std::string(version) + " 200 OK\r\n" + row.lines + "\r\n");
            EXPECT_EQ(reply.result, 0);
            EXPECT_EQ(reply.response.m_bConActive != FALSE, row.stays) << row.lines;
            EXPECT_EQ(reply.http.IsConnected(), row.stays) << row.lines;
        }
    }
}

TEST(HttpReply, KeepsTheLastCookie)
{
    EXPECT_EQ(
        Reply("HTTP/1.1 200 OK\r\nSet-Cookie: a=1\r\nSet-Cookie:b=2; HttpOnly\r\n\r\n").response.m_strCookie,
        "b=2; HttpOnly");
}

TEST(HttpReply, MayBeChunked)
{
    const struct
    {
        std::string body;
        int result;
        std::string content;
    } rows[] = {
        {"0\r\n\r\n", 0, ""},
        {"3\r\nabc\r\n0\r\n\r\n", 0, "abc"},
        {"3\r\nabc\r\n2\r\nde\r\n0\r\n\r\n", 0, "abcde"},
        {"A\r\n0123456789\r\n0\r\n\r\n", 0, "0123456789"},
        {"a\r\n0123456789\r\n0\r\n\r\n", 0, "0123456789"},
        {"0000000003\r\nabc\r\n0000000000\r\n\r\n", 0, "abc"}, // a line of 12 bytes
        {"00000000003\r\nabc\r\n0\r\n\r\n", -5, ""},           // and of 13
        {"00000000000000003\r\nabc\r\n0\r\n\r\n", -5, ""},     // 17 digits
        {"FFFFFFFFFFFFFFFFF\r\nabc\r\n0\r\n\r\n", -5, ""},
        {"0x3\r\nabc\r\n0\r\n\r\n", 0, "abc"},
        {" 3\r\nabc\r\n0\r\n\r\n", 0, "abc"},
        {"+3\r\nabc\r\n0\r\n\r\n", 0, "abc"},
        {"-3\r\nabc\r\n0\r\n\r\n", -25, ""},
        {"3 \r\nabc\r\n0\r\n\r\n", -25, ""},
        {"3;x=y\r\nabc\r\n0\r\n\r\n", -25, ""},
        {"1a;x=y\r\n", -25, ""},
        {"3\r\nabc\r\n0;x=y\r\n\r\n", -25, ""},
        {"xyz\r\n", -25, ""},
        {"g\r\n", -25, ""},
        {"\r\n\r\n", 0, ""}, // an empty line counts as 0
        {"100000000\r\n", -25, ""},
        {"FFFFFFFFFF\r\n", -25, ""},
        {"3\r\nabc\r\nFFFFFFFD\r\n", -2, ""}, // exceeds the limit
        {"3\r\nabcd\r\n0\r\n\r\n", 0, "abc"}, // the rest of the line after a chunk is ignored
        {"3\r\nabc0123456789\r\n0\r\n\r\n", 0, "abc"},
        {"3\r\nabc01234567890\r\n0\r\n\r\n", -5, ""},
        {"3\r\nab", -11, ""},
        {"3\r\nabc\r\n", -11, ""},
        {"3\r\nabc\r\n0\r\n", -11, ""},
        {"3\r\nabc\r\n0\r\nX: trailer\r\n\r\n", 0, "abc"}, // the first line of the trailer counts as the end
        {"3\r\nabc\r\n0\r\nX-Long: trailer\r\n\r\n", -5, ""},
    };
    for (const auto& row : rows) {
        const Reply reply(Chunked(row.body));
        EXPECT_EQ(reply.result, row.result) << row.body;
        EXPECT_EQ(reply.Content(), row.content) << row.body;
        EXPECT_TRUE(reply.response.m_bChunked);
        if (row.result == 0) {
            EXPECT_EQ(reply.response.m_dwContentLength, row.content.size());
        } else {
            EXPECT_EQ(reply.response.m_pContent, nullptr);
        }
        EXPECT_EQ(reply.http.IsConnected(), row.result == 0);
    }
}

TEST(HttpReply, MayHaveThousandsOfChunks)
{
    std::string body;
    std::string content;
    for (int count = 0; count < 3000; ++count) {
        body += "2\r\nab\r\n";
        content += "ab";
    }
    EXPECT_EQ(Reply(Chunked(body + "0\r\n\r\n")).Content(), content);
}

TEST(HttpReply, PrefersChunksToAContentLength)
{
    const Reply reply("HTTP/1.1 200 OK\r\nContent-Length: 100\r\nTransfer-Encoding: gzip, chunked\r\n\r\n"
                      "3\r\nabc\r\n0\r\n\r\n");
    EXPECT_EQ(reply.result, 0);
    EXPECT_EQ(reply.Content(), "abc");
}

TEST(HttpReply, KeepsWhatWasParsedBeforeAFailure)
{
    const Reply reply("HTTP/1.1 201 Created\r\nContent-Length: 9\r\nSet-Cookie:a\r\n\r\n12");
    EXPECT_EQ(reply.result, -11);
    EXPECT_EQ(reply.response.m_eStatus, CHttp::STATUS_CREATED);
    EXPECT_EQ(reply.response.m_dwContentLength, 9U);
    EXPECT_EQ(reply.response.m_strCookie, "a");
    EXPECT_EQ(reply.response.m_pContent, nullptr);
}

TEST(HttpReply, ReportsOutOfMemory)
{
    const FailingMemory memory(1000);
    const Reply plain("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nabc");
    EXPECT_EQ(plain.result, -2);
    EXPECT_EQ(memory.Largest(), 1000U);
    EXPECT_EQ(Reply(Chunked("3\r\nabc\r\n3e5\r\n")).result, -2);
    EXPECT_EQ(Reply(Chunked("3e8\r\n")).result, -2);
}

TEST(HttpReply, DoesNotAllocateAnAnnouncedLengthInAdvance)
{
    const FailingMemory memory(131073);
    for (const std::string& bytes : {std::string("HTTP/1.1 200 OK\r\nContent-Length: 4000000\r\n\r\nabc"),
                                     Chunked("3D0900\r\nabc"), Chunked("3\r\nabc\r\n3D0900\r\nabc")}) {
        EXPECT_EQ(Reply(bytes).result, -11);
    }
    EXPECT_FALSE(memory.HasFailed());
}

TEST(HttpReply, GrowsInFewAllocations)
{
    const FailingMemory memory(1, 40); // for all chunks
    std::string body;
    for (int count = 0; count < 100000; ++count) {
        body += "2\r\nab\r\n";
    }
    const Reply reply(Chunked(body + "0\r\n\r\n"));
    EXPECT_EQ(reply.result, 0);
    EXPECT_EQ(reply.response.m_dwContentLength, 200000U);
    EXPECT_FALSE(memory.HasFailed());
}

TEST(HttpReply, IsLimitedInSize)
{
    constexpr size_t limit = 4194304;
    const std::string longHead = [] {
        std::string lines = "HTTP/1.1 200 OK\r\n";
        while (lines.size() <= limit) {
            lines += Line(1024);
        }
        return lines;
    }();
    const std::string head = "HTTP/1.1 200 OK\r\nContent-Length: 4194260\r\n\r\n"; // 44 bytes
    const std::string chunkedHead = Chunked("");                                   // 47 bytes
    const std::string chunk = "100000\r\n" + std::string(0x100000, 'x') + "\r\n";
    std::string interim;
    while (interim.size() <= limit) {
        interim += "HTTP/1.1 100 Continue\r\n\r\n";
    }
    const struct
    {
        std::string bytes;
        int result;
        size_t unread; ///< at least so many bytes
    } rows[] = {
        {head + std::string(limit - 44, 'x'), 0, 0},
        {"HTTP/1.1 200 OK\r\nContent-Length: 4194261\r\n\r\n" + std::string(limit, 'x'), -2, limit},
        {"HTTP/1.1 200 OK\r\nContent-Length: 4294967295\r\n\r\nabc", -2, 3},
        // The lines before and after the chunk have 15 bytes.
        {chunkedHead + "3FFFC2\r\n" + std::string(0x3FFFC2, 'x') + "\r\n0\r\n\r\n", 0, 0},
        {chunkedHead + "3FFFC3\r\n" + std::string(0x3FFFC3, 'x') + "\r\n0\r\n\r\n", -2, 0},
        {chunkedHead + "FFFFFFFF\r\nabc", -2, 3},
        {chunkedHead + chunk + chunk + chunk + chunk, -2, 0x100000},
        {longHead + "\r\n", -2, 0},
        {interim + "HTTP/1.1 200 OK\r\n\r\n", -2, 19},
    };
    for (const auto& row : rows) {
        SyslogLines lines;
        const Reply reply(row.bytes);
        EXPECT_EQ(reply.result, row.result) << row.bytes.substr(0, 60);
        EXPECT_EQ(reply.http.IsConnected(), row.result == 0);
        EXPECT_GE(reply.comm->Unread().size(), row.unread);
        EXPECT_EQ(reply.response.m_pContent == nullptr, row.result != 0);
        const std::vector<std::string> written = lines.Take();
        EXPECT_EQ(
            std::count(written.begin(), written.end(), "<3>[CommLib(HTTP)] Reply of more than 4194304 bytes"),
            row.result == 0 ? 0 : 1);
    }
}

TEST(HttpReply, HasASizeLimitOfItsOwn)
{
    const std::string reply =
        "HTTP/1.1 200 OK\r\nContent-Length: 3000000\r\n\r\n" + std::string(3000000, 'x');
    FakeHttp http(new FakeComm({{.reply = reply + reply + reply}}));
    ASSERT_EQ(http.SendHeader(CHttp::METHOD_GET, "/", CHttp::VERSION_1_1, "h", nullptr, nullptr, nullptr), 0);
    for (int count = 0; count < 3; ++count) {
        ST_HTTP_RESPONSE response;
        errno = 0;
        EXPECT_EQ(http.RecvResponse(&response), 0);
        EXPECT_EQ(response.m_dwContentLength, 3000000U);
    }
}

TEST(HttpReply, FailsIfItIsShorterThanAnnounced)
{
    const Reply reply("HTTP/1.1 200 OK\r\nContent-Length: 4000000\r\n\r\nabc");
    EXPECT_EQ(reply.result, -11);
    EXPECT_EQ(reply.response.m_pContent, nullptr);
    EXPECT_EQ(Reply(Chunked("3D0900\r\nabc")).result, -11);
}

TEST(HttpReply, LogsWhereItFailed)
{
    const struct
    {
        std::string bytes;
        int readEnd;
        std::vector<std::string> lines;
    } rows[] = {
        {"",
         -11,
         {"<4>CHttp::RecvLine Count = 0", "<3>CHttp::RecvHeader Start 1",
          "<4>CHttp::RecvResponse RecvHeader() error"}},
        {"HTTP/1",
         -9,
         {"<4>CHttp::RecvLine Count = 6", "<3>CHttp::RecvHeader Start 1",
          "<4>CHttp::RecvResponse RecvHeader() error"}},
        {"HTTP/1.1 200 OK\r\nDate",
         -6,
         {"<4>CHttp::RecvLine Count = 4", "<3>CHttp::RecvHeader Start 2",
          "<4>CHttp::RecvResponse RecvHeader() error"}},
        {Line(1025), -11, {"<3>CHttp::RecvHeader Start 1", "<4>CHttp::RecvResponse RecvHeader() error"}},
        {"HTTP/1.1 200 OK\r\n" + Line(1025),
         -11,
         {"<3>CHttp::RecvHeader Start 2", "<4>CHttp::RecvResponse RecvHeader() error"}},
        {"rubbish\r\n", -11, {"<4>CHttp::RecvResponse RecvHeader() error"}},
        {"HTTP/1.1 402 No\r\n", -11, {"<4>CHttp::RecvResponse RecvHeader() error"}},
        {"HTTP/1.1 200 OK\r\nContent-Length: x\r\n", -11, {"<4>CHttp::RecvResponse RecvHeader() error"}},
        {"HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nab",
         -11,
         {"<4>CHttp::RecvResponse RecvMessage() error"}},
        {Chunked("3;\r\n"), -11, {"<4>CHttp::RecvResponse RecvMessage() error"}},
        {Chunked("3\r\nabc\r"),
         -11,
         {"<4>CHttp::RecvLine Count = 1", "<4>CHttp::RecvResponse RecvMessage() error"}},
        {"HTTP/1.1 200 OK\r\n\r\n", -11, {}},
    };
    for (const auto& row : rows) {
        SyslogLines lines;
        const Reply reply(row.bytes, row.readEnd);
        EXPECT_EQ(lines.Take(), row.lines) << row.bytes;
        EXPECT_EQ(reply.http.IsConnected(), row.lines.empty());
    }
}
