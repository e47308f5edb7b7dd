// The results of the facade if no implementation serves the publisher. (Tests with a service cover the
// forwarding of everything else.)
#include "LogAgent.h"
#include "ManagerLog.h"
#include "PublisherFiles.h"
#include "PublisherMgr.h"
#include "Win_def_log.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

/// An operation by id. True if it returns its value for "no publisher".
struct Operation
{
    const char* name;
    std::function<bool(CPublisherMgr&, LPCTSTR id, long* code)> givesNone;
};

const std::vector<Operation> byId = {
    {"UpdatePublishMode",
     [](CPublisherMgr& m, LPCTSTR id, long*) {
         PUBLISHERINFO info;
         bool flag = false;
         return !m.UpdatePublishMode(id, &info, false, &flag);
     }},
    {"IsPossibleCommunicate",
     [](CPublisherMgr& m, LPCTSTR id, long* code) { return !m.IsPossibleCommunicate(id, code); }},
    {"IsFatalErrorInPublisher",
     [](CPublisherMgr& m, LPCTSTR id, long* code) { return !m.IsFatalErrorInPublisher(id, code); }},
    {"SetServiceJobCancel",
     [](CPublisherMgr& m, LPCTSTR id, long* code) { return !m.SetServiceJobCancel(id, "J", code); }},
    {"SetServiceJobErrorCancel",
     [](CPublisherMgr& m, LPCTSTR id, long* code) { return !m.SetServiceJobErrorCancel(id, "J", code); }},
    {"SetServiceJobStop",
     [](CPublisherMgr& m, LPCTSTR id, long* code) { return !m.SetServiceJobStop(id, "J", code); }},
    {"SetServiceJobContinue",
     [](CPublisherMgr& m, LPCTSTR id, long* code) { return !m.SetServiceJobContinue(id, "J", code); }},
    {"SetServiceNotifyChange",
     [](CPublisherMgr& m, LPCTSTR id, long* code) { return !m.SetServiceNotifyChange(id, code); }},
    {"GetPublisherVersionInfo",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         PUBLISHERVERSIONINFO info;
         return !m.GetPublisherVersionInfo(id, &info, code);
     }},
    {"GetPublisherMaintenanceInfo",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         PUBLISHERMAINTENANCEINFO info;
         return !m.GetPublisherMaintenanceInfo(id, &info, code);
     }},
    {"GetServiceJobStatus",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         JobStatusArray jobs;
         return !m.GetServiceJobStatus(id, &jobs, code);
     }},
    {"GetServiceJobStatusUnfinish",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         JobStatusArray jobs;
         return !m.GetServiceJobStatusUnfinish(id, &jobs, code);
     }},
    {"GetServiceJobStatusFinish",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         JobStatusArray jobs;
         return !m.GetServiceJobStatusFinish(id, &jobs, code);
     }},
    {"GetServiceInkStatus",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         ST_PC_INK_STATUS ink{};
         return !m.GetServiceInkStatus(id, &ink, code);
     }},
    {"GetServiceAldStatus",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         ULONG value = 0;
         return !m.GetServiceAldStatus(id, &value, code);
     }},
    {"GetServiceDriveStatus",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         ST_PC_DRV_STATUS drives[2] = {};
         return !m.GetServiceDriveStatus(id, &drives[0], &drives[1], code);
     }},
    {"GetServicePrinterStatus",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         ULONG value = 0;
         return !m.GetServicePrinterStatus(id, &value, code);
     }},
    {"GetServiceStackerStatus",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         ULONG v[4] = {};
         return !m.GetServiceStackerStatus(id, &v[0], &v[1], &v[2], &v[3], code);
     }},
    {"GetServiceFatalCode",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         ULONG value = 0;
         return !m.GetServiceFatalCode(id, &value, code);
     }},
    {"GetServiceNotifyStatus",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         NotifyStatusArray values;
         return !m.GetServiceNotifyStatus(id, &values, code);
     }},
    {"GetServicePublishMode",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         ULONG value = 0;
         return !m.GetServicePublishMode(id, &value, code);
     }},
    {"SetServicePublishMode",
     [](CPublisherMgr& m, LPCTSTR id, long* code) { return !m.SetServicePublishMode(id, 1, code); }},
    {"GetServiceStackerDiscType",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         ULONG v[4] = {};
         return !m.GetServiceStackerDiscType(id, &v[0], &v[1], &v[2], &v[3], code);
     }},
    {"GetServiceUSBMode",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         ULONG value = 0;
         return !m.GetServiceUSBMode(id, &value, code);
     }},
    {"CancelJob", [](CPublisherMgr& m, LPCTSTR id, long* code) { return !m.CancelJob(id, "J", 1, 2, code); }},
    {"GetCopiesMax", [](CPublisherMgr& m, LPCTSTR id, long*) { return m.GetCopiesMax(id, false) == 0; }},
    {"GetJobCount", [](CPublisherMgr& m, LPCTSTR id, long* code) { return m.GetJobCount(id, code) == -1; }},
    {"GetServiceEstimateCirculation",
     [](CPublisherMgr& m, LPCTSTR id, long* code) {
         return m.GetServiceEstimateCirculation(id, code) == -1;
     }},
    {"GetCommunicateJobCount",
     [](CPublisherMgr& m, LPCTSTR id, long*) { return m.GetCommunicateJobCount(id) == -1; }},
    {"GetPublisherGUID", [](CPublisherMgr& m, LPCTSTR id, long*) { return m.GetPublisherGUID(id).empty(); }},
    {"GetSupportWriteSpeedString",
     [](CPublisherMgr& m, LPCTSTR id, long*) { return m.GetSupportWriteSpeedString(id, 1).empty(); }},
    {"GetDeviceInfo",
     [](CPublisherMgr& m, LPCTSTR id, long*) {
         DWORD code = 0;
         return m.GetDeviceInfo(id, 8, &code).empty();
     }},
};

