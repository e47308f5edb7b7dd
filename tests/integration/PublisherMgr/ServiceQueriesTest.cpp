// Tests every operation that sends one command to the control service: the bytes it sends, and its results
// for good and invalid answers. The facade forwards the same operations.
#include "BasicPublisherMgr.h"
#include "PublisherFiles.h"
#include "PublisherMgr.h"
#include "ServiceWire.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace {

/// The results of an operation as one text.
template <class... Values>
std::string Text(Values... values)
{
    std::ostringstream text;
    text << std::boolalpha;
    ((text << values << ' '), ...);
    return text.str();
}

/// The values as little-endian numbers of `size` bytes each.
std::string Numbers(size_t size, const std::vector<unsigned long long>& values)
{
    std::string bytes;
    for (const unsigned long long value : values) {
        bytes += Number(value, size);
    }
    return bytes;
}

template <class Mgr>
struct Operation
{
    const char* name;
    ULONG control;
    std::string job;
    ULONG subParam;
    std::string payload; ///< of a good answer
    std::string good;    ///< the results for that answer
    std::string failed;
    bool anyPayload; ///< a command, which ignores the payload
    std::function<std::string(Mgr&, long*)> run;
};

const std::string twoDrives = Number8(1) + Field("plug-in 1", 41) + Field("", 7) + Number8(50) + Number8(32) +
                              Field("plug-in 2", 41) + Field("", 7) + Number8(60);

