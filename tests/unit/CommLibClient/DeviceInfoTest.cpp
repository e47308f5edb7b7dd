#include "Servlets.h"
#include "SyslogLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

using testing::Contains;
using testing::ElementsAre;

TEST(DeviceInfo, ReturnsTheTextOfEachType)
{
    for (DWORD type = 0; type < 15; ++type) {
        FakeServer server({GoodReply("text")});
        server.Object().m_dwServerMode = NCL_MODE_SECURITY; // supports all types
        SyslogLines lines;
        std::array<char, 16> text;
        text.fill('?');
        EXPECT_EQ(GetDeviceInfo(server.Handle(), type, text.data(), 16), 0U);
        EXPECT_EQ(std::string(text.data(), 6), std::string("text\0?", 6));
        EXPECT_EQ(server.Sent(),
                  GetRequest("/webapp2/DevInfoGetter?ifversion=02000000&type=" + std::to_string(type)));
        EXPECT_THAT(lines.Take(),
                    ElementsAre("<7>server , GetDeviceInfo , Start", "<7>server , GetDeviceInfo , End"));
    }
}

TEST(DeviceInfo, RequiresExactlyOneItem)
{
    const std::string number = ReplyItem(WireWord(1));
    const std::string mode = ReplyItem("\2");
    const std::string text = ReplyItem("text");
    FakeServer server({HttpResponse(text + text), HttpResponse(number + number), HttpResponse(mode + mode)});
    SyslogLines lines;
    char buffer[16] = "as before";
    EXPECT_EQ(GetDeviceInfo(server.Handle(), NCL_DIT_NAME_OF_PRN, buffer, sizeof buffer), 13U);
    EXPECT_THAT(lines.Take(), Contains("<3>[CommLib] ParseCommReply Invalid Comm Spec 4"));
    DWORD value = 77;
    EXPECT_EQ(GetDeviceInfoInt(server.Handle(), NCL_DIT_DRV_USED, &value), 13U);
    EXPECT_THAT(lines.Take(), Contains("<3>[CommLib] ParseCommReply Invalid Comm Spec 4"));
    EXPECT_EQ(GetServerMode(server.Handle(), &value), 13U);
    EXPECT_THAT(lines.Take(), Contains("<3>[CommLib] ParseCommReply Invalid Comm Spec 4"));
    EXPECT_STREQ(buffer, "as before");
    EXPECT_EQ(value, 77U);
}

TEST(DeviceInfo, RequiresRoomForTheZeroByte)
{
    const std::string line = "<3>[CommLib] GetDeviceInfo \"Buffer Size\" Parameter";
    for (const DWORD size : {0U, 1U, 3U, 4U}) {
        FakeServer server({GoodReply("text")});
        SyslogLines lines;
        std::array<char, 8> text;
        text.fill('?');
        EXPECT_EQ(GetDeviceInfo(server.Handle(), NCL_DIT_NAME_OF_PRN, text.data(), size), 1U);
        EXPECT_EQ(std::string(text.data(), 8), "????????");
        EXPECT_THAT(lines.Take(), ElementsAre("<7>server , GetDeviceInfo , Start", line));
    }
    FakeServer server({GoodReply("text"), GoodReply(""), GoodReply("")});
    std::array<char, 8> text;
    text.fill('?');
    EXPECT_EQ(GetDeviceInfo(server.Handle(), NCL_DIT_NAME_OF_PRN, text.data(), 5), 0U);
    EXPECT_EQ(std::string(text.data(), 8), std::string("text\0???", 8));
    EXPECT_EQ(GetDeviceInfo(server.Handle(), NCL_DIT_NAME_OF_PRN, text.data(), 0), 1U);
    EXPECT_EQ(GetDeviceInfo(server.Handle(), NCL_DIT_NAME_OF_PRN, text.data(), 1), 0U);
    EXPECT_EQ(std::string(text.data(), 8), std::string("\0ext\0???", 8));
}