TEST(Forwards, WithoutAnIdEachReturnsItsDefault)
{
    CPublisherMgr mgr(true);
    for (const LPCTSTR id : {LPCTSTR{nullptr}, ""}) {
        for (const Operation& operation : byId) {
            long code = 77;
            EXPECT_TRUE(operation.givesNone(mgr, id, &code)) << operation.name;
            EXPECT_EQ(code, 77) << operation.name;
            EXPECT_TRUE(operation.givesNone(mgr, id, nullptr)) << operation.name;
        }
    }
}

TEST(Forwards, OnlyACancelOfAnUnknownPublisherIsLogged)
{
    LogAgent agent;
    SetLogLevel(2);
    CPublisherMgr mgr(true);
    for (const Operation& operation : byId) {
        operation.givesNone(mgr, "", nullptr);
    }
    EXPECT_EQ(agent.TakeAll(),
              std::vector{LogLine(4, "CPublisherMgr::SetServiceJobCancel, Publisher not found")});
}

/// Without a setting file there is no address, so the result does not depend on the network.
TEST(Forwards, ConnectionsUseTheNetworkImplementationForEveryPublisher)
{
    CPublisherMgr mgr(true);
    DWORD handle = 77;
    DWORD code = 88;
    EXPECT_FALSE(mgr.StartConnection("R", &handle, &code));
    EXPECT_EQ(handle, 77u);
    EXPECT_EQ(code, 88u);

    WriteLocalPublisher("R", "00000005");
    EXPECT_FALSE(mgr.StartConnection("R", &handle, &code)) << "the setting file contains no address";
    EXPECT_EQ(handle, 77u);
    EXPECT_EQ(code, 88u);
}