template <class Mgr>
std::vector<Operation<Mgr>> Operations()
{
    return {
        {"GetJobCount", 13, "", 0, Number4(7), Text(7), Text(-1), false,
         [](Mgr& m, long* code) { return Text(m.GetJobCount("R", code)); }},
        {"GetServiceEstimateCirculation", 14, "", 0, Number4(0xFFFF), Text(0xFFFF), Text(-1), false,
         [](Mgr& m, long* code) { return Text(m.GetServiceEstimateCirculation("R", code)); }},
        {"GetServiceInkStatus", 6, "", 0, Numbers(8, {1, 2, 3, 4, 5, 0x80000006}),
         Text(true, 1, 2, 3, 4, 5, 0x80000006), Text(false, 9, 9, 9, 9, 9, 9), false,
         [](Mgr& m, long* code) {
             ST_PC_INK_STATUS ink{9, 9, 9, 9, 9, 9};
             const bool ok = m.GetServiceInkStatus("R", &ink, code);
             return Text(ok, ink.ulCyan, ink.ulMagenta, ink.ulYellow, ink.ulLightCyan, ink.ulLightMagenta,
                         ink.ulBlack);
         }},
        {"GetServiceAldStatus", 5, "", 0, Number4(0x40000), Text(true, 0x40000), Text(false, 9), false,
         [](Mgr& m, long* code) {
             ULONG value = 9;
             const bool ok = m.GetServiceAldStatus("R", &value, code);
             return Text(ok, value);
         }},
        {"GetServiceDriveStatus", 7, "", 0, twoDrives, Text(true, 1, "plug-in 1", 50, 32, "plug-in 2", 60),
         Text(false, 9, "", 9, 9, "", 9), false,
         [](Mgr& m, long* code) {
             ST_PC_DRV_STATUS drive1{9, "", 9};
             ST_PC_DRV_STATUS drive2{9, "", 9};
             const bool ok = m.GetServiceDriveStatus("R", &drive1, &drive2, code);
             return Text(ok, drive1.ulDrvStatus, drive1.acPlugInAppID, drive1.ulDrvProgressStatus,
                         drive2.ulDrvStatus, drive2.acPlugInAppID, drive2.ulDrvProgressStatus);
         }},
        {"GetServicePrinterStatus", 8, "", 0, Number4(4), Text(true, 4), Text(false, 9), false,
         [](Mgr& m, long* code) {
             ULONG value = 9;
             const bool ok = m.GetServicePrinterStatus("R", &value, code);
             return Text(ok, value);
         }},
        {"GetServiceStackerStatus", 9, "", 0, Numbers(4, {1, 2, 3, 0x80000004}),
         Text(true, 1, 2, 3, 0x80000004), Text(false, 9, 9, 9, 9), false,
         [](Mgr& m, long* code) {
             ULONG v[4] = {9, 9, 9, 9};
             const bool ok = m.GetServiceStackerStatus("R", &v[0], &v[1], &v[2], &v[3], code);
             return Text(ok, v[0], v[1], v[2], v[3]);
         }},
        {"GetServiceStackerDiscType", 17, "", 0, Numbers(4, {1, 6, 0, 32}), Text(true, 1, 6, 0, 32),
         Text(false, 9, 9, 9, 9), false,
         [](Mgr& m, long* code) {
             ULONG v[4] = {9, 9, 9, 9};
             const bool ok = m.GetServiceStackerDiscType("R", &v[0], &v[1], &v[2], &v[3], code);
             return Text(ok, v[0], v[1], v[2], v[3]);
         }},
        {"GetServiceFatalCode", 22, "", 0, Number4(42), Text(true, 42), Text(false, 9), false,
         [](Mgr& m, long* code) {
             ULONG value = 9;
             const bool ok = m.GetServiceFatalCode("R", &value, code);
             return Text(ok, value);
         }},
        {"GetServicePublishMode", 18, "", 0, Number4(6), Text(true, 6), Text(false, 9), false,
         [](Mgr& m, long* code) {
             ULONG value = 9;
             const bool ok = m.GetServicePublishMode("R", &value, code);
             return Text(ok, value);
         }},
        {"SetServiceJobStop", 1, "J", 0, "", Text(true), Text(false), true,
         [](Mgr& m, long* code) { return Text(m.SetServiceJobStop("R", "J", code)); }},
        {"SetServiceJobContinue", 2, "J", 0, "", Text(true), Text(false), true,
         [](Mgr& m, long* code) { return Text(m.SetServiceJobContinue("R", "J", code)); }},
        {"SetServiceJobCancel", 3, "J", 0, "", Text(true), Text(false), true,
         [](Mgr& m, long* code) { return Text(m.SetServiceJobCancel("R", "J", code)); }},
        {"CancelJob", 3, "J", 0, "", Text(true), Text(false), true,
         [](Mgr& m, long* code) { return Text(m.CancelJob("R", "J", 5, 6, code)); }},
        {"SetServiceNotifyChange", 16, "", 0, "", Text(true), Text(false), true,
         [](Mgr& m, long* code) { return Text(m.SetServiceNotifyChange("R", code)); }},
        {"SetServicePublishMode", 21, "", 6, "", Text(true), Text(false), true,
         [](Mgr& m, long* code) { return Text(m.SetServicePublishMode("R", 6, code)); }},
        {"SetServiceJobErrorCancel", 23, "J", 0, "", Text(true), Text(false), true,
         [](Mgr& m, long* code) { return Text(m.SetServiceJobErrorCancel("R", "J", code)); }},
    };
}

/// The operations of a local publisher that the facade does not offer unchanged.
std::vector<Operation<CBasicPublisherMgr>> LocalOperations()
{
    using Mgr = CBasicPublisherMgr;
    return {
        {"SetServiceJobMove", 29, "J", 1, "", Text(true), Text(false), true,
         [](Mgr& m, long* code) { return Text(m.SetServiceJobMove("R", "J", code)); }},
        {"SetServiceUpdateErrorDiscContinueCount", 30, "", 0, "", Text(true), Text(false), true,
         [](Mgr& m, long* code) { return Text(m.SetServiceUpdateErrorDiscContinueCount(code, "R")); }},
        {"GetServiceAbilityPnumPrecision", 26, "", 0, Number4(1), Text(1u), Text(0xFFFFFFFF), false,
         [](Mgr& m, long* code) { return Text(m.GetServiceAbilityPnumPrecision("R", code)); }},
    };
}

