// The values that publisher management returns for network publishers, from servers that were written
// independently of it.
#include "NetworkOperations.h"
#include "NetworkRoom.h"
#include "PublisherFiles.h"

#include <map>
#include <set>
#include <thread>
#include <tuple>

namespace {

/// One publisher "R" with these keys, by default of a model that supports Blu-ray.
std::string Scenario(const std::string& keys, const std::string& model = "RT-300NII")
{
    return "[network A]\nid = R\nmodel = " + model + "\n" + keys + "\n";
}

const char* const MODELS[] = {"RT-300N", "RT-300NII", "RT-300NII BD-XL"};

} // namespace

// ---------------------------------------------------------------------------------------------------------------------
// Settings

TEST(NetworkQueries, TheRecordOfEachModelInEachMode)
{
    struct Row
    {
        const char* serverMode;
        UINT mode;
        UINT stackers[4];
    };
    const Row rows[] = {{"2", 0, {1, 0, 32, 0}}, {"3", 2, {1, 1, 32, 0}}, {"4", 1, {1, 1, 0, 32}}};
    for (const char* const model : MODELS) {
        for (const char* const third : {"yes", "no"}) {
            for (const Row& row : rows) {
                SCOPED_TRACE(std::string(model) + " " + row.serverMode + " " + third);
                std::filesystem::remove(PublisherFile("R"));
                NetworkRoom open(Scenario("name = Lab 1\nserver-mode = " + std::string(row.serverMode) +
                                              "\nthird-stacker = " + third +
                                              "\ndrives-used = 2\nretries = 7\nerror-mark = no",
                                          model));
                PUBLISHERINFO info;
                ASSERT_TRUE(open.mgr.GetPublisherInfo("R", &info, FALSE));
                EXPECT_EQ(info.uiPublishMode, row.mode);
                EXPECT_EQ(info.uiStacker1DiscType, row.stackers[0]);
                EXPECT_EQ(info.uiStacker2DiscType, row.stackers[1]);
                EXPECT_EQ(info.uiStacker3DiscType, row.stackers[2]);
                EXPECT_EQ(info.uiStacker4DiscType, row.stackers[3]);
                EXPECT_EQ(info.uiUseDrive, 2U);
                EXPECT_EQ(info.uiRetryCount, 7U);
                EXPECT_EQ(info.uiAddErrorMark, 0U);
                EXPECT_FALSE(info.bAddErrorMark);
                EXPECT_EQ(info.strPublisherName, "Lab 1");
                EXPECT_EQ(info.strHostName, "127.0.0.11");
                EXPECT_EQ(info.uiPublisherType, 1U);
                EXPECT_EQ(info.strGUID, "");
                EXPECT_TRUE(open.AllClosed());
            }
        }
    }
}

TEST(NetworkQueries, MediaOfEachKind)
{
    const std::pair<const char*, UINT> rows[] = {
        {"CD-R", 1},    {"DVD-R", 6},    {"DVD-R DL", 7}, {"BD-R", 8},
        {"BD-R DL", 9}, {"BD-R TL", 10}, {"BD-R QL", 11}, {"output", 0},
    };
    for (const auto& [media, number] : rows) {
        std::filesystem::remove(PublisherFile("R"));
        NetworkRoom open(Scenario("stacker1.media = " + std::string(media) + "\nstacker2.media = " + media +
                                      "\nstacker3.media = " + media,
                                  "RT-300NII BD-XL"));
        PUBLISHERINFO info;
        ASSERT_TRUE(open.mgr.GetPublisherInfo("R", &info, FALSE));
        EXPECT_EQ(info.uiStacker1DiscType, number) << media;
        EXPECT_EQ(info.uiStacker2DiscType, number) << media;
        EXPECT_EQ(info.uiStacker3DiscType, number) << media;
        EXPECT_EQ(info.uiStacker4DiscType, 32U) << media;
    }
}

