// The local data of a network publisher: its setting file, which is read and written without a server.
#include "NetworkPublisherMgr.h"
#include "OrdinaryRights.h"
#include "PublisherFiles.h"
#include "SmallDisk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <sys/stat.h>

namespace {

const std::string FILE_TEXT = "[Common]\n"
                              "PublisherName=Lab 1\n"
                              "PrinterName=Printer 1\n"
                              "PublisherConnectionType=1\n"
                              "PublisherURL=\\\\127.0.0.11\n"
                              "NPType=3\n";

class NetworkSettings : public testing::Test
{
protected:
    /// There is no server: every connection attempt is refused.
    CNetworkPublisherMgr m_mgr{true, PUBLISHER_SETTING_DIR};
};
using NetworkSettingsDeathTest = NetworkSettings;

/// Values that no new or cleared record has.
PUBLISHERINFO UsedRecord()
{
    PUBLISHERINFO info;
    info.strGUID = "old";
    info.strPublisherRegistID = "old";
    info.strPublisherName = "old";
    info.strPrinterName = "old";
    info.strHostName = "old";
    info.uiPublishMode = info.uiStacker1DiscType = info.uiStacker2DiscType = info.uiStacker3DiscType =
        info.uiStacker4DiscType = info.uiUseDrive = info.uiRetryCount = info.uiPublisherType =
            info.uiAddErrorMark = info.uiPublisherDevType = info.uiRetryCountR = info.uiRetryCountW =
                info.uiNetPublisherType = 77;
    info.bAddErrorMark = false;
    info.bContinuePublish = false;
    return info;
}

mode_t ModeOf(const std::string& path)
{
    struct stat entry = {};
    EXPECT_EQ(::stat(path.c_str(), &entry), 0);
    return entry.st_mode & 07777;
}

PUBLISHERINFO NetworkRecord()
{
    PUBLISHERINFO info;
    info.strGUID = "{G}";
    info.strPublisherRegistID = "R";
    info.strPublisherName = "Lab 1";
    info.strPrinterName = "Printer 1";
    info.strHostName = "127.0.0.11";
    info.uiPublisherType = PUBMGR_CONNECTTYPE_NETWORK;
    info.uiPublishMode = 4;
    info.uiNetPublisherType = 3;
    return info;
}

const std::string WRITTEN = "[Common]\n"
                            "PublisherName=Lab 1\n"
                            "PrinterName=Printer 1\n"
                            "PublisherConnectionType=1\n"
                            "PublisherURL=127.0.0.11\n";

} // namespace

TEST_F(NetworkSettings, ItServesNetworkPublishers)
{
    EXPECT_EQ(m_mgr.GetPublisherMgrType(), 1U);
}

TEST_F(NetworkSettings, TheIdModeOfTheConstructorDoesNotMatter)
{
    WritePublisher("R", FILE_TEXT);
    CNetworkPublisherMgr other(false, PUBLISHER_SETTING_DIR);
    EXPECT_EQ(other.GetHostName("R"), "127.0.0.11");
    EXPECT_EQ(other.GetPublisherMgrType(), 1U);
}

TEST_F(NetworkSettings, TheConstructorSetsTheFolder)
{
    std::filesystem::create_directories("/tmp/others");
    WriteText("/tmp/others/R.ini", "[Common]\nPublisherURL=elsewhere\n");
    CNetworkPublisherMgr other(true, "/tmp/others");
    EXPECT_EQ(other.GetHostName("R"), "elsewhere");
    EXPECT_EQ(m_mgr.GetHostName("R"), "");
}

// ---------------------------------------------------------------------------------------------------------------------
// Reading

TEST_F(NetworkSettings, TheLocalPartOfTheRecord)
{
    WritePublisher("R", FILE_TEXT);
    PUBLISHERINFO info = UsedRecord();
    ASSERT_TRUE(m_mgr.GetPublisherInfo("R", &info, TRUE));
    EXPECT_EQ(info.strGUID, "");
    EXPECT_EQ(info.strPublisherRegistID, "R");
    EXPECT_EQ(info.strPublisherName, "Lab 1");
    EXPECT_EQ(info.strPrinterName, "Printer 1");
    EXPECT_EQ(info.strHostName, "\\\\127.0.0.11");
    EXPECT_EQ(info.uiPublisherType, 1U);
    EXPECT_EQ(info.uiNetPublisherType, 3U);
    for (const UINT field :
         {info.uiPublishMode, info.uiStacker1DiscType, info.uiStacker2DiscType, info.uiStacker3DiscType,
          info.uiStacker4DiscType, info.uiUseDrive, info.uiRetryCount, info.uiAddErrorMark}) {
        EXPECT_EQ(field, 0xFFFFFFFFU);
    }
    // The other fields have the values of a cleared record.
    EXPECT_TRUE(info.bAddErrorMark);
    EXPECT_TRUE(info.bContinuePublish);
    EXPECT_EQ(info.uiPublisherDevType, 0U);
    EXPECT_EQ(info.uiRetryCountR, 3U);
    EXPECT_EQ(info.uiRetryCountW, 3U);
    EXPECT_EQ(ReadPublisher("R"), FILE_TEXT);
}