TEST(DeviceInfo, ReturnsTheSecurityVersionOnlyInSecurityMode)
{
    for (const DWORD mode : {1U, 2U, 3U, 4U, 5U}) {
        FakeServer server({GoodReply("text")});
        server.Object().m_dwServerMode = mode;
        SyslogLines lines;
        char text[16] = "as before";
        EXPECT_EQ(GetDeviceInfo(server.Handle(), 7, text, sizeof text), 1U);
        EXPECT_STREQ(text, "as before");
        EXPECT_EQ(server.Sent(), "");
        EXPECT_THAT(lines.Take(),
                    ElementsAre("<7>server , GetDeviceInfo , Start",
                                "<3>[CommLib] GetDeviceInfo \"Mode!=Security && Type==version_of_toe\" "
                                "Parameter"));
    }
}

TEST(DeviceInfo, RefusesBadParameters)
{
    FakeServer server({GoodReply("text")});
    char text[16] = "as before";
    for (const DWORD type : {15U, 16U, 0xFFFFFFFFU}) {
        SyslogLines lines;
        EXPECT_EQ(GetDeviceInfo(server.Handle(), type, text, sizeof text), 1U);
        EXPECT_THAT(lines.Take(), ElementsAre("<7>server , GetDeviceInfo , Start",
                                              "<3>[CommLib] ***Common Parameta Error***"));
    }
    EXPECT_EQ(GetDeviceInfo(server.Handle(), 0, nullptr, 16), 1U);
    EXPECT_EQ(GetDeviceInfo(0, 0, text, sizeof text), 1U);
    EXPECT_EQ(GetDeviceInfo(server.Handle() + 1, 0, text, sizeof text), 1U);
    EXPECT_STREQ(text, "as before");
    EXPECT_EQ(server.Sent(), "");
}

TEST(DeviceInfo, LogsABadHandleWithANullHost)
{
    SyslogLines lines;
    char text[16];
    EXPECT_EQ(GetDeviceInfo(7, 0, text, sizeof text), 1U);
    EXPECT_THAT(lines.Take(),
                ElementsAre("<7>(null) , GetDeviceInfo , Start", "<3>[CommLib] ***Common Parameta Error***"));
}

TEST(DeviceInfo, ReportsErrorsOfTheServer)
{
    FakeServer server({HttpResponse(ReplyItem("", 2)), HttpResponse("", "404 Not Found")});
    SyslogLines lines;
    char text[16] = "as before";
    EXPECT_EQ(GetDeviceInfo(server.Handle(), 0, text, sizeof text), 8002U);
    EXPECT_THAT(lines.Take(), ElementsAre("<7>server , GetDeviceInfo , Start", "<3>[Servlet] Device Offline",
                                          "<3>\t## trace ## GetDeviceInfo ParseCommReply() Device Offline"));
    EXPECT_EQ(GetDeviceInfo(server.Handle(), 0, text, sizeof text), 8000U);
    EXPECT_THAT(lines.Take(), ElementsAre("<7>server , GetDeviceInfo , Start",
                                          "<3>[Apache/Tomcat] HTTP 404 error (GET, "
                                          "/webapp2/DevInfoGetter?ifversion=02000000&type=0)",
                                          "<3>\t## trace ## GetDeviceInfo SendRequest() Server Other"));
    EXPECT_STREQ(text, "as before");
}