TEST(NetworkQueries, AConnectionKnownToFailIsNotTried)
{
    NetworkRoom open(Scenario("known-kind = 3"));
    PUBLISHERINFO info;
    ASSERT_TRUE(open.mgr.GetPublisherInfo("R", &info, TRUE));
    EXPECT_EQ(info.uiPublishMode, 0xFFFFFFFFU);
    EXPECT_EQ(info.uiNetPublisherType, 3U);
    EXPECT_TRUE(open.room.httpRequests().empty());
}

TEST(NetworkQueries, TheKindIsStoredAgainAfterTheFileIsWritten)
{
    NetworkRoom open(Scenario(""));
    const std::string oldFile = "[Common]\nNPType=1\nPublisherURL=127.0.0.11\n";
    WritePublisher("R", oldFile);
    PUBLISHERINFO info;
    ASSERT_TRUE(open.mgr.GetPublisherInfo("R", &info, TRUE));
    EXPECT_EQ(info.uiNetPublisherType, 1U);
    info.strPublisherName = "Lab";
    ASSERT_TRUE(open.mgr.UpdatePublisherInfo(info));
    EXPECT_EQ(ReadPublisher("R"), "[Common]\nPublisherName=Lab\nPrinterName=NotSet\n"
                                  "PublisherConnectionType=1\nPublisherURL=127.0.0.11\n");
    ASSERT_TRUE(open.mgr.GetPublisherInfo("R", &info, FALSE));
    EXPECT_EQ(info.uiNetPublisherType, 0U) << "the file is read before the server is queried";
    ASSERT_TRUE(open.mgr.GetPublisherInfo("R", &info, TRUE));
    EXPECT_EQ(info.uiNetPublisherType, 2U);
    EXPECT_EQ(info.strPublisherName, "Lab");
}

TEST(NetworkQueries, HostsAfterBackslashes)
{
    NetworkRoom open(Scenario(""));
    for (const char* const address : {"127.0.0.11", "\\\\127.0.0.11", "\\127.0.0.11", "a\\b\\127.0.0.11"}) {
        WritePublisher("R", std::string("[Common]\nPublisherURL=") + address + "\n");
        EXPECT_EQ(open.mgr.GetHostName("R"), "127.0.0.11");
        EXPECT_TRUE(open.mgr.IsPossibleCommunicate("R", nullptr)) << address;
        EXPECT_EQ(open.mgr.ConnectionTest(address), 0U) << address;
    }
    EXPECT_TRUE(open.AllClosed());
}

TEST(NetworkQueries, CopiesByTheMode)
{
    for (const char* const mode : {"2", "3", "4"}) {
        NetworkRoom open(Scenario(std::string("server-mode = ") + mode));
        EXPECT_EQ(open.mgr.GetCopiesMax("R", false), 1000U) << mode;
        EXPECT_EQ(open.mgr.GetCopiesMax("R", true), 1000U) << mode;
    }
}

TEST(NetworkQueries, WriteSpeedsByTheModel)
{
    const std::string speeds =
        "CD-R:40,32,24,16,10,4;DVD-R:12,8,6,4;DVD-R DL:8,6,4;DVD+R:12,8,6,4;DVD+R DL:8,6,4";
    const std::pair<const char*, std::string> rows[] = {
        {"RT-300N", speeds},
        {"RT-300NII", speeds + ";BD-R:8,6,4,2;BD-R DL:6,4,2"},
        {"RT-300NII BD-XL", speeds + ";BD-R:8,6,4,2;BD-R DL:6,4,2;BD-R TL:4,2;BD-R QL:4,2"},
    };
    for (const auto& [model, text] : rows) {
        NetworkRoom open(Scenario("", model));
        EXPECT_EQ(open.mgr.GetSupportWriteSpeedString("R", 1), text);
        EXPECT_EQ(open.mgr.GetSupportWriteSpeedString("R", 2), text);
        EXPECT_EQ(open.mgr.GetSupportWriteSpeedString("R", 3), "");
    }
}

TEST(NetworkQueries, ModesInTheNumberingOfTheWindows)
{
    const std::pair<const char*, ULONG> rows[] = {{"2", 0}, {"3", 2}, {"4", 1}};
    for (const auto& [number, mode] : rows) {
        NetworkRoom open(Scenario(std::string("server-mode = ") + number));
        ULONG found = 77;
        long code = 77;
        EXPECT_TRUE(open.mgr.GetServicePublishMode("R", &found, &code));
        EXPECT_EQ(found, mode);
        EXPECT_EQ(code, 0);
    }
}