TEST_F(NetworkSettings, AnUnreachableServerLeavesTheLocalPart)
{
    WritePublisher("R", FILE_TEXT);
    PUBLISHERINFO info = UsedRecord();
    EXPECT_FALSE(m_mgr.GetPublisherInfo("R", &info, FALSE));
    EXPECT_EQ(info.strPublisherName, "Lab 1");
    EXPECT_EQ(info.strHostName, "\\\\127.0.0.11");
    EXPECT_EQ(info.uiNetPublisherType, 3U);
    EXPECT_EQ(info.uiPublishMode, 0xFFFFFFFFU);
}

TEST_F(NetworkSettings, KindsOfPublishers)
{
    const std::pair<const char*, UINT> rows[] = {
        {"0", 0},    {"1", 1},  {"2", 2},   {"3", 3},  {"4", 0},   {"7", 0},          {"-1", 0},  {"", 0},
        {"none", 0}, {"2x", 2}, {" 3 ", 3}, {"03", 3}, {"999", 0}, {"4294967295", 0}, {"0x2", 0},
    };
    for (const auto& [text, kind] : rows) {
        WritePublisher("R", std::string("[Common]\nNPType=") + text + "\n");
        PUBLISHERINFO info = UsedRecord();
        ASSERT_TRUE(m_mgr.GetPublisherInfo("R", &info, TRUE));
        EXPECT_EQ(info.uiNetPublisherType, kind) << text;
    }
    WritePublisher("R", "[Common]\n");
    PUBLISHERINFO info = UsedRecord();
    ASSERT_TRUE(m_mgr.GetPublisherInfo("R", &info, TRUE));
    EXPECT_EQ(info.uiNetPublisherType, 0U);
}

TEST_F(NetworkSettings, MissingKeysReadAsEmptyTexts)
{
    WritePublisher("R", "[Common]\nPublisherName=\n");
    PUBLISHERINFO info = UsedRecord();
    ASSERT_TRUE(m_mgr.GetPublisherInfo("R", &info, TRUE));
    EXPECT_EQ(info.strPublisherName, "");
    EXPECT_EQ(info.strPrinterName, "");
    EXPECT_EQ(info.strHostName, "");
    EXPECT_EQ(info.uiPublisherType, 1U) << "independent of the file";
}

TEST_F(NetworkSettings, AnUnreadableFileReadsAsNotSet)
{
    WritePublisher("R", FILE_TEXT);
    std::filesystem::permissions(PublisherFile("R"), std::filesystem::perms::none);
    ASSERT_TRUE(TakeAwayPrivileges());
    PUBLISHERINFO info = UsedRecord();
    ASSERT_TRUE(m_mgr.GetPublisherInfo("R", &info, TRUE));
    EXPECT_EQ(info.strPublisherName, "NotSet");
    EXPECT_EQ(info.strPrinterName, "NotSet");
    EXPECT_EQ(info.strHostName, "NotSet");
    EXPECT_EQ(info.uiNetPublisherType, 0U);
    EXPECT_EQ(m_mgr.GetHostNameFull("R"), "NotSet");
    EXPECT_EQ(m_mgr.GetHostName("R"), "NotSet");
}

TEST_F(NetworkSettings, AnEmptyIdDoesNotChangeTheRecord)
{
    PUBLISHERINFO info = UsedRecord();
    EXPECT_FALSE(m_mgr.GetPublisherInfo("", &info, TRUE));
    EXPECT_FALSE(m_mgr.GetPublisherInfo("", &info, FALSE));
    EXPECT_EQ(info.strPublisherName, "old");
    EXPECT_EQ(info.uiPublishMode, 77U);
}