TEST(DeviceInfoInt, AcceptsValuesUpToTheMaximumOfEachType)
{
    const DWORD largest[] = {2, 3, 0xFFFFFFFF, 1, 11, 11, 999, 1, 1};
    for (DWORD type = 0; type < 9; ++type) {
        EXPECT_EQ(dwCommValueMaxConst[type], largest[type]);
        FakeServer server({GoodReply(WireWord(largest[type])), GoodReply(WireWord(0)),
                           GoodReply(WireWord(largest[type] + 1)), GoodReply(WireWord(0xFFFFFFFF))});
        SyslogLines lines;
        DWORD value = 77;
        EXPECT_EQ(GetDeviceInfoInt(server.Handle(), type, &value), 0U);
        EXPECT_EQ(value, largest[type]);
        EXPECT_EQ(server.Sent(),
                  GetRequest("/webapp2/DevInfoIntGetter?ifversion=02000000&type=" + std::to_string(type)));
        const std::string number = std::to_string(static_cast<int>(largest[type]));
        EXPECT_THAT(lines.Take(), ElementsAre("<7>server , GetDeviceInfoInt , Start",
                                              "<7>server , GetDeviceInfoInt , End(" + number + ")"));
        EXPECT_EQ(GetDeviceInfoInt(server.Handle(), type, &value), 0U);
        EXPECT_EQ(value, 0U);
        lines.Take();
        if (type == NCL_DIT_WRITE_ERR_RETRY_COUNT) {
            continue; // has no bound
        }
        value = 77;
        EXPECT_EQ(GetDeviceInfoInt(server.Handle(), type, &value), 13U);
        EXPECT_THAT(lines.Take(), ElementsAre("<7>server , GetDeviceInfoInt , Start",
                                              "<3>[CommLib] GetDeviceInfoInt Invalid Comm Spec 2"));
        EXPECT_EQ(GetDeviceInfoInt(server.Handle(), type, &value), 13U);
        EXPECT_EQ(value, 77U);
    }
}

TEST(DeviceInfoInt, AcceptsAnUnusedStackerOnlyForStacker3)
{
    FakeServer server({GoodReply(WireWord(999)), GoodReply(WireWord(999)), GoodReply(WireWord(999))});
    DWORD value = 77;
    EXPECT_EQ(GetDeviceInfoInt(server.Handle(), NCL_DIT_STACKER3_DISC_TYPE, &value), 0U);
    EXPECT_EQ(value, NCL_STACKER_DONTUSE);
    EXPECT_EQ(GetDeviceInfoInt(server.Handle(), NCL_DIT_STACKER1_DISC_TYPE, &value), 13U);
    EXPECT_EQ(GetDeviceInfoInt(server.Handle(), NCL_DIT_STACKER2_DISC_TYPE, &value), 13U);
}

TEST(DeviceInfoInt, RefusesAReplyOfAnotherSize)
{
    for (const size_t size : {0U, 1U, 3U, 5U, 8U, 65535U}) {
        FakeServer server({GoodReply(std::string(size, '\0'))});
        SyslogLines lines;
        DWORD value = 77;
        EXPECT_EQ(GetDeviceInfoInt(server.Handle(), 0, &value), 13U);
        EXPECT_EQ(value, 77U);
        EXPECT_THAT(lines.Take(), ElementsAre("<7>server , GetDeviceInfoInt , Start",
                                              "<3>[CommLib] GetDeviceInfoInt Invalid Comm Spec 1"));
    }
}

TEST(DeviceInfoInt, RefusesBadParameters)
{
    FakeServer server({GoodReply(WireWord(0))});
    DWORD value = 77;
    for (const DWORD type : {9U, 10U, 999U, 0xFFFFFFFFU}) {
        EXPECT_EQ(GetDeviceInfoInt(server.Handle(), type, &value), 1U);
    }
    EXPECT_EQ(GetDeviceInfoInt(server.Handle(), 0, nullptr), 1U);
    EXPECT_EQ(GetDeviceInfoInt(99, 0, &value), 1U);
    EXPECT_EQ(value, 77U);
    EXPECT_EQ(server.Sent(), "");
}

TEST(ServerMode, IsOneByte)
{
    for (const int mode : {0, 1, 2, 3, 4, 5, 200, 255}) {
        FakeServer server({GoodReply(std::string(1, static_cast<char>(mode)))});
        SyslogLines lines;
        DWORD value = 77;
        EXPECT_EQ(GetServerMode(server.Handle(), &value), 0U);
        EXPECT_EQ(value, static_cast<DWORD>(mode));
        EXPECT_EQ(server.Sent(), "GET /webapp2/ServerModeGetter HTTP/1.1\r\nHost:localhost\r\n\r\n");
        EXPECT_THAT(lines.Take(),
                    ElementsAre("<7>server , GetServerMode , Start",
                                "<7>server , GetServerMode , End(" + std::to_string(mode) + ")"));
    }
}

