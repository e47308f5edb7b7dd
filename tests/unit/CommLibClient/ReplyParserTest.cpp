#include "NW_Com_Lib_internal.h"

#include "FailingMemory.h"
#include "SyslogLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A reply of one item.
std::string Item(unsigned char status, const std::string& data)
{
    std::string item(1, static_cast<char>(status));
    item += static_cast<char>(data.size() >> 8);
    item += static_cast<char>(data.size());
    return item + data;
}

DWORD Parse(const std::string& body, std::list<ST_COMM_REPLY>& items, DWORD count = 0)
{
    return ParseCommReply(body.data(), static_cast<DWORD>(body.size()), items, count);
}

/// A list that is not empty, because each failure must clear it.
std::list<ST_COMM_REPLY> OldItems()
{
    return {ST_COMM_REPLY(), ST_COMM_REPLY()};
}

struct BadReply
{
    std::string body;
    DWORD count;
    DWORD result;
    const char* line;
};

} // namespace

TEST(ReplyParser, ParsesTheReplyOfAServerInNormalMode)
{
    std::list<ST_COMM_REPLY> items;
    const std::string body("\x00\x00\x01\x02", 4);
    ASSERT_EQ(Parse(body, items, 1), 0U);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items.front().m_pData, body.data() + 3); // no copy
    EXPECT_EQ(items.front().m_dwDataSize, 1U);
    EXPECT_EQ(items.front().m_dwServerStatus, 0U);
    EXPECT_EQ(items.front().m_pData[0], 2);
}

TEST(ReplyParser, AcceptsAnItemWithoutData)
{
    std::list<ST_COMM_REPLY> items = OldItems();
    ASSERT_EQ(Parse(std::string(3, '\0'), items), 0U);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items.front().m_pData, nullptr);
    EXPECT_EQ(items.front().m_dwDataSize, 0U);
}

TEST(ReplyParser, ReadsABigEndianLength)
{
    for (const size_t size : {1U, 255U, 256U, 258U, 65535U}) {
        std::list<ST_COMM_REPLY> items;
        const std::string body = Item(0, std::string(size, 'x')) + Item(0, "y");
        ASSERT_EQ(Parse(body, items, 2), 0U);
        EXPECT_EQ(items.front().m_dwDataSize, size);
        EXPECT_EQ(items.back().m_pData, body.data() + body.size() - 1);
    }
}

TEST(ReplyParser, AcceptsAnyNumberOfItemsIfTheExpectedNumberIsZero)
{
    std::list<ST_COMM_REPLY> items = OldItems();
    EXPECT_EQ(ParseCommReply("", 0, items, 0), 0U);
    EXPECT_THAT(items, IsEmpty());
    std::string body;
    for (int index = 0; index < 1000; ++index) {
        body += Item(0, "x");
    }
    EXPECT_EQ(Parse(body, items), 0U);
    EXPECT_EQ(items.size(), 1000U);
}

TEST(ReplyParser, RefusesInvalidReplies)
{
    const BadReply replies[] = {
        {Item(0, "").substr(0, 1), 0, 13, "<3>[CommLib] ParseCommReply Invalid Comm Spec 2"},
        {Item(0, "").substr(0, 2), 0, 13, "<3>[CommLib] ParseCommReply Invalid Comm Spec 2"},
        {Item(3, "").substr(0, 2), 0, 13, "<3>[CommLib] ParseCommReply Invalid Comm Spec 2"},
        {Item(0, "x") + Item(0, "").substr(0, 2), 0, 13, "<3>[CommLib] ParseCommReply Invalid Comm Spec 2"},
        {Item(0, "xy").substr(0, 4), 0, 13, "<3>[CommLib] ParseCommReply Invalid Comm Spec 3"},
        {Item(0, std::string(65535, 'x')).substr(0, 65537), 0, 13,
         "<3>[CommLib] ParseCommReply Invalid Comm Spec 3"},
        {Item(0, "x") + Item(0, "y").substr(0, 3), 2, 13, "<3>[CommLib] ParseCommReply Invalid Comm Spec 3"},
        {Item(0, "x") + Item(0, "y"), 1, 13, "<3>[CommLib] ParseCommReply Invalid Comm Spec 4"},
        {Item(0, "x"), 2, 13, "<3>[CommLib] ParseCommReply Invalid Comm Spec 4"},
        {"", 1, 13, "<3>[CommLib] ParseCommReply Invalid Comm Spec 4"},
        {Item(0, "x") + Item(3, "y"), 2, 8003, "<3>[Servlet] Authentication"},
        {Item(3, "x") + Item(2, "y"), 2, 8003, "<3>[Servlet] Authentication"},
        {Item(1, "xy").substr(0, 3), 1, 8001, "<3>[Servlet] Version Discrepancy"},
    };
    for (const BadReply& reply : replies) {
        SyslogLines lines;
        std::list<ST_COMM_REPLY> items = OldItems();
        EXPECT_EQ(Parse(reply.body, items, reply.count), reply.result);
        EXPECT_THAT(items, IsEmpty());
        EXPECT_THAT(lines.Take(), ElementsAre(reply.line));
    }
}

