// The calls of each operation to the network library, their order, and the use of the results.
#include "NetworkOperations.h"
#include "NetworkScriptFixture.h"
#include "StdoutCapture.h"

#include <map>

namespace {

using testing::ElementsAre;

class NetworkCalls : public NetworkScriptFixture
{
protected:
    PUBLISHERINFO Info()
    {
        PUBLISHERINFO info;
        EXPECT_TRUE(m_mgr.GetPublisherInfo("R", &info, FALSE));
        return info;
    }
};

} // namespace

TEST_F(NetworkCalls, OfEveryOperation)
{
    const std::map<std::string, std::vector<std::string>> rows = {
        {"GetPublisherInfo",
         {"GetServerMode(7)", "GetDeviceInfoInt(7, 4)", "GetDeviceInfoInt(7, 5)", "GetDeviceInfoInt(7, 6)",
          "GetDeviceInfoInt(7, 0)", "GetDeviceInfoInt(7, 2)", "GetDeviceInfoInt(7, 3)"}},
        {"GetCopiesMax", {"GetServerMode(7)"}},
        {"GetSupportWriteSpeedString", {"GetDeviceInfo(7, 10, 1024)"}},
        {"IsPossibleCommunicate", {}},
        {"GetJobCount", {"GetJobNumber(7, 0)"}},
        {"GetCommunicateJobCount", {"GetJobNumber(7, 1)"}},
        {"IsFatalErrorInPublisher", {"GetDeviceFatalError(7)"}},
        {"SetServiceJobCancel", {"GetJobStatusEx(7, 3, 1000)", "CancelJob(7, 5)"}},
        {"GetPublisherVersionInfo",
         {"GetDeviceInfo(7, 0, 1024)", "GetDeviceInfo(7, 1, 1024)", "GetDeviceInfo(7, 12, 1024)",
          "GetDeviceInfo(7, 2, 1024)", "GetDeviceInfo(7, 13, 1024)", "GetDeviceInfo(7, 3, 1024)",
          "GetDeviceInfo(7, 14, 1024)", "GetDeviceInfo(7, 4, 1024)", "GetDeviceInfo(7, 5, 1024)",
          "GetDeviceInfo(7, 6, 1024)"}},
        {"GetPublisherMaintenanceInfo",
         {"GetNPType(7)", "GetMaintenanceInfoEx(7)", "GetDeviceInfo(7, 0, 1024)"}},
        {"GetServiceJobStatus", {"GetJobStatusEx(7, 3, 1000)", "GetJobStatus(7, 1, 1000)"}},
        {"GetServiceJobStatusUnfinish", {"GetJobStatusEx(7, 3, 1000)"}},
        {"GetServiceJobStatusFinish", {"GetJobStatus(7, 1, 1000)"}},
        {"GetServiceInkStatus", {"GetInkStatus(7)"}},
        {"GetServiceAldStatus", {"GetALDStatus(7)"}},
        {"GetServiceDriveStatus", {"GetDrvStatusEx(7)"}},
        {"GetServicePrinterStatus", {"GetPrnStatus(7)"}},
        {"GetServiceStackerStatus", {"GetStackerStatus(7)"}},
        {"GetServiceEstimateCirculation", {"GetPrnPossibilityNumber(7)"}},
        {"GetServicePublishMode", {"GetServerMode(7)"}},
        {"GetDeviceInfo", {"GetDeviceInfo(7, 0, 4096)"}},
    };
    ASSERT_EQ(rows.size(), NetworkOperations().size());
    for (const NetworkOperation& operation : NetworkOperations()) {
        std::vector<std::string> expected{"StartConnection(1, server)"};
        const auto& asked = rows.at(operation.name);
        expected.insert(expected.end(), asked.begin(), asked.end());
        expected.emplace_back("EndConnection(7)");
        m_library.Forget();
        operation.call(m_mgr, "R", true);
        EXPECT_EQ(m_library.calls, expected) << operation.name;
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// The record

TEST_F(NetworkCalls, TheRecordFromTheServer)
{
    m_library.mode = 4;
    m_library.numbers = {2, 9, 150'000, 1, 8, 11, 0, 9, 9};
    const PUBLISHERINFO info = Info();
    EXPECT_EQ(info.uiPublishMode, 1U);
    EXPECT_EQ(info.uiStacker1DiscType, 8U);
    EXPECT_EQ(info.uiStacker2DiscType, 11U);
    EXPECT_EQ(info.uiStacker3DiscType, 0U);
    EXPECT_EQ(info.uiStacker4DiscType, 32U);
    EXPECT_EQ(info.uiUseDrive, 2U);
    EXPECT_EQ(info.uiRetryCount, 150'000U);
    EXPECT_EQ(info.uiAddErrorMark, 1U);
    EXPECT_TRUE(info.bAddErrorMark);
    EXPECT_EQ(info.strPublisherName, "Lab");
    EXPECT_EQ(info.strPrinterName, "Printer");
    EXPECT_EQ(info.strHostName, "\\\\server");
    EXPECT_EQ(info.uiPublisherType, 1U);
    EXPECT_EQ(info.uiNetPublisherType, 2U);
    EXPECT_EQ(info.strGUID, "");
}

TEST_F(NetworkCalls, TheFourthStackerFollowsTheThird)
{
    const std::pair<DWORD, std::pair<UINT, UINT>> rows[] = {
        {0, {0, 32}}, {1, {1, 32}}, {11, {11, 32}}, {999, {32, 0}}, {12, {0xFFFFFFFF, 32}},
    };
    for (const auto& [media, stackers] : rows) {
        m_library.numbers[NCL_DIT_STACKER3_DISC_TYPE] = media;
        const PUBLISHERINFO info = Info();
        EXPECT_EQ(info.uiStacker3DiscType, stackers.first) << media;
        EXPECT_EQ(info.uiStacker4DiscType, stackers.second) << media;
    }
}

TEST_F(NetworkCalls, AServerWithoutASettingForTheThirdStacker)
{
    m_library.failAt = 4;
    m_library.failCode = NCL_ERR_SERVER_OTHER;
    for (DWORD mode = 0; mode <= 5; ++mode) {
        m_library.Forget();
        m_library.mode = mode;
        m_library.numbers[NCL_DIT_STACKER3_DISC_TYPE] = 5; // not returned
        const PUBLISHERINFO info = Info();
        const bool isBatch = mode == NCL_MODE_BATCH;
        EXPECT_EQ(info.uiStacker3DiscType, isBatch ? 0U : 32U) << mode;
        EXPECT_EQ(info.uiStacker4DiscType, isBatch ? 32U : 0U) << mode;
        EXPECT_EQ(m_library.calls.size(), 9U);
    }
}

TEST_F(NetworkCalls, TheMarkAsANumberAndAsAFlag)
{
    const std::tuple<DWORD, UINT, bool> rows[] = {{0, 0, false}, {1, 1, true}, {2, 0xFFFFFFFF, true}};
    for (const auto& [value, number, flag] : rows) {
        m_library.numbers[NCL_DIT_PRINT_ERR_DISC_MARK] = value;
        const PUBLISHERINFO info = Info();
        EXPECT_EQ(info.uiAddErrorMark, number);
        EXPECT_EQ(info.bAddErrorMark, flag);
    }
}

TEST_F(NetworkCalls, AConnectionThatIsKnownToFailIsNotAttempted)
{
    PUBLISHERINFO info;
    EXPECT_TRUE(m_mgr.GetPublisherInfo("R", &info, TRUE));
    EXPECT_TRUE(m_library.calls.empty());
    EXPECT_EQ(info.uiPublishMode, 0xFFFFFFFFU);
    EXPECT_FALSE(m_mgr.GetPublisherInfo("absent", &info, FALSE));
    EXPECT_FALSE(m_mgr.GetPublisherInfo("", &info, FALSE));
    EXPECT_TRUE(m_library.calls.empty());
}

TEST_F(NetworkCalls, CopiesByTheMode)
{
    const UINT rows[] = {50, 50, 1000, 1000, 1000, 1000}; // indexed by the server's number; 5 is undefined
    for (DWORD mode = 0; mode < std::size(rows); ++mode) {
        m_library.mode = mode;
        EXPECT_EQ(m_mgr.GetCopiesMax("R", false), rows[mode]) << mode;
        EXPECT_EQ(m_mgr.GetCopiesMax("R", true), rows[mode]) << mode;
    }
}

TEST_F(NetworkCalls, WriteSpeedsOfEachDrive)
{
    EXPECT_EQ(m_mgr.GetSupportWriteSpeedString("R", 1), "ws1");
    EXPECT_EQ(m_mgr.GetSupportWriteSpeedString("R", 2), "ws2");
    EXPECT_THAT(m_library.calls,
                ElementsAre("StartConnection(1, server)", "GetDeviceInfo(7, 10, 1024)", "EndConnection(7)",
                            "StartConnection(1, server)", "GetDeviceInfo(7, 11, 1024)", "EndConnection(7)"));
    m_library.Forget();
    for (const UINT drive : {0U, 3U, 10U, 11U, 0xFFFFFFFFU}) {
        EXPECT_EQ(m_mgr.GetSupportWriteSpeedString("R", drive), "");
    }
    EXPECT_TRUE(m_library.calls.empty());
}

TEST_F(NetworkCalls, TextsLongerThanTheirBuffersAreEmpty)
{
    m_library.texts[10] = std::string(1023, 's');
    EXPECT_EQ(m_mgr.GetSupportWriteSpeedString("R", 1), std::string(1023, 's'));
    m_library.texts[10] += 's';
    EXPECT_EQ(m_mgr.GetSupportWriteSpeedString("R", 1), "");
    DWORD code = 77;
    m_library.texts[8] = std::string(4095, 's');
    EXPECT_EQ(m_mgr.GetDeviceInfo("R", 8, &code), std::string(4095, 's'));
    EXPECT_EQ(code, 0U);
    m_library.texts[8] += 's';
    EXPECT_EQ(m_mgr.GetDeviceInfo("R", 8, &code), "");
    EXPECT_EQ(code, 1U);
}

TEST_F(NetworkCalls, TextsOfEveryType)
{
    for (DWORD type = 0; type < m_library.texts.size(); ++type) {
        DWORD code = 77;
        EXPECT_EQ(m_mgr.GetDeviceInfo("R", type, &code), m_library.texts[type]);
        EXPECT_EQ(code, 0U);
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Jobs

TEST_F(NetworkCalls, NumbersOfJobs)
{
    long code = 77;
    EXPECT_EQ(m_mgr.GetJobCount("R", &code), 4);
    EXPECT_EQ(m_mgr.GetCommunicateJobCount("R"), 5);
    EXPECT_EQ(code, 77);
}

TEST_F(NetworkCalls, ListsOfJobs)
{
    JobStatusArray jobs;
    EXPECT_TRUE(m_mgr.GetServiceJobStatus("R", &jobs, nullptr));
    ASSERT_EQ(jobs.GetSize(), 2);
    EXPECT_STREQ(jobs[0].acJobID, "J");
    EXPECT_STREQ(jobs[1].acJobID, "R.2A");
    EXPECT_TRUE(m_mgr.GetServiceJobStatusUnfinish("R", &jobs, nullptr));
    ASSERT_EQ(jobs.GetSize(), 1);
    EXPECT_STREQ(jobs[0].acJobID, "J");
    EXPECT_TRUE(m_mgr.GetServiceJobStatusFinish("R", &jobs, nullptr));
    ASSERT_EQ(jobs.GetSize(), 1);
    EXPECT_STREQ(jobs[0].acJobID, "R.2A");
}

TEST_F(NetworkCalls, EmptyListsOfJobsEmptyTheArray)
{
    m_library.unfinished.clear();
    m_library.finished.clear();
    for (const auto operation :
         {&CNetworkPublisherMgr::GetServiceJobStatus, &CNetworkPublisherMgr::GetServiceJobStatusUnfinish,
          &CNetworkPublisherMgr::GetServiceJobStatusFinish}) {
        JobStatusArray jobs;
        jobs.Add(ST_PC_JOB_STATUS{});
        EXPECT_TRUE((m_mgr.*operation)("R", &jobs, nullptr));
        EXPECT_EQ(jobs.GetSize(), 0);
    }
}

TEST_F(NetworkCalls, AThousandJobsAreListed)
{
    m_library.unfinished.assign(1005, m_library.unfinished.front());
    m_library.finished.assign(1000, m_library.finished.front());
    m_library.unfinished[999].wszJobIdentificationID[0] = 'K';
    JobStatusArray jobs;
    EXPECT_TRUE(m_mgr.GetServiceJobStatus("R", &jobs, nullptr));
    ASSERT_EQ(jobs.GetSize(), 2000);
    EXPECT_STREQ(jobs[999].acJobID, "K");
    EXPECT_STREQ(jobs[1000].acJobID, "R.2A");
}

TEST_F(NetworkCalls, ACancelPrintsTheJob)
{
    m_library.unfinished.resize(3, m_library.unfinished.front());
    m_library.unfinished[0].wszJobIdentificationID[0] = 'j';
    m_library.unfinished[1].nServerJobID = 1234;
    StdoutCapture out;
    long code = 77;
    EXPECT_TRUE(m_mgr.SetServiceJobCancel("R", "J", &code));
    EXPECT_EQ(out.Stop(), "CNetworkPublisherMgr::SetServiceJobCancel(,\"J\",), J, 1234\n");
    EXPECT_EQ(code, 0);
    EXPECT_THAT(m_library.calls, ElementsAre("StartConnection(1, server)", "GetJobStatusEx(7, 3, 1000)",
                                             "CancelJob(7, 1234)", "EndConnection(7)"));
}

TEST_F(NetworkCalls, ACancelOfAnUnknownJob)
{
    StdoutCapture out;
    for (const char* job : {"j", "JJ", "K", "R.5"}) {
        m_library.Forget();
        EXPECT_FALSE(m_mgr.SetServiceJobCancel("R", job, nullptr)) << job;
        EXPECT_THAT(m_library.calls, ElementsAre("StartConnection(1, server)", "GetJobStatusEx(7, 3, 1000)",
                                                 "EndConnection(7)"));
    }
    EXPECT_EQ(out.Stop(), "");
}

TEST_F(NetworkCalls, ACancelOnAConnectionOfTheCaller)
{
    long code = 77;
    EXPECT_TRUE(m_mgr.CancelJob("R", "J", 9, 42, &code));
    EXPECT_THAT(m_library.calls, ElementsAre("CancelJob(9, 42)"));
    EXPECT_FALSE(m_mgr.CancelJob(nullptr, "J", 9, 42, &code));
    EXPECT_EQ(m_library.calls.size(), 1U);
    m_library.failAt = 1;
    m_library.failCode = NCL_ERR_NETWORK_TIMEOUT;
    EXPECT_FALSE(m_mgr.CancelJob("R", "J", 9, 42, &code));
    EXPECT_EQ(code, 8) << "the code of the library";
    m_library.failAt = 2;
    EXPECT_FALSE(m_mgr.CancelJob("R", nullptr, 9, 42, nullptr));
}

// ---------------------------------------------------------------------------------------------------------------------
// Status

TEST_F(NetworkCalls, FatalErrors)
{
    for (DWORD error = 0; error <= 20; ++error) {
        m_library.fatalError = error;
        long code = 77;
        EXPECT_EQ(m_mgr.IsFatalErrorInPublisher("R", &code), error != 0);
        EXPECT_EQ(code, error == 0 ? 77 : static_cast<long>(error));
    }
}

TEST_F(NetworkCalls, InkOfEachCartridge)
{
    m_library.ink = {{11, FALSE}, {22, TRUE}, {101, TRUE}, {33, FALSE}, {104, FALSE}, {103, FALSE}};
    ST_PC_INK_STATUS ink{};
    EXPECT_TRUE(m_mgr.GetServiceInkStatus("R", &ink, nullptr));
    EXPECT_EQ(ink.ulBlack, 11U);
    EXPECT_EQ(ink.ulCyan, 0x80000016U);
    EXPECT_EQ(ink.ulLightCyan, 0x100U);
    EXPECT_EQ(ink.ulMagenta, 33U);
    EXPECT_EQ(ink.ulLightMagenta, 0x8000000U);
    EXPECT_EQ(ink.ulYellow, 0x400U);
}

TEST_F(NetworkCalls, EachDrive)
{
    m_library.drives = {{NCL_DRV_STATUS_WRITING, 40}, {NCL_DRV_STATUS_NOTUSE, 0xFFFFFFFF}};
    ST_PC_DRV_STATUS first{};
    ST_PC_DRV_STATUS second{};
    first.acPlugInAppID[0] = 'p';
    EXPECT_TRUE(m_mgr.GetServiceDriveStatus("R", &first, &second, nullptr));
    EXPECT_EQ(first.ulDrvStatus, 4U);
    EXPECT_EQ(first.ulDrvProgressStatus, 40U);
    EXPECT_EQ(second.ulDrvStatus, 0x20U);
    EXPECT_EQ(second.ulDrvProgressStatus, 0xFFFFFFFFU);
}

TEST_F(NetworkCalls, LoaderAndPrinter)
{
    m_library.loader.bDiscCoverOpen = TRUE;
    m_library.loader.bStopAtDiscCoverClose = TRUE;
    m_library.printer = {NCL_PRN_STATUS_DRYING, TRUE};
    ULONG loader = 0;
    ULONG printer = 0;
    EXPECT_TRUE(m_mgr.GetServiceAldStatus("R", &loader, nullptr));
    EXPECT_TRUE(m_mgr.GetServicePrinterStatus("R", &printer, nullptr));
    EXPECT_EQ(loader, 0x320010U);
    EXPECT_EQ(printer, 0x20U);
}

TEST_F(NetworkCalls, TheFourthStackerHasTheStatusOfTheThird)
{
    m_library.stackers = {{50, TRUE}, {102, FALSE}, {7, TRUE}, {99, FALSE}};
    ULONG values[4] = {};
    EXPECT_TRUE(m_mgr.GetServiceStackerStatus("R", &values[0], &values[1], &values[2], &values[3], nullptr));
    EXPECT_EQ(values[0], 0x80000032U);
    EXPECT_EQ(values[1], 102U);
    EXPECT_EQ(values[2], 0x80000007U);
    EXPECT_EQ(values[3], 0x80000007U);
}

TEST_F(NetworkCalls, EstimatedPrints)
{
    const std::pair<DWORD, int> rows[] = {{0, 0},           {1, 1},       {120, 120},
                                          {0xFFFE, 0xFFFE}, {0xFFFF, -1}, {0x10000, 0x10000}};
    for (const auto& [number, result] : rows) {
        m_library.printable = number;
        long code = 77;
        EXPECT_EQ(m_mgr.GetServiceEstimateCirculation("R", &code), result) << number;
        EXPECT_EQ(code, 0) << number;
    }
}

TEST_F(NetworkCalls, ModesOfEveryNumber)
{
    const ULONG rows[] = {3, 4, 0, 2, 1, 0xFFFFFFFF};
    for (DWORD number = 0; number < std::size(rows); ++number) {
        m_library.mode = number;
        ULONG mode = 4711;
        long code = 77;
        EXPECT_TRUE(m_mgr.GetServicePublishMode("R", &mode, &code));
        EXPECT_EQ(mode, rows[number]) << number;
        EXPECT_EQ(code, 0);
    }
}

TEST_F(NetworkCalls, OutputsAreOptional)
{
    EXPECT_TRUE(m_mgr.GetServiceInkStatus("R", nullptr, nullptr));
    EXPECT_TRUE(m_mgr.GetServiceAldStatus("R", nullptr, nullptr));
    EXPECT_TRUE(m_mgr.GetServiceDriveStatus("R", nullptr, nullptr, nullptr));
    EXPECT_TRUE(m_mgr.GetServicePrinterStatus("R", nullptr, nullptr));
    EXPECT_TRUE(m_mgr.GetServiceStackerStatus("R", nullptr, nullptr, nullptr, nullptr, nullptr));
    m_library.drives.Drv2 = {NCL_DRV_STATUS_ERROR, 3};
    ST_PC_DRV_STATUS second{};
    EXPECT_TRUE(m_mgr.GetServiceDriveStatus("R", nullptr, &second, nullptr));
    EXPECT_EQ(second.ulDrvStatus, 0x10U);
    m_library.stackers.Stacker3.dwDiscQuantity = 8;
    ULONG fourth = 0;
    EXPECT_TRUE(m_mgr.GetServiceStackerStatus("R", nullptr, nullptr, nullptr, &fourth, nullptr));
    EXPECT_EQ(fourth, 8U);
}

// ---------------------------------------------------------------------------------------------------------------------
// Versions and figures

TEST_F(NetworkCalls, Versions)
{
    PUBLISHERVERSIONINFO info;
    long code = 77;
    ASSERT_TRUE(m_mgr.GetPublisherVersionInfo("R", &info, &code));
    EXPECT_EQ(info.strPublisherRegistID, "R");
    EXPECT_EQ(info.strSerialNo, "serial");
    EXPECT_EQ(info.strAutoLoaderVersion, "ald");
    EXPECT_EQ(info.strPrinterModelName, "prname");
    EXPECT_EQ(info.strPrinterVersion, "prn");
    EXPECT_EQ(info.strDrive1ModelName, "drname 1");
    EXPECT_EQ(info.strDrive1Version, "drv1");
    EXPECT_EQ(info.strDrive2ModelName, "drname 2");
    EXPECT_EQ(info.strDrive2Version, "drv2");
    EXPECT_EQ(info.strSSSVersion, "server");
    EXPECT_EQ(info.strUDNAVersion, "web");
    EXPECT_EQ(code, 77);
}

TEST_F(NetworkCalls, FiguresOfDevicesWithBluRay)
{
    m_library.figuresEx = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};
    for (const DWORD kind : {NCL_NPTYPE_300NII, NCL_NPTYPE_300NII_BDXL}) {
        m_library.kind = kind;
        m_library.Forget();
        PUBLISHERMAINTENANCEINFO info;
        long code = 77;
        ASSERT_TRUE(m_mgr.GetPublisherMaintenanceInfo("R", &info, &code));
        EXPECT_EQ(code, 77);
        EXPECT_EQ(info.uiPrintCount, 1U);
        const PUBMAINTINFODRIVE& first = info.midrvDrive1;
        EXPECT_EQ(first.uiTrayCount, 2U);
        EXPECT_EQ(first.uiTrayLife, 3U);
        EXPECT_EQ(first.uiWriteCDCount, 4U);
        EXPECT_EQ(first.uiWriteCDLife, 5U);
        EXPECT_EQ(first.uiWriteDVDCount, 6U);
        EXPECT_EQ(first.uiWriteDVDLife, 7U);
        EXPECT_EQ(first.uiWriteBDCount, 8U);
        EXPECT_EQ(first.uiWriteBDLife, 9U);
        const PUBMAINTINFODRIVE& second = info.midrvDrive2;
        EXPECT_EQ(second.uiTrayCount, 10U);
        EXPECT_EQ(second.uiTrayLife, 11U);
        EXPECT_EQ(second.uiWriteCDCount, 12U);
        EXPECT_EQ(second.uiWriteCDLife, 13U);
        EXPECT_EQ(second.uiWriteDVDCount, 14U);
        EXPECT_EQ(second.uiWriteDVDLife, 15U);
        EXPECT_EQ(second.uiWriteBDCount, 16U);
        EXPECT_EQ(second.uiWriteBDLife, 17U);
        EXPECT_EQ(info.uiUsedPlugin, 0U);
        EXPECT_EQ(info.strSerialNo, "serial");
        for (const UINT unknown : {info.uiCompleteDiscNum, info.uiMainteBoxCount, info.uiMainteBoxLife,
                                   first.uiDriveWriteTimeTotal, first.uiDriveWriteTimeTotalLife,
                                   first.uiDriveReadTimeTotal, first.uiDriveReadTimeTotalLife,
                                   second.uiDriveWriteTimeTotal, second.uiDriveReadTimeTotalLife}) {
            EXPECT_EQ(unknown, 0xFFFFFFFFU);
        }
        EXPECT_EQ(info.ulDRV1Life, 0xFFFFFFFFU);
        EXPECT_EQ(info.ulDRV2Life, 0xFFFFFFFFU);
    }
}

TEST_F(NetworkCalls, FiguresOfAnyDeviceMayFail)
{
    for (const DWORD kind : {NCL_NPTYPE_300N, NCL_NPTYPE_300NII, NCL_NPTYPE_300NII_BDXL}) {
        for (const size_t request : {1U, 2U}) { // the figures, and the serial number
            m_library.Reset();
            m_library.kind = kind;
            m_library.failAt = request;
            PUBLISHERMAINTENANCEINFO info;
            EXPECT_FALSE(m_mgr.GetPublisherMaintenanceInfo("R", &info, nullptr)) << kind << ' ' << request;
        }
    }
}

TEST_F(NetworkCalls, FiguresOfOtherDevices)
{
    m_library.figures = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, -1};
    for (const DWORD kind : {NCL_NPTYPE_UNKNOWN, NCL_NPTYPE_300N, DWORD{4}}) {
        m_library.kind = kind;
        m_library.Forget();
        PUBLISHERMAINTENANCEINFO info;
        ASSERT_TRUE(m_mgr.GetPublisherMaintenanceInfo("R", &info, nullptr));
        EXPECT_THAT(m_library.calls,
                    ElementsAre("StartConnection(1, server)", "GetNPType(7)", "GetMaintenanceInfo(7)",
                                "GetDeviceInfo(7, 0, 1024)", "EndConnection(7)"));
        EXPECT_EQ(info.uiPrintCount, 1U);
        EXPECT_EQ(info.midrvDrive1.uiTrayCount, 2U);
        EXPECT_EQ(info.midrvDrive1.uiTrayLife, 3U);
        EXPECT_EQ(info.midrvDrive1.uiWriteCDCount, 4U);
        EXPECT_EQ(info.midrvDrive1.uiWriteCDLife, 5U);
        EXPECT_EQ(info.midrvDrive1.uiWriteDVDCount, 6U);
        EXPECT_EQ(info.midrvDrive1.uiWriteDVDLife, 7U);
        EXPECT_EQ(info.midrvDrive2.uiTrayCount, 8U);
        EXPECT_EQ(info.midrvDrive2.uiTrayLife, 9U);
        EXPECT_EQ(info.midrvDrive2.uiWriteCDCount, 10U);
        EXPECT_EQ(info.midrvDrive2.uiWriteCDLife, 11U);
        EXPECT_EQ(info.midrvDrive2.uiWriteDVDCount, 12U);
        EXPECT_EQ(info.midrvDrive2.uiWriteDVDLife, 0xFFFFFFFFU);
        for (const PUBMAINTINFODRIVE& drive : {info.midrvDrive1, info.midrvDrive2}) {
            EXPECT_EQ(drive.uiWriteBDCount, 0xFFFFFFFFU);
            EXPECT_EQ(drive.uiWriteBDLife, 0xFFFFFFFFU);
        }
        EXPECT_EQ(info.uiUsedPlugin, 0U);
        EXPECT_EQ(info.strSerialNo, "serial");
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// The virtual operations used by the queries

namespace {

/// Overrides the connections.
class OtherConnections : public CNetworkPublisherMgr
{
public:
    using CNetworkPublisherMgr::CNetworkPublisherMgr;
    bool StartConnection(LPCTSTR, DWORD* pdwHandle, DWORD* pdwResultCode) override
    {
        ++started;
        *pdwHandle = 33;
        if (pdwResultCode != nullptr) {
            *pdwResultCode = 0;
        }
        return true;
    }
    bool EndConnection(DWORD dwHandle) override
    {
        ended += dwHandle == 33 ? 1 : 100;
        return true;
    }
    int started = 0;
    int ended = 0;
};

/// Overrides the host name.
class OtherHosts : public CNetworkPublisherMgr
{
public:
    using CNetworkPublisherMgr::CNetworkPublisherMgr;
    CString GetHostName(LPCTSTR) override
    {
        return "elsewhere";
    }
};

} // namespace

TEST_F(NetworkCalls, QueriesUseTheConnectionsOfTheirClass)
{
    for (const NetworkOperation& operation : NetworkOperations()) {
        OtherConnections mgr(true, PUBLISHER_SETTING_DIR);
        m_library.Forget();
        operation.call(mgr, "R", true);
        EXPECT_EQ(mgr.started, 1) << operation.name;
        EXPECT_EQ(mgr.ended, 1) << operation.name;
        for (const std::string& call : m_library.calls) {
            EXPECT_NE(call.find("(33"), std::string::npos) << call;
        }
    }
}

TEST_F(NetworkCalls, ConnectionsUseTheHostOfTheirClass)
{
    OtherHosts mgr(true, PUBLISHER_SETTING_DIR);
    EXPECT_TRUE(mgr.IsPossibleCommunicate("absent", nullptr));
    EXPECT_THAT(m_library.calls, ElementsAre("StartConnection(1, elsewhere)", "EndConnection(7)"));
}