// ---------------------------------------------------------------------------------------------------------------------
// Versions and figures

TEST(NetworkQueries, VersionsOfEachModel)
{
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"RT-300N", "ARVEN RT-300NPRN", "DVR-300N", "1.20"},
        {"RT-300NII", "ARVEN RT-300NIIPRN", "BDR-300NII", "2.30"},
        {"RT-300NII BD-XL", "ARVEN RT-300NIIPRN", "BXR-300NII", "3.30"},
    };
    for (const auto& [model, printer, drive, server] : rows) {
        NetworkRoom open(Scenario("serial = S-1\nweb-version = 4.5 beta", model));
        PUBLISHERVERSIONINFO info;
        long code = 77;
        ASSERT_TRUE(open.mgr.GetPublisherVersionInfo("R", &info, &code));
        EXPECT_EQ(code, 77);
        EXPECT_EQ(info.strPublisherRegistID, "R");
        EXPECT_EQ(info.strSerialNo, "S-1");
        EXPECT_EQ(info.strAutoLoaderVersion, "02.14");
        EXPECT_EQ(info.strPrinterModelName, printer);
        EXPECT_EQ(info.strPrinterVersion, "01.37");
        EXPECT_EQ(info.strDrive1ModelName, drive);
        EXPECT_EQ(info.strDrive1Version, "1.05");
        EXPECT_EQ(info.strDrive2ModelName, drive);
        EXPECT_EQ(info.strDrive2Version, "1.05");
        EXPECT_EQ(info.strSSSVersion, server);
        EXPECT_EQ(info.strUDNAVersion, "4.5 beta");
    }
}