TEST(ReplyParser, RefusesAResponseWithoutBody)
{
    SyslogLines lines;
    std::list<ST_COMM_REPLY> items = OldItems();
    EXPECT_EQ(ParseCommReply(nullptr, 0, items, 0), 13U);
    EXPECT_EQ(ParseCommReply(nullptr, 100, items, 1), 13U);
    EXPECT_THAT(items, IsEmpty());
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[CommLib] ParseCommReply Invalid Comm Spec 1",
                                          "<3>[CommLib] ParseCommReply Invalid Comm Spec 1"));
}

TEST(ReplyParser, LogsNothingForAnUnknownStatus)
{
    SyslogLines lines;
    std::list<ST_COMM_REPLY> items = OldItems();
    EXPECT_EQ(Parse(Item(200, "x"), items, 1), 8000U);
    EXPECT_THAT(items, IsEmpty());
    EXPECT_THAT(lines.Take(), IsEmpty());
}

TEST(ReplyParser, RefusesAReplyCutAtAnyByte)
{
    const std::string body = Item(0, "abc") + Item(0, "") + Item(0, "defgh");
    for (size_t size = 0; size < body.size(); ++size) {
        std::list<ST_COMM_REPLY> items = OldItems();
        EXPECT_EQ(Parse(body.substr(0, size), items, 3), 13U) << size;
        EXPECT_THAT(items, IsEmpty());
    }
}

TEST(ReplyParser, KeepsNoMoreItemsThanAreExpected)
{
    const std::string zeros(3U << 20, '\0'); // a million valid items without data
    SyslogLines lines;
    std::list<ST_COMM_REPLY> items = OldItems();
    DWORD result = 0;
    {
        const FailingMemory memory(1, 2, FailingMemory::ALL);
        result = Parse(zeros, items, 2);
    }
    EXPECT_EQ(result, 13U);
    EXPECT_THAT(items, IsEmpty());
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[CommLib] ParseCommReply Invalid Comm Spec 4"));
}

TEST(ReplyParser, FindsABadStatusBeyondTheExpectedItems)
{
    const std::string good(3000, '\0');
    SyslogLines lines;
    std::list<ST_COMM_REPLY> items = OldItems();
    EXPECT_EQ(Parse(good + Item(3, ""), items, 1), 8003U);
    EXPECT_THAT(items, IsEmpty());
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[Servlet] Authentication"));
    EXPECT_EQ(Parse(good + std::string(1, '\0'), items, 1), 13U);
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[CommLib] ParseCommReply Invalid Comm Spec 2"));
    EXPECT_EQ(Parse(good + Item(0, "x").substr(0, 3), items, 1), 13U);
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[CommLib] ParseCommReply Invalid Comm Spec 3"));
}

TEST(ReplyParser, LimitsTheLengthOfLists)
{
    SyslogLines lines;
    std::list<ST_COMM_REPLY> items = OldItems();
    EXPECT_EQ(Parse(std::string(3 * 10000, '\0'), items), 0U);
    EXPECT_EQ(items.size(), 10000U);
    EXPECT_THAT(lines.Take(), IsEmpty());

    EXPECT_EQ(Parse(std::string(3 * 10001, '\0'), items), 2U);
    EXPECT_THAT(items, IsEmpty());
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[CommLib] ParseCommReply Get Memory 5"));

    EXPECT_EQ(Parse(std::string(3 * 10001, '\0') + Item(2, ""), items), 8002U); // takes precedence
    EXPECT_THAT(lines.Take(), ElementsAre("<3>[Servlet] Device Offline"));
}

TEST(ReplyParser, ReportsOutOfMemory)
{
    SyslogLines lines;
    for (size_t granted = 0; granted < 3; ++granted) {
        std::list<ST_COMM_REPLY> items = OldItems();
        DWORD result = 0;
        {
            const FailingMemory memory(1, granted, FailingMemory::ALL);
            result = Parse(Item(0, "a") + Item(0, "b") + Item(0, "c"), items, 3);
        }
        EXPECT_EQ(result, 2U);
        EXPECT_THAT(items, IsEmpty());
        EXPECT_THAT(lines.Take(), ElementsAre("<3>[CommLib] ParseCommReply Get Memory 5"));
    }
}

TEST(ReplyParser, TheDumpHookDoesNothing)
{
    SyslogLines lines;
    DEBUG_HTTP_REPLY("reply", 5);
    DEBUG_HTTP_REPLY(nullptr, 0);
    EXPECT_THAT(lines.Take(), IsEmpty());
}
