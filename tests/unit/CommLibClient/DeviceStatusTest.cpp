#include "Servlets.h"
#include "SyslogLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr size_t LARGEST_RECORD = 88;

/// An operation that fills a record of any type in the memory of the caller.
struct StatusOperation
{
    const char* name;
    int type;
    size_t itemSize;
    size_t recordSize;
    std::function<DWORD(DWORD handle, void* out)> call;
};

template <typename Record>
StatusOperation Of(const char* name, int type, size_t itemSize, DWORD (*operation)(DWORD, Record*))
{
    return {name, type, itemSize, sizeof(Record),
            [operation](DWORD handle, void* out) { return operation(handle, static_cast<Record*>(out)); }};
}

std::vector<StatusOperation> AllOperations()
{
    return {
        Of("GetALDStatus", 0, 16, GetALDStatus),
        Of("GetStackerStatus", 1, 16, GetStackerStatus),
        Of("GetDrvStatus", 2, 8, GetDrvStatus),
        Of("GetPrnStatus", 3, 4, GetPrnStatus),
        Of("GetInkStatus", 4, 24, GetInkStatus),
        Of("GetDeviceFatalError", 5, 4, GetDeviceFatalError),
        Of("GetNotifyStatus", 6, 32, GetNotifyStatus),
        Of("GetMaintenanceInfo", 10, 52, GetMaintenanceInfo),
        Of("GetMaintenanceInfoEx", 10, 68, GetMaintenanceInfoEx),
        Of("GetDrvStatusEx", 11, 16, GetDrvStatusEx),
    };
}

/// Memory of the caller, filled with old data.
struct Memory
{
    alignas(8) unsigned char bytes[LARGEST_RECORD + 8];
    Memory()
    {
        std::memset(bytes, 0xAA, sizeof bytes);
    }
    /// True if nothing has been written from `start` on.
    bool IsUntouched(size_t start = 0) const
    {
        return std::string(reinterpret_cast<const char*>(bytes) + start, sizeof bytes - start) ==
               std::string(sizeof bytes - start, '\xAA');
    }
};

std::string Request(int type)
{
    return GetRequest("/webapp2/DevStatusGetter?ifversion=02000000&type=" + std::to_string(type));
}

std::string Line(const char* format, const char* name)
{
    std::string line = format;
    return line.replace(line.find('*'), 1, name);
}

} // namespace

TEST(DeviceStatus, EachOperationRequestsItsTypeAndFillsItsRecord)
{
    for (const StatusOperation& operation : AllOperations()) {
        SCOPED_TRACE(operation.name);
        FakeServer server({GoodReply(std::string(operation.itemSize, '\0'))});
        SyslogLines lines;
        Memory memory;
        EXPECT_EQ(operation.call(server.Handle(), memory.bytes), 0U);
        EXPECT_EQ(server.Sent(), Request(operation.type));
        EXPECT_THAT(lines.Take(), ElementsAre(Line("<7>server , * , Start", operation.name),
                                              Line("<7>server , * , End", operation.name)));
        const std::string record(reinterpret_cast<const char*>(memory.bytes), operation.recordSize);
        EXPECT_EQ(record, std::string(operation.recordSize, '\0')); // the whole record, from words of 0
        EXPECT_TRUE(memory.IsUntouched(operation.recordSize));
        EXPECT_EQ(server.Object().m_refCount.load(), 0);
    }
}

TEST(DeviceStatus, EachOperationAcceptsOnlyOneSize)
{
    for (const StatusOperation& operation : AllOperations()) {
        SCOPED_TRACE(operation.name);
        for (size_t size = 0; size <= 72; ++size) {
            if (size == operation.itemSize) {
                continue;
            }
            FakeServer server({GoodReply(std::string(size, '\0'))});
            SyslogLines lines;
            Memory memory;
            EXPECT_EQ(operation.call(server.Handle(), memory.bytes), 13U);
            EXPECT_TRUE(memory.IsUntouched());
            EXPECT_THAT(lines.Take(),
                        ElementsAre(Line("<7>server , * , Start", operation.name),
                                    Line("<3>[CommLib] * Invalid Comm Spec 1", operation.name)));
        }
    }
}