template <class Mgr>
void ExpectGoodAnswer(Mgr& mgr, const Operation<Mgr>& operation)
{
    long code = 77;
    ServiceCall<std::string> call([&] { return operation.run(mgr, &code); });
    EXPECT_EQ(call.AnswerNext(Answer(operation.control, operation.payload)),
              Request(operation.control, "R", operation.job, operation.subParam));
    EXPECT_EQ(call.Get(), operation.good);
    EXPECT_EQ(code, 0);
}

template <class Mgr>
void ExpectNoCodeIsFine(Mgr& mgr, const Operation<Mgr>& operation)
{
    ServiceCall<std::string> call([&] { return operation.run(mgr, nullptr); });
    call.AnswerNext(Answer(operation.control, operation.payload));
    EXPECT_EQ(call.Get(), operation.good);
}

template <class Mgr>
void ExpectErrorOfTheService(Mgr& mgr, const Operation<Mgr>& operation)
{
    long code = 77;
    ServiceCall<std::string> call([&] { return operation.run(mgr, &code); });
    call.AnswerNext(Header(operation.control, 1004, 0));
    EXPECT_EQ(call.Get(), operation.failed);
    EXPECT_EQ(code, 1004);
}

template <class Mgr>
void ExpectOtherLength(Mgr& mgr, const Operation<Mgr>& operation, const std::string& payload)
{
    long code = 77;
    ServiceCall<std::string> call([&] { return operation.run(mgr, &code); });
    call.AnswerNext(Answer(operation.control, payload));
    EXPECT_EQ(call.Get(), operation.anyPayload ? operation.good : operation.failed);
    EXPECT_EQ(code, 0);
}

template <class Mgr>
void ExpectContract(Mgr& mgr, const Operation<Mgr>& operation)
{
    SCOPED_TRACE(operation.name);
    ExpectGoodAnswer(mgr, operation);
    ExpectNoCodeIsFine(mgr, operation);
    ExpectErrorOfTheService(mgr, operation);
    ExpectOtherLength(mgr, operation, operation.payload + "x");
    if (!operation.anyPayload) {
        ExpectOtherLength(mgr, operation, operation.payload.substr(1));
        ExpectOtherLength(mgr, operation, "");
    }
    long code = 77;
    EXPECT_EQ(operation.run(mgr, &code), operation.failed); // no service
    EXPECT_EQ(code, -1);
}

TEST(ServiceOperations, OfALocalPublisher)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    for (const auto& operation : Operations<CBasicPublisherMgr>()) {
        ExpectContract(mgr, operation);
    }
    for (const auto& operation : LocalOperations()) {
        ExpectContract(mgr, operation);
    }
}

TEST(ServiceOperations, OfTheFacade)
{
    WriteLocalPublisher("R", "30000009");
    CPublisherMgr mgr(true);
    for (const auto& operation : Operations<CPublisherMgr>()) {
        ExpectContract(mgr, operation);
    }
}