TEST_F(NetworkSettings, WithoutAFileTheRecordIsClearedAndHasItsId)
{
    MakePublisherFolder();
    for (const BOOL unreachable : {FALSE, TRUE}) {
        PUBLISHERINFO info = UsedRecord();
        EXPECT_FALSE(m_mgr.GetPublisherInfo("R", &info, unreachable));
        EXPECT_EQ(info.strPublisherRegistID, "R");
        EXPECT_EQ(info.uiPublisherType, 1U);
        EXPECT_EQ(info.strGUID, "");
        EXPECT_EQ(info.strPublisherName, "");
        EXPECT_EQ(info.strHostName, "");
        EXPECT_EQ(info.uiAddErrorMark, 0U) << "a cleared record has no error mark";
        EXPECT_EQ(info.uiPublishMode, 0U);
    }
}

TEST_F(NetworkSettings, TheIdMayPointIntoTheRecord)
{
    const std::string id(100, 'i');
    WritePublisher(id, FILE_TEXT);
    PUBLISHERINFO info;
    info.strPublisherRegistID = id;
    ASSERT_TRUE(m_mgr.GetPublisherInfo(info.strPublisherRegistID.c_str(), &info, TRUE));
    EXPECT_EQ(info.strPublisherRegistID, id);
    EXPECT_EQ(info.strPublisherName, "Lab 1");
}

TEST_F(NetworkSettings, LongTextsAreTruncatedTo255Bytes)
{
    WritePublisher("R", "[Common]\nPublisherName=" + std::string(600, 'n') + "\nPrinterName=" +
                            std::string(600, 'p') + "\nPublisherURL=" + std::string(600, 'h') + "\n");
    PUBLISHERINFO info;
    ASSERT_TRUE(m_mgr.GetPublisherInfo("R", &info, TRUE));
    EXPECT_EQ(info.strPublisherName, std::string(255, 'n'));
    EXPECT_EQ(info.strPrinterName, std::string(255, 'p'));
    EXPECT_EQ(info.strHostName, std::string(255, 'h'));
    EXPECT_EQ(m_mgr.GetHostNameFull("R"), std::string(255, 'h'));
}

TEST_F(NetworkSettings, HostsWithAndWithoutBackslashes)
{
    const std::pair<const char*, const char*> rows[] = {
        {"127.0.0.11", "127.0.0.11"}, {"\\\\server", "server"}, {"\\server", "server"},
        {"a\\b\\server", "server"},   {"server\\", ""},         {"\\", ""},
        {"my server", "my server"},   {"a/b", "a/b"},           {"http://server", "http://server"},
    };
    for (const auto& [url, host] : rows) {
        WritePublisher("R", std::string("[Common]\nPublisherURL=") + url + "\n");
        EXPECT_EQ(m_mgr.GetHostNameFull("R"), url);
        EXPECT_EQ(m_mgr.GetHostName("R"), host) << url;
    }
}

TEST_F(NetworkSettings, HostsOfAbsentPublishers)
{
    MakePublisherFolder();
    EXPECT_EQ(m_mgr.GetHostName("R"), "");
    EXPECT_EQ(m_mgr.GetHostNameFull("R"), "");
    EXPECT_EQ(m_mgr.GetHostName(""), "");
    EXPECT_EQ(m_mgr.GetHostNameFull(std::string(5000, 'i').c_str()), "");
}

TEST_F(NetworkSettings, ThereIsNoDeviceKey)
{
    WritePublisher("R", "[Common]\nGUID={G}\n");
    EXPECT_EQ(m_mgr.GetPublisherGUID("R"), "");
    EXPECT_EQ(m_mgr.GetPublisherGUID("absent"), "");
}

// ---------------------------------------------------------------------------------------------------------------------
// Writing

TEST_F(NetworkSettings, ANewFileIsCompleteAndReadableByAll)
{
    MakePublisherFolder();
    EXPECT_TRUE(m_mgr.UpdatePublisherInfo(NetworkRecord()));
    EXPECT_EQ(ReadPublisher("R"), WRITTEN);
    EXPECT_EQ(ModeOf(PublisherFile("R")), 0644U);
}

TEST_F(NetworkSettings, AnExistingFileGetsMode0644)
{
    for (const mode_t mode : {0755U, 0600U, 0666U, 0444U, 04755U}) {
        WritePublisher("R", "[Common]\n");
        ASSERT_EQ(::chmod(PublisherFile("R").c_str(), mode), 0);
        EXPECT_TRUE(m_mgr.UpdatePublisherInfo(NetworkRecord()));
        EXPECT_EQ(ModeOf(PublisherFile("R")), 0644U);
        EXPECT_EQ(ReadPublisher("R"), WRITTEN);
        std::filesystem::remove(PublisherFile("R"));
    }
}