TEST(DeviceStatus, EachOperationRefusesBadParameters)
{
    for (const StatusOperation& operation : AllOperations()) {
        SCOPED_TRACE(operation.name);
        FakeServer server({GoodReply(std::string(operation.itemSize, '\0'))});
        SyslogLines lines;
        Memory memory;
        EXPECT_EQ(operation.call(0, memory.bytes), 1U);
        EXPECT_THAT(lines.Take(), ElementsAre(Line("<7>(null) , * , Start", operation.name),
                                              "<3>[CommLib] ***Common Parameta Error***"));
        EXPECT_EQ(operation.call(server.Handle(), nullptr), 1U);
        EXPECT_THAT(lines.Take(), ElementsAre(Line("<7>server , * , Start", operation.name),
                                              "<3>[CommLib] ***Common Parameta Error***"));
        server.Object().m_bEndConnection = TRUE;
        EXPECT_EQ(operation.call(server.Handle(), memory.bytes), 1U);
        EXPECT_TRUE(memory.IsUntouched());
        EXPECT_EQ(server.Sent(), "");
    }
}

TEST(DeviceStatus, EachOperationReportsErrorsOfTheServer)
{
    for (const StatusOperation& operation : AllOperations()) {
        SCOPED_TRACE(operation.name);
        FakeServer server({HttpResponse(ReplyItem("", 3)), HttpResponse("", "404 Not Found"),
                           HttpResponse(ReplyItem("") + ReplyItem(""))});
        server.Object().m_dwNPType = NCL_NPTYPE_UNKNOWN;
        SyslogLines lines;
        Memory memory;
        EXPECT_EQ(operation.call(server.Handle(), memory.bytes), 8003U);
        EXPECT_THAT(lines.Take(),
                    ElementsAre(Line("<7>server , * , Start", operation.name), "<3>[Servlet] Authentication",
                                Line("<3>\t## trace ## * GetDeviceStatus() Authentication", operation.name)));
        EXPECT_EQ(operation.call(server.Handle(), memory.bytes), 8000U);
        EXPECT_THAT(lines.Take(),
                    ElementsAre(Line("<7>server , * , Start", operation.name),
                                "<3>[Apache/Tomcat] HTTP 404 error (GET, "
                                "/webapp2/DevStatusGetter?ifversion=02000000&type=" +
                                    std::to_string(operation.type) + ")",
                                Line("<3>\t## trace ## * GetDeviceStatus() Server Other", operation.name)));
        EXPECT_EQ(operation.call(server.Handle(), memory.bytes), 13U);
        EXPECT_THAT(lines.Take(), ElementsAre(Line("<7>server , * , Start", operation.name),
                                              "<3>[CommLib] ParseCommReply Invalid Comm Spec 4",
                                              Line("<3>\t## trace ## * GetDeviceStatus() Invalid Comm Spec",
                                                   operation.name)));
        EXPECT_TRUE(memory.IsUntouched());
        EXPECT_EQ(server.Object().m_dwNPType, 0U); // these operations do not determine the kind
    }
}

TEST(DeviceStatus, LogsTheStackerWithAnInvalidWord)
{
    for (int bad = 0; bad < 4; ++bad) {
        std::vector<DWORD> words = {1, 2, 3, 4};
        words[bad] = 104;
        FakeServer server({GoodReply(WireWords(words))});
        SyslogLines lines;
        StackerStatus status;
        EXPECT_EQ(GetStackerStatus(server.Handle(), &status), 13U);
        EXPECT_THAT(lines.Take(), ElementsAre("<7>server , GetStackerStatus , Start",
                                              "<3>[CommLib] GetStackerStatus Invalid Comm Spec " +
                                                  std::to_string(bad + 2)));
        EXPECT_EQ(status.Stacker1.dwDiscQuantity, bad > 0 ? 1U : 0U);
        EXPECT_EQ(status.Stacker4.dwDiscQuantity, 0U);
    }
}

TEST(DeviceStatus, UsesTheModeOfTheServer)
{
    const std::string item = WireWords({0, 0, 0, 0, 0, 0, 0, 0x4});
    FakeServer server({GoodReply(item), GoodReply(item)});
    NotifyStatus status;
    EXPECT_EQ(GetNotifyStatus(server.Handle(), &status), 0U);
    EXPECT_EQ(status.JobFactor.bStacker3Full, 0);
    server.Object().m_dwServerMode = NCL_MODE_BATCH;
    EXPECT_EQ(GetNotifyStatus(server.Handle(), &status), 0U);
    EXPECT_EQ(status.JobFactor.bStacker3Full, 1);
    EXPECT_EQ(status.JobFactor.bStacker2Full, 0);
}