TEST(ServerMode, RefusesAReplyOfAnotherSize)
{
    for (const size_t size : {0U, 2U, 4U}) {
        FakeServer server({GoodReply(std::string(size, '\2'))});
        SyslogLines lines;
        DWORD value = 77;
        EXPECT_EQ(GetServerMode(server.Handle(), &value), 13U);
        EXPECT_EQ(value, 77U);
        EXPECT_THAT(lines.Take(), ElementsAre("<7>server , GetServerMode , Start",
                                              "<3>[CommLib] GetServerMode Invalid Comm Spec 1"));
    }
}

TEST(ServerMode, ReportsErrorsOfTheServer)
{
    FakeServer server({HttpResponse(""), HttpResponse(ReplyItem("\2") + ReplyItem("\2")),
                       HttpResponse("", "500 Internal Server Error")});
    SyslogLines lines;
    DWORD value = 77;
    EXPECT_EQ(GetServerMode(server.Handle(), &value), 13U);
    EXPECT_THAT(lines.Take(),
                ElementsAre("<7>server , GetServerMode , Start",
                            "<3>[CommLib] ParseCommReply Invalid Comm Spec 1",
                            "<3>\t## trace ## GetServerMode ParseCommReply() Invalid Comm Spec"));
    EXPECT_EQ(GetServerMode(server.Handle(), &value), 13U);
    EXPECT_THAT(lines.Take(),
                ElementsAre("<7>server , GetServerMode , Start",
                            "<3>[CommLib] ParseCommReply Invalid Comm Spec 4",
                            "<3>\t## trace ## GetServerMode ParseCommReply() Invalid Comm Spec"));
    EXPECT_EQ(GetServerMode(server.Handle(), &value), 8000U);
    EXPECT_THAT(lines.Take(),
                ElementsAre("<7>server , GetServerMode , Start",
                            "<3>[Apache/Tomcat] HTTP 500 error (GET, /webapp2/ServerModeGetter)",
                            "<3>\t## trace ## GetServerMode SendRequest() Server Other"));
    EXPECT_EQ(GetServerMode(server.Handle(), nullptr), 1U);
    EXPECT_EQ(GetServerMode(0, &value), 1U);
    EXPECT_EQ(value, 77U);
}

TEST(DeviceInfo, TreatsAnAnsweringServerOfUnknownKindAsTheSecondKind)
{
    FakeServer server({GoodReply(std::string(1, '\2')), HttpResponse(""), GoodReply("text"),
                       GoodReply(WireWord(0)), HttpResponse("", "404 Not Found")});
    DWORD value = 0;
    char text[16];
    const auto kindAfter = [&](auto operation) {
        server.Object().m_dwNPType = NCL_NPTYPE_UNKNOWN;
        operation();
        return server.Object().m_dwNPType;
    };
    EXPECT_EQ(kindAfter([&] { GetServerMode(server.Handle(), &value); }), 2U);
    EXPECT_EQ(kindAfter([&] { GetServerMode(server.Handle(), &value); }),
              2U); // also for a reply without body
    EXPECT_EQ(kindAfter([&] { GetDeviceInfo(server.Handle(), 0, text, 16); }), 2U);
    EXPECT_EQ(kindAfter([&] { GetDeviceInfoInt(server.Handle(), 0, &value); }), 2U);
    EXPECT_EQ(kindAfter([&] { GetServerMode(server.Handle(), &value); }), 0U); // no good answer
    for (const DWORD kind : {1U, 3U}) {
        FakeServer known({GoodReply(std::string(1, '\2'))});
        known.Object().m_dwNPType = kind;
        GetServerMode(known.Handle(), &value);
        EXPECT_EQ(known.Object().m_dwNPType, kind);
    }
}