TEST_F(NetworkSettings, TheWholeSectionIsReplacedIncludingTheKindOfTheServer)
{
    WritePublisher("R", "[Common]\nNPType=2\nPublisherName=Old\n");
    EXPECT_TRUE(m_mgr.UpdatePublisherInfo(NetworkRecord()));
    EXPECT_EQ(ReadPublisher("R"), WRITTEN);
    PUBLISHERINFO info;
    ASSERT_TRUE(m_mgr.GetPublisherInfo("R", &info, TRUE));
    EXPECT_EQ(info.uiNetPublisherType, 0U);
}

TEST_F(NetworkSettings, OtherSectionsStay)
{
    WritePublisher("R", "[First]\na=1\n[Common]\nGUID={G}\nStacker1=2\n[Last]\nb=2\n");
    EXPECT_TRUE(m_mgr.UpdatePublisherInfo(NetworkRecord()));
    EXPECT_EQ(ReadPublisher("R"), "[First]\na=1\n" + WRITTEN + "[Last]\nb=2\n");
}

TEST_F(NetworkSettings, EmptyTextsAreWrittenAsNotSet)
{
    MakePublisherFolder();
    PUBLISHERINFO info;
    info.strPublisherRegistID = "R";
    info.uiPublisherType = 1;
    EXPECT_TRUE(m_mgr.UpdatePublisherInfo(info));
    EXPECT_EQ(ReadPublisher("R"), "[Common]\nPublisherName=NotSet\nPrinterName=NotSet\n"
                                  "PublisherConnectionType=1\nPublisherURL=NotSet\n");
}

TEST_F(NetworkSettings, TheConnectionTypeIsThatOfTheRecord)
{
    for (const UINT kind : {0U, 1U, 2U, 12345U}) {
        MakePublisherFolder();
        PUBLISHERINFO info = NetworkRecord();
        info.uiPublisherType = kind;
        EXPECT_TRUE(m_mgr.UpdatePublisherInfo(info));
        EXPECT_THAT(ReadPublisher("R"),
                    testing::HasSubstr("\nPublisherConnectionType=" + std::to_string(kind) + "\n"));
        std::filesystem::remove(PublisherFile("R"));
    }
}

TEST_F(NetworkSettings, AWrittenRecordCanBeReadAgain)
{
    MakePublisherFolder();
    PUBLISHERINFO written = NetworkRecord();
    written.strHostName = "\\\\host";
    ASSERT_TRUE(m_mgr.UpdatePublisherInfo(written));
    PUBLISHERINFO info;
    ASSERT_TRUE(m_mgr.GetPublisherInfo("R", &info, TRUE));
    EXPECT_EQ(info.strPublisherName, "Lab 1");
    EXPECT_EQ(info.strPrinterName, "Printer 1");
    EXPECT_EQ(info.strHostName, "\\\\host");
    EXPECT_EQ(info.uiNetPublisherType, 0U);
    EXPECT_EQ(m_mgr.GetHostName("R"), "host");
}