TEST(ServiceOperationsDeathTest, ANullIdOrJobStopsTheProcess)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    EXPECT_DEATH(mgr.GetJobCount(nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceEstimateCirculation(nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceAbilityPnumPrecision(nullptr, nullptr), "!= FALSE");
    ULONG value = 0;
    NotifyStatusArray notifications;
    JobStatusArray jobs;
    EXPECT_DEATH(mgr.GetServiceAldStatus(nullptr, &value, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceUSBMode(nullptr, &value, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceNotifyStatus(nullptr, &notifications, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceJobStatus(nullptr, &jobs, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.SetServiceNotifyChange(nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.SetServicePublishMode(nullptr, 0, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.SetServiceUpdateErrorDiscContinueCount(nullptr, nullptr), "!= FALSE");
    using JobCommand = bool (CBasicPublisherMgr::*)(LPCTSTR, LPCTSTR, long*);
    for (const JobCommand command : {JobCommand{&CBasicPublisherMgr::SetServiceJobStop},
                                     JobCommand{&CBasicPublisherMgr::SetServiceJobContinue},
                                     JobCommand{&CBasicPublisherMgr::SetServiceJobCancel},
                                     JobCommand{&CBasicPublisherMgr::SetServiceJobErrorCancel},
                                     JobCommand{&CBasicPublisherMgr::SetServiceJobMove}}) {
        EXPECT_DEATH((mgr.*command)(nullptr, "J", nullptr), "!= FALSE");
        EXPECT_DEATH((mgr.*command)("R", nullptr, nullptr), "!= FALSE");
    }
}

TEST(ServiceOperationsDeathTest, ANullOutputStopsTheProcess)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    ULONG value = 0;
    ST_PC_DRV_STATUS drive{};
    EXPECT_DEATH(mgr.GetServiceInkStatus("R", nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceAldStatus("R", nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceDriveStatus("R", nullptr, &drive, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceDriveStatus("R", &drive, nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServicePrinterStatus("R", nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceFatalCode("R", nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServicePublishMode("R", nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceUSBMode("R", nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceNotifyStatus("R", nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetServiceJobStatus("R", nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetPublisherVersionInfo("R", nullptr, nullptr), "!= FALSE");
    EXPECT_DEATH(mgr.GetPublisherMaintenanceInfo("R", nullptr, nullptr), "!= FALSE");
    for (int missing = 0; missing < 4; ++missing) {
        ULONG* out[4] = {&value, &value, &value, &value};
        out[missing] = nullptr;
        EXPECT_DEATH(mgr.GetServiceStackerStatus("R", out[0], out[1], out[2], out[3], nullptr), "!= FALSE");
        EXPECT_DEATH(mgr.GetServiceStackerDiscType("R", out[0], out[1], out[2], out[3], nullptr), "!= FALSE");
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Operations with special results

TEST(IsPossibleCommunicateService, IsTrueForAnyReplyOfTheService)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    const struct
    {
        std::string answer;
        bool possible;
        long code;
    } rows[] = {
        {Answer(13, Number4(7)), true, 0},
        {Answer(13), true, 0},
        {Header(13, 1004, 0), true, 1004},
        {Header(14, 0, 0), false, -1},
        {Header(13, 0xFFFFFFFFFFFFFFFF, 0), false, -1},
        {Header(13, 0xFFFFFFFFFFFFFFFE, 0), false, -2},
        {Header(13, 0xFFFFFFFFFFFFFFFD, 0), false, -3},
        {Header(13, 0xFFFFFFFFFFFFFFFC, 0), true, -4},
    };
    for (const auto& row : rows) {
        long code = 77;
        ServiceCall<bool> call([&] { return mgr.IsPossibleCommunicateService(&code); });
        EXPECT_EQ(call.AnswerNext(row.answer), Request(13, ""));
        EXPECT_EQ(call.Get(), row.possible) << row.code;
        EXPECT_EQ(code, row.code);
    }
    long code = 77;
    EXPECT_FALSE(mgr.IsPossibleCommunicateService(&code));
    EXPECT_EQ(code, -1);
    EXPECT_FALSE(mgr.IsPossibleCommunicateService(nullptr));
    EXPECT_FALSE(CPublisherMgr(true).IsPossibleCommunicateService(&code));
}

TEST(ServiceCommunication, TheFacadeUsesTheBasicImplementation)
{
    CPublisherMgr mgr(true);
    ServiceCall<bool> call([&] { return mgr.IsPossibleCommunicateService(nullptr); });
    std::string request;
    UnixPeer peer = call.Accept(request);
    EXPECT_EQ(request, Request(13, ""));
    EXPECT_TRUE(mgr.IsRunningCommunicateService());
    peer.Write(Answer(13));
    EXPECT_TRUE(call.Get());
    EXPECT_FALSE(mgr.IsRunningCommunicateService());
}

TEST(PnumPrecision, AServiceWithoutThisQueryHasLowPrecision)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    long code = 77;
    ServiceCall<ULONG> call([&] { return mgr.GetServiceAbilityPnumPrecision("R", &code); });
    call.AnswerNext(Header(26, 1001, 0));
    EXPECT_EQ(call.Get(), 0u);
    EXPECT_EQ(code, 0);
}

TEST(IsFatalErrorInPublisher, FollowsTheFatalCode)
{
    WriteLocalPublisher("R", "00000008");
    CBasicPublisherMgr local(true, PUBLISHER_SETTING_DIR);
    CPublisherMgr facade(true);
    const struct
    {
        std::string answer;
        bool fatal;
        long code;
    } rows[] = {
        {Answer(22, Number4(0)), false, 0},  {Answer(22, Number4(42)), true, 42},
        {Answer(22, Number4(11)), true, 11}, {Answer(22, Number4(0xFFFFFFFF)), true, 0xFFFFFFFF},
        {Answer(22, "123"), true, 11},       {Answer(22), true, 11},
        {Header(22, 1004, 0), true, 11},     {Header(21, 0, 0), true, 11},
    };
    for (const auto& row : rows) {
        long code = 0;
        ServiceCall<bool> call([&] { return local.IsFatalErrorInPublisher("R", &code); });
        EXPECT_EQ(call.AnswerNext(row.answer), Request(22, "R"));
        EXPECT_EQ(call.Get(), row.fatal);
        EXPECT_EQ(code, row.code);
    }
    for (const auto& row : rows) {
        long code = 0;
        ServiceCall<bool> call([&] { return facade.IsFatalErrorInPublisher("R", &code); });
        call.AnswerNext(row.answer);
        EXPECT_EQ(call.Get(), row.fatal);
        EXPECT_EQ(code, row.code);
    }
    long code = 0;
    EXPECT_TRUE(local.IsFatalErrorInPublisher("R", &code)); // the service is gone
    EXPECT_EQ(code, 11);
    EXPECT_TRUE(local.IsFatalErrorInPublisher("R", nullptr));
}

/// A model that overrides the query of fatal errors and the cancelling of jobs.
class OwnWaysMgr : public CBasicPublisherMgr
{
public:
    using CBasicPublisherMgr::CBasicPublisherMgr;

    bool GetServiceFatalCode(LPCTSTR, ULONG* pulFatalCode, long*) override
    {
        *pulFatalCode = 42;
        return true;
    }
    bool SetServiceJobCancel(LPCTSTR szPublisherRegistID, LPCTSTR pJobID, long* pResultCode) override
    {
        cancelled = std::string(szPublisherRegistID) + " " + pJobID;
        *pResultCode = 5;
        return true;
    }

    std::string cancelled;
};

TEST(ServiceOperations, OverridesOfAModelAreUsed)
{
    OwnWaysMgr mgr(true, PUBLISHER_SETTING_DIR); // and no service
    long code = 77;
    EXPECT_TRUE(mgr.IsFatalErrorInPublisher("R", &code));
    EXPECT_EQ(code, 42);
    EXPECT_TRUE(mgr.CancelJob("R", "J", 1, 2, &code));
    EXPECT_EQ(code, 5);
    EXPECT_EQ(mgr.cancelled, "R J");
}

TEST(UpdateErrorDiscContinueCount, TheFacadeSendsItForEveryPublisherThatMeasures)
{
    WriteRegistry(DeviceSection("{A}", "\"DPType\"=dword:00000006\n") +
                  DeviceSection("{B}", "\"DPType\"=dword:00000008\n"));
    WritePublisher("archive", "[Common]\nGUID={A}\n");
    WritePublisher("other", "[Common]\nGUID={B}\n");
    CPublisherMgr mgr(true);
    {
        long code = 77;
        ServiceCall<bool> call([&] { return mgr.SetServiceUpdateErrorDiscContinueCount(&code, "ignored"); });
        EXPECT_EQ(call.AnswerNext(Answer(30)), Request(30, "archive"));
        EXPECT_TRUE(call.Get());
        EXPECT_EQ(code, 0);
    }
    WritePublisher("second", "[Common]\nGUID={A}\n");
    for (const bool lastIsGood : {true, false}) {
        long code = 77;
        ServiceCall<bool> call([&] { return mgr.SetServiceUpdateErrorDiscContinueCount(&code, nullptr); });
        const std::string first = call.AnswerNext(lastIsGood ? Header(30, 36, 0) : Answer(30));
        const std::string last = call.AnswerNext(lastIsGood ? Answer(30) : Header(30, 36, 0));
        EXPECT_NE(first, last);
        for (const std::string& request : {first, last}) {
            EXPECT_TRUE(request == Request(30, "archive") || request == Request(30, "second"));
        }
        EXPECT_EQ(call.Get(), lastIsGood);
        EXPECT_EQ(code, lastIsGood ? 0 : 36);
    }
}

TEST(USBMode, IsFourBytes)
{
    WriteLocalPublisher("R", "00000008");
    CPublisherMgr mgr(true);
    long code = 77;
    ULONG mode = 9;
    {
        ServiceCall<bool> call([&] { return mgr.GetServiceUSBMode("R", &mode, &code); });
        EXPECT_EQ(call.AnswerNext(Answer(31, Number4(3))), Request(31, "R"));
        EXPECT_TRUE(call.Get());
        EXPECT_EQ(mode, 3u);
        EXPECT_EQ(code, 0);
    }
    ServiceCall<bool> call([&] { return mgr.GetServiceUSBMode("R", &mode, &code); });
    call.AnswerNext(Header(31, 1021, 0));
    EXPECT_FALSE(call.Get());
    EXPECT_EQ(mode, 3u);
    EXPECT_EQ(code, 1021);
}

TEST(USBModeDeathTest, AnotherLengthStopsTheProcess)
{
    CBasicPublisherMgr mgr(true, PUBLISHER_SETTING_DIR);
    for (const std::string& payload : {std::string(), std::string(3, 'x'), std::string(5, 'x')}) {
        EXPECT_DEATH(
            {
                ULONG mode = 0;
                ServiceCall<bool> call([&] { return mgr.GetServiceUSBMode("R", &mode, nullptr); });
                call.AnswerNext(Answer(31, payload));
                call.Get();
            },
            "!= FALSE");
    }
}

TEST(NotifyStatus, HasOneValuePerFourBytes)
{
    WriteLocalPublisher("R", "00000008");
    CPublisherMgr mgr(true);
    const struct
    {
        std::string answer;
        bool ok;
        long code;
        std::vector<unsigned int> values;
    } rows[] = {
        {Answer(24, Numbers(4, {1, 0x10, 0xFFFFFFFF})), true, 0, {1, 0x10, 0xFFFFFFFF}},
        {Answer(24, Number4(2)), true, 0, {2}},
        {Answer(24, Number4(2) + "123"), true, 0, {2}},
        {Answer(24, "123"), true, 0, {}},
        {Answer(24), false, 0, {77}},
        {Header(24, 1004, 0), false, 1004, {77}},
    };
    for (const auto& row : rows) {
        NotifyStatusArray values;
        values.Add(77);
        long code = 77;
        ServiceCall<bool> call([&] { return mgr.GetServiceNotifyStatus("R", &values, &code); });
        EXPECT_EQ(call.AnswerNext(row.answer), Request(24, "R"));
        EXPECT_EQ(call.Get(), row.ok);
        EXPECT_EQ(code, row.code);
        EXPECT_EQ(std::vector<unsigned int>(values.begin(), values.end()), row.values);
    }
}

} // namespace