TEST(DeviceBlock, IsReturnedUnchanged)
{
    const std::pair<const char*, DWORD (*)(DWORD, BYTE*, DWORD, DWORD*)> rows[] = {
        {"GetASBStatus", GetASBStatus}, {"GetPrnStStatus", GetPrnStStatus}};
    int type = 7;
    for (const auto& [name, operation] : rows) {
        SCOPED_TRACE(name);
        for (const size_t size : {0U, 1U, 4U, 1000U, 65535U}) {
            const std::string data(size, '\xE5');
            FakeServer server({GoodReply(data), GoodReply(data)});
            SyslogLines lines;
            std::string memory(size + 1, '?');
            DWORD got = 77;
            auto* const bytes = reinterpret_cast<BYTE*>(memory.data());
            EXPECT_EQ(operation(server.Handle(), bytes, static_cast<DWORD>(size), &got), 0U);
            EXPECT_EQ(got, size);
            EXPECT_EQ(memory, data + "?");
            EXPECT_EQ(server.Sent(), Request(type));
            EXPECT_THAT(lines.Take(),
                        ElementsAre(Line("<7>server , * , Start", name), Line("<7>server , * , End", name)));
            if (size == 0) {
                continue;
            }
            memory.assign(size + 1, '?');
            EXPECT_EQ(operation(server.Handle(), bytes, static_cast<DWORD>(size - 1), &got), 10U);
            EXPECT_EQ(got, size);
            EXPECT_EQ(memory, std::string(size + 1, '?'));
            EXPECT_THAT(lines.Take(), ElementsAre(Line("<7>server , * , Start", name)));
        }
        ++type;
    }
}

TEST(DeviceBlock, HasSizeZeroAfterAFailure)
{
    for (const auto operation : {GetASBStatus, GetPrnStStatus}) {
        FakeServer server({HttpResponse(ReplyItem("", 2)), HttpResponse("", "404 Not Found")});
        BYTE bytes[4];
        DWORD got = 77;
        EXPECT_EQ(operation(server.Handle(), bytes, 4, &got), 8002U);
        EXPECT_EQ(got, 0U);
        got = 77;
        EXPECT_EQ(operation(server.Handle(), bytes, 4, &got), 8000U);
        EXPECT_EQ(got, 0U);
        EXPECT_EQ(operation(server.Handle(), nullptr, 4, &got), 1U);
        EXPECT_EQ(operation(server.Handle(), bytes, 4, nullptr), 1U);
        EXPECT_EQ(operation(0, bytes, 4, &got), 1U);
        server.Object().m_bEndConnection = TRUE;
        EXPECT_EQ(operation(server.Handle(), bytes, 4, &got), 1U);
    }
}

TEST(GetDeviceStatus, SendsTheValueOfEachType)
{
    const DeviceStatusType types[] = {DEV_STATUS_TYPE_ALD,
                                      DEV_STATUS_TYPE_STACKER,
                                      DEV_STATUS_TYPE_DRV,
                                      DEV_STATUS_TYPE_PRN,
                                      DEV_STATUS_TYPE_INK,
                                      DEV_STATUS_TYPE_DEV_FATAL_ERR,
                                      DEV_STATUS_TYPE_NOTIFY,
                                      DEV_STATUS_TYPE_ASB,
                                      DEV_STATUS_TYPE_PRN_ST,
                                      DEV_STATUS_TYPE_RETIRED01,
                                      DEV_STATUS_TYPE_MAINTENANCE_INFO,
                                      DEV_STATUS_TYPE_DRV_EX};
    int number = 0;
    for (const DeviceStatusType type : types) {
        FakeServer server({GoodReply("x"), HttpResponse(ReplyItem("x") + ReplyItem("y"))});
        SyslogLines lines;
        ST_HTTP_RESPONSE response;
        std::list<ST_COMM_REPLY> items;
        EXPECT_EQ(GetDeviceStatus(&server.Object(), &response, items, type), 0U);
        EXPECT_EQ(items.size(), 1U);
        EXPECT_THAT(lines.Take(), IsEmpty()); // its caller logs
        if (type == DEV_STATUS_TYPE_RETIRED01) {
            EXPECT_EQ(server.Sent(), GetRequest("/webapp2/DevStatusGetter?ifversion=02000000&type="));
            EXPECT_EQ(GetDeviceStatus(&server.Object(), &response, items, type), 0U); // any number of items
        } else {
            EXPECT_EQ(server.Sent(), Request(number));
            EXPECT_EQ(GetDeviceStatus(&server.Object(), &response, items, type), 13U);
        }
        ++number;
    }
}

TEST(GetDeviceStatusDeathTest, NullArgumentsStopTheProcess)
{
    ST_NCL ncl;
    ST_HTTP_RESPONSE response;
    std::list<ST_COMM_REPLY> items;
    EXPECT_DEATH(GetDeviceStatus(nullptr, &response, items, DEV_STATUS_TYPE_ALD), "!= FALSE");
    EXPECT_DEATH(GetDeviceStatus(&ncl, nullptr, items, DEV_STATUS_TYPE_ALD), "!= FALSE");
}