TEST(Forwards, JobSubmissionGoesToTheLibrary)
{
    CPublisherMgr mgr(true);
    const BYTE data[] = {1};
    const DWORD noHandle = 4711; // no connection has this handle
    int job = 99;
    const auto refused = [](auto operation) {
        DWORD code = 88;
        operation(&code);
        return code;
    };
    EXPECT_TRUE(mgr.EndConnection(noHandle));
    EXPECT_EQ(refused([&](DWORD* code) { EXPECT_EQ(mgr.GetPublishID(noHandle, code), ""); }), 1u);
    EXPECT_EQ(refused([&](DWORD* code) { EXPECT_TRUE(mgr.SendJobData(noHandle, data, 1, &job, code)); }), 1u);
    EXPECT_EQ(refused([&](DWORD* code) { EXPECT_TRUE(mgr.SendPRNData(noHandle, 2, data, 1, code)); }), 1u);
    EXPECT_EQ(refused([&](DWORD* code) { EXPECT_FALSE(mgr.CommitJob(noHandle, 2, code)); }), 1u);
    EXPECT_EQ(refused([&](DWORD* code) { EXPECT_TRUE(mgr.SendDiscInfo(noHandle, 2, data, 1, code)); }), 1u);
    EXPECT_EQ(job, 99);
}

/// Unsupported operations return true if the network publisher is served, and false otherwise.
TEST(Forwards, ANetworkPublisherIsServed)
{
    WritePublisher("R", "[Common]\nGUID={G}\nPublisherConnectionType=1\n");
    CPublisherMgr mgr(true);
    long code = 77;
    EXPECT_TRUE(mgr.SetServiceNotifyChange("R", &code));
    EXPECT_TRUE(mgr.SetServiceJobErrorCancel("R", "J", &code));
    EXPECT_FALSE(mgr.SetServiceJobStop("R", "J", &code));
    EXPECT_EQ(code, 77);
    EXPECT_EQ(mgr.GetPublisherGUID("R"), "");
    EXPECT_FALSE(mgr.IsPossibleCommunicate("R", &code)) << "no address";
    EXPECT_EQ(code, 0);
    EXPECT_EQ(mgr.GetJobCount("R", &code), -1);
    EXPECT_EQ(code, -1);
}

TEST(Forwards, ErrorRateCountsRequireAPublisherThatMeasures)
{
    WriteLocalPublisher("R", "00000005");
    CPublisherMgr mgr(true);
    long code = 77;
    EXPECT_FALSE(mgr.SetServiceUpdateErrorDiscContinueCount(&code, "R"));
    EXPECT_EQ(code, 77);
}

TEST(Forwards, ConstantsOfLocalPublishersAreForwarded)
{
    WriteLocalPublisher("R", "00000005");
    CPublisherMgr mgr(true);
    long result = 77;
    DWORD code = 88;
    EXPECT_TRUE(mgr.IsPossibleCommunicate("R", &result));
    EXPECT_EQ(mgr.GetCommunicateJobCount("R"), -1);
    EXPECT_EQ(mgr.GetDeviceInfo("R", 8, &code), "");
    EXPECT_EQ(mgr.GetCopiesMax("R", true), 1000u);
    EXPECT_EQ(mgr.GetPublisherGUID("R"), "{G}");
    EXPECT_FALSE(mgr.IsRunningCommunicateService());
    EXPECT_EQ(result, 77);
    EXPECT_EQ(code, 88u);
}

TEST(Forwards, WriteSpeedsAndModeGoToTheModel)
{
    WritePublisher("R", "[Common]\nGUID={G}\nPublishMode=0\nStacker3=1\nStacker4=2\n");
    WriteRegistry(DeviceSection("{G}", "\"DPType\"=dword:00000008\n\"DRVSupportWriteSpeed\"=\"BD-R:6\"\n"));
    CPublisherMgr mgr(true);
    EXPECT_EQ(mgr.GetSupportWriteSpeedString("R", 1), "BD-R:6");
    EXPECT_EQ(mgr.GetSupportWriteSpeedString("R", 2), "");
    PUBLISHERINFO info;
    info.uiPublishMode = 6;
    info.uiStacker3DiscType = 8;
    info.uiStacker4DiscType = 9;
    bool setDefault = true;
    EXPECT_TRUE(mgr.UpdatePublishMode("R", &info, false, &setDefault));
    EXPECT_FALSE(setDefault);
    EXPECT_EQ(ReadPublisher("R"), "[Common]\nGUID={G}\nPublishMode=6\nStacker3=8\nStacker4=9\n");
}

} // namespace