TEST_F(NetworkSettings, NamesOfAnyLengthDoNotChangeOtherFiles)
{
    WritePublisher("other", FILE_TEXT);
    for (const size_t length : {255U, 256U, 1023U, 1024U, 5000U, 100'000U}) {
        PUBLISHERINFO info = NetworkRecord();
        info.strPublisherName = std::string(length, 'n');
        EXPECT_TRUE(m_mgr.UpdatePublisherInfo(info));
        EXPECT_THAT(ReadPublisher("R"),
                    testing::StartsWith("[Common]\nPublisherName=" + std::string(length, 'n') + "\n"));
        PUBLISHERINFO back;
        ASSERT_TRUE(m_mgr.GetPublisherInfo("R", &back, TRUE));
        EXPECT_EQ(back.strPublisherName, std::string(255, 'n'));
        EXPECT_EQ(back.strHostName, "127.0.0.11");
        std::filesystem::remove(PublisherFile("R"));
    }
    EXPECT_EQ(ReadPublisher("other"), FILE_TEXT);
}

TEST_F(NetworkSettings, TextsCannotForgeKeys)
{
    for (const std::string& end :
         {std::string("\n"), std::string("\r\n"), std::string("\r"), std::string(1, '\0')}) {
        MakePublisherFolder();
        PUBLISHERINFO info = NetworkRecord();
        info.strPublisherName = "Lab 1" + end + "PublisherURL=elsewhere";
        info.strHostName = "127.0.0.11" + end + "[Other]";
        EXPECT_TRUE(m_mgr.UpdatePublisherInfo(info));
        EXPECT_EQ(ReadPublisher("R"), WRITTEN);
        std::filesystem::remove(PublisherFile("R"));
    }
}

TEST_F(NetworkSettings, AFileWithoutWritePermissionIsAFailure)
{
    for (const mode_t mode : {0444U, 0U}) {
        WritePublisher("R", FILE_TEXT);
        ASSERT_EQ(::chmod(PublisherFile("R").c_str(), mode), 0);
        ASSERT_TRUE(TakeAwayPrivileges());
        EXPECT_FALSE(m_mgr.UpdatePublisherInfo(NetworkRecord()));
        EXPECT_EQ(ModeOf(PublisherFile("R")), mode);
        ASSERT_EQ(::chmod(PublisherFile("R").c_str(), 0644), 0);
        EXPECT_EQ(ReadPublisher("R"), FILE_TEXT);
    }
}

TEST_F(NetworkSettingsDeathTest, AMissingFolderStopsTheProcess)
{
    EXPECT_DEATH(m_mgr.UpdatePublisherInfo(NetworkRecord()), "Assertion");
}

TEST_F(NetworkSettingsDeathTest, AFolderInPlaceOfTheFileStopsTheProcess)
{
    std::filesystem::create_directories(PublisherFile("R"));
    EXPECT_DEATH(m_mgr.UpdatePublisherInfo(NetworkRecord()), "Assertion");
    std::filesystem::remove(PublisherFile("R"));
}

// A new file stays behind, empty.
TEST_F(NetworkSettingsDeathTest, AFullDiskStopsTheProcess)
{
    const std::filesystem::path file = PublisherFile("R");
    MountSmallDisk(file.parent_path());
    FillDisk(file.parent_path());
    EXPECT_DEATH(m_mgr.UpdatePublisherInfo(NetworkRecord()), "Assertion");
    EXPECT_TRUE(std::filesystem::is_empty(file));
}

// ---------------------------------------------------------------------------------------------------------------------
// Null arguments

TEST_F(NetworkSettingsDeathTest, NullArgumentsThatStopTheProcess)
{
    PUBLISHERINFO info;
    long code = 0;
    ULONG mode = 0;
    EXPECT_DEATH(m_mgr.UpdatePublisherInfo(PUBLISHERINFO()), "!= FALSE");
    EXPECT_DEATH(m_mgr.GetPublisherInfo(nullptr, &info, TRUE), "!= FALSE");
    EXPECT_DEATH(m_mgr.GetPublisherInfo("R", nullptr, TRUE), "!= FALSE");
    EXPECT_DEATH(m_mgr.GetHostName(nullptr), "!= FALSE");
    EXPECT_DEATH(m_mgr.GetHostNameFull(nullptr), "!= FALSE");
    EXPECT_DEATH(m_mgr.GetCopiesMax(nullptr, false), "!= FALSE");
    EXPECT_DEATH(m_mgr.GetSupportWriteSpeedString(nullptr, 1), "!= FALSE");
    EXPECT_DEATH(m_mgr.GetSupportWriteSpeedString(nullptr, 3), "!= FALSE");
    EXPECT_DEATH(m_mgr.GetJobCount(nullptr, &code), "!= FALSE");
    EXPECT_DEATH(m_mgr.IsFatalErrorInPublisher(nullptr, &code), "!= FALSE");
    EXPECT_DEATH(m_mgr.SetServiceJobCancel(nullptr, "J", &code), "!= FALSE");
    EXPECT_DEATH(m_mgr.GetServicePublishMode(nullptr, &mode, &code), "!= FALSE");
    EXPECT_DEATH(m_mgr.GetServicePublishMode("R", nullptr, &code), "!= FALSE");
}

TEST_F(NetworkSettings, NullArgumentsThatAreRefused)
{
    WritePublisher("R", FILE_TEXT);
    long code = 77;
    EXPECT_EQ(m_mgr.ConnectionTest(nullptr), 8000U);
    EXPECT_FALSE(m_mgr.IsPossibleCommunicate(nullptr, &code));
    EXPECT_EQ(m_mgr.GetCommunicateJobCount(nullptr), -1);
    EXPECT_FALSE(m_mgr.CancelJob(nullptr, "J", 1, 2, &code));
    EXPECT_FALSE(m_mgr.GetPublisherVersionInfo("R", nullptr, &code));
    EXPECT_FALSE(m_mgr.GetPublisherMaintenanceInfo("R", nullptr, &code));
    EXPECT_EQ(code, 77);
}

// ---------------------------------------------------------------------------------------------------------------------
// Operations that a network publisher does not support

TEST_F(NetworkSettings, WithoutAnAddressConnectionsFail)
{
    MakePublisherFolder();
    DWORD handle = 77;
    DWORD code = 88;
    EXPECT_FALSE(m_mgr.StartConnection("R", &handle, &code));
    EXPECT_EQ(code, 88U);
    WritePublisher("R", "[Common]\nPublisherURL=server\\\n");
    EXPECT_FALSE(m_mgr.StartConnection("R", &handle, &code))
        << "the host is empty if the address ends with a backslash";
    EXPECT_EQ(code, 88U);
    EXPECT_EQ(handle, 77U);
}

TEST_F(NetworkSettings, UnsupportedOperationsDoNothing)
{
    WritePublisher("R", FILE_TEXT);
    PUBLISHERINFO info = NetworkRecord();
    bool setDefault = true;
    long code = 77;
    ULONG values[4] = {1, 2, 3, 4};
    NotifyStatusArray notices;
    notices.Add(5);
    EXPECT_FALSE(m_mgr.UpdatePublishMode("R", &info, true, &setDefault));
    EXPECT_FALSE(m_mgr.SetServiceJobStop("R", "J", &code));
    EXPECT_FALSE(m_mgr.SetServiceJobContinue("R", "J", &code));
    EXPECT_FALSE(m_mgr.GetServiceFatalCode("R", values, &code));
    EXPECT_FALSE(m_mgr.GetServiceNotifyStatus("R", &notices, &code));
    EXPECT_FALSE(m_mgr.SetServicePublishMode("R", 1, &code));
    EXPECT_FALSE(m_mgr.GetServiceStackerDiscType("R", &values[0], &values[1], &values[2], &values[3], &code));
    EXPECT_FALSE(m_mgr.GetServiceUSBMode("R", values, &code));
    EXPECT_FALSE(m_mgr.IsPossibleCommunicateService(&code));
    EXPECT_FALSE(m_mgr.IsRunningCommunicateService());
    EXPECT_TRUE(m_mgr.SetServiceJobErrorCancel("R", "J", &code));
    EXPECT_TRUE(m_mgr.SetServiceNotifyChange("R", &code));
    EXPECT_TRUE(m_mgr.SetServiceUpdateErrorDiscContinueCount(&code, "R"));
    EXPECT_EQ(code, 77);
    EXPECT_EQ(values[0], 1U);
    EXPECT_EQ(values[3], 4U);
    EXPECT_EQ(notices.GetSize(), 1);
    EXPECT_TRUE(setDefault);
    EXPECT_EQ(ReadPublisher("R"), FILE_TEXT);
}

TEST_F(NetworkSettings, UnsupportedOperationsAcceptNullArguments)
{
    EXPECT_FALSE(m_mgr.UpdatePublishMode(nullptr, nullptr, false, nullptr));
    EXPECT_FALSE(m_mgr.SetServiceJobStop(nullptr, nullptr, nullptr));
    EXPECT_FALSE(m_mgr.SetServiceJobContinue(nullptr, nullptr, nullptr));
    EXPECT_FALSE(m_mgr.GetServiceFatalCode(nullptr, nullptr, nullptr));
    EXPECT_FALSE(m_mgr.GetServiceNotifyStatus(nullptr, nullptr, nullptr));
    EXPECT_FALSE(m_mgr.SetServicePublishMode(nullptr, 0, nullptr));
    EXPECT_FALSE(m_mgr.GetServiceStackerDiscType(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
    EXPECT_FALSE(m_mgr.GetServiceUSBMode(nullptr, nullptr, nullptr));
    EXPECT_FALSE(m_mgr.IsPossibleCommunicateService(nullptr));
    EXPECT_TRUE(m_mgr.SetServiceJobErrorCancel(nullptr, nullptr, nullptr));
    EXPECT_TRUE(m_mgr.SetServiceNotifyChange(nullptr, nullptr));
    EXPECT_TRUE(m_mgr.SetServiceUpdateErrorDiscContinueCount(nullptr, nullptr));
}