TEST(NetworkQueries, FiguresOfEachModel)
{
    for (const char* const model : MODELS) {
        const bool isOld = model == MODELS[0];
        std::filesystem::remove(PublisherFile("R"));
        // The oldest model has the short record, which only its kind identifies.
        NetworkRoom open(Scenario(std::string("serial = S-1\nprint-count = 4200\ndisc-time = 20s") +
                                      (isOld ? "\nknown-kind = 1" : ""),
                                  model));
        PUBLISHERMAINTENANCEINFO info;
        long code = 77;
        ASSERT_TRUE(open.mgr.GetPublisherMaintenanceInfo("R", &info, &code)) << model;
        EXPECT_EQ(code, 77);
        EXPECT_EQ(info.uiPrintCount, 4200U);
        EXPECT_EQ(info.strSerialNo, "S-1");
        EXPECT_EQ(info.uiUsedPlugin, 0U);
        EXPECT_EQ(info.uiCompleteDiscNum, 0xFFFFFFFFU);
        for (const PUBMAINTINFODRIVE& drive : {info.midrvDrive1, info.midrvDrive2}) {
            EXPECT_EQ(drive.uiTrayCount, 2100U);
            EXPECT_EQ(drive.uiTrayLife, 60'000U);
            EXPECT_EQ(drive.uiWriteCDCount, 42'000U);
            EXPECT_EQ(drive.uiWriteCDLife, 4'000'000U);
            EXPECT_EQ(drive.uiWriteDVDCount, 0U);
            EXPECT_EQ(drive.uiWriteDVDLife, 4'000'000U);
            EXPECT_EQ(drive.uiWriteBDCount, isOld ? 0xFFFFFFFFU : 0U);
            EXPECT_EQ(drive.uiWriteBDLife, isOld ? 0xFFFFFFFFU : 4'000'000U);
            EXPECT_EQ(drive.uiDriveWriteTimeTotal, 0xFFFFFFFFU);
        }
    }
}

TEST(NetworkQueries, TheOldestModelWithAnotherKindHasNoFigures)
{
    NetworkRoom open(Scenario("", "RT-300N"));
    PUBLISHERMAINTENANCEINFO info;
    EXPECT_FALSE(open.mgr.GetPublisherMaintenanceInfo("R", &info, nullptr))
        << "the reply is the short record";
    EXPECT_TRUE(open.AllClosed());
}

TEST(NetworkQueries, TextsOfEveryType)
{
    NetworkRoom open(Scenario("serial = S-1\ndisc-space = 1"));
    const std::map<DWORD, std::string> rows = {
        {0, "S-1"},         {1, "02.14"},       {2, "01.37"},   {3, "1.05"},    {4, "1.05"},
        {5, "2.30"},        {6, "2.10"},        {8, "1048576"}, {9, "1048576"}, {12, "ARVEN RT-300NIIPRN"},
        {13, "BDR-300NII"}, {14, "BDR-300NII"},
    };
    for (const auto& [type, text] : rows) {
        DWORD code = 77;
        EXPECT_EQ(open.mgr.GetDeviceInfo("R", type, &code), text) << type;
        EXPECT_EQ(code, 0U);
    }
    for (const DWORD type : {7U, 15U, 0xFFFFFFFFU}) {
        DWORD code = 77;
        EXPECT_EQ(open.mgr.GetDeviceInfo("R", type, &code), "") << type;
        EXPECT_EQ(code, 1U) << type;
    }
    EXPECT_TRUE(open.AllClosed());
}

// ---------------------------------------------------------------------------------------------------------------------
// Status

TEST(NetworkQueries, StatusWithoutAJob)
{
    NetworkRoom open(Scenario("ink.cyan = 11\nink.magenta = 22\nink.yellow = 9\nink.light-cyan = 44\n"
                              "ink.light-magenta = 0\nink.black = 66\nstacker1 = 60\nstacker2 = 3\n"
                              "stacker3 = 7\nstacker4 = 4"));
    long code = 77;
    ST_PC_INK_STATUS ink{};
    ASSERT_TRUE(open.mgr.GetServiceInkStatus("R", &ink, &code));
    EXPECT_EQ(code, 0);
    EXPECT_EQ(ink.ulCyan, 11U);
    EXPECT_EQ(ink.ulMagenta, 22U);
    EXPECT_EQ(ink.ulYellow, 0x80000009U);
    EXPECT_EQ(ink.ulLightCyan, 44U);
    EXPECT_EQ(ink.ulLightMagenta, 0x80000000U);
    EXPECT_EQ(ink.ulBlack, 66U);

    ULONG stackers[4] = {};
    code = 77;
    ASSERT_TRUE(
        open.mgr.GetServiceStackerStatus("R", &stackers[0], &stackers[1], &stackers[2], &stackers[3], &code));
    EXPECT_EQ(code, 0);
    EXPECT_EQ(stackers[0], 0x8000003CU);
    EXPECT_EQ(stackers[1], 3U);
    EXPECT_EQ(stackers[2], 7U);
    EXPECT_EQ(stackers[3], 7U) << "reported as for stacker 3";

    ST_PC_DRV_STATUS drives[2] = {};
    code = 77;
    ASSERT_TRUE(open.mgr.GetServiceDriveStatus("R", &drives[0], &drives[1], &code));
    EXPECT_EQ(code, 0);
    for (const ST_PC_DRV_STATUS& drive : drives) {
        EXPECT_EQ(drive.ulDrvStatus, 1U);
        EXPECT_EQ(drive.ulDrvProgressStatus, 0U);
    }

    ULONG loader = 77;
    ULONG printer = 77;
    EXPECT_TRUE(open.mgr.GetServiceAldStatus("R", &loader, nullptr));
    EXPECT_TRUE(open.mgr.GetServicePrinterStatus("R", &printer, nullptr));
    EXPECT_EQ(loader, 0U);
    EXPECT_EQ(printer, 1U);
    EXPECT_TRUE(open.AllClosed());
}

TEST(NetworkQueries, StatusDuringAJob)
{
    NetworkRoom open(Scenario("disc-time = 10s\njob = Photos, copies=3"));
    std::set<unsigned long> drives;
    std::set<ULONG> printers;
    unsigned long progress = 0;
    for (int moment = 0; moment < 100; ++moment) {
        ST_PC_DRV_STATUS first{};
        ST_PC_DRV_STATUS second{};
        ULONG printer = 0;
        ASSERT_TRUE(open.mgr.GetServiceDriveStatus("R", &first, &second, nullptr));
        ASSERT_TRUE(open.mgr.GetServicePrinterStatus("R", &printer, nullptr));
        EXPECT_TRUE(first.ulDrvStatus == 1 || second.ulDrvStatus == 1) << "one disc at a time";
        drives.insert({first.ulDrvStatus, second.ulDrvStatus});
        printers.insert(printer);
        progress = std::max({progress, first.ulDrvProgressStatus, second.ulDrvProgressStatus});
        open.room.advance(200);
    }
    EXPECT_EQ(drives, (std::set<unsigned long>{1, 4, 8, 0x40})) << "idle, writing, verifying, conveying";
    EXPECT_TRUE(printers.contains(1));
    EXPECT_TRUE(printers.contains(4));
    EXPECT_GT(progress, 50U);
    EXPECT_LE(progress, 100U);
}

TEST(NetworkQueries, ACleaning)
{
    NetworkRoom open(Scenario(""));
    open.room.addJob("A", udsim::JobSetup::cleaning("C"));
    open.room.advance(2'000);
    ULONG printer = 0;
    ASSERT_TRUE(open.mgr.GetServicePrinterStatus("R", &printer, nullptr));
    EXPECT_EQ(printer, 0x10U);
}

TEST(NetworkQueries, TheLoaderReportsItsErrors)
{
    NetworkRoom open(Scenario(""));
    const std::pair<const char*, ULONG> rows[] = {
        {"error 9", 0x10}, {"error 10", 0x20}, {"error 46", 0x8}, {"error 48", 0x400000}, {"clear", 0}};
    for (const auto& [command, bits] : rows) {
        ASSERT_TRUE(open.room.tell("A", command));
        ULONG loader = 77;
        EXPECT_TRUE(open.mgr.GetServiceAldStatus("R", &loader, nullptr));
        EXPECT_EQ(loader, bits) << command;
    }
}

TEST(NetworkQueries, FatalErrors)
{
    NetworkRoom open(Scenario(""));
    const std::pair<int, long> rows[] = {{1, 1},  {2, 2},  {3, 3},   {4, 4},   {5, 5},   {6, 6},  {25, 7},
                                         {26, 8}, {28, 9}, {29, 10}, {39, 11}, {42, 12}, {43, 13}};
    for (const auto& [error, fatal] : rows) {
        open.room.tell("A", "error " + std::to_string(error));
        long code = 77;
        EXPECT_TRUE(open.mgr.IsFatalErrorInPublisher("R", &code)) << error;
        EXPECT_EQ(code, fatal) << error;
    }
    for (const char* const harmless : {"error 9", "error 19", "clear"}) {
        open.room.tell("A", harmless);
        EXPECT_FALSE(open.mgr.IsFatalErrorInPublisher("R", nullptr)) << harmless;
    }
    open.room.tell("A", "offline");
    long code = 77;
    EXPECT_TRUE(open.mgr.IsFatalErrorInPublisher("R", &code));
    EXPECT_EQ(code, 11);
    open.room.tell("A", "server off");
    code = 77;
    EXPECT_FALSE(open.mgr.IsFatalErrorInPublisher("R", &code));
    EXPECT_EQ(code, -1);
}

TEST(NetworkQueries, TheNumberOfPrintsThatTheInkAllows)
{
    NetworkRoom open(Scenario("ink.yellow = 10"));
    const auto expected = static_cast<int>(open.room.lookAtServer("A")->machine().printableDiscs());
    ASSERT_GT(expected, 0);
    long code = 77;
    EXPECT_EQ(open.mgr.GetServiceEstimateCirculation("R", &code), expected);
    EXPECT_EQ(code, 0);
    open.room.tell("A", "offline");
    code = 77;
    EXPECT_EQ(open.mgr.GetServiceEstimateCirculation("R", &code), -1)
        << "unknown while the machine is offline";
    EXPECT_EQ(code, 0);
}

TEST(NetworkQueries, AnOfflineMachine)
{
    NetworkRoom open(Scenario("job = Photos, copies=3"));
    open.room.tell("A", "offline");
    const std::set<std::string> ofTheMachine = {"GetSupportWriteSpeedString",
                                                "IsFatalErrorInPublisher",
                                                "GetPublisherVersionInfo",
                                                "GetPublisherMaintenanceInfo",
                                                "GetServiceInkStatus",
                                                "GetServiceAldStatus",
                                                "GetServiceDriveStatus",
                                                "GetServicePrinterStatus",
                                                "GetServiceStackerStatus",
                                                "GetServiceEstimateCirculation",
                                                "GetDeviceInfo"};
    for (const NetworkOperation& operation : NetworkOperations()) {
        if (operation.name == std::string("SetServiceJobCancel")) {
            continue; // there is no such job
        }
        const NetworkAnswer answer = operation.call(open.mgr, "R", true);
        EXPECT_EQ(answer.result == operation.resultWhenRefused, ofTheMachine.contains(operation.name))
            << operation.name;
    }
    EXPECT_TRUE(open.AllClosed());
}

// ---------------------------------------------------------------------------------------------------------------------
// Unsupported servers

TEST(NetworkQueries, StoppedServers)
{
    NetworkRoom open(Scenario(""));
    open.room.tell("A", "server off");
    for (const NetworkOperation& operation : NetworkOperations()) {
        const NetworkAnswer answer = operation.call(open.mgr, "R", true);
        EXPECT_EQ(answer.result, operation.ResultWhenUnreachable()) << operation.name;
        EXPECT_EQ(answer.code, CodeBy(operation.codeWhenUnreachable, NCL_ERR_SOCK_CONNECTION))
            << operation.name;
    }
    EXPECT_EQ(open.mgr.ConnectionTest("127.0.0.11"), 4U);
    open.room.tell("A", "server on");
    EXPECT_EQ(open.mgr.ConnectionTest("127.0.0.11"), 0U);
    EXPECT_EQ(open.mgr.GetJobCount("R", nullptr), 0);
}

TEST(NetworkQueries, SecureModesAreNotSupported)
{
    for (const char* const mode : {"0", "1"}) {
        NetworkRoom open(Scenario(std::string("name = Lab\nserver-mode = ") + mode));
        for (const NetworkOperation& operation : NetworkOperations()) {
            const NetworkAnswer answer = operation.call(open.mgr, "R", true);
            EXPECT_EQ(answer.result, operation.ResultWhenUnreachable()) << operation.name;
            EXPECT_EQ(answer.code, CodeBy(operation.codeWhenUnreachable, NCL_ERR_SSL_INITIALIZATION))
                << operation.name;
        }
        EXPECT_EQ(open.mgr.ConnectionTest("127.0.0.11"), 5U);
        DWORD handle = 0;
        DWORD code = 77;
        EXPECT_FALSE(open.mgr.StartConnection("R", &handle, &code));
        EXPECT_EQ(code, 5U);
        PUBLISHERINFO info;
        EXPECT_FALSE(open.mgr.GetPublisherInfo("R", &info, FALSE));
        EXPECT_EQ(info.strPublisherName, "Lab");
        EXPECT_EQ(info.uiPublishMode, 0xFFFFFFFFU);
        EXPECT_TRUE(open.mgr.GetPublisherInfo("R", &info, TRUE));
    }
}

namespace {

void SetCompatibility(const std::string& value)
{
    WriteRegistry("[HKLM/Software/ARVEN/Ulmar Disc Maker]\n" + value);
}

void ExpectRefused(NetworkRoom& open)
{
    long code = 77;
    EXPECT_FALSE(open.mgr.IsPossibleCommunicate("R", &code));
    EXPECT_EQ(code, 8001);
    EXPECT_EQ(open.mgr.GetJobCount("R", &code), -1);
    EXPECT_EQ(code, -1);
    EXPECT_EQ(open.mgr.ConnectionTest("127.0.0.11"), 8001U);
}

} // namespace

TEST(NetworkQueries, OldServersNeedTheCompatibilityMode)
{
    for (const char* const version : {"2.20", "2.29", "3.0", "3.29", "3"}) {
        NetworkRoom open(Scenario(std::string("server-version = ") + version));
        for (const char* const value :
             {"", "\"CompatiMode\"=dword:00000000\n", "\"CompatiMode\"=dword:00000002\n"}) {
            SCOPED_TRACE(std::string(version) + " " + value);
            SetCompatibility(value);
            ExpectRefused(open);
        }
        SetCompatibility("\"CompatiMode\"=dword:00000001\n");
        EXPECT_TRUE(open.mgr.IsPossibleCommunicate("R", nullptr)) << version;
        EXPECT_EQ(open.mgr.GetJobCount("R", nullptr), 0) << version;
        EXPECT_EQ(open.mgr.ConnectionTest("127.0.0.11"), 0U);
        EXPECT_TRUE(open.AllClosed());
        SetCompatibility("\"CompatiMode\"=dword:00000000\n"); // a value once read stays until it is replaced
        ExpectRefused(open);
    }
}

TEST(NetworkQueries, TheCompatibilityModeIsANumber)
{
    NetworkRoom open(Scenario("server-version = 2.20"));
    SetCompatibility("\"CompatiMode\"=\"1\"\n");
    ExpectRefused(open);
    EXPECT_TRUE(open.AllClosed());
}

TEST(NetworkQueries, ServersWithAnotherInterfaceVersion)
{
    NetworkRoom open(Scenario("interface-version = 03000000"));
    long code = 77;
    EXPECT_FALSE(open.mgr.IsPossibleCommunicate("R", &code));
    EXPECT_EQ(code, 8001);
    EXPECT_TRUE(open.AllClosed());
}

TEST(NetworkQueries, UnsupportedOperationsSendNoRequest)
{
    NetworkRoom open(Scenario(""));
    ULONG values[4] = {};
    long code = 77;
    EXPECT_FALSE(open.mgr.SetServiceJobStop("R", "J", &code));
    EXPECT_FALSE(open.mgr.SetServiceJobContinue("R", "J", &code));
    EXPECT_TRUE(open.mgr.SetServiceJobErrorCancel("R", "J", &code));
    EXPECT_TRUE(open.mgr.SetServiceNotifyChange("R", &code));
    EXPECT_FALSE(open.mgr.GetServiceFatalCode("R", values, &code));
    EXPECT_FALSE(open.mgr.SetServicePublishMode("R", 1, &code));
    EXPECT_FALSE(open.mgr.GetServiceUSBMode("R", values, &code));
    EXPECT_FALSE(open.mgr.IsPossibleCommunicateService(&code));
    EXPECT_EQ(code, 77);
    EXPECT_TRUE(open.room.httpRequests().empty());
}

TEST(NetworkQueries, OneObjectServesSeveralThreads)
{
    NetworkRoom open("[network A]\nid = A\nmodel = RT-300NII\nretries = 1\n"
                     "[network B]\nid = B\nmodel = RT-300NII\nretries = 2\n"
                     "[network C]\nid = C\nmodel = RT-300NII\nretries = 3\n");
    const std::pair<const char*, UINT> publishers[] = {{"A", 1}, {"B", 2}, {"C", 3}};
    std::vector<std::thread> threads;
    for (int copy = 0; copy < 2; ++copy) {
        for (const auto& [id, retries] : publishers) {
            threads.emplace_back([&mgr = open.mgr, publisher = id, expected = retries] {
                for (int round = 0; round < 10; ++round) {
                    PUBLISHERINFO info;
                    ST_PC_INK_STATUS ink{};
                    EXPECT_TRUE(mgr.GetPublisherInfo(publisher, &info, FALSE));
                    EXPECT_EQ(info.uiRetryCount, expected);
                    EXPECT_TRUE(mgr.GetServiceInkStatus(publisher, &ink, nullptr));
                    EXPECT_EQ(mgr.GetJobCount(publisher, nullptr), 0);
                }
            });
        }
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_TRUE(open.AllClosed());
}
